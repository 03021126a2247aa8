#include "ui/main/herleesmoment.h"

#include <utility>

namespace tavelo {

bool is_nieuwer(const GezienBestand& gezien, const GelezenBestand& gelezen) {
    if (gezien.stempel != gelezen.stempel) return gezien.stempel > gelezen.stempel;
    return gelezen.kenmerk && *gelezen.kenmerk != gezien.kenmerk;
}

Besluit Herleesmoment::beoordeel(bool tik, const GezienBestand& gezien, const GelezenBestand& gelezen) {
    const std::optional<Onrust> eerder = std::exchange(onrust_, std::nullopt);
    if (!is_nieuwer(gezien, gelezen)) return Besluit::niets;
    const bool gewacht = eerder && eerder->pad == gezien.pad;
    const bool in_rust = gezien.leeftijd >= rusttijd || (gewacht && eerder->kenmerk == gezien.kenmerk);
    if (in_rust || (tik && gewacht)) return Besluit::lees;
    onrust_ = {gezien.pad, gezien.kenmerk};
    return Besluit::kijk_straks;
}

} // namespace tavelo
