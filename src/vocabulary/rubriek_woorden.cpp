#include "vocabulary/rubriek_woorden.h"

#include "basis/fouten.h"
#include "basis/number.h"
#include "basis/text.h"
#include "schedule/record/kolommen.h"
#include "vocabulary/klassen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>

namespace tavelo {

namespace {

// The numbers are stored in schedule files; the order is that of the numbers.
constexpr std::array<std::string_view, 19> ringtypes = {
    "Dressuur",
    "Springen, Rijstijlwedstrijd",
    "Springen, Klassiek (AA)",
    "Springen, Progressief (PP)",
    "Springen, Jacht (C)",
    "Springen, 2 Fasen (AC)",
    "Springen, 2 Manches (AAA)",
    "Mennen dressuur",
    "Mennen vaardigheid, Klassiek",
    "Mennen vaardigheid, 2 Manches (AAA)",
    "Springen, 2-Fasen (AA)",
    "Springen, 2 Manches (AASt)",
    "Afdelingsdressuur (4-tallen)",
    "Afdelingsdressuur (8-tallen)",
    "Springen, 2 Manches (StStSt)",
    "Afdelingsdressuur (6-tallen)",
    "Springen, 2-Fasen (StSt)",
    "Springen, Jonge paarden art. 281",
    "Mennen vaardigheid, 2 Manches (CCC)",
};

constexpr std::array<std::string_view, 7> weekdagen = {"maandag", "dinsdag",  "woensdag", "donderdag",
                                                       "vrijdag", "zaterdag", "zondag"};

// By grouping mode, as stored in schedule files.
constexpr std::array<std::string_view, 11> groeperingen = {"AB-C-D-E-P", "A-BC-D-E-P", "A-B-C-D-E-P", "AB-CD-EP",
                                                           "ABCDEP",     "A-B-CD-E-P", "A-B-C-DE-P",  "AB-CD-E-P",
                                                           "AB-C-DE-P",  "A-BC-DE-P",  "ABCDE-P"};
constexpr std::int16_t eigen_groepering = 11;
constexpr std::string_view gegroepeerde_letters = "ABCDEPSTUV";

// The letters of the dressage arena at which the judges sit.
constexpr std::array<std::string_view, 5> juryplaatsen = {"C", "H", "M", "E", "B"};

template <std::size_t N>
std::string_view uit_tabel(const std::array<std::string_view, N>& tabel, int plaats, std::string_view anders) {
    return plaats >= 0 && static_cast<std::size_t>(plaats) < N ? tabel[static_cast<std::size_t>(plaats)] : anders;
}

std::string twee_cijfers(std::string_view getal) { return std::string(last("00" + std::string(getal), 2)); }

// Modulo that stays positive, so that a time before midnight is one of the day before.
std::string rest_van(double getal, double deler) { return number_text(getal - deler * std::floor(getal / deler)); }

std::string nr_tijd_titel(std::int16_t soort) {
    switch (soort) {
    case 0:
        return "tijd";
    case 1:
        return "nr.";
    case 3:
        return "nr.--tijd";
    default:
        return "";
    }
}

std::string jury_tekst(const RubriekRecord& rubriek) {
    std::vector<std::string> jury;
    for (std::size_t plaats = 0; plaats < rubriek.rjn.size(); ++plaats)
        if (!rubriek.rjn[plaats].empty()) jury.push_back(rubriek.rjp[plaats] + ": " + rubriek.rjn[plaats]);
    return join(jury, ", ");
}

} // namespace

std::string_view ringtype_naam(const RubriekRecord& rubriek) { return uit_tabel(ringtypes, rubriek.rcom, ""); }

std::string_view weekdag_naam(std::int16_t dag) { return uit_tabel(weekdagen, dag, "onbekend"); }

std::expected<std::string, std::string> minuten_naar_hhmm(double minuten) {
    if (minuten == 0) return "";
    const double heel = std::floor(minuten + 0.5);
    if (!to_int32(heel)) return std::unexpected("minuten naar hhmm error: " + std::string(fout_overloop));
    return twee_cijfers(rest_van(std::floor(heel / 60), 24)) + ":" + twee_cijfers(rest_van(heel, 60));
}

std::string dag_tijd_tekst(const RubriekRecord& rubriek) {
    if (rubriek.rdag.empty()) return "";
    const std::optional<std::int16_t> dag = int16_of(rubriek.rdag);
    if (!dag) return "";
    const std::string tekst =
        std::string(weekdag_naam(*dag)) + " " + rubriek.ruty + ":" + twee_cijfers(rubriek.rmty) + " uur";
    return std::string(trimmed(tekst));
}

std::string rubriek_regel(const RubriekRecord& rubriek, const Schedule& schedule) {
    std::string regel(ringtype_naam(rubriek));
    for (const std::string& deel : {klasse_kop(rubriek, schedule), categorie_kop(rubriek, schedule)})
        if (!deel.empty()) regel.append(", ").append(deel);
    return regel;
}

std::vector<std::string> categorie_groepen(const RubriekRecord& rubriek) {
    std::string patroon(rubriek.rhcapu == eigen_groepering ? trimmed(rubriek.rhcap)
                                                           : uit_tabel(groeperingen, rubriek.rhcapu, ""));
    while (patroon.contains("--"))
        patroon = replaced(patroon, "--", "-");
    if (patroon.starts_with('-')) patroon.erase(0, 1);
    if (patroon.ends_with('-')) patroon.pop_back();
    for (const char letter : gegroepeerde_letters) {
        if (patroon.contains(letter)) continue;
        if (!patroon.empty()) patroon.push_back('-');
        patroon.push_back(letter);
    }
    std::vector<std::string> groepen;
    for (const std::string_view groep : split(patroon, "-"))
        groepen.emplace_back(groep);
    return groepen;
}

std::string rubriek_lijsten(const RubriekRecord& rubriek) {
    std::vector<std::string> delen = klasse_lijst(rubriek);
    std::ranges::move(categorie_groepen(rubriek), std::back_inserter(delen));
    return join(delen, ", ");
}

void rubriek_leeg(Grid& grid, Schedule& schedule, RubriekLabels& labels) {
    schedule.huidige_rubriek = RubriekRecord();
    schedule.huidige_rubriek.rpkl = 1;
    std::ranges::copy(juryplaatsen, schedule.huidige_rubriek.rjp.begin());

    labels.lblRubriek.clear();
    labels.lblRingType.clear();
    labels.lblRingNaam = "Ring";
    labels.lblDagTijd.clear();
    labels.lblRubriekLijsten.clear();
    labels.lblJury.clear();
    grid.set_rows(1);
}

void vul_rubriek_labels(const Schedule& schedule, RubriekLabels& labels) {
    const RubriekRecord& rubriek = schedule.huidige_rubriek;
    labels.lblRubriek = rubriek_regel(rubriek, schedule);
    labels.lblRingType = ringtype_naam(rubriek);
    labels.lblRingNaam = trimmed(rubriek.rtype + " " + rubriek.rring);
    labels.lblDagTijd = dag_tijd_tekst(rubriek);
    labels.lblRubriekLijsten = rubriek_lijsten(rubriek);
    labels.lblJury = jury_tekst(rubriek);
}

void vul_nr_tijd(Grid& grid, const RubriekRecord& rubriek, MessageBox& berichten) {
    std::int16_t nummer = int16_of(rubriek.rsar.empty() ? "1" : std::string_view(rubriek.rsar)).value_or(0);
    double minuten = std::floor(leading_number(rubriek.ruty) * 60 + leading_number(rubriek.rmty) + 0.5);
    const double minuten_per_combinatie = leading_number(rubriek.rpty);
    std::optional<std::string> bericht;

    grid.set_text(0, kolom_nrtijd, nr_tijd_titel(rubriek.rtvko));
    for (int rij = 1; rij < grid.rows(); ++rij) {
        const std::string_view inr = grid.text(rij, kolom_inr);
        const bool is_pauze = inr == "P";
        // A "p" in lower case shows no number but uses one up, and takes no pause: it is meant so.
        const std::string nummer_tekst = is_pauze || inr == "p" ? std::string() : std::to_string(nummer);
        auto tijd = minuten_naar_hhmm(minuten);
        if (!tijd && !bericht) bericht = tijd.error();
        const std::string tijd_tekst = std::move(tijd).value_or("");

        std::string tekst;
        if (rubriek.rtvko == 0) tekst = tijd_tekst;
        if (rubriek.rtvko == 1) tekst = nummer_tekst;
        if (rubriek.rtvko == 3) tekst = nummer_tekst.empty() ? tijd_tekst : nummer_tekst + "--" + tijd_tekst;
        grid.set_text(rij, kolom_nrtijd, tekst);

        if (!is_pauze && nummer < std::numeric_limits<std::int16_t>::max()) ++nummer;
        const std::int32_t pauze = grid.row_value(rij);
        minuten += is_pauze && pauze > 0 ? pauze : minuten_per_combinatie;
    }
    grid.set_row(1);
    grid.set_column(3);
    // One box for the whole column: an operator cannot click four thousand away.
    if (bericht) berichten.show(*bericht);
}

} // namespace tavelo
