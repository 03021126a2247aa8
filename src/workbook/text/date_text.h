// Sections of a number format that show dates and times. Behind B2 a date is that of the Islamic calendar, whose months
// have no names here: a month in letters shows its number.
#pragma once

#include "workbook/text/format_code.h"
#include "workbook/text/locale.h"
#include "workbook/text/number_format.h"

#include <string>

namespace tavelo {

// Appends to `out`. `serial` is finite and not negative: days since the start of the date system. False beyond the year
// 9999, and then nothing is appended.
[[nodiscard]] bool add_date(std::string& out, const FormatSection& section, double serial, DateSystem dates,
                            const Locale& locale);

} // namespace tavelo
