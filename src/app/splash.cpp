#include "app/splash.h"

#include <algorithm>

namespace tavelo {

std::uint8_t Vervaging::volgende() {
    niveau_ = static_cast<std::int16_t>(std::min(niveau_ + 5, 255));
    return static_cast<std::uint8_t>(niveau_);
}

std::string versie_tekst(int hoofdversie, int subversie, int revisie) {
    return "versie " + std::to_string(hoofdversie) + "." + std::to_string(subversie) + "." + std::to_string(revisie);
}

} // namespace tavelo
