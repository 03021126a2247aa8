#include "app/instellingen.h"

#include "basis/number.h"

#include <array>
#include <type_traits>

namespace tavelo {

namespace {

using I = Instellingen;

// The font is saved under "fontname" but read from "numbersize"; it is meant so: every start begins with Arial again.
constexpr std::array<Instelling, 35> tabel = {{
    {"Files", "lastfolder", "lastfolder", "", &I::lastfolder},
    {"Layout", "fontname", "numbersize", "Arial", &I::fontname},
    {"Layout", "rubricbackcolor", "rubricbackcolor", "&HFFFFFF", &I::rubricbackcolor},
    {"Layout", "rubricforecolor", "rubricforecolor", "&H000000", &I::rubricforecolor},
    {"Layout", "rubricalignment", "rubricalignment", "0", &I::rubricalignment},
    {"Layout", "rubrictextsize", "rubrictextsize", "100", &I::rubrictextsize},
    {"Layout", "backcolor", "backcolor", "&HFFFFFF", &I::backcolor},
    {"Layout", "forecolor", "forecolor", "&H000000", &I::forecolor},
    {"Layout", "alignment", "alignment", "0", &I::alignment},
    {"Layout", "textsize", "textsize", "100", &I::textsize},
    {"Layout", "showrubric", "showrubric", "0", &I::showrubric},
    {"Layout", "shownumber", "shownumber", "0", &I::shownumber},
    {"Layout", "showridername", "showridername", "1", &I::showridername},
    {"Layout", "showhorsename", "showhorsename", "1", &I::showhorsename},
    {"Layout", "showhorsesire", "showhorsesire", "1", &I::showhorsesire},
    {"Layout", "showhorsesiredamr", "showhorsesiredamr", "0", &I::showhorsesiredamr},
    {"Layout", "showhorsecolor", "showhorsecolor", "0", &I::showhorsecolor},
    {"Layout", "showhorsegender", "showhorsegender", "0", &I::showhorsegender},
    {"Layout", "showhorseage", "showhorseage", "0", &I::showhorseage},
    {"Layout", "showhorsebreed", "showhorsebreed", "0", &I::showhorsebreed},
    {"Layout", "showhorsebreeder", "showhorsebreeder", "0", &I::showhorsebreeder},
    {"Layout", "showunionname", "showunionname", "0", &I::showunionname},
    {"Excel", "fieldnames", "fieldnames", "", &I::fieldnames},
    {"Excel", "col_startnumber", "col_startnumber", "", &I::col_startnumber},
    {"Excel", "col_hnr", "col_hnr", "", &I::col_hnr},
    {"Excel", "col_rider_name", "col_rider_name", "", &I::col_rider_name},
    {"Excel", "col_horse_name", "col_horse_name", "", &I::col_horse_name},
    {"Excel", "col_horse_sire", "col_horse_sire", "", &I::col_horse_sire},
    {"Excel", "col_horse_siredam", "col_horse_siredam", "", &I::col_horse_siredam},
    {"Excel", "col_horse_color", "col_horse_color", "", &I::col_horse_color},
    {"Excel", "col_horse_sex", "col_horse_sex", "", &I::col_horse_sex},
    {"Excel", "col_horse_age", "col_horse_age", "", &I::col_horse_age},
    {"Excel", "col_horse_book", "col_horse_book", "", &I::col_horse_book},
    {"Excel", "col_horse_breeder", "col_horse_breeder", "", &I::col_horse_breeder},
    {"Excel", "col_union_name", "col_union_name", "", &I::col_union_name},
}};

// The default as it is saved: a colour in plain decimals.
std::string standaard_tekst(const Instelling& instelling) {
    Instellingen standaard;
    static_cast<void>(zet_instelling(standaard, instelling, instelling.standaard));
    return instelling_tekst(standaard, instelling);
}

template <class Integer>
bool assign(Integer& field, std::optional<Integer> value) {
    if (!value) return false;
    field = *value;
    return true;
}

} // namespace

std::span<const Instelling> instellingen_tabel() { return tabel; }

bool zet_instelling(Instellingen& instellingen, const Instelling& instelling, std::string_view tekst) {
    if (const auto* veld = std::get_if<std::string I::*>(&instelling.veld)) {
        instellingen.*(*veld) = tekst;
        return true;
    }
    if (const auto* veld = std::get_if<std::int32_t I::*>(&instelling.veld))
        return assign(instellingen.*(*veld), int32_of(tekst));
    return assign(instellingen.*std::get<std::int16_t I::*>(instelling.veld), int16_of(tekst));
}

std::string instelling_tekst(const Instellingen& instellingen, const Instelling& instelling) {
    return std::visit(
        [&](auto veld) -> std::string {
            if constexpr (std::is_same_v<decltype(veld), std::string I::*>)
                return instellingen.*veld;
            else
                return std::to_string(instellingen.*veld);
        },
        instelling.veld);
}

Instellingen laad_instellingen(const SettingsStore& opslag) {
    Instellingen instellingen;
    for (const Instelling& instelling : tabel) {
        const std::optional<std::string> tekst =
            opslag.get(instellingen_toepassing, instelling.sectie, instelling.leessleutel);
        // A number that does not fit leaves its field at 0.
        static_cast<void>(zet_instelling(instellingen, instelling, tekst ? *tekst : std::string(instelling.standaard)));
    }
    return instellingen;
}

void bewaar_instellingen(const Instellingen& instellingen, SettingsStore& opslag) {
    for (const Instelling& instelling : tabel) {
        const std::string tekst = instelling_tekst(instellingen, instelling);
        if (tekst == standaard_tekst(instelling))
            opslag.save_default(instellingen_toepassing, instelling.sectie, instelling.sleutel, tekst);
        else
            opslag.save(instellingen_toepassing, instelling.sectie, instelling.sleutel, tekst);
    }
    opslag.flush();
}

} // namespace tavelo
