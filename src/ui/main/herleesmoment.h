// When the poll reads the open schedule again. A program may be writing it: a file is read when it has come to rest, or
// at the next tick as it stands.
#pragma once

#include "basis/plain_file.h"

#include <chrono>
#include <optional>
#include <string>

namespace tavelo {

inline constexpr std::chrono::seconds rusttijd{2};

// What the poll sees of the file.
struct GezienBestand {
    std::string pad;
    std::string stempel; // "yyyymmddhhnnss"
    Bestandskenmerk kenmerk;
    std::chrono::nanoseconds leeftijd{}; // since its last change
};

// What was read of it.
struct GelezenBestand {
    std::string pad;
    std::string stempel;
    std::optional<Bestandskenmerk> kenmerk; // nothing when only the stamp is known
    bool operator==(const GelezenBestand&) const = default;
};

// Whether there is something new to read: a later stamp, or within the same whole second another size or finer time. A
// stamp that went back is no reason: it is meant so.
[[nodiscard]] bool is_nieuwer(const GezienBestand& gezien, const GelezenBestand& gelezen);

enum class Besluit { niets, kijk_straks, lees };

class Herleesmoment {
  public:
    // `tik` is false for a look between two ticks. The age of a file is by the clock of its share, which may be wrong:
    // a file that is the same as at the look before, at least `rusttijd` ago, is at rest whatever its age.
    [[nodiscard]] Besluit beoordeel(bool tik, const GezienBestand& gezien, const GelezenBestand& gelezen);

  private:
    struct Onrust {
        std::string pad;
        Bestandskenmerk kenmerk;
    };
    std::optional<Onrust> onrust_; // as the file was at the last look, while it is waited for
};

} // namespace tavelo
