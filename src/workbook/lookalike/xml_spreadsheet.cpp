#include "workbook/lookalike/lookalike.h"

#include "workbook/book/sheet_writer.h"
#include "workbook/text/number_format.h"
#include "workbook/xlsx/iso_date.h"
#include "workbook/xlsx/sheet_part.h"
#include "workbook/xlsx/xml_reader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace tavelo {

namespace {

// The names that stand for a built-in format, by its number.
std::string code_of_format(std::string_view format) {
    constexpr std::array<std::pair<std::string_view, unsigned>, 13> built_in{{
        {"General", 0},
        {"General Number", 0},
        {"General Date", 22},
        {"Medium Date", 15},
        {"Short Date", 14},
        {"Long Time", 19},
        {"Medium Time", 18},
        {"Short Time", 20},
        {"Currency", 8},
        {"Fixed", 2},
        {"Standard", 4},
        {"Percent", 10},
        {"Scientific", 11},
    }};
    for (const auto& [name, id] : built_in)
        if (name == format) return id == 0 ? std::string() : std::string(builtin_format(id));
    constexpr std::array<std::pair<std::string_view, std::string_view>, 5> codes{{
        {"Long Date", "[$-F800]dddd, mmmm dd, yyyy"},
        {"Euro Currency", R"([$€-2] #,##0.00;[Red]\-[$€-2] #,##0.00)"},
        {"Yes/No", R"("Ja";"Ja";"Nee")"},
        {"True/False", R"("Waar";"Waar";"Onwaar")"},
        {"On/Off", R"("Aan";"Aan";"Uit")"},
    }};
    for (const auto& [name, code] : codes)
        if (name == format) return std::string(code);
    return std::string(format);
}

struct Book {
    std::vector<SheetInfo> sheets;
    std::vector<std::string> formats{""};                              // each code once; the first is General
    std::map<std::string, std::uint32_t, std::less<>> format_of_style; // index in formats
    bool from_1904 = false;
};

// The names of the sheets, the styles and the date system. <Workbook> holds <Styles> with <Style> and its
// <NumberFormat>, <ExcelWorkbook>, and <Worksheet>.
class BookHandler : public XmlHandler {
  public:
    explicit BookHandler(Book& book) : book_(book) {}

    void element_start(std::string_view name, unsigned depth, const XmlAttributes& attributes) override {
        if (depth == 1) is_workbook_ = name == "Workbook";
        if (depth == 2 && name == "Worksheet" && book_.sheets.size() < most_sheets)
            book_.sheets.push_back({.name = std::string(attributes.find("Name").value_or(""))});
        if (depth == 3 && name == "Style") begin_style(attributes);
        if (depth == 3 && name == "Date1904") book_.from_1904 = true;
        if (depth == 4 && name == "NumberFormat" && style_ != nullptr)
            *style_ = number_of(code_of_format(attributes.find("Format").value_or("")));
    }
    void element_end(std::string_view, unsigned depth) override {
        if (depth == 3) style_ = nullptr;
    }
    void text(std::string_view) override {}

    [[nodiscard]] bool is_workbook() const { return is_workbook_; }

  private:
    // A style has what its parent, which stands in front of it, has.
    void begin_style(const XmlAttributes& attributes) {
        const auto parent = book_.format_of_style.find(attributes.find("Parent").value_or("Default"));
        const std::uint32_t inherited = parent == book_.format_of_style.end() ? 0 : parent->second;
        style_ = &book_.format_of_style[std::string(attributes.find("ID").value_or(""))];
        *style_ = inherited;
    }

    std::uint32_t number_of(std::string code) {
        const auto [known, is_new] =
            numbers_.try_emplace(std::move(code), static_cast<std::uint32_t>(book_.formats.size()));
        if (is_new) book_.formats.push_back(known->first);
        return known->second;
    }

    Book& book_;
    std::map<std::string, std::uint32_t> numbers_{{"", 0U}};
    std::uint32_t* style_ = nullptr; // of the style that is open
    bool is_workbook_ = false;
};

// The cells of one sheet: <Worksheet> holds <Table> with <Column>, and <Row> with <Cell> and its <Data>, which may hold
// text in elements of its own. <Data> also stands in the comment of a cell, one level deeper.
class TableHandler : public XmlHandler {
  public:
    TableHandler(const Book& book, std::size_t sheet, TextTable& texts)
        : book_(book), left_(sheet + 1), writer_(texts) {}

    void element_start(std::string_view name, unsigned depth, const XmlAttributes& attributes) override {
        if (depth == 2) is_wanted_ = name == "Worksheet" && left_ > 0 && --left_ == 0;
        if (!is_wanted_) return;
        if (depth == 3) {
            is_table_ = name == "Table";
            if (is_table_)
                if (const auto width = attributes.decimal("DefaultColumnWidth")) writer_.set_default_width(*width);
        }
        if (!is_table_) return;
        if (depth == 4 && name == "Column") {
            column(attributes);
        } else if (depth == 4 && name == "Row") {
            begin_row(attributes);
        } else if (depth == 5 && name == "Cell") {
            begin_cell(attributes);
        } else if (depth == 6) {
            is_data_ = name == "Data";
            if (is_data_) type_ = attributes.find("Type").value_or("");
        }
    }

    void element_end(std::string_view name, unsigned depth) override {
        if (!is_wanted_ || !is_table_) return;
        if (depth == 6) is_data_ = false;
        if (depth == 5 && name == "Cell") end_cell();
        if (depth == 3) is_table_ = false;
    }

    void text(std::string_view piece) override {
        if (is_data_ && value_.size() <= longest_text_bytes) value_ += piece;
    }

    std::optional<OpenFailure> stopped() const override {
        return is_full_ ? std::optional(OpenFailure::too_large) : std::nullopt;
    }

    Sheet take_sheet() { return writer_.take(); }

  private:
    // The place that is counted on from, or the one that the attribute names.
    static std::uint32_t place(const XmlAttributes& attributes, std::uint32_t next) {
        const auto index = attributes.number("Index");
        return index && *index > 0 ? *index - 1 : next;
    }

    std::optional<std::uint32_t> format(const XmlAttributes& attributes) const {
        const auto id = attributes.find("StyleID");
        if (!id) return std::nullopt;
        const auto style = book_.format_of_style.find(*id);
        return style == book_.format_of_style.end() ? 0 : style->second;
    }

    void column(const XmlAttributes& attributes) {
        const std::uint32_t first = std::min(place(attributes, next_column_), sheet_columns);
        const std::uint32_t last = first + std::min(attributes.number("Span").value_or(0), sheet_columns - 1);
        next_column_ = last + 1;
        if (const auto own = format(attributes))
            for (std::uint32_t number = first; number <= last && number < sheet_columns; ++number) {
                if (column_formats_.size() <= number) column_formats_.resize(number + 1);
                column_formats_[number] = own;
            }
        const bool hidden = attributes.is_true("Hidden");
        const auto width = attributes.decimal("Width"); // in points
        if (hidden || width) writer_.set_width(first, last, hidden ? 0 : std::max(*width, 0.0));
    }

    void begin_row(const XmlAttributes& attributes) {
        row_ = std::min(place(attributes, next_row_), sheet_rows);
        next_row_ = row_ + 1 + std::min(attributes.number("Span").value_or(0), sheet_rows);
        next_cell_ = 0;
        row_format_ = format(attributes);
    }

    void begin_cell(const XmlAttributes& attributes) {
        column_ = std::min(place(attributes, next_cell_), sheet_columns);
        next_cell_ = column_ + 1 + std::min(attributes.number("MergeAcross").value_or(0), sheet_columns);
        cell_format_ = format(attributes);
        value_.clear();
        type_.clear();
    }

    [[nodiscard]] std::uint32_t format_of_cell() const {
        if (cell_format_) return *cell_format_;
        if (row_format_) return *row_format_;
        if (column_ < column_formats_.size() && column_formats_[column_]) return *column_formats_[column_];
        const auto style = book_.format_of_style.find("Default");
        return style == book_.format_of_style.end() ? 0 : style->second;
    }

    void end_cell() {
        const std::string_view word = trim_xml_space(value_);
        if (type_ == "Number") {
            double number = 0;
            const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
            if (error == std::errc() && end == word.data() + word.size() && std::isfinite(number))
                return add(CellKind::number, number);
        } else if (type_ == "DateTime") {
            const auto dates = book_.from_1904 ? DateSystem::from_1904 : DateSystem::from_1900;
            const auto serial = serial_of_iso_date(word, dates);
            if (serial && *serial >= 0) return add(CellKind::number, *serial);
        } else if (type_ == "Boolean") {
            if (word == "1" || word == "0") return add(CellKind::boolean, word == "1" ? 1 : 0);
        } else if (type_ == "Error") {
            if (const auto error = error_of(word)) return add(CellKind::error, static_cast<double>(*error));
        }
        if (!writer_.add_text(row_, column_, value_, format_of_cell())) is_full_ = true;
    }

    void add(CellKind kind, double number) {
        Cell cell;
        cell.kind = kind;
        cell.number = number;
        cell.format = format_of_cell();
        if (!writer_.add(cell, row_, column_)) is_full_ = true;
    }

    const Book& book_;
    std::size_t left_; // sheets up to the wanted one
    SheetWriter writer_;
    std::vector<std::optional<std::uint32_t>> column_formats_;
    std::optional<std::uint32_t> row_format_;
    std::optional<std::uint32_t> cell_format_;
    std::string value_;
    std::string type_;
    std::uint32_t row_ = 0;
    std::uint32_t next_row_ = 0;
    std::uint32_t column_ = 0;
    std::uint32_t next_cell_ = 0;
    std::uint32_t next_column_ = 0;
    bool is_wanted_ = false;
    bool is_table_ = false;
    bool is_data_ = false;
    bool is_full_ = false;
};

class XmlSpreadsheet : public Workbook {
  public:
    explicit XmlSpreadsheet(std::vector<std::byte> bytes) : bytes_(std::move(bytes)) {}

    std::expected<void, OpenFailure> open() {
        BookHandler handler(book_);
        const auto read = read_xml(text(), handler);
        if (!read) return read;
        if (!handler.is_workbook()) return std::unexpected(OpenFailure::not_a_workbook);
        if (book_.sheets.empty()) return std::unexpected(OpenFailure::damaged);
        return {};
    }

    std::span<const SheetInfo> sheets() const override { return book_.sheets; }
    std::span<const std::string> formats() const override { return book_.formats; }
    const TextTable& texts() const override { return texts_; }
    bool dates_from_1904() const override { return book_.from_1904; }

  private:
    std::expected<Sheet, OpenFailure> sheet_at(std::size_t index) override {
        if (index >= book_.sheets.size()) return std::unexpected(OpenFailure::unreadable);
        TableHandler handler(book_, index, texts_);
        if (const auto read = read_xml(text(), handler); !read) return std::unexpected(read.error());
        return handler.take_sheet();
    }

    // Blank lines in front of the declaration are what a careless script leaves.
    [[nodiscard]] std::string_view text() const {
        const std::string_view all(reinterpret_cast<const char*>(bytes_.data()), bytes_.size());
        return all.substr(std::min(all.find_first_not_of(" \t\r\n"), all.size()));
    }

    std::vector<std::byte> bytes_; // in the character set that the declaration names
    Book book_;
    TextTable texts_;
};

} // namespace

std::expected<std::unique_ptr<Workbook>, OpenFailure> open_xml_spreadsheet(std::vector<std::byte> bytes) {
    auto book = std::make_unique<XmlSpreadsheet>(std::move(bytes));
    if (const auto opened = book->open(); !opened) return std::unexpected(opened.error());
    return book;
}

} // namespace tavelo
