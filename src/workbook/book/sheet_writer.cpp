#include "workbook/book/sheet_writer.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tavelo {

namespace {

std::pair<std::uint32_t, std::uint16_t> place_of(const Cell& cell) { return {cell.row, cell.column}; }

UsedRange box_around(const std::vector<Cell>& cells) {
    if (cells.empty()) return {};
    const auto [left, right] = std::ranges::minmax(cells, {}, &Cell::column);
    const std::uint32_t top = cells.front().row; // they are in order
    return {top, left.column, cells.back().row - top + 1, std::uint32_t{right.column} - left.column + 1};
}

} // namespace

bool SheetWriter::add_text(std::uint32_t row, std::uint32_t column, std::string_view text, std::uint32_t format) {
    if (text.empty() || row >= sheet_rows || column >= sheet_columns) return true;
    const auto index = texts_.add(text);
    if (!index) return false;
    Cell cell;
    cell.kind = CellKind::text;
    cell.text = *index;
    cell.format = format;
    return add(cell, row, column);
}

bool SheetWriter::add(Cell cell, std::uint32_t row, std::uint32_t column) {
    if (row >= sheet_rows || column >= sheet_columns) return true;
    if (sheet_.cells.size() == most_cells) return false;
    cell.row = row;
    cell.column = static_cast<std::uint16_t>(column);
    if (!sheet_.cells.empty() && place_of(sheet_.cells.back()) >= place_of(cell)) in_order_ = false;
    sheet_.cells.push_back(cell);
    return true;
}

void SheetWriter::set_width(std::uint32_t first, std::uint32_t last, double points) {
    auto& widths = sheet_.column_widths;
    for (std::uint32_t column = first; column <= last && column < sheet_columns; ++column) {
        if (widths.size() <= column) widths.resize(column + 1, sheet_.default_column_width);
        widths[column] = points;
    }
}

Sheet SheetWriter::take() {
    auto& cells = sheet_.cells;
    if (!in_order_) {
        std::ranges::stable_sort(cells, {}, place_of);
        const auto same_place = [](const Cell& a, const Cell& b) { return place_of(a) == place_of(b); };
        cells.erase(cells.begin(), std::unique(cells.rbegin(), cells.rend(), same_place).base());
    }
    sheet_.used = box_around(cells);
    return std::exchange(sheet_, {});
}

} // namespace tavelo
