#include "ui/display/schermkeuze.h"

#include <algorithm>
#include <array>

namespace tavelo {

namespace {

// Smaller beside the main window than this, and the public view had better stand in the corner.
constexpr int kleinste_breedte = 320;
constexpr int kleinste_hoogte = 180;

// As large as wanted where it fits, else smaller in the same proportions.
Schermvlak passend(const Schermvlak& ruimte, const Schermvlak& wens) {
    Schermvlak maat = wens;
    if (maat.breedte > ruimte.breedte) {
        maat.hoogte = static_cast<int>(1LL * maat.hoogte * ruimte.breedte / maat.breedte);
        maat.breedte = ruimte.breedte;
    }
    if (maat.hoogte > ruimte.hoogte) {
        maat.breedte = static_cast<int>(1LL * maat.breedte * ruimte.hoogte / maat.hoogte);
        maat.hoogte = ruimte.hoogte;
    }
    return maat;
}

bool is_ruim_genoeg(const Schermvlak& ruimte) {
    return ruimte.breedte >= kleinste_breedte && ruimte.hoogte >= kleinste_hoogte;
}

// In the bottom right corner of the room, or the top right one.
Schermvlak in_hoek(const Schermvlak& ruimte, const Schermvlak& wens, bool onderaan) {
    Schermvlak maat = passend(ruimte, wens);
    maat.links = ruimte.rechts() - maat.breedte;
    maat.boven = onderaan ? ruimte.onder() - maat.hoogte : ruimte.boven;
    return maat;
}

// The first screen that is free for the public and has the property asked for.
std::optional<std::size_t> eerste_vrije(std::span<const Scherm> schermen, const Schermvlak& hoofdvenster,
                                        const auto& geschikt) {
    const std::optional<std::size_t> van_operateur = scherm_van(schermen, hoofdvenster);
    for (std::size_t i = 0; i < schermen.size(); ++i)
        if (i != van_operateur && overlap(schermen[i].vlak, schermen[*van_operateur].vlak) == 0 &&
            geschikt(schermen[i]))
            return i;
    return std::nullopt;
}

} // namespace

long long overlap(const Schermvlak& a, const Schermvlak& b) {
    const int breedte = std::min(a.rechts(), b.rechts()) - std::max(a.links, b.links);
    const int hoogte = std::min(a.onder(), b.onder()) - std::max(a.boven, b.boven);
    return breedte > 0 && hoogte > 0 ? 1LL * breedte * hoogte : 0;
}

std::optional<std::size_t> scherm_van(std::span<const Scherm> schermen, const Schermvlak& venster) {
    const auto meeste =
        std::ranges::max_element(schermen, {}, [&](const Scherm& s) { return overlap(s.vlak, venster); });
    if (meeste == schermen.end()) return std::nullopt;
    return static_cast<std::size_t>(meeste - schermen.begin());
}

std::optional<std::size_t> publieksscherm(std::span<const Scherm> schermen, const Schermvlak& hoofdvenster) {
    return eerste_vrije(schermen, hoofdvenster, [](const Scherm&) { return true; });
}

std::optional<std::size_t> nieuw_publieksscherm(std::span<const Scherm> eerder, std::span<const Scherm> nu,
                                                const Schermvlak& hoofdvenster) {
    return eerste_vrije(nu, hoofdvenster, [&](const Scherm& scherm) {
        return !eerste_vrije(eerder, hoofdvenster, [&](const Scherm& s) { return s.naam == scherm.naam; });
    });
}

bool staat_bij_operateur(std::span<const Scherm> schermen, const Schermvlak& hoofdvenster, const Schermvlak& venster) {
    return scherm_van(schermen, hoofdvenster) == scherm_van(schermen, venster);
}

Schermvlak plaats_midden(const Schermvlak& scherm, const Schermvlak& wens) {
    Schermvlak plaats = passend(scherm, wens);
    plaats.links = scherm.links + (scherm.breedte - plaats.breedte) / 2;
    plaats.boven = scherm.boven + (scherm.hoogte - plaats.hoogte) / 2;
    return plaats;
}

Schermvlak plaats_naast(const Schermvlak& scherm, const Schermvlak& hoofdvenster, const Schermvlak& nummervak,
                        const Schermvlak& wens) {
    const Schermvlak& h = hoofdvenster;
    const std::array<Schermvlak, 4> zijden = {{
        {h.rechts(), scherm.boven, scherm.rechts() - h.rechts(), scherm.hoogte},
        {scherm.links, scherm.boven, h.links - scherm.links, scherm.hoogte},
        {scherm.links, h.onder(), scherm.breedte, scherm.onder() - h.onder()},
        {scherm.links, scherm.boven, scherm.breedte, h.boven - scherm.boven},
    }};
    const auto gemeten = [&](const Schermvlak& zijde) {
        if (!is_ruim_genoeg(zijde)) return 0LL;
        const Schermvlak maat = passend(zijde, wens);
        return 1LL * maat.breedte * maat.hoogte;
    };
    const auto* beste = std::ranges::max_element(zijden, {}, gemeten);
    if (gemeten(*beste) > 0) return plaats_midden(*beste, wens);

    const bool onderaan = scherm.onder() - nummervak.onder() >= nummervak.boven - scherm.boven;
    Schermvlak vrij = scherm;
    if (onderaan) vrij.boven = nummervak.onder();
    vrij.hoogte = onderaan ? scherm.onder() - nummervak.onder() : nummervak.boven - scherm.boven;
    // Half the screen at most: the operator sees the start list beside it.
    vrij.links += vrij.breedte / 2;
    vrij.breedte -= vrij.breedte / 2;
    return in_hoek(vrij, wens, onderaan);
}

Schermvlak plaats_wijzigingen(const Schermvlak& scherm, const Schermvlak& rooster) {
    constexpr Schermvlak kleinste{0, 0, 480, 200};
    constexpr Schermvlak grootste{0, 0, 920, 400};
    constexpr int rand = 8;
    const int links = rooster.rechts() + rand;
    const int boven = std::max(rooster.boven, scherm.boven);
    Schermvlak plaats;
    plaats.breedte = std::clamp(scherm.rechts() - rand - links, kleinste.breedte, grootste.breedte);
    plaats.hoogte = std::clamp(scherm.onder() - rand - boven, kleinste.hoogte, grootste.hoogte);
    plaats.links = std::max(std::min(links, scherm.rechts() - rand - plaats.breedte), scherm.links);
    plaats.boven = std::max(std::min(boven, scherm.onder() - rand - plaats.hoogte), scherm.boven);
    return plaats;
}

} // namespace tavelo
