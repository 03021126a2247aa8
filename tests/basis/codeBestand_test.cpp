#include "basis/codeBestand.h"

#include "fakes/temp_folder.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

TEST(Bestand, de_extensie_staat_achter_de_laatste_punt_van_het_laatste_deel) {
    EXPECT_EQ(bestand_extensie("C:\\shows\\plan.XLSX"), "XLSX");
    EXPECT_EQ(bestand_extensie("/shows/dag.1/plan"), "");
    EXPECT_EQ(bestand_extensie("C:\\dag.1\\plan"), "");
    EXPECT_EQ(bestand_extensie("a.b.rst"), "rst");
    EXPECT_EQ(bestand_extensie("a."), "");
    EXPECT_EQ(bestand_extensie(""), "");
}

TEST(Bestand, de_titel_is_de_naam_zonder_map_en_extensie) {
    EXPECT_EQ(bestand_titel("  C:\\shows\\finale.dag1.rst "), "finale.dag1");
    EXPECT_EQ(bestand_titel("/shows/finale"), "finale");
    EXPECT_EQ(bestand_titel("C:finale.rst"), "finale");
    EXPECT_EQ(bestand_titel("/shows.nu/"), "");
    EXPECT_EQ(bestand_titel(""), "");
}

TEST(Bestand, de_map_loopt_tot_en_met_het_laatste_scheidingsteken) {
    EXPECT_EQ(bestand_map(" C:\\shows\\plan.rst "), "C:\\shows\\");
    EXPECT_EQ(bestand_map("/shows/plan.rst"), "/shows/");
    EXPECT_EQ(bestand_map("C:plan.rst"), "C:");
    EXPECT_EQ(bestand_map("plan.rst"), "");
}

TEST(Bestand, een_bestand_wordt_heel_gelezen) {
    const test::TempFolder map;
    const std::string bytes("a\r\n\0\x1A\xFF", 6);
    EXPECT_EQ(lees_bestand(map.write("é.rst", bytes)), bytes);
    EXPECT_EQ(lees_bestand(map.write("leeg", "")), "");
    const std::string groot(3'000'001, 'x');
    EXPECT_EQ(lees_bestand(map.write("groot", groot)), groot);
}

TEST(Bestand, wat_geen_gewoon_bestand_is_wordt_niet_gelezen) {
    const test::TempFolder map;
    EXPECT_EQ(lees_bestand(map.file("bestaat niet")), std::nullopt);
    EXPECT_EQ(lees_bestand(map.file("")), std::nullopt); // the folder
    EXPECT_EQ(lees_bestand(""), std::nullopt);
}

TEST(Bestand, een_bestand_met_een_ander_begin_wordt_niet_verder_gelezen) {
    const test::TempFolder map;
    const auto goed = lees_bestand_met_begin(map.write("goed", "[kop]rest"), "[kop]");
    ASSERT_TRUE(goed);
    EXPECT_TRUE(goed->begin_klopt);
    EXPECT_EQ(goed->bytes, "[kop]rest");
    const auto ander = lees_bestand_met_begin(map.write("ander", "[KOP]" + std::string(1'000'000, 'x')), "[kop]");
    ASSERT_TRUE(ander);
    EXPECT_FALSE(ander->begin_klopt);
    EXPECT_EQ(ander->bytes.size(), 5U);
    const auto kort = lees_bestand_met_begin(map.write("kort", "[ko"), "[kop]");
    ASSERT_TRUE(kort);
    EXPECT_FALSE(kort->begin_klopt);
    EXPECT_FALSE(lees_bestand_met_begin(map.file("bestaat niet"), "[kop]"));
}

TEST(Bestand, bestaan_is_te_openen_zijn_om_te_lezen) {
    const test::TempFolder map;
    EXPECT_TRUE(bestandbestaat(map.write("plan.rst", "")));
    EXPECT_FALSE(bestandbestaat(map.file("ander.rst")));
    EXPECT_FALSE(bestandbestaat(map.file("")));
    EXPECT_FALSE(bestandbestaat(""));
}

} // namespace
} // namespace tavelo
