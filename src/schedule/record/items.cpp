#include "schedule/record/items.h"

#include "basis/text.h"

#include <algorithm>
#include <cassert>

namespace tavelo {

namespace {

// The first letter sends most items away. Folding keeps that of a key in plain letters.
inline bool begint_anders(std::string_view item, std::string_view sleutel) {
    if (item.empty() || sleutel.empty()) return false;
    const char eerste = item.front();
    return (eerste >= 'A' && eerste <= 'Z' ? static_cast<char>(eerste + 'a' - 'A') : eerste) != sleutel.front();
}

// `sleutel_van(item) == sleutel` for a trimmed item, without making a text of every key.
bool heeft_sleutel(std::string_view item, std::string_view sleutel) {
    if (begint_anders(item, sleutel)) return false;
    const std::size_t colon = item.find(':');
    if (colon == std::string_view::npos) return sleutel.empty();
    const std::string_view gevonden = trimmed(item.substr(0, colon));
    return gevonden.size() == sleutel.size() && lower_case(gevonden) == sleutel;
}

} // namespace

std::string sleutel_van(std::string_view item) {
    const std::size_t colon = item.find(':');
    return colon == std::string_view::npos ? std::string() : lower_case(trimmed(item.substr(0, colon)));
}

std::string_view waarde_van(std::string_view item) {
    const std::size_t colon = item.find(':');
    return colon == std::string_view::npos ? std::string_view() : trimmed(item.substr(colon + 1));
}

std::string_view zoek_waarde(std::string_view sleutel, std::string_view record) {
    // An item begins at the start of the record or after a tab, so a key that is the tail of another never matches.
    for (std::size_t begin = 0;;) {
        const std::string_view rest = record.substr(begin);
        const std::size_t tab = rest.find('\t');
        if (is_item_van(rest, sleutel)) {
            const std::size_t after = sleutel.size() + 1;
            // A key may itself hold a tab; the value still ends at the first tab behind it.
            return rest.substr(after, std::min(rest.find('\t', after), rest.size()) - after);
        }
        if (tab == std::string_view::npos) return {};
        begin += tab + 1;
    }
}

Sleutels::Sleutels(std::span<const std::string_view> sleutels) {
    assert(sleutels.size() < aantal_vakken);
    for (std::uint32_t nummer = 0; nummer < sleutels.size(); ++nummer) {
        const std::string_view sleutel = sleutels[nummer];
        if (sleutel.empty() || sleutel.size() > 7 || sleutel.find_first_of(":\t") != std::string_view::npos) continue;
        const std::string item = std::string(sleutel) + ":";
        const std::uint64_t begin = eerste_acht(item.data(), item.data() + item.size());
        const std::uint64_t masker = ~std::uint64_t{0} >> (64 - 8 * item.size());
        std::size_t vak = eerste_vak(begin);
        while (vakken_[vak].masker != 0)
            vak = volgend_vak(vak);
        vakken_[vak] = {masker, begin, nummer, static_cast<std::uint32_t>(sleutel.size())};
    }
}

void Sleutels::zoek(std::string_view record, std::span<std::string_view> waarden) const {
    std::ranges::fill(waarden, std::string_view());
    doorloop(
        record,
        [&](std::size_t nummer, std::string_view waarde) {
            if (waarden[nummer].data() == nullptr) waarden[nummer] = waarde; // the first one counts
        },
        [](std::string_view) {});
}

std::string zet_waarde(std::string_view sleutel, std::string_view record, std::string_view waarde) {
    std::string resultaat;
    resultaat.reserve(record.size() + sleutel.size() + waarde.size() + 2);
    const auto voeg_toe = [&](auto... delen) {
        resultaat.push_back('\t');
        (resultaat.append(delen), ...);
    };
    const bool leeg = trimmed(waarde).empty();
    bool gevonden = false;
    Parts delen(record, '\t');
    while (const std::optional<std::string_view> deel = delen.next()) {
        const std::string_view item = trimmed(*deel);
        if (!heeft_sleutel(item, sleutel)) {
            voeg_toe(item);
            continue;
        }
        gevonden = true;
        if (!leeg) voeg_toe(sleutel, ":", waarde);
    }
    if (!gevonden && !waarde.empty()) voeg_toe(sleutel, ":", waarde);

    resultaat.erase(0, 1); // the tab of the first item
    if (resultaat.starts_with('\t')) resultaat.erase(0, 1);
    if (resultaat.ends_with('\t')) resultaat.pop_back();
    return resultaat;
}

bool heeft_waarde_al(std::string_view sleutel, std::string_view record, std::string_view waarde) {
    if (record.starts_with('\t') || record.ends_with('\t')) return false;
    bool gevonden = false;
    Parts items(record, '\t');
    while (const std::optional<std::string_view> item = items.next()) {
        const bool is_getrimd = item->empty() || (item->front() != ' ' && item->back() != ' ');
        if (is_getrimd && begint_anders(*item, sleutel)) continue;
        if (heeft_sleutel(is_getrimd ? *item : trimmed(*item), sleutel)) {
            if (!is_item_van(*item, sleutel) || item->substr(sleutel.size() + 1) != waarde) return false;
            gevonden = true;
        } else if (!is_getrimd) {
            return false;
        }
    }
    return trimmed(waarde).empty() ? !gevonden && waarde.empty() : gevonden;
}

std::string klasse_tekst(std::string_view tekst) {
    if (tekst.ends_with('*')) tekst.remove_suffix(1);
    if (tekst.starts_with('*')) tekst.remove_prefix(1);
    return replaced(tekst, "*", ", ");
}

std::string_view discipline_code(std::int16_t ringtype) {
    switch (discipline_van(ringtype)) {
    case Discipline::dressuur:
        return ringtype == 0 ? "D" : "AD";
    case Discipline::springen:
        return "S";
    case Discipline::mennen_dressuur:
        return "MD";
    case Discipline::mennen_vaardigheid:
        return "MV";
    case Discipline::geen:
        break;
    }
    return "";
}

Discipline discipline_van(std::int16_t ringtype) {
    switch (ringtype) {
    case 0:
    case 12: // 12, 13 and 15 are ridden by teams
    case 13:
    case 15:
        return Discipline::dressuur;
    case 1:
    case 2:
    case 3:
    case 4:
    case 5:
    case 6:
    case 10:
    case 11:
    case 14:
    case 16:
    case 17:
        return Discipline::springen;
    case 7:
        return Discipline::mennen_dressuur;
    case 8:
    case 9:
    case 18:
        return Discipline::mennen_vaardigheid;
    default:
        return Discipline::geen;
    }
}

} // namespace tavelo
