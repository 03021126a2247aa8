// The list in a page that is named as a workbook.
#pragma once

#include "workbook/book/model.h"

#include <expected>
#include <string>
#include <string_view>

namespace tavelo {

// Columns beyond this are left out. A list has dozens; cells over many rows times many columns would take time without
// end.
inline constexpr std::uint32_t most_html_columns = 1024;

// There is a table with more than one row.
[[nodiscard]] bool has_html_table(std::string_view page);

// The first table (by where it begins) with more than one row, as texts: nothing in a page is a number or a date.
// `page` is UTF-8. White space counts as one blank, <br> and the end of a paragraph give a line feed, a non-breaking
// blank is a blank; blanks at the ends are left out. colspan and rowspan keep the columns below each other; their text
// stands in the first cell. A table inside a cell is text of that cell. Missing end tags are understood.
// not_a_workbook without such a table.
[[nodiscard]] std::expected<Sheet, OpenFailure> read_html_table(std::string_view page, TextTable& texts);

} // namespace tavelo
