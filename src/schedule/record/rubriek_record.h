// The record of one class ("rubriek") as the suite writes it, and the shorter one of the show's list of classes. Fields
// are named by their keys in the file.
#pragma once

#include <array>
#include <cstdint>
#include <expected>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace tavelo {

// Texts as in the file unless said otherwise; a whole number that does not fit 16 bits leaves its field as it was.
struct RubriekRecord {
    std::string rid;
    std::string rxpad;
    std::string roms;
    std::string rkop;
    std::string rvoet;
    std::string rkopuitslag;
    std::string rvoetuitslag;
    std::string rdag; // weekday, 0 is Monday
    std::string rring;
    std::string rtype;
    std::string ruty; // start hour
    std::string rmty; // start minute
    std::string rpty; // minutes per combination
    std::int16_t rtvk = 0;
    std::int16_t rtvko = 0; // the "nr.--tijd" column: 0 time, 1 number, 3 both
    std::string rvnr;
    std::string rvor;
    std::string rsar; // first start number
    std::string rmda;
    std::int16_t rcom = 0; // ring type
    std::int16_t rverkamp = 0;
    std::array<std::string, 26> rpro;
    std::array<std::string, 26> rproab;
    std::int16_t rp12 = 0;
    std::string rkla; // classes, separated by "*"
    std::int16_t rklh = 0;
    std::string rklhs;
    std::string rcat;        // category letters, separated by "*"
    std::int16_t rpkl = 0;   // which class list applies
    std::string rpklh;       // own class list
    std::int16_t rhcapu = 0; // which grouping of categories applies
    std::string rhcap;       // own grouping
    std::int16_t rmex = 0;
    std::int16_t rsel = 0;
    std::int16_t rgroen = 0;
    std::int16_t rkur = 0;
    std::string rrubi; // numbers of the entries of the list of classes that are ridden together
    std::int16_t runo = 0;
    std::string rajl;               // a number, kept as text
    std::array<std::string, 5> rjp; // judge positions, slot 1 first
    std::array<std::string, 5> rjn; // judge names
    std::array<std::string, 5> rjc;
    std::int16_t rxqd = 0;
    std::int16_t rhjd = 0;
    std::int16_t rdubprijs = 0;
    std::int16_t rprijzen1op4 = 0;
    std::string rprijzenaantal;
    std::array<std::string, 15> rprijs;
    std::string ropm;
    std::int16_t rgig = 0;
    std::string rilgb;
    std::int16_t rmon = 0;
    std::int16_t rdkk = 0;
    std::string rlocked;
};

// One key of the record, or a row of numbered keys ("rjp1" to "rjp5").
struct RubriekVeld {
    std::string_view sleutel;
    std::variant<std::string RubriekRecord::*, std::int16_t RubriekRecord::*,
                 std::array<std::string, 5> RubriekRecord::*, std::array<std::string, 15> RubriekRecord::*,
                 std::array<std::string, 26> RubriekRecord::*>
        veld;
    std::string_view standaard = ""; // value before the items are read; a number as text
    int eerste = 0;                  // number of the first of a row of numbered keys
};

// The fields in the order of the record; the only list of its keys.
[[nodiscard]] std::span<const RubriekVeld> rubriek_velden();

[[nodiscard]] RubriekRecord rubriek_met_standaardwaarden();

// Puts the value of one item in its field. `sleutel` is in lower case; an unknown key or a number outside its row (or
// written with a leading zero) changes nothing. The error is the description of what went wrong with a number.
[[nodiscard]] std::expected<void, std::string> zet_rubriek_veld(RubriekRecord& rubriek, std::string_view sleutel,
                                                                std::string_view waarde);

// One entry of the show's list of classes.
struct RubriekLijstRecord {
    std::string id;
    std::string vpn;
    std::string oms; // description
    std::string dis; // discipline
    std::string discode;
    std::string klasse; // separated by "*"
    std::string cat;    // separated by "*"
    std::string ilg;
    std::string pid;
    std::string ptd;
    std::string dtm; // date
    std::int16_t com = 0;
    std::int16_t mop = 0;
    std::int16_t edit = 0;

    bool operator==(const RubriekLijstRecord&) const = default;
};

struct RubriekLijstVeld {
    std::string_view sleutel;
    std::variant<std::string RubriekLijstRecord::*, std::int16_t RubriekLijstRecord::*> veld;
};
[[nodiscard]] std::span<const RubriekLijstVeld> rubriek_lijst_velden();

// Decodes a record into `entry`; values are not trimmed, a repeated key overwrites. At a number that does not fit,
// decoding ends with the description of the error and the fields decoded so far stay.
[[nodiscard]] std::expected<void, std::string> lees_rubriek_lijst(std::string_view record, RubriekLijstRecord& entry);
// What decoding the record would end with.
[[nodiscard]] std::expected<void, std::string> controleer_rubriek_lijst(std::string_view record);

} // namespace tavelo
