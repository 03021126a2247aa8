#include "ui/display/tekenvlak.h"

#include <algorithm>
#include <tuple>

namespace tavelo {

void Tekenvlak::wis() {
    regels_.clear();
    huidige_y = 0;
}

void Tekenvlak::zet_punten(double punten) { punten_ = std::max(punten, 1.0); }

double Tekenvlak::tekstbreedte(const TextMeasure& meter, std::string_view tekst) const {
    return meter.width(lettertype, punten_, tekst);
}

double Tekenvlak::teksthoogte(const TextMeasure& meter) const { return meter.height(lettertype, punten_); }

void Tekenvlak::druk(const TextMeasure& meter, double x, std::string_view tekst) {
    GeplaatsteTekst geplaatst{x, huidige_y, punten_, std::string(tekst)};
    // Painted twice, smooth letters would come out bolder.
    if (std::ranges::find(regels_, geplaatst) == regels_.end()) regels_.push_back(std::move(geplaatst));
    huidige_y += teksthoogte(meter);
}

std::optional<std::vector<std::size_t>> gewijzigde_regels(const Tekenvlak& oud, const Tekenvlak& nieuw) {
    const auto uiterlijk = [](const Tekenvlak& vlak) {
        return std::tie(vlak.breedte, vlak.hoogte, vlak.achtergrond, vlak.voorgrond, vlak.lettertype);
    };
    if (uiterlijk(oud) != uiterlijk(nieuw)) return std::nullopt;
    std::vector<std::size_t> gewijzigd;
    for (std::size_t i = 0; i < std::max(oud.regels().size(), nieuw.regels().size()); ++i)
        if (i >= oud.regels().size() || i >= nieuw.regels().size() || oud.regels()[i] != nieuw.regels()[i])
            gewijzigd.push_back(i);
    return gewijzigd;
}

} // namespace tavelo
