// One sheet of an .xls workbook: its substream of records turned into cells, used range and column widths.
#pragma once

#include "workbook/book/model.h"
#include "workbook/xls/biff_stream.h"

#include <cstdint>
#include <expected>
#include <span>
#include <string>
#include <vector>

namespace tavelo {

// What the workbook knows that the records of a sheet refer to.
struct XlsSheetContext {
    TextEncoding encoding;
    std::span<const std::uint32_t> cell_formats; // by the number that cells store
    std::size_t shared_strings = 0;              // the first of the texts
    int digit_pixels = 7;
};

// Reads behind the sheet's BOF record up to its end, or to the end of the stream. Substreams inside (charts) are passed
// over. Texts that are no shared strings are added to `texts`. Fails on too many cells or texts only.
[[nodiscard]] std::expected<Sheet, OpenFailure> read_sheet_cells(BiffCursor cursor, const XlsSheetContext& context,
                                                                 TextTable& texts);

} // namespace tavelo
