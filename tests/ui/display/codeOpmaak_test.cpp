#include "fakes/seams.h"
#include "ui/display/codeOpmaak.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

// In the fixed metric "I" and "_" are 10 wide a point, "B" is 5 and a blank 6; a line is 23 high.
constexpr int links = 0;
constexpr int midden = 1;
constexpr int rechts = 2;

Tekenvlak vlak_van(double breedte) {
    Tekenvlak vlak;
    vlak.breedte = breedte;
    return vlak;
}

GeplaatsteTekst gedrukt(double breedte, std::string_view tekst, double punten, int uitlijning) {
    Tekenvlak vlak = vlak_van(breedte);
    druk_regel(vlak, tekst, punten, uitlijning, test::FakeMeasure());
    return vlak.regels().at(0);
}

TEST(DrukRegel, een_regel_die_past_houdt_zijn_maat) {
    EXPECT_EQ(gedrukt(1000, "IIIII", 10, links), (GeplaatsteTekst{30, 0, 10, "IIIII"}));
    EXPECT_EQ(gedrukt(1000, "IIIII", 10, midden), (GeplaatsteTekst{250, 0, 10, "IIIII"}));
    EXPECT_EQ(gedrukt(1000, "IIIII", 10, rechts), (GeplaatsteTekst{470, 0, 10, "IIIII"}));
}

TEST(DrukRegel, elke_andere_uitlijning_is_links) {
    for (const int uitlijning : {-1, 3, 100})
        EXPECT_EQ(gedrukt(1000, "IIIII", 10, uitlijning).x, 30) << uitlijning;
}

TEST(DrukRegel, blanco_rondom_de_tekst_telt_niet) {
    EXPECT_EQ(gedrukt(1000, "  II II  ", 10, rechts), (GeplaatsteTekst{1000 - 30 - 460, 0, 10, "II II"}));
    EXPECT_EQ(gedrukt(1000, "   ", 10, midden), (GeplaatsteTekst{500, 0, 10, ""}));
    EXPECT_EQ(gedrukt(1000, "\tII", 10, links).tekst, "\tII");
}

TEST(DrukRegel, een_te_brede_regel_krimpt_tot_95_procent_zonder_afronding_van_de_maat) {
    // 1200 wide: 40 x 950 / 1200 points
    const GeplaatsteTekst tekst = gedrukt(1000, "III", 40, links);
    EXPECT_DOUBLE_EQ(tekst.punten, 38000.0 / 1200);
    EXPECT_DOUBLE_EQ(tekst.x, 3 * 38000.0 / 1200); // half a blank of the smaller font
    EXPECT_DOUBLE_EQ(gedrukt(1000, "III", 40, midden).x, 25);
    EXPECT_DOUBLE_EQ(gedrukt(1000, "III", 40, rechts).x, 1000 - 3 * 38000.0 / 1200 - 950);
}

TEST(DrukRegel, precies_95_procent_past_nog) {
    EXPECT_EQ(gedrukt(1000, "IIIII", 19, links).punten, 19); // 950 wide
    EXPECT_EQ(gedrukt(1000, "IIIIIB", 19, links).punten, 19.0 * 950 / 1045);
}

TEST(DrukRegel, de_grens_wordt_afgerond_halven_naar_even) {
    EXPECT_DOUBLE_EQ(gedrukt(110, "IIIB", 3, links).punten, 3.0 * 104 / 105); // 104.5 is 104, and 105 does not fit
    EXPECT_EQ(gedrukt(130, "IIIIB", 2.75, links).punten, 2.75);               // 123.5 is 124, and 123.75 is 124
}

TEST(DrukRegel, de_breedte_van_de_tekst_wordt_afgerond_halven_naar_even) {
    EXPECT_EQ(gedrukt(1000, "I", 1.25, midden).x, 494); // 12.5 is 12
    EXPECT_EQ(gedrukt(1000, "I", 1.75, midden).x, 491); // 17.5 is 18
}

TEST(DrukRegel, de_breedte_van_het_vlak_telt_in_hele_eenheden) {
    EXPECT_EQ(gedrukt(1000.4, "IIIII", 10, midden).x, 250);
    EXPECT_EQ(gedrukt(1000.6, "IIIII", 10, midden).x, 250.5);
}

TEST(DrukRegel, een_product_boven_32_bits_laat_de_maat_staan) {
    // 30000 x 95000 does not fit
    EXPECT_EQ(gedrukt(100000, "I", 30000, links).punten, 30000);
    EXPECT_EQ(gedrukt(100000, "I", 20000, links).punten, 20000.0 * 95000 / 200000);
}

TEST(DrukRegel, regels_stapelen_met_de_hoogte_van_hun_eigen_maat) {
    const test::FakeMeasure meter;
    Tekenvlak vlak = vlak_van(1000);
    vlak.huidige_y = 100;
    druk_regel(vlak, "I", 20, links, meter);
    druk_regel(vlak, "IIIIIIIIII", 20, links, meter); // 2000 wide: 9.5 points
    druk_regel(vlak, "I", 20, links, meter);
    ASSERT_EQ(vlak.regels().size(), 3U);
    EXPECT_EQ(vlak.regels()[0].y, 100);
    EXPECT_EQ(vlak.regels()[1].y, 100 + 460);
    EXPECT_EQ(vlak.regels()[1].punten, 9.5);
    EXPECT_EQ(vlak.regels()[2].y, 100 + 460 + 218.5);
    EXPECT_EQ(vlak.regels()[2].punten, 20);
}

std::vector<GeplaatsteTekst> rubriek(double breedte, std::string_view tekst, int punten, int uitlijning) {
    Tekenvlak vlak = vlak_van(breedte);
    vlak.huidige_y = 777; // the heading begins at the top, wherever the position was
    druk_rubriek(vlak, tekst, punten, uitlijning, test::FakeMeasure());
    return vlak.regels();
}

TEST(DrukRubriek, een_regel_die_na_verkleinen_net_past_maakt_de_letter_niet_weer_groot) {
    // A "c" is 5 wide at 1 point; 950 is what the texts may take.
    const std::string breed(18, 'c');
    const std::string net(19, 'c');
    EXPECT_EQ(rubriek(1000, breed + "\r\n" + net, 20, links),
              (std::vector<GeplaatsteTekst>{{30, 0, 10, breed}, {30, 230, 10, net}}));
}

TEST(DrukRubriek, elke_regel_wordt_op_zichzelf_uitgelijnd) {
    const std::string_view tekst = " IIIII\r\nII ";
    EXPECT_EQ(rubriek(1000, tekst, 10, links),
              (std::vector<GeplaatsteTekst>{{30, 0, 10, "IIIII"}, {30, 230, 10, "II"}}));
    EXPECT_EQ(rubriek(1000, tekst, 10, midden),
              (std::vector<GeplaatsteTekst>{{250, 0, 10, "IIIII"}, {400, 230, 10, "II"}}));
    EXPECT_EQ(rubriek(1000, tekst, 10, rechts),
              (std::vector<GeplaatsteTekst>{{470, 0, 10, "IIIII"}, {770, 230, 10, "II"}}));
}

TEST(DrukRubriek, alleen_een_heel_regeleinde_scheidt_regels_en_een_lege_regel_telt) {
    const auto regels = rubriek(1000, "I\r\n\r\nI\nI", 10, links);
    ASSERT_EQ(regels.size(), 3U);
    EXPECT_EQ(regels[1].tekst, "");
    EXPECT_EQ(regels[2].tekst, "I\nI");
    EXPECT_EQ(regels[2].y, 460);
}

TEST(DrukRubriek, een_te_brede_regel_verkleint_alle_regels_naar_hele_punten) {
    // 1200 wide: floor(950 / 1200 x 40) = 31
    EXPECT_EQ(rubriek(1000, "I\r\nIII", 40, links),
              (std::vector<GeplaatsteTekst>{{93, 0, 31, "I"}, {93, 713, 31, "III"}}));
}

TEST(DrukRubriek, een_latere_brede_regel_rekent_vanaf_de_gevraagde_maat) {
    // The first line gives floor(950 / 1600 x 40) = 23; the second, 1380 wide at 23, floor(950 / 1380 x 40) = 27.
    const auto regels = rubriek(1000, "IIII\r\nIIIIII", 40, midden);
    ASSERT_EQ(regels.size(), 2U);
    EXPECT_EQ(regels[0], (GeplaatsteTekst{500 - 540, 0, 27, "IIII"}));
    EXPECT_EQ(regels[1], (GeplaatsteTekst{500 - 810, 621, 27, "IIIIII"}));
}

TEST(DrukRubriek, een_latere_smalle_regel_maakt_niets_groter) {
    const auto regels = rubriek(1000, "IIII\r\nI", 40, links);
    EXPECT_EQ(regels[0].punten, 23);
    EXPECT_EQ(regels[1].punten, 23);
}

TEST(DrukRubriek, de_maat_wordt_nooit_kleiner_dan_een_punt) {
    EXPECT_EQ(rubriek(10, "IIIIIIIIII", 5, links)[0].punten, 1);
}

struct RubriekKop : testing::Test {
    Schedule schedule;
    RubriekKop() {
        schedule.huidige_rubriek.rcom = 0;
        schedule.huidige_rubriek.rkla = "*Z1*Z2*";
        schedule.huidige_rubriek.rcat = "*C*D*";
    }
};

TEST_F(RubriekKop, onder_het_ringtype_staan_klasse_en_categorie) {
    EXPECT_EQ(rubriek_kop(schedule), "Dressuur\r\nKlasse Z1, Z2, Categorie CD");
}

TEST_F(RubriekKop, zonder_klasse_of_zonder_categorie_blijft_het_andere) {
    schedule.huidige_rubriek.rkla.clear();
    EXPECT_EQ(rubriek_kop(schedule), "Dressuur\r\nCategorie CD");
    schedule.huidige_rubriek.rkla = "*M1*";
    schedule.huidige_rubriek.rcat.clear();
    EXPECT_EQ(rubriek_kop(schedule), "Dressuur\r\nKlasse M1");
}

TEST_F(RubriekKop, zonder_klasse_en_categorie_is_er_ook_geen_ringtype) {
    schedule.huidige_rubriek.rkla.clear();
    schedule.huidige_rubriek.rcat.clear();
    EXPECT_EQ(rubriek_kop(schedule), "");
}

TEST_F(RubriekKop, een_onbekend_ringtype_laat_zijn_regel_leeg) {
    schedule.huidige_rubriek.rcom = 19;
    EXPECT_EQ(rubriek_kop(schedule), "\r\nKlasse Z1, Z2, Categorie CD");
}

TEST_F(RubriekKop, mennen_noemt_de_categorieen_voluit) {
    schedule.huidige_rubriek.rcom = 8;
    schedule.huidige_rubriek.rkla = "*M*";
    schedule.huidige_rubriek.rcat = "*A*C*";
    EXPECT_EQ(rubriek_kop(schedule), "Mennen vaardigheid, Klassiek\r\nKlasse M, Categorie 1sp po, 2sp po");
}

TEST_F(RubriekKop, bij_een_gezamenlijke_inschrijving_komen_ze_uit_de_gekozen_rubrieken) {
    schedule.singlesignin = 1;
    schedule.huidige_rubriek.rrubi = "1,2";
    const auto zet = [&](int nummer, const std::string& klasse, const std::string& cat) {
        schedule.zet_rubriek(nummer, "klasse:" + klasse + "\tcat:" + cat);
    };
    zet(1, "B", "C");
    zet(2, "L1", "D");
    EXPECT_EQ(rubriek_kop(schedule), "Dressuur\r\nKlasse B, L1, Categorie CD");
}

} // namespace
} // namespace tavelo
