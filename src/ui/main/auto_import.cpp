#include "ui/main/auto_import.h"

#include "basis/codeDatumTijd.h"
#include "basis/scoped.h"
#include "schedule/lees_rooster.h"
#include "vocabulary/rubriek_woorden.h"

namespace tavelo {

namespace {

void neem_stempel_over(Programma& p, const std::string& stempel) {
    p.rooster_tijdstempel = stempel;
    if (p.rooster_slot >= 0 && p.rooster_slot < 2)
        p.slots[static_cast<std::size_t>(p.rooster_slot)].tijdstempel = stempel;
}

void herlees(Bediening& bediening, const std::string& stempel, WijzigingenLijst* wijzigingen) {
    Programma& p = bediening.programma;
    const Omgeving& omgeving = bediening.omgeving;
    const BusyPointer bezig(omgeving.muisaanwijzer);
    SilentMessages geen_berichten; // nobody asked for this read
    const RoosterDoel doel{p.grdRooster, p.schedule, p.labels, geen_berichten, omgeving.logboek};
    if (!herlees_rooster(p.rooster_bestand, doel, p.grdImport, wijzigingen)) return;
    neem_stempel_over(p, stempel);
    p.bijschrift = rooster_bijschrift(p.schedule, p.rooster_bestand);
    vul_rubriek_labels(p.schedule, p.labels);
    vul_nr_tijd(p.grdRooster, p.schedule.huidige_rubriek, geen_berichten);
}

} // namespace

void auto_import(Bediening& bediening, const std::function<void()>& toon_label, WijzigingenLijst* wijzigingen) {
    Programma& p = bediening.programma;
    if (p.rooster_bestand.empty()) return;
    // Only this word in small letters: other kinds stop at their first line. It is meant so.
    if (p.rooster_extensie == "xls") return;
    // A stamp that went back, or none, is no reason to read: it is meant so.
    const std::string stempel =
        bestand_tijdstempel(bediening.omgeving.tijdstempels, p.rooster_bestand, tijdstempel_vorm);
    if (stempel <= p.rooster_tijdstempel) return;

    {
        const ScopedFlag bezig(p.herlezen_bezig, true);
        toon_label();
        herlees(bediening, stempel, wijzigingen);
    }
    toon_label();
}

} // namespace tavelo
