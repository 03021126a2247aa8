// The grid control as a plain model: rows of texts, a title row, a current cell, a selection and a top row. Positions
// count from 0. A position outside the grid reads as empty and writing to it changes nothing, so a rule may take its
// steps one by one without asking first. Setting a row or column never calls back into the rules: only the user's mouse
// and keys do.
#pragma once

#include "basis/text_store.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace tavelo {

// The grid's alignment codes.
enum class CellAlignment : std::uint8_t { left_centre = 1, centre_centre = 4, right_centre = 7 };

// What a view hears. Rows are those after the change.
class GridListener {
  public:
    virtual ~GridListener() = default;
    virtual void cell_changed(int row, int column) = 0;
    virtual void row_inserted(int row) = 0;
    virtual void row_removed(int row) = 0;
    virtual void current_changed() = 0; // current cell, selection or top row
    virtual void grid_reset() = 0;      // anything else: sizes, widths, alignments, or redraw switched on again
};

class Grid {
  public:
    [[nodiscard]] int rows() const { return static_cast<int>(rows_.size()); }
    [[nodiscard]] int columns() const { return columns_; }
    // New rows and columns are empty; a current cell beyond the new end moves to the last row or column.
    void set_rows(int rows);
    void set_columns(int columns);

    [[nodiscard]] int fixed_rows() const { return fixed_rows_; }
    [[nodiscard]] int fixed_columns() const { return fixed_columns_; }
    void set_fixed_rows(int rows);
    void set_fixed_columns(int columns);

    // A view that holds until the grid changes.
    [[nodiscard]] std::string_view text(int row, int column) const {
        if (!has_cell(row, column)) return {};
        const std::string_view* const cells = rows_[static_cast<std::size_t>(row)].cells;
        return cells == nullptr ? std::string_view() : cells[column];
    }
    void set_text(int row, int column, std::string_view text);
    // The same for the cells of a row from column 0 on, quicker. Texts beyond the last column are dropped, cells
    // without a text keep theirs. The texts may not be views on this grid.
    void set_row_texts(int row, std::span<const std::string_view> texts);
    // A number that goes with the row and is never shown.
    [[nodiscard]] std::int32_t row_value(int row) const;
    void set_row_value(int row, std::int32_t value);

    // Widths in twips; 0 hides the column.
    [[nodiscard]] int column_width(int column) const;
    void set_column_width(int column, int twips);
    // For the cells and the title alike.
    [[nodiscard]] CellAlignment column_alignment(int column) const;
    void set_column_alignment(int column, CellAlignment alignment);

    [[nodiscard]] int row() const { return row_; }
    [[nodiscard]] int column() const { return column_; }
    // Each also ends the selection at the current cell.
    void set_row(int row);
    void set_column(int column);
    // The selection runs from the current column to this one, on the current row.
    [[nodiscard]] int selection_column() const { return selection_column_; }
    void set_selection_column(int column);
    // Current cell in the last column of `row` and the selection back to column 1: the row is highlighted.
    void highlight_row(int row);

    // The first row shown below the fixed ones.
    [[nodiscard]] int top_row() const { return std::max(top_row_, fixed_rows_); }
    void set_top_row(int row);

    // Appends a row and gives its position. Missing texts are empty, texts beyond the last column are dropped.
    int append_row(std::span<const std::string_view> texts = {});
    // Inserts a row before `row`; at the end when `row` lies beyond it. Texts beyond the last column are dropped.
    void insert_row(int row, std::span<const std::string_view> texts);
    void remove_row(int row);

    // With redraw off the listener hears nothing; switched on again it hears `grid_reset` once.
    [[nodiscard]] bool redraw() const { return redraw_; }
    void set_redraw(bool redraw);
    // Not owned; null for none. It must outlive the grid or be taken away.
    void set_listener(GridListener* listener) { listener_ = listener; }

  private:
    // The texts of a row lie together behind its cells, in the store.
    struct Row {
        std::string_view* cells = nullptr; // one per column; null as long as the row is empty
        std::size_t bytes = 0;             // of the store that are in use for it
        std::int32_t value = 0;
    };
    struct Column {
        int width = 960;
        CellAlignment alignment = CellAlignment::left_centre;
    };

    [[nodiscard]] bool has_cell(int row, int column) const {
        return row >= 0 && row < rows() && column >= 0 && column < columns_;
    }
    // Sees to it that no more is stored than is worth it, when bytes were added to a row and others are no longer used.
    void account(Row& row, std::size_t added, std::size_t left_behind);
    [[nodiscard]] GridListener* audience() const { return redraw_ ? listener_ : nullptr; }
    // A row of its own copies of the texts.
    [[nodiscard]] static Row stored(TextStore& store, std::size_t columns, std::span<const std::string_view> texts);
    [[nodiscard]] Row new_row(std::span<const std::string_view> texts);
    void fill(Row& row, std::span<const std::string_view> texts);    // that is empty
    void replace(Row& row, std::span<const std::string_view> texts); // that has cells
    void store_all_again(int columns);
    void tidy_store();
    void keep_positions_inside();
    void tell_reset() const;
    void tell_current() const;

    // Memory is only added to the store; what rows and cells leave behind is taken back by storing the rest again.
    TextStore store_;
    std::size_t stored_bytes_ = 0;
    std::size_t used_bytes_ = 0; // of those, by the rows that there are
    std::vector<Row> rows_;
    std::vector<Column> column_style_;
    int columns_ = 0;
    int fixed_rows_ = 0;
    int fixed_columns_ = 0;
    int row_ = 0;
    int column_ = 0;
    int selection_column_ = 0;
    int top_row_ = 0;
    bool redraw_ = true;
    GridListener* listener_ = nullptr;
};

} // namespace tavelo
