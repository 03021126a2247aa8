#include "workbook/xlsx/opened_sheet.h"
#include "workbook/xlsx/styles.h"
#include "workbook/xlsx/xlsx_maker.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using test::opened;
using test::XlsxMaker;
using Box = std::vector<std::uint32_t>; // first row, first column, rows, columns

Box used_of(std::string sheet_data, std::string before = "") {
    return opened(XlsxMaker{.sheet_data = std::move(sheet_data), .before_sheet_data = std::move(before)}.bytes())
        .used();
}

TEST(XlsxBlad, het_gebruikte_bereik_is_de_rechthoek_om_alle_cellen_ook_lege_met_opmaak) {
    EXPECT_EQ(used_of(R"(<row r="3"><c r="B3"><v>1</v></c></row><row r="5"><c r="D5" s="0"/></row>)"),
              (Box{2, 1, 3, 3}));
}

TEST(XlsxBlad, een_leeg_blad_heeft_geen_rijen_en_geen_kolommen) { EXPECT_EQ(used_of(""), (Box{0, 0, 0, 0})); }

TEST(XlsxBlad, een_kale_rij_telt_mee) {
    EXPECT_EQ(used_of(R"(<row r="1"/><row r="2"><c r="A2"><v>1</v></c></row><row r="4"/>)"), (Box{0, 0, 4, 1}));
    EXPECT_EQ(used_of(R"(<row r="2"><c r="A2"><v>1</v></c></row><row r="4" ht="40" customHeight="1"/>)"),
              (Box{1, 0, 3, 1}));
}

TEST(XlsxBlad, een_rij_met_niets_eigens_telt_niet_mee) {
    EXPECT_EQ(used_of(R"(<row r="1"><c r="A1"><v>1</v></c></row><row r="9" ht="12.75" customHeight="false"/>)"),
              (Box{0, 0, 1, 1}));
    EXPECT_EQ(used_of(R"(<row r="1"><c r="A1"><v>1</v></c></row><row r="9" customFormat="1"/>)"), (Box{0, 0, 1, 1}));
}

TEST(XlsxBlad, een_kolom_met_een_eigen_opmaak_telt_mee_en_die_van_het_hele_blad_niet) {
    const std::string row = R"(<row r="1"><c r="B1"><v>1</v></c></row>)";
    EXPECT_EQ(used_of(row, R"(<cols><col min="4" max="5" width="9" style="2"/></cols>)"), (Box{0, 1, 1, 4}));
    EXPECT_EQ(used_of(row, R"(<cols><col min="4" max="5" width="9" style="0"/></cols>)"), (Box{0, 1, 1, 1}));
    EXPECT_EQ(
        used_of(
            row,
            R"(<cols><col min="1" max="5" width="9" style="2"/><col min="6" max="16384" width="8" style="2"/></cols>)"),
        (Box{0, 1, 1, 1}));
}

TEST(XlsxBlad, de_opgegeven_afmeting_telt_niet) {
    EXPECT_EQ(used_of(R"(<row r="1"><c r="A1"><v>1</v></c></row>)", R"(<dimension ref="A1:XFD1048576"/>)"),
              (Box{0, 0, 1, 1}));
}

TEST(XlsxBlad, de_laatste_cel_van_het_blad_kost_niets) {
    const auto sheet = opened(XlsxMaker{
        .sheet_data = R"(<row r="1"><c r="A1"><v>1</v></c></row><row r="1048576"><c r="XFD1048576"><v>2</v></c></row>)"}
                                  .bytes());
    EXPECT_EQ(sheet.used(), (Box{0, 0, 1048576, 16384}));
    EXPECT_EQ(sheet.sheet.cells.size(), 2U);
}

const std::string calibri =
    R"(<fonts><font><sz val="11"/><name val="Calibri"/></font></fonts><cellStyleXfs><xf fontId="0"/></cellStyleXfs>)";

TEST(XlsxBlad, kolombreedten_in_punten) {
    const auto sheet =
        opened(
            XlsxMaker{
                .before_sheet_data =
                    R"(<cols><col min="1" max="1" width="9.140625"/><col min="3" max="4" width="16.7109375"/><col min="5" max="5" width="20" hidden="1"/></cols>)",
                .styles = calibri}
                .bytes())
            .sheet;
    EXPECT_EQ(sheet.default_column_width, 48.0);
    EXPECT_EQ(sheet.column_widths, (std::vector{48.0, 48.0, 87.75, 87.75, 0.0}));
}

TEST(XlsxBlad, de_gewone_breedte_van_het_blad) {
    const auto default_of = [](const std::string& attributes) {
        return opened(XlsxMaker{.before_sheet_data = "<sheetFormatPr " + attributes + "/>", .styles = calibri}.bytes())
            .sheet.default_column_width;
    };
    EXPECT_EQ(default_of(R"(defaultRowHeight="15")"), 48.0);
    EXPECT_EQ(default_of(R"(baseColWidth="10")"), 60.0);
    EXPECT_EQ(default_of(R"(defaultColWidth="16.7109375")"), 87.75);
    EXPECT_EQ(default_of(R"(defaultColWidth="onzin" baseColWidth="-3")"), 48.0);
}

TEST(XlsxBlad, de_breedte_hangt_aan_het_lettertype_van_de_standaardstijl) {
    const auto sheet =
        opened(
            XlsxMaker{
                .before_sheet_data = R"(<cols><col min="1" max="1" width="16.625"/></cols>)",
                .styles =
                    R"(<fonts><font><sz val="9"/><name val="Arial"/></font><font><sz val="12"/><name val="Calibri"/></font></fonts><cellStyleXfs><xf fontId="0"/><xf fontId="1"/></cellStyleXfs><cellStyles><cellStyle name="Kop" xfId="0" builtinId="16"/><cellStyle name="Standaard" xfId="1" builtinId="0"/></cellStyles>)"}
                .bytes())
            .sheet;
    EXPECT_EQ(sheet.column_widths, std::vector{133 * 0.75});
}

TEST(XlsxBlad, een_reeks_kolommen_buiten_het_blad_wordt_afgekapt) {
    const auto sheet =
        opened(
            XlsxMaker{
                .before_sheet_data =
                    R"(<cols><col min="1" max="4294967295" width="9.140625"/><col min="0" max="3" width="1"/><col min="20000" max="20001" width="1"/></cols>)",
                .styles = calibri}
                .bytes())
            .sheet;
    EXPECT_EQ(sheet.column_widths.size(), 16384U);
    EXPECT_EQ(sheet.column_widths.front(), 48.0);
}

TEST(XlsxBlad, opmaakcodes_van_de_werkmap_zelf_en_ingebouwde) {
    const auto sheet = opened(XlsxMaker{
        .sheet_data =
            R"(<row r="1"><c r="A1" s="0"><v>0.5</v></c><c r="B1" s="1"><v>0.5</v></c><c r="C1" s="2"><v>0.5</v></c><c r="D1" s="3"><v>0.5</v></c><c r="E1" s="99"><v>0.5</v></c><c r="F1" s="4"><v>0.5</v></c></row>)",
        .styles =
            R"(<numFmts><numFmt numFmtId="164" formatCode="hh&quot; uur &quot;mm"/><numFmt numFmtId="9" formatCode="0.000"/></numFmts><cellXfs><xf/><xf numFmtId="164"/><xf numFmtId="10"/><xf numFmtId="9"/><xf numFmtId="4000"/></cellXfs><dxfs><dxf><numFmt numFmtId="164" formatCode="@"/></dxf></dxfs>)"}
                                  .bytes());
    EXPECT_EQ(sheet.shown("A1"), "0,5");
    EXPECT_EQ(sheet.shown("B1"), "12 uur 00");
    EXPECT_EQ(sheet.shown("C1"), "50,00%");
    EXPECT_EQ(sheet.shown("D1"), "0,500");
    EXPECT_EQ(sheet.shown("E1"), "0,5");
    EXPECT_EQ(sheet.shown("F1"), "0,5");
}

TEST(XlsxBlad, een_kolom_zonder_begin_of_eind_telt_niet) {
    const auto widths = [](const std::string& columns) {
        return opened(XlsxMaker{.before_sheet_data = "<cols>" + columns + "</cols>", .styles = calibri}.bytes())
            .sheet.column_widths;
    };
    EXPECT_EQ(widths(R"(<col max="3" width="9.140625"/>)"), std::vector<double>());
    EXPECT_EQ(widths(R"(<col min="3" width="9.140625"/>)"), std::vector<double>());
    EXPECT_EQ(widths(R"(<col min="0" max="3" width="9.140625"/>)"), std::vector<double>());
    EXPECT_EQ(widths(R"(<col min="16385" max="16385" width="9.140625"/>)"), std::vector<double>());
    EXPECT_EQ(widths(R"(<col min="2" max="2"/>)"), std::vector<double>());
    EXPECT_EQ(widths(R"(<kol min="1" max="1" width="9"/><x><col min="1" max="1" width="9"/></x>)"),
              std::vector<double>());
    EXPECT_EQ(widths(R"(<col min="2" max="2" hidden="1"/>)"), (std::vector{48.0, 0.0}));
    EXPECT_EQ(widths(R"(<col min="2" max="2" hidden="0" width="16.7109375"/>)"), (std::vector{48.0, 87.75}));
    EXPECT_EQ(widths(R"(<col min="3" max="3" width="16.7109375"/><col min="1" max="1" width="16.7109375"/>)"),
              (std::vector{87.75, 48.0, 87.75}));
    EXPECT_EQ(widths(R"(<col min="16384" max="16384" width="9"/>)").size(), 16384U);
    EXPECT_EQ(widths(R"(<col min="3" max="2" width="9"/>)"), std::vector<double>());
}

TEST(XlsxBlad, rijen_en_kolommen_zonder_cellen_geven_ook_een_bereik) {
    EXPECT_EQ(used_of(R"(<row r="3"/>)"), (Box{2, 0, 1, 1}));
    EXPECT_EQ(used_of("", R"(<cols><col min="3" max="5" width="9" style="2"/></cols>)"), (Box{0, 2, 1, 3}));
    EXPECT_EQ(used_of(R"(<row r="3"/>)", R"(<cols><col min="3" max="5" width="9" style="2"/></cols>)"),
              (Box{2, 2, 1, 3}));
    EXPECT_EQ(used_of("", R"(<cols><col min="16384" max="16384" width="9" style="2"/></cols>)"), (Box{0, 0, 0, 0}));
    EXPECT_EQ(used_of("", R"(<cols><col min="16383" max="16383" width="9" style="2"/></cols>)"), (Box{0, 16382, 1, 1}));
    const std::string cell = R"(<row r="1"><c r="A1"><v>1</v></c></row>)";
    EXPECT_EQ(used_of(cell + R"(<row r="9" ht="12" hidden="1"/>)"), (Box{0, 0, 9, 1}));
    EXPECT_EQ(used_of(cell + R"(<row r="9" ht="12"/>)"), (Box{0, 0, 1, 1}));
    EXPECT_EQ(used_of(cell + R"(<row r="9" ht="12" s="3" customFormat="1"/>)"), (Box{0, 0, 9, 1}));
    EXPECT_EQ(used_of(cell + R"(<row r="9" s="0" customFormat="1"/>)"), (Box{0, 0, 1, 1}));
    EXPECT_EQ(used_of(cell + R"(<row r="9" ht="12" s="0" customFormat="1" customHeight="1"/>)"), (Box{0, 0, 9, 1}));
    EXPECT_EQ(used_of(cell + R"(<row r="1048576"/>)"), (Box{0, 0, 1048576, 1}));
    EXPECT_EQ(used_of(cell + R"(<row r="1048577"/>)"), (Box{0, 0, 1, 1}));
    EXPECT_EQ(used_of(cell + R"(<row r="0"/><row r="x"/>)"), (Box{0, 0, 3, 1})); // counted on
}

TEST(XlsxBlad, alles_telt_alleen_op_zijn_eigen_plaats) {
    auto parts = XlsxMaker{}.parts();
    const auto cells_of = [&parts](const std::string& sheet) {
        test::replace_part(parts, "xl/worksheets/sheet1.xml", sheet);
        std::string all;
        const auto found = opened(test::zip_of(parts));
        for (const Cell& cell : found.sheet.cells)
            all += std::to_string(cell.row) + ',' + std::to_string(cell.column) + '=' +
                   std::to_string(static_cast<int>(cell.number)) + ' ';
        return all;
    };
    EXPECT_EQ(cells_of("<a><sheetData><row><c><v>1</v></c></row></sheetData></a>"), "0,0=1 ");
    EXPECT_EQ(
        cells_of("<a><b><row><c><v>1</v></c></row></b><x><sheetData><row><c><v>2</v></c></row></sheetData></x></a>"),
        "");
    EXPECT_EQ(cells_of("<a><sheetData><rij><c><v>1</v></c></rij><row><d><v>2</v></d><c><w>3</w><v>4</v></c></row>"
                       "<row><c><x><v>5</v></x></c><c><v>6</v><f>7</f></c></row></sheetData></a>"),
              "0,0=4 1,1=6 ");
    EXPECT_EQ(cells_of("<a><sheetData>1<row>2<c>3<v>4</v>5</c>6</row>7</sheetData></a>"), "0,0=4 ");
    EXPECT_EQ(cells_of("<a><sheetData><row><c><v>1</v></c></row></sheetData><na><row><c><v>2</v></c></row></na></a>"),
              "0,0=1 ");
    EXPECT_EQ(cells_of(R"(<a><sheetData><row r="2"><c r="B5"><v>1</v></c><c><v>2</v></c></row></sheetData></a>)"),
              "1,2=2 4,1=1 ");
}

TEST(XlsxBlad, waarden_mogen_wit_of_een_plus_hebben) {
    const auto sheet = opened(XlsxMaker{
        .sheet_data =
            R"(<row r="1"><c r="A1"><v> +5 </v></c><c r="B1"><v>-5</v></c><c r="C1"><v>++5</v></c>)"
            R"(<c r="D1" t="b"><v> 1 </v></c><c r="E1" t="b"><v>true</v></c><c r="F1" t="b"><v>x</v></c>)"
            R"(<c r="G1" t="b"><v> </v></c><c r="H1" t="e"><v> #N/A </v></c><c r="I1" t="anders"><v>7</v></c>)"
            R"(<c r="J1" t="d"><v> 2026-11-20 </v></c><c r="K1" t="d"><v> straks </v></c><c r="L1" t="str"/>)"
            R"(<c r="M1" t="inlineStr"><is/></c><c r="N1" t="inlineStr"><v>weg</v></c></row>)"}
                                  .bytes());
    const std::vector<std::pair<std::string_view, std::string_view>> table = {
        {"A1", "5"},        {"B1", "-5"},         {"C1", "(geen cel)"}, {"D1", "WAAR"}, {"E1", "WAAR"},
        {"F1", "ONWAAR"},   {"G1", "(geen cel)"}, {"H1", "#N/B"},       {"I1", "7"},    {"J1", "46346"},
        {"K1", " straks "}, {"L1", "(geen cel)"}, {"M1", ""},           {"N1", ""},
    };
    for (const auto& [place, text] : table)
        EXPECT_EQ(sheet.shown(place), text) << place;
}

TEST(XlsxBlad, de_standaardstijl_wijst_haar_lettertype_aan) {
    const auto width = [](const std::string& styles) {
        return opened(XlsxMaker{.styles = styles}.bytes()).sheet.default_column_width;
    };
    const std::string fonts =
        R"(<fonts><font><sz val="11"/><name val="Calibri"/></font><font><sz val="20"/>)"
        R"(<name val="Arial"/></font><font><name val="Arial"/></font><font><sz val="x"/></font></fonts>)";
    const auto style_of = [](const std::string& font) {
        return R"(<cellStyleXfs><xf fontId=")" + font + R"("/></cellStyleXfs>)";
    };
    EXPECT_EQ(width(fonts), 48.0);
    EXPECT_EQ(width(fonts + style_of("1")), 102.0);
    EXPECT_EQ(width(fonts + style_of("2")), 54.0); // 11 points without a size
    EXPECT_EQ(width(fonts + style_of("3")), 54.0);
    EXPECT_EQ(width(fonts + style_of("4")), 48.0);
    EXPECT_EQ(width(R"(<fonts><font><sz val="20"/></font><font><sz val="x"/></font></fonts>)" + style_of("1")), 54.0);
    EXPECT_EQ(width(fonts + "<cellStyleXfs><xf/></cellStyleXfs>"), 48.0);
    const std::string two = R"(<cellStyleXfs><xf fontId="0"/><xf fontId="1"/></cellStyleXfs>)";
    EXPECT_EQ(width(fonts + two), 48.0);
    EXPECT_EQ(
        width(fonts + two +
              R"(<cellStyles><cellStyle xfId="1" builtinId="0"/><cellStyle xfId="0" builtinId="0"/></cellStyles>)"),
        102.0);
    EXPECT_EQ(
        width(fonts + two + R"(<cellStyles><cellStyle xfId="1" builtinId="1"/><cellStyle xfId="1"/></cellStyles>)"),
        48.0);
    EXPECT_EQ(width(fonts + two + R"(<cellStyles><cellStyle xfId="9" builtinId="0"/></cellStyles>)"), 48.0);
    EXPECT_EQ(width(fonts + two + R"(<anders><cellStyle xfId="1" builtinId="0"/></anders>)"), 48.0);
}

TEST(XlsxBlad, een_halve_opmaakcode_telt_niet) {
    const auto shown_with = [](const std::string& codes) {
        return opened(XlsxMaker{.sheet_data = R"(<row><c s="0"><v>7</v></c></row>)",
                                .styles = "<numFmts>" + codes + R"(</numFmts><cellXfs><xf numFmtId="0"/></cellXfs>)"}
                          .bytes())
            .shown("A1");
    };
    EXPECT_EQ(shown_with(R"(<numFmt formatCode="0.0"/>)"), "7");
    EXPECT_EQ(shown_with(R"(<numFmt numFmtId="0"/>)"), "7");
    EXPECT_EQ(shown_with(R"(<numFmt numFmtId="0" formatCode="0.0"/>)"), "7,0");
    EXPECT_EQ(shown_with(R"(<ander numFmtId="0" formatCode="0.0"/>)"), "7");
}

TEST(XlsxBlad, meer_opmaakcodes_dan_een_werkmap_mag_hebben_vallen_weg) {
    std::string codes;
    for (std::size_t i = 0; i <= most_formats; ++i)
        codes += "<numFmt numFmtId=\"" + std::to_string(1000 + i) + "\" formatCode=\"0.0\"/>";
    const auto shown_under = [&codes](std::size_t id) {
        return opened(XlsxMaker{.sheet_data = R"(<row><c s="0"><v>7</v></c></row>)",
                                .styles = "<numFmts>" + codes + "</numFmts><cellXfs><xf numFmtId=\"" +
                                          std::to_string(id) + "\"/></cellXfs>"}
                          .bytes())
            .shown("A1");
    };
    EXPECT_EQ(shown_under(1000 + most_formats - 1), "7,0");
    EXPECT_EQ(shown_under(1000 + most_formats), "7");
}

TEST(XlsxBlad, datums_vanaf_1904) {
    XlsxMaker maker{.sheet_data = R"(<row r="1"><c r="A1" s="1"><v>44884</v></c></row>)",
                    .styles = R"(<cellXfs><xf/><xf numFmtId="14"/></cellXfs>)"};
    maker.workbook_properties = R"(date1904="1")";
    EXPECT_EQ(opened(maker.bytes()).shown("A1"), "20-11-2026");
    maker.workbook_properties = R"(date1904="true")";
    EXPECT_EQ(opened(maker.bytes()).shown("A1"), "20-11-2026");
    maker.workbook_properties = R"(date1904="0")";
    EXPECT_EQ(opened(maker.bytes()).shown("A1"), "19-11-2022");
}

} // namespace
} // namespace tavelo
