#include "excel/builtin_excel.h"

#include "basis/number.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <map>
#include <span>
#include <utility>

namespace tavelo {

namespace {

std::unexpected<std::string> refuse(std::string_view sentence) { return std::unexpected(std::string(sentence)); }

// An open workbook and the words it is shown in.
struct Source {
    std::unique_ptr<Workbook> workbook;
    Locale locale;
};

// Keeps the workbook, so that what was taken from it stays usable when it is closed.
class ReadSheet {
  public:
    ReadSheet(Sheet read, std::shared_ptr<const Source> source)
        : source_(std::move(source)),
          sheet_(std::move(read)),
          box_(box_to_show(sheet_)),
          texts_(*source_->workbook, source_->locale) {}

    [[nodiscard]] const UsedRange& box() const { return box_; }
    [[nodiscard]] double column_width(std::uint32_t column) const {
        const auto& widths = sheet_.column_widths;
        return column < widths.size() ? widths[column] : sheet_.default_column_width;
    }
    // Null for a place without a cell.
    [[nodiscard]] const Cell* find(std::uint32_t row, std::uint32_t column) const {
        return cell_at(sheet_, row, column);
    }

    [[nodiscard]] std::string_view text_of(const Cell& cell) { return texts_.of(cell); }
    // "" for a place without a cell. The views hold until the next row is asked for. Quickest for the row behind the
    // one before: that is how a sheet is copied.
    void texts_of_row(std::uint32_t row, std::span<std::string_view> texts) {
        if (made_.size() < texts.size()) made_.resize(texts.size());
        std::ranges::fill(texts, std::string_view());
        const std::span<const Cell> cells = sheet_.cells;
        auto cell =
            is_first_from(next_, row) ? cells.begin() + next_ : std::ranges::lower_bound(cells, row, {}, &Cell::row);
        for (; cell != cells.end() && cell->row == row; ++cell)
            if (cell->column < texts.size()) texts[cell->column] = texts_.of(*cell, made_[cell->column]);
        next_ = cell - cells.begin();
    }
    [[nodiscard]] std::string stored_text_of(const Cell& cell) const {
        if (cell.kind == CellKind::text) return std::string(source_->workbook->texts()[cell.text]);
        return cell.kind == CellKind::blank ? std::string() : number_text(cell.number);
    }

  private:
    // Whether the cell at this place in the sheet is the first that stands in this row or below.
    [[nodiscard]] bool is_first_from(std::ptrdiff_t place, std::uint32_t row) const {
        const auto cell = sheet_.cells.begin() + place;
        return (cell == sheet_.cells.begin() || std::prev(cell)->row < row) &&
               (cell == sheet_.cells.end() || cell->row >= row);
    }

    std::shared_ptr<const Source> source_;
    Sheet sheet_;
    UsedRange box_;
    DisplayedTexts texts_;
    std::ptrdiff_t next_ = 0;       // of the cell behind the row that was asked for
    std::vector<std::string> made_; // texts of the row that is asked for
};

// What the objects of one open workbook share; each of them may be the last to let go.
class OpenBook {
  public:
    OpenBook(std::unique_ptr<Workbook> workbook, const Locale& locale)
        : source_(std::make_shared<const Source>(std::move(workbook), locale)) {}

    std::span<const SheetInfo> sheets() const { return source_->workbook->sheets(); }

    // Read once. Only the sheets that are asked for: of a workbook of fifty, the program shows one.
    std::expected<std::shared_ptr<ReadSheet>, OpenFailure> sheet(std::size_t index) {
        auto& known = sheets_[index];
        if (known) return known;
        auto sheet = source_->workbook->read_sheet(index);
        if (!sheet) return std::unexpected(sheet.error());
        return known = std::make_shared<ReadSheet>(std::move(*sheet), source_);
    }

  private:
    std::shared_ptr<const Source> source_;
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
    BuiltinCell(std::shared_ptr<ReadSheet> sheet, std::uint32_t row, std::uint32_t column)
        : sheet_(std::move(sheet)), cell_(sheet_->find(row, column)), column_(column) {}

    Automation<double> Width() override { return sheet_->column_width(column_); }
    Automation<std::string> Value() override {
        return cell_ == nullptr ? std::string() : sheet_->stored_text_of(*cell_);
    }
    Automation<std::string> Text() override {
        return cell_ == nullptr ? std::string() : std::string(sheet_->text_of(*cell_));
    }

  private:
    std::shared_ptr<ReadSheet> sheet_;
    const Cell* cell_; // null for a place without a cell
    std::uint32_t column_;
};

class BuiltinWorksheet : public ExcelWorksheet {
  public:
    BuiltinWorksheet(std::shared_ptr<OpenBook> book, std::size_t index) : book_(std::move(book)), index_(index) {}

    Automation<std::unique_ptr<ExcelUsedRange>> UsedRange() override {
        if (const auto read = read_once(); !read) return std::unexpected(read.error());
        return std::make_unique<BuiltinUsedRange>(sheet_->box());
    }

    Automation<std::unique_ptr<ExcelRange>> Cells(int row, int column) override {
        if (const auto read = read_once(); !read) return std::unexpected(read.error());
        if (row < 1 || column < 1) return refuse("Deze cel bestaat niet.");
        return std::make_unique<BuiltinCell>(sheet_, static_cast<std::uint32_t>(row - 1),
                                             static_cast<std::uint32_t>(column - 1));
    }

    bool row_texts(int row, std::span<std::string_view> texts) override {
        if (row < 1 || !read_once()) return false;
        sheet_->texts_of_row(static_cast<std::uint32_t>(row - 1), texts);
        return true;
    }

  private:
    Automation<void> read_once() {
        if (sheet_) return {};
        const SheetKind kind = book_->sheets()[index_].kind;
        if (kind == SheetKind::chart || kind == SheetKind::dialog) return refuse("Dit blad heeft geen cellen.");
        auto sheet = book_->sheet(index_);
        if (!sheet) return refuse(sentence_of(sheet.error()));
        sheet_ = std::move(*sheet);
        return {};
    }

    std::shared_ptr<OpenBook> book_;
    std::size_t index_;
    std::shared_ptr<ReadSheet> sheet_; // once it has been asked for
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
