#include "workbook/xlsx/part_name.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

TEST(PartName, namen_met_backslash_schuine_streep_vooraan_en_hoofdletters_zijn_dezelfde) {
    EXPECT_EQ(part_key("xl\\worksheets\\Sheet1.xml"), "xl/worksheets/sheet1.xml");
    EXPECT_EQ(part_key("/xl/workbook.xml"), "xl/workbook.xml");
    EXPECT_EQ(part_key("XL/Workbook.XML"), "xl/workbook.xml");
}

TEST(PartName, een_doel_telt_vanaf_de_map_van_het_deel) {
    EXPECT_EQ(resolve_target("xl/workbook.xml", "worksheets/sheet1.xml"), "xl/worksheets/sheet1.xml");
    EXPECT_EQ(resolve_target("xl/workbook.xml", "../Data/./sheet1.xml"), "data/sheet1.xml");
    EXPECT_EQ(resolve_target("", "xl/workbook.xml"), "xl/workbook.xml");
    EXPECT_EQ(resolve_target("xl/workbook.xml", "worksheets\\sheet1.xml"), "xl/worksheets/sheet1.xml");
}

TEST(PartName, een_doel_met_een_schuine_streep_vooraan_telt_vanaf_de_wortel) {
    EXPECT_EQ(resolve_target("xl/workbook.xml", "/xl/worksheets/sheet1.xml"), "xl/worksheets/sheet1.xml");
    EXPECT_EQ(resolve_target("xl/workbook.xml", "\\xl\\sheet1.xml"), "xl/sheet1.xml");
}

TEST(PartName, alleen_de_letters_van_az_worden_klein) {
    EXPECT_EQ(part_key("AZaz@[`{\xC3\x89"), "azaz@[`{\xC3\x89");
    EXPECT_EQ(part_key("//a//B/"), "a//b/");
    EXPECT_EQ(part_key("\\/a"), "a");
    EXPECT_EQ(part_key("/"), "");
}

TEST(PartName, een_doel_mag_stappen_omhoog_en_lege_stappen_hebben) {
    EXPECT_EQ(resolve_target("a/b/c.xml", "../../d"), "d");
    EXPECT_EQ(resolve_target("a/b/c.xml", "..//.//d/./e/../f"), "a/d/f");
    EXPECT_EQ(resolve_target("a/b/c.xml", "."), "a/b");
    EXPECT_EQ(resolve_target("a/b/c.xml", "../.."), std::nullopt);
    EXPECT_EQ(resolve_target("c.xml", "."), std::nullopt);
    EXPECT_EQ(resolve_target("/a/c.xml", "d/"), "a/d");
    EXPECT_EQ(resolve_target("a/../../c.xml", "d"), std::nullopt);
    EXPECT_EQ(resolve_target("a/c.xml", "/"), std::nullopt);
    EXPECT_EQ(resolve_target("a/c.xml", "...x/..d"), "a/...x/..d");
}

TEST(PartName, een_doel_boven_de_wortel_wordt_geweigerd) {
    EXPECT_EQ(resolve_target("xl/workbook.xml", "../../etc/passwd"), std::nullopt);
    EXPECT_EQ(resolve_target("xl/workbook.xml", "/../etc/passwd"), std::nullopt);
    EXPECT_EQ(resolve_target("", "xl/../.."), std::nullopt);
}

TEST(PartName, een_doel_met_een_station_of_een_protocol_wordt_geweigerd) {
    EXPECT_EQ(resolve_target("xl/workbook.xml", "C:\\sheet1.xml"), std::nullopt);
    EXPECT_EQ(resolve_target("xl/workbook.xml", "file:///sheet1.xml"), std::nullopt);
    EXPECT_EQ(resolve_target("xl/workbook.xml", ""), std::nullopt);
}

TEST(PartName, de_relaties_van_een_deel_staan_in_de_map_ernaast) {
    EXPECT_EQ(relationships_of("xl/workbook.xml"), "xl/_rels/workbook.xml.rels");
    EXPECT_EQ(relationships_of("workbook.xml"), "_rels/workbook.xml.rels");
    EXPECT_EQ(relationships_of(""), "_rels/.rels");
    EXPECT_EQ(relationships_of("/A\\b/C.xml"), "a/b/_rels/c.xml.rels");
}

} // namespace
} // namespace tavelo
