// Cells that store a date as text (t="d"): "2024-03-01", "2024-03-01T08:30:00", "08:30:00".
#pragma once

#include "workbook/text/number_format.h"

#include <optional>
#include <string_view>

namespace tavelo {

// The serial number of an ISO 8601 date, date with time, or time alone, with fractions of a second; a "Z" at the end is
// passed over. Below zero for a date before the first day of the date system. Nothing for a text that is no such date.
[[nodiscard]] std::optional<double> serial_of_iso_date(std::string_view text, DateSystem dates);

} // namespace tavelo
