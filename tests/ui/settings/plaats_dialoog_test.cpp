#include "ui/settings/plaats_dialoog.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

constexpr SchermRechthoek scherm{0, 0, 1920, 1080};

TEST(PlaatsDialoog, rechts_van_het_voorbeeld_als_daar_ruimte_is) {
    EXPECT_EQ(plaats_dialoog(scherm, {100, 200, 900, 800}, 700, 500), (SchermPunt{900, 200}));
}

TEST(PlaatsDialoog, anders_links_ervan) {
    EXPECT_EQ(plaats_dialoog(scherm, {1000, 200, 1900, 1000}, 700, 500), (SchermPunt{300, 200}));
}

TEST(PlaatsDialoog, anders_eronder_of_erboven) {
    EXPECT_EQ(plaats_dialoog(scherm, {300, 0, 1700, 500}, 700, 500), (SchermPunt{300, 500}));
    EXPECT_EQ(plaats_dialoog(scherm, {300, 560, 1700, 1060}, 700, 500), (SchermPunt{300, 60}));
}

TEST(PlaatsDialoog, een_enkel_punt_van_het_voorbeeld_is_al_te_veel_bedekt) {
    EXPECT_EQ(plaats_dialoog(scherm, {600, 200, 1221, 201}, 700, 500), (SchermPunt{600, 201}));
    EXPECT_EQ(plaats_dialoog(scherm, {700, 200, 1221, 201}, 700, 500), (SchermPunt{0, 200}));
}

TEST(PlaatsDialoog, altijd_helemaal_op_het_scherm) {
    EXPECT_EQ(plaats_dialoog(scherm, {100, 900, 900, 1080}, 700, 500), (SchermPunt{900, 580}));
}

TEST(PlaatsDialoog, waar_het_nergens_past_blijft_zo_veel_mogelijk_van_het_voorbeeld_in_zicht) {
    EXPECT_EQ(plaats_dialoog(scherm, {500, 100, 1900, 1000}, 700, 500), (SchermPunt{0, 100}));
}

TEST(PlaatsDialoog, een_te_groot_venster_houdt_zijn_linkerbovenhoek_in_zicht) {
    EXPECT_EQ(plaats_dialoog({1920, 40, 2560, 440}, {2000, 100, 2500, 400}, 700, 500), (SchermPunt{1920, 40}));
}

TEST(PlaatsDialoog, ook_op_een_scherm_links_van_het_eerste) {
    EXPECT_EQ(plaats_dialoog({-1280, 0, 0, 800}, {-600, 50, -20, 700}, 500, 400), (SchermPunt{-1100, 50}));
}

} // namespace
} // namespace tavelo
