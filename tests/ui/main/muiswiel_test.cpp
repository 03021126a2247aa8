#include "fakes/opstelling.h"
#include "ui/main/muiswiel.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

constexpr int omlaag = -120; // one notch towards the user
constexpr int omhoog = 120;
constexpr int hoogte = 5000;
constexpr int uit_beeld = 9000; // top of a last row that lies below the grid

// A title row and `rijen` entries.
Grid rooster(int rijen) {
    Grid grid;
    richt_grid_in(grid);
    grid.set_rows(1 + rijen);
    return grid;
}

TEST(GridMuiswiel, een_stap_omlaag_verschuift_een_rij) {
    Grid grid = rooster(100);
    ASSERT_EQ(grid.top_row(), 1);
    grid_muiswiel(grid, omlaag, uit_beeld, hoogte);
    EXPECT_EQ(grid.top_row(), 2);
    grid_muiswiel(grid, omlaag, uit_beeld, hoogte);
    EXPECT_EQ(grid.top_row(), 3);
}

TEST(GridMuiswiel, een_stap_omhoog_verschuift_een_rij_terug) {
    Grid grid = rooster(100);
    grid.set_top_row(7);
    grid_muiswiel(grid, omhoog, uit_beeld, hoogte);
    EXPECT_EQ(grid.top_row(), 6);
}

TEST(GridMuiswiel, de_grootte_van_de_draai_maakt_geen_verschil) {
    Grid grid = rooster(100);
    grid_muiswiel(grid, -12000, uit_beeld, hoogte);
    EXPECT_EQ(grid.top_row(), 2);
    grid_muiswiel(grid, -1, uit_beeld, hoogte);
    EXPECT_EQ(grid.top_row(), 3);
    grid_muiswiel(grid, 0, uit_beeld, hoogte); // no turn counts as down
    EXPECT_EQ(grid.top_row(), 4);
    grid_muiswiel(grid, 12000, uit_beeld, hoogte);
    EXPECT_EQ(grid.top_row(), 3);
    grid_muiswiel(grid, 1, uit_beeld, hoogte);
    EXPECT_EQ(grid.top_row(), 2);
}

TEST(GridMuiswiel, omlaag_doet_niets_als_de_laatste_rij_in_beeld_is) {
    Grid grid = rooster(100);
    grid_muiswiel(grid, omlaag, hoogte - 601, hoogte);
    EXPECT_EQ(grid.top_row(), 1);
    grid_muiswiel(grid, omlaag, hoogte - 600, hoogte); // not above the line
    EXPECT_EQ(grid.top_row(), 2);
}

TEST(GridMuiswiel, omhoog_kan_ook_als_de_laatste_rij_in_beeld_is) {
    Grid grid = rooster(100);
    grid.set_top_row(5);
    grid_muiswiel(grid, omhoog, 0, hoogte);
    EXPECT_EQ(grid.top_row(), 4);
}

TEST(GridMuiswiel, omhoog_houdt_op_onder_de_titelrij) {
    Grid grid = rooster(100);
    grid_muiswiel(grid, omhoog, uit_beeld, hoogte);
    EXPECT_EQ(grid.top_row(), 1);
}

TEST(GridMuiswiel, omlaag_houdt_op_bij_de_laatste_rij) {
    Grid grid = rooster(3);
    for (int stap = 0; stap < 10; ++stap)
        grid_muiswiel(grid, omlaag, uit_beeld, hoogte);
    EXPECT_EQ(grid.top_row(), 3);
}

TEST(GridMuiswiel, na_een_nieuw_geopend_rooster_verschuift_de_eerste_stap_al) {
    Grid grid = rooster(100);
    grid.set_top_row(40);
    grid.set_rows(1);
    for (int rij = 0; rij < 50; ++rij)
        static_cast<void>(grid.append_row());
    ASSERT_EQ(grid.top_row(), 1);
    grid_muiswiel(grid, omlaag, uit_beeld, hoogte);
    EXPECT_EQ(grid.top_row(), 2);
}

TEST(GridMuiswiel, een_grid_zonder_rijen_blijft_zoals_het_is) {
    Grid grid;
    grid_muiswiel(grid, omlaag, uit_beeld, hoogte);
    grid_muiswiel(grid, omhoog, uit_beeld, hoogte);
    EXPECT_EQ(grid.top_row(), 0);
    EXPECT_EQ(grid.rows(), 0);
}

TEST(PuntInVenster, de_randen_horen_erbij) {
    constexpr SchermRechthoek venster{10, 20, 110, 220};
    for (const auto& [x, y] : {std::pair{10, 20}, {110, 220}, {10, 220}, {110, 20}, {60, 100}})
        EXPECT_TRUE(punt_in_venster(venster, x, y)) << x << ',' << y;
    for (const auto& [x, y] : {std::pair{9, 100}, {111, 100}, {60, 19}, {60, 221}, {0, 0}})
        EXPECT_FALSE(punt_in_venster(venster, x, y)) << x << ',' << y;
}

TEST(PuntInVenster, een_venster_zonder_plaats_bevat_alleen_de_oorsprong) {
    EXPECT_TRUE(punt_in_venster({}, 0, 0));
    EXPECT_FALSE(punt_in_venster({}, 1, 0));
}

TEST(WielDoel, de_besturing_onder_de_muis_krijgt_het_wiel_ook_al_heeft_een_andere_de_aandacht) {
    const std::vector<WielDoel> besturingen = {{{0, 0, 100, 100}, Besturing::afbeelding, true},
                                               {{200, 0, 300, 100}, Besturing::grid, true}};
    EXPECT_EQ(wiel_doel(besturingen, 250, 50), 1U);
    EXPECT_EQ(wiel_doel(besturingen, 50, 50), 0U);
    EXPECT_EQ(wiel_doel(besturingen, 150, 50), std::nullopt);
}

TEST(WielDoel, de_eerste_in_volgorde_gaat_voor) {
    const std::vector<WielDoel> besturingen = {{{0, 0, 100, 100}, Besturing::lijst, true},
                                               {{50, 50, 300, 100}, Besturing::grid, true}};
    EXPECT_EQ(wiel_doel(besturingen, 100, 100), 0U);
    EXPECT_EQ(wiel_doel(besturingen, 101, 100), 1U);
}

TEST(WielDoel, wat_onzichtbaar_is_of_niet_meedoet_wordt_overgeslagen) {
    const std::vector<WielDoel> besturingen = {{{0, 0, 100, 100}, Besturing::grid, false},
                                               {{0, 0, 100, 100}, Besturing::anders, true},
                                               {{0, 0, 100, 100}, Besturing::invoer, true}};
    EXPECT_EQ(wiel_doel(besturingen, 50, 50), 2U);
    EXPECT_EQ(wiel_doel({}, 50, 50), std::nullopt);
}

} // namespace
} // namespace tavelo
