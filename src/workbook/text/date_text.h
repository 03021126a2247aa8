// Sections of a number format that show dates and times. Behind B2 a date is that of the Islamic calendar, whose months
// have no names here: a month in letters shows its number.
#pragma once

#include "workbook/text/format_code.h"
#include "workbook/text/locale.h"
#include "workbook/text/number_format.h"

#include <optional>
#include <string>

namespace tavelo {

// `serial` is finite and not negative: days since the start of the date system. nullopt beyond the year 9999.
[[nodiscard]] std::optional<std::string> date_text(const FormatSection& section, double serial, DateSystem dates,
                                                   const Locale& locale);

} // namespace tavelo
