#include "ui/settings/plaats_dialoog.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tavelo {

SchermPunt plaats_dialoog(const SchermRechthoek& scherm, const SchermRechthoek& voorbeeld, int breedte, int hoogte) {
    std::array<SchermPunt, 4> plaatsen = {{{voorbeeld.rechts, voorbeeld.boven},
                                           {voorbeeld.links - breedte, voorbeeld.boven},
                                           {voorbeeld.links, voorbeeld.onder},
                                           {voorbeeld.links, voorbeeld.boven - hoogte}}};
    for (SchermPunt& plaats : plaatsen) {
        plaats.x = std::max(std::min(plaats.x, scherm.rechts - breedte), scherm.links);
        plaats.y = std::max(std::min(plaats.y, scherm.onder - hoogte), scherm.boven);
    }
    const auto bedekt = [&](const SchermPunt& plaats) {
        const std::int64_t over_breedte =
            std::min(plaats.x + breedte, voorbeeld.rechts) - std::max(plaats.x, voorbeeld.links);
        const std::int64_t over_hoogte =
            std::min(plaats.y + hoogte, voorbeeld.onder) - std::max(plaats.y, voorbeeld.boven);
        return over_breedte > 0 && over_hoogte > 0 ? over_breedte * over_hoogte : 0;
    };
    return *std::ranges::min_element(plaatsen, {}, bedekt);
}

} // namespace tavelo
