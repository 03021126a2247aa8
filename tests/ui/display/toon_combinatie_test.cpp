#include "fakes/seams.h"
#include "ui/display/codeOpmaak.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tavelo {
namespace {

using Teksten = std::vector<std::string>;

Teksten teksten(const Tekenvlak& vlak) {
    Teksten gevonden;
    for (const GeplaatsteTekst& regel : vlak.regels())
        gevonden.push_back(regel.tekst);
    return gevonden;
}

// An area of 19200 by 10800 twips at 100 %: 32 points, lines of 736 twips and a heading band of 1619.2.
struct ToonCombinatie : testing::Test {
    Programma programma;
    Instellingen& instelling = programma.instellingen;
    Vertoning venster;
    Tekenvlak& vlak = venster.picDeelnemer;
    Tekenvlak& band = venster.picRubriek;
    test::FakeMeasure meter;
    test::FakeClock klok;

    ToonCombinatie() {
        vlak.breedte = 19200;
        vlak.hoogte = 10800;
        instelling.fontname = "Arial";
        instelling.textsize = 100;
        instelling.rubrictextsize = 100;
        programma.txtINR = "12";
        programma.huidig_nr_tijd = "3--09:24";
        programma.huidig_hnr = "112";
    }

    // A schedule file with one combination, number 12.
    void open_rooster() {
        programma.rooster_extensie = "rst";
        programma.schedule.huidige_rubriek.rkla = "*Z1*";
        programma.schedule.huidige_rubriek.rcat = "*C*";
        zet_deelnemer("na:Jan Jansen\tpa:Bles\tva:Ferro\tmo:Jazz\tdi_kl:bruin\tdi_gs:M\tdi_gb:1-1-2019\t"
                      "di_st:KWPN\tdi_fok:De Vries\tve:RV Zuid");
    }
    void zet_deelnemer(std::string record) { programma.schedule.zet_deelnemer(12, std::move(record)); }

    // A worksheet of three rows with the ten fields in columns A to J.
    void open_werkblad() {
        programma.rooster_extensie = "xls";
        programma.rooster_bestand = "/map/Start.lijst zondag.xlsx";
        Grid& blad = programma.grdExcel;
        blad.set_columns(10);
        blad.set_rows(3);
        for (int rij = 0; rij < 3; ++rij)
            for (int kolom = 0; kolom < 10; ++kolom)
                blad.set_text(rij, kolom, std::string(1, static_cast<char>('a' + kolom)) + std::to_string(rij));
        instelling.col_rider_name = "A";
        instelling.col_horse_name = "B";
        instelling.col_horse_sire = "C";
        instelling.col_horse_siredam = "D";
        instelling.col_horse_color = "E";
        instelling.col_horse_sex = "F";
        instelling.col_horse_age = "G";
        instelling.col_horse_book = "H";
        instelling.col_horse_breeder = "I";
        instelling.col_union_name = "J";
    }

    void alles_aan() {
        for (auto veld : {&Instellingen::showrubric, &Instellingen::shownumber, &Instellingen::showridername,
                          &Instellingen::showhorsename, &Instellingen::showhorsesire, &Instellingen::showhorsesiredamr,
                          &Instellingen::showhorsecolor, &Instellingen::showhorsegender, &Instellingen::showhorseage,
                          &Instellingen::showhorsebreed, &Instellingen::showhorsebreeder, &Instellingen::showunionname})
            instelling.*veld = 1;
    }

    void toon(std::int16_t nummer = 12, std::int32_t regel = 1, std::string_view naam = "") {
        toon_combinatie(venster, nummer, regel, naam, programma, meter, klok);
    }
};

// ---- colours, font, size

TEST_F(ToonCombinatie, de_vlakken_krijgen_hun_kleuren_en_lettertype) {
    instelling.backcolor = 0x112233;
    instelling.forecolor = 0x445566;
    instelling.rubricbackcolor = 0x778899;
    instelling.rubricforecolor = 0xAABBCC;
    instelling.fontname = "Verdana";
    toon();
    EXPECT_EQ(vlak.achtergrond, 0x112233);
    EXPECT_EQ(vlak.voorgrond, 0x445566);
    EXPECT_EQ(vlak.lettertype, "Verdana");
    EXPECT_EQ(band.achtergrond, 0x778899);
    EXPECT_EQ(band.voorgrond, 0xAABBCC);
    EXPECT_EQ(band.lettertype, "Verdana");
}

TEST_F(ToonCombinatie, zonder_gekozen_combinatie_worden_de_vlakken_gewist_en_gekleurd) {
    instelling.showridername = 1;
    instelling.showrubric = 1;
    open_rooster();
    toon(12, 1, "Jan Jansen");
    ASSERT_FALSE(vlak.regels().empty());
    ASSERT_FALSE(band.regels().empty());

    programma.txtINR = "";
    instelling.backcolor = 0x0000FF;
    instelling.rubricbackcolor = 0x00FF00;
    toon(0, 0);
    EXPECT_TRUE(vlak.regels().empty());
    EXPECT_TRUE(band.regels().empty());
    EXPECT_EQ(vlak.achtergrond, 0x0000FF);
    EXPECT_EQ(band.achtergrond, 0x00FF00);
}

TEST_F(ToonCombinatie, elke_600_twips_breedte_is_een_punt) {
    for (const auto& [breedte, punten] : {std::pair{19200, 32}, {19799, 32}, {19800, 33}, {600, 1}, {1200, 2}}) {
        vlak.breedte = breedte;
        toon();
        EXPECT_EQ(vlak.punten(), punten) << breedte;
        EXPECT_EQ(band.punten(), punten) << breedte;
    }
}

TEST_F(ToonCombinatie, de_breedte_telt_in_hele_twips) {
    vlak.breedte = 599.6; // a pixel's fraction
    instelling.textsize = 700;
    toon();
    EXPECT_EQ(vlak.punten(), 7);
    EXPECT_EQ(band.breedte, 600);
}

TEST_F(ToonCombinatie, een_heel_smal_vlak_krijgt_de_kleinste_letter) {
    open_rooster();
    instelling.showridername = 1;
    vlak.breedte = 599;
    toon();
    EXPECT_EQ(vlak.punten(), 1);
    EXPECT_EQ(band.punten(), 1);
    ASSERT_EQ(vlak.regels().size(), 1U);
    EXPECT_EQ(vlak.regels()[0].punten, 1);
}

TEST_F(ToonCombinatie, het_percentage_rondt_af_halven_naar_even) {
    vlak.breedte = 6000; // 10 points
    for (const auto& [percentage, punten] : {std::pair<std::int16_t, int>{25, 2}, {35, 4}, {34, 3}, {100, 10}}) {
        instelling.textsize = percentage;
        instelling.rubrictextsize = percentage;
        toon();
        EXPECT_EQ(vlak.punten(), punten) << percentage;
        EXPECT_EQ(band.punten(), punten) << percentage;
    }
}

TEST_F(ToonCombinatie, de_twee_percentages_gelden_elk_voor_hun_vlak) {
    instelling.textsize = 50;
    instelling.rubrictextsize = 200;
    toon();
    EXPECT_EQ(vlak.punten(), 16);
    EXPECT_EQ(band.punten(), 64);
}

TEST_F(ToonCombinatie, een_maat_boven_16_bits_wordt_de_kleinste) {
    vlak.breedte = 600 * 200;
    instelling.textsize = 32767; // 65534 points
    toon();
    EXPECT_EQ(vlak.punten(), 1);
}

// ---- the heading band

TEST_F(ToonCombinatie, de_band_ligt_bovenaan_over_de_volle_breedte_en_is_2_2_regels_hoog) {
    band.links = 300;
    band.boven = 400;
    instelling.rubrictextsize = 50; // lines of 368
    toon();
    EXPECT_EQ(band.links, 0);
    EXPECT_EQ(band.boven, 0);
    EXPECT_EQ(band.breedte, 19200);
    EXPECT_DOUBLE_EQ(band.hoogte, 2.2 * 368);
}

TEST_F(ToonCombinatie, de_band_is_zichtbaar_vanaf_1) {
    for (const auto& [waarde, zichtbaar] :
         {std::pair<std::int16_t, bool>{0, false}, {1, true}, {2, true}, {-1, false}}) {
        instelling.showrubric = waarde;
        toon();
        EXPECT_EQ(band.zichtbaar, zichtbaar) << waarde;
    }
}

TEST_F(ToonCombinatie, de_kop_staat_eenmaal_in_de_band_met_de_eigen_uitlijning) {
    open_rooster();
    instelling.showrubric = 1;
    instelling.showridername = 1;
    instelling.rubricalignment = 2;
    toon();
    const auto x_van = [&](std::string_view tekst) { return 19200 - 3 * 32 - meter.width("", 32, tekst); };
    EXPECT_EQ(band.regels(),
              (std::vector<GeplaatsteTekst>{{x_van("Dressuur"), 0, 32, "Dressuur"},
                                            {x_van("Klasse Z1, Categorie C"), 736, 32, "Klasse Z1, Categorie C"}}));
    EXPECT_EQ(vlak.regels().at(0).x, 3 * 32); // the lines of the participant have their own
}

TEST_F(ToonCombinatie, van_een_vorige_kop_staat_er_niets_meer) {
    open_rooster();
    instelling.showrubric = 1;
    toon();
    programma.schedule.huidige_rubriek.rcat.clear();
    toon();
    EXPECT_EQ(teksten(band), (Teksten{"Dressuur", "Klasse Z1"}));
}

TEST_F(ToonCombinatie, zonder_kop_blijft_de_band_staan) {
    open_rooster();
    programma.schedule.huidige_rubriek.rkla.clear();
    programma.schedule.huidige_rubriek.rcat.clear();
    instelling.showrubric = 1;
    instelling.showridername = 1;
    toon();
    EXPECT_EQ(teksten(band), Teksten{""});
    EXPECT_DOUBLE_EQ(band.hoogte, 1619.2);
    EXPECT_DOUBLE_EQ(vlak.regels().at(0).y, 1619.2);
}

TEST_F(ToonCombinatie, een_te_brede_kop_krimpt_en_de_band_met_de_regels_eronder_volgt) {
    open_rooster();
    instelling.showrubric = 1;
    instelling.showridername = 1;
    instelling.rubrictextsize = 400; // 128 points
    const double breedte = meter.width("", 128, "Klasse Z1, Categorie C");
    ASSERT_GT(breedte, 18240);
    const double punten = std::floor(18240 / breedte * 128);
    toon();
    EXPECT_EQ(band.regels().at(0).punten, punten);
    EXPECT_EQ(band.regels().at(1).punten, punten);
    EXPECT_EQ(band.regels().at(1).y, 23 * punten);
    EXPECT_DOUBLE_EQ(band.hoogte, 2.2 * 23 * punten);
    EXPECT_DOUBLE_EQ(vlak.regels().at(0).y, 2.2 * 23 * punten);
}

TEST_F(ToonCombinatie, een_leeg_nummervak_laat_de_band_leeg_maar_op_zijn_plaats) {
    open_rooster();
    instelling.showrubric = 1;
    instelling.showridername = 1;
    programma.txtINR = "";
    toon();
    EXPECT_TRUE(band.regels().empty());
    EXPECT_TRUE(band.zichtbaar);
    EXPECT_DOUBLE_EQ(band.hoogte, 1619.2);
    EXPECT_DOUBLE_EQ(vlak.regels().at(0).y, 1619.2);
    programma.txtINR = " ";
    toon();
    EXPECT_EQ(band.regels().size(), 2U);
}

TEST_F(ToonCombinatie, een_uitgezette_kop_wordt_niet_gedrukt_en_neemt_geen_plaats) {
    open_rooster();
    instelling.showridername = 1;
    for (const std::int16_t uit : {std::int16_t{0}, std::int16_t{-1}}) {
        instelling.showrubric = uit;
        toon();
        EXPECT_TRUE(band.regels().empty()) << uit;
        EXPECT_EQ(vlak.regels().at(0).y, 0) << uit;
    }
}

// ---- the height

// With 369 twips to fill, a line of 736 that is counted halves the size, and so on.
struct BenodigdeHoogte : ToonCombinatie {
    BenodigdeHoogte() {
        programma.rooster_extensie = "rst"; // without a combination: nothing is drawn, only sized
        vlak.hoogte = 388;
    }
    int regels() {
        toon();
        for (int aantal = 1; aantal <= 3; ++aantal)
            if (vlak.punten() == std::floor(32.0 * 369 / (736 * aantal))) return aantal;
        return vlak.punten() == 32 ? 0 : -1;
    }
};

TEST_F(BenodigdeHoogte, zonder_regels_krimpt_er_niets) { EXPECT_EQ(regels(), 0); }

TEST_F(BenodigdeHoogte, elke_regel_telt_bij_elke_waarde_behalve_0) {
    for (auto veld : {&Instellingen::shownumber, &Instellingen::showridername, &Instellingen::showhorsename,
                      &Instellingen::showhorsesire, &Instellingen::showhorsesiredamr, &Instellingen::showhorsecolor,
                      &Instellingen::showhorsegender, &Instellingen::showhorseage, &Instellingen::showhorsebreed,
                      &Instellingen::showhorsebreeder, &Instellingen::showunionname}) {
        for (const std::int16_t waarde : {std::int16_t{1}, std::int16_t{2}, std::int16_t{3}, std::int16_t{-1}}) {
            instelling.*veld = waarde;
            EXPECT_EQ(regels(), 1) << waarde;
        }
        instelling.*veld = 0;
    }
}

TEST_F(BenodigdeHoogte, afstamming_en_omschrijving_tellen_elk_eenmaal) {
    instelling.showhorsesire = 1;
    instelling.showhorsesiredamr = 1;
    EXPECT_EQ(regels(), 1);
    instelling.showhorsecolor = 1;
    instelling.showhorsegender = 1;
    instelling.showhorseage = 1;
    EXPECT_EQ(regels(), 2);
}

TEST_F(BenodigdeHoogte, alles_samen_is_acht_regels_en_de_band_twee) {
    vlak.hoogte = 4000; // 3800 to fill
    alles_aan();
    toon();
    EXPECT_EQ(vlak.punten(), 16); // floor(32 x 3800 / 7360)
    instelling.showrubric = 0;
    toon();
    EXPECT_EQ(vlak.punten(), 20); // floor(32 x 3800 / 5888)
}

TEST_F(BenodigdeHoogte, de_band_telt_voor_twee_van_zijn_eigen_regels_ook_als_hij_niet_te_zien_is) {
    instelling.rubrictextsize = 50; // lines of 368
    for (const std::int16_t waarde : {std::int16_t{1}, std::int16_t{2}, std::int16_t{-1}}) {
        instelling.showrubric = waarde;
        EXPECT_EQ(regels(), 1) << waarde;
    }
    instelling.rubrictextsize = 100;
    EXPECT_EQ(regels(), 2);
}

TEST_F(BenodigdeHoogte, de_band_telt_voor_precies_twee_regels_al_is_hij_hoger) {
    instelling.showrubric = 1;
    vlak.hoogte = 1550; // 1472 to fill
    toon();
    EXPECT_EQ(vlak.punten(), 32);
    EXPECT_DOUBLE_EQ(band.hoogte, 1619.2);
}

TEST_F(BenodigdeHoogte, wat_precies_past_krimpt_niet) {
    instelling.showridername = 1;
    vlak.hoogte = 774.5; // 774 whole twips, and 735 to fill
    toon();
    EXPECT_EQ(vlak.punten(), 31);
    vlak.hoogte = 775; // 736 to fill
    toon();
    EXPECT_EQ(vlak.punten(), 32);
}

TEST_F(BenodigdeHoogte, de_ruimte_rondt_af_halven_naar_even) {
    instelling.showridername = 1;
    vlak.hoogte = 750; // 712.5 is 712, which is just below 31 points
    toon();
    EXPECT_EQ(vlak.punten(), 30);
}

TEST_F(BenodigdeHoogte, de_kop_krimpt_niet_mee) {
    alles_aan();
    toon();
    EXPECT_EQ(vlak.punten(), 1);
    EXPECT_EQ(band.punten(), 32);
    EXPECT_DOUBLE_EQ(band.hoogte, 1619.2);
}

TEST_F(BenodigdeHoogte, een_product_boven_32_bits_laat_de_maat_staan) {
    vlak.breedte = 600 * 3000;
    vlak.hoogte = 1000000; // 3000 x 950000 does not fit
    instelling.rubrictextsize = 1000;
    instelling.showrubric = -1; // two lines of 690000
    toon();
    EXPECT_EQ(vlak.punten(), 3000);
}

TEST_F(ToonCombinatie, op_een_kort_vlak_krimpen_alle_regels_tot_ze_passen) {
    open_rooster();
    alles_aan();
    vlak.hoogte = 4000; // 3800 for 10 lines of 736: floor(32 x 3800 / 7360) = 16
    toon();
    ASSERT_EQ(vlak.regels().size(), 8U);
    for (const GeplaatsteTekst& regel : vlak.regels())
        EXPECT_EQ(regel.punten, 16) << regel.tekst;
}

// ---- the lines

TEST_F(ToonCombinatie, alle_regels_staan_in_vaste_volgorde_onder_de_band) {
    open_rooster();
    alles_aan();
    toon(12, 1, "Jan Jansen (HC)");
    EXPECT_EQ(teksten(vlak), (Teksten{"3--09:24", "Jan Jansen", "Bles", "Ferro x Jazz", "bruin / Merrie / 7", "KWPN",
                                      "De Vries", "RV Zuid", "Jan Jansen (HC)"}));
    for (std::size_t i = 0; i < vlak.regels().size(); ++i) {
        EXPECT_DOUBLE_EQ(vlak.regels()[i].y, 1619.2 + 736 * static_cast<double>(i));
        EXPECT_EQ(vlak.regels()[i].punten, 32);
        EXPECT_EQ(vlak.regels()[i].x, 96);
    }
}

TEST_F(ToonCombinatie, de_uitlijning_van_de_deelnemer_geldt_voor_al_zijn_regels) {
    open_rooster();
    alles_aan();
    instelling.alignment = 1;
    toon(12, 1, "Jan");
    for (const GeplaatsteTekst& regel : vlak.regels())
        EXPECT_EQ(regel.x, 0.5 * (19200 - meter.width("", 32, regel.tekst))) << regel.tekst;
    EXPECT_EQ(band.regels().at(0).x, 96);
}

TEST_F(ToonCombinatie, de_nummerregel_toont_nummer_en_tijd_of_het_hoofdstelnummer) {
    open_rooster();
    for (const auto& [waarde, verwacht] :
         std::vector<std::pair<std::int16_t, Teksten>>{{0, {}}, {1, {"3--09:24"}}, {2, {"112"}}, {3, {""}}, {-1, {}}}) {
        instelling.shownumber = waarde;
        toon();
        EXPECT_EQ(teksten(vlak), verwacht) << waarde;
    }
}

TEST_F(ToonCombinatie, een_onbekende_nummerregel_drukt_een_lege_regel) {
    open_rooster();
    instelling.shownumber = 3;
    instelling.showridername = 1;
    toon();
    EXPECT_EQ(teksten(vlak), (Teksten{"", "Jan Jansen"}));
    EXPECT_EQ(vlak.regels()[1].y, 736);
}

TEST_F(ToonCombinatie, de_losse_regels_worden_alleen_bij_precies_1_gedrukt) {
    open_rooster();
    const std::vector<std::pair<std::int16_t Instellingen::*, std::string>> regels = {
        {&Instellingen::showridername, "Jan Jansen"}, {&Instellingen::showhorsename, "Bles"},
        {&Instellingen::showhorsebreed, "KWPN"},      {&Instellingen::showhorsebreeder, "De Vries"},
        {&Instellingen::showunionname, "RV Zuid"},
    };
    for (const auto& [veld, tekst] : regels) {
        instelling.*veld = 1;
        toon();
        EXPECT_EQ(teksten(vlak), Teksten{tekst});
        for (const std::int16_t anders : {std::int16_t{0}, std::int16_t{2}, std::int16_t{-1}}) {
            instelling.*veld = anders;
            toon();
            EXPECT_TRUE(vlak.regels().empty()) << tekst << anders;
        }
        instelling.*veld = 0;
    }
}

TEST_F(ToonCombinatie, de_ruiter_staat_er_zonder_ster) {
    open_rooster();
    zet_deelnemer("na:*Jan* Jansen");
    instelling.showridername = 1;
    toon();
    EXPECT_EQ(teksten(vlak), Teksten{"Jan Jansen"});
}

TEST_F(ToonCombinatie, vader_en_moeders_vader_staan_er_als_ze_aan_staan) {
    open_rooster();
    const auto regel = [&](std::int16_t vader, std::int16_t moeders_vader) {
        instelling.showhorsesire = vader;
        instelling.showhorsesiredamr = moeders_vader;
        toon();
        return teksten(vlak);
    };
    EXPECT_EQ(regel(1, 0), Teksten{"Ferro"});
    EXPECT_EQ(regel(0, 1), Teksten{"x Jazz"});
    EXPECT_EQ(regel(1, 1), Teksten{"Ferro x Jazz"});
    EXPECT_EQ(regel(0, 0), Teksten{});
    // What counts for the line is the sum, for each part any value but 0.
    EXPECT_EQ(regel(-1, 2), Teksten{"Ferro x Jazz"});
    EXPECT_EQ(regel(-1, 1), Teksten{});
    EXPECT_EQ(regel(-1, 0), Teksten{});
    EXPECT_EQ(regel(32767, 1), Teksten{});
}

TEST_F(ToonCombinatie, een_onbekende_vader_of_moeders_vader_wordt_een_streep) {
    open_rooster();
    instelling.showhorsesire = 1;
    instelling.showhorsesiredamr = 1;
    const auto regel = [&](const std::string& vader, const std::string& moeders_vader) {
        zet_deelnemer("va:" + vader + "\tmo:" + moeders_vader);
        toon();
        return vlak.regels().at(0).tekst;
    };
    EXPECT_EQ(regel("Vader Onbekend", "ONBEKEND"), "________ x ________");
    EXPECT_EQ(regel("VADER ONBEKEND", "onbekend"), "________ x ________");
    EXPECT_EQ(regel("---", "-"), "________ x ________");
    EXPECT_EQ(regel("", ""), "________ x ________");
    EXPECT_EQ(regel("onbekend", "vader onbekend"), "onbekend x vader onbekend");
    EXPECT_EQ(regel("- -", "Jazz-B"), "- - x Jazz-B");
    EXPECT_EQ(regel("vader  onbekend", " onbekend"), "vader  onbekend x  onbekend");
}

TEST_F(ToonCombinatie, de_omschrijving_vult_wat_ontbreekt_met_strepen) {
    open_rooster();
    instelling.showhorsecolor = 1;
    instelling.showhorsegender = 1;
    instelling.showhorseage = 1;
    zet_deelnemer("na:Jan");
    toon();
    EXPECT_EQ(teksten(vlak), Teksten{"________ / _____ / __"});
}

TEST_F(ToonCombinatie, kleur_zonder_geslacht_met_leeftijd) {
    open_rooster();
    instelling.showhorsecolor = 1;
    instelling.showhorseage = 1;
    zet_deelnemer("na:Jan\tdi_gb:1-1-2019");
    toon();
    EXPECT_EQ(teksten(vlak), Teksten{"________ / 7"});
}

TEST_F(ToonCombinatie, geslacht_zonder_kleur_begint_de_regel) {
    open_rooster();
    instelling.showhorsegender = 1;
    toon();
    EXPECT_EQ(teksten(vlak), Teksten{"Merrie"});
}

TEST_F(ToonCombinatie, alleen_de_leeftijd_houdt_een_regel_vrij_maar_drukt_niets) {
    open_rooster();
    instelling.showhorseage = 1;
    instelling.showunionname = 1;
    toon();
    EXPECT_EQ(teksten(vlak), Teksten{"RV Zuid"});
    vlak.hoogte = 775; // one line of 32 points
    toon();
    EXPECT_EQ(vlak.regels().at(0).punten, 16);
}

TEST_F(ToonCombinatie, de_omschrijving_gaat_naar_de_som_van_kleur_en_geslacht) {
    open_rooster();
    instelling.showhorsecolor = 2;
    instelling.showhorsegender = -1;
    toon();
    EXPECT_EQ(teksten(vlak), Teksten{"bruin / Merrie"});
    instelling.showhorsecolor = 1;
    toon();
    EXPECT_TRUE(vlak.regels().empty());
}

TEST_F(ToonCombinatie, een_te_brede_regel_krimpt_alleen) {
    open_rooster();
    zet_deelnemer("na:" + std::string(100, 'I') + "\tpa:Bles");
    instelling.showridername = 1;
    instelling.showhorsename = 1;
    toon();
    EXPECT_EQ(vlak.regels().at(0).punten, 32.0 * 18240 / 32000);
    EXPECT_EQ(vlak.regels().at(1).punten, 32);
    EXPECT_DOUBLE_EQ(vlak.regels().at(1).y, 23 * 32.0 * 18240 / 32000);
}

// ---- what is shown of which schedule

TEST_F(ToonCombinatie, zonder_record_staan_er_alleen_kop_en_naam) {
    open_rooster();
    alles_aan();
    toon(13, 2, "pauze");
    EXPECT_EQ(teksten(band), (Teksten{"Dressuur", "Klasse Z1, Categorie C"}));
    EXPECT_EQ(teksten(vlak), Teksten{"pauze"});
    EXPECT_DOUBLE_EQ(vlak.regels()[0].y, 1619.2);
    instelling.showrubric = 0;
    toon(13, 2, "pauze");
    EXPECT_EQ(vlak.regels().at(0).y, 0);
}

TEST_F(ToonCombinatie, een_nummer_buiten_0_tot_4000_toont_geen_combinatie) {
    open_rooster();
    instelling.showridername = 1;
    programma.schedule.zet_deelnemer(0, "na:Nul");
    programma.schedule.zet_deelnemer(4000, "na:Laatste");
    const auto namen = [&](std::int16_t nummer) {
        toon(nummer);
        return teksten(vlak);
    };
    EXPECT_EQ(namen(0), Teksten{"Nul"});
    EXPECT_EQ(namen(4000), Teksten{"Laatste"});
    EXPECT_EQ(namen(4001), Teksten{});
    EXPECT_EQ(namen(32767), Teksten{});
    EXPECT_EQ(namen(-1), Teksten{});
}

TEST_F(ToonCombinatie, van_een_roosterbestand_telt_het_nummer_en_niet_de_rij) {
    open_rooster();
    instelling.showridername = 1;
    toon(12, 0);
    EXPECT_EQ(teksten(vlak), Teksten{"Jan Jansen"});
}

TEST_F(ToonCombinatie, de_tien_velden_van_een_werkblad_komen_uit_de_rij_boven_de_gridrij) {
    open_werkblad();
    alles_aan();
    toon(0, 2, "a1");
    EXPECT_EQ(teksten(vlak), (Teksten{"3--09:24", "a1", "b1", "c1 x d1", "e1 / f1 / g1", "h1", "i1", "j1", "a1"}));
    toon(0, 1);
    EXPECT_EQ(vlak.regels().at(1).tekst, "a0"); // the first row counts, whatever it holds
}

TEST_F(ToonCombinatie, boven_een_werkblad_staat_de_naam_van_het_bestand) {
    open_werkblad();
    instelling.showrubric = 1;
    toon(0, 2);
    EXPECT_EQ(teksten(band), Teksten{"Start.lijst zondag"});
}

TEST_F(ToonCombinatie, een_rij_buiten_het_werkblad_geeft_lege_velden) {
    open_werkblad();
    instelling.showridername = 1;
    instelling.showhorsesire = 1;
    for (const std::int32_t rij : {0, 4, -7}) {
        toon(0, rij);
        EXPECT_EQ(teksten(vlak), (Teksten{"", "________"})) << rij;
    }
}

TEST_F(ToonCombinatie, een_veld_zonder_kolom_is_leeg) {
    open_werkblad();
    instelling.col_horse_sire = "";
    instelling.col_rider_name = "Z";
    instelling.showridername = 1;
    instelling.showhorsesire = 1;
    toon(0, 2);
    EXPECT_EQ(teksten(vlak), (Teksten{"", "________"}));
}

TEST_F(ToonCombinatie, zonder_rooster_staan_er_lege_regels_en_strepen) {
    zet_deelnemer("na:van een vorig rooster");
    alles_aan();
    toon();
    EXPECT_EQ(teksten(band), Teksten{""});
    EXPECT_EQ(teksten(vlak), (Teksten{"3--09:24", "", "", "________ x ________", "________ / _____ / __", "", "", ""}));
}

TEST_F(ToonCombinatie, de_naam_staat_er_ook_zonder_andere_regels) {
    open_rooster();
    toon(12, 1, " Jan ");
    EXPECT_EQ(teksten(vlak), Teksten{"Jan"});
    toon(12, 1, "");
    EXPECT_TRUE(vlak.regels().empty());
}

TEST_F(ToonCombinatie, de_naam_staat_onder_de_laatste_regel_ook_met_een_leeg_nummervak) {
    open_werkblad(); // its rows have no number
    instelling.showridername = 1;
    programma.txtINR = "";
    toon(0, 1, "naam");
    EXPECT_EQ(vlak.regels().at(1).y, 736);
    instelling.showrubric = 1;
    toon(0, 1, "naam");
    EXPECT_DOUBLE_EQ(vlak.regels().at(1).y, 1619.2 + 736);
}

TEST_F(ToonCombinatie, de_naam_telt_niet_mee_voor_de_hoogte) {
    open_rooster();
    instelling.showridername = 1;
    vlak.hoogte = 775; // one line of 32 points
    toon(12, 1, "Jan Jansen");
    ASSERT_EQ(vlak.regels().size(), 2U);
    EXPECT_EQ(vlak.regels()[1].punten, 32);
    EXPECT_EQ(vlak.regels()[1].y, 736);
}

TEST_F(ToonCombinatie, elke_keer_wordt_alles_opnieuw_getekend) {
    open_rooster();
    alles_aan();
    toon(12, 1, "Jan");
    const auto eerst = vlak.regels();
    const auto kop = band.regels();
    toon(12, 1, "Jan");
    EXPECT_EQ(vlak.regels(), eerst);
    EXPECT_EQ(band.regels(), kop);
}

} // namespace
} // namespace tavelo
