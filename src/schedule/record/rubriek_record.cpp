#include "schedule/record/rubriek_record.h"

#include "basis/fouten.h"
#include "basis/number.h"
#include "basis/text.h"
#include "schedule/record/items.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <type_traits>

namespace tavelo {

namespace {

using R = RubriekRecord;
using L = RubriekLijstRecord;

constexpr std::array velden = std::to_array<RubriekVeld>({
    {"rid", &R::rid},
    {"rxpad", &R::rxpad},
    {"roms", &R::roms},
    {"rkop", &R::rkop},
    {"rvoet", &R::rvoet},
    {"rkopuitslag", &R::rkopuitslag},
    {"rvoetuitslag", &R::rvoetuitslag},
    {"rdag", &R::rdag},
    {"rring", &R::rring},
    {"rtype", &R::rtype, "Ring"},
    {"ruty", &R::ruty},
    {"rmty", &R::rmty},
    {"rpty", &R::rpty},
    {"rtvk", &R::rtvk, "1"},
    {"rtvko", &R::rtvko},
    {"rvnr", &R::rvnr},
    {"rvor", &R::rvor},
    {"rsar", &R::rsar},
    {"rmda", &R::rmda},
    {"rcom", &R::rcom},
    {"rverkamp", &R::rverkamp},
    {"rpro", &R::rpro, "", 0},
    {"rproab", &R::rproab, "", 0},
    {"rp12", &R::rp12},
    {"rkla", &R::rkla},
    {"rklh", &R::rklh},
    {"rklhs", &R::rklhs},
    {"rcat", &R::rcat},
    {"rpkl", &R::rpkl},
    {"rpklh", &R::rpklh},
    {"rhcapu", &R::rhcapu},
    {"rhcap", &R::rhcap},
    {"rmex", &R::rmex},
    {"rsel", &R::rsel},
    {"rgroen", &R::rgroen},
    {"rkur", &R::rkur},
    {"rrubi", &R::rrubi},
    {"runo", &R::runo},
    {"rajl", &R::rajl, "0"},
    {"rjp", &R::rjp, "", 1},
    {"rjn", &R::rjn, "", 1},
    {"rjc", &R::rjc, "", 1},
    {"rxqd", &R::rxqd, "1"},
    {"rhjd", &R::rhjd, "1"},
    {"rdubprijs", &R::rdubprijs},
    {"rprijzen1op4", &R::rprijzen1op4},
    {"rprijzenaantal", &R::rprijzenaantal},
    {"rprijs", &R::rprijs, "", 1},
    {"ropm", &R::ropm},
    {"rgig", &R::rgig},
    {"rilgb", &R::rilgb},
    {"rmon", &R::rmon},
    {"rdkk", &R::rdkk},
    {"rlocked", &R::rlocked},
});

constexpr std::array lijst_velden = std::to_array<RubriekLijstVeld>({
    {"id", &L::id},
    {"vpn", &L::vpn},
    {"oms", &L::oms},
    {"dis", &L::dis},
    {"discode", &L::discode},
    {"klasse", &L::klasse},
    {"cat", &L::cat},
    {"ilg", &L::ilg},
    {"pid", &L::pid},
    {"ptd", &L::ptd},
    {"dtm", &L::dtm},
    {"com", &L::com},
    {"mop", &L::mop},
    {"edit", &L::edit},
});

std::expected<void, std::string> zet_getal(std::int16_t& veld, std::string_view waarde) {
    const std::optional<std::int16_t> getal = int16_of(waarde);
    if (!getal) return std::unexpected(std::string(fout_overloop));
    veld = *getal;
    return {};
}

// A number that is kept as text: "05" as "5", "x" as "0".
std::expected<void, std::string> zet_getal_als_tekst(std::string& veld, std::string_view waarde) {
    const double getal = leading_number(waarde);
    if (!std::isfinite(getal)) return std::unexpected(std::string(fout_overloop));
    veld = number_text(getal);
    return {};
}

// The number behind the name of a row of keys, written without leading zeros.
std::optional<int> volgnummer(std::string_view sleutel, std::string_view naam) {
    if (!sleutel.starts_with(naam)) return std::nullopt;
    const std::string_view cijfers = sleutel.substr(naam.size());
    if (cijfers.empty() || (cijfers.front() == '0' && cijfers.size() > 1)) return std::nullopt;
    int nummer = 0;
    const auto [einde, fout] = std::from_chars(cijfers.data(), cijfers.data() + cijfers.size(), nummer);
    if (fout != std::errc() || einde != cijfers.data() + cijfers.size() || nummer < 0) return std::nullopt;
    return nummer;
}

template <std::size_t N>
void zet_genummerd(std::array<std::string, N>& rij, int plaats, std::string_view waarde) {
    if (plaats >= 0 && static_cast<std::size_t>(plaats) < N) rij[static_cast<std::size_t>(plaats)] = waarde;
}

constexpr auto lijst_sleutels = [] {
    std::array<std::string_view, lijst_velden.size()> sleutels;
    std::ranges::transform(lijst_velden, sleutels.begin(), &RubriekLijstVeld::sleutel);
    return sleutels;
}();

// Gives every item of an entry that has a field: the number of the field and the value.
template <class Neem>
void voor_elk_lijst_veld(std::string_view record, Neem neem) {
    static const Sleutels sleutels(lijst_sleutels);
    sleutels.doorloop(record, neem, [&](std::string_view item) {
        const auto sleutel = std::ranges::find(lijst_sleutels, sleutel_van(item));
        if (sleutel != lijst_sleutels.end())
            neem(static_cast<std::size_t>(sleutel - lijst_sleutels.begin()), item.substr(item.find(':') + 1));
    });
}

} // namespace

std::span<const RubriekVeld> rubriek_velden() { return velden; }

RubriekRecord rubriek_met_standaardwaarden() {
    RubriekRecord rubriek;
    for (const RubriekVeld& veld : velden) {
        if (const auto* tekst = std::get_if<std::string R::*>(&veld.veld)) rubriek.*(*tekst) = veld.standaard;
        if (const auto* getal = std::get_if<std::int16_t R::*>(&veld.veld))
            rubriek.*(*getal) = int16_of(veld.standaard).value_or(0);
    }
    return rubriek;
}

std::expected<void, std::string> zet_rubriek_veld(RubriekRecord& rubriek, std::string_view sleutel,
                                                  std::string_view waarde) {
    if (!sleutel.starts_with('r')) return {}; // all keys do
    for (const RubriekVeld& veld : velden) {
        if (const auto* tekst = std::get_if<std::string R::*>(&veld.veld)) {
            if (sleutel != veld.sleutel) continue;
            if (sleutel == "rajl") return zet_getal_als_tekst(rubriek.rajl, waarde);
            rubriek.*(*tekst) = waarde;
            return {};
        }
        if (const auto* getal = std::get_if<std::int16_t R::*>(&veld.veld)) {
            if (sleutel == veld.sleutel) return zet_getal(rubriek.*(*getal), waarde);
            continue;
        }
        const std::optional<int> nummer = volgnummer(sleutel, veld.sleutel);
        if (!nummer) continue;
        std::visit(
            [&](auto rij) {
                if constexpr (!std::is_same_v<decltype(rij), std::string R::*> &&
                              !std::is_same_v<decltype(rij), std::int16_t R::*>)
                    zet_genummerd(rubriek.*rij, *nummer - veld.eerste, waarde);
            },
            veld.veld);
        return {};
    }
    return {};
}

std::span<const RubriekLijstVeld> rubriek_lijst_velden() { return lijst_velden; }

std::expected<void, std::string> lees_rubriek_lijst(std::string_view record, RubriekLijstRecord& entry) {
    std::expected<void, std::string> gelezen;
    voor_elk_lijst_veld(record, [&](std::size_t nummer, std::string_view waarde) {
        if (!gelezen) return;
        if (const auto* tekst = std::get_if<std::string L::*>(&lijst_velden[nummer].veld))
            entry.*(*tekst) = waarde;
        else
            gelezen = zet_getal(entry.*std::get<std::int16_t L::*>(lijst_velden[nummer].veld), waarde);
    });
    return gelezen;
}

std::expected<void, std::string> controleer_rubriek_lijst(std::string_view record) {
    bool past = true;
    voor_elk_lijst_veld(record, [&](std::size_t nummer, std::string_view waarde) {
        if (std::holds_alternative<std::int16_t L::*>(lijst_velden[nummer].veld) && !int16_of(waarde)) past = false;
    });
    if (!past) return std::unexpected(std::string(fout_overloop));
    return {};
}

} // namespace tavelo
