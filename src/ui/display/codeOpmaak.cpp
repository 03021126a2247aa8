#include "ui/display/codeOpmaak.h"

#include "basis/codeBestand.h"
#include "basis/number.h"
#include "basis/text.h"
#include "excel/codeExcel.h"
#include "schedule/codeCombinaties.h"
#include "vocabulary/klassen.h"
#include "vocabulary/rubriek_woorden.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

namespace tavelo {

namespace {

constexpr int twips_per_punt = 600; // width of the area for one point of size at 100 %
constexpr double vulling = 0.95;    // part of width and height that texts may take
constexpr double bandhoogte = 2.2;  // height of the heading band, in lines
constexpr std::string_view lang_leeg = "________";
constexpr std::string_view middel_leeg = "_____";
constexpr std::string_view kort_leeg = "__";

// What the lines of the participant show, whatever the source.
struct Deelnemer {
    std::string ruiter;
    std::string paard;
    std::string vader;
    std::string moeders_vader;
    std::string kleur;
    std::string geslacht;
    std::string leeftijd;
    std::string stamboek;
    std::string fokker;
    std::string vereniging;
};

Deelnemer uit_rooster(int nummer, const Schedule& schedule, const Clock& klok) {
    CombinatieRecord c;
    lees_combinatie(c, nummer, schedule, klok);
    return {c.naam_zonder_ster, c.pa, c.va, c.mo, c.di_kl, c.geslacht, c.leeftijd, c.di_st, c.di_fok, c.ve};
}

Deelnemer uit_werkblad(int rij, const Programma& programma) {
    const Instellingen& kolom = programma.instellingen;
    const auto cel = [&](std::string_view letter) { return excel_kolom(programma.grdExcel, rij, letter); };
    return {cel(kolom.col_rider_name),    cel(kolom.col_horse_name),  cel(kolom.col_horse_sire),
            cel(kolom.col_horse_siredam), cel(kolom.col_horse_color), cel(kolom.col_horse_sex),
            cel(kolom.col_horse_age),     cel(kolom.col_horse_book),  cel(kolom.col_horse_breeder),
            cel(kolom.col_union_name)};
}

int heel(double waarde) { return to_int32(waarde).value_or(0); }

// floor(width / 600) points at 100 %; 0 when it does not fit 16 bits.
int puntgrootte(double breedte, int percentage) {
    const int punten_bij_100 = heel(breedte) / twips_per_punt;
    return to_int16(punten_bij_100 * (percentage / 100.0)).value_or(0);
}

int regelhoogte(const Tekenvlak& vlak, const TextMeasure& meter) { return heel(vlak.teksthoogte(meter)); }

// Pedigree names that stand for nothing known give the empty text.
std::string afstamming(const std::string& naam, std::string_view onbekend) {
    const bool leeg = lower_case(naam) == onbekend || removed(naam, "-").empty();
    return leeg ? std::string(lang_leeg) : naam;
}

std::string of_leeg(const std::string& tekst, std::string_view plaatshouder) {
    return tekst.empty() ? std::string(plaatshouder) : tekst;
}

double begin_van_regel(const Tekenvlak& vlak, double breedte, int uitlijning, const TextMeasure& meter) {
    const int totaal = heel(vlak.breedte);
    const double marge = 0.5 * vlak.tekstbreedte(meter, " ");
    if (uitlijning == 1) return 0.5 * (totaal - breedte);
    if (uitlijning == 2) return totaal - marge - breedte;
    return marge;
}

// Height of the lines that are switched on. The band counts as two lines, though it is 2.2 high; a colour, sex or age
// reserves its line whether it is drawn or not. It is meant so.
int benodigde_hoogte(const Instellingen& i, int rubriek_regel_hoogte, int regel_hoogte) {
    int hoogte = i.showrubric != 0 ? 2 * rubriek_regel_hoogte : 0;
    for (const bool aan : {i.shownumber != 0, i.showridername != 0, i.showhorsename != 0,
                           i.showhorsesire != 0 || i.showhorsesiredamr != 0,
                           i.showhorsecolor != 0 || i.showhorsegender != 0 || i.showhorseage != 0,
                           i.showhorsebreed != 0, i.showhorsebreeder != 0, i.showunionname != 0})
        if (aan) hoogte += regel_hoogte;
    return hoogte;
}

// The sum of two settings of 16 bits; one that does not fit counts as none.
bool samen_minstens_een(std::int16_t a, std::int16_t b) { return to_int16(a + b).value_or(0) >= 1; }

std::string nummer_tekst(const Programma& programma) {
    switch (programma.instellingen.shownumber) {
    case 1:
        return programma.huidig_nr_tijd;
    case 2:
        return programma.huidig_hnr;
    default:
        return "";
    }
}

std::string afstamming_regel(const Deelnemer& deelnemer, const Instellingen& i) {
    std::string tekst;
    if (i.showhorsesire != 0) tekst = afstamming(deelnemer.vader, "vader onbekend");
    if (i.showhorsesiredamr != 0) tekst.append(" x ").append(afstamming(deelnemer.moeders_vader, "onbekend"));
    return tekst;
}

std::string omschrijving_regel(const Deelnemer& deelnemer, const Instellingen& i) {
    constexpr std::string_view tussen = " / ";
    std::string tekst;
    if (i.showhorsecolor != 0) tekst.append(tussen).append(of_leeg(deelnemer.kleur, lang_leeg));
    if (i.showhorsegender != 0) tekst.append(tussen).append(of_leeg(deelnemer.geslacht, middel_leeg));
    if (i.showhorseage != 0) tekst.append(tussen).append(of_leeg(deelnemer.leeftijd, kort_leeg));
    return tekst.substr(std::min(tussen.size(), tekst.size()));
}

// Which lines are drawn asks for exactly 1 where the height above counts any value but 0; it is meant so.
void druk_deelnemer(Tekenvlak& vlak, const Deelnemer& deelnemer, const Programma& programma, int punten,
                    const TextMeasure& meter) {
    const Instellingen& i = programma.instellingen;
    const auto druk = [&](std::string_view tekst) { druk_regel(vlak, tekst, punten, i.alignment, meter); };
    if (i.shownumber > 0) druk(nummer_tekst(programma));
    if (i.showridername == 1) druk(deelnemer.ruiter);
    if (i.showhorsename == 1) druk(deelnemer.paard);
    if (samen_minstens_een(i.showhorsesire, i.showhorsesiredamr)) druk(afstamming_regel(deelnemer, i));
    // The age alone draws no line; it is meant so.
    if (samen_minstens_een(i.showhorsecolor, i.showhorsegender)) druk(omschrijving_regel(deelnemer, i));
    if (i.showhorsebreed == 1) druk(deelnemer.stamboek);
    if (i.showhorsebreeder == 1) druk(deelnemer.fokker);
    if (i.showunionname == 1) druk(deelnemer.vereniging);
}

} // namespace

void druk_regel(Tekenvlak& vlak, std::string_view tekst, double punten, int uitlijning, const TextMeasure& meter) {
    const std::string_view regel = trimmed(tekst);
    const double grens = round_half_even(vulling * heel(vlak.breedte));
    vlak.zet_punten(punten);
    double breedte = round_half_even(vlak.tekstbreedte(meter, regel));
    if (breedte > grens) {
        if (const auto product = to_int32(punten * grens)) vlak.zet_punten(*product / breedte);
        breedte = round_half_even(vlak.tekstbreedte(meter, regel));
    }
    vlak.druk(meter, begin_van_regel(vlak, breedte, uitlijning, meter), regel);
}

void druk_rubriek(Tekenvlak& vlak, std::string_view tekst, int punten, int uitlijning, const TextMeasure& meter) {
    const std::vector<std::string_view> regels = split(trimmed(tekst), "\r\n");
    const double grens = round_half_even(vulling * heel(vlak.breedte));
    const auto breedte_van = [&](std::string_view regel) { return round_half_even(vlak.tekstbreedte(meter, regel)); };
    vlak.zet_punten(punten);
    // A later wide line sets the size by its width at the size already reduced, but counted from the size asked for:
    // the widest line does not decide. It is meant so.
    for (const std::string_view regel : regels)
        if (const double breedte = breedte_van(regel); breedte > grens)
            vlak.zet_punten(std::floor(grens / breedte * punten));
    vlak.huidige_y = 0;
    for (const std::string_view regel : regels)
        vlak.druk(meter, begin_van_regel(vlak, breedte_van(regel), uitlijning, meter), regel);
}

std::string rubriek_kop(const Schedule& schedule) {
    const RubriekRecord& rubriek = schedule.huidige_rubriek;
    std::string onder;
    for (const std::string& deel : {klasse_kop(rubriek, schedule), categorie_kop(rubriek, schedule)})
        if (!deel.empty()) onder.append(", ").append(deel);
    // Without class and category there is no heading at all, not even the ring type: it is meant so.
    return onder.empty() ? std::string() : std::string(ringtype_naam(rubriek)) + "\r\n" + onder.substr(2);
}

void toon_combinatie(Vertoning& venster, std::int16_t nummer, std::int32_t regel, std::string_view naam,
                     const Programma& programma, const TextMeasure& meter, const Clock& klok) {
    const Instellingen& i = programma.instellingen;
    Tekenvlak& deelnemervlak = venster.picDeelnemer;
    Tekenvlak& band = venster.picRubriek;

    deelnemervlak.wis();
    deelnemervlak.achtergrond = i.backcolor;
    deelnemervlak.voorgrond = i.forecolor;
    deelnemervlak.lettertype = i.fontname;
    const int breedte = heel(deelnemervlak.breedte);
    const int ruimte = heel(heel(deelnemervlak.hoogte) * vulling);
    int punten = puntgrootte(deelnemervlak.breedte, i.textsize);
    deelnemervlak.zet_punten(punten);

    band.wis();
    band.achtergrond = i.rubricbackcolor;
    band.voorgrond = i.rubricforecolor;
    band.lettertype = i.fontname;
    band.links = 0;
    band.boven = 0;
    band.breedte = breedte;
    const int rubriek_punten = puntgrootte(band.breedte, i.rubrictextsize);
    band.zet_punten(rubriek_punten);
    const int rubriek_hoogte = regelhoogte(band, meter);
    band.hoogte = bandhoogte * rubriek_hoogte;
    band.zichtbaar = i.showrubric >= 1;

    const int nodig = benodigde_hoogte(i, rubriek_hoogte, regelhoogte(deelnemervlak, meter));
    if (nodig > ruimte) {
        if (const auto product = to_int32(static_cast<double>(punten) * ruimte))
            punten =
                to_int16(std::floor(static_cast<double>(*product) / nodig)).value_or(static_cast<std::int16_t>(punten));
        deelnemervlak.zet_punten(punten);
    }

    std::string kop;
    std::optional<Deelnemer> deelnemer = Deelnemer{};
    if (programma.rooster_extensie == "rst") {
        kop = rubriek_kop(programma.schedule);
        if (programma.schedule.deelnemer(nummer).empty())
            deelnemer.reset();
        else
            deelnemer = uit_rooster(nummer, programma.schedule, klok);
    } else if (programma.rooster_extensie == "xls") {
        kop = bestand_titel(programma.rooster_bestand);
        deelnemer = uit_werkblad(regel - 1, programma);
    }

    const auto druk_kop = [&] {
        if (i.showrubric <= 0) return;
        druk_rubriek(band, kop, rubriek_punten, i.rubricalignment, meter);
        band.hoogte = bandhoogte * band.teksthoogte(meter);
        deelnemervlak.huidige_y = band.hoogte;
    };
    druk_kop();
    if (deelnemer) druk_deelnemer(deelnemervlak, *deelnemer, programma, punten, meter);
    // With an empty number box the band stays, but nothing stands in it.
    if (i.showrubric > 0 && programma.txtINR.empty()) band.wis();
    if (!naam.empty()) druk_regel(deelnemervlak, naam, punten, i.alignment, meter);
}

} // namespace tavelo
