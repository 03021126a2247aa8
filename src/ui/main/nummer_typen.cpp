#include "ui/main/nummer_typen.h"

#include "basis/number.h"
#include "schedule/record/kolommen.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string>

namespace tavelo {

namespace {

// What was typed of a number: its sign, and its digits from the first that counts.
struct Begin {
    bool min = false;
    std::string_view cijfers;
};

std::optional<Begin> begin_van_nummer(std::string_view tekst) {
    tekst.remove_prefix(std::min(tekst.find_first_not_of(' '), tekst.size()));
    Begin begin;
    if (tekst.starts_with('-') || tekst.starts_with('+')) {
        begin.min = tekst.front() == '-';
        tekst.remove_prefix(1);
    }
    if (tekst.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
    tekst.remove_prefix(std::min(tekst.find_first_not_of('0'), tekst.size()));
    begin.cijfers = tekst;
    return begin;
}

} // namespace

bool begint_een_nummer(const Grid& grid, std::string_view tekst) {
    const std::optional<Begin> begin = begin_van_nummer(tekst);
    if (!begin) return false;
    for (int rij = 1; rij < grid.rows(); ++rij) {
        const double in_rij = leading_number(grid.text(rij, kolom_inr));
        // The box finds whole numbers of 16 bits only; 0 is no number.
        const int nummer = to_int16(in_rij).value_or(0);
        if (nummer == 0 || nummer != in_rij || (nummer < 0) != begin->min) continue;
        if (std::to_string(std::abs(nummer)).starts_with(begin->cijfers)) return true;
    }
    return false;
}

bool begint_nieuw_nummer(const Grid& grid, std::string_view met_cijfer, std::chrono::milliseconds sinds_vorige_toets) {
    return sinds_vorige_toets >= denkpauze && !begint_een_nummer(grid, met_cijfer);
}

} // namespace tavelo
