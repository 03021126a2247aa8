// The width of a column in points, as Excel reports it on a screen of 96 dots per inch. Excel stores widths in
// characters of the widest digit of the Normal font, so every width hangs on the pixels of that digit.
#pragma once

#include <string_view>

namespace tavelo {

// Pixels of the widest digit of a font at 96 dots per inch; at least 1. Capitals in the name do not matter; an unknown
// font counts as Arial.
[[nodiscard]] int digit_pixels(std::string_view font_name, double points);

// `characters` is the width as stored: digits with the padding included (.xls stores it in 1/256 of a character).
[[nodiscard]] double column_points(double characters, int digit_pixels);

// The width of a column without a width of its own, when only a number of whole characters (padding not included) is
// stored: Excel rounds its pixels up to a multiple of 8.
[[nodiscard]] double default_column_points(int characters, int digit_pixels);

} // namespace tavelo
