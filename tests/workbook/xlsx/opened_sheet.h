// A sheet that was read, asked by the names of its cells.
#pragma once

#include "workbook/book/containers.h"
#include "workbook/displayed_text.h"
#include "workbook/sheet_box.h"
#include "workbook/text/locale.h"
#include "workbook/xlsx/sheet_part.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tavelo::test {

struct OpenedSheet {
    std::unique_ptr<Workbook> book;
    Sheet sheet;

    // Null for a place without a cell.
    [[nodiscard]] const Cell* cell(std::string_view name) const {
        const auto place = parse_cell_reference(name);
        return cell_at(sheet, place->row.value(), place->column);
    }
    [[nodiscard]] std::string shown(std::string_view name, std::string_view land = "nl-NL") const {
        const Cell* const found = cell(name);
        return found == nullptr ? std::string("(geen cel)")
                                : std::string(DisplayedTexts(*book, locale_named(land)).of(*found));
    }
    [[nodiscard]] std::vector<std::uint32_t> used() const {
        return {sheet.used.first_row, sheet.used.first_column, sheet.used.rows, sheet.used.columns};
    }
};

// Throws (and so fails the test) when the workbook or the sheet is refused.
[[nodiscard]] inline OpenedSheet opened(std::vector<std::byte> bytes, std::size_t index = 0) {
    auto book = open_xlsx(std::move(bytes)).value();
    Sheet sheet = book->read_sheet(index).value();
    return {std::move(book), std::move(sheet)};
}

} // namespace tavelo::test
