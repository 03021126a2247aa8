// The members of the spreadsheet's object model that the program uses, each of which may fail with the error's own
// text. Rows and columns count from 1, as there.
#pragma once

#include <expected>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace tavelo {

template <class T>
using Automation = std::expected<T, std::string>;

// One cell.
class ExcelRange {
  public:
    virtual ~ExcelRange() = default;
    [[nodiscard]] virtual Automation<double> Width() = 0;      // of the column, in points
    [[nodiscard]] virtual Automation<std::string> Value() = 0; // the stored value as text
    [[nodiscard]] virtual Automation<std::string> Text() = 0;  // what is displayed
};

// The size counts from the first used row and column, wherever those are.
class ExcelUsedRange {
  public:
    virtual ~ExcelUsedRange() = default;
    [[nodiscard]] virtual Automation<int> Rows_Count() = 0;
    [[nodiscard]] virtual Automation<int> Columns_Count() = 0;
};

class ExcelWorksheet {
  public:
    virtual ~ExcelWorksheet() = default;
    [[nodiscard]] virtual Automation<std::unique_ptr<ExcelUsedRange>> UsedRange() = 0;
    // Counted from A1, also when the used range begins elsewhere.
    [[nodiscard]] virtual Automation<std::unique_ptr<ExcelRange>> Cells(int row, int column) = 0;
    // No member of Excel's: what Text() gives for the cells of a row, from column 1 on, without an object for each. The
    // views hold until the next row is asked for. False where the cells are to be asked one by one.
    [[nodiscard]] virtual bool row_texts(int /*row*/, std::span<std::string_view> /*texts*/) { return false; }
};

class ExcelSheets {
  public:
    virtual ~ExcelSheets() = default;
    [[nodiscard]] virtual Automation<int> Count() = 0;
    // The enumeration, in the order of the workbook: null after the last sheet.
    [[nodiscard]] virtual Automation<std::unique_ptr<ExcelWorksheet>> Next() = 0;
};

class ExcelWorkbook {
  public:
    virtual ~ExcelWorkbook() = default;
    [[nodiscard]] virtual Automation<std::unique_ptr<ExcelSheets>> Sheets() = 0;
    virtual Automation<void> Close() = 0;
};

class ExcelWorkbooks {
  public:
    virtual ~ExcelWorkbooks() = default;
    [[nodiscard]] virtual Automation<std::unique_ptr<ExcelWorkbook>> Open(std::string_view file_name) = 0;
};

// Made on first use and kept; never told to quit.
class ExcelApplication {
  public:
    virtual ~ExcelApplication() = default;
    [[nodiscard]] virtual Automation<std::unique_ptr<ExcelWorkbooks>> Workbooks() = 0;
};

} // namespace tavelo
