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

using Lezing = std::expected<Roosterbestand, GeenRooster>;

void herlees(Bediening& bediening, const std::string& stempel, const Lezing& lezing, WijzigingenLijst* wijzigingen) {
    Programma& p = bediening.programma;
    SilentMessages geen_berichten; // nobody asked for this read
    noteer_lezing(bediening, lezing ? std::nullopt : std::optional(lezing.error()));
    if (!lezing) return;
    const RoosterDoel doel{p.grdRooster, p.schedule, p.labels, geen_berichten, bediening.omgeving.logboek};
    herlees_rooster(*lezing, doel, p.grdImport, wijzigingen);
    neem_stempel_over(p, stempel);
    p.rooster_kenmerk = lezing->kenmerk;
    p.bijschrift = rooster_bijschrift(p.schedule, p.rooster_bestand);
    vul_rubriek_labels(p.schedule, p.labels);
    vul_nr_tijd(p.grdRooster, p.schedule.huidige_rubriek, geen_berichten);
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
