// What a view of a grid hears, and what a grid holds, as data.
#pragma once

#include "basis/grid.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tavelo::test {

struct GridEvents final : GridListener {
    std::vector<std::pair<int, int>> cells; // row, column
    std::vector<int> inserted;
    std::vector<int> removed;
    int current = 0;
    int resets = 0;
    void cell_changed(int row, int column) override { cells.emplace_back(row, column); }
    void row_inserted(int row) override { inserted.push_back(row); }
    void row_removed(int row) override { removed.push_back(row); }
    void current_changed() override { ++current; }
    void grid_reset() override { ++resets; }
};

using Texts = std::vector<std::string>;
using Views = std::vector<std::string_view>;

[[nodiscard]] inline Texts row_texts(const Grid& grid, int row) {
    Texts texts;
    for (int column = 0; column < grid.columns(); ++column)
        texts.emplace_back(grid.text(row, column));
    return texts;
}

[[nodiscard]] inline std::vector<Texts> all_texts(const Grid& grid) {
    std::vector<Texts> rows;
    for (int row = 0; row < grid.rows(); ++row)
        rows.push_back(row_texts(grid, row));
    return rows;
}

// The texts of one column below the title row.
[[nodiscard]] inline Texts column_texts(const Grid& grid, int column) {
    Texts texts;
    for (int row = 1; row < grid.rows(); ++row)
        texts.emplace_back(grid.text(row, column));
    return texts;
}

} // namespace tavelo::test
