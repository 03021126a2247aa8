// Cuts a number format code into sections of plain pieces. What a point, a comma or an m means is not settled here:
// that takes a section that is complete (format_code.cpp).
#pragma once

#include "workbook/text/format_code.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace tavelo {

// One more is cut off and kept, so that it is seen that there are too many.
inline constexpr std::size_t most_sections = 4;

// One section at least; an empty code gives one that is empty. None for a code with a letter that Excel refuses.
[[nodiscard]] std::vector<FormatSection> cut_format_code(std::string_view code);

} // namespace tavelo
