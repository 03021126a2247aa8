#include "ui/main/leesfout.h"

#include <utility>

namespace tavelo {

void noteer_lezing(Bediening& bediening, std::optional<GeenRooster> fout) {
    if (std::exchange(bediening.programma.leesfout, fout) == fout || !fout) return;
    bediening.omgeving.logboek.skipped(0, bediening.programma.rooster_bestand, leesfout_tekst(*fout));
}

std::string_view leesfout_tekst(GeenRooster fout) {
    switch (fout) {
    case GeenRooster::niet_te_openen:
        return "kan niet geopend worden";
    case GeenRooster::lezen_mislukt:
        return "lezen is mislukt";
    case GeenRooster::te_groot:
        return "is groter dan een rooster kan zijn";
    case GeenRooster::andere_eerste_regel:
        break;
    }
    return "is geen roosterbestand";
}

} // namespace tavelo
