#include "basis/grid.h"

#include "fakes/grid_events.h"
#include "fakes/heap.h"
#include "schedule/toeval.h"

#include <gtest/gtest.h>

namespace tavelo {
namespace {

using test::GridEvents;
using test::Texts;
using test::Views;

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
        const int rij = grid.append_row(Views{"x", "y"});
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
    grid.insert_row(2, Views{"n"});
    grid.insert_row(99, Views{"z", "valt buiten de kolommen"});
    grid.insert_row(1, {});
    EXPECT_EQ(test::column_texts(grid, 0), (Texts{"", "a", "n", "b", "z"}));
    EXPECT_EQ(grid.row_value(3), 0);
    EXPECT_EQ(grid.row_value(4), 7); // goes along with its row
    grid.remove_row(2);
    EXPECT_EQ(test::column_texts(grid, 0), (Texts{"", "n", "b", "z"}));
    EXPECT_EQ(grid.row_value(3), 7);
    EXPECT_EQ(grid.row_value(4), 0);
}

// What a row is told to hold may come from the grid itself.
TEST(Grid, een_rij_kan_met_de_teksten_van_een_andere_worden_gevuld) {
    Grid grid = grid_van(1, 3);
    grid.append_row(Views{"a", "", "een lange tekst die niet in een kleine ruimte past"});
    for (int keer = 0; keer < 100; ++keer)
        grid.append_row(Views{grid.text(keer + 1, 2), grid.text(keer + 1, 0), grid.text(keer + 1, 2)});
    grid.set_text(1, 0, grid.text(101, 2));
    grid.set_text(1, 2, grid.text(1, 0).substr(4));
    EXPECT_EQ(test::row_texts(grid, 1), (Texts{"een lange tekst die niet in een kleine ruimte past", "",
                                               "lange tekst die niet in een kleine ruimte past"}));
    EXPECT_EQ(test::row_texts(grid, 101), (Texts{"een lange tekst die niet in een kleine ruimte past",
                                                 "een lange tekst die niet in een kleine ruimte past",
                                                 "een lange tekst die niet in een kleine ruimte past"}));
}

TEST(Grid, na_elke_reeks_wijzigingen_staat_er_wat_er_is_neergezet) {
    const std::uint32_t begin = test::beginwaarde(1813);
    std::cout << "TAVELO_SEED=" << begin << '\n';
    test::Toeval toeval(begin);
    for (int proef = 0; proef < 20; ++proef) {
        Grid grid = grid_van(0, 3);
        std::vector<Texts> verwacht;
        for (int stap = 0; stap < 3000; ++stap) {
            const int rij = toeval.onder(static_cast<int>(verwacht.size()) + 2) - 1;
            const bool bestaat = rij >= 0 && rij < grid.rows();
            const std::string tekst(static_cast<std::size_t>(toeval.onder(200)), static_cast<char>('a' + stap % 26));
            switch (toeval.onder(7)) {
            case 0:
                grid.append_row(Views{tekst, "", "z"});
                verwacht.push_back({tekst, "", "z"});
                break;
            case 1:
                grid.insert_row(std::max(rij, 0), Views{"", tekst});
                verwacht.insert(verwacht.begin() + std::min(std::max(rij, 0), static_cast<int>(verwacht.size())),
                                {"", tekst, ""});
                break;
            case 2:
                grid.remove_row(rij);
                if (bestaat) verwacht.erase(verwacht.begin() + rij);
                break;
            case 3:
                if (!toeval.een_op(50)) break;
                grid.set_rows(rij);
                verwacht.resize(static_cast<std::size_t>(std::max(rij, 0)), Texts(3));
                break;
            case 4:
                grid.set_row_texts(rij, Views{"", tekst});
                if (bestaat) std::ranges::copy(Texts{"", tekst}, verwacht[static_cast<std::size_t>(rij)].begin());
                break;
            default:
                const int kolom = toeval.onder(3);
                grid.set_text(rij, kolom, tekst);
                if (bestaat) verwacht[static_cast<std::size_t>(rij)][static_cast<std::size_t>(kolom)] = tekst;
            }
        }
        ASSERT_EQ(test::all_texts(grid), verwacht);
    }
}

TEST(Grid, wie_dezelfde_cellen_blijft_wijzigen_houdt_het_geheugen_klein) {
    Grid grid = grid_van(100, 3);
    const std::size_t voor = test::heap_bytes();
    for (int keer = 0; keer < 2000; ++keer)
        for (int rij = 0; rij < 100; ++rij)
            grid.set_text(rij, 1, std::string(100, static_cast<char>('a' + keer % 26)));
    EXPECT_LT(test::heap_bytes(), voor + 200'000); // of twenty million bytes that were written
    EXPECT_EQ(grid.text(99, 1), std::string(100, static_cast<char>('a' + 1999 % 26)));
}

TEST(Grid, wie_rijen_blijft_vullen_en_weghalen_houdt_het_geheugen_klein) {
    for (const bool een_voor_een : {true, false}) {
        Grid grid = grid_van(100, 3);
        const std::size_t voor = test::heap_bytes();
        for (int keer = 0; keer < 20'000; ++keer) {
            grid.set_text(grid.append_row(), 1, std::string(100, 'x'));
            if (een_voor_een)
                grid.remove_row(100);
            else
                grid.set_rows(100);
        }
        EXPECT_LT(test::heap_bytes(), voor + 200'000) << een_voor_een; // of two million bytes that were written
    }
}

TEST(Grid, een_lege_rij_neemt_geen_geheugen_voor_haar_cellen) {
    const std::size_t voor = test::heap_bytes();
    Grid grid = grid_van(1000, 500);
    EXPECT_LT(test::heap_bytes(), voor + 200'000); // of eight million for the cells
    grid.set_text(999, 499, "");
    grid.set_row_value(7, 3);
    grid.set_text(7, 499, "x");
    grid.set_columns(501);
    EXPECT_LT(test::heap_bytes(), voor + 200'000);
    EXPECT_EQ(test::row_texts(grid, 8), Texts(501));
    EXPECT_EQ(grid.text(7, 499), "x");
    EXPECT_EQ(grid.row_value(7), 3);
}

TEST(Grid, de_teksten_van_een_rij_komen_in_een_keer) {
    Grid grid = grid_van(3, 2);
    grid.set_row_value(1, 7);
    GridEvents gehoord;
    grid.set_listener(&gehoord);
    grid.set_row_texts(1, Views{"a", "bb", "te veel"});
    EXPECT_EQ(test::all_texts(grid), (std::vector<Texts>{{"", ""}, {"a", "bb"}, {"", ""}}));
    EXPECT_EQ(gehoord.cells, (std::vector<std::pair<int, int>>{{1, 0}, {1, 1}}));
    grid.set_row_texts(1, Views{"c"});
    grid.set_row_texts(2, Views{});
    grid.set_row_texts(3, Views{"x"});
    grid.set_row_texts(-1, Views{"x"});
    EXPECT_EQ(test::all_texts(grid), (std::vector<Texts>{{"", ""}, {"c", "bb"}, {"", ""}}));
    EXPECT_EQ(grid.row_value(1), 7);
    EXPECT_EQ(gehoord.cells.size(), 3U);
}

TEST(Grid, ook_wie_hele_rijen_blijft_vullen_houdt_het_geheugen_klein) {
    Grid grid = grid_van(100, 2);
    const std::size_t voor = test::heap_bytes();
    const std::string tekst(100, 'x');
    for (int keer = 0; keer < 2000; ++keer)
        for (int rij = 0; rij < 100; ++rij)
            grid.set_row_texts(rij, Views{tekst, "y"});
    EXPECT_LT(test::heap_bytes(), voor + 200'000);
    EXPECT_EQ(grid.text(99, 0), tekst);
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

TEST(Grid, de_selectie_eindigt_in_een_kolom_die_er_is) {
    Grid grid = grid_van(2, 4);
    grid.set_selection_column(3);
    grid.set_columns(2);
    EXPECT_EQ(grid.selection_column(), 1);
}

TEST(Grid, een_rij_erboven_verschuift_wat_er_geselecteerd_is) {
    Grid grid = grid_met("abc");
    grid.set_row(2);
    grid.insert_row(1, Views{"n"});
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

TEST(Grid, een_kolom_buiten_het_grid_heeft_geen_maat_en_krijgt_er_geen) {
    Grid grid = grid_van(2, 2);
    GridEvents gehoord;
    grid.set_listener(&gehoord);
    for (const int kolom : {-1, 2, 1000}) {
        grid.set_column_width(kolom, 100);
        grid.set_column_alignment(kolom, CellAlignment::right_centre);
        grid.set_selection_column(kolom);
        EXPECT_EQ(grid.column_width(kolom), 0);
        EXPECT_EQ(grid.column_alignment(kolom), CellAlignment::left_centre);
    }
    EXPECT_EQ(gehoord.resets + gehoord.current, 0);
    grid.set_column_alignment(0, CellAlignment::right_centre);
    grid.set_column_alignment(1, CellAlignment::centre_centre);
    EXPECT_EQ(grid.column_alignment(0), CellAlignment::right_centre);
    EXPECT_EQ(grid.column_alignment(1), CellAlignment::centre_centre);
}

TEST(Grid, de_eerste_rij_en_kolom_horen_bij_het_grid) {
    Grid grid = grid_van(3, 3);
    grid.set_row(2);
    grid.set_row(0);
    EXPECT_EQ(grid.row(), 0);
    grid.set_column(2);
    grid.set_column(0);
    EXPECT_EQ(grid.column(), 0);
    grid.set_selection_column(2);
    grid.set_selection_column(0);
    EXPECT_EQ(grid.selection_column(), 0);
    grid.set_top_row(2);
    grid.set_top_row(0);
    EXPECT_EQ(grid.top_row(), 0);
    grid.set_row_value(0, 7);
    EXPECT_EQ(grid.row_value(0), 7);
    grid.set_column_width(0, 300);
    EXPECT_EQ(grid.column_width(0), 300);
    grid.remove_row(0);
    EXPECT_EQ(grid.rows(), 2);
}

TEST(Grid, een_andere_bouw_van_het_grid_hoort_een_toehoorder_als_geheel) {
    const auto gehoord_bij = [](auto wijzig) {
        Grid grid = grid_van(3, 3);
        GridEvents gehoord;
        grid.set_listener(&gehoord);
        wijzig(grid);
        return gehoord.resets;
    };
    EXPECT_EQ(gehoord_bij([](Grid& grid) { grid.set_rows(5); }), 1);
    EXPECT_EQ(gehoord_bij([](Grid& grid) { grid.set_columns(5); }), 1);
    EXPECT_EQ(gehoord_bij([](Grid& grid) { grid.set_columns(3); }), 0);
    EXPECT_EQ(gehoord_bij([](Grid& grid) { grid.set_fixed_rows(1); }), 1);
    EXPECT_EQ(gehoord_bij([](Grid& grid) { grid.set_fixed_columns(1); }), 1);
    EXPECT_EQ(gehoord_bij([](Grid& grid) { grid.set_column_width(1, 9); }), 1);
    EXPECT_EQ(gehoord_bij([](Grid& grid) { grid.set_column_alignment(1, CellAlignment::right_centre); }), 1);
}

} // namespace
} // namespace tavelo
