// Rows of text with a separator between the fields, as portals and other programs export them.
#pragma once

#include "workbook/book/model.h"

#include <expected>
#include <optional>
#include <string>
#include <string_view>

namespace tavelo {

// A tab, a semicolon or a comma: the one that cuts most of the first lines into the same number of fields. When two do
// so alike, the first of these three: where the comma stands in numbers, lists have semicolons. A first line "sep=;"
// names the separator itself. Nothing for a text that none of them cuts: it is no table.
[[nodiscard]] std::optional<char> separator_of(std::string_view text);

// Every field is a text, as it is written: 007 stays 007, and 1-2 is no date. A field in quotes may hold separators,
// line ends (shown as a line feed) and doubled quotes; quotes that do not end run to the end of the text. ="007" is
// what some writers do to keep Excel from reading a number: it shows 007.
[[nodiscard]] std::expected<Sheet, OpenFailure> read_delimited_text(std::string_view text, TextTable& texts);

} // namespace tavelo
