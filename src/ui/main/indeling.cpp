#include "ui/main/indeling.h"

#include <algorithm>

namespace tavelo {

namespace {

constexpr int marge = 120;      // right of and below the preview and the frame
constexpr int marge_grid = 102; // below the grid

// Of the grid, and what the preview has at least in the narrowest window of the design.
struct Ruimtebreedten {
    int grid;
    int voorbeeld;
};

Ruimtebreedten breedten_van(Ruimte ruimte) {
    switch (ruimte) {
    case Ruimte::ruim:
        return {784 * 15, 360 * 15}; // all columns and the scroll bar
    case Ruimte::krap:
        return {570 * 15, 240 * 15};
    case Ruimte::klein:
        break;
    }
    return {416 * 15, 160 * 15}; // what fits the smallest window
}

} // namespace

int gridbreedte(Ruimte ruimte) { return breedten_van(ruimte).grid; }

Ruimte kies_ruimte(int binnenbreedte, int paneel) {
    const auto past = [&](Ruimte ruimte, int minstens) {
        const auto [grid, voorbeeld] = breedten_van(ruimte);
        return tussenruimte + std::max(grid, minstens) + tussenruimte + voorbeeld + marge <= binnenbreedte;
    };
    if (past(Ruimte::ruim, paneel)) return Ruimte::ruim;
    return past(Ruimte::krap, 0) ? Ruimte::krap : Ruimte::klein;
}

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

namespace {

constexpr Maat kleinste_voorbeeld{2400, 1350};

// Of the preview that the rules of resizing make at that place.
Maat maat_voorbeeld(Maat binnenmaat, Plek plek) {
    return {std::max(binnenmaat.breedte, kleinste_indeling.breedte) - plek.links - marge,
            std::max(binnenmaat.hoogte, kleinste_indeling.hoogte) - plek.boven - marge};
}

// What is left over stands above a preview that is too tall, and left of one that is too wide.
Plek plek_in_vorm(Maat ruimte, Plek uiterste, Maat muur) {
    const auto verhoudelijk = [](int lengte, int teller, int noemer) {
        return static_cast<int>(1LL * lengte * teller / noemer);
    };
    const int hoogte = verhoudelijk(ruimte.breedte, muur.hoogte, muur.breedte);
    if (hoogte <= ruimte.hoogte) return {uiterste.links, uiterste.boven + ruimte.hoogte - hoogte};
    return {uiterste.links + ruimte.breedte - verhoudelijk(ruimte.hoogte, muur.breedte, muur.hoogte), uiterste.boven};
}

} // namespace

Plek plek_voorbeeld(Maat bedoeld, Maat binnenmaat, Plek uiterste, Maat muur) {
    const Maat ruimte = maat_voorbeeld(bedoeld, uiterste);
    if (ruimte.breedte <= 0 || ruimte.hoogte <= 0 || muur.breedte <= 0 || muur.hoogte <= 0) return uiterste;
    const Plek plek = plek_in_vorm(ruimte, uiterste, muur);
    const Maat nu = maat_voorbeeld(binnenmaat, plek);
    const bool past = nu.breedte >= kleinste_voorbeeld.breedte && nu.hoogte >= kleinste_voorbeeld.hoogte;
    return past ? plek : uiterste;
}

} // namespace tavelo
