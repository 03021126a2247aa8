#include "basis/grid.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <utility>

namespace tavelo {

namespace {

std::string_view copied(std::string_view text, char* to) {
    if (!text.empty()) std::memcpy(to, text.data(), text.size());
    return {to, text.size()};
}

} // namespace

void Grid::set_rows(int rows) {
    const auto wanted = static_cast<std::size_t>(std::max(rows, 0));
    while (rows_.size() > wanted) {
        used_bytes_ -= rows_.back().bytes;
        rows_.pop_back();
    }
    rows_.resize(wanted);
    tidy_store();
    keep_positions_inside();
    tell_reset();
}

void Grid::set_columns(int columns) {
    if (std::max(columns, 0) == columns_) return;
    store_all_again(std::max(columns, 0));
    column_style_.resize(static_cast<std::size_t>(columns_));
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

void Grid::set_text(int row, int column, std::string_view text) {
    if (!has_cell(row, column)) return;
    if (text == this->text(row, column)) return;
    Row& changed = rows_[static_cast<std::size_t>(row)];
    if (changed.cells == nullptr) fill(changed, {});
    std::string_view& cell = changed.cells[column];
    const std::size_t had = cell.size();
    cell = text.empty() ? std::string_view() : copied(text, static_cast<char*>(store_.allocate(text.size(), 1)));
    account(changed, cell.size(), had);
    if (GridListener* listener = audience()) listener->cell_changed(row, column);
}

void Grid::set_row_texts(int row, std::span<const std::string_view> texts) {
    if (row < 0 || row >= rows()) return;
    texts = texts.first(std::min(texts.size(), static_cast<std::size_t>(columns_)));
    Row& changed = rows_[static_cast<std::size_t>(row)];
    if (changed.cells == nullptr)
        fill(changed, texts);
    else
        replace(changed, texts);
    if (GridListener* listener = audience())
        for (int column = 0; column < static_cast<int>(texts.size()); ++column)
            listener->cell_changed(row, column);
}

void Grid::fill(Row& row, std::span<const std::string_view> texts) {
    const std::int32_t value = row.value;
    row = new_row(texts);
    row.value = value;
}

void Grid::replace(Row& row, std::span<const std::string_view> texts) {
    std::size_t bytes = 0;
    for (const std::string_view text : texts)
        bytes += text.size();
    auto* place = bytes == 0 ? nullptr : static_cast<char*>(store_.allocate(bytes, 1));
    std::size_t had = 0;
    for (std::size_t column = 0; column < texts.size(); ++column) {
        std::string_view& cell = row.cells[column];
        had += cell.size();
        cell = copied(texts[column], place);
        place += cell.size();
    }
    account(row, bytes, had);
}

void Grid::account(Row& row, std::size_t added, std::size_t left_behind) {
    stored_bytes_ += added;
    used_bytes_ += added - left_behind;
    row.bytes += added - left_behind;
    tidy_store();
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

int Grid::append_row(std::span<const std::string_view> texts) {
    const int row = rows();
    rows_.push_back(new_row(texts));
    if (GridListener* listener = audience()) listener->row_inserted(row);
    return row;
}

void Grid::insert_row(int row, std::span<const std::string_view> texts) {
    const int at = std::clamp(row, 0, rows());
    rows_.insert(rows_.begin() + at, new_row(texts));
    if (GridListener* listener = audience()) listener->row_inserted(at);
}

void Grid::remove_row(int row) {
    if (row < 0 || row >= rows()) return;
    used_bytes_ -= rows_[static_cast<std::size_t>(row)].bytes;
    rows_.erase(rows_.begin() + row);
    tidy_store();
    const int current = row_;
    keep_positions_inside();
    if (GridListener* listener = audience()) {
        listener->row_removed(row);
        if (row_ != current) listener->current_changed();
    }
}

Grid::Row Grid::stored(TextStore& store, std::size_t columns, std::span<const std::string_view> texts) {
    texts = texts.first(std::min(texts.size(), columns));
    Row row;
    row.bytes = columns * sizeof(std::string_view);
    for (const std::string_view text : texts)
        row.bytes += text.size();
    row.cells = static_cast<std::string_view*>(store.allocate(row.bytes, alignof(std::string_view)));
    std::string_view* cell = row.cells;
    auto* place = reinterpret_cast<char*>(row.cells + columns);
    for (const std::string_view text : texts) {
        std::construct_at(cell++, copied(text, place));
        place += text.size();
    }
    std::uninitialized_default_construct(cell, row.cells + columns);
    return row;
}

Grid::Row Grid::new_row(std::span<const std::string_view> texts) {
    const Row row = stored(store_, static_cast<std::size_t>(columns_), texts);
    stored_bytes_ += row.bytes;
    used_bytes_ += row.bytes;
    return row;
}

// Changes nothing until all is stored: there may be no memory for it.
void Grid::store_all_again(int columns) {
    TextStore store;
    std::vector<Row> rows;
    rows.reserve(rows_.capacity()); // a grid that is emptied is often filled again
    std::size_t bytes = 0;
    for (const Row& row : rows_) {
        Row& again = rows.emplace_back();
        if (row.cells != nullptr)
            again = stored(store, static_cast<std::size_t>(columns), {row.cells, static_cast<std::size_t>(columns_)});
        again.value = row.value;
        bytes += again.bytes;
    }
    rows_ = std::move(rows);
    store_ = std::move(store);
    columns_ = columns;
    stored_bytes_ = bytes;
    used_bytes_ = bytes;
}

void Grid::tidy_store() {
    constexpr std::size_t little = 65536;
    if (stored_bytes_ > 2 * used_bytes_ + little) store_all_again(columns_);
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
