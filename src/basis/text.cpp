#include "basis/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace tavelo {

namespace {

// Windows-1252 80..9F; the rest is equal to Unicode. 81, 8D, 8F, 90 and 9D carry no character.
constexpr std::array<char16_t, 32> windows_1252_upper_controls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t lower(char32_t c) {
    if (c < 0x80) return c >= U'A' && c <= U'Z' ? c + 0x20 : c;
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return c + 0x20;
    switch (c) {
    case 0x178:
        return 0xFF;
    case 0x160:
        return 0x161;
    case 0x152:
        return 0x153;
    case 0x17D:
        return 0x17E;
    default:
        return c;
    }
}

constexpr char32_t upper(char32_t c) {
    if (c < 0x80) return c >= U'a' && c <= U'z' ? c - 0x20 : c;
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return c - 0x20;
    switch (c) {
    case 0xFF:
        return 0x178;
    case 0x161:
        return 0x160;
    case 0x153:
        return 0x152;
    case 0x17E:
        return 0x17D;
    default:
        return c;
    }
}

// A byte that goes on with the character of the bytes before it.
constexpr bool is_continuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

struct Decoded {
    char32_t code_point;
    std::size_t length;
};

Decoded decode(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const auto continued = [&](std::size_t i) { return i < text.size() && is_continuation(text[i]); };
    const auto bits = [&](std::size_t i) { return static_cast<char32_t>(byte(i) & 0x3FU); };
    const unsigned char first = byte(0);
    constexpr Decoded invalid{0xFFFD, 1};
    if (first < 0x80) return {first, 1};
    if (first >= 0xC2 && first < 0xE0 && continued(1))
        return {(static_cast<char32_t>(first & 0x1FU) << 6) | bits(1), 2};
    if (first >= 0xE0 && first < 0xF0 && continued(1) && continued(2)) {
        const char32_t c = (static_cast<char32_t>(first & 0x0FU) << 12) | (bits(1) << 6) | bits(2);
        return c >= 0x800 && (c < 0xD800 || c > 0xDFFF) ? Decoded{c, 3} : invalid;
    }
    if (first >= 0xF0 && first < 0xF5 && continued(1) && continued(2) && continued(3)) {
        const char32_t c = (static_cast<char32_t>(first & 0x07U) << 18) | (bits(1) << 12) | (bits(2) << 6) | bits(3);
        return c >= 0x10000 && c <= 0x10FFFF ? Decoded{c, 4} : invalid;
    }
    return invalid;
}

bool is_plain(char c) { return static_cast<unsigned char>(c) < 0x80; }

// Maps every code point; bytes that are not UTF-8 are kept as they are.
template <class Mapping>
std::string mapped(std::string_view text, Mapping mapping) {
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        if (is_plain(text.front())) {
            result.push_back(static_cast<char>(mapping(static_cast<unsigned char>(text.front()))));
            text.remove_prefix(1);
            continue;
        }
        const Decoded next = decode(text);
        const char32_t to = mapping(next.code_point);
        if (to == next.code_point)
            result.append(text.substr(0, next.length));
        else
            append_utf8(result, to);
        text.remove_prefix(next.length);
    }
    return result;
}

} // namespace

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string lower_case(std::string_view text) { return mapped(text, lower); }
std::string upper_case(std::string_view text) { return mapped(text, upper); }

std::string replaced(std::string_view text, std::string_view from, std::string_view to) {
    if (from.empty()) return std::string(text);
    std::string result;
    for (;;) {
        const std::size_t at = text.find(from);
        result.append(text.substr(0, at));
        if (at == std::string_view::npos) return result;
        result.append(to);
        text.remove_prefix(at + from.size());
    }
}

std::string removed(std::string_view text, std::string_view part) { return replaced(text, part, {}); }

std::vector<std::string_view> split(std::string_view text, std::string_view separator) {
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t at = text.find(separator);
        parts.push_back(text.substr(0, at));
        if (at == std::string_view::npos) return parts;
        text.remove_prefix(at + separator.size());
    }
}

std::string join(std::span<const std::string> parts, std::string_view separator) {
    std::string result;
    for (const std::string& part : parts) {
        if (&part != &parts.front()) result.append(separator);
        result.append(part);
    }
    return result;
}

std::string_view last(std::string_view text, std::size_t count) {
    std::size_t begin = text.size();
    for (; count > 0 && begin > 0; --count) {
        --begin;
        while (begin > 0 && is_continuation(text[begin]))
            --begin;
    }
    return text.substr(begin);
}

std::string_view view_of_windows_1252(std::string_view bytes, std::string& room) {
    room.clear();
    std::size_t begin = 0; // of what is not taken over yet
    for_each_place(bytes, HighByte(), [&](std::size_t at) {
        const auto byte = static_cast<unsigned char>(bytes[at]);
        room.append(bytes.substr(begin, at - begin));
        append_utf8(room, byte < 0xA0 ? windows_1252_upper_controls[byte - 0x80U] : byte);
        begin = at + 1;
    });
    if (begin == 0) return bytes;
    return room.append(bytes.substr(begin));
}

void from_windows_1252(std::string_view bytes, std::string& text) {
    const std::string_view shown = view_of_windows_1252(bytes, text);
    if (shown.data() == bytes.data()) text.assign(bytes);
}

std::string from_windows_1252(std::string_view bytes) {
    std::string text;
    from_windows_1252(bytes, text);
    return text;
}

std::u32string code_points(std::string_view text) {
    std::u32string result;
    while (!text.empty()) {
        const Decoded next = decode(text);
        result.push_back(next.code_point);
        text.remove_prefix(next.length);
    }
    return result;
}

bool is_utf8(std::string_view text) {
    while (!text.empty()) {
        const Decoded next = decode(text);
        if (next.length == 1 && !is_plain(text.front())) return false;
        text.remove_prefix(next.length);
    }
    return true;
}

void append_utf8(std::string& text, char32_t code_point) {
    const auto add = [&](char32_t byte) { text.push_back(static_cast<char>(static_cast<unsigned char>(byte))); };
    const auto add_continued = [&](unsigned shift) { add(0x80U | ((code_point >> shift) & 0x3FU)); };
    if (code_point < 0x80) {
        add(code_point);
    } else if (code_point < 0x800) {
        add(0xC0U | (code_point >> 6));
        add_continued(0);
    } else if (code_point < 0x10000) {
        add(0xE0U | (code_point >> 12));
        add_continued(6);
        add_continued(0);
    } else {
        add(0xF0U | (code_point >> 18));
        add_continued(12);
        add_continued(6);
        add_continued(0);
    }
}

} // namespace tavelo
