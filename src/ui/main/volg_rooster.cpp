#include "ui/main/volg_rooster.h"

#include "basis/codeDatumTijd.h"
#include "basis/system_time.h"
#include "ui/main/auto_import.h"
#include "ui/main/leesfout.h"

#include <utility>

namespace tavelo {

namespace {

std::string stempel_van(const Bestandskenmerk& kenmerk) {
    return datum_tijd_tekst(local_time(kenmerk.gewijzigd), tijdstempel_vorm);
}

} // namespace

RoosterVolger::RoosterVolger(Bediening& bediening, FileReader& lezer, Venster venster)
    : bediening_(bediening), lezer_(lezer), venster_(std::move(venster)) {}

RoosterVolger::~RoosterVolger() { lezer_.forget(); }

void RoosterVolger::tik() {
    tik_ = true;
    kijk();
}

void RoosterVolger::kijk_nog_eens() { kijk(); }

void RoosterVolger::kijk() {
    if (lezer_.busy() || !wordt_gevolgd(bediening_.programma)) return;
    const std::string& pad = bediening_.programma.rooster_bestand;
    lezer_.look(pad, [this, pad](const FileReader::Blik& blik) { gezien(pad, blik); });
}

void RoosterVolger::gezien(const std::string& pad, const FileReader::Blik& blik) {
    const bool tik = std::exchange(tik_, false);
    const GelezenBestand bekend = nu();
    if (pad != bekend.pad || !blik || !wordt_gevolgd(bediening_.programma)) return;
    const GezienBestand bestand{pad, stempel_van(blik->kenmerk), blik->kenmerk, blik->leeftijd};
    switch (moment_.beoordeel(tik, bestand, bekend)) {
    case Besluit::kijk_straks:
        return venster_.kijk_straks();
    case Besluit::lees:
        return lees();
    case Besluit::niets:
        break;
    }
}

void RoosterVolger::lees() {
    lezer_.read(bediening_.programma.rooster_bestand, std::string(eerste_regel_rooster), grootste_rooster,
                [this, toen = nu()](FileReader::Inhoud inhoud) { gelezen(toen, std::move(inhoud)); });
}

void RoosterVolger::gelezen(const GelezenBestand& toen, FileReader::Inhoud inhoud) {
    // The operator opened something meanwhile: what comes in now may be older than that.
    if (toen != nu()) return;
    // In the middle of an opening: a message of its reader waits for an answer.
    if (!bediening_.programma.grdRooster.redraw()) return;
    const std::optional<Bestandskenmerk> kenmerk = inhoud ? std::optional(inhoud->kenmerk) : std::nullopt;
    const auto bestand = als_roosterbestand(std::move(inhoud));
    if (!kenmerk)
        noteer_lezing(bediening_, bestand.error()); // the next tick tries again
    else if (const std::string stempel = stempel_van(*kenmerk); is_nieuwer({toen.pad, stempel, *kenmerk}, toen))
        verwerk_herlezing(bediening_, stempel, bestand, venster_.toon_label);
    venster_.toon();
}

GelezenBestand RoosterVolger::nu() const {
    const Programma& p = bediening_.programma;
    return {p.rooster_bestand, p.rooster_tijdstempel, p.rooster_kenmerk};
}

} // namespace tavelo
