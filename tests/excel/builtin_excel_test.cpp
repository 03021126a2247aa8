#include "excel/builtin_excel.h"

#include "excel/codeExcel.h"
#include "fakes/seams.h"
#include "schedule/record/kolommen.h"
#include "workbook/xls/xls_bytes.h"
#include "workbook/xlsx/xlsx_maker.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace tavelo {
namespace {

const std::string startlijst = TAVELO_TEST_DATA "/workbook/startlijst.xlsx";

// A file that is gone again behind the test.
struct WrittenFile {
    WrittenFile(const std::string& name, std::string_view content)
        : path((std::filesystem::temp_directory_path() / name).string()) {
        std::ofstream(path, std::ios::binary).write(content.data(), static_cast<std::streamsize>(content.size()));
    }
    ~WrittenFile() { std::filesystem::remove(path); }
    std::string path;
};

struct BuiltinExcel : testing::Test {
    std::unique_ptr<ExcelApplication> excel = builtin_excel(locale_named("nl-NL"));
    Grid grid;
    test::FakeMessages messages;
    test::FakePointer pointer;

    bool lees(const std::string& file, int blad = 1) { return lees_excel(file, blad, grid, *excel, messages, pointer); }
    std::vector<std::string> row(int index) const {
        std::vector<std::string> texts;
        for (int column = 0; column < grid.columns(); ++column)
            texts.emplace_back(grid.text(index, column));
        return texts;
    }
};

TEST_F(BuiltinExcel, een_startlijst_komt_in_het_grid_zoals_excel_haar_toont) {
    EXPECT_FALSE(lees(startlijst)); // more sheets follow
    EXPECT_TRUE(messages.shown.empty());
    ASSERT_EQ(grid.rows(), 4);
    ASSERT_EQ(grid.columns(), 12);
    EXPECT_EQ(row(0).front(), "Tijd");
    EXPECT_EQ(row(1), (std::vector<std::string>{"09:00", "1", "001", "Zoë van der Meer", "Bonfire", "Welt Hit II",
                                                "Fürst Heinrich", "bruin", "ruin", "9", "KWPN", "RV De Lâge Wâlden"}));
    EXPECT_EQ(grid.text(3, 3), "Ångström, Åsa");
    EXPECT_EQ(grid.text(3, 4), "Prins \"Blitz\"");
}

TEST_F(BuiltinExcel, dezelfde_lijst_in_het_oude_formaat_geeft_dezelfde_teksten) {
    lees(startlijst);
    std::vector<std::vector<std::string>> rows;
    for (int i = 0; i < grid.rows(); ++i)
        rows.push_back(row(i));
    EXPECT_TRUE(lees(TAVELO_TEST_DATA "/workbook/startlijst.xls"));
    ASSERT_EQ(grid.rows(), 4);
    for (int i = 0; i < grid.rows(); ++i)
        EXPECT_EQ(row(i), rows[static_cast<std::size_t>(i)]);
}

TEST_F(BuiltinExcel, de_kolommen_hebben_de_verhouding_van_het_blad) {
    lees(startlijst);
    // 6.71 characters are 39 points, 25.71 are 138.75, a column without a width is 48: 39 + 39 + 39 + 139 + 139 + 7
    // * 48.
    EXPECT_EQ(grid.column_width(0), 800); // 15000 * 39 / 731
    EXPECT_EQ(grid.column_width(3), 2852);
    EXPECT_EQ(grid.column_width(5), 985);
}

TEST_F(BuiltinExcel, datums_fouten_en_getallen_staan_er_zoals_op_een_nederlandse_computer) {
    EXPECT_FALSE(lees(startlijst, 2));
    // The used range is B2:D7, three columns by six rows; it is copied from A1 on.
    ASSERT_EQ(grid.rows(), 6);
    ASSERT_EQ(grid.columns(), 3);
    EXPECT_EQ(row(0), (std::vector<std::string>{"", "", ""}));
    EXPECT_EQ(row(1), (std::vector<std::string>{"", "20-11-2026", "68,8%"}));
    EXPECT_EQ(row(2), (std::vector<std::string>{"", "WAAR", "#DEEL/0!"}));
    EXPECT_EQ(row(4), (std::vector<std::string>{"", "samengevoegd", ""}));
}

TEST_F(BuiltinExcel, een_grafiekblad_telt_mee_en_heeft_geen_cellen) {
    EXPECT_FALSE(lees(startlijst, 3));
    EXPECT_EQ(grid.rows(), 0);
    EXPECT_TRUE(lees(startlijst, 4)); // the last one, empty
    EXPECT_EQ(grid.rows(), 0);
    EXPECT_EQ(grid.columns(), 0);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(BuiltinExcel, een_leeg_eerste_blad_geeft_geen_rijen_en_geen_kolommen) {
    EXPECT_TRUE(lees(TAVELO_TEST_DATA "/workbook/leeg.xlsx"));
    EXPECT_EQ(grid.rows(), 0);
    EXPECT_EQ(grid.columns(), 0);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(BuiltinExcel, een_werkmap_die_met_een_grafiek_begint_gaat_open_zonder_rijen) {
    EXPECT_FALSE(lees(TAVELO_TEST_DATA "/workbook/grafiek_eerst.xlsx"));
    EXPECT_EQ(grid.rows(), 0);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(BuiltinExcel, een_blad_voorbij_het_laatste_kopieert_niets) {
    EXPECT_TRUE(lees(startlijst, 5));
    EXPECT_EQ(grid.rows(), 0);
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(BuiltinExcel, een_bestand_dat_weg_is_geeft_een_zin) {
    EXPECT_TRUE(lees("/bestaat/niet.xlsx"));
    EXPECT_EQ(messages.shown, std::vector<std::string>{"YEP1: Het bestand is niet gevonden."});
    EXPECT_EQ(grid.rows(), 0);
    EXPECT_FALSE(lees(startlijst)); // the program goes on
    EXPECT_EQ(grid.rows(), 4);
}

TEST_F(BuiltinExcel, een_werkmap_met_een_kapot_eerste_blad_gaat_niet_open) {
    auto parts = test::XlsxMaker{}.parts();
    test::replace_part(parts, "xl/worksheets/sheet1.xml", "<worksheet><sheetData><row>");
    const auto bytes = test::zip_of(parts);
    const std::string file = (std::filesystem::temp_directory_path() / "tavelo_kapot_blad.xlsx").string();
    std::ofstream(file, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    EXPECT_TRUE(lees(file));
    std::filesystem::remove(file);
    EXPECT_EQ(messages.shown,
              std::vector<std::string>{"YEP1: De werkmap is beschadigd of nog niet helemaal opgeslagen."});
}

TEST_F(BuiltinExcel, de_opgeslagen_waarde_van_een_cel_is_er_ook) {
    auto books = excel->Workbooks().value();
    auto book = books->Open(startlijst).value();
    auto sheet = book->Sheets().value()->Next().value();
    EXPECT_EQ(sheet->Cells(2, 1).value()->Value(), "0.375");
    EXPECT_EQ(sheet->Cells(2, 1).value()->Text(), "09:00");
    EXPECT_EQ(sheet->Cells(2, 4).value()->Value(), "Zoë van der Meer");
    EXPECT_EQ(sheet->Cells(99, 99).value()->Text(), "");
    EXPECT_FALSE(sheet->Cells(0, 1).has_value());
    EXPECT_TRUE(book->Close().has_value());
    EXPECT_FALSE(book->Sheets().has_value());
    EXPECT_EQ(sheet->Cells(2, 1).value()->Text(), "09:00"); // what was taken from it stays usable
}

TEST_F(BuiltinExcel, een_cel_heeft_een_plaats_vanaf_een) {
    auto book = excel->Workbooks().value()->Open(startlijst).value();
    auto sheet = book->Sheets().value()->Next().value();
    for (const auto& [row, column] : {std::pair{0, 1}, {1, 0}, {-1, 1}, {1, -1}, {0, 0}})
        EXPECT_EQ(sheet->Cells(row, column).error(), "Deze cel bestaat niet.") << row << ' ' << column;
    EXPECT_EQ(sheet->Cells(1, 1).value()->Text(), "Tijd");
    EXPECT_EQ(sheet->Cells(4, 4).value()->Text(), "Ångström, Åsa");
}

TEST_F(BuiltinExcel, cellen_mogen_in_elke_volgorde_gevraagd_worden) {
    lees(startlijst);
    auto book = excel->Workbooks().value()->Open(startlijst).value();
    auto sheet = book->Sheets().value()->Next().value();
    for (int step : {1, 5, 7, 11, 47}) {
        for (int place = 0; place < 48; ++place) {
            const int at = place * step % 48;
            EXPECT_EQ(sheet->Cells(at / 12 + 1, at % 12 + 1).value()->Text(), grid.text(at / 12, at % 12)) << at;
            EXPECT_EQ(sheet->Cells(at / 12 + 1, at % 12 + 1).value()->Text(), grid.text(at / 12, at % 12)) << at;
        }
    }
}

TEST_F(BuiltinExcel, zonder_cellen_of_zonder_werkmap_komt_er_een_zin) {
    auto book = excel->Workbooks().value()->Open(startlijst).value();
    auto sheets = book->Sheets().value();
    EXPECT_EQ(sheets->Count(), 4);
    std::vector<std::unique_ptr<ExcelWorksheet>> all;
    for (int i = 0; i < 4; ++i)
        all.push_back(sheets->Next().value());
    EXPECT_EQ(sheets->Next().value(), nullptr);
    EXPECT_EQ(sheets->Next().value(), nullptr);
    EXPECT_EQ(all[2]->UsedRange().error(), "Dit blad heeft geen cellen.");
    EXPECT_EQ(all[2]->Cells(1, 1).error(), "Dit blad heeft geen cellen.");
    EXPECT_EQ(all[3]->UsedRange().value()->Rows_Count(), 0);
    EXPECT_TRUE(book->Close().has_value());
    EXPECT_EQ(book->Sheets().error(), "De werkmap is al gesloten.");
}

TEST_F(BuiltinExcel, een_dialoogblad_heeft_geen_cellen_en_een_macroblad_wel) {
    using namespace testing_xls;
    const Bytes dialog = Bytes().record(0x0081, Bytes().u16(0x0010));
    const auto stream = book_8({{"Start", number(0, 0, 1)},
                                {"Dialoog", Bytes(dialog).add(number(0, 0, 2))},
                                {"Macro", number(0, 0, 3), 1, macro_sheet}})
                            .bytes();
    const WrittenFile file("tavelo_dialoog.xls",
                           std::string_view(reinterpret_cast<const char*>(stream.data()), stream.size()));
    auto sheets = excel->Workbooks().value()->Open(file.path).value()->Sheets().value();
    EXPECT_EQ(sheets->Next().value()->Cells(1, 1).value()->Text(), "1");
    EXPECT_EQ(sheets->Next().value()->UsedRange().error(), "Dit blad heeft geen cellen.");
    EXPECT_EQ(sheets->Next().value()->Cells(1, 1).value()->Text(), "3");
}

TEST_F(BuiltinExcel, de_opgeslagen_waarde_volgt_de_soort_van_de_cel) {
    const auto bytes =
        test::XlsxMaker{.sheet_data =
                            R"(<row r="1"><c r="A1" t="b"><v>1</v></c><c r="B1" t="e"><v>#REF!</v></c>)"
                            R"(<c r="C1"><v>1.5</v></c><c r="D1" s="0"/><c r="E1" t="str"><v>x</v></c></row>)"}
            .bytes();
    const WrittenFile file("tavelo_soorten.xlsx",
                           std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()));
    auto book = excel->Workbooks().value()->Open(file.path).value();
    auto sheet = book->Sheets().value()->Next().value();
    const std::vector<std::string> values{"1", "23", "1.5", "", "x", ""};
    const std::vector<std::string> shown{"WAAR", "#VERW!", "1,5", "", "x", ""};
    for (int column = 1; column <= 6; ++column) {
        EXPECT_EQ(sheet->Cells(1, column).value()->Value(), values.at(static_cast<std::size_t>(column - 1)));
        EXPECT_EQ(sheet->Cells(1, column).value()->Text(), shown.at(static_cast<std::size_t>(column - 1)));
        EXPECT_EQ(sheet->Cells(1, column).value()->Width(), 48.0);
    }
}

TEST_F(BuiltinExcel, een_kolom_voorbij_de_breedten_heeft_de_gewone) {
    const WrittenFile file(
        "tavelo_breedte.xls",
        R"(<Workbook xmlns="urn:schemas-microsoft-com:office:spreadsheet"><Worksheet><Table )"
        R"(DefaultColumnWidth="50"><Column Width="10"/><Column Width="20"/><Row><Cell><Data>a</Data>)"
        R"(</Cell></Row></Table></Worksheet></Workbook>)");
    auto book = excel->Workbooks().value()->Open(file.path).value();
    auto sheet = book->Sheets().value()->Next().value();
    EXPECT_EQ(sheet->Cells(1, 1).value()->Width(), 10.0);
    EXPECT_EQ(sheet->Cells(1, 2).value()->Width(), 20.0);
    EXPECT_EQ(sheet->Cells(1, 3).value()->Width(), 50.0);
}

TEST_F(BuiltinExcel, de_teksten_van_een_rij_zijn_die_van_zijn_cellen) {
    for (const int blad : {1, 2}) {
        auto book = excel->Workbooks().value()->Open(startlijst).value();
        auto sheets = book->Sheets().value();
        std::unique_ptr<ExcelWorksheet> sheet;
        for (int i = 0; i < blad; ++i)
            sheet = sheets->Next().value();
        std::vector<std::string_view> texts(13);
        for (const int rij : {3, 1, 2, 2, 7, 99}) {
            ASSERT_TRUE(sheet->row_texts(rij, texts));
            const std::vector<std::string> row(texts.begin(), texts.end());
            for (int kolom = 1; kolom <= 13; ++kolom)
                EXPECT_EQ(row.at(static_cast<std::size_t>(kolom - 1)), sheet->Cells(rij, kolom).value()->Text().value())
                    << blad << ' ' << rij << ' ' << kolom;
        }
        EXPECT_FALSE(sheet->row_texts(0, texts));
    }
}

TEST_F(BuiltinExcel, een_grafiekblad_geeft_ook_geen_rijen) {
    auto book = excel->Workbooks().value()->Open(TAVELO_TEST_DATA "/workbook/grafiek_eerst.xlsx").value();
    std::vector<std::string_view> texts(1);
    EXPECT_FALSE(book->Sheets().value()->Next().value()->row_texts(1, texts));
}

TEST_F(BuiltinExcel, een_startlijst_wordt_door_de_letters_van_de_instellingen_het_rooster) {
    Programma programma;
    programma.instellingen.col_startnumber = "a";
    programma.instellingen.col_hnr = "C";
    programma.instellingen.col_rider_name = "D";
    programma.instellingen.col_horse_name = "E";
    open_excel_rooster(startlijst, 0, programma, *excel, messages, pointer);
    ASSERT_EQ(programma.grdRooster.rows(), 5);
    EXPECT_EQ(programma.grdRooster.text(1, kolom_naam), "Ruiter");
    EXPECT_EQ(programma.grdRooster.text(3, kolom_nrtijd), "09:07");
    EXPECT_EQ(programma.grdRooster.text(3, kolom_hnr), "002");
    EXPECT_EQ(programma.grdRooster.text(3, kolom_naam), "Daniël Müller");
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(BuiltinExcel, een_lijst_uit_een_portaal_is_een_pagina_die_xls_heet) {
    const WrittenFile file("tavelo_portaal.xls",
                           R"(<html><head><meta charset="windows-1252"></head><body>
<table><tr><td>Export van zondag</td></tr></table>
<table border="1"><tr><th>Nr</th><th>Hnr</th><th colspan="2">Ruiter</th><th>Paard</th></tr>
<tr><td>1</td><td>007</td><td>Zo&euml; van der Meer</td><td>(HC)</td><td>Bonfire &amp; co</td></tr>
<tr><td>1-2</td><td>012</td><td>Dani)"
                           "\xEBl M\xFC"
                           "ller"
                           R"(</td><td>&nbsp;</td><td>Don<br>Olymbrio</td></tr></table></body></html>)");
    Programma programma;
    programma.instellingen.col_startnumber = "A";
    programma.instellingen.col_hnr = "B";
    programma.instellingen.col_rider_name = "C";
    programma.instellingen.col_horse_name = "E";
    EXPECT_TRUE(lees_excel(file.path, 1, programma.grdExcel, *excel, messages, pointer));
    ASSERT_EQ(programma.grdExcel.rows(), 3);
    ASSERT_EQ(programma.grdExcel.columns(), 5);
    vul_xls_rooster(programma.grdRooster, programma.grdExcel, Meldingen::tonen, programma, messages, pointer);
    ASSERT_EQ(programma.grdRooster.rows(), 4);
    EXPECT_EQ(programma.grdRooster.text(1, kolom_naam), "Ruiter");
    EXPECT_EQ(programma.grdRooster.text(2, kolom_hnr), "007");
    EXPECT_EQ(programma.grdRooster.text(2, kolom_naam), "Zoë van der Meer");
    EXPECT_EQ(programma.grdRooster.text(3, kolom_nrtijd), "1-2");
    EXPECT_EQ(programma.grdRooster.text(3, kolom_naam), "Daniël Müller");
    EXPECT_EQ(programma.grdRooster.text(3, kolom_paard), "Don\nOlymbrio");
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(BuiltinExcel, wat_niet_open_kan_zegt_waarom) {
    const WrittenFile empty("tavelo_leeg.xls", "");
    const WrittenFile owner("~$tavelo_zondag.xlsx", std::string_view("\x04Jans\0", 6));
    const WrittenFile letter("tavelo_brief.xls", "Een brief.");
    for (const WrittenFile* file : {&empty, &owner, &letter})
        EXPECT_TRUE(lees(file->path));
    EXPECT_EQ(messages.shown,
              (std::vector<std::string>{"YEP1: Het bestand is leeg of nog niet opgeslagen.",
                                        "YEP1: Dit is een tijdelijk bestand van Excel (~$): kies de werkmap zelf.",
                                        "YEP1: Het bestand is geen Excel-werkmap."}));
    EXPECT_EQ(grid.rows(), 0);
}

} // namespace
} // namespace tavelo
