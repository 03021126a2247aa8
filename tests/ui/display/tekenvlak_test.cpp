#include "fakes/seams.h"
#include "ui/display/tekenvlak.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

TEST(Tekenvlak, een_gedrukte_tekst_staat_op_de_huidige_hoogte_en_schuift_die_een_regel_op) {
    const test::FakeMeasure meter;
    Tekenvlak vlak;
    vlak.zet_punten(10);
    vlak.druk(meter, 30, "eerste");
    vlak.druk(meter, 40, "");
    vlak.zet_punten(20);
    vlak.druk(meter, 50, "derde");
    const std::vector<GeplaatsteTekst> verwacht = {{30, 0, 10, "eerste"}, {40, 230, 10, ""}, {50, 460, 20, "derde"}};
    EXPECT_EQ(vlak.regels(), verwacht);
    EXPECT_EQ(vlak.huidige_y, 920);
}

TEST(Tekenvlak, wissen_haalt_de_teksten_weg_en_begint_bovenaan) {
    const test::FakeMeasure meter;
    Tekenvlak vlak;
    vlak.zet_punten(10);
    vlak.druk(meter, 30, "tekst");
    vlak.wis();
    EXPECT_TRUE(vlak.regels().empty());
    EXPECT_EQ(vlak.huidige_y, 0);
    EXPECT_EQ(vlak.punten(), 10);
}

TEST(Tekenvlak, dezelfde_tekst_op_dezelfde_plaats_bedekt_de_vorige) {
    const test::FakeMeasure meter;
    Tekenvlak vlak;
    vlak.zet_punten(10);
    vlak.druk(meter, 30, "tekst");
    vlak.huidige_y = 0;
    vlak.druk(meter, 30, "tekst");
    EXPECT_EQ(vlak.regels().size(), 1U);
    EXPECT_EQ(vlak.huidige_y, 230);
    vlak.huidige_y = 0;
    vlak.druk(meter, 31, "tekst");
    EXPECT_EQ(vlak.regels().size(), 2U);
}

TEST(Tekenvlak, de_kleinste_letter_is_een_punt_en_maten_worden_niet_afgerond) {
    Tekenvlak vlak;
    for (const double te_klein : {0.0, -3.0, 0.99}) {
        vlak.zet_punten(te_klein);
        EXPECT_EQ(vlak.punten(), 1) << te_klein;
    }
    vlak.zet_punten(31.4375);
    EXPECT_EQ(vlak.punten(), 31.4375);
}

TEST(Tekenvlak, het_meet_met_zijn_eigen_lettertype_en_maat) {
    struct Meter final : TextMeasure {
        [[nodiscard]] double width(std::string_view font, double points, std::string_view text) const override {
            return font == "Verdana" ? points * static_cast<double>(text.size()) : 0;
        }
        [[nodiscard]] double height(std::string_view font, double points) const override {
            return font == "Verdana" ? 2 * points : 0;
        }
    };
    Tekenvlak vlak;
    vlak.lettertype = "Verdana";
    vlak.zet_punten(7);
    EXPECT_EQ(vlak.tekstbreedte(Meter(), "vier"), 28);
    EXPECT_EQ(vlak.teksthoogte(Meter()), 14);
}

// An area with these texts, one below the other.
Tekenvlak vlak_met(const std::vector<std::string>& teksten) {
    const test::FakeMeasure meter;
    Tekenvlak vlak;
    vlak.zet_punten(10);
    for (const std::string& tekst : teksten)
        vlak.druk(meter, 30, tekst);
    return vlak;
}

using Plaatsen = std::vector<std::size_t>;

TEST(GewijzigdeRegels, zijn_de_teksten_die_anders_zijn) {
    const Tekenvlak oud = vlak_met({"kop", "72", "Jan", "Bles"});
    EXPECT_EQ(gewijzigde_regels(oud, oud), Plaatsen{});
    EXPECT_EQ(gewijzigde_regels(oud, vlak_met({"kop", "73", "Jan", "Vonk"})), (Plaatsen{1, 3}));
}

TEST(GewijzigdeRegels, tellen_ook_wat_erbij_kwam_of_verdween) {
    const Tekenvlak kort = vlak_met({"72"});
    const Tekenvlak lang = vlak_met({"72", "Jan", "Bles"});
    EXPECT_EQ(gewijzigde_regels(kort, lang), (Plaatsen{1, 2}));
    EXPECT_EQ(gewijzigde_regels(lang, kort), (Plaatsen{1, 2}));
}

TEST(GewijzigdeRegels, tellen_ook_wat_na_het_wissen_niet_terugkwam) {
    const test::FakeMeasure meter;
    const Tekenvlak oud = vlak_met({"72", "Jan", "Bles"});
    Tekenvlak nieuw = oud;
    nieuw.wis();
    nieuw.druk(meter, 30, "72");
    EXPECT_EQ(gewijzigde_regels(oud, nieuw), (Plaatsen{1, 2}));
    EXPECT_EQ(gewijzigde_regels(nieuw, oud), (Plaatsen{1, 2}));
}

TEST(GewijzigdeRegels, tellen_ook_een_andere_plaats_of_maat) {
    const test::FakeMeasure meter;
    const auto met = [&](double x, double y, double punten) {
        Tekenvlak vlak;
        vlak.zet_punten(punten);
        vlak.huidige_y = y;
        vlak.druk(meter, x, "72");
        return vlak;
    };
    const Tekenvlak oud = met(10, 20, 30);
    for (const Tekenvlak& nieuw : {met(11, 20, 30), met(10, 21, 30), met(10, 20, 30.5)})
        EXPECT_EQ(gewijzigde_regels(oud, nieuw), Plaatsen{0});
}

TEST(GewijzigdeRegels, zijn_er_niet_als_alles_er_anders_uitziet) {
    const Tekenvlak oud = vlak_met({"72"});
    const std::vector<void (*)(Tekenvlak&)> wijzigingen = {
        [](Tekenvlak& v) { v.achtergrond = 1; },      [](Tekenvlak& v) { v.voorgrond = 1; },
        [](Tekenvlak& v) { v.lettertype = "Arial"; }, [](Tekenvlak& v) { v.breedte = 1; },
        [](Tekenvlak& v) { v.hoogte = 1; },
    };
    for (const auto& wijzig : wijzigingen) {
        Tekenvlak nieuw = oud;
        wijzig(nieuw);
        EXPECT_EQ(gewijzigde_regels(oud, nieuw), std::nullopt);
    }
}

} // namespace
} // namespace tavelo
