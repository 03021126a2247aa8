// The automation members answered by the program's own readers, so that a start list opens with or without Excel on the
// computer.
#pragma once

#include "excel/automation.h"
#include "workbook/workbook.h"

#include <memory>

namespace tavelo {

// `locale` decides how numbers, dates and errors are spelt; it is kept as a copy.
[[nodiscard]] std::unique_ptr<ExcelApplication> builtin_excel(const Locale& locale);

} // namespace tavelo
