// Files that are named as a workbook and are something else: what portals and other programs export under .xls, and
// what Excel opens after a question. All of them answer as a workbook does.
#pragma once

#include "workbook/book/model.h"
#include "workbook/xlsx/package.h"

#include <expected>
#include <memory>
#include <vector>

namespace tavelo {

// A page with a table, the spreadsheet in XML of Excel 2003, or rows of text with separators. not_a_workbook for
// everything else.
[[nodiscard]] std::expected<std::unique_ptr<Workbook>, OpenFailure> open_text_lookalike(std::vector<std::byte> bytes);

// The spreadsheet in XML of Excel 2002 and 2003: its sheets with their number formats. Dates, booleans and errors are
// values, as in a workbook; a text stays as it is written. damaged when it is not well-formed.
[[nodiscard]] std::expected<std::unique_ptr<Workbook>, OpenFailure> open_xml_spreadsheet(std::vector<std::byte> bytes);

// An OpenDocument spreadsheet. Each cell shows the text that was stored with its value: it is what the one who saved
// the list saw. Only a value without a text is shown here, as General or as the system's date or time.
[[nodiscard]] bool is_open_document(const Package& package);
[[nodiscard]] std::expected<std::unique_ptr<Workbook>, OpenFailure>
open_open_document(std::unique_ptr<Package> package);

} // namespace tavelo
