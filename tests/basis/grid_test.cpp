#include "fakes/grid_events.h"
#include "fakes/opstelling.h"
#include "fakes/temp_folder.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

Grid grid_van(int rijen, int kolommen) {
    Grid grid;
    grid.set_columns(kolommen);
    grid.set_rows(rijen);
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
    EXPECT_EQ(test::all_texts(grid), std::vector(2, test::Texts(2)));
    grid.set_row_value(2, 7);
    grid.set_row_value(-1, 7);
    EXPECT_EQ(grid.row_value(2), 0);
    EXPECT_EQ(grid.row_value(-1), 0);
}

} // namespace
} // namespace tavelo
