// Sections of a number format that show numbers: General, decimals, scientific and fractions. The sign is the caller's.
#pragma once

#include "workbook/text/format_code.h"
#include "workbook/text/locale.h"

#include <string>

namespace tavelo {

// Both append to `out`. `size` is finite and not negative.
void add_general(std::string& out, double size, const Locale& locale);
// False when the size was rounded away, so that a minus would be out of place.
[[nodiscard]] bool add_number(std::string& out, const FormatSection& section, double size, const Locale& locale);

} // namespace tavelo
