#include "workbook/sheet_box.h"

#include <algorithm>
#include <utility>

namespace tavelo {

namespace {

bool fits(const UsedRange& box) {
    const auto rows = std::uint64_t{box.first_row} + box.rows;
    const auto columns = std::uint64_t{box.first_column} + box.columns;
    return rows * columns <= most_shown_cells;
}

constexpr std::uint32_t any = UINT32_MAX;
constexpr std::uint32_t usual_columns = 256; // more than any list has, and all that an .xls can have

// Of the cells within so many rows and columns from A1.
UsedRange box_of_values(const Sheet& sheet, std::uint32_t rows, std::uint32_t columns) {
    std::uint32_t first_row = UINT32_MAX;
    std::uint32_t first_column = UINT32_MAX;
    std::uint32_t last_row = 0;
    std::uint32_t last_column = 0;
    for (const Cell& cell : sheet.cells) {
        if (cell.kind == CellKind::blank || cell.row >= rows || cell.column >= columns) continue;
        first_row = std::min(first_row, cell.row);
        first_column = std::min<std::uint32_t>(first_column, cell.column);
        last_row = std::max(last_row, cell.row);
        last_column = std::max<std::uint32_t>(last_column, cell.column);
    }
    if (first_row > last_row) return {};
    return {first_row, first_column, last_row - first_row + 1, last_column - first_column + 1};
}

} // namespace

UsedRange box_to_show(const Sheet& sheet) {
    if (fits(sheet.used)) return sheet.used;
    UsedRange values = box_of_values(sheet, any, any);
    if (!fits(values)) values = box_of_values(sheet, any, usual_columns);
    if (!fits(values)) {
        const auto rows = most_shown_cells / (values.first_column + values.columns);
        values = box_of_values(sheet, static_cast<std::uint32_t>(rows), usual_columns);
    }
    return values;
}

const Cell* cell_at(const Sheet& sheet, std::uint32_t row, std::uint32_t column) {
    const auto place = [](const Cell& cell) { return std::pair<std::uint32_t, std::uint32_t>(cell.row, cell.column); };
    const auto found = std::ranges::lower_bound(sheet.cells, std::pair(row, column), {}, place);
    return found != sheet.cells.end() && place(*found) == std::pair(row, column) ? &*found : nullptr;
}

} // namespace tavelo
