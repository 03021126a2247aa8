#include "schedule/codeCombinaties.h"

#include "basis/codeDatumTijd.h"
#include "basis/number.h"
#include "basis/text.h"
#include "schedule/record/items.h"
#include "vocabulary/codeTaal.h"

#include <algorithm>
#include <cmath>

namespace tavelo {

namespace {

struct TekstVeld {
    std::string_view sleutel;
    std::string CombinatieRecord::*veld;
};
using C = CombinatieRecord;
constexpr std::array tekst_velden = std::to_array<TekstVeld>({
    {"type", &C::type},       {"co", &C::co},           {"pe_nr", &C::pe_nr},     {"na", &C::na},
    {"gebdat", &C::gebdat},   {"gesl", &C::gesl},       {"ad", &C::ad},           {"pc", &C::pc},
    {"wp", &C::wp},           {"ld", &C::ld},           {"di_nr", &C::di_nr},     {"pa", &C::pa},
    {"va", &C::va},           {"mo", &C::mo},           {"di_kl", &C::di_kl},     {"di_gs", &C::di_gs},
    {"di_gb", &C::di_gb},     {"ei", &C::ei},           {"di_fok", &C::di_fok},   {"di_st", &C::di_st},
    {"di_stna", &C::di_stna}, {"di_stnr", &C::di_stnr}, {"di_chip", &C::di_chip}, {"ca", &C::ca},
    {"ve_nr", &C::ve_nr},     {"ve", &C::ve},           {"ve_pl", &C::ve_pl},     {"kr", &C::kr},
});

using PerDiscipline = C::PerDiscipline<std::string_view>;
struct GetalVeld {
    PerDiscipline sleutels;
    C::PerDiscipline<std::int16_t> C::*veld;
};
constexpr std::array getal_velden = std::to_array<GetalVeld>({
    {{"da", "sa", "mda", "mva"}, &C::a},
    {{"dh", "sh", "mdh", "mvh"}, &C::handicap},
    {{"d_coup", "s_coup", "md_coup", "mv_coup"}, &C::coup},
    {{"d_af", "s_af", "md_af", "mv_af"}, &C::af},
    {{"d_res", "s_res", "md_res", "mv_res"}, &C::res},
    {{"d_sel", "s_sel", "md_sel", "mv_sel"}, &C::sel},
    {{"d_gr", "s_gr", "md_gr", "mv_gr"}, &C::gr},
    {{"d_kur", "s_kur", "md_kur", "mv_kur"}, &C::kur},
    {{"d_flex", "s_flex", "md_flex", "mv_flex"}, &C::flex},
});
constexpr PerDiscipline klasse_sleutels = {"dk", "sk", "mdk", "mvk"};
constexpr PerDiscipline dagen_sleutels = {"dr_dagen", "sp_dagen", "medr_dagen", "meva_dagen"};

// The keys of all others, in the order in which `lees_combinatie` takes their values.
constexpr auto alle_sleutels = [] {
    std::array<std::string_view, 1 + tekst_velden.size() + 4 * (1 + getal_velden.size())> alle;
    auto sleutel = alle.begin();
    *sleutel++ = "hnr";
    for (const TekstVeld& veld : tekst_velden)
        *sleutel++ = veld.sleutel;
    sleutel = std::ranges::copy(klasse_sleutels, sleutel).out;
    for (const GetalVeld& veld : getal_velden)
        sleutel = std::ranges::copy(veld.sleutels, sleutel).out;
    return alle;
}();

std::string_view geslacht_woord(std::string_view code) {
    if (code == "H" || code == "S") return "Hengst";
    if (code == "M") return "Merrie";
    if (code == "R" || code == "G") return "Ruin";
    return "";
}

struct Datum {
    double jaar = 0;
    double maand = 1;
    double dag = 1;
};

// One part is a year, two are month and year, three or more begin with day, month and year.
Datum lees_datum(std::string_view tekst) {
    const std::vector<std::string_view> delen = split(tekst, "-");
    const auto deel = [&](std::size_t i) { return leading_number(delen[i]); };
    if (delen.size() == 1) return {deel(0)};
    if (delen.size() == 2) return {deel(1), deel(0)};
    return {deel(2), deel(1), deel(0)};
}

} // namespace

std::string hoofdstelnummer(int n, std::string_view hnr, std::string_view co, bool hoofdstelnummerautomatisch) {
    if (n == 0) return "";
    if (!hnr.empty()) return std::string(hnr);
    std::string cijfers;
    if (hoofdstelnummerautomatisch)
        std::ranges::copy_if(co, std::back_inserter(cijfers), [](char c) { return c >= '0' && c <= '9'; });
    if (cijfers.empty()) cijfers = std::to_string(n);
    if (cijfers.size() > 3) cijfers.erase(0, cijfers.size() - 3);
    return cijfers;
}

void lees_combinatie(CombinatieRecord& entry, int n, const Schedule& schedule, const Clock& klok) {
    entry = {};
    if (n < 0 || n > hoogste_deelnemer) return;
    static const Sleutels sleutels(alle_sleutels);
    std::array<std::string_view, alle_sleutels.size()> waarden;
    const std::string& record = schedule.deelnemer(n);
    sleutels.zoek(record, waarden);

    entry.nr = std::to_string(n);
    auto waarde = waarden.begin();
    const std::string_view hnr = *waarde++;
    for (const TekstVeld& veld : tekst_velden)
        entry.*veld.veld = *waarde++;
    for (std::string& klasse : entry.klasse)
        klasse = upper_case(*waarde++);
    for (const GetalVeld& veld : getal_velden)
        for (std::int16_t& getal : entry.*veld.veld)
            getal = int16_of(*waarde++).value_or(0);
    for (std::size_t i = 0; i < dagen_sleutels.size(); ++i)
        entry.dagen[i] = zoek_waarde(dagen_sleutels[i], record);
    entry.hnr = hoofdstelnummer(n, hnr, entry.co, schedule.hoofdstelnummerautomatisch);
    entry.naam_zonder_ster = removed(entry.na, "*");
    entry.geslacht = vertaal(geslacht_woord(entry.di_gs));
    entry.leeftijd = leeftijd_van(entry.di_gb, datum_tijd_tekst(klok.now(), "d-m-yyyy"));
}

std::string leeftijd_van(std::string_view geboortedatum, std::string_view vandaag) {
    if (geboortedatum.empty() || vandaag.empty()) return "";
    const Datum geboren = lees_datum(geboortedatum);
    const Datum nu = lees_datum(vandaag);
    double jaren = nu.jaar - geboren.jaar;
    double maanden = nu.maand - geboren.maand;
    if (nu.dag - geboren.dag < 0) maanden -= 1;
    if (maanden < 0) jaren -= 1;
    if (!std::isfinite(jaren)) return "";       // a year with hundreds of digits
    return number_text(round_half_even(jaren)); // a year may be written with a fraction
}

} // namespace tavelo
