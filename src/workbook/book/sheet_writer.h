// Gathers the cells of a sheet for a reader that meets them one by one.
#pragma once

#include "workbook/book/model.h"

#include <cstdint>
#include <string_view>

namespace tavelo {

class SheetWriter {
  public:
    // `texts` are the workbook's: the texts of the cells are added behind.
    explicit SheetWriter(TextTable& texts) : texts_(texts) {}

    // Row and column from 0. What lies beyond the last row or column that a sheet can have is left out, and so is an
    // empty text. False when the sheet has most_cells already, or the workbook all the texts that it may have.
    [[nodiscard]] bool add_text(std::uint32_t row, std::uint32_t column, std::string_view text,
                                std::uint32_t format = 0);
    // Of cells at one place the last one stays.
    [[nodiscard]] bool add(Cell cell, std::uint32_t row, std::uint32_t column);
    // In points. Columns in front that were given none get the default width.
    void set_width(std::uint32_t first, std::uint32_t last, double points);
    // Before any set_width.
    void set_default_width(double points) { sheet_.default_column_width = points; }

    // The box around the cells is the used range.
    [[nodiscard]] Sheet take();

  private:
    TextTable& texts_;
    Sheet sheet_;
    bool in_order_ = true;
};

} // namespace tavelo
