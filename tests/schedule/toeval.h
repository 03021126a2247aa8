// Random choices that can be made again: the same seed gives the same choices on every computer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>

namespace tavelo::test {

// The seed of a test, from the environment variable TAVELO_SEED to repeat or widen a run.
inline std::uint32_t beginwaarde(std::uint32_t anders) {
    const char* const gekozen = std::getenv("TAVELO_SEED");
    return gekozen == nullptr ? anders : static_cast<std::uint32_t>(std::strtoul(gekozen, nullptr, 10));
}

class Toeval {
  public:
    explicit Toeval(std::uint32_t begin) : bron_(begin) {}

    // 0 up to, not including, `aantal`.
    int onder(int aantal) { return static_cast<int>(bron_() % static_cast<std::uint32_t>(aantal)); }
    bool een_op(int aantal) { return onder(aantal) == 0; }
    template <class Lijst>
    const auto& uit(const Lijst& lijst) {
        return *(std::begin(lijst) + onder(static_cast<int>(std::size(lijst))));
    }

  private:
    std::mt19937 bron_;
};

} // namespace tavelo::test
