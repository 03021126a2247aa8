#include "ui/settings/instellingen_dialoog.h"

#include "basis/scoped.h"
#include "basis/text.h"
#include "excel/codeExcel.h"
#include "ui/main/huidige_combinatie.h"

#include <algorithm>
#include <cassert>
#include <optional>
#include <utility>

namespace tavelo {

namespace {

using I = Instellingen;
using enum BesturingSoort;

constexpr std::array<InstellingBesturing, aantal_besturingen> tabel = {{
    {"CmbFontName", lettertype, &I::fontname},
    {"btnKleur_0", kleur, &I::backcolor},
    {"btnKleur_1", kleur, &I::forecolor},
    {"btnKleur_2", kleur, &I::rubricbackcolor},
    {"btnKleur_3", kleur, &I::rubricforecolor},
    {"HScrollRubriekTekstGrootte", grootte, &I::rubrictextsize},
    {"HScrollDeelnemerTekstGrootte", grootte, &I::textsize},
    {"optRubriekUitlijning", keuze, &I::rubricalignment},
    {"optDeelnemerUitlijning", keuze, &I::alignment},
    {"chkRubriek", vinkje, &I::showrubric},
    {"optNummer", keuze, &I::shownumber},
    {"chkRuiterNaam", vinkje, &I::showridername},
    {"chkDierNaam", vinkje, &I::showhorsename},
    {"chkDierVader", vinkje, &I::showhorsesire},
    {"chkDierVaderMoeder", vinkje, &I::showhorsesiredamr},
    {"chkDierKleur", vinkje, &I::showhorsecolor},
    {"chkDierGeslacht", vinkje, &I::showhorsegender},
    {"chkDierLeeftijd", vinkje, &I::showhorseage},
    {"chkDierStamboek", vinkje, &I::showhorsebreed},
    {"chkDierFokker", vinkje, &I::showhorsebreeder},
    {"chkVerenigingNaam", vinkje, &I::showunionname},
    {"chkVeldnamen", vinkje, &I::fieldnames},
    {"cmbExcel_0", kolom, &I::col_startnumber},
    {"cmbExcel_1", kolom, &I::col_hnr},
    {"cmbExcel_2", kolom, &I::col_rider_name},
    {"cmbExcel_3", kolom, &I::col_horse_name},
    {"cmbExcel_4", kolom, &I::col_horse_sire},
    {"cmbExcel_5", kolom, &I::col_horse_siredam},
    {"cmbExcel_6", kolom, &I::col_horse_color},
    {"cmbExcel_7", kolom, &I::col_horse_sex},
    {"cmbExcel_8", kolom, &I::col_horse_age},
    {"cmbExcel_9", kolom, &I::col_horse_book},
    {"cmbExcel_10", kolom, &I::col_horse_breeder},
    {"cmbExcel_11", kolom, &I::col_union_name},
}};

[[nodiscard]] Getoond getal_binnen(std::int32_t waarde, std::int32_t laatste) {
    if (waarde < 0 || waarde > laatste) return {};
    return waarde;
}

[[nodiscard]] Getoond getoond_getal(BesturingSoort soort, std::int32_t waarde) {
    switch (soort) {
    case kleur:
        return getal_binnen(waarde, 0xFFFFFF);
    case keuze:
        return getal_binnen(waarde, 2);
    case vinkje:
        return getal_binnen(waarde, 1);
    case grootte:
        return waarde >= kleinste_tekstgrootte && waarde <= grootste_tekstgrootte ? waarde : begin_tekstgrootte;
    case lettertype:
    case kolom:
        break;
    }
    return {};
}

[[nodiscard]] Getoond getoonde_tekst(BesturingSoort soort, const std::string& waarde,
                                     std::span<const std::string> lettertypen) {
    const bool toonbaar =
        soort == lettertype ? std::ranges::find(lettertypen, waarde) != lettertypen.end() : is_kolomkeuze(waarde);
    return toonbaar ? Getoond(waarde) : Getoond();
}

// Copies every setting that a control edits.
void neem_over(const Instellingen& van, Instellingen& naar) {
    for (const InstellingBesturing& besturing : tabel)
        std::visit([&](auto veld) { naar.*veld = van.*veld; }, besturing.veld);
}

// Fills the start list from the worksheet again, without losing the operator's place.
void toon_kolommen(Bediening& bediening) {
    Programma& programma = bediening.programma;
    Grid& rooster = programma.grdRooster;
    const int rij = rooster.row();
    const int bovenste_rij = rooster.top_row();
    const int einde_selectie = rooster.selection_column();
    const WithoutRedraw ongezien(rooster); // the view sees the new list, not the empty one before it
    vul_xls_rooster(rooster, programma.grdExcel, Meldingen::zwijgen, programma, bediening.omgeving.berichten,
                    bediening.omgeving.muisaanwijzer);
    rooster.set_row(rij);
    rooster.set_selection_column(einde_selectie);
    rooster.set_top_row(bovenste_rij);
}

} // namespace

std::span<const InstellingBesturing, aantal_besturingen> instelling_besturingen() { return tabel; }

std::size_t besturing_index(std::string_view naam) {
    const auto gevonden = std::ranges::find(tabel, naam, &InstellingBesturing::naam);
    assert(gevonden != tabel.end());
    return static_cast<std::size_t>(gevonden - tabel.begin());
}

std::vector<std::string> kolomletters() {
    std::vector<std::string> letters;
    for (const std::string_view begin : {"", "A"})
        for (char letter = 'A'; letter <= 'Z'; ++letter)
            letters.push_back(std::string(begin) + letter);
    return letters;
}

bool is_kolomkeuze(std::string_view tekst) {
    if (tekst.size() == 2 && tekst.front() == 'A') tekst.remove_prefix(1);
    return tekst.empty() || (tekst.size() == 1 && tekst.front() >= 'A' && tekst.front() <= 'Z');
}

DialoogInhoud inhoud_van(const Instellingen& instellingen, std::span<const std::string> lettertypen) {
    DialoogInhoud inhoud;
    std::ranges::transform(tabel, inhoud.begin(), [&](const InstellingBesturing& besturing) -> Getoond {
        if (const auto* tekst = std::get_if<std::string I::*>(&besturing.veld))
            return getoonde_tekst(besturing.soort, instellingen.*(*tekst), lettertypen);
        if (const auto* getal = std::get_if<std::int32_t I::*>(&besturing.veld))
            return getoond_getal(besturing.soort, instellingen.*(*getal));
        return getoond_getal(besturing.soort, instellingen.*std::get<std::int16_t I::*>(besturing.veld));
    });
    return inhoud;
}

void lees_besturingen(const DialoogInhoud& inhoud, Instellingen& instellingen) {
    for (std::size_t i = 0; i < tabel.size(); ++i) {
        const InstellingVeld& veld = tabel[i].veld;
        if (const auto* tekst = std::get_if<std::string>(&inhoud[i])) {
            if (const auto* doel = std::get_if<std::string I::*>(&veld)) instellingen.*(*doel) = *tekst;
        } else if (const auto* getal = std::get_if<std::int32_t>(&inhoud[i])) {
            if (const auto* doel = std::get_if<std::int32_t I::*>(&veld)) instellingen.*(*doel) = *getal;
            if (const auto* doel = std::get_if<std::int16_t I::*>(&veld))
                instellingen.*(*doel) = static_cast<std::int16_t>(*getal);
        }
    }
}

InstellingenDialoog::InstellingenDialoog(Bediening& bediening) : bediening_(bediening) {
    bediening.programma.instellingen_bij_annuleren = bediening.programma.instellingen;
}

void InstellingenDialoog::ververs_voorbeeld(const DialoogInhoud& inhoud) {
    Programma& programma = bediening_.programma;
    lees_besturingen(inhoud, programma.instellingen);
    if (!programma.rooster_bestand.empty() && programma.rooster_extensie == "xls") toon_kolommen(bediening_);
    toon_overal(bediening_);
}

void InstellingenDialoog::sluit() {
    Programma& programma = bediening_.programma;
    if (!programma.instellingen_bij_annuleren) return;
    neem_over(*programma.instellingen_bij_annuleren, programma.instellingen);
    programma.instellingen_bij_annuleren.reset();
    toon_overal(bediening_);
}

std::string eerste_gevulde_cel(const Grid& werkblad, std::string_view kolom_letter) {
    for (int rij = 0; rij < werkblad.rows(); ++rij) {
        const std::string tekst = excel_kolom(werkblad, rij, kolom_letter);
        if (const std::string_view gevuld = trimmed(tekst); !gevuld.empty()) return std::string(gevuld);
    }
    return "";
}

} // namespace tavelo
