// How digits become a number in the number box: the next number must not need Enter.
#pragma once

#include "basis/grid.h"

#include <chrono>
#include <string_view>

namespace tavelo {

// After a pause this long a digit may begin a new number.
inline constexpr std::chrono::milliseconds denkpauze{1500};

// Whether typing on can make a number of the list of `tekst`: the number of a row begins with it, or is it. Blanks in
// front and leading zeros are nothing; a text with anything but digits behind a sign begins no number.
[[nodiscard]] bool begint_een_nummer(const Grid& grid, std::string_view tekst);

// Whether a digit begins a new number instead of going on with the one in the box, which would hold `met_cijfer` then.
// A digit that can go on with a number of the list always does. `sinds_vorige_toets`: how long ago the key before was.
[[nodiscard]] bool begint_nieuw_nummer(const Grid& grid, std::string_view met_cijfer,
                                       std::chrono::milliseconds sinds_vorige_toets);

} // namespace tavelo
