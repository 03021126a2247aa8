// Sections of a number format that show numbers: General, decimals, scientific and fractions. The sign is the caller's.
#pragma once

#include "workbook/text/format_code.h"
#include "workbook/text/locale.h"

#include <string>

namespace tavelo {

struct SizeText {
    std::string text;
    bool shows_zero = false; // the size was rounded away, so a minus would be out of place
};

// `size` is finite and not negative.
[[nodiscard]] std::string general_text(double size, const Locale& locale);
[[nodiscard]] SizeText number_text(const FormatSection& section, double size, const Locale& locale);

} // namespace tavelo
