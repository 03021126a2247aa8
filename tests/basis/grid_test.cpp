#include "basis/grid.h"

#include "fakes/grid_events.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using test::GridEvents;
using test::Texts;

Grid grid_van(int rijen, int kolommen) {
    Grid grid;
    grid.set_columns(kolommen);
    grid.set_rows(rijen);
    return grid;
}

// A title row and rows "a", "b", "c", ... in one column.
Grid grid_met(std::string_view letters) {
    Grid grid = grid_van(1, 1);
    for (const char letter : letters)
        grid.set_text(grid.append_row(), 0, std::string(1, letter));
    return grid;
}

TEST(Grid, een_nieuw_grid_is_leeg) {
    const Grid grid;
    EXPECT_EQ(grid.rows(), 0);
    EXPECT_EQ(grid.columns(), 0);
    EXPECT_EQ(grid.text(0, 0), "");
}

TEST(Grid, een_plaats_buiten_het_grid_leest_leeg_en_schrijft_niets) {
    Grid grid = grid_van(2, 2);
    for (const auto& [rij, kolom] : {std::pair{-1, 0}, {0, -1}, {2, 0}, {0, 2}}) {
        grid.set_text(rij, kolom, "x");
        EXPECT_EQ(grid.text(rij, kolom), "");
    }
    EXPECT_EQ(test::all_texts(grid), std::vector(2, Texts(2)));
    grid.set_row_value(2, 7);
    grid.set_row_value(-1, 7);
    EXPECT_EQ(grid.row_value(2), 0);
    EXPECT_EQ(grid.row_value(-1), 0);
    grid.set_column_width(2, 100);
    EXPECT_EQ(grid.column_width(2), 0);
    grid.remove_row(2);
    EXPECT_EQ(grid.rows(), 2);
}

TEST(Grid, meer_rijen_en_kolommen_zijn_leeg_en_minder_laten_de_rest_staan) {
    Grid grid = grid_van(1, 1);
    grid.set_text(0, 0, "a");
    grid.set_rows(2);
    grid.set_columns(2);
    EXPECT_EQ(test::all_texts(grid), (std::vector<Texts>{{"a", ""}, {"", ""}}));
    grid.set_text(1, 1, "b");
    grid.set_columns(1);
    grid.set_rows(1);
    EXPECT_EQ(test::all_texts(grid), std::vector<Texts>{{"a"}});
    grid.set_rows(-3);
    EXPECT_EQ(grid.rows(), 0);
}

TEST(Grid, een_rij_of_kolom_die_terugkomt_is_leeg) {
    Grid grid = grid_van(1, 2);
    const auto vul = [&] {
        const int rij = grid.append_row({"x", "y"});
        grid.set_row_value(rij, 7);
    };
    vul();
    grid.set_rows(1);
    grid.set_rows(2);
    EXPECT_EQ(test::row_texts(grid, 1), Texts(2));
    EXPECT_EQ(grid.row_value(1), 0);

    grid.set_rows(1);
    vul();
    grid.set_columns(1);
    grid.set_columns(2);
    EXPECT_EQ(test::row_texts(grid, 1), (Texts{"x", ""}));

    vul();
    grid.remove_row(2);
    grid.append_row();
    EXPECT_EQ(test::row_texts(grid, 2), Texts(2));
    EXPECT_EQ(grid.row_value(2), 0);
}

TEST(Grid, een_rij_wordt_ingevoegd_voor_haar_plaats_en_anders_achteraan) {
    Grid grid = grid_met("ab");
    grid.set_row_value(2, 7);
    grid.insert_row(2, Texts{"n"});
    grid.insert_row(99, Texts{"z", "valt buiten de kolommen"});
    grid.insert_row(1, {});
    EXPECT_EQ(test::column_texts(grid, 0), (Texts{"", "a", "n", "b", "z"}));
    EXPECT_EQ(grid.row_value(3), 0);
    EXPECT_EQ(grid.row_value(4), 7); // goes along with its row
    grid.remove_row(2);
    EXPECT_EQ(test::column_texts(grid, 0), (Texts{"", "n", "b", "z"}));
    EXPECT_EQ(grid.row_value(3), 7);
    EXPECT_EQ(grid.row_value(4), 0);
}

TEST(Grid, de_huidige_cel_blijft_binnen_het_grid) {
    Grid grid = grid_met("abc");
    grid.set_columns(3);
    grid.set_row(3);
    grid.set_column(2);
    grid.set_row(4);
    grid.set_column(-1);
    EXPECT_EQ(grid.row(), 3);
    EXPECT_EQ(grid.column(), 2);
    grid.remove_row(1);
    EXPECT_EQ(grid.row(), 2);
    grid.set_rows(1);
    grid.set_columns(1);
    EXPECT_EQ(grid.row(), 0);
    EXPECT_EQ(grid.column(), 0);
}

TEST(Grid, een_rij_erboven_verschuift_wat_er_geselecteerd_is) {
    Grid grid = grid_met("abc");
    grid.set_row(2);
    grid.insert_row(1, Texts{"n"});
    EXPECT_EQ(grid.row(), 2);
    EXPECT_EQ(grid.text(grid.row(), 0), "a");
}

TEST(Grid, een_rij_oplichten_selecteert_van_de_laatste_kolom_terug_naar_kolom_1) {
    Grid grid = grid_met("ab");
    grid.set_columns(4);
    grid.highlight_row(2);
    EXPECT_EQ(grid.row(), 2);
    EXPECT_EQ(grid.column(), 3);
    EXPECT_EQ(grid.selection_column(), 1);
    grid.set_row(1); // ends the selection
    EXPECT_EQ(grid.selection_column(), 3);
}

TEST(Grid, de_bovenste_rij_is_nooit_een_vaste_rij) {
    Grid grid = grid_met("abc");
    grid.set_fixed_rows(1);
    EXPECT_EQ(grid.top_row(), 1);
    grid.set_top_row(3);
    grid.set_rows(3);
    EXPECT_EQ(grid.top_row(), 2);
    grid.set_top_row(9);
    EXPECT_EQ(grid.top_row(), 2);
}

TEST(Grid, een_toehoorder_hoort_alleen_wat_verandert) {
    Grid grid = grid_met("ab");
    GridEvents gehoord;
    grid.set_listener(&gehoord);
    grid.set_text(1, 0, "a");
    EXPECT_TRUE(gehoord.cells.empty());
    grid.set_text(1, 0, "A");
    grid.set_row_value(1, 5);
    grid.append_row();
    grid.remove_row(2);
    EXPECT_EQ(gehoord.cells, (std::vector<std::pair<int, int>>{{1, 0}}));
    EXPECT_EQ(gehoord.inserted, std::vector{3});
    EXPECT_EQ(gehoord.removed, std::vector{2});
    EXPECT_EQ(gehoord.current, 0);
    EXPECT_EQ(gehoord.resets, 0);
    grid.set_row(1);
    EXPECT_EQ(gehoord.current, 1);
    grid.set_column_width(0, 300);
    EXPECT_EQ(gehoord.resets, 1);
}

TEST(Grid, zonder_hertekenen_hoort_een_toehoorder_pas_aan_het_eind_een_keer_iets) {
    Grid grid = grid_met("ab");
    GridEvents gehoord;
    grid.set_listener(&gehoord);
    grid.set_redraw(false);
    EXPECT_FALSE(grid.redraw());
    grid.set_text(1, 0, "x");
    grid.append_row();
    grid.remove_row(1);
    grid.set_row(1);
    grid.set_rows(1);
    EXPECT_TRUE(gehoord.cells.empty() && gehoord.inserted.empty() && gehoord.removed.empty());
    EXPECT_EQ(gehoord.current + gehoord.resets, 0);
    grid.set_redraw(true);
    grid.set_redraw(true);
    EXPECT_EQ(gehoord.resets, 1);
}

} // namespace
} // namespace tavelo
