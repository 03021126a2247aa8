// What the splash shows while it fades in.
#pragma once

#include <cstdint>
#include <string>

namespace tavelo {

inline constexpr int intro_duur_ms = 3000;
inline constexpr int intro_stap_ms = 10;

// The alpha of the splash: 4, 9, 14, ... 254 and then 255, opaque. It starts one below nothing, so that no step is
// fully transparent: it is meant so.
class Vervaging {
  public:
    [[nodiscard]] std::uint8_t volgende();
    [[nodiscard]] bool klaar() const { return niveau_ == 255; }

  private:
    std::int16_t niveau_ = -1;
};

// "versie 3.14.159" of 3, 14 and 159.
[[nodiscard]] std::string versie_tekst(int hoofdversie, int subversie, int revisie);

} // namespace tavelo
