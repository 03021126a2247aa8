#include "ui/main/indeling.h"

#include <algorithm>

namespace tavelo {

namespace {

constexpr int marge = 120;      // right of and below the preview and the frame
constexpr int marge_grid = 102; // below the grid

} // namespace

Plaatsen deel_in(Maat binnenmaat, const Plaatsen& ontwerp, int label_links) {
    const int breedte = std::max(binnenmaat.breedte, kleinste_indeling.breedte);
    const int hoogte = std::max(binnenmaat.hoogte, kleinste_indeling.hoogte);
    Plaatsen plaatsen = ontwerp;
    plaatsen.grdRooster.hoogte = hoogte - ontwerp.grdRooster.boven - marge_grid;
    plaatsen.picDeelnemer.breedte = breedte - ontwerp.picDeelnemer.links - marge;
    plaatsen.picDeelnemer.hoogte = hoogte - ontwerp.picDeelnemer.boven - marge;
    plaatsen.frameRoosterinstellingen.breedte = breedte - ontwerp.frameRoosterinstellingen.links - marge;
    plaatsen.labelbreedte = plaatsen.frameRoosterinstellingen.breedte - label_links - marge;
    return plaatsen;
}

} // namespace tavelo
