// Excel itself, by automation, where the system has it.
#pragma once

#include "excel/automation.h"

#include <memory>

namespace tavelo {

// Made from Excel's class at its first member call and kept; made anew when it went away meanwhile. `Workbooks` fails
// as long as it cannot be had. Null on systems without automation.
[[nodiscard]] std::unique_ptr<ExcelApplication> installed_excel();

} // namespace tavelo
