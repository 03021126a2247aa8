#include "read_sheet.h"
#include "workbook/xlsx/xlsx_maker.h"

#include <gtest/gtest.h>

#include <array>

namespace tavelo {
namespace {

using test::csv_of;

std::vector<std::byte> document(std::string_view table, std::string_view styles = "") {
    std::string content = R"(<?xml version="1.0" encoding="UTF-8"?><office:document-content xmlns:office="o" )"
                          R"(xmlns:table="t" xmlns:text="x" xmlns:style="s" xmlns:draw="d">)";
    content += "<office:automatic-styles>" + std::string(styles) + "</office:automatic-styles>";
    content += R"(<office:body><office:spreadsheet><table:table table:name="Dag 1">)" + std::string(table);
    content +=
        R"(</table:table><table:table table:name="Dag 2"><table:table-row><table:table-cell><text:p>twee</text:p>)"
        R"(</table:table-cell></table:table-row></table:table></office:spreadsheet></office:body>)"
        R"(</office:document-content>)";
    return test::zip_of({{"mimetype", "application/vnd.oasis.opendocument.spreadsheet"}, {"content.xml", content}});
}

std::string row(std::string_view cells, std::string_view attributes = "") {
    return "<table:table-row " + std::string(attributes) + ">" + std::string(cells) + "</table:table-row>";
}

std::string cell(std::string_view text, std::string_view attributes = "") {
    return "<table:table-cell " + std::string(attributes) + "><text:p>" + std::string(text) +
           "</text:p></table:table-cell>";
}

TEST(OpenDocument, een_cel_toont_de_tekst_die_erbij_is_opgeslagen) {
    EXPECT_EQ(csv_of(document(row(cell("€ 1.234,50", R"(office:value-type="currency" office:value="1234.5")") +
                                  cell("007", R"(office:value-type="string")") +
                                  cell("20-11-26", R"(office:value-type="date" office:date-value="2026-11-20")")))),
              "\"€ 1.234,50\",007,20-11-26\n");
}

TEST(OpenDocument, een_waarde_zonder_tekst_wordt_getoond_als_gewoonlijk) {
    const auto value = [](std::string_view attributes) {
        return "<table:table-cell " + std::string(attributes) + "/>";
    };
    EXPECT_EQ(csv_of(document(row(value(R"(office:value-type="float" office:value="1234.5")") +
                                  value(R"(office:value-type="percentage" office:value="0.5")") +
                                  value(R"(office:value-type="currency" office:value="3")") +
                                  value(R"(office:value-type="date" office:date-value="2026-11-20")") +
                                  value(R"(office:value-type="time" office:time-value="PT08H30M15S")") +
                                  value(R"(office:value-type="boolean" office:boolean-value="true")") +
                                  value(R"(office:value-type="date" office:date-value="ooit")") +
                                  value(R"(office:value-type="time" office:time-value="PT8")") +
                                  value(R"(office:value-type="time" office:time-value="8H")") + cell("x")))),
              "\"1234,5\",\"0,5\",3,20-11-2026,08:30:15,WAAR,,,,x\n");
    EXPECT_EQ(csv_of(document(row(cell("", R"(office:value-type="float" office:value="7")") + cell("x")))), ",x\n");
}

TEST(OpenDocument, spaties_tabs_en_regels_staan_als_elementen) {
    EXPECT_EQ(csv_of(document(
                  row("<table:table-cell><text:p>  Jan\n de<text:s/><text:s text:c=\"2\"/>Wit<text:tab/>x</text:p>"
                      "<text:p>twee<text:line-break/>drie <text:span>vier</text:span></text:p>"
                      "</table:table-cell>"))),
              "\"Jan de   Wit\tx\ntwee\ndrie vier\"\n");
}

TEST(OpenDocument, opmerkingen_en_tekeningen_zijn_geen_tekst_van_de_cel) {
    EXPECT_EQ(csv_of(document("<table:shapes><draw:frame><table:table-row><table:table-cell><text:p>weg</text:p>"
                              "</table:table-cell></table:table-row></draw:frame></table:shapes>" +
                              row("<table:table-cell><office:annotation><text:p>let op</text:p></office:annotation>"
                                  "<text:p>a<office:annotation><text:p>nee</text:p></office:annotation>b</text:p>"
                                  "<draw:frame><text:p>ook niet</text:p></draw:frame></table:table-cell>"))),
              "ab\n");
}

TEST(OpenDocument, herhaalde_cellen_en_rijen_staan_er_evenveel_keer) {
    EXPECT_EQ(csv_of(document(row(cell("a", R"(table:number-columns-repeated="2")") +
                                  R"(<table:table-cell table:number-columns-repeated="2"/>)" + cell("b")) +
                              row(cell("c"), R"(table:number-rows-repeated="2")") +
                              row("<table:table-cell/>", R"(table:number-rows-repeated="3")") + row(cell("d")) +
                              row(R"(<table:table-cell table:number-columns-repeated="16384"/>)",
                                  R"(table:number-rows-repeated="1048569")"))),
              "a,a,,,b\nc,,,,\nc,,,,\n,,,,\n,,,,\n,,,,\nd,,,,\n");
}

TEST(OpenDocument, een_samengevoegde_cel_bedekt_haar_buren) {
    EXPECT_EQ(csv_of(document(row(cell("a", R"(table:number-columns-spanned="2")") +
                                  "<table:covered-table-cell><text:p>bedekt</text:p></table:covered-table-cell>" +
                                  cell("b")))),
              "a,bedekt,b\n"); // what lies below is still there, as in Excel's own cells
}

TEST(OpenDocument, rijen_in_groepen_tellen_mee) {
    EXPECT_EQ(csv_of(document("<table:table-header-rows>" + row(cell("nr")) + "</table:table-header-rows>" +
                              "<table:table-row-group><table:table-row-group>" + row(cell("1")) +
                              "</table:table-row-group></table:table-row-group>" + row(cell("2")))),
              "nr\n1\n2\n");
}

TEST(OpenDocument, meer_cellen_dan_een_blad_mag_hebben_is_te_groot) {
    EXPECT_EQ(csv_of(document(row(cell("a", R"(table:number-columns-repeated="16384")"),
                                  R"(table:number-rows-repeated="1048576")"))),
              std::string(sentence_of(OpenFailure::too_large)));
}

TEST(OpenDocument, bladen_en_breedten) {
    const auto* const styles =
        R"(<style:style style:name="co1"><style:table-column-properties style:column-width="2.54cm"/></style:style>
<style:style style:name="co2"><style:table-column-properties style:column-width="0.5in"/></style:style>
<style:style style:name="co3"><style:table-column-properties style:column-width="25.4mm"/></style:style>
<style:style style:name="co4"><style:table-column-properties style:column-width="30pt"/></style:style>)";
    auto book = open_workbook(document(R"(<table:table-column table:style-name="co1"/>
<table:table-column table:style-name="co2" table:number-columns-repeated="2"/><table:table-column/>
<table:table-column table:style-name="co3" table:visibility="collapse"/><table:table-column table:style-name="co4"/>
<table:table-column table:style-name="co3"/>
<table:table-column table:style-name="co1" table:number-columns-repeated="16377"/>)" +
                                           row(cell("a")),
                                       styles))
                    .value();
    ASSERT_EQ(book->sheets().size(), 2U);
    EXPECT_EQ(book->sheets()[0].name, "Dag 1");
    const std::array expected{72.0, 36.0, 36.0, 48.0, 0.0, 30.0, 72.0};
    const Sheet sheet = book->read_sheet(0).value();
    ASSERT_EQ(sheet.column_widths.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_DOUBLE_EQ(sheet.column_widths[i], expected[i]) << i;
    EXPECT_EQ(csv_of(document(""), 2), "twee\n");
    EXPECT_FALSE(book->read_sheet(2).has_value());
}

// The text that a cell of this type shows.
std::string shown(std::string_view type, std::string_view value, std::string_view land = "en-US") {
    const std::string name = type == "float" ? "value" : std::string(type) + "-value";
    std::string csv = csv_of(document(row("<table:table-cell office:value-type=\"" + std::string(type) +
                                          "\" office:" + name + "=\"" + std::string(value) + "\"/>")),
                             1, land);
    if (csv.ends_with('\n')) csv.pop_back();
    return csv;
}

TEST(OpenDocument, een_tijd_heeft_uren_minuten_en_seconden) {
    EXPECT_EQ(shown("time", "PT08H30M15S"), "08:30:15");
    EXPECT_EQ(shown("time", "PT1H"), "01:00:00");
    EXPECT_EQ(shown("time", "PT1M"), "00:01:00");
    EXPECT_EQ(shown("time", "PT1S"), "00:00:01");
    EXPECT_EQ(shown("time", "PT1.5H"), "01:30:00");
    EXPECT_EQ(shown("time", "PT"), "00:00:00");
    EXPECT_EQ(shown("time", "PT1D"), "");
    EXPECT_EQ(shown("time", "PT1"), "");
    EXPECT_EQ(shown("time", "PTH"), "");
    EXPECT_EQ(shown("time", "PT1H2"), "");
    EXPECT_EQ(shown("time", "P1DT1H"), "");
    EXPECT_EQ(shown("time", "xPT1H"), "");
    EXPECT_EQ(shown("date", "1899-12-30"), "");
    EXPECT_EQ(shown("date", "1900-01-01"), "1/1/00");
    EXPECT_EQ(shown("boolean", "false"), "FALSE");
    EXPECT_EQ(shown("boolean", "true"), "TRUE");
    EXPECT_EQ(shown("string", "x"), "");
    EXPECT_EQ(shown("float", "x"), "");
}

TEST(OpenDocument, breedten_hebben_een_eenheid) {
    struct Width {
        std::string_view written;
        double points;
    };
    constexpr std::array<Width, 12> table = {{
        {"2.54cm", 72},
        {"25.4mm", 72},
        {"2in", 144},
        {"3pc", 36},
        {"8px", 6},
        {"30pt", 30},
        {"30", 30},
        {"30x", 30},
        {"-1cm", 0},
        {"breed", 0},
        {"inf", 0},
        {"0cm", 0},
    }};
    for (const auto& [written, points] : table) {
        const std::string style = "<style:style style:name='a'><style:table-column-properties style:column-width='" +
                                  std::string(written) + "'/></style:style>";
        const Sheet sheet =
            open_workbook(document("<table:table-column table:style-name='a'/>", style)).value()->read_sheet(0).value();
        ASSERT_EQ(sheet.column_widths.size(), 1U);
        EXPECT_DOUBLE_EQ(sheet.column_widths[0], points) << written;
    }
}

TEST(OpenDocument, een_kolom_zonder_stijl_houdt_de_gewone_breedte) {
    const auto* const styles =
        R"(<style:style style:name="a"><style:table-column-properties style:column-width="10pt"/></style:style>
<style:style style:name="b"><style:table-column-properties/><style:x style:column-width="9pt"/></style:style>
<style:anders style:name="a"><style:x/></style:anders><style:style><style:table-column-properties style:column-width="20pt"/></style:style>)";
    const auto widths = [styles](std::string_view columns) {
        return open_workbook(document(columns, styles)).value()->read_sheet(0)->column_widths;
    };
    EXPECT_EQ(widths(R"(<table:table-column table:style-name="b"/><table:table-column table:style-name="a"/>)"),
              (std::vector<double>{48, 10}));
    EXPECT_EQ(widths(R"(<table:table-column/><table:table-column table:style-name="weg"/>)"),
              (std::vector<double>{20}));
    EXPECT_EQ(widths(R"(<table:table-column table:visibility="visible" table:style-name="a"/>
<table:table-column table:visibility="filter" table:style-name="a"/><table:table-column table:style-name="a"/>)"),
              (std::vector<double>{10, 0, 10}));
    EXPECT_EQ(widths(R"(<table:table-column table:style-name="a" table:number-columns-repeated="0"/>
<table:table-column table:visibility="collapse"/>)"),
              (std::vector<double>{10, 0}));
    EXPECT_EQ(widths(R"(<table:table-column table:style-name="a" table:number-columns-repeated="16383"/>)").size(),
              16383U);
    EXPECT_EQ(widths(R"(<table:table-column table:style-name="a" table:number-columns-repeated="16384"/>)").size(), 0U);
    EXPECT_EQ(widths(R"(<table:table-column table:number-columns-repeated="16384"/>
<table:table-column table:style-name="a"/>)")
                  .size(),
              0U);
}

TEST(OpenDocument, witruimte_telt_als_een_spatie_behalve_als_element) {
    const auto text = [](std::string_view inside) {
        std::string csv = csv_of(document(row("<table:table-cell>" + std::string(inside) + "</table:table-cell>")));
        if (csv.ends_with('\n')) csv.pop_back();
        return csv;
    };
    EXPECT_EQ(text("<text:p>a&#9;b</text:p>"), "a b");
    EXPECT_EQ(text("<text:p>a&#13;b&#10;&#10;c  d</text:p>"), "a b c d");
    EXPECT_EQ(text("<text:p>a<text:s/> b</text:p>"), "a b");
    EXPECT_EQ(text("<text:p>a<text:line-break/> b</text:p>"), "\"a\nb\"");
    EXPECT_EQ(text("<text:p>a<text:s text:c='3'/>b</text:p>"), "a   b");
    EXPECT_EQ(text("<text:p>a<text:s text:c='0'/>b</text:p>"), "ab");
    EXPECT_EQ(text("<text:p>a<text:s text:c='99999'/>b</text:p>"), "a" + std::string(1024, ' ') + "b");
    EXPECT_EQ(text("<text:p/><text:p>b</text:p>"), "\"\nb\"");
    EXPECT_EQ(text("<text:p>a</text:p>weg<text:p>b</text:p>"), "\"a\nb\"");
    EXPECT_EQ(text("<text:list><text:p>weg</text:p></text:list><text:p>a<text:note>weg</text:note>b</text:p>"), "ab");
    EXPECT_EQ(text("<text:h>weg</text:h>"), "");
    EXPECT_EQ(text("<text:p><text:a>b<text:p>c</text:p></text:a>d</text:p>"), "bcd");
}

TEST(OpenDocument, alles_telt_alleen_op_zijn_eigen_plaats) {
    EXPECT_EQ(csv_of(document("los<table:x><table:table-cell><text:p>buiten</text:p></table:table-cell></table:x>")),
              "");
    EXPECT_EQ(csv_of(document("<office:forms>" + row(cell("weg")) + "</office:forms>" + row(cell("a")))), "a\n");
    EXPECT_EQ(csv_of(document(row(cell("a") + "<table:anders/>" + cell("b")))), "a,b\n");
    EXPECT_EQ(
        csv_of(document(row("<table:covered-table-cell office:value-type='float' office:value='7'/>" + cell("b")))),
        ",b\n"); // only its text is shown
    const auto book = open_workbook(test::zip_of(
        {{"content.xml", "<a><b><spreadsheet><x/><table name='1'/></spreadsheet></b><c><d><table name='2'/></d>"
                         "<spreadsheet><y><table name='3'/></y><table/></spreadsheet></c></a>"}}));
    ASSERT_TRUE(book.has_value());
    ASSERT_EQ((*book)->sheets().size(), 2U);
    EXPECT_EQ((*book)->sheets()[0].name, "1");
    EXPECT_EQ((*book)->sheets()[1].name, "");
    EXPECT_EQ((*book)->read_sheet(2).error(), OpenFailure::unreadable);
    EXPECT_FALSE((*book)->dates_from_1904());
}

TEST(OpenDocument, heeft_een_inhoud_en_geen_verwijzingen) {
    EXPECT_EQ(csv_of(test::zip_of({{"a", "b"}})), test::no_workbook);
    const std::string empty = "<a><b><spreadsheet><table/></spreadsheet></b></a>";
    EXPECT_EQ(csv_of(test::zip_of({{"content.xml", empty}})), "");
    EXPECT_NE(csv_of(test::zip_of({{"content.xml", empty}, {"_rels/.rels", "<Relationships/>"}})), "");
}

TEST(OpenDocument, meer_bladen_dan_een_werkmap_mag_hebben_vallen_weg) {
    std::string tables = "</table:table>";
    for (std::size_t i = 0; i < most_sheets; ++i)
        tables += "<table:table/>";
    EXPECT_EQ(open_workbook(document(tables + "<table:table>")).value()->sheets().size(), most_sheets);
}

TEST(OpenDocument, herhalingen_eindigen_met_het_blad) {
    const auto sheet = [](std::string_view rows) {
        return open_workbook(document(rows)).value()->read_sheet(0).value();
    };
    Sheet wide = sheet(row(cell("", R"(table:number-columns-repeated="16383")") +
                           cell("a", R"(table:number-columns-repeated="9")") + cell("b")));
    ASSERT_EQ(wide.cells.size(), 1U);
    EXPECT_EQ(wide.cells[0].column, 16383);
    Sheet tall = sheet(row("", R"(table:number-rows-repeated="1048575")") +
                       row(cell("a"), R"(table:number-rows-repeated="9")") + row(cell("b")));
    ASSERT_EQ(tall.cells.size(), 1U);
    EXPECT_EQ(tall.cells[0].row, 1048575U);
    EXPECT_EQ(csv_of(document(row(cell("a", R"(table:number-columns-repeated="0")") + cell("b"),
                                  R"(table:number-rows-repeated="0")") +
                              row(cell("c")))),
              "a,b\nc,\n");
}

TEST(OpenDocument, met_een_wachtwoord_of_beschadigd_wordt_dat_gezegd) {
    const auto locked =
        test::zip_of({{"content.xml", "\x01\x02"},
                      {"META-INF/manifest.xml",
                       "<m:manifest xmlns:m='m'><m:file-entry><m:encryption-data/></m:file-entry></m:manifest>"}});
    EXPECT_EQ(csv_of(locked), std::string(sentence_of(OpenFailure::password)));
    EXPECT_EQ(csv_of(test::zip_of({{"content.xml", "<office"}})), test::damaged);
    EXPECT_EQ(csv_of(test::zip_of({{"content.xml", "<a><b><c/></b></a>"}})), test::no_workbook);
}

} // namespace
} // namespace tavelo
