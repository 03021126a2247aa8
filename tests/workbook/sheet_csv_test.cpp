#include "workbook/sheet_csv.h"

#include "workbook/workbook.h"
#include "workbook/xlsx/xlsx_maker.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

std::expected<std::string, OpenFailure> csv_of(const std::string& sheet_data, std::string_view land = "nl-NL",
                                               std::size_t blad = 1) {
    auto book = open_workbook(test::XlsxMaker{.sheet_data = sheet_data}.bytes()).value();
    return blad_als_csv(*book, blad, locale_named(land));
}

std::string text_cell(const std::string& place, const std::string& text) {
    return "<c r=\"" + place + "\" t=\"inlineStr\"><is><t xml:space=\"preserve\">" + text + "</t></is></c>";
}

TEST(BladAlsCsv, begint_bij_A1_en_loopt_tot_het_eind_van_het_gebruikte_bereik) {
    EXPECT_EQ(csv_of(R"(<row r="2"><c r="B2"><v>1.5</v></c></row><row r="3"><c r="D3"/></row>)"),
              ",,,\r\n,\"1,5\",,\r\n,,,\r\n");
}

TEST(BladAlsCsv, getallen_volgen_het_land) {
    EXPECT_EQ(csv_of(R"(<row r="1"><c r="A1"><v>1.5</v></c></row>)", "en-US"), "1.5\r\n");
}

TEST(BladAlsCsv, komma_aanhalingsteken_en_regeleinde_staan_tussen_aanhalingstekens) {
    EXPECT_EQ(csv_of("<row r=\"1\">" + text_cell("A1", "a,b") + text_cell("B1", "zegt &quot;ho&quot;") +
                     text_cell("C1", "een&#10;twee") + text_cell("D1", "drie&#13;vier") + text_cell("E1", " los ") +
                     "</row>"),
              "\"a,b\",\"zegt \"\"ho\"\"\",\"een\ntwee\",\"drie\rvier\", los \r\n");
}

TEST(BladAlsCsv, een_leeg_blad_en_een_blad_dat_er_niet_is_geven_niets) {
    EXPECT_EQ(csv_of(""), "");
    EXPECT_EQ(csv_of("<row r=\"1\"><c r=\"A1\"><v>1</v></c></row>", "nl-NL", 2), "");
    EXPECT_EQ(csv_of("<row r=\"1\"><c r=\"A1\"><v>1</v></c></row>", "nl-NL", 0), "");
}

TEST(BladAlsCsv, opmaak_tot_onderaan_het_blad_telt_niet) {
    EXPECT_EQ(csv_of(R"(<row r="1"><c r="A1"><v>1</v></c></row><row r="1048576"><c r="XFD1048576"/></row>)"), "1\r\n");
}

TEST(BladAlsCsv, een_verdwaalde_waarde_ver_weg_houdt_de_lijst_niet_tegen) {
    EXPECT_EQ(csv_of(R"(<row r="1"><c r="A1"><v>1</v></c><c r="XFD1"><v>9</v></c></row>)"
                     R"(<row r="2"><c r="B2"><v>2</v></c></row><row r="1048576"><c r="A1048576"><v>3</v></c></row>)")
                  ->substr(0, 8),
              "1,\r\n,2\r\n");
    EXPECT_EQ(csv_of(R"(<row r="1"><c r="A1"><v>1</v></c><c r="L1"><v>2</v></c></row>)"
                     R"(<row r="1048576"><c r="XFD1048576"><v>3</v></c></row>)"),
              "1,,,,,,,,,,,2\r\n");
    EXPECT_EQ(csv_of(R"(<row r="1"><c r="A1"><v>1</v></c><c r="L1"><v>2</v></c></row>)"
                     R"(<row r="1048576"><c r="A1048576"><v>3</v></c></row>)"),
              "1,,,,,,,,,,,2\r\n");
}

} // namespace
} // namespace tavelo
