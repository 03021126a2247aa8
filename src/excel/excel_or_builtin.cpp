#include "excel/excel_or_builtin.h"

#include <string>
#include <utility>

namespace tavelo {

ExcelOrBuiltin::ExcelOrBuiltin(std::unique_ptr<ExcelApplication> excel, std::unique_ptr<ExcelApplication> builtin,
                               std::function<void(std::string_view)> note)
    : excel_(std::move(excel)), builtin_(std::move(builtin)), note_(std::move(note)) {}

Automation<std::unique_ptr<ExcelWorkbooks>> ExcelOrBuiltin::Workbooks() {
    std::string reason = "dit systeem heeft geen Excel";
    if (excel_) {
        auto workbooks = excel_->Workbooks();
        if (workbooks) {
            note_("Excel leest de werkmap");
            return workbooks;
        }
        reason = workbooks.error();
    }
    note_("de ingebouwde lezer leest de werkmap: " + reason);
    return builtin_->Workbooks();
}

} // namespace tavelo
