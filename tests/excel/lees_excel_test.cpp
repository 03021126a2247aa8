#include "excel/codeExcel.h"
#include "excel/fake_excel.h"
#include "fakes/seams.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tavelo {
namespace {

using test::FakeExcel;
using test::sheet_of;
using Texts = std::vector<std::vector<std::string>>;

struct Resets : GridListener {
    int resets = 0;
    int others = 0;
    void cell_changed(int, int) override { ++others; }
    void row_inserted(int) override { ++others; }
    void row_removed(int) override { ++others; }
    void current_changed() override { ++others; }
    void grid_reset() override { ++resets; }
};

struct LeesExcel : testing::Test {
    FakeExcel excel;
    Grid grid;
    test::FakeMessages messages;
    test::FakePointer pointer;

    LeesExcel() {
        grid.set_rows(4);
        grid.set_columns(2);
        grid.set_fixed_rows(1);
        grid.set_fixed_columns(1);
        grid.set_text(2, 1, "van een vorige keer");
        excel.sheets = {sheet_of({{"nr", "naam"}, {"1", "Amber"}}), sheet_of({{"tweede blad"}})};
    }

    bool lees(std::string_view bestand = "C:\\lijsten\\zondag.xlsx", int blad = 1) {
        return lees_excel(bestand, blad, grid, excel, messages, pointer);
    }
    Texts texts() const {
        Texts all;
        for (int row = 0; row < grid.rows(); ++row) {
            all.emplace_back();
            for (int column = 0; column < grid.columns(); ++column)
                all.back().emplace_back(grid.text(row, column));
        }
        return all;
    }
    void expect_everything_restored() const {
        EXPECT_TRUE(grid.redraw());
        EXPECT_EQ(pointer.times_busy, 1);
        EXPECT_EQ(pointer.depth, 0);
        EXPECT_EQ(excel.living_objects, 0);
    }
};

TEST_F(LeesExcel, het_eerste_blad_komt_in_het_grid_en_er_volgt_nog_een) {
    EXPECT_FALSE(lees());
    EXPECT_EQ(texts(), (Texts{{"nr", "naam"}, {"1", "Amber"}}));
    EXPECT_EQ(excel.opened, std::vector<std::string>{"C:\\lijsten\\zondag.xlsx"});
    EXPECT_EQ(excel.calls["Close"], 1);
    EXPECT_EQ(excel.calls["Value"], 4);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(grid.fixed_rows(), 0);
    EXPECT_EQ(grid.fixed_columns(), 0);
    EXPECT_EQ(grid.top_row(), 0);
    expect_everything_restored();
}

TEST_F(LeesExcel, een_blad_dat_zijn_rijen_geeft_wordt_niet_cel_voor_cel_gelezen) {
    excel.sheets.front().gives_rows = true;
    EXPECT_FALSE(lees());
    EXPECT_EQ(texts(), (Texts{{"NR", "NAAM"}, {"1", "AMBER"}}));
    EXPECT_EQ(excel.calls["Text"], 0);
    EXPECT_EQ(excel.calls["Cells"], 2); // for the widths
    excel.failing_member = "row_texts";
    EXPECT_FALSE(lees());
    EXPECT_EQ(texts(), (Texts{{"nr", "naam"}, {"1", "Amber"}}));
    EXPECT_EQ(excel.calls["Text"], 4);
}

TEST_F(LeesExcel, na_het_laatste_blad_volgt_er_geen) {
    EXPECT_TRUE(lees("zondag.xls", 2));
    EXPECT_EQ(texts(), (Texts{{"tweede blad"}}));
    expect_everything_restored();
}

TEST_F(LeesExcel, een_blad_dat_er_niet_is_kopieert_niets_en_sluit_de_werkmap) {
    for (const int blad : {3, 0, -1}) {
        FakeExcel asked;
        asked.sheets = excel.sheets;
        EXPECT_TRUE(lees_excel("zondag.xlsx", blad, grid, asked, messages, pointer)) << blad;
        EXPECT_EQ(texts(), Texts{}) << blad;
        EXPECT_EQ(asked.calls["Close"], 1) << blad;
        EXPECT_EQ(asked.living_objects, 0) << blad;
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(LeesExcel, een_andere_extensie_maakt_alleen_leeg) {
    for (const char* bestand : {"ZONDAG.XLS", "zondag.Xlsx", "zondag.csv", "zondag", "xls", "map.xls\\zondag", ""}) {
        grid.set_rows(3);
        EXPECT_TRUE(lees(bestand)) << bestand;
        EXPECT_EQ(grid.rows(), 0) << bestand;
        EXPECT_EQ(grid.columns(), 0) << bestand;
    }
    EXPECT_TRUE(excel.calls.empty());
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_TRUE(grid.redraw());
    EXPECT_EQ(pointer.depth, 0);
}

TEST_F(LeesExcel, een_leeg_blad_geeft_een_grid_zonder_rijen_en_kolommen) {
    excel.sheets = {sheet_of({})};
    EXPECT_TRUE(lees());
    EXPECT_EQ(grid.rows(), 0);
    EXPECT_EQ(grid.columns(), 0);
    expect_everything_restored();
}

TEST_F(LeesExcel, een_gebruikt_bereik_dat_verderop_begint_telt_zijn_maat_vanaf_A1) {
    excel.sheets = {sheet_of({{"", "", ""}, {"", "b2", "c2"}, {"", "b3", "c3"}})};
    excel.sheets[0].rows_count = 2; // B2:C3
    excel.sheets[0].columns_count = 2;
    lees();
    EXPECT_EQ(texts(), (Texts{{"", ""}, {"", "b2"}}));
}

TEST_F(LeesExcel, kolommen_delen_de_breedte_in_de_verhouding_van_het_blad) {
    excel.sheets = {sheet_of({{"a", "b", "c"}})};
    excel.sheets[0].widths = {48.0, 96.4, 5.5}; // whole points: 48, 96 and 6
    lees();
    EXPECT_EQ(grid.column_width(0), 4800);
    EXPECT_EQ(grid.column_width(1), 9600);
    EXPECT_EQ(grid.column_width(2), 600);
}

TEST_F(LeesExcel, een_halve_breedte_gaat_naar_de_even_buur) {
    excel.sheets = {sheet_of({{"a", "b", "c"}})};
    excel.sheets[0].widths = {0.5, 1.5, 2.5}; // 0, 2 and 2
    lees();
    EXPECT_EQ(grid.column_width(0), 0);
    EXPECT_EQ(grid.column_width(1), 7500);
    EXPECT_EQ(grid.column_width(2), 7500);
    // 15000 * 1/16 = 937.5 and 15000 * 15/16 = 14062.5
    excel.sheets[0].widths = {1.0, 15.0, 0.0};
    lees();
    EXPECT_EQ(grid.column_width(0), 938);
    EXPECT_EQ(grid.column_width(1), 14062);
}

TEST_F(LeesExcel, breedten_van_nul_laten_de_kolommen_zoals_ze_waren) {
    excel.sheets = {sheet_of({{"a", "b"}})};
    excel.sheets[0].widths = {0.0, 0.0};
    Grid fresh;
    fresh.set_columns(2);
    lees();
    EXPECT_EQ(grid.column_width(0), fresh.column_width(0));
    EXPECT_EQ(grid.column_width(1), fresh.column_width(1));
}

TEST_F(LeesExcel, een_breedte_die_geen_geheel_getal_wordt_telt_als_nul) {
    excel.sheets = {sheet_of({{"a", "b", "c"}})};
    excel.sheets[0].widths = {1e300, 30.0, std::nan("")};
    lees();
    EXPECT_EQ(grid.column_width(0), 0);
    EXPECT_EQ(grid.column_width(1), 15000);
    EXPECT_EQ(grid.column_width(2), 0);
}

TEST_F(LeesExcel, breedten_die_niet_te_lezen_zijn_laten_de_kolommen_zoals_ze_waren) {
    Grid fresh;
    fresh.set_columns(2);
    for (const char* member : {"Cells", "Width"}) {
        excel.failing_member = member;
        lees();
        EXPECT_EQ(grid.column_width(0), fresh.column_width(0)) << member;
        EXPECT_EQ(grid.column_width(1), fresh.column_width(1)) << member;
    }
}

TEST_F(LeesExcel, het_grid_staat_weer_bovenaan) {
    grid.set_top_row(3);
    lees();
    EXPECT_EQ(grid.top_row(), 0);
}

TEST_F(LeesExcel, wie_naar_het_grid_kijkt_hoort_er_een_keer_van) {
    Resets listener;
    grid.set_listener(&listener);
    lees();
    EXPECT_EQ(listener.resets, 1);
    EXPECT_EQ(listener.others, 0);
}

TEST_F(LeesExcel, wat_niet_opengaat_geeft_een_melding_en_een_leeg_grid) {
    for (const char* member : {"Workbooks", "Open"}) {
        messages.shown.clear();
        excel.failing_member = member;
        EXPECT_TRUE(lees()) << member;
        EXPECT_EQ(messages.shown, std::vector<std::string>{"YEP1: stuk"}) << member;
        EXPECT_EQ(texts(), Texts{}) << member;
        EXPECT_EQ(excel.living_objects, 0) << member;
        EXPECT_TRUE(grid.redraw()) << member;
        EXPECT_EQ(pointer.depth, 0) << member;
    }
    excel.failing_member.clear(); // the next file opens as usual
    EXPECT_FALSE(lees());
    EXPECT_EQ(texts(), (Texts{{"nr", "naam"}, {"1", "Amber"}}));
}

struct Failure {
    const char* member;
    bool result;
    Texts texts;
    int close_calls = 1;
};

TEST_F(LeesExcel, elk_onderdeel_kan_mislukken_zonder_melding_en_de_werkmap_gaat_altijd_dicht) {
    const Texts all{{"nr", "naam"}, {"1", "Amber"}};
    const Texts empty_cells{{"", ""}, {"", ""}};
    const Failure failures[] = {
        {"Sheets", true, {}},
        {"Next", true, {}},
        {"UsedRange", false, {}},
        {"Rows_Count", false, {}},
        {"Columns_Count", false, {{}, {}}},
        {"Cells", false, empty_cells},
        {"Width", false, all},
        {"Value", false, all},
        {"Text", false, empty_cells},
        {"Count", true, all},
        {"Close", false, all},
    };
    for (const Failure& failure : failures) {
        SCOPED_TRACE(failure.member);
        FakeExcel failing;
        failing.sheets = excel.sheets;
        failing.failing_member = failure.member;
        test::FakePointer hourglass;
        EXPECT_EQ(lees_excel("zondag.xlsx", 1, grid, failing, messages, hourglass), failure.result);
        EXPECT_EQ(texts(), failure.texts);
        EXPECT_EQ(failing.calls["Close"], failure.close_calls);
        EXPECT_EQ(failing.living_objects, 0);
        EXPECT_TRUE(grid.redraw());
        EXPECT_EQ(hourglass.times_busy, 1);
        EXPECT_EQ(hourglass.depth, 0);
    }
    EXPECT_TRUE(messages.shown.empty());
}

TEST_F(LeesExcel, zonder_kolommaat_blijft_het_aantal_kolommen_nul) {
    excel.failing_member = "Columns_Count";
    lees();
    EXPECT_EQ(grid.rows(), 2);
    EXPECT_EQ(grid.columns(), 0);
}

} // namespace
} // namespace tavelo
