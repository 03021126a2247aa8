// A spreadsheet program written by hand, in which one member of the object model can be made to fail.
#pragma once

#include "basis/text.h"
#include "excel/automation.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace tavelo::test {

struct FakeSheet {
    std::vector<std::vector<std::string>> texts; // by row
    std::vector<double> widths;                  // of the columns; 0 beyond the end
    int rows_count = 0;
    int columns_count = 0;
    bool gives_rows = false; // its texts by row, in capitals
};

// A sheet that is used from A1 to its last text, columns 48 points wide.
[[nodiscard]] inline FakeSheet sheet_of(std::vector<std::vector<std::string>> texts) {
    FakeSheet sheet{.texts = std::move(texts), .widths = {}, .rows_count = 0, .columns_count = 0};
    sheet.rows_count = static_cast<int>(sheet.texts.size());
    if (!sheet.texts.empty()) sheet.columns_count = static_cast<int>(sheet.texts.front().size());
    sheet.widths.assign(static_cast<std::size_t>(sheet.columns_count), 48.0);
    return sheet;
}

struct FakeExcel : ExcelApplication {
    std::vector<FakeSheet> sheets;
    std::string failing_member;       // "" for none
    std::map<std::string, int> calls; // of each member
    std::vector<std::string> opened;  // file names
    int living_objects = 0;           // workbooks, sheets and cells that nobody has let go

    // Counts the call and says whether it fails.
    bool fails(const std::string& member) {
        ++calls[member];
        return member == failing_member;
    }
    static std::unexpected<std::string> failure() { return std::unexpected<std::string>("stuk"); }

    Automation<std::unique_ptr<ExcelWorkbooks>> Workbooks() override;
};

namespace fake {

class Object {
  public:
    explicit Object(FakeExcel& excel) : excel_(excel) { ++excel_.living_objects; }
    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;
    ~Object() { --excel_.living_objects; }

  protected:
    FakeExcel& excel_;
};

class Cell : Object, public ExcelRange {
  public:
    Cell(FakeExcel& excel, double width, std::string text) : Object(excel), width_(width), text_(std::move(text)) {}
    Automation<double> Width() override {
        if (excel_.fails("Width")) return FakeExcel::failure();
        return width_;
    }
    Automation<std::string> Value() override {
        if (excel_.fails("Value")) return FakeExcel::failure();
        return "waarde van " + text_;
    }
    Automation<std::string> Text() override {
        if (excel_.fails("Text")) return FakeExcel::failure();
        return text_;
    }

  private:
    double width_;
    std::string text_;
};

class UsedRange : Object, public ExcelUsedRange {
  public:
    UsedRange(FakeExcel& excel, const FakeSheet& sheet) : Object(excel), sheet_(sheet) {}
    Automation<int> Rows_Count() override {
        if (excel_.fails("Rows_Count")) return FakeExcel::failure();
        return sheet_.rows_count;
    }
    Automation<int> Columns_Count() override {
        if (excel_.fails("Columns_Count")) return FakeExcel::failure();
        return sheet_.columns_count;
    }

  private:
    const FakeSheet& sheet_;
};

class Worksheet : Object, public ExcelWorksheet {
  public:
    Worksheet(FakeExcel& excel, const FakeSheet& sheet) : Object(excel), sheet_(sheet) {}
    Automation<std::unique_ptr<ExcelUsedRange>> UsedRange() override {
        if (excel_.fails("UsedRange")) return FakeExcel::failure();
        return std::make_unique<fake::UsedRange>(excel_, sheet_);
    }
    Automation<std::unique_ptr<ExcelRange>> Cells(int row, int column) override {
        if (excel_.fails("Cells")) return FakeExcel::failure();
        const auto r = static_cast<std::size_t>(row - 1);
        const auto c = static_cast<std::size_t>(column - 1);
        const bool has_text = r < sheet_.texts.size() && c < sheet_.texts[r].size();
        return std::make_unique<Cell>(excel_, c < sheet_.widths.size() ? sheet_.widths[c] : 0,
                                      has_text ? sheet_.texts[r][c] : std::string());
    }

    bool row_texts(int row, std::span<std::string_view> texts) override {
        if (!sheet_.gives_rows || excel_.fails("row_texts")) return false;
        row_ = sheet_.texts.at(static_cast<std::size_t>(row - 1));
        for (std::size_t column = 0; column < texts.size(); ++column)
            texts[column] = row_.at(column) = upper_case(row_[column]);
        return true;
    }

  private:
    const FakeSheet& sheet_;
    std::vector<std::string> row_;
};

class Sheets : Object, public ExcelSheets {
  public:
    explicit Sheets(FakeExcel& excel) : Object(excel) {}
    Automation<int> Count() override {
        if (excel_.fails("Count")) return FakeExcel::failure();
        return static_cast<int>(excel_.sheets.size());
    }
    Automation<std::unique_ptr<ExcelWorksheet>> Next() override {
        if (excel_.fails("Next")) return FakeExcel::failure();
        if (next_ == excel_.sheets.size()) return nullptr;
        return std::make_unique<Worksheet>(excel_, excel_.sheets[next_++]);
    }

  private:
    std::size_t next_ = 0;
};

class Workbook : Object, public ExcelWorkbook {
  public:
    explicit Workbook(FakeExcel& excel) : Object(excel) {}
    Automation<std::unique_ptr<ExcelSheets>> Sheets() override {
        if (excel_.fails("Sheets")) return FakeExcel::failure();
        return std::make_unique<fake::Sheets>(excel_);
    }
    Automation<void> Close() override {
        if (excel_.fails("Close")) return FakeExcel::failure();
        return {};
    }
};

class Workbooks : Object, public ExcelWorkbooks {
  public:
    explicit Workbooks(FakeExcel& excel) : Object(excel) {}
    Automation<std::unique_ptr<ExcelWorkbook>> Open(std::string_view file_name) override {
        excel_.opened.emplace_back(file_name);
        if (excel_.fails("Open")) return FakeExcel::failure();
        return std::make_unique<Workbook>(excel_);
    }
};

} // namespace fake

inline Automation<std::unique_ptr<ExcelWorkbooks>> FakeExcel::Workbooks() {
    if (fails("Workbooks")) return failure();
    return std::make_unique<fake::Workbooks>(*this);
}

} // namespace tavelo::test
