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
    EXPECT_EQ(book->read_sheet(2).error(), OpenFailure::unreadable);
}

TEST(Xml2003, alles_telt_alleen_op_zijn_eigen_plaats) {
    const auto* const odd = R"(<Anders><Worksheet ss:Name="weg"/><Date1904x/><X><NumberFormat ss:Format="0.0"/>
<Date1904/></X></Anders><NumberFormat ss:Format="0.0"/><Date1904/>)";
    const auto* const styles =
        R"(<Style ss:ID="s1"><NumberFormat ss:Format="0.00"/><X><NumberFormat ss:Format="0.0"/></X><Y ss:Format="0"/></Style>
<Other><NumberFormat ss:Format="0.0"/></Other><Style ss:ID="s2" ss:Parent="s1"><NumberFormat/></Style>
<Style ss:ID="s3"><NumberFormat ss:Format="0.00"/></Style><Stijl ss:ID="s1"/><Style/>)";
    const std::string rows =
        R"(<Rij/><Kolom ss:Index="9" ss:Width="5"/><X><Row ss:Index="9"/></X>)"
        R"(<Row><Cel ss:Index="9"/><X><Cell ss:Index="9"/></X>)" +
        cell("Number", "1", R"(ss:StyleID="s1")") +
        R"(<Cell><Anders ss:Type="Number">2</Anders><X><Data ss:Type="Number">3</Data></X></Cell>)" +
        cell("Number", "4", R"(ss:StyleID="s2")") + cell("Number", "5", R"(ss:StyleID="s3")") +
        R"(<Cell><Data>6</Data><Data ss:Type="String">7</Data></Cell></Row>)";
    auto book = open_workbook(test::bytes_of(spreadsheet(rows, styles, odd))).value();
    EXPECT_EQ(blad_als_csv(*book, 1, locale_named("en-US")), "1.00,,4,5.00,67\r\n");
    EXPECT_EQ(book->sheets().size(), 2U);
    EXPECT_FALSE(book->dates_from_1904());
    EXPECT_EQ(book->formats().size(), 2U); // each code once
    EXPECT_EQ(
        csv_of(R"(<x xmlns="urn:schemas-microsoft-com:office:spreadsheet"><Workbook><Worksheet/></Workbook></x>)"),
        test::no_workbook);
    EXPECT_EQ(csv_of(R"(<Workbook xmlns="urn:schemas-microsoft-com:office:spreadsheet"><Worksheet><Anders><Row><Cell>)"
                     R"(<Data>1</Data></Cell></Row></Anders><Table><Row><Cell><Data>2</Data></Cell></Row></Table>)"
                     R"(<Na><Row><Cell><Data>3</Data></Cell></Row></Na></Worksheet></Workbook>)"),
              "2\n");
}

TEST(Xml2003, een_waarde_die_niet_klopt_blijft_tekst) {
    EXPECT_EQ(csv_of(spreadsheet(row(cell("Number", " 7 ") + cell("Number", "7x") + cell("Number", "1e999") +
                                     cell("Number", "-7e-1") + cell("Number", "inf") + cell("Number", "nan") +
                                     cell("Number", "x7")))),
              "7,7x,1e999,\"-0,7\",inf,nan,x7\n");
    EXPECT_EQ(csv_of(spreadsheet(row(cell("Boolean", "0") + cell("Boolean", " 1 ") + cell("Boolean", "2") +
                                     cell("Boolean", "10") + cell("String", "1") + cell("Boolean", "x")))),
              "ONWAAR,WAAR,2,10,1,x\n");
    EXPECT_EQ(csv_of(spreadsheet(row(cell("Error", "#REF!") + cell("Error", " #NAME? ") + cell("Error", "REF") +
                                     cell("Anders", "#REF!") + cell("DateTime", "1899-12-30T00:00:00.000") +
                                     cell("DateTime", "1900-01-01T00:00:00.000") + cell("String", " x ")))),
              "#VERW!,#NAAM?,REF,#REF!,1899-12-30T00:00:00.000,1, x \n");
}

TEST(Xml2003, een_plaats_telt_vanaf_een) {
    EXPECT_EQ(csv_of(spreadsheet(row(cell("String", "a", R"(ss:Index="0")") + cell("String", "b", R"(ss:Index="1")") +
                                     cell("String", "c", R"(ss:MergeAcross="0")") + cell("String", "d")))),
              "b,c,d\n");
    EXPECT_EQ(csv_of(spreadsheet(R"(<Row ss:Index="0" ss:Span="0">)" + cell("String", "a") + "</Row>" +
                                 R"(<Row ss:Index="1">)" + cell("String", "b") + "</Row>" + row(cell("String", "c")))),
              "b\nc\n");
    const Sheet sheet =
        open_workbook(test::bytes_of(spreadsheet(
                          R"(<Column ss:Index="16384" ss:Width="10"/><Column ss:Width="20"/>)" +
                          row(cell("String", "a", R"(ss:Index="16384" ss:MergeAcross="99")") + cell("String", "weg")) +
                          R"(<Row ss:Index="1048576">)" + cell("String", "b") + "</Row>" + row(cell("String", "weg")))))
            .value()
            ->read_sheet(0)
            .value();
    ASSERT_EQ(sheet.cells.size(), 2U);
    EXPECT_EQ(sheet.cells[0].column, 16383);
    EXPECT_EQ(sheet.cells[1].row, 1048575U);
    EXPECT_EQ(sheet.column_widths.size(), sheet_columns);
    EXPECT_EQ(sheet.column_widths.back(), 10);
}

TEST(Xml2003, kolommen_hebben_een_breedte_en_een_stijl) {
    const auto* const styles = R"(<Style ss:ID="k"><NumberFormat ss:Format="0.00"/></Style>)";
    auto book =
        open_workbook(test::bytes_of(spreadsheet(
                          R"(<Column ss:StyleID="k"/><Column ss:Index="3" ss:StyleID="k" ss:Width="-5"/>)"
                          R"(<Column ss:Span="2" ss:Width="20" ss:Hidden="0"/><Column ss:StyleID="k" ss:Width="30"/>)"
                          R"(<Column ss:Hidden="1" ss:Width="9"/>)" +
                              row(cell("Number", "1") + cell("Number", "1") + cell("Number", "1") +
                                  cell("Number", "1", R"(ss:Index="7")") + cell("Number", "1")),
                          styles)))
            .value();
    EXPECT_EQ(blad_als_csv(*book, 1, locale_named("en-US")), "1.00,1,1.00,,,,1.00,1\r\n");
    EXPECT_EQ(book->read_sheet(0)->column_widths, (std::vector<double>{48, 48, 0, 20, 20, 20, 30, 0}));
    const std::string wide =
        R"(<Workbook xmlns="urn:schemas-microsoft-com:office:spreadsheet"><Worksheet>)"
        R"(<Table DefaultColumnWidth="60.5"><Column Index="2" Width="7"/></Table></Worksheet></Workbook>)";
    EXPECT_EQ(open_workbook(test::bytes_of(wide)).value()->read_sheet(0)->column_widths,
              (std::vector<double>{60.5, 7}));
    EXPECT_EQ(open_workbook(test::bytes_of(wide)).value()->read_sheet(0)->default_column_width, 60.5);
}

TEST(Xml2003, een_stijl_zonder_opmaak_en_zonder_ouder_is_standaard) {
    const auto* const styles = R"(<Style ss:ID="a"><NumberFormat ss:Format="0.00"/></Style><Style ss:ID="b"/>
<Style ss:ID="c" ss:Parent="weg"/><Style ss:ID="d" ss:Parent="a"/><Style ss:ID="e"><NumberFormat ss:Format="Long Date"/></Style>)";
    auto book =
        open_workbook(test::bytes_of(spreadsheet(row(cell("Number", "1", R"(ss:StyleID="a")") +
                                                     cell("Number", "1", R"(ss:StyleID="b")") +
                                                     cell("Number", "1", R"(ss:StyleID="c")") +
                                                     cell("Number", "1", R"(ss:StyleID="d")") + cell("Number", "1")),
                                                 styles)))
            .value();
    EXPECT_EQ(blad_als_csv(*book, 1, locale_named("en-US")), "1.00,1,1,1.00,1\r\n");
    ASSERT_EQ(book->formats().size(), 3U);
    EXPECT_EQ(book->formats()[2], "[$-F800]dddd, mmmm dd, yyyy");
}

TEST(Xml2003, een_naam_voor_een_opmaak_heeft_ook_een_andere_kant) {
    EXPECT_EQ(shown("Number", "0", "Yes/No"), "Nee");
    EXPECT_EQ(shown("Number", "-1", "Yes/No"), "Ja");
    EXPECT_EQ(shown("Number", "1", "True/False"), "Waar");
    EXPECT_EQ(shown("Number", "-1", "True/False"), "Waar");
    EXPECT_EQ(shown("Number", "1", "On/Off"), "Aan");
    EXPECT_EQ(shown("Number", "-1", "On/Off"), "Aan");
    EXPECT_EQ(shown("Number", "2", "Euro Currency"), "\"€ 2,00\"");
}

TEST(Xml2003, meer_bladen_dan_een_werkmap_mag_hebben_vallen_weg) {
    std::string xml = R"(<Workbook xmlns="urn:schemas-microsoft-com:office:spreadsheet">)";
    for (std::size_t i = 0; i <= most_sheets; ++i)
        xml += "<Worksheet/>";
    EXPECT_EQ(open_workbook(test::bytes_of(xml + "</Workbook>")).value()->sheets().size(), most_sheets);
}

TEST(Xml2003, lege_regels_vooraan_en_een_andere_tekenset_gaan_open) {
    EXPECT_EQ(csv_of(" \t\r\n" + spreadsheet(row(cell("String", "a")))), "a\n");
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
