#include "read_sheet.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using test::csv_of;
using test::damaged;

std::string spreadsheet(std::string_view rows, std::string_view styles = "", std::string_view before = "") {
    std::string xml = R"(<?xml version="1.0"?><?mso-application progid="Excel.Sheet"?>
<Workbook xmlns="urn:schemas-microsoft-com:office:spreadsheet" xmlns:ss="urn:schemas-microsoft-com:office:spreadsheet">)";
    xml += before;
    xml += "<Styles>" + std::string(styles) + "</Styles>";
    return xml + R"(<Worksheet ss:Name="Dag 1"><Table>)" + std::string(rows) +
           R"(</Table></Worksheet><Worksheet ss:Name="Dag 2"><Table><Row><Cell><Data ss:Type="String">twee</Data></Cell></Row></Table></Worksheet></Workbook>)";
}

std::string row(std::string_view cells) { return "<Row>" + std::string(cells) + "</Row>"; }

std::string cell(std::string_view type, std::string_view value, std::string_view attributes = "") {
    return "<Cell " + std::string(attributes) + "><Data ss:Type=\"" + std::string(type) + "\">" + std::string(value) +
           "</Data></Cell>";
}

// A number under a format.
std::string shown(std::string_view type, std::string_view value, std::string_view format,
                  std::string_view land = "nl-NL") {
    const std::string styles =
        R"(<Style ss:ID="s1"><NumberFormat ss:Format=")" + std::string(format) + R"("/></Style>)";
    std::string csv = csv_of(spreadsheet(row(cell(type, value, R"(ss:StyleID="s1")")), styles), 1, land);
    if (csv.ends_with('\n')) csv.pop_back();
    return csv;
}

TEST(Xml2003, waarden_staan_er_als_in_een_werkmap) {
    EXPECT_EQ(csv_of(spreadsheet(row(cell("Number", "1234.5") + cell("String", "Zo&#235; &amp; Bo") +
                                     cell("Boolean", "1") + cell("Error", "#N/A") + cell("String", "007")))),
              "\"1234,5\",Zoë & Bo,WAAR,#N/B,007\n");
    EXPECT_EQ(csv_of(spreadsheet(row(cell("Number", "geen") + cell("Boolean", "ja") + cell("Error", "#X") +
                                     cell("DateTime", "ooit")))),
              "geen,ja,#X,ooit\n");
}

TEST(Xml2003, getallen_en_datums_volgen_hun_opmaak) {
    EXPECT_EQ(shown("Number", "1234.5", "#,##0.00"), "\"1.234,50\"");
    EXPECT_EQ(shown("DateTime", "2026-11-20T08:30:00.000", "d\\-m\\-yyyy\\ hh:mm"), "20-11-2026 08:30");
    EXPECT_EQ(shown("Number", "7", ""), "7");
}

TEST(Xml2003, een_opmaak_met_een_naam_is_de_ingebouwde) {
    const auto* const moment = "2026-11-20T15:07:12.000";
    EXPECT_EQ(shown("Number", "0.5", "Percent"), "\"50,00%\"");
    EXPECT_EQ(shown("Number", "1234.5", "Standard"), "\"1.234,50\"");
    EXPECT_EQ(shown("Number", "1234.5", "Fixed"), "\"1234,50\"");
    EXPECT_EQ(shown("Number", "1234.5", "Scientific"), "\"1,23E+03\"");
    EXPECT_EQ(shown("Number", "-1234.5", "Currency"), "\"€ -1.234,50\"");
    EXPECT_EQ(shown("Number", "-2", "Euro Currency"), "\"-€ 2,00\"");
    EXPECT_EQ(shown("Number", "1234.5", "General"), "\"1234,5\"");
    EXPECT_EQ(shown("Number", "1234.5", "General Number"), "\"1234,5\"");
    EXPECT_EQ(shown("DateTime", moment, "General Date"), "20-11-2026 15:07");
    EXPECT_EQ(shown("DateTime", moment, "Long Date"), "vrijdag 20 november 2026");
    EXPECT_EQ(shown("DateTime", moment, "Medium Date"), "20-nov-26");
    EXPECT_EQ(shown("DateTime", moment, "Short Date"), "20-11-2026");
    EXPECT_EQ(shown("DateTime", moment, "Long Time"), "3:07:12 PM");
    EXPECT_EQ(shown("DateTime", moment, "Medium Time"), "3:07 PM");
    EXPECT_EQ(shown("DateTime", moment, "Short Time"), "15:07");
    EXPECT_EQ(shown("Number", "1", "Yes/No"), "Ja");
    EXPECT_EQ(shown("Number", "0", "True/False"), "Onwaar");
    EXPECT_EQ(shown("Number", "0", "On/Off"), "Uit");
}

TEST(Xml2003, een_cel_heeft_haar_stijl_of_die_van_rij_kolom_of_werkmap) {
    const auto* const styles = R"(<Style ss:ID="Default"><NumberFormat ss:Format="0.0"/></Style>
<Style ss:ID="k"><NumberFormat ss:Format="0.00"/></Style><Style ss:ID="kind" ss:Parent="k"/>
<Style ss:ID="r"><NumberFormat ss:Format="0.000"/></Style><Style ss:ID="c"><NumberFormat ss:Format="0"/></Style>
<Style ss:ID="gewoon"><Font/></Style>)";
    EXPECT_EQ(
        csv_of(spreadsheet(
                   R"(<Column ss:Index="2" ss:Span="1" ss:StyleID="k"/>)" +
                       row(cell("Number", "1") + cell("Number", "1") + cell("Number", "1")) +
                       R"(<Row ss:StyleID="r">)" + cell("Number", "1") + cell("Number", "1", R"(ss:StyleID="c")") +
                       cell("Number", "1", R"(ss:StyleID="kind")") + "</Row>" +
                       row(cell("Number", "1", R"(ss:StyleID="gewoon")") + cell("Number", "1", R"(ss:StyleID="weg")")),
                   styles),
               1, "en-US"),
        "1.0,1.00,1.00\n1.000,1,1.00\n1.0,1,\n");
}

TEST(Xml2003, index_en_samenvoegen_bepalen_de_plaats) {
    EXPECT_EQ(csv_of(spreadsheet(row(cell("String", "a", R"(ss:Index="2" ss:MergeAcross="1")") + cell("String", "b")) +
                                 R"(<Row ss:Index="3">)" + cell("String", "c") + "</Row>" + R"(<Row ss:Span="1"/>)" +
                                 row(cell("String", "d")))),
              ",a,,b\n,,,\nc,,,\n,,,\n,,,\nd,,,\n");
    EXPECT_EQ(csv_of(spreadsheet(row(cell("String", "a", R"(ss:Index="2")") + cell("String", "b", R"(ss:Index="1")") +
                                     cell("String", "c", R"(ss:Index="2")")))),
              "b,c\n"); // backwards, and the last one stays
    EXPECT_EQ(csv_of(spreadsheet(row(cell("String", "a", R"(ss:Index="4000000000")") + cell("String", "b")) +
                                 R"(<Row ss:Index="4000000000">)" + cell("String", "c") + "</Row>")),
              "");
}

TEST(Xml2003, opgemaakte_tekst_telt_mee_en_een_opmerking_niet) {
    EXPECT_EQ(csv_of(spreadsheet(
                  row(R"(<Cell><ss:Data ss:Type="String" xmlns="http://www.w3.org/TR/REC-html40"><B>Zo</B>ë</ss:Data>)"
                      R"(<Comment><ss:Data>let op</ss:Data></Comment></Cell>)"))),
              "Zoë\n");
}

TEST(Xml2003, datums_kunnen_in_1904_beginnen) {
    const std::string styles = R"(<Style ss:ID="s1"><NumberFormat ss:Format="Short Date"/></Style>)";
    EXPECT_EQ(csv_of(spreadsheet(row(cell("DateTime", "2026-11-20T00:00:00.000", R"(ss:StyleID="s1")") +
                                     cell("Number", "0", R"(ss:StyleID="s1")")),
                                 styles, "<ExcelWorkbook><Date1904/></ExcelWorkbook>")),
              "20-11-2026,1-1-1904\n");
}

TEST(Xml2003, bladen_en_breedten) {
    auto book =
        open_workbook(
            test::bytes_of(spreadsheet(
                R"(<Column ss:Width="30"/><Column ss:Index="3" ss:Span="1" ss:Width="60.5"/><Column ss:Hidden="1"/>)" +
                row(cell("Number", "1")))))
            .value();
    ASSERT_EQ(book->sheets().size(), 2U);
    EXPECT_EQ(book->sheets()[1].name, "Dag 2");
    EXPECT_EQ(book->read_sheet(0)->column_widths, (std::vector<double>{30, 48, 60.5, 60.5, 0}));
    EXPECT_EQ(csv_of(spreadsheet(""), 2), "twee\n");
    EXPECT_FALSE(book->read_sheet(2).has_value());
}

TEST(Xml2003, lege_regels_vooraan_en_een_andere_tekenset_gaan_open) {
    EXPECT_EQ(csv_of("\r\n\r\n" + spreadsheet(row(cell("String", "a")))), "a\n");
    std::string western = spreadsheet(row(cell("String", "Zo\xEB")));
    western.replace(western.find("?>"), 2, " encoding=\"windows-1252\"?>");
    EXPECT_EQ(csv_of(western), "Zoë\n");
}

TEST(Xml2003, een_afgebroken_bestand_is_beschadigd) {
    const std::string whole = spreadsheet(row(cell("String", "a")));
    EXPECT_EQ(csv_of(whole.substr(0, whole.size() - 20)), damaged);
    EXPECT_EQ(csv_of("<!DOCTYPE x [<!ENTITY a 'b'>]>" + whole.substr(whole.find("<Workbook"))), damaged);
    EXPECT_EQ(csv_of(R"(<Workbook xmlns="urn:schemas-microsoft-com:office:spreadsheet"/>)"), damaged);
    EXPECT_EQ(csv_of(R"(<Anders xmlns="urn:schemas-microsoft-com:office:spreadsheet"/>)"), test::no_workbook);
}

} // namespace
} // namespace tavelo
