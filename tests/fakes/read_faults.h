// Lets reads of files fail as disks and shares do. The tests' own `read` stands before the system's.
#pragma once

#ifndef _WIN32

#include <cstddef>
#include <functional>
#include <vector>

namespace tavelo::test {

// What happens at one read.
struct ReadStep {
    int error = 0;                                   // errno; 0: it goes well
    std::size_t most = static_cast<std::size_t>(-1); // bytes that it gives
    std::function<void()> before = {};               // what another program does just before
};

// For as long as it lives, the reads of this thread go by these steps, and as usual behind the last one. One at a time.
class ReadFaults {
  public:
    explicit ReadFaults(std::vector<ReadStep> steps = {});
    ~ReadFaults();
    ReadFaults(const ReadFaults&) = delete;
    ReadFaults& operator=(const ReadFaults&) = delete;

    // How many reads there were.
    [[nodiscard]] std::size_t reads() const { return reads_; }
    ReadStep next();

  private:
    std::vector<ReadStep> steps_;
    std::size_t reads_ = 0;
};

} // namespace tavelo::test

#endif
