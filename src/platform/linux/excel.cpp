#include "platform/excel.h"

namespace tavelo {

std::unique_ptr<ExcelApplication> installed_excel() { return nullptr; }

} // namespace tavelo
