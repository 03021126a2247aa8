#include "schedule/record/items.h"

#include "basis/text.h"

#include <vector>

namespace tavelo {

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
        if (rest.size() > sleutel.size() && rest[sleutel.size()] == ':' && rest.starts_with(sleutel)) {
            const std::size_t after = sleutel.size() + 1;
            // A key may itself hold a tab; the value still ends at the first tab behind it.
            return rest.substr(after, std::min(rest.find('\t', after), rest.size()) - after);
        }
        if (tab == std::string_view::npos) return {};
        begin += tab + 1;
    }
}

std::string zet_waarde(std::string_view sleutel, std::string_view record, std::string_view waarde) {
    std::string nieuw(sleutel);
    nieuw.append(":").append(waarde);

    bool gevonden = false;
    std::vector<std::string> items;
    for (const std::string_view deel : split(record, "\t")) {
        const std::string_view item = trimmed(deel);
        if (sleutel_van(item) != sleutel) {
            items.emplace_back(item);
            continue;
        }
        gevonden = true;
        if (!trimmed(waarde).empty()) items.push_back(nieuw);
    }
    if (!gevonden && !waarde.empty()) items.push_back(nieuw);

    std::string_view resultaat;
    const std::string samen = join(items, "\t");
    resultaat = samen;
    if (resultaat.starts_with('\t')) resultaat.remove_prefix(1);
    if (resultaat.ends_with('\t')) resultaat.remove_suffix(1);
    return std::string(resultaat);
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
