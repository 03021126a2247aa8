#include "platform/linux/ini_text.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace tavelo {

namespace {

bool is_control(char c) { return (c >= 0 && c < ' ') || c == '\x7F'; }

std::string_view without_outer_blanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::string escaped(char c) {
    switch (c) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        break;
    }
    if (!is_control(c)) return {c};
    constexpr std::string_view digits = "0123456789ABCDEF";
    const auto code = static_cast<std::size_t>(c);
    return {'\\', 'x', digits[code / 16], digits[code % 16]};
}

std::string quoted(std::string_view text) {
    std::string result = "\"";
    for (const char c : text)
        result += escaped(c);
    return result + '"';
}

// The character of the escape at the head of `text` (after its backslash), which is taken off.
std::optional<char> take_escaped(std::string_view& text) {
    if (text.empty()) return {};
    const char kind = text.front();
    text.remove_prefix(1);
    switch (kind) {
    case '"':
    case '\\':
        return kind;
    case 'n':
        return '\n';
    case 'r':
        return '\r';
    case 't':
        return '\t';
    case 'x':
        break;
    default:
        return {};
    }
    if (text.size() < 2) return {};
    unsigned code = 0;
    const auto read = std::from_chars(text.data(), text.data() + 2, code, 16);
    if (read.ec != std::errc{} || read.ptr != text.data() + 2) return {};
    text.remove_prefix(2);
    return static_cast<char>(code);
}

// The quoted text at the head of `text`, taken off it; nothing when it is not properly quoted.
std::optional<std::string> take_quoted(std::string_view& text) {
    if (!text.starts_with('"')) return {};
    std::string_view rest = text.substr(1);
    std::string result;
    while (!rest.empty()) {
        const char c = rest.front();
        rest.remove_prefix(1);
        if (c == '"') {
            text = rest;
            return result;
        }
        const std::optional<char> next = c == '\\' ? take_escaped(rest) : c;
        if (!next) return {};
        result += *next;
    }
    return {};
}

// The inside when the whole of `text` is quoted, else as it stands.
std::string plain_or_quoted(std::string_view text) {
    std::string_view rest = text;
    const std::optional<std::string> inside = take_quoted(rest);
    return inside && rest.empty() ? *inside : std::string(text);
}

bool is_plain(std::string_view text) {
    return without_outer_blanks(text).size() == text.size() && !std::ranges::any_of(text, is_control);
}

std::string value_text(std::string_view value) {
    return is_plain(value) && !value.starts_with('"') ? std::string(value) : quoted(value);
}

std::string name_text(std::string_view name) {
    const bool plain = !name.empty() && is_plain(name) && name.find_first_of("=[]\";#") == std::string_view::npos;
    return plain ? std::string(name) : quoted(name);
}

// What a line says. Texts that need no unquoting are cut out when they are asked for: a file may be large.
struct Line {
    std::size_t begin = 0;
    std::size_t end = 0;   // before its line end
    std::size_t after = 0; // where the next one begins
    std::string_view text; // without blanks around it

    [[nodiscard]] bool is_heading() const { return text.size() >= 2 && text.starts_with('[') && text.ends_with(']'); }
    [[nodiscard]] bool is_heading_of(std::string_view section) const {
        return plain_or_quoted(text.substr(1, text.size() - 2)) == section;
    }
    // The value when the line is one of this key.
    [[nodiscard]] std::optional<std::string> value_of(std::string_view key) const {
        if (text.empty() || text.starts_with(';') || text.starts_with('#')) return {};
        std::string_view rest = text;
        if (const std::optional<std::string> quoted_key = take_quoted(rest)) {
            if (*quoted_key != key) return {};
        } else {
            const std::size_t equals = text.find('=');
            if (equals == std::string_view::npos || without_outer_blanks(text.substr(0, equals)) != key) return {};
            rest = text.substr(equals);
        }
        rest = without_outer_blanks(rest);
        if (!rest.starts_with('=')) return {};
        return plain_or_quoted(without_outer_blanks(rest.substr(1)));
    }
};

Line line_at(std::string_view whole, std::size_t begin) {
    Line line;
    line.begin = begin;
    line.end = std::min(whole.find('\n', begin), whole.size());
    line.after = line.end + 1; // behind the end of a text whose last line has no end
    if (line.end > begin && whole[line.end - 1] == '\r') --line.end;
    std::string_view text = whole.substr(begin, line.end - begin);
    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF"; // an editor may put it at the beginning
    if (begin == 0 && text.starts_with(byte_order_mark)) text.remove_prefix(byte_order_mark.size());
    line.text = without_outer_blanks(text);
    return line;
}

// Where a key stands and where it would be put.
struct Place {
    std::optional<Line> line; // the last one with the key
    std::string value;
    std::optional<std::size_t> below; // after the last line of the section that is not blank
};

Place place_of(std::string_view whole, std::string_view section, std::string_view key) {
    Place place;
    bool inside = false;
    for (std::size_t at = 0; at < whole.size();) {
        const Line line = line_at(whole, at);
        at = line.after;
        const bool heading = line.is_heading();
        if (heading) inside = line.is_heading_of(section);
        if (!inside) continue;
        if (!line.text.empty()) place.below = line.after;
        if (heading) continue;
        if (std::optional<std::string> value = line.value_of(key)) {
            place.line = line;
            place.value = std::move(*value);
        }
    }
    return place;
}

} // namespace

std::optional<std::string> IniText::get(std::string_view section, std::string_view key) const {
    Place place = place_of(text_, section, key);
    if (!place.line) return {};
    return std::move(place.value);
}

void IniText::set(std::string_view section, std::string_view key, std::string_view value) {
    const Place place = place_of(text_, section, key);
    const std::string line = name_text(key) + '=' + value_text(value);
    if (place.line) {
        // The same value keeps the way in which somebody wrote it.
        if (place.value != value) text_.replace(place.line->begin, place.line->end - place.line->begin, line);
        return;
    }
    if (!text_.empty() && !text_.ends_with('\n')) text_ += '\n';
    // Blank lines that part the section from the next one stay below.
    if (place.below)
        text_.insert(*place.below, line + '\n');
    else
        text_ += '[' + name_text(section) + "]\n" + line + '\n';
}

} // namespace tavelo
