#include "workbook/lookalike/html_table.h"

#include "workbook/book/sheet_writer.h"
#include "workbook/lookalike/html_tokens.h"

#include <algorithm>
#include <optional>

namespace tavelo {

namespace {

using Kind = HtmlToken::Kind;

constexpr unsigned most_rows_spanned = 65534;

bool is_cell(std::string_view name) { return name == "td" || name == "th"; }

bool breaks_line(std::string_view name) {
    return name == "br" || name == "p" || name == "div" || name == "li" || name == "ul" || name == "ol" ||
           name == "h1" || name == "h2" || name == "h3" || name == "h4";
}

// Counts the rows of every table of the page: the first one, by where it begins, that has more than one.
std::optional<std::size_t> first_list(std::string_view page) {
    struct Table {
        std::size_t number;
        std::size_t rows = 0;
        bool row_is_open = false;
    };
    std::vector<Table> open;
    std::optional<std::size_t> first;
    std::size_t tables = 0;
    HtmlTokens tokens(page);
    for (HtmlToken token; tokens.next(token);) {
        if (token.kind == Kind::start_tag && token.name == "table") {
            open.push_back({.number = tables++});
        } else if (open.empty() || token.kind == Kind::text) {
            continue;
        } else if (token.name == "tr") {
            open.back().row_is_open = false;
        } else if (token.kind == Kind::start_tag && is_cell(token.name)) {
            Table& table = open.back();
            if (!table.row_is_open) ++table.rows;
            table.row_is_open = true;
            if (table.rows == 2) first = std::min(first.value_or(table.number), table.number);
        } else if (token.kind == Kind::end_tag && token.name == "table") {
            open.pop_back();
        }
    }
    return first;
}

// The text of a cell, with its white space as a page shows it.
class CellText {
  public:
    void add(std::string_view raw) {
        if (text_.size() > longest_text_bytes) return;
        resolved_.clear();
        append_resolved(resolved_, raw);
        for (std::size_t i = 0; i < resolved_.size(); ++i) {
            const char c = resolved_[i];
            if (c == ' ' || (c >= '\t' && c <= '\r')) {
                blank_ = true;
            } else if (c == '\xC2' && resolved_.compare(i, 2, "\xC2\xA0") == 0) { // a blank that stays
                add_blank();
                text_ += ' ';
                ++i;
            } else {
                add_blank();
                text_ += c;
            }
        }
    }
    void add_separation() { blank_ = true; }
    void break_line() {
        if (text_.empty() || text_.ends_with('\n')) return;
        blank_ = false;
        text_ += '\n';
    }
    // The text so far; the next one begins empty.
    std::string_view take() {
        blank_ = false;
        taken_.swap(text_);
        text_.clear();
        const std::string_view text = taken_;
        const auto first = text.find_first_not_of(" \n");
        if (first == std::string_view::npos) return {};
        return text.substr(first, text.find_last_not_of(" \n") - first + 1);
    }

  private:
    void add_blank() {
        if (blank_ && !text_.empty() && !text_.ends_with('\n')) text_ += ' ';
        blank_ = false;
    }

    std::string text_;
    std::string taken_;
    std::string resolved_;
    bool blank_ = false; // white space was read and is not written yet
};

// Reads the rows of one table; the tables in its cells are text.
class TableReader {
  public:
    explicit TableReader(TextTable& texts) : writer_(texts) {}

    // False when the table is at its end, or when it is too large.
    bool take(const HtmlToken& token) {
        if (token.kind == Kind::text) {
            if (cell_is_open_) text_.add(token.content);
            return true;
        }
        const bool is_start = token.kind == Kind::start_tag;
        if (token.name == "table") {
            if (!is_start && depth_ == 0) return false;
            depth_ += is_start ? 1 : -1;
            text_.break_line();
        } else if (breaks_line(token.name)) {
            text_.break_line();
        } else if (token.name == "tr" || is_cell(token.name)) {
            if (depth_ > 0) {
                text_.add_separation();
                return true;
            }
            end_cell();
            if (token.name == "tr") row_is_open_ = is_start && begin_row();
            if (is_start && is_cell(token.name)) begin_cell(token);
        }
        return !too_large_;
    }

    std::expected<Sheet, OpenFailure> sheet() {
        end_cell();
        if (too_large_) return std::unexpected(OpenFailure::too_large);
        return writer_.take();
    }

  private:
    bool begin_row() {
        row_ = next_row_++;
        next_column_ = 0;
        return true;
    }

    void begin_cell(const HtmlToken& token) {
        if (!row_is_open_) row_is_open_ = begin_row();
        while (next_column_ < covered_until_.size() && covered_until_[next_column_] > row_)
            ++next_column_;
        column_ = std::min(next_column_, most_html_columns);
        const unsigned columns = std::min(token.number("colspan"), most_html_columns);
        const unsigned rows = std::min(token.number("rowspan"), most_rows_spanned);
        next_column_ = column_ + columns;
        if (rows > 1) {
            if (covered_until_.size() < next_column_) covered_until_.resize(next_column_, 0);
            std::fill_n(covered_until_.begin() + column_, columns, row_ + rows);
        }
        cell_is_open_ = true;
    }

    void end_cell() {
        const std::string_view text = text_.take();
        if (cell_is_open_ && column_ < most_html_columns && !writer_.add_text(row_, column_, text)) too_large_ = true;
        cell_is_open_ = false;
    }

    SheetWriter writer_;
    CellText text_;
    std::vector<std::uint32_t> covered_until_; // of each column the first row that no cell from above reaches
    std::uint32_t row_ = 0;
    std::uint32_t next_row_ = 0;
    std::uint32_t column_ = 0;
    std::uint32_t next_column_ = 0;
    int depth_ = 0; // of tables inside this one
    bool row_is_open_ = false;
    bool cell_is_open_ = false;
    bool too_large_ = false;
};

} // namespace

bool has_html_table(std::string_view page) { return first_list(page).has_value(); }

std::expected<Sheet, OpenFailure> read_html_table(std::string_view page, TextTable& texts) {
    const auto wanted = first_list(page);
    if (!wanted) return std::unexpected(OpenFailure::not_a_workbook);
    HtmlTokens tokens(page);
    HtmlToken token;
    for (std::size_t tables = 0; tables <= *wanted && tokens.next(token);)
        tables += token.kind == Kind::start_tag && token.name == "table" ? 1 : 0;
    TableReader reader(texts);
    while (tokens.next(token) && reader.take(token)) {
    }
    return reader.sheet();
}

} // namespace tavelo
