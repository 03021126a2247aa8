// The debug log: on Linux the error output, on Windows the debugger's. Category "tavelo.overgeslagen" has what was left
// out of a file, "tavelo.excel" what read a workbook.
#pragma once

#include "basis/seams.h"

namespace tavelo {

class DebugLog final : public SkipLog {
  public:
    void skipped(std::size_t line, std::string_view key, std::string_view reason) override;
};

void note_excel(std::string_view text);

} // namespace tavelo
