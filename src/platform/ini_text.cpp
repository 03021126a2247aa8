#include "platform/ini_text.h"

#include <algorithm>
#include <charconv>

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

} // namespace

IniText::IniText(std::string_view text) {
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        append_parsed(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
}

void IniText::append_parsed(std::string_view raw) {
    const bool first = lines_.empty();
    Line& line = lines_.emplace_back();
    if (!first) {
        const Line& before = lines_[lines_.size() - 2];
        line.section = before.section;
        line.has_section = before.has_section;
    }
    line.carriage_return = raw.ends_with('\r');
    if (line.carriage_return) raw.remove_suffix(1);
    line.raw = raw;

    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF"; // an editor may put it at the beginning
    if (first && raw.starts_with(byte_order_mark)) raw.remove_prefix(byte_order_mark.size());
    const std::string_view text = without_outer_blanks(raw);
    if (text.size() >= 2 && text.starts_with('[') && text.ends_with(']')) {
        line.section = plain_or_quoted(text.substr(1, text.size() - 2));
        line.has_section = true;
        return;
    }
    if (text.starts_with(';') || text.starts_with('#')) return;

    std::string_view rest = text;
    std::optional<std::string> key = take_quoted(rest);
    if (!key) {
        const std::size_t equals = text.find('=');
        if (equals == std::string_view::npos) return;
        key = without_outer_blanks(text.substr(0, equals));
        rest = text.substr(equals);
    }
    rest = without_outer_blanks(rest);
    if (!rest.starts_with('=')) return;
    line.is_value = true;
    line.key = std::move(*key);
    line.value = plain_or_quoted(without_outer_blanks(rest.substr(1)));
}

const IniText::Line* IniText::find(std::string_view section, std::string_view key) const {
    const auto found = std::find_if(lines_.rbegin(), lines_.rend(), [&](const Line& line) {
        return line.is_value && line.has_section && line.section == section && line.key == key;
    });
    return found == lines_.rend() ? nullptr : &*found;
}

std::optional<std::string> IniText::get(std::string_view section, std::string_view key) const {
    const Line* line = find(section, key);
    if (!line) return {};
    return line->value;
}

void IniText::set(std::string_view section, std::string_view key, std::string_view value) {
    const Line* present = find(section, key);
    if (present && present->value == value) return; // keeps the way in which somebody wrote it

    Line line;
    line.is_value = true;
    line.section = section;
    line.has_section = true;
    line.key = key;
    line.value = value;
    line.raw = name_text(key) + '=' + value_text(value);
    if (present) {
        line.carriage_return = present->carriage_return;
        lines_[static_cast<std::size_t>(present - lines_.data())] = std::move(line);
        return;
    }
    // Below the last line of the section; blank lines that part it from the next one stay below.
    const auto last = std::find_if(lines_.rbegin(), lines_.rend(), [&](const Line& other) {
        return other.has_section && other.section == section && !without_outer_blanks(other.raw).empty();
    });
    if (last != lines_.rend()) {
        lines_.insert(last.base(), std::move(line));
        return;
    }
    Line heading;
    heading.section = section;
    heading.has_section = true;
    heading.raw = '[' + name_text(section) + ']';
    lines_.push_back(std::move(heading));
    lines_.push_back(std::move(line));
}

std::string IniText::text() const {
    std::string result;
    for (const Line& line : lines_) {
        result += line.raw;
        result += line.carriage_return ? "\r\n" : "\n";
    }
    return result;
}

} // namespace tavelo
