#include "workbook/xlsx/sheet_part.h"

#include "workbook/book/column_width.h"
#include "workbook/xlsx/cell_text.h"
#include "workbook/xlsx/iso_date.h"
#include "workbook/xlsx/package.h"
#include "workbook/xlsx/xml_reader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace tavelo {

namespace {

// Excel writes one <col> for neighbouring columns alike, so there are never more of them than columns.
constexpr std::size_t most_column_runs = sheet_columns;

enum class StoredAs { number, shared_string, inline_string, string, boolean, error, date };

StoredAs stored_as(std::string_view type) {
    if (type == "s") return StoredAs::shared_string;
    if (type == "str") return StoredAs::string;
    if (type == "inlineStr") return StoredAs::inline_string;
    if (type == "b") return StoredAs::boolean;
    if (type == "e") return StoredAs::error;
    if (type == "d") return StoredAs::date;
    return StoredAs::number;
}

template <class Number>
std::optional<Number> number_of(std::string_view text) {
    text = trim_xml_space(text);
    if (text.starts_with('+')) text.remove_prefix(1);
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return number;
}

// The box around what is used so far: cells, formatted blanks among them, and rows and columns with a look of their
// own.
class UsedBox {
  public:
    void add_row(std::uint32_t row) { rows_.add(row, row); }
    void add_columns(std::uint32_t first, std::uint32_t last) { columns_.add(first, last); }
    void add_cell(std::uint32_t row, std::uint32_t column) {
        add_row(row);
        add_columns(column, column);
    }
    UsedRange range() const {
        if (rows_.empty() && columns_.empty()) return {};
        // Rows without a single cell count as one column wide, columns without one as one row high.
        const Span rows = rows_.empty() ? Span{0, 0} : rows_;
        const Span columns = columns_.empty() ? Span{0, 0} : columns_;
        return {rows.first, columns.first, rows.length(), columns.length()};
    }

  private:
    struct Span {
        std::uint32_t first = UINT32_MAX;
        std::uint32_t last = 0;
        void add(std::uint32_t from, std::uint32_t to) {
            first = std::min(first, from);
            last = std::max(last, to);
        }
        bool empty() const { return first > last; }
        std::uint32_t length() const { return last - first + 1; }
    };
    Span rows_;
    Span columns_;
};

// A row without cells is used when it is plain (Excel writes those for a comment) or has a height or a style of its
// own. A height that the writer merely noted, or the style that every cell has, does not make it used.
bool is_used_without_cells(const XmlAttributes& row) {
    if (row.is_true("customHeight") || row.is_true("hidden")) return true;
    if (row.is_true("customFormat")) return row.number("s").value_or(0) != 0;
    return !row.find("ht");
}

// <worksheet> holds <sheetFormatPr>, <cols> with its <col>, and <sheetData> with <row>, <c> and in those <v> or <is>.
class SheetHandler : public XmlHandler {
  public:
    explicit SheetHandler(const SheetContext& context) : context_(context) {
        sheet_.default_column_width = default_column_points(8, context.styles.digit_pixels);
    }

    void element_start(std::string_view name, unsigned depth, const XmlAttributes& attributes) override {
        if (depth == 2) {
            inside_data_ = name == "sheetData";
            if (name == "sheetFormatPr") sheet_format(attributes);
        } else if (!inside_data_) {
            if (depth == 3 && name == "col") column(attributes);
        } else if (depth == 3) {
            if (name == "row") row_start(attributes);
        } else if (depth == 4) {
            if (name == "c") cell_start(attributes);
        } else if (depth == 5) {
            inside_value_ = name == "v";
            inside_rich_text_ = name == "is";
            has_rich_text_ = has_rich_text_ || inside_rich_text_;
            has_value_ = has_value_ || inside_value_ || inside_rich_text_;
            preserve_ = attributes.find("space") == "preserve";
        } else if (inside_rich_text_) {
            rich_text_.element_start(name, attributes);
        }
    }

    void element_end(std::string_view name, unsigned depth) override {
        if (!inside_data_) return;
        if (depth == 4 && name == "c") cell_end();
        if (depth == 5) inside_value_ = inside_rich_text_ = false;
        if (depth > 5 && inside_rich_text_) rich_text_.element_end(name);
    }

    void text(std::string_view piece) override {
        if (inside_value_) append_stored(value_, piece);
        if (inside_rich_text_) rich_text_.text(piece);
    }

    std::optional<OpenFailure> stopped() const override { return stopped_; }

    Sheet take_sheet() {
        use_styled_columns();
        sheet_.used = used_.range();
        if (!in_order_) put_in_order();
        return std::move(sheet_);
    }

  private:
    void sheet_format(const XmlAttributes& attributes) {
        const int digit = context_.styles.digit_pixels;
        if (const auto width = attributes.decimal("defaultColWidth")) {
            sheet_.default_column_width = column_points(*width, digit);
        } else if (const auto characters = attributes.number("baseColWidth")) {
            sheet_.default_column_width = default_column_points(static_cast<int>(std::min(*characters, 255U)), digit);
        }
    }

    void column(const XmlAttributes& attributes) {
        const auto first = attributes.number("min");
        const auto last = attributes.number("max");
        if (!first || !last || *first == 0 || *first > sheet_columns || column_styles_.size() == most_column_runs)
            return;
        column_styles_.push_back(
            {*first - 1, std::min(*last, sheet_columns) - 1, attributes.number("style").value_or(0)});
        const auto width = attributes.decimal("width");
        if (!width && !attributes.is_true("hidden")) return;
        const double points = attributes.is_true("hidden") ? 0 : column_points(*width, context_.styles.digit_pixels);
        auto& widths = sheet_.column_widths;
        for (unsigned number = *first; number <= std::min(*last, sheet_columns); ++number) {
            if (widths.size() < number) widths.resize(number, sheet_.default_column_width);
            widths[number - 1] = points;
        }
    }

    // Columns with a style of their own are used. The style that runs on to the very last column is the look of the
    // whole sheet.
    void use_styled_columns() {
        unsigned sheet_style = 0;
        for (const ColumnStyle& run : column_styles_) {
            if (run.last == sheet_columns - 1) sheet_style = run.style;
        }
        for (const ColumnStyle& run : column_styles_) {
            if (run.style != 0 && run.style != sheet_style) used_.add_columns(run.first, run.last);
        }
    }

    void row_start(const XmlAttributes& attributes) {
        const auto number = attributes.number("r");
        row_ = number && *number > 0 ? *number - 1 : next_row_;
        next_row_ = row_ + 1;
        next_column_ = 0;
        if (row_ < sheet_rows && is_used_without_cells(attributes)) used_.add_row(row_);
    }

    void cell_start(const XmlAttributes& attributes) {
        cell_ = Cell{};
        value_.clear();
        has_value_ = false;
        has_rich_text_ = false;
        stored_as_ = StoredAs::number;
        cell_.row = row_;
        std::uint32_t column = next_column_;
        attributes.each([&](std::string_view name, std::string_view value) {
            if (name == "r") {
                if (const auto place = parse_cell_reference(value)) {
                    column = place->column;
                    cell_.row = place->row.value_or(row_);
                }
            } else if (name == "s") {
                cell_.format = context_.styles.format_of(number_of<unsigned>(value).value_or(0));
            } else if (name == "t") {
                stored_as_ = stored_as(value);
            }
        });
        next_column_ = column + 1;
        inside_sheet_ = column < sheet_columns && cell_.row < sheet_rows;
        if (!inside_sheet_) return;
        cell_.column = static_cast<std::uint16_t>(column);
        used_.add_cell(cell_.row, column);
    }

    void cell_end() {
        const std::string rich = has_rich_text_ ? rich_text_.take() : std::string();
        if (!inside_sheet_ || !has_value_) return;
        switch (stored_as_) {
        case StoredAs::number:
            if (const auto number = number_of<double>(value_); number && std::isfinite(*number)) {
                set(CellKind::number, *number);
            }
            break;
        case StoredAs::shared_string:
            if (context_.strings_failure) stopped_ = context_.strings_failure;
            if (const auto index = number_of<std::uint32_t>(value_); index && *index < context_.shared_strings) {
                cell_.text = *index;
                set(CellKind::text, 0);
            }
            break;
        case StoredAs::inline_string:
            set_text(rich);
            break;
        case StoredAs::string:
            set_text(without_escapes(preserve_ ? std::string_view(value_) : trim_xml_space(value_)));
            break;
        case StoredAs::boolean:
            if (const auto word = trim_xml_space(value_); !word.empty())
                set(CellKind::boolean, word == "1" || word == "true" ? 1 : 0);
            break;
        case StoredAs::error:
            set_error();
            break;
        case StoredAs::date:
            set_date();
            break;
        }
        if (cell_.kind != CellKind::blank) store();
    }

    void set(CellKind kind, double number) {
        cell_.kind = kind;
        cell_.number = number;
    }

    void set_text(std::string_view text) {
        const auto index = context_.texts.add(text);
        if (!index) stopped_ = OpenFailure::too_large;
        cell_.text = index.value_or(0);
        set(CellKind::text, 0);
    }

    // Errors that came after these are shown by their stored word.
    void set_error() {
        const auto word = trim_xml_space(value_);
        if (const auto error = error_of(word)) {
            set(CellKind::error, static_cast<double>(*error));
        } else {
            set_text(word);
        }
    }

    void set_date() {
        const auto serial = serial_of_iso_date(trim_xml_space(value_), context_.dates);
        if (!serial) {
            set_text(value_);
        } else if (*serial < 0) {
            set(CellKind::error, static_cast<double>(CellError::value));
        } else {
            set(CellKind::number, *serial);
        }
    }

    void store() {
        if (sheet_.cells.size() == most_cells) {
            stopped_ = OpenFailure::too_large;
            return;
        }
        if (!sheet_.cells.empty() && place_of(sheet_.cells.back()) >= place_of(cell_)) in_order_ = false;
        sheet_.cells.push_back(cell_);
    }

    static std::pair<std::uint32_t, std::uint16_t> place_of(const Cell& cell) { return {cell.row, cell.column}; }

    // Of cells at one place the last one stored stays.
    void put_in_order() {
        auto& cells = sheet_.cells;
        std::ranges::stable_sort(cells, {}, place_of);
        const auto last_of_place = [](const Cell& a, const Cell& b) { return place_of(a) == place_of(b); };
        const auto kept = std::unique(cells.rbegin(), cells.rend(), last_of_place);
        cells.erase(cells.begin(), kept.base());
    }

    struct ColumnStyle {
        std::uint32_t first;
        std::uint32_t last;
        unsigned style;
    };

    const SheetContext& context_;
    std::vector<ColumnStyle> column_styles_;
    Sheet sheet_;
    UsedBox used_;
    std::optional<OpenFailure> stopped_;
    RichText rich_text_;
    std::string value_;
    Cell cell_;
    StoredAs stored_as_ = StoredAs::number;
    std::uint32_t row_ = 0;
    std::uint32_t next_row_ = 0;
    std::uint32_t next_column_ = 0;
    bool inside_data_ = false;
    bool inside_sheet_ = false;
    bool has_value_ = false;
    bool has_rich_text_ = false;
    bool inside_value_ = false;
    bool inside_rich_text_ = false;
    bool preserve_ = false; // the white space at the ends of a <v>
    bool in_order_ = true;
};

} // namespace

std::optional<CellError> error_of(std::string_view word) {
    using enum CellError;
    constexpr std::array<std::pair<std::string_view, CellError>, 13> errors{{
        {"#NULL!", null},
        {"#DIV/0!", division},
        {"#VALUE!", value},
        {"#REF!", reference},
        {"#NAME?", name},
        {"#NUM!", number},
        {"#N/A", not_available},
        {"#GETTING_DATA", getting_data},
        {"#SPILL!", spill},
        {"#CONNECT!", connect},
        {"#BLOCKED!", blocked},
        {"#FIELD!", field},
        {"#CALC!", calc},
    }};
    for (const auto& [known, code] : errors) {
        if (known == word) return code;
    }
    return std::nullopt;
}

std::optional<CellPlace> parse_cell_reference(std::string_view reference) {
    CellPlace place;
    std::uint32_t column = 0;
    std::size_t i = 0;
    if (reference.starts_with('$')) ++i;
    for (; i < reference.size(); ++i) {
        const char letter = static_cast<char>(reference[i] & ~0x20); // upper case
        if (letter < 'A' || letter > 'Z') break;
        column = column * 26 + static_cast<std::uint32_t>(letter - 'A' + 1);
        if (column > sheet_columns) return std::nullopt;
    }
    if (column == 0) return std::nullopt;
    place.column = column - 1;
    if (i < reference.size() && reference[i] == '$') ++i;
    if (i == reference.size()) return place;
    const auto row = number_of<std::uint32_t>(reference.substr(i));
    if (!row || *row == 0 || *row > sheet_rows) return std::nullopt;
    place.row = *row - 1;
    return place;
}

std::expected<Sheet, OpenFailure> read_sheet_part(const Package& package, std::string_view part,
                                                  const SheetContext& context) {
    SheetHandler handler(context);
    if (const auto read = read_xml(package, part, largest_part, handler); !read) return std::unexpected(read.error());
    return handler.take_sheet();
}

} // namespace tavelo
