#include "workbook/xls/sheet_cells.h"

#include "workbook/book/column_width.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>
#include <optional>

namespace tavelo {

namespace {

constexpr std::size_t most_columns = 256;

double rk_value(std::uint32_t rk) {
    constexpr std::uint32_t hundredths = 1;
    constexpr std::uint32_t integer = 2;
    const double value = (rk & integer) != 0 ? static_cast<double>(std::bit_cast<std::int32_t>(rk) >> 2)
                                             : std::bit_cast<double>(static_cast<std::uint64_t>(rk & ~3U) << 32);
    return (rk & hundredths) != 0 ? value / 100 : value;
}

class Interval {
  public:
    void include(std::uint32_t first, std::uint32_t last) {
        if (first < first_) first_ = first;
        if (last >= end_) end_ = last + 1;
    }
    [[nodiscard]] std::uint32_t first() const { return first_ < end_ ? first_ : 0; }
    [[nodiscard]] std::uint32_t size() const { return first_ < end_ ? end_ - first_ : 0; }

  private:
    std::uint32_t first_ = std::numeric_limits<std::uint32_t>::max();
    std::uint32_t end_ = 0;
};

// The used range, found as Excel finds it: cells, and the rows and columns that differ from the usual. Without cells
// there is none.
class Used {
  public:
    void include_cell(std::uint32_t row, std::uint32_t column) {
        has_cells_ = true;
        rows_.include(row, row);
        columns_.include(column, column);
    }

    void include_row(const BiffRecord& record) {
        constexpr unsigned own_look = 0xE0; // hidden, a height of its own, a format of its own
        const unsigned row = word_at(record.data, 0);
        const unsigned first = word_at(record.data, 2);
        const unsigned end = word_at(record.data, 4);
        const bool has_columns = first < end && end <= most_columns;
        if (has_columns) columns_.include(first, end - 1);
        if (has_columns || (word_at(record.data, 12) & own_look) != 0) rows_.include(row, row);
    }

    void include_columns(const BiffRecord& record) {
        const unsigned first = word_at(record.data, 0);
        const unsigned last = word_at(record.data, 2);
        const ColumnRun run{
            .first = first, .last = last, .format = word_at(record.data, 6), .hidden = is_hidden(record)};
        if (last + 1 >= most_columns)
            format_of_the_rest_ = run.format;
        else if (first <= last)
            runs_.push_back(run);
    }

    static bool is_hidden(const BiffRecord& colinfo) { return (word_at(colinfo.data, 8) & 1) != 0; }

    // To be asked once everything is included.
    [[nodiscard]] UsedRange range() {
        if (!has_cells_) return {};
        for (const ColumnRun& run : runs_) {
            if (run.hidden || run.format != format_of_the_rest_) columns_.include(run.first, run.last);
        }
        return {.first_row = rows_.first(),
                .first_column = columns_.first(),
                .rows = rows_.size(),
                .columns = columns_.size()};
    }

  private:
    struct ColumnRun {
        unsigned first, last;
        unsigned format;
        bool hidden;
    };
    static constexpr unsigned usual_format = 15; // the first XF record that is no style

    bool has_cells_ = false;
    Interval rows_;
    Interval columns_;
    std::vector<ColumnRun> runs_;
    unsigned format_of_the_rest_ = usual_format; // of the columns up to the right edge of the sheet
};

class ColumnWidths {
  public:
    explicit ColumnWidths(int digit_pixels) : digit_pixels_(digit_pixels) {}

    void set(std::size_t first, std::size_t last, double points) {
        for (std::size_t column = first; column <= last && column < most_columns; ++column)
            widths_[column] = points;
    }
    void set_stored(std::size_t first, std::size_t last, unsigned width) { set(first, last, points_of(width)); }
    void set_default(unsigned width) { standard_ = points_of(width); }
    void set_default_characters(unsigned characters) {
        by_characters_ = default_column_points(static_cast<int>(characters), digit_pixels_);
    }

    void give_to(Sheet& sheet) const {
        sheet.default_column_width = standard_ ? *standard_ : by_characters_;
        const auto last =
            std::find_if(widths_.rbegin(), widths_.rend(), [](const auto& width) { return width.has_value(); });
        for (auto width = widths_.begin(); width != last.base(); ++width)
            sheet.column_widths.push_back(width->value_or(sheet.default_column_width));
    }

  private:
    // Widths are stored in 1/256 of a character.
    [[nodiscard]] double points_of(unsigned width) const { return column_points(width / 256.0, digit_pixels_); }

    static constexpr int usual_characters = 8;

    int digit_pixels_;
    std::array<std::optional<double>, most_columns> widths_;
    std::optional<double> standard_;
    double by_characters_ = default_column_points(usual_characters, digit_pixels_);
};

class SheetReader {
  public:
    SheetReader(BiffCursor cursor, const XlsSheetContext& context, TextTable& texts)
        : cursor_(cursor), context_(context), texts_(texts), widths_(context.digit_pixels) {}

    std::expected<Sheet, OpenFailure> read() {
        std::size_t depth = 1;
        while (const auto record = cursor_.next()) {
            if (is_bof(record->type)) {
                ++depth;
            } else if (record->type == biff::eof) {
                if (--depth == 0) break;
            } else if (depth == 1) {
                // One record has a row's cells at most.
                if (sheet_.cells.size() > most_cells - most_columns) return std::unexpected(OpenFailure::too_large);
                take(*record);
                if (too_many_texts_) return std::unexpected(OpenFailure::too_large);
            }
        }
        finish();
        return std::move(sheet_);
    }

  private:
    void take(const BiffRecord& record);
    void take_dimensions(const BiffRecord& record);
    void take_geometry(const BiffRecord& record);
    void take_cell(const BiffRecord& record);
    [[nodiscard]] bool take_value(const BiffRecord& record, Cell& cell);
    [[nodiscard]] bool take_formula(const BiffRecord& record, Cell& cell);
    [[nodiscard]] std::uint32_t text_of_label(const BiffRecord& record);
    void take_blanks(const BiffRecord& record);
    void take_numbers(const BiffRecord& record);
    void take_formula_string(const BiffRecord& record);
    void finish();

    // BIFF2 cells have three bytes of attributes where later ones have the number of an XF record.
    [[nodiscard]] bool is_old(const BiffRecord& record) const {
        return record.type < biff::formula ||
               (record.type == biff::formula && context_.encoding.version == Biff::biff2);
    }
    [[nodiscard]] std::size_t head_size(const BiffRecord& record) const { return is_old(record) ? 7 : 6; }
    // These two are done for every cell, which as a part of the loop stays in registers.
    [[nodiscard, gnu::always_inline]] std::optional<Cell> cell_of(const BiffRecord& record) const;
    [[gnu::always_inline]] void add(const Cell& cell);
    [[nodiscard]] std::uint32_t format_of(std::size_t style) const {
        return style < context_.cell_formats.size() ? context_.cell_formats[style] : 0;
    }
    [[nodiscard]] std::uint32_t add_text(std::string_view text);

    BiffCursor cursor_;
    const XlsSheetContext& context_;
    TextTable& texts_;
    ColumnWidths widths_;
    Sheet sheet_;
    Used used_;
    bool in_order_ = true;
    bool too_many_texts_ = false;
    std::optional<std::size_t> awaits_string_; // the formula cell whose STRING record is still to come
    std::optional<std::uint32_t> empty_text_;
};

bool comes_before(const Cell& left, const Cell& right) {
    return left.row != right.row ? left.row < right.row : left.column < right.column;
}

inline std::optional<Cell> SheetReader::cell_of(const BiffRecord& record) const {
    Cell cell;
    if (record.data.size() < head_size(record) || word_at(record.data, 2) >= most_columns) return std::nullopt;
    cell.row = word_at(record.data, 0);
    cell.column = word_at(record.data, 2);
    cell.format = format_of(is_old(record) ? byte_at(record.data, 5) & 0x3FU : word_at(record.data, 4));
    return cell;
}

// Blank cells show nothing, so they only count for the used range, unless they may take the place of an earlier cell.
inline void SheetReader::add(const Cell& cell) {
    used_.include_cell(cell.row, cell.column);
    awaits_string_.reset();
    const bool next = sheet_.cells.empty() || comes_before(sheet_.cells.back(), cell);
    if (next && in_order_ && cell.kind == CellKind::blank) return;
    in_order_ = in_order_ && next;
    sheet_.cells.push_back(cell);
}

std::uint32_t SheetReader::add_text(std::string_view text) {
    if (text.empty() && empty_text_) return *empty_text_;
    const auto number = texts_.add(text);
    if (!number) too_many_texts_ = true;
    if (text.empty()) empty_text_ = number;
    return number.value_or(0);
}

void SheetReader::take(const BiffRecord& record) {
    switch (record.type) {
    case biff::blank_2:
    case biff::blank:
    case biff::integer_2:
    case biff::number_2:
    case biff::number:
    case biff::rk:
    case biff::label_2:
    case biff::label:
    case biff::rstring:
    case biff::labelsst:
    case biff::boolerr_2:
    case biff::boolerr:
    case biff::formula:
    case biff::formula_3:
    case biff::formula_4:
        take_cell(record);
        break;
    case biff::mulrk:
        take_numbers(record);
        break;
    case biff::mulblank:
        take_blanks(record);
        break;
    case biff::string_2:
    case biff::string:
        take_formula_string(record);
        break;
    default:
        take_geometry(record);
    }
}

void SheetReader::take_geometry(const BiffRecord& record) {
    switch (record.type) {
    case biff::colinfo: {
        const unsigned width = Used::is_hidden(record) ? 0U : word_at(record.data, 4);
        widths_.set_stored(word_at(record.data, 0), word_at(record.data, 2), width);
        used_.include_columns(record);
        break;
    }
    case biff::row:
        used_.include_row(record);
        break;
    case biff::dimensions:
        take_dimensions(record);
        break;
    case biff::colwidth_2:
        widths_.set_stored(byte_at(record.data, 0), byte_at(record.data, 1), word_at(record.data, 2));
        break;
    case biff::standardwidth:
        widths_.set_default(word_at(record.data, 0));
        break;
    case biff::defcolwidth:
        widths_.set_default_characters(word_at(record.data, 0));
        break;
    default:
        break;
    }
}

// A hint of BIFF8 how much memory to take at once, and no more: it may say anything.
void SheetReader::take_dimensions(const BiffRecord& record) {
    constexpr std::size_t usual_record = 14; // of a text or a short number
    if (context_.encoding.version != Biff::biff8 || sheet_.cells.capacity() > 0) return;
    const std::size_t rows = long_at(record.data, 4) - long_at(record.data, 0);
    const std::size_t columns = word_at(record.data, 10);
    sheet_.cells.reserve(std::min({rows * columns, cursor_.bytes_left() / usual_record, most_cells}));
}

// A record of one cell.
void SheetReader::take_cell(const BiffRecord& record) {
    auto cell = cell_of(record);
    if (!cell) return;
    const bool string_follows = take_value(record, *cell);
    add(*cell);
    if (string_follows) awaits_string_ = sheet_.cells.size() - 1;
}

// Gives the cell what stands behind its head. True when that is still to come, in a STRING record.
bool SheetReader::take_value(const BiffRecord& record, Cell& cell) {
    const std::size_t body = head_size(record);
    const auto set_number = [&cell](double value) {
        cell.kind = CellKind::number;
        cell.number = value;
    };
    const auto set_text = [&cell](std::uint32_t text) {
        cell.kind = CellKind::text;
        cell.text = text;
    };
    switch (record.type) {
    case biff::labelsst: // a number beyond the table leaves the cell blank
        if (const auto text = long_at(record.data, body); text < context_.shared_strings) set_text(text);
        break;
    case biff::number_2:
    case biff::number:
        set_number(double_at(record.data, body));
        break;
    case biff::rk:
        set_number(rk_value(long_at(record.data, body)));
        break;
    case biff::integer_2:
        set_number(word_at(record.data, body));
        break;
    case biff::label_2:
    case biff::label:
    case biff::rstring:
        set_text(text_of_label(record));
        break;
    case biff::boolerr_2:
    case biff::boolerr:
        cell.kind = byte_at(record.data, body + 1) == 0 ? CellKind::boolean : CellKind::error;
        cell.number = byte_at(record.data, body);
        break;
    case biff::formula:
    case biff::formula_3:
    case biff::formula_4:
        return take_formula(record, cell);
    default: // blank
        break;
    }
    return false;
}

// The cached result is a number, unless its last two bytes are FF FF: then the first byte tells the kind.
bool SheetReader::take_formula(const BiffRecord& record, Cell& cell) {
    const std::size_t body = head_size(record);
    if (word_at(record.data, body + 6) != 0xFFFF) {
        cell.kind = CellKind::number;
        cell.number = double_at(record.data, body);
        return false;
    }
    enum class Result : std::uint8_t { string = 0, boolean = 1, error = 2, empty_string = 3 };
    const auto result = static_cast<Result>(byte_at(record.data, body));
    if (result == Result::boolean || result == Result::error) {
        cell.kind = result == Result::boolean ? CellKind::boolean : CellKind::error;
        cell.number = byte_at(record.data, body + 2);
        return false;
    }
    cell.kind = CellKind::text;
    cell.text = add_text({});
    return result == Result::string;
}

std::uint32_t SheetReader::text_of_label(const BiffRecord& record) {
    BiffText text(cursor_, record.data);
    text.skip(head_size(record));
    const std::size_t length = record.type == biff::label_2 ? text.byte() : text.word();
    return add_text(text.string(length, context_.encoding));
}

void SheetReader::take_blanks(const BiffRecord& record) {
    constexpr std::size_t head = 4;
    constexpr std::size_t tail = 2;
    auto cell = cell_of(record);
    for (std::size_t at = head; cell && at + 2 + tail <= record.data.size() && cell->column < most_columns; at += 2) {
        add(*cell);
        ++cell->column;
    }
}

void SheetReader::take_numbers(const BiffRecord& record) {
    constexpr std::size_t head = 4;
    constexpr std::size_t item = 6;
    constexpr std::size_t tail = 2;
    auto cell = cell_of(record);
    for (std::size_t at = head; cell && at + item + tail <= record.data.size() && cell->column < most_columns;
         at += item) {
        cell->kind = CellKind::number;
        cell->format = format_of(word_at(record.data, at));
        cell->number = rk_value(long_at(record.data, at + 2));
        add(*cell);
        ++cell->column;
    }
}

// Records of shared formulas, arrays and tables may stand between a formula and its string.
void SheetReader::take_formula_string(const BiffRecord& record) {
    if (!awaits_string_) return;
    BiffText text(cursor_, record.data);
    const std::size_t length = record.type == biff::string_2 ? text.byte() : text.word();
    sheet_.cells[*awaits_string_].text = add_text(text.string(length, context_.encoding));
    awaits_string_.reset();
}

void SheetReader::finish() {
    std::vector<Cell>& cells = sheet_.cells;
    if (!in_order_) {
        // Of two records for one place the last one counts.
        std::ranges::stable_sort(cells, comes_before);
        const auto same_place = [](const Cell& left, const Cell& right) {
            return left.row == right.row && left.column == right.column;
        };
        std::ranges::reverse(cells);
        const auto doubles = std::ranges::unique(cells, same_place);
        cells.erase(doubles.begin(), doubles.end());
        std::ranges::reverse(cells);
    }
    sheet_.used = used_.range();
    widths_.give_to(sheet_);
}

} // namespace

std::expected<Sheet, OpenFailure> read_sheet_cells(BiffCursor cursor, const XlsSheetContext& context,
                                                   TextTable& texts) {
    return SheetReader(cursor, context, texts).read();
}

} // namespace tavelo
