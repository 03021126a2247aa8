#include "schedule/record/schedule.h"

#include <algorithm>

namespace tavelo {

const std::string& Schedule::deelnemer(int nummer) const {
    static const std::string geen;
    return nummer >= 0 && nummer <= hoogste_deelnemer ? deelnemers_[static_cast<std::size_t>(nummer)] : geen;
}

void Schedule::zet_deelnemer(int nummer, std::string record) {
    if (nummer >= 0 && nummer <= hoogste_deelnemer) deelnemers_[static_cast<std::size_t>(nummer)] = std::move(record);
}

const RubriekLijstRecord& Schedule::rubriek(int nummer) const {
    return rubrieken_[static_cast<std::size_t>(nummer >= 1 && nummer <= hoogste_rubriek ? nummer : 0)];
}

void Schedule::zet_rubriek(int nummer, RubriekLijstRecord entry) {
    if (nummer >= 1 && nummer <= hoogste_rubriek) rubrieken_[static_cast<std::size_t>(nummer)] = std::move(entry);
}

void Schedule::wis_tabellen() {
    std::ranges::fill(deelnemers_, std::string());
    std::ranges::fill(rubrieken_, RubriekLijstRecord());
}

} // namespace tavelo
