// What was left out of a file goes to the debug log (on Linux the error output, category "tavelo.overgeslagen").
#pragma once

#include "basis/seams.h"

namespace tavelo {

class DebugLog final : public SkipLog {
  public:
    void skipped(std::size_t line, std::string_view key, std::string_view reason) override;
};

} // namespace tavelo
