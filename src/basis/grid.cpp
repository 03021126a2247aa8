#include "basis/grid.h"

#include <algorithm>

namespace tavelo {

void Grid::set_rows(int rows) {
    rows_.resize(static_cast<std::size_t>(std::max(rows, 0)));
    for (Row& row : rows_)
        row.texts.resize(static_cast<std::size_t>(columns_));
    keep_positions_inside();
    tell_reset();
}

void Grid::set_columns(int columns) {
    if (std::max(columns, 0) == columns_) return;
    columns_ = std::max(columns, 0);
    column_style_.resize(static_cast<std::size_t>(columns_));
    for (Row& row : rows_)
        row.texts.resize(static_cast<std::size_t>(columns_));
    keep_positions_inside();
    tell_reset();
}

void Grid::set_fixed_rows(int rows) {
    fixed_rows_ = std::max(rows, 0);
    keep_positions_inside();
    tell_reset();
}

void Grid::set_fixed_columns(int columns) {
    fixed_columns_ = std::max(columns, 0);
    tell_reset();
}

const std::string& Grid::text(int row, int column) const {
    static const std::string none;
    if (!has_cell(row, column)) return none;
    return rows_[static_cast<std::size_t>(row)].texts[static_cast<std::size_t>(column)];
}

void Grid::set_text(int row, int column, std::string_view text) {
    if (!has_cell(row, column)) return;
    std::string& cell = rows_[static_cast<std::size_t>(row)].texts[static_cast<std::size_t>(column)];
    if (cell == text) return;
    cell = text;
    if (GridListener* listener = audience()) listener->cell_changed(row, column);
}

std::int32_t Grid::row_value(int row) const {
    return row >= 0 && row < rows() ? rows_[static_cast<std::size_t>(row)].value : 0;
}

void Grid::set_row_value(int row, std::int32_t value) {
    if (row >= 0 && row < rows()) rows_[static_cast<std::size_t>(row)].value = value;
}

int Grid::column_width(int column) const {
    return column >= 0 && column < columns_ ? column_style_[static_cast<std::size_t>(column)].width : 0;
}

void Grid::set_column_width(int column, int twips) {
    if (column < 0 || column >= columns_) return;
    column_style_[static_cast<std::size_t>(column)].width = std::max(twips, 0);
    tell_reset();
}

CellAlignment Grid::column_alignment(int column) const {
    return column >= 0 && column < columns_ ? column_style_[static_cast<std::size_t>(column)].alignment
                                            : CellAlignment::left_centre;
}

void Grid::set_column_alignment(int column, CellAlignment alignment) {
    if (column < 0 || column >= columns_) return;
    column_style_[static_cast<std::size_t>(column)].alignment = alignment;
    tell_reset();
}

void Grid::set_row(int row) {
    if (row < 0 || row >= rows()) return;
    row_ = row;
    selection_column_ = column_;
    tell_current();
}

void Grid::set_column(int column) {
    if (column < 0 || column >= columns_) return;
    column_ = column;
    selection_column_ = column;
    tell_current();
}

void Grid::set_selection_column(int column) {
    if (column < 0 || column >= columns_) return;
    selection_column_ = column;
    tell_current();
}

void Grid::highlight_row(int row) {
    set_row(row);
    set_column(columns_ - 1);
    set_selection_column(1);
}

void Grid::set_top_row(int row) {
    if (row < 0 || row >= rows() || std::max(row, fixed_rows_) == top_row()) return;
    top_row_ = row;
    tell_current();
}

int Grid::append_row(std::vector<std::string> texts) {
    insert_row(rows(), std::move(texts));
    return rows() - 1;
}

void Grid::insert_row(int row, std::vector<std::string> texts) {
    const int at = std::clamp(row, 0, rows());
    texts.resize(static_cast<std::size_t>(columns_));
    rows_.insert(rows_.begin() + at, Row{std::move(texts)});
    if (GridListener* listener = audience()) listener->row_inserted(at);
}

void Grid::remove_row(int row) {
    if (row < 0 || row >= rows()) return;
    rows_.erase(rows_.begin() + row);
    const int current = row_;
    keep_positions_inside();
    if (GridListener* listener = audience()) {
        listener->row_removed(row);
        if (row_ != current) listener->current_changed();
    }
}

void Grid::set_redraw(bool redraw) {
    if (redraw == redraw_) return;
    redraw_ = redraw;
    tell_reset();
}

void Grid::keep_positions_inside() {
    row_ = std::clamp(row_, 0, std::max(rows() - 1, 0));
    column_ = std::clamp(column_, 0, std::max(columns_ - 1, 0));
    selection_column_ = std::clamp(selection_column_, 0, std::max(columns_ - 1, 0));
    top_row_ = std::clamp(top_row_, 0, std::max(rows() - 1, 0));
}

void Grid::tell_reset() const {
    if (GridListener* listener = audience()) listener->grid_reset();
}

void Grid::tell_current() const {
    if (GridListener* listener = audience()) listener->current_changed();
}

} // namespace tavelo
