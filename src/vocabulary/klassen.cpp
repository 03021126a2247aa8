#include "vocabulary/klassen.h"

#include "basis/number.h"
#include "basis/text.h"
#include "schedule/record/items.h"

#include <algorithm>
#include <array>
#include <set>

namespace tavelo {

namespace {

struct Klassen {
    std::string_view code;
    std::string_view lijst;
};
constexpr std::string_view alle_klassen =
    "AT BX BB BB80 BB90 0.30 0.40 0.50 0.60 0.70 0.80 0.90 1.00 1.10 1.20 1.30 1.35 1.40 1.45 1.50 B C L L1 L2 M MM M1 "
    "M2 "
    "Z Z1 Z2 ZZ ZZL ZZZ LT ZT CH JUN YR 4J 5J 6J 7J G1 G2 G3 G4 G5 0 1 2 3 4 Q1 Q2 Q3 Q4 Q5 Q6 Q7 Q8 Q9 Q10";
// Q1 to Q10 are free classes.
constexpr std::array<Klassen, 5> klassen = {{
    {"D", "AT BX BB B L L1 L2 M M1 M2 Z Z1 Z2 ZZL ZZZ LT ZT CH JUN YR 4J 5J 6J 7J G1 G2 G3 G4 G5 "
          "Q1 Q2 Q3 Q4 Q5 Q6 Q7 Q8 Q9 Q10"},
    {"AD", "B L M Z ZZ Q1 Q2 Q3 Q4 Q5 Q6 Q7 Q8 Q9 Q10"},
    {"S", "BX BB BB80 BB90 0.30 0.40 0.50 0.60 0.70 0.80 0.90 1.00 1.10 1.20 1.30 1.35 1.40 1.45 1.50 "
          "Q1 Q2 Q3 Q4 Q5 Q6 Q7 Q8 Q9 Q10"},
    {"MD", "BX BB B L M Z ZZ 0 1 2 3 4 Q1 Q2 Q3 Q4 Q5 Q6 Q7 Q8 Q9 Q10"},
    {"MV", "BX BB L M MM Z ZZ B C 0 1 2 3 4 Q1 Q2 Q3 Q4 Q5 Q6 Q7 Q8 Q9 Q10"},
}};

constexpr std::string_view categorie_letters = "A B C D E P S T U V W X Q";

// Kinds of team in driving: single, pair, "hobby", tandem and four-in-hand, of ponies (po) or horses (pa).
struct Categorie {
    char letter;
    std::string_view kort;
    std::string_view lang;
};
constexpr std::array<Categorie, 10> categorieen = {{
    {'A', "1-po", "1sp po"},
    {'B', "1-pa", "1sp pa"},
    {'C', "2-po", "2sp po"},
    {'D', "2-pa", "2sp pa"},
    {'E', "h-po", "hob po"},
    {'P', "h-pa", "hob pa"},
    {'S', "t-po", "tdm po"},
    {'T', "t-pa", "tdm pa"},
    {'U', "4-po", "4sp po"},
    {'V', "4-pa", "4sp pa"},
}};

const Categorie* categorie_van(char32_t letter) {
    const char32_t hoofdletter = letter >= U'a' && letter <= U'z' ? letter - 0x20 : letter;
    const auto gevonden = std::ranges::find_if(
        categorieen, [&](const Categorie& c) { return static_cast<char32_t>(c.letter) == hoofdletter; });
    return gevonden == categorieen.end() ? nullptr : &*gevonden;
}

bool is_mennen(std::int16_t ringtype) {
    const Discipline discipline = discipline_van(ringtype);
    return discipline == Discipline::mennen_dressuur || discipline == Discipline::mennen_vaardigheid;
}

// The numbers of a selection field ("1, 3/4,12") that name an entry of the list of classes.
std::vector<int> gekozen_nummers(std::string_view selectie) {
    const std::string nummers = removed(removed(selectie, " "), "/");
    std::vector<int> gekozen;
    Parts delen(nummers, ',');
    while (const std::optional<std::string_view> deel = delen.next()) {
        const std::optional<std::int16_t> nummer = int16_of(*deel);
        if (nummer && *nummer >= 1 && *nummer <= hoogste_rubriek) gekozen.push_back(*nummer);
    }
    return gekozen;
}

// The items of one star-separated field of the selected entries, in the order of `volgorde` and framed by stars.
std::string selectie(const RubriekRecord& rubriek, const Schedule& schedule, std::string RubriekLijstRecord::*veld,
                     std::string_view volgorde) {
    std::set<std::string> verzameld;
    for (const int nummer : gekozen_nummers(rubriek.rrubi)) {
        const RubriekLijstRecord entry = schedule.rubriek(nummer);
        for (const std::string_view item : split(entry.*veld, "*"))
            verzameld.insert(upper_case(item));
    }
    std::string tekst = "*";
    for (const std::string_view item : split(volgorde, " "))
        if (verzameld.contains(std::string(item))) tekst.append(item).append("*");
    return tekst;
}

} // namespace

std::string_view klassen_van_discipline(std::string_view code) {
    const auto gevonden = std::ranges::find(klassen, code, &Klassen::code);
    return gevonden == klassen.end() ? alle_klassen : gevonden->lijst;
}

std::vector<std::string> klasse_lijst(const RubriekRecord& rubriek) {
    std::string tekst;
    if (rubriek.rpkl == 0 || rubriek.rpkl == 1)
        tekst = replaced(klassen_van_discipline(discipline_code(rubriek.rcom)), " ", rubriek.rpkl == 0 ? "-" : "/");
    if (rubriek.rpkl == 2) {
        tekst = trimmed(rubriek.rpklh);
        if (tekst.empty()) tekst = replaced(alle_klassen, " ", "-");
    }
    while (tekst.contains("--"))
        tekst = replaced(tekst, "--", "-");
    std::string_view lijst = tekst;
    if (lijst.starts_with('-')) lijst.remove_prefix(1);
    if (lijst.ends_with('-')) lijst.remove_suffix(1);
    if (lijst.empty()) return {};

    constexpr std::size_t hoogstens = 100;
    std::vector<std::string> delen;
    for (const std::string_view deel : split(lijst, "-"))
        if (delen.size() < hoogstens) delen.emplace_back(deel);
    return delen;
}

std::string klasse_kop(const RubriekRecord& rubriek, const Schedule& schedule) {
    std::string tekst = schedule.singlesignin == 1
                            ? selectie(rubriek, schedule, &RubriekLijstRecord::klasse, alle_klassen)
                            : rubriek.rkla;
    if (discipline_van(rubriek.rcom) == Discipline::springen) {
        // Letters of the jumping heights, replaced wherever they stand.
        tekst = replaced(tekst, "R", "1.30");
        tekst = replaced(tekst, "S", "1.35");
        tekst = replaced(tekst, "T", "1.40");
        tekst = replaced(tekst, "U", "1.50");
    }
    tekst = klasse_tekst(tekst);
    return tekst.empty() ? std::string() : "Klasse " + tekst;
}

std::string categorie_kop(const RubriekRecord& rubriek, const Schedule& schedule) {
    const std::string gekozen = schedule.singlesignin == 1
                                    ? selectie(rubriek, schedule, &RubriekLijstRecord::cat, categorie_letters)
                                    : rubriek.rcat;
    const std::string letters = removed(removed(klasse_tekst(gekozen), ","), " ");
    return letters.empty() ? std::string() : "Categorie " + categorie_namen(letters, rubriek.rcom, letters);
}

std::string categorie_namen(std::string_view tekst, std::int16_t ringtype, std::string_view filter) {
    if (!is_mennen(ringtype)) return std::string(trimmed(tekst));
    const std::u32string toegelaten = code_points(filter);
    std::string namen;
    for (const char32_t letter : code_points(removed(removed(tekst, ","), " "))) {
        if (!toegelaten.contains(letter)) continue;
        const Categorie* categorie = categorie_van(letter);
        namen.append(", ").append(categorie ? categorie->lang : std::string_view());
    }
    std::string_view resultaat = namen;
    if (resultaat.starts_with(',')) resultaat.remove_prefix(1);
    return std::string(trimmed(resultaat));
}

std::string_view korte_categorie(const RubriekRecord& rubriek) {
    if (!is_mennen(rubriek.rcom)) return {};
    const std::u32string letter = code_points(klasse_tekst(rubriek.rcat));
    if (letter.size() != 1) return {};
    const Categorie* categorie = categorie_van(letter.front());
    return categorie ? categorie->kort : std::string_view();
}

} // namespace tavelo
