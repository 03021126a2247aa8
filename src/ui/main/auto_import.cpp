#include "ui/main/auto_import.h"

#include "basis/codeDatumTijd.h"
#include "basis/scoped.h"
#include "ui/main/leesfout.h"
#include "vocabulary/rubriek_woorden.h"

namespace tavelo {

namespace {

void neem_stempel_over(Programma& p, const std::string& stempel) {
    p.rooster_tijdstempel = stempel;
    if (p.rooster_slot >= 0 && p.rooster_slot < 2)
        p.slots[static_cast<std::size_t>(p.rooster_slot)].tijdstempel = stempel;
}

// Keeps the report for the operator and passes it on.
class Verslaggever final : public WijzigingenLijst {
  public:
    Verslaggever(Dagverslag& dagverslag, WijzigingenLijst* ook) : dagverslag_(dagverslag), ook_(ook) {}
    void regel(std::string_view tekst) override {
        dagverslag_.regel(tekst);
        if (ook_) ook_->regel(tekst);
    }

  private:
    Dagverslag& dagverslag_;
    WijzigingenLijst* ook_;
};

// What the status line tells about the list after a re-read.
void neem_lijst_over(Programma& p) {
    if (p.lijst.bestand != p.rooster_bestand) p.lijst = {p.rooster_slot, p.rooster_bestand, p.lijst.lezing + 1, false};
    p.lijst.wijkt_af = wijkt_af(p.grdRooster, p.grdImport);
}

using Lezing = std::expected<Roosterbestand, GeenRooster>;

void herlees(Bediening& bediening, const std::string& stempel, const Lezing& lezing, WijzigingenLijst* wijzigingen) {
    Programma& p = bediening.programma;
    SilentMessages geen_berichten; // nobody asked for this read
    noteer_lezing(bediening, lezing ? std::nullopt : std::optional(lezing.error()));
    if (!lezing) return;
    const RoosterDoel doel{p.grdRooster, p.schedule, p.labels, geen_berichten, bediening.omgeving.logboek};
    Verslaggever verslag(bediening.dagverslag, wijzigingen);
    bediening.dagverslag.begin(bediening.omgeving.klok.now());
    herlees_rooster(*lezing, doel, p.grdImport, &verslag);
    bediening.dagverslag.einde();
    neem_stempel_over(p, stempel);
    p.rooster_kenmerk = lezing->kenmerk;
    p.bijschrift = rooster_bijschrift(p.schedule, p.rooster_bestand);
    vul_rubriek_labels(p.schedule, p.labels);
    vul_nr_tijd(p.grdRooster, p.schedule.huidige_rubriek, geen_berichten);
    neem_lijst_over(p);
}

template <class Lees>
void herlees_onder_groen_label(Bediening& bediening, const std::string& stempel, const Lees& lees,
                               const std::function<void()>& toon_label, WijzigingenLijst* wijzigingen) {
    {
        const ScopedFlag groen(bediening.programma.herlezen_bezig, true);
        toon_label();
        const BusyPointer bezig(bediening.omgeving.muisaanwijzer);
        herlees(bediening, stempel, lees(), wijzigingen);
    }
    toon_label();
}

} // namespace

bool wordt_gevolgd(const Programma& programma) {
    // Only this word in small letters: other kinds stop at their first line. It is meant so.
    return !programma.rooster_bestand.empty() && programma.rooster_extensie != "xls";
}

void auto_import(Bediening& bediening, const std::function<void()>& toon_label, WijzigingenLijst* wijzigingen) {
    Programma& p = bediening.programma;
    if (!wordt_gevolgd(p)) return;
    // A stamp that went back, or none, is no reason to read: it is meant so.
    const std::string stempel =
        bestand_tijdstempel(bediening.omgeving.tijdstempels, p.rooster_bestand, tijdstempel_vorm);
    if (stempel <= p.rooster_tijdstempel) return;

    herlees_onder_groen_label(
        bediening, stempel, [&p] { return open_roosterbestand(p.rooster_bestand); }, toon_label, wijzigingen);
}

void verwerk_herlezing(Bediening& bediening, const std::string& stempel, const Lezing& lezing,
                       const std::function<void()>& toon_label, WijzigingenLijst* wijzigingen) {
    herlees_onder_groen_label(
        bediening, stempel, [&lezing]() -> const Lezing& { return lezing; }, toon_label, wijzigingen);
}

} // namespace tavelo
