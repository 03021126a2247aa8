#include "schedule/record/items.h"

#include "basis/text.h"

#include <span>

namespace tavelo {

namespace {

// `sleutel_van(item) == sleutel` for a trimmed item, without making a text of every key: folding keeps the length of a
// key in plain letters, and the first letter already sends most items away.
bool heeft_sleutel(std::string_view item, std::string_view sleutel) {
    if (!item.empty() && !sleutel.empty()) {
        const char eerste =
            item.front() >= 'A' && item.front() <= 'Z' ? static_cast<char>(item.front() + 'a' - 'A') : item.front();
        if (eerste != sleutel.front()) return false;
    }
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

RecordItems::RecordItems(std::string_view record) {
    Parts items(record, '\t');
    while (aantal_ < meeste_items) {
        const std::optional<std::string_view> item = items.next();
        if (!item) return;
        items_[aantal_++] = *item;
        std::size_t vak = eerste_vak(*item);
        while (vakken_[vak] != 0)
            vak = (vak + 1) % aantal_vakken;
        vakken_[vak] = static_cast<std::uint8_t>(aantal_);
    }
    rest_ = items.rest();
}

std::size_t RecordItems::eerste_vak(std::string_view item) {
    std::size_t vak = 0;
    for (const char c : item.substr(0, 4)) {
        if (c == ':') break;
        vak = vak * 37 + static_cast<unsigned char>(c);
    }
    return vak % aantal_vakken;
}

std::string_view RecordItems::waarde(std::string_view sleutel) const {
    // Items that begin alike stand behind each other in the order of the record, so the first of two equal keys is
    // found.
    for (std::size_t vak = eerste_vak(sleutel); vakken_[vak] != 0; vak = (vak + 1) % aantal_vakken)
        if (const std::string_view item = items_[vakken_[vak] - 1U]; is_item_van(item, sleutel))
            return item.substr(sleutel.size() + 1);
    return zoek_waarde(sleutel, rest_);
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

std::string klasse_tekst(std::string_view tekst) {
    if (tekst.ends_with('*')) tekst.remove_suffix(1);
    if (tekst.starts_with('*')) tekst.remove_prefix(1);
    return replaced(tekst, "*", ", ");
}

std::string_view discipline_code(std::int16_t ringtype) {
    switch (ringtype) {
    case 0:
        return "D";
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
        return "S";
    case 7:
        return "MD";
    case 8:
    case 9:
    case 18:
        return "MV";
    case 12:
    case 13:
    case 15:
        return "AD";
    default:
        return "";
    }
}

Discipline discipline_van(std::int16_t ringtype) {
    const std::string_view code = discipline_code(ringtype);
    if (code == "D" || code == "AD") return Discipline::dressuur;
    if (code == "S") return Discipline::springen;
    if (code == "MD") return Discipline::mennen_dressuur;
    if (code == "MV") return Discipline::mennen_vaardigheid;
    return Discipline::geen;
}

} // namespace tavelo
