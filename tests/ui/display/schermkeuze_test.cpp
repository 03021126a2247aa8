#include "ui/display/schermkeuze.h"

#include <gtest/gtest.h>

#include <array>

namespace tavelo {
namespace {

const Scherm laptop{"eDP-1", {0, 0, 1920, 1080}};
const Scherm monitor{"HDMI-1", {1920, 0, 3840, 2160}};
const Scherm beamer{"DP-2", {-1280, 0, 1280, 720}};
constexpr Schermvlak op_laptop{100, 100, 1240, 760};
constexpr Schermvlak wens{0, 0, 960, 540};

TEST(Publieksscherm, is_het_eerste_scherm_waar_het_hoofdvenster_niet_staat) {
    const std::array schermen = {laptop, monitor, beamer};
    EXPECT_EQ(publieksscherm(schermen, op_laptop), 1U);
    EXPECT_EQ(publieksscherm(schermen, {2000, 100, 1240, 760}), 0U);
}

TEST(Publieksscherm, is_er_niet_met_een_scherm_of_geen) {
    EXPECT_EQ(publieksscherm(std::array{laptop}, op_laptop), std::nullopt);
    EXPECT_EQ(publieksscherm({}, op_laptop), std::nullopt);
}

TEST(Publieksscherm, is_niet_een_monitor_die_hetzelfde_toont_als_het_scherm_van_de_operateur) {
    const Scherm kopie{"HDMI-1", laptop.vlak};
    EXPECT_EQ(publieksscherm(std::array{laptop, kopie}, op_laptop), std::nullopt);
    EXPECT_EQ(publieksscherm(std::array{kopie, laptop}, op_laptop), std::nullopt);
    EXPECT_EQ(publieksscherm(std::array{laptop, kopie, beamer}, op_laptop), 2U);
}

TEST(NieuwPublieksscherm, is_de_monitor_die_is_aangezet) {
    EXPECT_EQ(nieuw_publieksscherm(std::array{laptop}, std::array{laptop, monitor}, op_laptop), 1U);
    EXPECT_EQ(nieuw_publieksscherm(std::array{laptop, monitor}, std::array{laptop, monitor, beamer}, op_laptop), 2U);
}

TEST(NieuwPublieksscherm, is_de_monitor_die_niet_langer_hetzelfde_toont_als_het_scherm_van_de_operateur) {
    const Scherm kopie{monitor.naam, laptop.vlak};
    EXPECT_EQ(nieuw_publieksscherm(std::array{laptop}, std::array{laptop, kopie}, op_laptop), std::nullopt);
    EXPECT_EQ(nieuw_publieksscherm(std::array{laptop, kopie}, std::array{laptop, monitor}, op_laptop), 1U);
}

TEST(NieuwPublieksscherm, is_er_niet_als_er_niets_bij_is_gekomen_of_het_scherm_van_de_operateur_terug_is) {
    EXPECT_EQ(nieuw_publieksscherm(std::array{laptop, monitor}, std::array{laptop, monitor}, op_laptop), std::nullopt);
    EXPECT_EQ(nieuw_publieksscherm(std::array{laptop, monitor}, std::array{laptop}, op_laptop), std::nullopt);
    EXPECT_EQ(nieuw_publieksscherm(std::array{monitor}, std::array{laptop, monitor}, op_laptop), 1U);
    EXPECT_EQ(nieuw_publieksscherm({}, std::array{laptop}, op_laptop), std::nullopt);
}

TEST(StaatBijOperateur, is_op_het_scherm_met_het_meeste_van_het_hoofdvenster) {
    const std::array schermen = {laptop, monitor};
    EXPECT_TRUE(staat_bij_operateur(schermen, op_laptop, {500, 500, 960, 540}));
    EXPECT_TRUE(staat_bij_operateur(schermen, op_laptop, {1300, 500, 960, 540})); // most of it
    EXPECT_FALSE(staat_bij_operateur(schermen, op_laptop, {1700, 500, 960, 540}));
    EXPECT_TRUE(staat_bij_operateur(std::array{laptop}, op_laptop, {500, 500, 960, 540}));
}

TEST(SchermVan, is_het_scherm_dat_het_meeste_van_het_venster_toont) {
    const std::array schermen = {laptop, monitor};
    EXPECT_EQ(scherm_van(schermen, {1800, 0, 1000, 500}), 1U);
    EXPECT_EQ(scherm_van(schermen, {1000, 0, 1000, 500}), 0U);
    EXPECT_EQ(scherm_van(schermen, {9000, 9000, 10, 10}), 0U);
    EXPECT_EQ(scherm_van({}, {0, 0, 10, 10}), std::nullopt);
}

TEST(PlaatsMidden, staat_in_het_midden_en_past_zich_aan_een_klein_scherm_aan) {
    EXPECT_EQ(plaats_midden(monitor.vlak, wens), (Schermvlak{3360, 810, 960, 540}));
    EXPECT_EQ(plaats_midden({0, 0, 480, 640}, wens), (Schermvlak{0, 185, 480, 270}));
}

TEST(PlaatsNaast, staat_naast_het_hoofdvenster_waar_de_meeste_ruimte_is) {
    const Schermvlak nummervak{110, 120, 140, 84};
    // Right of it 580 wide is left: shrunk in proportion and in the middle of that room.
    EXPECT_EQ(plaats_naast(laptop.vlak, op_laptop, nummervak, wens), (Schermvlak{1340, 377, 580, 326}));
    EXPECT_EQ(plaats_naast(laptop.vlak, {900, 0, 1020, 1080}, {910, 20, 140, 84}, wens),
              (Schermvlak{0, 287, 900, 506}));
    EXPECT_EQ(overlap(plaats_naast(laptop.vlak, {0, 600, 1920, 480}, {10, 620, 140, 84}, wens), {0, 600, 1920, 480}),
              0);
}

TEST(PlaatsNaast, zonder_ruimte_ernaast_staat_hij_in_de_hoek_en_nooit_over_het_nummervak) {
    const Schermvlak scherm{0, 0, 1280, 800};
    EXPECT_EQ(plaats_naast(scherm, {0, 0, 1280, 800}, {80, 60, 140, 84}, wens), (Schermvlak{640, 440, 640, 360}));
    // With the box at the foot of the screen, the top right corner.
    EXPECT_EQ(plaats_naast(scherm, {0, 0, 1280, 800}, {80, 700, 140, 84}, wens), (Schermvlak{640, 0, 640, 360}));
    for (int y = 0; y < 800; y += 50) {
        const Schermvlak nummervak{900, y, 300, 100};
        EXPECT_EQ(overlap(plaats_naast(scherm, {0, 0, 1280, 800}, nummervak, wens), nummervak), 0) << y;
    }
}

TEST(Overlap, raken_is_geen_overlap) {
    EXPECT_EQ(overlap({0, 0, 10, 10}, {10, 0, 10, 10}), 0);
    EXPECT_EQ(overlap({0, 0, 10, 10}, {5, 5, 10, 10}), 25);
    EXPECT_EQ(overlap({0, 0, 10, 10}, {9, 0, 10, 10}), 10);
    EXPECT_EQ(overlap({0, 0, 10, 10}, {0, 9, 10, 10}), 10);
    EXPECT_EQ(overlap({0, 0, 100000, 100000}, {0, 0, 100000, 100000}), 10'000'000'000);
}

TEST(PlaatsNaast, op_een_scherm_dat_links_van_nul_begint_telt_de_ruimte_vanaf_zijn_eigen_rand) {
    const Schermvlak scherm{-1920, -200, 1920, 1080};
    // The main window leaves 900 to its left.
    const Schermvlak hoofdvenster{-1020, -200, 1020, 1080};
    const Schermvlak plaats = plaats_naast(scherm, hoofdvenster, {-1010, -180, 140, 84}, wens);
    EXPECT_EQ(plaats, (Schermvlak{-1920, 87, 900, 506}));
    EXPECT_EQ(overlap(plaats, hoofdvenster), 0);
    // And above it more than below it or beside it.
    const Schermvlak onderaan{-1920, 500, 1920, 380};
    EXPECT_EQ(plaats_naast(scherm, onderaan, {-1910, 520, 140, 84}, wens), (Schermvlak{-1440, -120, 960, 540}));
}

TEST(PlaatsNaast, een_strook_van_320_bij_180_is_net_groot_genoeg) {
    const Schermvlak scherm{0, 0, 1320, 800};
    const Schermvlak nummervak{340, 20, 140, 84};
    EXPECT_EQ(plaats_naast(scherm, {320, 0, 1000, 800}, nummervak, wens), (Schermvlak{0, 310, 320, 180}));
    // One less, and it stands in the corner.
    EXPECT_EQ(plaats_naast(scherm, {319, 0, 1001, 800}, nummervak, wens), (Schermvlak{660, 429, 660, 371}));
    const Schermvlak laag{0, 0, 1320, 980};
    EXPECT_EQ(plaats_naast(laag, {0, 180, 1320, 800}, {10, 700, 140, 84}, wens), (Schermvlak{500, 0, 320, 180}));
    EXPECT_EQ(plaats_naast(laag, {0, 179, 1320, 801}, {10, 700, 140, 84}, wens), (Schermvlak{660, 0, 660, 371}));
}

TEST(PlaatsNaast, de_grootste_plaats_wint_van_de_eerste) {
    const Schermvlak scherm{0, 0, 1920, 1080};
    // 400 wide to the right of it, 700 to the left.
    EXPECT_EQ(plaats_naast(scherm, {700, 0, 820, 1080}, {710, 20, 140, 84}, wens), (Schermvlak{0, 343, 700, 393}));
    // 400 wide beside it and 500 high below it.
    EXPECT_EQ(plaats_naast(scherm, {0, 0, 1520, 580}, {10, 20, 140, 84}, wens), (Schermvlak{516, 580, 888, 500}));
}

TEST(PlaatsNaast, op_een_scherm_boven_het_eerste_telt_de_ruimte_vanaf_zijn_bovenrand) {
    const Schermvlak scherm{0, -1000, 1280, 800};
    EXPECT_EQ(plaats_naast(scherm, scherm, {80, -550, 140, 100}, wens), (Schermvlak{640, -1000, 640, 360}));
    EXPECT_EQ(plaats_naast(scherm, scherm, {80, -950, 140, 100}, wens), (Schermvlak{640, -560, 640, 360}));
}

TEST(PlaatsNaast, met_evenveel_ruimte_boven_als_onder_het_nummervak_staat_hij_eronder) {
    EXPECT_EQ(plaats_naast({0, 0, 1280, 800}, {0, 0, 1280, 800}, {80, 350, 140, 100}, wens),
              (Schermvlak{658, 450, 622, 350}));
}

struct Wijzigingenproef {
    Schermvlak scherm;
    Schermvlak rooster;
    Schermvlak plaats;
};

TEST(PlaatsWijzigingen, staat_rechts_van_de_startlijst_en_blijft_op_het_scherm_van_de_operateur) {
    const std::array<Wijzigingenproef, 9> proeven = {{
        // As large as it is made, from the top of the list.
        {{0, 0, 1920, 1080}, {8, 100, 784, 900}, {800, 100, 920, 400}},
        // As wide as there is room beside the list, and as high as there is below its top.
        {{0, 0, 1600, 1080}, {8, 100, 784, 900}, {800, 100, 792, 400}},
        {{0, 0, 1920, 400}, {8, 100, 784, 300}, {800, 100, 920, 292}},
        // At its smallest it lies over the list, or stands higher than its top.
        {{0, 0, 1024, 700}, {8, 100, 784, 500}, {536, 100, 480, 400}},
        {{0, 0, 1920, 1080}, {8, 1000, 784, 80}, {800, 872, 920, 200}},
        // A list that begins above the screen.
        {{0, 0, 1920, 1080}, {8, -60, 784, 900}, {800, 0, 920, 400}},
        // Screens left of zero and above it, and right of it and below it.
        {{-1920, -1080, 1920, 1080}, {-1912, -980, 784, 900}, {-1120, -980, 920, 400}},
        {{1920, 300, 1280, 600}, {1928, 400, 784, 400}, {2712, 400, 480, 400}},
        // A screen that is smaller than the window shows its top left.
        {{100, 50, 300, 150}, {100, 50, 784, 900}, {100, 50, 480, 200}},
    }};
    for (const Wijzigingenproef& proef : proeven)
        EXPECT_EQ(plaats_wijzigingen(proef.scherm, proef.rooster), proef.plaats)
            << proef.plaats.links << ", " << proef.plaats.boven;
}

} // namespace
} // namespace tavelo
