#include "workbook/xlsx/cell_text.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <utility>

namespace tavelo {

namespace {

constexpr std::size_t escape_length = 7; // _xHHHH_

std::optional<std::uint32_t> escaped_unit(std::string_view text) {
    if (text.size() < escape_length || text[0] != '_' || text[1] != 'x' || text[6] != '_') return std::nullopt;
    std::uint32_t unit = 0;
    const char* const end = text.data() + 6;
    const auto [stop, error] = std::from_chars(text.data() + 2, end, unit, 16);
    if (error != std::errc{} || stop != end) return std::nullopt;
    return unit;
}

bool is_high_half(std::uint32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool is_low_half(std::uint32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

void append_utf8(std::string& text, std::uint32_t character) {
    const auto add = [&text](std::uint32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    if (character < 0x80) {
        add(character);
    } else if (character < 0x800) {
        add(0xC0 | character >> 6);
        add(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
        add(0xE0 | character >> 12);
        add(0x80 | (character >> 6 & 0x3F));
        add(0x80 | (character & 0x3F));
    } else {
        add(0xF0 | character >> 18);
        add(0x80 | (character >> 12 & 0x3F));
        add(0x80 | (character >> 6 & 0x3F));
        add(0x80 | (character & 0x3F));
    }
}

} // namespace

std::string without_escapes(std::string_view text) {
    constexpr std::uint32_t replacement = 0xFFFD;
    if (!text.contains('_')) return std::string(text);
    std::string plain;
    plain.reserve(text.size());
    while (!text.empty()) {
        const auto unit = text.front() == '_' ? escaped_unit(text) : std::nullopt;
        if (!unit) {
            plain += text.front();
            text.remove_prefix(1);
            continue;
        }
        text.remove_prefix(escape_length);
        const auto next = is_high_half(*unit) ? escaped_unit(text) : std::nullopt;
        if (next && is_low_half(*next)) {
            append_utf8(plain, 0x10000 + ((*unit - 0xD800) << 10) + (*next - 0xDC00));
            text.remove_prefix(escape_length);
        } else {
            append_utf8(plain, is_high_half(*unit) || is_low_half(*unit) ? replacement : *unit);
        }
    }
    return plain;
}

void append_stored(std::string& text, std::string_view piece) {
    constexpr std::size_t most = escape_length * longest_text;
    text += piece.substr(0, most - std::min(most, text.size()));
}

void RichText::element_start(std::string_view name, const XmlAttributes& attributes) {
    if (name == "rPh") ++phonetic_depth_;
    if (name != "t" || phonetic_depth_ > 0) return;
    inside_run_ = true;
    preserve_ = attributes.find("space") == "preserve";
}

void RichText::element_end(std::string_view name) {
    if (name == "rPh" && phonetic_depth_ > 0) --phonetic_depth_;
    if (name != "t" || !inside_run_) return;
    if (joined_.size() <= longest_text_bytes)
        joined_ += without_escapes(preserve_ ? std::string_view(run_) : trim_xml_space(run_));
    run_.clear();
    inside_run_ = false;
}

void RichText::text(std::string_view piece) {
    if (inside_run_) append_stored(run_, piece);
}

std::string RichText::take() {
    inside_run_ = false;
    run_.clear();
    return std::exchange(joined_, {});
}

} // namespace tavelo
