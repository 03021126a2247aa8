#include "workbook/sheet_box.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace tavelo {
namespace {

struct Place {
    std::uint32_t row;
    std::uint32_t column;
    CellKind kind = CellKind::number;
};

Sheet sheet_of(std::initializer_list<Place> places, UsedRange used) {
    Sheet sheet;
    for (const Place& place : places) {
        Cell cell;
        cell.row = place.row;
        cell.column = static_cast<std::uint16_t>(place.column);
        cell.kind = place.kind;
        sheet.cells.push_back(cell);
    }
    sheet.used = used;
    return sheet;
}

std::string shown_box(std::initializer_list<Place> places, UsedRange used) {
    const UsedRange box = box_to_show(sheet_of(places, used));
    return std::to_string(box.first_row) + ',' + std::to_string(box.first_column) + ' ' + std::to_string(box.rows) +
           'x' + std::to_string(box.columns);
}

TEST(GetoondBereik, is_het_gebruikte_zolang_dat_niet_te_groot_is) {
    EXPECT_EQ(shown_box({}, {}), "0,0 0x0");
    EXPECT_EQ(shown_box({{3, 4}}, {3, 4, 1, 1}), "3,4 1x1");
    EXPECT_EQ(shown_box({{3, 4}}, {0, 0, 4000, 1000}), "0,0 4000x1000");
    EXPECT_EQ(shown_box({{3, 4}}, {1000, 500, 3000, 500}), "1000,500 3000x500"); // counted from A1
    EXPECT_EQ(shown_box({{3, 4}}, {0, 0, 4000, 1001}), "3,4 1x1");
    EXPECT_EQ(shown_box({{3, 4}}, {1000, 500, 3000, 501}), "3,4 1x1");
    EXPECT_EQ(shown_box({{3, 4}}, {1000, 500, 3001, 500}), "3,4 1x1");
}

TEST(GetoondBereik, is_anders_dat_om_de_cellen_met_een_waarde) {
    constexpr UsedRange whole{0, 0, sheet_rows, sheet_columns};
    EXPECT_EQ(shown_box({{0, 0, CellKind::blank}, {5, 7}, {6, 3, CellKind::text}, {9, 9, CellKind::blank}}, whole),
              "5,3 2x5");
    EXPECT_EQ(shown_box({{0, 0, CellKind::blank}}, whole), "0,0 0x0");
    EXPECT_EQ(shown_box({}, whole), "0,0 0x0");
    EXPECT_EQ(shown_box({{1, 1, CellKind::boolean}, {2, 2, CellKind::error}}, whole), "1,1 2x2");
}

TEST(GetoondBereik, laat_eerst_weg_wat_ver_naar_rechts_staat) {
    constexpr UsedRange whole{0, 0, sheet_rows, sheet_columns};
    EXPECT_EQ(shown_box({{1, 1}, {2, 255}, {3, 256}, {4000, 16383}}, whole), "1,1 2x255");
    EXPECT_EQ(shown_box({{1, 1}, {2, 255}, {243, 16383}}, whole), "1,1 243x16383"); // just fits
}

TEST(GetoondBereik, laat_dan_weg_wat_ver_naar_beneden_staat) {
    constexpr UsedRange whole{0, 0, sheet_rows, sheet_columns};
    // Ten columns, so 400,000 rows are shown.
    EXPECT_EQ(shown_box({{1, 0}, {2, 9}, {399'999, 3}, {400'000, 4}, {400'001, 5}}, whole), "1,0 399999x10");
    EXPECT_EQ(shown_box({{1, 2}, {2, 9}, {399'999, 3}, {400'000, 4}, {400'001, 16383}}, whole), "1,2 399999x8");
    EXPECT_EQ(shown_box({{1'000'000, 255}}, whole), "0,0 0x0");
}

TEST(CelOpPlaats, is_er_alleen_waar_een_cel_staat) {
    const Sheet sheet = sheet_of({{1, 1}, {1, 3}, {2, 0}, {4, 4}}, {1, 0, 4, 5});
    for (const Cell& cell : sheet.cells)
        EXPECT_EQ(cell_at(sheet, cell.row, cell.column), &cell);
    for (const auto& [row, column] :
         {std::pair{0U, 0U}, {1U, 0U}, {1U, 2U}, {1U, 4U}, {2U, 1U}, {4U, 3U}, {4U, 5U}, {5U, 0U}, {2U, 3U}})
        EXPECT_EQ(cell_at(sheet, row, column), nullptr) << row << ' ' << column;
    EXPECT_EQ(cell_at(Sheet(), 0, 0), nullptr);
}

} // namespace
} // namespace tavelo
