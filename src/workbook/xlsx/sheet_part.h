// Reads one worksheet part: its cells, used range and column widths.
#pragma once

#include "workbook/book/model.h"
#include "workbook/text/number_format.h"
#include "workbook/xlsx/styles.h"

#include <cstddef>
#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavelo {

class Package;

struct CellPlace {
    std::optional<std::uint32_t> row; // from 0; absent in a reference of letters alone
    std::uint32_t column = 0;         // from 0
};

// The place that "AB12" names, "$" and lower case allowed. Nothing for a text that is no reference or lies beyond the
// sheet.
[[nodiscard]] std::optional<CellPlace> parse_cell_reference(std::string_view reference);

// The error that a file writes as this word, "#N/A" for instance. Nothing for another word.
[[nodiscard]] std::optional<CellError> error_of(std::string_view word);

// What a worksheet part needs of its workbook.
struct SheetContext {
    const Styles& styles;
    DateSystem dates;
    std::size_t shared_strings; // the first so many of `texts`
    // Why the shared strings could not be read: a sheet that uses none of them is read all the same.
    std::optional<OpenFailure> strings_failure;
    TextTable& texts; // strings that stand in the sheet itself are added behind
};

[[nodiscard]] std::expected<Sheet, OpenFailure> read_sheet_part(const Package& package, std::string_view part,
                                                                const SheetContext& context);

} // namespace tavelo
