#include "workbook/sheet_csv.h"

#include "workbook/displayed_text.h"
#include "workbook/sheet_box.h"

#include <new>
#include <string_view>

namespace tavelo {

namespace {

void append_field(std::string& csv, std::string_view text) {
    if (text.find_first_of("\",\r\n") == std::string_view::npos) {
        csv += text;
        return;
    }
    csv += '"';
    for (const char c : text) {
        if (c == '"') csv += '"';
        csv += c;
    }
    csv += '"';
}

} // namespace

std::expected<std::string, OpenFailure> blad_als_csv(Workbook& workbook, std::size_t blad, const Locale& locale) try {
    if (blad == 0 || blad > workbook.sheets().size()) return std::string();
    const auto sheet = workbook.read_sheet(blad - 1);
    if (!sheet) return std::unexpected(sheet.error());
    const UsedRange box = box_to_show(*sheet);

    DisplayedTexts texts(workbook, locale);
    std::string csv;
    auto cell = sheet->cells.begin();
    for (std::uint32_t row = 0; row < box.first_row + box.rows; ++row) {
        while (cell != sheet->cells.end() && cell->row < row) // what lies to the right of the box
            ++cell;
        for (std::uint32_t column = 0; column < box.first_column + box.columns; ++column) {
            if (column > 0) csv += ',';
            if (cell == sheet->cells.end() || cell->row != row || cell->column != column) continue;
            append_field(csv, texts.of(*cell));
            ++cell;
        }
        csv += "\r\n";
    }
    return csv;
} catch (const std::bad_alloc&) {
    return std::unexpected(OpenFailure::no_memory);
}

} // namespace tavelo
