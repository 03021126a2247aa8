// The settings record, its table and how it survives between runs. The table is the only list of the settings: loading,
// saving, the dialog's private copy and the tests walk it.
#pragma once

#include "basis/seams.h"

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace tavelo {

// Colours are 0xBBGGRR: the low byte is red. Sizes are percentages, alignments 0 left, 1 centre, 2 right. The show
// flags and `fieldnames` hold check-box values, 1 on and 0 off. Excel columns are column letters, "" for none.
struct Instellingen {
    std::string lastfolder;

    std::string fontname;
    std::int32_t rubricbackcolor = 0;
    std::int32_t rubricforecolor = 0;
    std::int16_t rubricalignment = 0;
    std::int16_t rubrictextsize = 0;
    std::int32_t backcolor = 0;
    std::int32_t forecolor = 0;
    std::int16_t alignment = 0;
    std::int16_t textsize = 0;
    std::int16_t showrubric = 0;
    std::int16_t shownumber = 0; // 0 none, 1 number and time, 2 head number
    std::int16_t showridername = 0;
    std::int16_t showhorsename = 0;
    std::int16_t showhorsesire = 0;
    std::int16_t showhorsesiredamr = 0;
    std::int16_t showhorsecolor = 0;
    std::int16_t showhorsegender = 0;
    std::int16_t showhorseage = 0;
    std::int16_t showhorsebreed = 0;
    std::int16_t showhorsebreeder = 0;
    std::int16_t showunionname = 0;

    std::int16_t fieldnames = 0;
    std::string col_startnumber;
    std::string col_hnr;
    std::string col_rider_name;
    std::string col_horse_name;
    std::string col_horse_sire;
    std::string col_horse_siredam;
    std::string col_horse_color;
    std::string col_horse_sex;
    std::string col_horse_age;
    std::string col_horse_book;
    std::string col_horse_breeder;
    std::string col_union_name;

    bool operator==(const Instellingen&) const = default;
};

using InstellingVeld =
    std::variant<std::string Instellingen::*, std::int32_t Instellingen::*, std::int16_t Instellingen::*>;

struct Instelling {
    std::string_view sectie;
    std::string_view sleutel;     // key written; names the field
    std::string_view leessleutel; // key read; differs for the font alone
    std::string_view standaard;   // text taken when the key is absent
    InstellingVeld veld;
};

// The 35 settings in the order in which they are loaded and saved.
[[nodiscard]] std::span<const Instelling> instellingen_tabel();

inline constexpr std::string_view instellingen_toepassing = "Vendalo 3.5 Deelnemer";

// A number field takes the leading number of the text, rounded half to even; false and unchanged when it does not fit.
[[nodiscard]] bool zet_instelling(Instellingen& instellingen, const Instelling& instelling, std::string_view tekst);
// Numbers as plain decimal text.
[[nodiscard]] std::string instelling_tekst(const Instellingen& instellingen, const Instelling& instelling);

// A stored number that does not fit its field leaves that field 0.
[[nodiscard]] Instellingen laad_instellingen(const SettingsStore& opslag);
// What is still at its default is saved as such, so that it does not replace a stored value that could not be read.
void bewaar_instellingen(const Instellingen& instellingen, SettingsStore& opslag);

} // namespace tavelo
