// The part of a sheet that is worth showing, and a quick way to its cells.
#pragma once

#include "workbook/book/model.h"

#include <cstdint>

namespace tavelo {

// A box of more cells than this, counted from A1, is not shown whole. Excel's sheet has 17,000 million places, and a
// file of a few bytes can use the first and the last of them.
inline constexpr std::uint64_t most_shown_cells = 4'000'000;

// The used range. When it goes beyond most_shown_cells, the box around the cells that have a value (a sheet can be
// formatted down to its last row). When that does too, what goes far to the right is left out of the box, and then what
// goes far down: a stray cell in the last row must not keep a start list from being shown.
[[nodiscard]] UsedRange box_to_show(const Sheet& sheet);

// Row and column from 0. Null for a place without a cell.
[[nodiscard]] const Cell* cell_at(const Sheet& sheet, std::uint32_t row, std::uint32_t column);

} // namespace tavelo
