// Where the participant window goes, from the names and places of the screens alone. Positions in device-independent
// pixels of the desktop.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace tavelo {

struct Schermvlak {
    int links = 0;
    int boven = 0;
    int breedte = 0;
    int hoogte = 0;

    bool operator==(const Schermvlak&) const = default;
    [[nodiscard]] int rechts() const { return links + breedte; }
    [[nodiscard]] int onder() const { return boven + hoogte; }
};

struct Scherm {
    std::string naam;
    Schermvlak vlak;
};

// How an open participant window stands.
enum class Monitorvenster : std::uint8_t { gewoon, beeldvullend, monitor_weg };

// The area that two rectangles share.
[[nodiscard]] long long overlap(const Schermvlak& a, const Schermvlak& b);

// The screen that shows most of the window; the first one when none shows any of it. Nothing without screens.
[[nodiscard]] std::optional<std::size_t> scherm_van(std::span<const Scherm> schermen, const Schermvlak& venster);

// The screen for the public: the first that neither is the operator's, the one with the main window, nor shows a piece
// of that one (a monitor may show the same as another). Nothing without such a screen.
[[nodiscard]] std::optional<std::size_t> publieksscherm(std::span<const Scherm> schermen,
                                                        const Schermvlak& hoofdvenster);

// A screen for the public that was none before: a monitor that was switched on, or that no longer shows what the
// operator's does. Nothing without one.
[[nodiscard]] std::optional<std::size_t>
nieuw_publieksscherm(std::span<const Scherm> eerder, std::span<const Scherm> nu, const Schermvlak& hoofdvenster);

// Whether a window stands on the screen of the main window, so that the operator has it in the way.
[[nodiscard]] bool staat_bij_operateur(std::span<const Scherm> schermen, const Schermvlak& hoofdvenster,
                                       const Schermvlak& venster);

// The normal view in the middle of a screen of its own.
[[nodiscard]] Schermvlak plaats_midden(const Schermvlak& scherm, const Schermvlak& wens);

// The normal view on the operator's screen: beside the main window where there is room, else in the corner away from
// the number box, which it never covers.
[[nodiscard]] Schermvlak plaats_naast(const Schermvlak& scherm, const Schermvlak& hoofdvenster,
                                      const Schermvlak& nummervak, const Schermvlak& wens);

// The window with the changes of the day: on the operator's screen, to the right of the start list `rooster` where
// there is room.
[[nodiscard]] Schermvlak plaats_wijzigingen(const Schermvlak& scherm, const Schermvlak& rooster);

} // namespace tavelo
