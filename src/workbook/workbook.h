// The reader of workbooks: what Excel shows in the cells of a file, without Excel and without the sport. This header is
// all that the other rooms include.
//
// Reads .xlsx (also strict, also with macros) and .xls from Excel 2 to 2003; the content decides which, never the name.
// A workbook that is locked under the password that Excel itself tries first opens as if it were not locked. Also what
// portals and other programs export under those names: a page with a table, the spreadsheet in XML of Excel 2003, an
// OpenDocument spreadsheet, and rows of text with tabs, semicolons or commas (workbook/lookalike). In pages and rows of
// text nothing is a number or a date: 007 stays 007.
//
//     auto book = open_workbook(file);                    // or why not: OpenFailure, and sentence_of in Dutch
//     auto sheet = (*book)->read_sheet(0);                // cells, used range, column widths
//     DisplayedTexts texts(**book, locale_named("nl-NL")); // one for each sheet
//     const Cell* cell = cell_at(*sheet, row, column);    // null for a place without a cell
//     if (cell) texts.of(*cell);                          // UTF-8
//
// Shows a cell as in a column that is wide enough: the stored value under the number format of the cell, with the
// words, separators and dates of the locale that is given; nothing is asked of the system. Stored results stand for
// formulas, nothing is calculated. Merged cells, colours and conditional formats make no difference, but for the text
// of the first cell of a merged range. A sheet without cells, a chart for instance, is an empty sheet. What the file
// says is taken as Excel takes it; where Excel would repair a file, what can be read is shown.
//
// Limits, so that no file hangs the program or eats the computer. Beyond one of these a file is too_large: 256 MiB for
// the file and for an unpacked sheet or the shared strings, 32 MiB for other parts, most_cells, most_texts and
// most_text_bytes. These are cut off instead: a text behind longest_text (32,767 characters, as Excel does), the texts
// of a sheet behind most_shown_bytes (every further cell shows nothing), the sheets behind most_sheets, the formats of
// an .xlsx behind most_formats and codes of more than longest_format_code (they are General); and box_to_show leaves
// out what lies beyond most_shown_cells. What nests deeper than 200 levels or declares a document type is damaged; no
// part outside the package is read.
//
// Failures are values, and nothing is left behind: a workbook that does not open gives its reason; a sheet that cannot
// be read gives its own, and the other sheets of the workbook stay readable. When memory runs out in between, the
// reason is no_memory; only DisplayedTexts, which gives no reasons, throws std::bad_alloc. The file is read whole and
// closed before open_workbook returns and is never locked. Nothing here keeps anything between workbooks; one workbook
// may be used by one thread at a time.
#pragma once

#include "workbook/book/model.h"
#include "workbook/displayed_text.h"
#include "workbook/sheet_box.h"
#include "workbook/sheet_csv.h"
#include "workbook/text/locale.h"

#include <cstdint>
#include <expected>
#include <memory>
#include <string_view>
#include <vector>

namespace tavelo {

// A longer file is refused as too large: it is read as a whole.
inline constexpr std::uintmax_t largest_workbook_file = 256U * 1024 * 1024;

// `file` is a UTF-8 path. The content decides which reader it gets and the extension does not: Excel too opens an .xlsx
// that is named .xls. The file is read whole and closed before this returns, without a lock, so that who is editing it
// can go on saving. A file of
// Excel's own beside an open workbook (~$) is owner_file, by its name.
[[nodiscard]] std::expected<std::unique_ptr<Workbook>, OpenFailure> open_workbook(std::string_view file);

// The same for a file that is in memory.
[[nodiscard]] std::expected<std::unique_ptr<Workbook>, OpenFailure> open_workbook(std::vector<std::byte> bytes);

// One Dutch sentence for the operator.
[[nodiscard]] std::string_view sentence_of(OpenFailure failure);

} // namespace tavelo
