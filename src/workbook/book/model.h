// What a workbook reader gives: the sheets of a workbook, and of one sheet its cells, used range and column widths.
// The readers for .xls and .xlsx fill it; everything above them reads only this. Rows and columns count from 0.
#pragma once

#include "workbook/book/text_table.h"

#include <cstddef>
#include <cstdint>
#include <expected>
#include <span>
#include <string>
#include <vector>

namespace tavelo {

enum class SheetKind : std::uint8_t { worksheet, chart, macro, dialog };

struct SheetInfo {
    std::string name; // UTF-8
    SheetKind kind = SheetKind::worksheet;
};

enum class CellKind : std::uint8_t { blank, number, text, boolean, error };

// The error values of a cell, with the codes that .xls files store.
enum class CellError : std::uint8_t {
    null = 0x00,
    division = 0x07,
    value = 0x0F,
    reference = 0x17,
    name = 0x1D,
    number = 0x24,
    not_available = 0x2A,
    getting_data = 0x2B,
    // Newer than .xls: the numbers by which Excel's object model knows them, less 2000.
    spill = 45,
    connect = 46,
    blocked = 47,
    field = 49,
    calc = 50,
};

struct Cell {
    double number = 0;        // number: the value; boolean: 0 or 1; error: the code of CellError
    std::uint32_t row = 0;    // from 0
    std::uint32_t text = 0;   // text: index into Workbook::texts()
    std::uint32_t format = 0; // index into Workbook::formats()
    std::uint16_t column = 0; // from 0
    CellKind kind = CellKind::blank;
};

// The box around all cell records, formatted blanks included. An empty sheet has no rows and no columns.
struct UsedRange {
    std::uint32_t first_row = 0;
    std::uint32_t first_column = 0;
    std::uint32_t rows = 0;
    std::uint32_t columns = 0;
};

struct Sheet {
    std::vector<Cell> cells; // by row, then column; one cell a place
    UsedRange used;
    std::vector<double> column_widths;  // in points, column 0 first; a column beyond the end has `default_column_width`
    double default_column_width = 48.0; // in points
};

// damaged: broken, or saved for a part only. too_large: what a reader refuses to unpack, a zip bomb for instance.
// no_memory: this computer cannot hold what another one can. binary_workbook: an .xlsb, which is not read. owner_file:
// the ~$ file that Excel keeps beside a workbook that is open.
enum class OpenFailure : std::uint8_t {
    not_found,
    unreadable,
    not_a_workbook,
    damaged,
    password,
    too_large,
    no_memory,
    empty,
    binary_workbook,
    owner_file
};

// What a sheet of Excel can have.
inline constexpr std::uint32_t sheet_rows = 1048576;
inline constexpr std::uint32_t sheet_columns = 16384;

// A sheet with more stored cells than this is refused as too large: they would take more than 200 MB.
inline constexpr std::size_t most_cells = std::size_t{1} << 23;
// Further sheets are left out. Excel itself stops at what memory holds; a workbook of people has some hundreds at most.
inline constexpr std::size_t most_sheets = 65536;

// An opened workbook. A sheet is read when it is asked for; the file itself is already closed.
class Workbook {
  public:
    virtual ~Workbook() = default;
    // Sheets of all kinds, in the order of the workbook.
    [[nodiscard]] virtual std::span<const SheetInfo> sheets() const = 0;
    // A chart or dialog sheet gives an empty sheet, a sheet that the workbook does not have fails.
    [[nodiscard]] std::expected<Sheet, OpenFailure> read_sheet(std::size_t index);
    // Number format codes as Excel writes them (en-US notation); "" is General. Valid after the sheets that use them
    // are read.
    [[nodiscard]] virtual std::span<const std::string> formats() const = 0;
    // Those of the sheets that are read so far.
    [[nodiscard]] virtual const TextTable& texts() const = 0;
    // Dates count from 1 January 1904 instead of 1900.
    [[nodiscard]] virtual bool dates_from_1904() const = 0;

  private:
    // May throw std::bad_alloc: read_sheet makes no_memory of it.
    [[nodiscard]] virtual std::expected<Sheet, OpenFailure> sheet_at(std::size_t index) = 0;
};

} // namespace tavelo
