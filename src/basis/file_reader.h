// The seam to reading beside the interface's thread, for files on a share that may answer slowly or never.
#pragma once

#include "basis/codeBestand.h"

#include <chrono>
#include <cstdint>
#include <expected>
#include <functional>
#include <optional>
#include <string>

namespace tavelo {

// What can be seen of a file without opening it.
struct Bestandsblik {
    Bestandskenmerk kenmerk;
    std::chrono::nanoseconds leeftijd{}; // since its last change; below 0 where the clock of a share is ahead
};

// One task at a time: a new one may be given when it is not `busy`. The answer comes on the interface's thread.
class FileReader {
  public:
    using Blik = std::optional<Bestandsblik>; // nothing when the file cannot be asked
    using Inhoud = std::expected<BestandInhoud, Leesfout>;

    virtual ~FileReader() = default;
    // A task is under way, be it one that never ends.
    [[nodiscard]] virtual bool busy() const = 0;
    virtual void look(std::string pad, std::function<void(Blik)> done) = 0;
    // As `lees_bestand_met_begin`.
    virtual void read(std::string pad, std::string begin, std::uint64_t hoogstens,
                      std::function<void(Inhoud)> done) = 0;
    // Nobody waits for the answer to the present task any more.
    virtual void forget() = 0;
};

} // namespace tavelo
