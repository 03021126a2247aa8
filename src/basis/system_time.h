// The computer's own clock and file times, in local time.
#pragma once

#include "basis/seams.h"

namespace tavelo {

class SystemClock final : public Clock {
  public:
    [[nodiscard]] LocalTime now() const override;
};

class SystemFileStamp final : public FileStamp {
  public:
    [[nodiscard]] std::optional<LocalTime> modified(std::string_view path) const override;
};

} // namespace tavelo
