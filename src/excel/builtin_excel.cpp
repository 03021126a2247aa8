#include "excel/builtin_excel.h"

#include "basis/number.h"

#include <cstddef>
#include <map>
#include <span>
#include <utility>

namespace tavelo {

namespace {

std::unexpected<std::string> refuse(std::string_view sentence) { return std::unexpected(std::string(sentence)); }

struct ReadSheet {
    ReadSheet(Sheet read, const Workbook& workbook, const Locale& locale)
        : sheet(std::move(read)), box(box_to_show(sheet)), texts(workbook, locale) {}

    Sheet sheet;
    UsedRange box;
    DisplayedTexts texts;
};

// What the objects of one open workbook share; each of them may be the last to let go.
class OpenBook {
  public:
    OpenBook(std::unique_ptr<Workbook> workbook, const Locale& locale)
        : locale_(locale), workbook_(std::move(workbook)) {}

    std::span<const SheetInfo> sheets() const { return workbook_->sheets(); }

    // Read once. Only the sheets that are asked for: of a workbook of fifty, the program shows one.
    std::expected<std::shared_ptr<ReadSheet>, OpenFailure> sheet(std::size_t index) {
        auto& known = sheets_[index];
        if (known) return known;
        auto sheet = workbook_->read_sheet(index);
        if (!sheet) return std::unexpected(sheet.error());
        return known = std::make_shared<ReadSheet>(std::move(*sheet), *workbook_, locale_);
    }

    std::string stored_text_of(const Cell& cell) const {
        if (cell.kind == CellKind::text) return std::string(workbook_->texts()[cell.text]);
        return cell.kind == CellKind::blank ? std::string() : number_text(cell.number);
    }

  private:
    Locale locale_;
    std::unique_ptr<Workbook> workbook_;
    std::map<std::size_t, std::shared_ptr<ReadSheet>> sheets_;
};

class BuiltinUsedRange : public ExcelUsedRange {
  public:
    explicit BuiltinUsedRange(const UsedRange& used) : used_(used) {}

    Automation<int> Rows_Count() override { return static_cast<int>(used_.rows); }
    Automation<int> Columns_Count() override { return static_cast<int>(used_.columns); }

  private:
    UsedRange used_;
};

class BuiltinCell : public ExcelRange {
  public:
    BuiltinCell(std::shared_ptr<OpenBook> book, std::shared_ptr<ReadSheet> sheet, std::uint32_t row,
                std::uint32_t column)
        : book_(std::move(book)),
          sheet_(std::move(sheet)),
          cell_(cell_at(sheet_->sheet, row, column)),
          column_(column) {}

    Automation<double> Width() override {
        const auto& widths = sheet_->sheet.column_widths;
        return column_ < widths.size() ? widths[column_] : sheet_->sheet.default_column_width;
    }
    Automation<std::string> Value() override {
        return cell_ == nullptr ? std::string() : book_->stored_text_of(*cell_);
    }
    Automation<std::string> Text() override {
        return cell_ == nullptr ? std::string() : std::string(sheet_->texts.of(*cell_));
    }

  private:
    std::shared_ptr<OpenBook> book_;
    std::shared_ptr<ReadSheet> sheet_;
    const Cell* cell_; // null for a place without a cell
    std::uint32_t column_;
};

class BuiltinWorksheet : public ExcelWorksheet {
  public:
    BuiltinWorksheet(std::shared_ptr<OpenBook> book, std::size_t index) : book_(std::move(book)), index_(index) {}

    Automation<std::unique_ptr<ExcelUsedRange>> UsedRange() override {
        const auto sheet = read();
        if (!sheet) return std::unexpected(sheet.error());
        return std::make_unique<BuiltinUsedRange>((*sheet)->box);
    }

    Automation<std::unique_ptr<ExcelRange>> Cells(int row, int column) override {
        const auto sheet = read();
        if (!sheet) return std::unexpected(sheet.error());
        if (row < 1 || column < 1) return refuse("Deze cel bestaat niet.");
        return std::make_unique<BuiltinCell>(book_, *sheet, static_cast<std::uint32_t>(row - 1),
                                             static_cast<std::uint32_t>(column - 1));
    }

  private:
    Automation<std::shared_ptr<ReadSheet>> read() {
        const SheetKind kind = book_->sheets()[index_].kind;
        if (kind == SheetKind::chart || kind == SheetKind::dialog) return refuse("Dit blad heeft geen cellen.");
        auto sheet = book_->sheet(index_);
        if (!sheet) return refuse(sentence_of(sheet.error()));
        return *sheet;
    }

    std::shared_ptr<OpenBook> book_;
    std::size_t index_;
};

class BuiltinSheets : public ExcelSheets {
  public:
    explicit BuiltinSheets(std::shared_ptr<OpenBook> book) : book_(std::move(book)) {}

    Automation<int> Count() override { return static_cast<int>(book_->sheets().size()); }
    Automation<std::unique_ptr<ExcelWorksheet>> Next() override {
        if (next_ == book_->sheets().size()) return nullptr;
        return std::make_unique<BuiltinWorksheet>(book_, next_++);
    }

  private:
    std::shared_ptr<OpenBook> book_;
    std::size_t next_ = 0;
};

class BuiltinWorkbook : public ExcelWorkbook {
  public:
    explicit BuiltinWorkbook(std::shared_ptr<OpenBook> book) : book_(std::move(book)) {}

    Automation<std::unique_ptr<ExcelSheets>> Sheets() override {
        if (!book_) return refuse("De werkmap is al gesloten.");
        return std::make_unique<BuiltinSheets>(book_);
    }
    Automation<void> Close() override {
        book_.reset();
        return {};
    }

  private:
    std::shared_ptr<OpenBook> book_;
};

class BuiltinWorkbooks : public ExcelWorkbooks {
  public:
    explicit BuiltinWorkbooks(const Locale& locale) : locale_(locale) {}

    // A workbook whose first sheet is damaged does not open, as in Excel: the operator is told why nothing is shown.
    Automation<std::unique_ptr<ExcelWorkbook>> Open(std::string_view file_name) override {
        auto workbook = open_workbook(file_name);
        if (!workbook) return refuse(sentence_of(workbook.error()));
        auto book = std::make_shared<OpenBook>(std::move(*workbook), locale_);
        if (const auto first = book->sheet(0); !first) return refuse(sentence_of(first.error()));
        return std::make_unique<BuiltinWorkbook>(std::move(book));
    }

  private:
    Locale locale_;
};

class BuiltinApplication : public ExcelApplication {
  public:
    explicit BuiltinApplication(const Locale& locale) : locale_(locale) {}

    Automation<std::unique_ptr<ExcelWorkbooks>> Workbooks() override {
        return std::make_unique<BuiltinWorkbooks>(locale_);
    }

  private:
    Locale locale_;
};

} // namespace

std::unique_ptr<ExcelApplication> builtin_excel(const Locale& locale) {
    return std::make_unique<BuiltinApplication>(locale);
}

} // namespace tavelo
