#include "workbook/lookalike/delimited_text.h"

#include "basis/text.h"
#include "workbook/book/sheet_writer.h"

#include <algorithm>
#include <array>
#include <map>

namespace tavelo {

namespace {

constexpr std::size_t lines_that_tell = 32;

enum class FieldEnd { separator, line, text };

// Walks over the fields.
class Fields {
  public:
    Fields(std::string_view text, char separator) : rest_(text), separator_(separator) {}

    // Reads the next field into `field`; answers what stands behind it.
    FieldEnd next(std::string& field) {
        field.clear();
        if (rest_.starts_with('"')) read_quoted(field);
        const std::array<char, 3> ends{separator_, '\r', '\n'};
        const auto end = std::min(rest_.find_first_of(std::string_view(ends.data(), ends.size())), rest_.size());
        field += rest_.substr(0, end);
        rest_.remove_prefix(end);
        if (rest_.empty()) return FieldEnd::text;
        const bool at_separator = rest_.front() == separator_;
        rest_.remove_prefix(rest_.starts_with("\r\n") ? 2 : 1);
        return at_separator ? FieldEnd::separator : FieldEnd::line;
    }

    [[nodiscard]] bool at_end() const { return rest_.empty(); }

  private:
    void read_quoted(std::string& field) {
        rest_.remove_prefix(1);
        while (!rest_.empty()) {
            const char c = rest_.front();
            if (c == '"') {
                rest_.remove_prefix(1);
                if (!rest_.starts_with('"')) return;
            }
            if (c == '\r') {
                if (!rest_.starts_with("\r\n")) field += '\n';
            } else {
                field += c;
            }
            rest_.remove_prefix(1);
        }
    }

    std::string_view rest_;
    char separator_;
};

std::string_view first_line(std::string_view text) { return text.substr(0, text.find_first_of("\r\n")); }

std::optional<char> named_separator(std::string_view text) {
    const std::string_view line = first_line(text);
    constexpr std::size_t length = 5; // sep=;
    if (line.size() != length || lower_case(line.substr(0, length - 1)) != "sep=") return std::nullopt;
    return line.back();
}

// How many of the first lines have the number of fields that most of them have; lines of one field do not count.
std::size_t lines_alike(std::string_view text, char separator) {
    Fields fields(text, separator);
    std::map<std::size_t, std::size_t> lines_of_size;
    std::string field;
    for (std::size_t line = 0; line < lines_that_tell && !fields.at_end(); ++line) {
        std::size_t size = 1;
        while (fields.next(field) == FieldEnd::separator)
            ++size;
        if (size > 1) ++lines_of_size[size];
    }
    std::size_t most = 0;
    for (const auto& [size, lines] : lines_of_size)
        most = std::max(most, lines);
    return most;
}

std::string_view without_formula_quotes(std::string_view field) {
    if (field.size() < 3 || !field.starts_with("=\"") || !field.ends_with('"')) return field;
    const std::string_view inside = field.substr(2, field.size() - 3);
    return inside.contains('"') ? field : inside;
}

} // namespace

std::optional<char> separator_of(std::string_view text) {
    if (const auto named = named_separator(text)) return named;
    constexpr std::array separators{'\t', ';', ','};
    std::optional<char> best;
    std::size_t most = 0;
    for (const char separator : separators) {
        const std::size_t lines = lines_alike(text, separator);
        if (lines <= most) continue;
        best = separator;
        most = lines;
    }
    return best;
}

std::expected<Sheet, OpenFailure> read_delimited_text(std::string_view text, TextTable& texts) {
    const auto separator = separator_of(text);
    if (!separator) return std::unexpected(OpenFailure::not_a_workbook);
    Fields fields(text, *separator);
    std::string field;
    if (named_separator(text)) {
        while (fields.next(field) == FieldEnd::separator) {
        }
    }
    SheetWriter writer(texts);
    for (std::uint32_t row = 0, column = 0; !fields.at_end() && row < sheet_rows;) {
        const FieldEnd end = fields.next(field);
        if (!writer.add_text(row, column, without_formula_quotes(field)))
            return std::unexpected(OpenFailure::too_large);
        if (end == FieldEnd::separator) {
            ++column;
        } else {
            ++row;
            column = 0;
        }
    }
    return writer.take();
}

} // namespace tavelo
