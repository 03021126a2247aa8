// The computer's own clock and file times, in local time.
#pragma once

#include "basis/seams.h"

namespace tavelo {

// Of a number of nanoseconds since 1970 began in UTC; parts of a second are cut off.
[[nodiscard]] LocalTime local_time(std::int64_t nanoseconds);

class SystemClock final : public Clock {
  public:
    [[nodiscard]] LocalTime now() const override;
};

class SystemFileStamp final : public FileStamp {
  public:
    [[nodiscard]] std::optional<LocalTime> modified(std::string_view path) const override;
};

} // namespace tavelo
