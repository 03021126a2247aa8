#include "workbook/xlsx/opened_sheet.h"
#include "workbook/xlsx/xlsx_maker.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using test::opened;
using test::OpenedSheet;
using test::XlsxMaker;

OpenedSheet sheet_with(std::string sheet_data, std::string shared_strings = "") {
    return opened(XlsxMaker{.sheet_data = std::move(sheet_data), .shared_strings = std::move(shared_strings)}.bytes());
}

TEST(XlsxCellen, gedeelde_teksten_komen_uit_hun_lijst) {
    const auto sheet = sheet_with(R"(<row r="1"><c r="A1" t="s"><v>1</v></c><c r="B1" t="s"><v>0</v></c></row>)",
                                  "<si><t>Zoë</t></si><si><t>Daniël</t></si>");
    EXPECT_EQ(sheet.shown("A1"), "Daniël");
    EXPECT_EQ(sheet.shown("B1"), "Zoë");
}

TEST(XlsxCellen, een_nummer_buiten_de_lijst_van_teksten_geeft_geen_cel) {
    const auto sheet = sheet_with(
        R"(<row r="1"><c r="A1" t="s"><v>7</v></c><c r="B1" t="s"><v>-1</v></c><c r="C1" t="s"><v>x</v></c></row>)",
        "<si><t>Zoë</t></si>");
    EXPECT_TRUE(sheet.sheet.cells.empty());
    EXPECT_EQ(sheet.used(), (std::vector<std::uint32_t>{0, 0, 1, 3}));
}

TEST(XlsxCellen, stukken_opgemaakte_tekst_worden_aaneengevoegd_en_de_uitspraak_valt_weg) {
    const auto sheet = sheet_with(
        R"(<row r="1"><c r="A1" t="s"><v>0</v></c></row>)",
        R"(<si><r><t xml:space="preserve">Jan </t></r><r><rPr><b/></rPr><t>Jansen</t></r><rPh sb="0" eb="1"><t>YAN</t></rPh><phoneticPr fontId="1"/></si>)");
    EXPECT_EQ(sheet.shown("A1"), "Jan Jansen");
}

TEST(XlsxCellen, teksten_in_de_cel_zelf) {
    const auto sheet = sheet_with(
        R"(<row r="1"><c r="A1" t="inlineStr"><is><t>Bucephalus</t></is></c><c r="B1" t="inlineStr"><is><r><t>Black</t></r><r><t xml:space="preserve"> Beauty</t></r></is></c><c r="C1" t="str"><f>A1</f><v>uit formule</v></c></row>)");
    EXPECT_EQ(sheet.shown("A1"), "Bucephalus");
    EXPECT_EQ(sheet.shown("B1"), "Black Beauty");
    EXPECT_EQ(sheet.shown("C1"), "uit formule");
}

TEST(XlsxCellen, zonder_preserve_valt_wit_aan_de_randen_weg) {
    const auto sheet = sheet_with(
        R"(<row r="1"><c r="A1" t="s"><v>0</v></c><c r="B1" t="s"><v>1</v></c><c r="C1" t="s"><v>2</v></c></row>)",
        "<si><t> \t\nJan \n</t></si><si><t xml:space=\"preserve\"> Jan </t></si><si><r><t>Jan </t></r><r><t> "
        "Piet</t></r></si>");
    EXPECT_EQ(sheet.shown("A1"), "Jan");
    EXPECT_EQ(sheet.shown("B1"), " Jan ");
    EXPECT_EQ(sheet.shown("C1"), "JanPiet");
}

TEST(XlsxCellen, tekens_die_xml_niet_kent) {
    const auto sheet =
        sheet_with(R"(<row r="1"><c r="A1" t="s"><v>0</v></c><c r="B1" t="str"><v>a_x0009_b</v></c></row>)",
                   "<si><t>een_x000D_&#10;&amp;twee</t></si>");
    EXPECT_EQ(sheet.shown("A1"), "een\r\n&twee");
    EXPECT_EQ(sheet.shown("B1"), "a\tb");
}

TEST(XlsxCellen, getallen_booleans_en_fouten) {
    const auto sheet = sheet_with(
        R"(<row r="1"><c r="A1"><v>1.5</v></c><c r="B1" t="n"><v> 1E3 </v></c><c r="C1" t="b"><v>1</v></c><c r="D1" t="b"><v>0</v></c><c r="E1" t="e"><v>#N/A</v></c><c r="F1" t="e"><v>#DIV/0!</v></c><c r="G1" t="e"><v>#SPILL!</v></c></row>)");
    EXPECT_EQ(sheet.shown("A1"), "1,5");
    EXPECT_EQ(sheet.shown("A1", "en-US"), "1.5");
    EXPECT_EQ(sheet.shown("B1"), "1000");
    EXPECT_EQ(sheet.shown("C1"), "WAAR");
    EXPECT_EQ(sheet.shown("D1", "en-US"), "FALSE");
    EXPECT_EQ(sheet.shown("E1", "en-US"), "#N/A");
    EXPECT_EQ(sheet.shown("F1", "en-US"), "#DIV/0!");
    EXPECT_EQ(sheet.shown("G1"), "#OVERLOPEN!");
    EXPECT_EQ(sheet.shown("G1", "en-US"), "#SPILL!");
}

TEST(XlsxCellen, elke_fout_heeft_haar_woord) {
    using enum CellError;
    const std::pair<std::string_view, CellError> table[] = {
        {"#NULL!", null},   {"#DIV/0!", division},  {"#VALUE!", value},      {"#REF!", reference},
        {"#NAME?", name},   {"#NUM!", number},      {"#N/A", not_available}, {"#GETTING_DATA", getting_data},
        {"#SPILL!", spill}, {"#CONNECT!", connect}, {"#BLOCKED!", blocked},  {"#FIELD!", field},
        {"#CALC!", calc},
    };
    for (const auto& [word, error] : table)
        EXPECT_EQ(error_of(word), error) << word;
    for (const auto* word : {"", "#N/A!", "#ref!", "REF", "#NULL", "~"})
        EXPECT_EQ(error_of(word), std::nullopt) << word;
}

TEST(XlsxCellen, nieuwere_fouten_hebben_hun_nederlandse_woord) {
    const auto sheet = sheet_with(
        R"(<row r="1"><c r="A1" t="e"><v>#CALC!</v></c><c r="B1" t="e"><v>#FIELD!</v></c><c r="C1" t="e"><v>#BLOCKED!</v></c><c r="D1" t="e"><v>#CONNECT!</v></c><c r="E1" t="e"><v>#PYTHON!</v></c></row>)");
    EXPECT_EQ(sheet.shown("A1"), "#BEREKENEN!");
    EXPECT_EQ(sheet.shown("B1"), "#VELD!");
    EXPECT_EQ(sheet.shown("C1"), "#GEBLOKKEERD!");
    EXPECT_EQ(sheet.shown("D1"), "#VERBINDEN!");
    EXPECT_EQ(sheet.shown("D1", "en-US"), "#CONNECT!");
    EXPECT_EQ(sheet.shown("E1"), "#PYTHON!"); // not known here
}

TEST(XlsxCellen, de_tekst_van_een_formule_verliest_de_witruimte_aan_haar_einden) {
    const auto sheet = sheet_with(
        R"(<row r="1"><c r="A1" t="str"><v> Jan Smit
</v></c><c r="B1" t="str"><v xml:space="preserve"> Jan </v></c><c r="C1" t="str"><v> Jan </v></c></row>)");
    EXPECT_EQ(sheet.shown("A1"), "Jan Smit");
    EXPECT_EQ(sheet.shown("B1"), " Jan ");
    EXPECT_EQ(sheet.shown("C1"), "Jan");
}

TEST(XlsxCellen, wat_geen_getal_is_geeft_geen_cel) {
    const auto sheet = sheet_with(
        R"(<row r="1"><c r="A1"><v>nan</v></c><c r="B1"><v>inf</v></c><c r="C1"><v>1e999</v></c><c r="D1"><v>12a</v></c><c r="E1"><v></v></c><c r="F1"/></row>)");
    EXPECT_TRUE(sheet.sheet.cells.empty());
}

TEST(XlsxCellen, van_een_formule_telt_de_laatst_berekende_waarde) {
    const auto sheet = sheet_with(
        R"(<row r="1"><c r="A1"><f>1+1</f><v>2</v></c><c r="B1"><f>NOW()</f></c><c r="C1" t="str"><f>""</f><v></v></c></row>)");
    EXPECT_EQ(sheet.shown("A1"), "2");
    EXPECT_EQ(sheet.shown("B1"), "(geen cel)");
    EXPECT_EQ(sheet.shown("C1"), "");
}

TEST(XlsxCellen, datums_als_tekst) {
    const auto sheet = opened(XlsxMaker{
        .sheet_data =
            R"(<row r="1"><c r="A1" s="1" t="d"><v>2026-11-20</v></c><c r="B1" t="d"><v>06:00:00</v></c><c r="C1" t="d"><v>1850-01-01</v></c><c r="D1" t="d"><v>straks</v></c></row>)",
        .styles = R"(<cellXfs><xf numFmtId="0"/><xf numFmtId="14"/></cellXfs>)"}
                                  .bytes());
    EXPECT_EQ(sheet.shown("A1"), "20-11-2026");
    EXPECT_EQ(sheet.shown("B1"), "0,25");
    EXPECT_EQ(sheet.shown("C1", "en-US"), "#VALUE!");
    EXPECT_EQ(sheet.shown("D1"), "straks");
}

TEST(XlsxCellen, cellen_en_rijen_zonder_plaats_tellen_door) {
    const auto sheet = sheet_with(
        R"(<row><c><v>1</v></c><c><v>2</v></c></row><row/><row><c><v>3</v></c></row><row r="7"><c r="D7"><v>4</v></c><c><v>5</v></c></row><row><c r="B"><v>6</v></c></row>)");
    EXPECT_EQ(sheet.shown("A1"), "1");
    EXPECT_EQ(sheet.shown("B1"), "2");
    EXPECT_EQ(sheet.shown("A3"), "3");
    EXPECT_EQ(sheet.shown("E7"), "5");
    EXPECT_EQ(sheet.shown("B8"), "6");
}

TEST(XlsxCellen, cellen_in_de_verkeerde_volgorde_komen_op_hun_plaats_en_van_twee_op_een_plaats_blijft_de_laatste) {
    const auto sheet = sheet_with(
        R"(<row r="2"><c r="B2"><v>1</v></c><c r="A2"><v>2</v></c></row><row r="1"><c r="A1"><v>3</v></c><c r="A1"><v>4</v></c></row>)");
    ASSERT_EQ(sheet.sheet.cells.size(), 3U);
    EXPECT_EQ(sheet.shown("A1"), "4");
    EXPECT_EQ(sheet.shown("A2"), "2");
    EXPECT_EQ(sheet.shown("B2"), "1");
}

TEST(XlsxCellen, een_cel_buiten_het_blad_telt_niet) {
    const auto sheet = sheet_with(
        R"(<row r="1"><c r="A1"><v>1</v></c><c r="XFE1"><v>2</v></c></row><row r="1048577"><c><v>3</v></c></row><row r="4294967295"><c><v>4</v></c></row>)");
    EXPECT_EQ(sheet.sheet.cells.size(), 2U); // "XFE1" is no place, so that cell follows A1
    EXPECT_EQ(sheet.used(), (std::vector<std::uint32_t>{0, 0, 1, 2}));
}

TEST(XlsxCellen, verborgen_rijen_en_kolommen_doen_mee) {
    const auto sheet =
        opened(XlsxMaker{.sheet_data = R"(<row r="1" hidden="1"><c r="A1"><v>1</v></c><c r="B1"><v>2</v></c></row>)",
                         .before_sheet_data = R"(<cols><col min="2" max="2" width="9" hidden="1"/></cols>)"}
                   .bytes());
    EXPECT_EQ(sheet.shown("A1"), "1");
    EXPECT_EQ(sheet.shown("B1"), "2");
}

TEST(XlsxCellen, van_samengevoegde_cellen_heeft_de_eerste_de_tekst) {
    const auto sheet =
        opened(XlsxMaker{.sheet_data = R"(<row r="1"><c r="A1"><v>1</v></c><c r="B1" s="0"/></row>)",
                         .after_sheet_data = R"(<mergeCells count="1"><mergeCell ref="A1:B1"/></mergeCells>)"}
                   .bytes());
    EXPECT_EQ(sheet.shown("A1"), "1");
    EXPECT_EQ(sheet.shown("B1"), "(geen cel)");
    EXPECT_EQ(sheet.used(), (std::vector<std::uint32_t>{0, 0, 1, 2}));
}

TEST(XlsxCellen, namen_met_een_voorvoegsel_zijn_dezelfde) {
    auto parts = XlsxMaker{}.parts();
    test::replace_part(
        parts, "xl/worksheets/sheet1.xml",
        R"(<x:worksheet xmlns:x="http://schemas.openxmlformats.org/spreadsheetml/2006/main"><x:sheetData><x:row r="1"><x:c r="A1" t="inlineStr"><x:is><x:t>ja</x:t></x:is></x:c></x:row></x:sheetData></x:worksheet>)");
    EXPECT_EQ(opened(test::zip_of(parts)).shown("A1"), "ja");
}

TEST(XlsxCellen, een_blad_in_utf_16_wordt_gelezen) {
    const std::string plain =
        R"(<?xml version="1.0" encoding="UTF-16"?><worksheet><sheetData><row r="1"><c r="A1"><v>5</v></c></row></sheetData></worksheet>)";
    std::string wide = "\xFF\xFE";
    for (const char c : plain)
        wide.append({c, '\0'});
    auto parts = XlsxMaker{}.parts();
    test::replace_part(parts, "xl/worksheets/sheet1.xml", wide);
    EXPECT_EQ(opened(test::zip_of(parts)).shown("A1"), "5");
}

TEST(XlsxCellen, een_blad_in_windows_1252_wordt_gelezen_en_een_onbekende_codering_niet) {
    const std::string sheet =
        "\"?><worksheet><sheetData><row><c t=\"str\"><v>Zo\xEB \x80</v></c></row></sheetData></worksheet>";
    auto parts = XlsxMaker{}.parts();
    test::replace_part(parts, "xl/worksheets/sheet1.xml", "<?xml version=\"1.0\" encoding=\"Windows-1252" + sheet);
    EXPECT_EQ(opened(test::zip_of(parts)).shown("A1"), "Zoë €");
    test::replace_part(parts, "xl/worksheets/sheet1.xml", "<?xml version=\"1.0\" encoding=\"klingon" + sheet);
    EXPECT_EQ(open_xlsx(test::zip_of(parts)).value()->read_sheet(0).error(), OpenFailure::damaged);
}

TEST(XlsxCellen, de_plaats_van_een_cel) {
    struct Place {
        std::string_view reference;
        std::uint32_t column;
        std::uint32_t row; // 0 for none: it counts from 1 here
    };
    for (const auto& [reference, column, row] : {
             Place{"A1", 0, 1},
             {"a1", 0, 1},
             {"Z9", 25, 9},
             {"z9", 25, 9},
             {"AA10", 26, 10},
             {"AZ1", 51, 1},
             {"BA1", 52, 1},
             {"ZZ1", 701, 1},
             {"AAA1", 702, 1},
             {"XFD1048576", 16383, 1048576},
             {"$C$7", 2, 7},
             {"C$7", 2, 7},
             {"$C7", 2, 7},
             {"C", 2, 0},
             {"$C", 2, 0},
             {"C$", 2, 0},
         }) {
        const auto place = parse_cell_reference(reference);
        ASSERT_TRUE(place.has_value()) << reference;
        EXPECT_EQ(place->column, column) << reference;
        EXPECT_EQ(place->row ? *place->row + 1 : 0, row) << reference;
    }
    for (const auto* no_place : {"", "1", "$", "$1", "XFE1", "AAAA1", "A0", "A1048577", "A1x", "A-1", "A1 B", "@1",
                                 "[1", "`1", "{1", "A@1", "$$A1", "A$$1"})
        EXPECT_FALSE(parse_cell_reference(no_place).has_value()) << no_place;
    EXPECT_EQ(parse_cell_reference("A1")->column, 0U);
    EXPECT_EQ(parse_cell_reference("XFD1048576")->column, 16383U);
    EXPECT_EQ(parse_cell_reference("XFD1048576")->row, 1048575U);
    EXPECT_EQ(parse_cell_reference("$ab$12")->column, 27U);
    EXPECT_EQ(parse_cell_reference("$ab$12")->row, 11U);
    EXPECT_FALSE(parse_cell_reference("C")->row.has_value());
    for (const std::string_view no_place : {"", "1", "XFE1", "A0", "A1048577", "AAAAAAAAAAAA1", "A-1", "A1B", "é1"})
        EXPECT_FALSE(parse_cell_reference(no_place).has_value()) << no_place;
}

} // namespace
} // namespace tavelo
