// Excel itself when it is there, else the program's own readers.
#pragma once

#include "excel/automation.h"

#include <functional>
#include <memory>
#include <string_view>

namespace tavelo {

class ExcelOrBuiltin final : public ExcelApplication {
  public:
    // `excel` may be null. `note` hears at every use which of the two serves, and why: for the log.
    ExcelOrBuiltin(std::unique_ptr<ExcelApplication> excel, std::unique_ptr<ExcelApplication> builtin,
                   std::function<void(std::string_view)> note);

    // Of Excel, unless it refuses.
    [[nodiscard]] Automation<std::unique_ptr<ExcelWorkbooks>> Workbooks() override;

  private:
    std::unique_ptr<ExcelApplication> excel_;
    std::unique_ptr<ExcelApplication> builtin_;
    std::function<void(std::string_view)> note_;
};

} // namespace tavelo
