#include "schedule/record/schedule.h"

#include <algorithm>

namespace tavelo {

namespace {

// Its room is used again by the next file, unless it is that of an oddity.
void wis_record(std::string& record) {
    constexpr std::size_t gewone_ruimte = 4096; // bytes
    if (record.capacity() > gewone_ruimte)
        std::string().swap(record);
    else
        record.clear();
}

} // namespace

const std::string& Schedule::deelnemer(int nummer) const {
    static const std::string geen;
    return nummer >= 0 && nummer <= hoogste_deelnemer ? deelnemers_[static_cast<std::size_t>(nummer)] : geen;
}

void Schedule::kondig_deelnemer_aan(int nummer) const {
    constexpr std::size_t cacheregel = 64;
    constexpr std::size_t gewone_lengte = 384;
    const std::string_view record = std::string_view(deelnemer(nummer)).substr(0, gewone_lengte);
    for (std::size_t plaats = 0; plaats < record.size(); plaats += cacheregel)
        __builtin_prefetch(record.data() + plaats);
}

std::string* Schedule::deelnemer_plaats(int nummer) {
    return nummer >= 0 && nummer <= hoogste_deelnemer ? &deelnemers_[static_cast<std::size_t>(nummer)] : nullptr;
}

void Schedule::zet_deelnemer(int nummer, std::string_view record) {
    if (std::string* const plaats = deelnemer_plaats(nummer)) *plaats = record;
}

std::string* Schedule::rubriek_plaats(int nummer) {
    return nummer >= 1 && nummer <= hoogste_rubriek ? &rubrieken_[static_cast<std::size_t>(nummer)] : nullptr;
}

RubriekLijstRecord Schedule::rubriek(int nummer) const {
    RubriekLijstRecord entry;
    if (nummer >= 1 && nummer <= hoogste_rubriek) // what is wrong with a number was told when the file was read
        static_cast<void>(lees_rubriek_lijst(rubrieken_[static_cast<std::size_t>(nummer)], entry));
    return entry;
}

void Schedule::zet_rubriek(int nummer, std::string_view record) {
    if (std::string* const plaats = rubriek_plaats(nummer)) *plaats = record;
}

void Schedule::wis_tabellen() {
    for (std::vector<std::string>* const tabel : {&deelnemers_, &rubrieken_})
        std::ranges::for_each(*tabel, wis_record);
}

} // namespace tavelo
