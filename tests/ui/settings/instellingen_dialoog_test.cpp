#include "ui/settings/instellingen_dialoog.h"

#include "fakes/grid_events.h"
#include "ui/settings/instellingen_opstelling.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

namespace tavelo {
namespace {

const std::vector<std::string> lettertypen = {"Proefletter", "Andere letter"};

Getoond& besturing(DialoogInhoud& inhoud, std::string_view naam) { return inhoud[besturing_index(naam)]; }

DialoogInhoud geladen(const test::InstellingenOpstelling& proef) {
    return inhoud_van(proef.programma.instellingen, lettertypen);
}

// One change of one control, as the window does it.
void wijzig(InstellingenDialoog& dialoog, DialoogInhoud& inhoud, std::string_view naam, const Getoond& waarde) {
    besturing(inhoud, naam) = waarde;
    dialoog.ververs_voorbeeld(inhoud);
}

// Values that no control can show.
Instellingen vreemde_instellingen() {
    Instellingen i;
    i.fontname = "Niet aanwezig";
    i.backcolor = -1;
    i.forecolor = 0x1000000;
    i.alignment = 3;
    i.rubricalignment = -1;
    i.textsize = 30;
    i.rubrictextsize = 401;
    i.showridername = 2;
    i.showrubric = -1;
    i.shownumber = 3;
    i.fieldnames = 2;
    i.col_startnumber = "BA";
    i.col_rider_name = "c";
    i.col_union_name = " A";
    return i;
}

std::vector<GeplaatsteTekst> teksten(const Vertoning& vertoning) {
    std::vector<GeplaatsteTekst> alle = vertoning.picRubriek.regels();
    alle.insert(alle.end(), vertoning.picDeelnemer.regels().begin(), vertoning.picDeelnemer.regels().end());
    return alle;
}

TEST(InstellingenDialoog, elke_instelling_behalve_de_laatste_map_heeft_precies_een_besturing) {
    std::vector<InstellingVeld> bewerkt;
    std::set<std::string_view> namen;
    for (const InstellingBesturing& besturing : instelling_besturingen()) {
        bewerkt.push_back(besturing.veld);
        namen.insert(besturing.naam);
    }
    EXPECT_EQ(namen.size(), aantal_besturingen);
    for (const Instelling& instelling : instellingen_tabel())
        EXPECT_EQ(std::ranges::count(bewerkt, instelling.veld), instelling.sleutel == "lastfolder" ? 0 : 1)
            << instelling.sleutel;
}

TEST(InstellingenDialoog, elke_besturing_heeft_haar_naam_en_bewerkt_haar_instelling) {
    const std::vector<std::pair<std::string_view, std::string_view>> verwacht = {
        {"CmbFontName", "fontname"},
        {"btnKleur_0", "backcolor"},
        {"btnKleur_1", "forecolor"},
        {"btnKleur_2", "rubricbackcolor"},
        {"btnKleur_3", "rubricforecolor"},
        {"HScrollRubriekTekstGrootte", "rubrictextsize"},
        {"HScrollDeelnemerTekstGrootte", "textsize"},
        {"optRubriekUitlijning", "rubricalignment"},
        {"optDeelnemerUitlijning", "alignment"},
        {"chkRubriek", "showrubric"},
        {"optNummer", "shownumber"},
        {"chkRuiterNaam", "showridername"},
        {"chkDierNaam", "showhorsename"},
        {"chkDierVader", "showhorsesire"},
        {"chkDierVaderMoeder", "showhorsesiredamr"},
        {"chkDierKleur", "showhorsecolor"},
        {"chkDierGeslacht", "showhorsegender"},
        {"chkDierLeeftijd", "showhorseage"},
        {"chkDierStamboek", "showhorsebreed"},
        {"chkDierFokker", "showhorsebreeder"},
        {"chkVerenigingNaam", "showunionname"},
        {"chkVeldnamen", "fieldnames"},
    };
    for (const auto& [naam, sleutel] : verwacht) {
        const auto instelling = std::ranges::find(instellingen_tabel(), sleutel, &Instelling::sleutel);
        ASSERT_NE(instelling, instellingen_tabel().end()) << sleutel;
        const auto besturing = std::ranges::find(instelling_besturingen(), naam, &InstellingBesturing::naam);
        ASSERT_NE(besturing, instelling_besturingen().end()) << naam;
        EXPECT_EQ(besturing->veld, instelling->veld) << naam;
    }
    EXPECT_EQ(verwacht.size() + 12, aantal_besturingen); // and the twelve lists of columns
}

TEST(InstellingenDialoog, de_excel_lijsten_staan_in_de_volgorde_van_hun_sleutels) {
    const std::vector<std::string_view> sleutels = {"col_startnumber", "col_hnr",           "col_rider_name",
                                                    "col_horse_name",  "col_horse_sire",    "col_horse_siredam",
                                                    "col_horse_color", "col_horse_sex",     "col_horse_age",
                                                    "col_horse_book",  "col_horse_breeder", "col_union_name"};
    for (std::size_t i = 0; i < sleutels.size(); ++i) {
        const auto instelling = std::ranges::find(instellingen_tabel(), sleutels[i], &Instelling::sleutel);
        const std::size_t index = besturing_index("cmbExcel_" + std::to_string(i));
        EXPECT_EQ(instelling_besturingen()[index].veld, instelling->veld) << sleutels[i];
    }
}

TEST(InstellingenDialoog, de_kleurknoppen_bewerken_deelnemer_en_rubriek_in_die_volgorde) {
    Instellingen i;
    DialoogInhoud inhoud;
    for (std::int32_t index = 0; index < 4; ++index)
        besturing(inhoud, "btnKleur_" + std::to_string(index)) = 0x10 + index;
    lees_besturingen(inhoud, i);
    EXPECT_EQ(i.backcolor, 0x10);
    EXPECT_EQ(i.forecolor, 0x11);
    EXPECT_EQ(i.rubricbackcolor, 0x12);
    EXPECT_EQ(i.rubricforecolor, 0x13);
}

TEST(InstellingenDialoog, de_lijst_heeft_tweeenvijftig_letters) {
    const std::vector<std::string> letters = kolomletters();
    ASSERT_EQ(letters.size(), 52U);
    EXPECT_EQ(letters.front(), "A");
    EXPECT_EQ(letters[25], "Z");
    EXPECT_EQ(letters[26], "AA");
    EXPECT_EQ(letters.back(), "AZ");
    EXPECT_TRUE(std::ranges::all_of(letters, is_kolomkeuze));
    for (const char* geen : {"a", "BA", "AAA", "1", "A ", " ", "É", "@", "[", "A@", "A["})
        EXPECT_FALSE(is_kolomkeuze(geen)) << geen;
    EXPECT_TRUE(is_kolomkeuze(""));
}

TEST(InstellingenDialoog, laden_toont_wat_er_ingesteld_is) {
    test::InstellingenOpstelling proef;
    proef.programma.instellingen.backcolor = 0x123456;
    proef.programma.instellingen.textsize = 250;
    proef.programma.instellingen.alignment = 2;
    proef.programma.instellingen.col_hnr = "AZ";
    DialoogInhoud inhoud = geladen(proef);
    EXPECT_EQ(besturing(inhoud, "CmbFontName"), Getoond("Proefletter"));
    EXPECT_EQ(besturing(inhoud, "btnKleur_0"), Getoond(0x123456));
    EXPECT_EQ(besturing(inhoud, "HScrollDeelnemerTekstGrootte"), Getoond(250));
    EXPECT_EQ(besturing(inhoud, "optDeelnemerUitlijning"), Getoond(2));
    EXPECT_EQ(besturing(inhoud, "chkRuiterNaam"), Getoond(1));
    EXPECT_EQ(besturing(inhoud, "chkDierKleur"), Getoond(0));
    EXPECT_EQ(besturing(inhoud, "cmbExcel_1"), Getoond("AZ"));
    EXPECT_EQ(besturing(inhoud, "cmbExcel_2"), Getoond(""));
}

TEST(InstellingenDialoog, wat_een_besturing_niet_kan_tonen_toont_niets) {
    test::InstellingenOpstelling proef;
    proef.programma.instellingen = vreemde_instellingen();
    DialoogInhoud inhoud = geladen(proef);
    for (const char* naam :
         {"CmbFontName", "btnKleur_0", "btnKleur_1", "optDeelnemerUitlijning", "optRubriekUitlijning", "chkRuiterNaam",
          "chkRubriek", "optNummer", "chkVeldnamen", "cmbExcel_0", "cmbExcel_2", "cmbExcel_11"})
        EXPECT_EQ(besturing(inhoud, naam), Getoond()) << naam;
    EXPECT_EQ(besturing(inhoud, "HScrollDeelnemerTekstGrootte"), Getoond(100));
    EXPECT_EQ(besturing(inhoud, "HScrollRubriekTekstGrootte"), Getoond(100));
}

TEST(InstellingenDialoog, de_grenzen_van_de_schuifbalk_horen_erbij) {
    test::InstellingenOpstelling proef;
    const auto balk_bij = [&](std::int16_t grootte) {
        proef.programma.instellingen.textsize = grootte;
        DialoogInhoud inhoud = geladen(proef);
        return besturing(inhoud, "HScrollDeelnemerTekstGrootte");
    };
    EXPECT_EQ(balk_bij(49), Getoond(100));
    EXPECT_EQ(balk_bij(50), Getoond(50));
    EXPECT_EQ(balk_bij(400), Getoond(400));
    EXPECT_EQ(balk_bij(401), Getoond(100));
}

TEST(InstellingenDialoog, ok_zonder_wijziging_laat_elke_instelling_zoals_zij_was) {
    for (const Instellingen& begin :
         {Instellingen(), test::InstellingenOpstelling().programma.instellingen, vreemde_instellingen()}) {
        test::InstellingenOpstelling proef;
        proef.programma.instellingen = begin;
        InstellingenDialoog dialoog(proef.bediening);
        (void)geladen(proef);
        dialoog.ok();
        dialoog.sluit();
        EXPECT_EQ(proef.programma.instellingen, begin);
    }
}

TEST(InstellingenDialoog, een_wijziging_elders_laat_staan_wat_niet_getoond_wordt_en_zet_een_vreemde_grootte_op_100) {
    test::InstellingenOpstelling proef;
    proef.programma.instellingen = vreemde_instellingen();
    InstellingenDialoog dialoog(proef.bediening);
    DialoogInhoud inhoud = geladen(proef);
    wijzig(dialoog, inhoud, "chkDierFokker", 1);
    dialoog.ok();
    dialoog.sluit();

    Instellingen verwacht = vreemde_instellingen();
    verwacht.showhorsebreeder = 1;
    verwacht.textsize = 100;
    verwacht.rubrictextsize = 100;
    EXPECT_EQ(proef.programma.instellingen, verwacht);
}

TEST(InstellingenDialoog, wat_getoond_kan_worden_komt_onveranderd_terug) {
    std::mt19937 toeval(20261121);
    const auto getal = [&](int laagste, int hoogste) {
        return std::uniform_int_distribution<int>(laagste, hoogste)(toeval);
    };
    const std::vector<std::string> letters = kolomletters();
    for (int keer = 0; keer < 500; ++keer) {
        Instellingen begin;
        begin.lastfolder = "D:\\";
        for (const InstellingBesturing& b : instelling_besturingen()) {
            const auto zet = [&](const std::string& tekst) {
                const auto instelling = std::ranges::find(instellingen_tabel(), b.veld, &Instelling::veld);
                ASSERT_TRUE(zet_instelling(begin, *instelling, tekst));
            };
            switch (b.soort) {
            case BesturingSoort::lettertype:
                zet(lettertypen[static_cast<std::size_t>(getal(0, 1))]);
                break;
            case BesturingSoort::kleur:
                zet(std::to_string(getal(0, 0xFFFFFF)));
                break;
            case BesturingSoort::grootte:
                zet(std::to_string(getal(50, 400)));
                break;
            case BesturingSoort::keuze:
                zet(std::to_string(getal(0, 2)));
                break;
            case BesturingSoort::vinkje:
                zet(std::to_string(getal(0, 1)));
                break;
            case BesturingSoort::kolom:
                zet(getal(0, 5) == 0 ? "" : letters[static_cast<std::size_t>(getal(0, 51))]);
                break;
            }
        }
        Instellingen gelezen;
        gelezen.lastfolder = "D:\\";
        lees_besturingen(inhoud_van(begin, lettertypen), gelezen);
        ASSERT_EQ(gelezen, begin) << "keer " << keer;
    }
}

TEST(InstellingenDialoog, schuifbalk_op_400_en_annuleren_laat_grootte_en_beeld_zoals_ze_waren) {
    test::InstellingenOpstelling proef;
    proef.programma.instellingen.textsize = 120;
    proef.programma.deelnemer_open = true;
    toon_overal(proef.bediening);
    const auto voorbeeld = teksten(proef.bediening.voorbeeld);
    const auto monitor = teksten(proef.bediening.deelnemer_venster);
    ASSERT_FALSE(monitor.empty());

    InstellingenDialoog dialoog(proef.bediening);
    DialoogInhoud inhoud = geladen(proef);
    wijzig(dialoog, inhoud, "HScrollDeelnemerTekstGrootte", 400);
    EXPECT_EQ(proef.programma.instellingen.textsize, 400);
    EXPECT_NE(teksten(proef.bediening.deelnemer_venster), monitor);

    dialoog.sluit();
    EXPECT_EQ(proef.programma.instellingen.textsize, 120);
    EXPECT_EQ(teksten(proef.bediening.voorbeeld), voorbeeld);
    EXPECT_EQ(teksten(proef.bediening.deelnemer_venster), monitor);
}

TEST(InstellingenDialoog, annuleren_zet_ook_waarden_terug_die_geen_besturing_toont) {
    test::InstellingenOpstelling proef;
    proef.programma.instellingen = vreemde_instellingen();
    InstellingenDialoog dialoog(proef.bediening);
    DialoogInhoud inhoud;
    for (const InstellingBesturing& b : instelling_besturingen())
        switch (b.soort) {
        case BesturingSoort::lettertype:
            besturing(inhoud, b.naam) = "Andere letter";
            break;
        case BesturingSoort::kolom:
            besturing(inhoud, b.naam) = "Q";
            break;
        default:
            besturing(inhoud, b.naam) = 77;
        }
    dialoog.ververs_voorbeeld(inhoud);
    for (const Instelling& instelling : instellingen_tabel())
        if (instelling.sleutel != "lastfolder") {
            ASSERT_NE(instelling_tekst(proef.programma.instellingen, instelling),
                      instelling_tekst(vreemde_instellingen(), instelling));
        }
    dialoog.sluit();
    EXPECT_EQ(proef.programma.instellingen, vreemde_instellingen());
}

TEST(InstellingenDialoog, de_laatste_map_hoort_niet_bij_de_kopie) {
    test::InstellingenOpstelling proef;
    InstellingenDialoog dialoog(proef.bediening);
    proef.programma.instellingen.lastfolder = "D:\\Elders\\";
    dialoog.sluit();
    EXPECT_EQ(proef.programma.instellingen.lastfolder, "D:\\Elders\\");
}

TEST(InstellingenDialoog, zolang_zij_open_is_weet_het_programma_waarop_annuleren_teruggaat) {
    for (const bool ok : {true, false}) {
        test::InstellingenOpstelling proef;
        const Instellingen eerst = proef.programma.instellingen;
        InstellingenDialoog dialoog(proef.bediening);
        DialoogInhoud inhoud = geladen(proef);
        wijzig(dialoog, inhoud, "HScrollDeelnemerTekstGrootte", 250);
        EXPECT_EQ(proef.programma.instellingen_bij_annuleren, eerst);
        if (ok) dialoog.ok();
        dialoog.sluit();
        EXPECT_EQ(proef.programma.instellingen_bij_annuleren, std::nullopt);
        EXPECT_EQ(proef.programma.instellingen.textsize, ok ? 250 : eerst.textsize);
    }
}

TEST(InstellingenDialoog, ok_houdt_de_wijzigingen) {
    test::InstellingenOpstelling proef;
    InstellingenDialoog dialoog(proef.bediening);
    DialoogInhoud inhoud = geladen(proef);
    wijzig(dialoog, inhoud, "CmbFontName", "Andere letter");
    wijzig(dialoog, inhoud, "optNummer", 2);
    dialoog.ok();
    dialoog.sluit();
    EXPECT_EQ(proef.programma.instellingen.fontname, "Andere letter");
    EXPECT_EQ(proef.programma.instellingen.shownumber, 2);
}

TEST(InstellingenDialoog, elke_wijziging_stelt_het_voorbeeld_opnieuw_samen_en_het_deelnemersvenster_als_het_open_is) {
    test::InstellingenOpstelling proef;
    InstellingenDialoog dialoog(proef.bediening);
    DialoogInhoud inhoud = geladen(proef);

    wijzig(dialoog, inhoud, "btnKleur_0", 0x112233);
    EXPECT_EQ(proef.bediening.voorbeeld.picDeelnemer.achtergrond, 0x112233);
    EXPECT_EQ(proef.bediening.deelnemer_venster.picDeelnemer.achtergrond, 0xFFFFFF);

    proef.programma.deelnemer_open = true;
    wijzig(dialoog, inhoud, "btnKleur_3", 0x445566);
    EXPECT_EQ(proef.bediening.voorbeeld.picRubriek.voorgrond, 0x445566);
    EXPECT_EQ(proef.bediening.deelnemer_venster.picRubriek.voorgrond, 0x445566);
    EXPECT_EQ(proef.bediening.deelnemer_venster.picDeelnemer.achtergrond, 0x112233);

    dialoog.sluit();
    EXPECT_EQ(proef.bediening.voorbeeld.picDeelnemer.achtergrond, 0xFFFFFF);
    EXPECT_EQ(proef.bediening.deelnemer_venster.picRubriek.voorgrond, 0);
}

TEST(InstellingenDialoog, een_andere_kolom_vult_het_rooster_en_laat_huidige_en_bovenste_rij_staan) {
    test::InstellingenOpstelling proef;
    proef.open_werkblad();
    Grid& rooster = proef.programma.grdRooster;
    rooster.highlight_row(5);
    rooster.set_top_row(3);
    InstellingenDialoog dialoog(proef.bediening);
    DialoogInhoud inhoud = geladen(proef);

    wijzig(dialoog, inhoud, "cmbExcel_2", "B");
    ASSERT_EQ(rooster.rows(), 7);
    EXPECT_EQ(rooster.text(1, kolom_naam), "B1");
    EXPECT_EQ(rooster.text(6, kolom_naam), "B6");
    EXPECT_EQ(rooster.row(), 5);
    EXPECT_EQ(rooster.top_row(), 3);
    EXPECT_EQ(rooster.column(), kolom_laatste);
    EXPECT_EQ(rooster.selection_column(), 1);
    EXPECT_TRUE(rooster.redraw());
}

TEST(InstellingenDialoog, een_gewiste_letter_maakt_de_kolom_leeg_zonder_bericht) {
    test::InstellingenOpstelling proef;
    proef.open_werkblad();
    proef.programma.instellingen.col_rider_name = "B";
    InstellingenDialoog dialoog(proef.bediening);
    DialoogInhoud inhoud = geladen(proef);
    wijzig(dialoog, inhoud, "cmbExcel_2", "");
    EXPECT_EQ(proef.programma.instellingen.col_rider_name, "");
    EXPECT_EQ(proef.programma.grdRooster.text(1, kolom_naam), "");
    EXPECT_EQ(proef.berichten.shown, std::vector<std::string>());
}

TEST(InstellingenDialoog, na_annuleren_houdt_het_rooster_de_kolommen_van_de_laatste_wijziging) {
    test::InstellingenOpstelling proef;
    proef.open_werkblad();
    proef.programma.instellingen.col_rider_name = "A";
    InstellingenDialoog dialoog(proef.bediening);
    DialoogInhoud inhoud = geladen(proef);
    wijzig(dialoog, inhoud, "cmbExcel_2", "C");
    dialoog.sluit();
    EXPECT_EQ(proef.programma.instellingen.col_rider_name, "A");
    EXPECT_EQ(proef.programma.grdRooster.text(1, kolom_naam), "C1");
}

TEST(InstellingenDialoog, de_letters_werken_ook_op_wat_de_monitor_van_een_werkblad_toont) {
    test::InstellingenOpstelling proef;
    proef.open_werkblad();
    proef.programma.huidige_regel = 2;
    InstellingenDialoog dialoog(proef.bediening);
    DialoogInhoud inhoud = geladen(proef);
    wijzig(dialoog, inhoud, "cmbExcel_2", "C");
    const auto& regels = proef.bediening.voorbeeld.picDeelnemer.regels();
    EXPECT_TRUE(std::ranges::any_of(regels, [](const GeplaatsteTekst& regel) { return regel.tekst == "C2"; }));
}

TEST(InstellingenDialoog, alleen_een_open_rooster_van_het_soort_xls_volgt_de_letters) {
    struct Geval {
        const char* bestand;
        const char* extensie;
    };
    for (const Geval& geval : {Geval{"plan.xlsx", "xlsx"}, Geval{"plan.rst", "rst"}, Geval{"plan.XLS", "XLS"},
                               Geval{"plan.txt", ""}, Geval{"", "xls"}}) {
        test::InstellingenOpstelling proef;
        proef.open_werkblad();
        proef.programma.rooster_bestand = geval.bestand;
        proef.programma.rooster_extensie = geval.extensie;
        proef.programma.grdRooster.set_text(1, kolom_naam, "Jansen");
        InstellingenDialoog dialoog(proef.bediening);
        DialoogInhoud inhoud = geladen(proef);
        wijzig(dialoog, inhoud, "cmbExcel_2", "B");
        EXPECT_EQ(proef.programma.grdRooster.text(1, kolom_naam), "Jansen") << geval.bestand;
    }
}

TEST(InstellingenDialoog, de_weergave_van_het_rooster_hoort_een_keer_van_een_nieuwe_vulling) {
    test::GridEvents luisteraar;
    test::InstellingenOpstelling proef;
    proef.open_werkblad();
    proef.programma.grdRooster.set_listener(&luisteraar);
    InstellingenDialoog dialoog(proef.bediening);
    DialoogInhoud inhoud = geladen(proef);
    wijzig(dialoog, inhoud, "cmbExcel_2", "B");
    EXPECT_EQ(luisteraar.resets, 1);
    EXPECT_TRUE(luisteraar.cells.empty() && luisteraar.inserted.empty() && luisteraar.removed.empty());
}

TEST(EersteGevuldeCel, slaat_lege_cellen_over_en_vraagt_om_een_kolom_die_er_is) {
    Grid werkblad;
    werkblad.set_columns(2);
    werkblad.set_rows(3);
    werkblad.set_text(1, 1, "  ");
    werkblad.set_text(2, 1, " Elise ");
    EXPECT_EQ(eerste_gevulde_cel(werkblad, "B"), "Elise");
    EXPECT_EQ(eerste_gevulde_cel(werkblad, "A"), "");
    EXPECT_EQ(eerste_gevulde_cel(werkblad, "C"), "");
    EXPECT_EQ(eerste_gevulde_cel(werkblad, ""), "");
    EXPECT_EQ(eerste_gevulde_cel(Grid(), "A"), "");
}

} // namespace
} // namespace tavelo
