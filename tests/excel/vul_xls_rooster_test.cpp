#include "excel/codeExcel.h"
#include "excel/fake_excel.h"
#include "fakes/seams.h"
#include "schedule/record/kolommen.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using Texts = std::vector<std::vector<std::string>>;

constexpr const char* vraag_om_kolommen =
    "Geef bij 'Bestand | Instellingen' op in welke Excel kolommen velden 'nr--tijd' en 'naam', etc. staan.";

void fill(Grid& grid, const Texts& texts) {
    grid.set_columns(texts.empty() ? 0 : static_cast<int>(texts.front().size()));
    grid.set_rows(static_cast<int>(texts.size()));
    for (std::size_t row = 0; row < texts.size(); ++row) {
        for (std::size_t column = 0; column < texts[row].size(); ++column)
            grid.set_text(static_cast<int>(row), static_cast<int>(column), texts[row][column]);
    }
}

std::vector<std::string> row_of(const Grid& grid, int row) {
    std::vector<std::string> texts;
    for (int column = 0; column < grid.columns(); ++column)
        texts.emplace_back(grid.text(row, column));
    return texts;
}

TEST(ExcelKolom, een_letter_wijst_een_kolom_aan_in_hoofd_of_kleine_letter) {
    Grid grid;
    fill(grid, {{"a1", "b1", "c1"}, {"a2", "b2", "c2"}});
    EXPECT_EQ(excel_kolom(grid, 0, "A"), "a1");
    EXPECT_EQ(excel_kolom(grid, 1, "c"), "c2");
}

TEST(ExcelKolom, alleen_de_eerste_letter_telt) {
    Grid grid;
    fill(grid, {{"a1", "b1", "c1"}});
    EXPECT_EQ(excel_kolom(grid, 0, "AA"), "a1");
    EXPECT_EQ(excel_kolom(grid, 0, "bZ9"), "b1");
}

TEST(ExcelKolom, geen_letter_of_een_kolom_die_er_niet_is_geeft_niets) {
    Grid grid;
    fill(grid, {{"a1", "b1", "c1"}});
    for (const char* letter : {"", "D", "Z", "1", " A", "@", "[", "é", "\xFF"})
        EXPECT_EQ(excel_kolom(grid, 0, letter), "") << letter;
    EXPECT_EQ(excel_kolom(grid, 1, "A"), "");
    EXPECT_EQ(excel_kolom(grid, -1, "A"), "");
    EXPECT_EQ(excel_kolom(Grid(), 0, "A"), "");
}

struct VulXlsRooster : testing::Test {
    Programma programma;
    Grid& doel = programma.grdRooster;
    test::FakeMessages messages;
    test::FakePointer pointer;

    VulXlsRooster() {
        programma.instellingen.col_startnumber = "A";
        programma.instellingen.col_hnr = "B";
        programma.instellingen.col_rider_name = "C";
        programma.instellingen.col_horse_name = "D";
        programma.instellingen.col_horse_sire = "E";
        programma.instellingen.col_union_name = "F";
        fill(programma.grdExcel,
             {{"nr", "hnr", "ruiter", "paard", "vader", "club"}, {"1", "007", "Zoë", "Amber", "Apollo", "RV Oost"}});
    }

    void vul(Meldingen meldingen = Meldingen::tonen) {
        vul_xls_rooster(doel, programma.grdExcel, meldingen, programma, messages, pointer);
    }
};

TEST_F(VulXlsRooster, elke_rij_van_het_blad_wordt_een_rij_ook_de_kopregel) {
    fill(doel, {{"oud"}, {"oud"}, {"oud"}});
    vul();
    ASSERT_EQ(doel.rows(), 3);
    ASSERT_EQ(doel.columns(), 11);
    EXPECT_EQ(row_of(doel, 0), (std::vector<std::string>{"nr.--tijd", "Inr", "Hnr", "Cnr", "Naam", "HC", "Paard",
                                                         "Vader", "Vereniging", "Kl.", "Cat."}));
    EXPECT_EQ(row_of(doel, 1),
              (std::vector<std::string>{"nr", "", "hnr", "", "ruiter", "", "paard", "vader", "club", "", ""}));
    EXPECT_EQ(row_of(doel, 2),
              (std::vector<std::string>{"1", "", "007", "", "Zoë", "", "Amber", "Apollo", "RV Oost", "", ""}));
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_TRUE(doel.redraw());
    EXPECT_EQ(pointer.times_busy, 1);
    EXPECT_EQ(pointer.depth, 0);
}

TEST_F(VulXlsRooster, veldnamen_in_de_eerste_rij_maken_geen_verschil) {
    programma.instellingen.fieldnames = 1;
    vul();
    EXPECT_EQ(doel.rows(), 3);
    EXPECT_EQ(doel.text(1, kolom_naam), "ruiter");
}

TEST_F(VulXlsRooster, kleine_letters_en_dubbele_letters_wijzen_een_kolom_aan) {
    programma.instellingen.col_rider_name = "c";
    programma.instellingen.col_startnumber = "AA";
    vul();
    EXPECT_EQ(doel.text(2, kolom_naam), "Zoë");
    EXPECT_EQ(doel.text(2, kolom_nrtijd), "1");
}

TEST_F(VulXlsRooster, een_letter_van_een_kolom_die_er_niet_is_geeft_lege_cellen) {
    programma.instellingen.col_horse_name = "Q";
    vul();
    EXPECT_EQ(doel.text(2, kolom_paard), "");
    EXPECT_EQ(doel.text(2, kolom_naam), "Zoë");
}

TEST_F(VulXlsRooster, zonder_startnummers_en_namen_komt_de_vraag_om_de_kolommen) {
    programma.instellingen.col_startnumber = "";
    programma.instellingen.col_rider_name = "";
    vul();
    EXPECT_EQ(messages.shown, std::vector<std::string>{vraag_om_kolommen});
    EXPECT_EQ(doel.rows(), 3);
    EXPECT_EQ(pointer.depth, 0);

    vul(Meldingen::zwijgen);
    EXPECT_EQ(messages.shown.size(), 1U);
}

TEST_F(VulXlsRooster, een_enkel_startnummer_of_een_enkele_naam_is_genoeg) {
    programma.instellingen.col_rider_name = "";
    programma.grdExcel.set_text(0, 0, "");
    vul();
    programma.instellingen.col_rider_name = "C";
    programma.instellingen.col_startnumber = "";
    programma.grdExcel.set_text(1, 2, "");
    vul();
    EXPECT_TRUE(messages.shown.empty());

    programma.grdExcel.set_text(0, 2, "");
    vul();
    EXPECT_EQ(messages.shown.size(), 1U);
}

TEST_F(VulXlsRooster, een_leeg_blad_geeft_alleen_de_titelrij) {
    fill(programma.grdExcel, {});
    vul();
    EXPECT_EQ(doel.rows(), 1);
    EXPECT_EQ(doel.text(0, kolom_naam), "Naam");
    EXPECT_EQ(messages.shown, std::vector<std::string>{vraag_om_kolommen});
}

TEST_F(VulXlsRooster, de_labels_van_een_vorige_rubriek_gaan_weg) {
    programma.labels.lblRubriek = "Rubriek 5";
    programma.labels.lblRingNaam = "Hal 2";
    vul();
    EXPECT_EQ(programma.labels.lblRubriek, "");
    EXPECT_EQ(programma.labels.lblRingNaam, "Ring");
}

TEST_F(VulXlsRooster, een_geopende_lijst_toont_titel_en_eerste_rij) {
    test::FakeExcel excel;
    excel.sheets = {test::sheet_of({{"8:00", "1", "Daniël", "Bonfire", "Welt Hit", "LR Zuid"}}),
                    test::sheet_of({{"x"}})};
    programma.schedule.singlesignin = 1;
    doel.set_rows(1);
    open_excel_rooster("C:\\lijsten\\zondag.klas.xlsx", 1, programma, excel, messages, pointer);
    EXPECT_EQ(programma.schedule.singlesignin, 0);
    ASSERT_EQ(doel.rows(), 2);
    EXPECT_EQ(doel.text(1, kolom_nrtijd), "8:00");
    EXPECT_EQ(doel.text(1, kolom_naam), "Daniël");
    EXPECT_EQ(doel.row(), 1);
    EXPECT_EQ(doel.column(), 1);
    EXPECT_EQ(programma.labels.lblRoosterOmschrijving, "zondag.klas");
    EXPECT_EQ(programma.bijschrift, "Vendalo 3.5 Tavelo - zondag.klas");
    EXPECT_EQ(pointer.depth, 0);
}

TEST_F(VulXlsRooster, wat_niet_opengaat_laat_een_lege_lijst_achter) {
    test::FakeExcel excel;
    excel.failing_member = "Open";
    open_excel_rooster("zondag.xlsx", 0, programma, excel, messages, pointer);
    EXPECT_EQ(messages.shown, (std::vector<std::string>{"YEP1: stuk", vraag_om_kolommen}));
    EXPECT_EQ(doel.rows(), 1);
}

} // namespace
} // namespace tavelo
