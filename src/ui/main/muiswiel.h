// The mouse wheel goes to the control under the pointer, one row a notch whatever the size of the turn. Paging by the
// wheel is never used. Positions and heights in pixels of the screen unless said otherwise.
#pragma once

#include "basis/grid.h"

#include <cstdint>
#include <optional>
#include <span>

namespace tavelo {

struct SchermRechthoek {
    int links = 0;
    int boven = 0;
    int rechts = 0;
    int onder = 0;
};
// Borders included.
[[nodiscard]] bool punt_in_venster(const SchermRechthoek& venster, int x, int y);

enum class Besturing : std::uint8_t { grid, afbeelding, lijst, invoer, anders };
struct WielDoel {
    SchermRechthoek plaats;
    Besturing soort = Besturing::anders;
    bool zichtbaar = true;
};
// The control that handles a turn at (x, y): the first visible one there that is no plain decoration. Its index, or
// nothing. A picture swallows the turn, a grid or list scrolls, an input takes the focus when it is enabled.
[[nodiscard]] std::optional<std::size_t> wiel_doel(std::span<const WielDoel> besturingen, int x, int y);

// Scrolls the grid by one row: down for a rotation below 1, up otherwise. `top_laatste_rij` is the top of the last row
// and `hoogte` the height of the grid, both in twips from the grid's top at its present scroll position.
void grid_muiswiel(Grid& grid, int rotatie, int top_laatste_rij, int hoogte);

} // namespace tavelo
