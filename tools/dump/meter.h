// Measures for the composition that the support tool prints.
#pragma once

#include "basis/seams.h"

#include <memory>

namespace tavelo {

// A fixed metric, the same on every computer: a blank is 6 wide, any other character 5 + (code point x 7) modulo 11,
// each times the size; a line is 23 times the size. In twips.
[[nodiscard]] std::unique_ptr<TextMeasure> raster_meter();

// The fonts of this computer, as the program measures them; null in a build without windows.
[[nodiscard]] std::unique_ptr<TextMeasure> letter_meter(int& argument_count, char** arguments);

} // namespace tavelo
