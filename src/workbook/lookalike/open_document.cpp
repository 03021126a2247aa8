#include "workbook/lookalike/lookalike.h"

#include "workbook/book/sheet_writer.h"
#include "workbook/text/number_format.h"
#include "workbook/xlsx/iso_date.h"
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

constexpr std::string_view content_part = "content.xml";

// Indices in formats().
enum Format : std::uint32_t { general_format, date_format, time_format };

// Columns beyond this have no width of their own.
constexpr std::uint32_t most_widths = sheet_columns;

double points_of(std::string_view length) {
    double number = 0;
    const auto [end, error] = std::from_chars(length.data(), length.data() + length.size(), number);
    if (error != std::errc() || !std::isfinite(number) || number < 0) return 0;
    const std::string_view unit(end, static_cast<std::size_t>(length.data() + length.size() - end));
    constexpr std::array<std::pair<std::string_view, double>, 5> units{
        {{"cm", 72 / 2.54}, {"mm", 7.2 / 2.54}, {"in", 72}, {"pc", 12}, {"px", 0.75}}};
    const auto* const known = std::ranges::find(units, unit, &std::pair<std::string_view, double>::first);
    return known == units.end() ? number : number * known->second;
}

// PT08H30M00S as a part of a day.
std::optional<double> days_of_duration(std::string_view text) {
    if (!text.starts_with("PT")) return std::nullopt;
    text.remove_prefix(2);
    double seconds = 0;
    while (!text.empty()) {
        double number = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error != std::errc() || end == text.data() + text.size()) return std::nullopt;
        constexpr std::string_view units = "HMS";
        constexpr std::array<double, 3> seconds_of{3600, 60, 1};
        const auto unit = units.find(*end);
        if (unit == std::string_view::npos) return std::nullopt;
        seconds += number * seconds_of.at(unit);
        text.remove_prefix(static_cast<std::size_t>(end - text.data()) + 1);
    }
    return seconds / 86400;
}

class NamesHandler : public XmlHandler {
  public:
    void element_start(std::string_view name, unsigned depth, const XmlAttributes& attributes) override {
        if (depth == 3) is_spreadsheet_ = name == "spreadsheet";
        if (depth == 4 && is_spreadsheet_ && name == "table" && sheets_.size() < most_sheets)
            sheets_.push_back({.name = std::string(attributes.find("name").value_or(""))});
    }
    void element_end(std::string_view, unsigned) override {}
    void text(std::string_view) override {}

    std::vector<SheetInfo>& sheets() { return sheets_; }

  private:
    std::vector<SheetInfo> sheets_;
    bool is_spreadsheet_ = false;
};

// <document-content><body><spreadsheet> holds <table>, and that <table-column>, and <table-row> with <table-cell>, in
// groups or not; a cell holds its text in <p>, and may hold notes and drawings.
class TableHandler : public XmlHandler {
  public:
    TableHandler(std::size_t sheet, TextTable& texts) : left_(sheet + 1), texts_(texts), writer_(texts) {}

    void element_start(std::string_view name, unsigned depth, const XmlAttributes& attributes) override {
        if (depth <= 4) {
            if (depth == 3) is_spreadsheet_ = name == "spreadsheet";
            is_wanted_ = depth == 4 && is_spreadsheet_ && name == "table" && left_ > 0 && --left_ == 0;
            if (depth == 3 && name == "style") column_style_ = attributes.find("name").value_or("");
            if (depth == 4 && name == "table-column-properties")
                if (const auto width = attributes.find("column-width")) widths_[column_style_] = points_of(*width);
        } else if (!is_wanted_ || passed_over_ != 0) {
            return;
        } else if (cell_depth_ != 0) {
            inside_cell(name, depth, attributes);
        } else if (name == "table-column") {
            column(attributes);
        } else if (name == "table-row") {
            begin_row(attributes);
        } else if (name == "table-cell" || name == "covered-table-cell") {
            begin_cell(name, depth, attributes);
        } else if (name == "shapes" || name == "forms") {
            passed_over_ = depth;
        }
    }

    void element_end(std::string_view name, unsigned depth) override {
        if (!is_wanted_) return;
        if (depth == passed_over_) passed_over_ = 0;
        if (passed_over_ != 0) return;
        if (depth == paragraph_depth_) paragraph_depth_ = 0;
        if (depth == cell_depth_) end_cell();
        if (cell_depth_ == 0 && name == "table-row") end_row();
        if (depth == 4) is_wanted_ = false;
    }

    // White space in a paragraph counts as one blank; more of it stands there as <s> and <tab>.
    void text(std::string_view piece) override {
        if (paragraph_depth_ == 0 || passed_over_ != 0 || value_.size() > longest_text_bytes) return;
        for (const char c : piece) {
            const bool is_space = c == ' ' || (c >= '\t' && c <= '\r');
            if (!is_space) {
                value_ += c;
            } else if (!value_.empty() && value_.back() != ' ' && value_.back() != '\n') {
                value_ += ' ';
            }
        }
    }

    std::optional<OpenFailure> stopped() const override {
        return is_full_ ? std::optional(OpenFailure::too_large) : std::nullopt;
    }

    Sheet take_sheet() { return writer_.take(); }

  private:
    void inside_cell(std::string_view name, unsigned depth, const XmlAttributes& attributes) {
        if (depth == cell_depth_ + 1 && name == "p") {
            if (has_text_) value_ += '\n';
            has_text_ = true;
            paragraph_depth_ = depth;
        } else if (paragraph_depth_ == 0 || name == "annotation" || name == "note") {
            passed_over_ = depth;
        } else if (name == "s" && value_.size() <= longest_text_bytes) {
            value_.append(std::min(attributes.number("c").value_or(1), most_blanks), ' ');
        } else if (name == "tab") {
            value_ += '\t';
        } else if (name == "line-break") {
            value_ += '\n';
        }
    }

    void column(const XmlAttributes& attributes) {
        const std::uint32_t count =
            std::clamp(attributes.number("number-columns-repeated").value_or(1), 1U, most_widths);
        const auto width = widths_.find(attributes.find("style-name").value_or(""));
        const bool hidden = attributes.find("visibility").value_or("visible") != "visible";
        // What is repeated to the end of the sheet is the width of columns that nobody uses.
        if ((hidden || width != widths_.end()) && next_width_ + count < most_widths)
            writer_.set_width(next_width_, next_width_ + count - 1, hidden ? 0 : width->second);
        next_width_ = std::min(next_width_ + count, most_widths);
    }

    void begin_row(const XmlAttributes& attributes) {
        rows_ = std::clamp(attributes.number("number-rows-repeated").value_or(1), 1U, sheet_rows);
        column_ = 0;
        row_cells_.clear();
    }

    void begin_cell(std::string_view name, unsigned depth, const XmlAttributes& attributes) {
        cell_depth_ = depth;
        columns_ = std::clamp(attributes.number("number-columns-repeated").value_or(1), 1U, sheet_columns);
        value_.clear();
        has_text_ = false;
        number_.reset();
        format_ = general_format;
        kind_ = CellKind::number;
        if (name == "table-cell") take_value(attributes);
    }

    // For a cell without a text.
    void take_value(const XmlAttributes& attributes) {
        const std::string_view type = attributes.find("value-type").value_or("");
        if (type == "float" || type == "percentage" || type == "currency") {
            number_ = attributes.decimal("value");
        } else if (type == "date") {
            number_ = serial_of_iso_date(attributes.find("date-value").value_or(""), DateSystem::from_1900);
            if (number_ && *number_ < 0) number_.reset();
            format_ = date_format;
        } else if (type == "time") {
            number_ = days_of_duration(attributes.find("time-value").value_or(""));
            format_ = time_format;
        } else if (type == "boolean") {
            kind_ = CellKind::boolean;
            number_ = attributes.find("boolean-value") == "true" ? 1 : 0;
        }
    }

    void end_cell() {
        cell_depth_ = 0;
        Cell cell;
        if (!value_.empty()) {
            cell.kind = CellKind::text;
            const auto index = column_ < sheet_columns && row_ < sheet_rows ? texts_.add(value_) : 0;
            if (!index) is_full_ = true;
            cell.text = index.value_or(0);
        } else if (number_ && !has_text_) {
            cell.kind = kind_;
            cell.number = *number_;
            cell.format = format_;
        }
        if (cell.kind != CellKind::blank)
            for (std::uint32_t i = 0; i < columns_ && column_ + i < sheet_columns; ++i) {
                cell.column = static_cast<std::uint16_t>(column_ + i);
                row_cells_.push_back(cell);
            }
        column_ = std::min(column_ + columns_, sheet_columns);
    }

    void end_row() {
        const std::uint32_t end = std::min(row_ + rows_, sheet_rows);
        for (std::uint32_t row = row_; row < end && !row_cells_.empty(); ++row)
            for (const Cell& cell : row_cells_)
                if (!writer_.add(cell, row, cell.column)) {
                    is_full_ = true;
                    return;
                }
        row_ = end;
        row_cells_.clear();
    }

    static constexpr unsigned most_blanks = 1024;

    std::size_t left_; // tables up to the wanted one
    TextTable& texts_;
    SheetWriter writer_;
    std::map<std::string, double, std::less<>> widths_; // in points, by the name of the style
    std::string column_style_;
    std::vector<Cell> row_cells_;
    std::string value_;
    std::optional<double> number_;
    std::uint32_t format_ = general_format;
    CellKind kind_ = CellKind::number;
    std::uint32_t row_ = 0;
    std::uint32_t rows_ = 1; // that the row stands for
    std::uint32_t column_ = 0;
    std::uint32_t columns_ = 1; // that the cell stands for
    std::uint32_t next_width_ = 0;
    unsigned cell_depth_ = 0; // 0 outside
    unsigned paragraph_depth_ = 0;
    unsigned passed_over_ = 0; // depth of what is no text of the cell
    bool is_spreadsheet_ = false;
    bool is_wanted_ = false;
    bool has_text_ = false;
    bool is_full_ = false;
};

class OpenDocument : public Workbook {
  public:
    explicit OpenDocument(std::unique_ptr<Package> package) : package_(std::move(package)) {}

    std::expected<void, OpenFailure> open() {
        NamesHandler handler;
        const auto read = read_xml(*package_, content_part, largest_part, handler);
        if (!read) return read;
        if (handler.sheets().empty()) return std::unexpected(OpenFailure::not_a_workbook);
        sheets_ = std::move(handler.sheets());
        return {};
    }

    std::span<const SheetInfo> sheets() const override { return sheets_; }
    std::span<const std::string> formats() const override { return formats_; }
    const TextTable& texts() const override { return texts_; }
    bool dates_from_1904() const override { return false; }

  private:
    std::expected<Sheet, OpenFailure> sheet_at(std::size_t index) override {
        if (index >= sheets_.size()) return std::unexpected(OpenFailure::unreadable);
        TableHandler handler(index, texts_);
        if (const auto read = read_xml(*package_, content_part, largest_part, handler); !read)
            return std::unexpected(read.error());
        return handler.take_sheet();
    }

    std::unique_ptr<Package> package_;
    std::vector<SheetInfo> sheets_;
    std::array<std::string, 3> formats_{"", std::string(builtin_format(14)), std::string(builtin_format(21))};
    TextTable texts_;
};

// The manifest lists what is locked.
class ManifestHandler : public XmlHandler {
  public:
    void element_start(std::string_view name, unsigned, const XmlAttributes&) override {
        is_locked_ = is_locked_ || name == "encryption-data";
    }
    void element_end(std::string_view, unsigned) override {}
    void text(std::string_view) override {}

    [[nodiscard]] bool is_locked() const { return is_locked_; }

  private:
    bool is_locked_ = false;
};

// Why it does not open: a password, or what went wrong on the way to know that. A manifest that is missing or broken
// says nothing.
std::optional<OpenFailure> lock_of(const Package& package) {
    ManifestHandler handler;
    const auto read = read_xml(package, "META-INF/manifest.xml", largest_list_part, handler);
    if (!read && read.error() != OpenFailure::damaged) return read.error();
    return handler.is_locked() ? std::optional(OpenFailure::password) : std::nullopt;
}

} // namespace

bool is_open_document(const Package& package) { return package.has(content_part) && !package.has("_rels/.rels"); }

std::expected<std::unique_ptr<Workbook>, OpenFailure> open_open_document(std::unique_ptr<Package> package) {
    if (const auto why = lock_of(*package)) return std::unexpected(*why);
    auto book = std::make_unique<OpenDocument>(std::move(package));
    if (const auto opened = book->open(); !opened) return std::unexpected(opened.error());
    return book;
}

} // namespace tavelo
