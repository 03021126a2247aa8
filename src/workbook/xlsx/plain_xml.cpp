#include "workbook/xlsx/plain_xml.h"

#include "basis/text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tavelo {

namespace {

constexpr std::size_t most_attributes = 30; // each is compared with all others of its tag

// What a byte may stand in.
constexpr unsigned in_name = 1;
constexpr unsigned begins_name = 2;
constexpr unsigned in_value = 4;
constexpr unsigned in_text = 8;
constexpr unsigned blank = 16;
constexpr unsigned high = 32;

constexpr bool is_letter(unsigned byte) { return (byte >= 'A' && byte <= 'Z') || (byte >= 'a' && byte <= 'z'); }

constexpr std::array<std::uint8_t, 256> classes = [] {
    std::array<std::uint8_t, 256> all{};
    for (unsigned byte = 0; byte < all.size(); ++byte) {
        unsigned of = 0;
        if (is_letter(byte) || byte == '_' || byte == ':') of |= in_name | begins_name;
        if ((byte >= '0' && byte <= '9') || byte == '-' || byte == '.') of |= in_name;
        if (byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r') of |= blank;
        const bool is_shown = byte >= 0x20 && byte != 0x7F && byte != '<' && byte != '&';
        if (is_shown && byte != '"' && byte != '\'') of |= in_value;
        if ((is_shown && byte != '>') || byte == '\t' || byte == '\n') of |= in_text; // without > there is no ]]>
        if (byte >= 0x80) of |= high;
        all[byte] = static_cast<std::uint8_t>(of);
    }
    return all;
}();

unsigned class_of(char byte) { return classes[static_cast<unsigned char>(byte)]; }

// For what has high bytes: it is UTF-8, and has none of the two code points that XML excludes.
bool is_plain_text(std::string_view text) {
    return is_utf8(text) && !text.contains("\xEF\xBF\xBE") && !text.contains("\xEF\xBF\xBF");
}

constexpr std::array<std::pair<std::string_view, std::string_view>, 5> entities{
    {{"&amp;", "&"}, {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&apos;", "'"}}};
constexpr std::size_t longest_entity = 6;

bool take_from(std::string_view& text, std::string_view expected) {
    if (!text.starts_with(expected)) return false;
    text.remove_prefix(expected.size());
    return true;
}

} // namespace

// Inlined, because nearly all of the bytes pass here, a few at a time.
[[gnu::always_inline]] inline std::string_view PlainXml::take_all(unsigned bytes_of_class) {
    const std::size_t begin = at_;
    std::size_t end = begin;
    unsigned seen = 0;
    for (; end < bytes_.size(); ++end) {
        const unsigned byte = class_of(bytes_[end]);
        if ((byte & bytes_of_class) == 0) break;
        seen |= byte;
    }
    at_ = end;
    has_high_bytes_ = (seen & high) != 0;
    return bytes_.substr(begin, end - begin);
}

[[gnu::always_inline]] inline bool PlainXml::take(char expected) {
    if (at_ == bytes_.size() || bytes_[at_] != expected) return false;
    ++at_;
    return true;
}

XmlToken PlainXml::next() {
    const XmlToken met = token();
    const bool taken = met.kind != XmlToken::Kind::partial && met.kind != XmlToken::Kind::unusual;
    if (taken) token_begin_ = at_;
    at_ = token_begin_;
    return met;
}

XmlToken PlainXml::token() {
    if (take('<')) return take('/') ? end_tag() : start_tag();
    return at_ < bytes_.size() && bytes_[at_] == '&' ? entity() : text();
}

XmlToken PlainXml::start_tag() {
    attributes_.clear();
    const std::string_view name = take_name();
    if (name.empty()) return not_met();
    for (;;) {
        const bool separated = !take_all(blank).empty();
        if (take('>')) return {XmlToken::Kind::start_tag, name};
        if (take('/')) return take('>') ? XmlToken{XmlToken::Kind::empty_tag, name} : not_met();
        if (!separated || !read_attribute()) return not_met();
        if (attributes_.size() > most_attributes) return {XmlToken::Kind::unusual};
    }
}

bool PlainXml::read_attribute() {
    const std::string_view name = take_name();
    if (name.empty() || !take('=')) return false;
    const char quote = take('"') ? '"' : '\'';
    if (quote != '"' && !take('\'')) return false;
    const std::string_view value = take_all(in_value);
    if (has_high_bytes_ && !is_plain_text(value)) return false;
    const bool is_new = std::ranges::find(attributes_, name, &XmlAttribute::name) == attributes_.end();
    attributes_.push_back({name, value});
    return take(quote) && is_new;
}

XmlToken PlainXml::end_tag() {
    const std::string_view name = take_name();
    static_cast<void>(take_all(blank));
    if (name.empty() || !take('>')) return not_met();
    return {XmlToken::Kind::end_tag, name};
}

XmlToken PlainXml::text() {
    const std::string_view text = take_all(in_text);
    const bool whole = at_ < bytes_.size() && (bytes_[at_] == '<' || bytes_[at_] == '&');
    if (!whole) return not_met();
    if (has_high_bytes_ && !is_plain_text(text)) return {XmlToken::Kind::unusual};
    return {XmlToken::Kind::text, text};
}

XmlToken PlainXml::entity() {
    const std::string_view rest = bytes_.substr(at_);
    for (const auto& [written, meant] : entities) {
        if (!rest.starts_with(written)) continue;
        at_ += written.size();
        return {XmlToken::Kind::text, meant};
    }
    return {rest.size() < longest_entity ? XmlToken::Kind::partial : XmlToken::Kind::unusual};
}

// What was expected is not there: because the bytes end, or because something else is.
XmlToken PlainXml::not_met() const {
    return {at_ == bytes_.size() ? XmlToken::Kind::partial : XmlToken::Kind::unusual};
}

std::string_view PlainXml::take_name() {
    if (at_ == bytes_.size() || (class_of(bytes_[at_]) & begins_name) == 0) return {};
    return take_all(in_name);
}

std::optional<std::size_t> plain_prolog(std::string_view bytes) {
    std::string_view rest = bytes;
    static_cast<void>(take_from(rest, "\xEF\xBB\xBF"));
    if (take_from(rest, R"(<?xml version="1.0")")) {
        static_cast<void>(take_from(rest, R"( encoding="UTF-8")") || take_from(rest, R"( encoding="utf-8")"));
        static_cast<void>(take_from(rest, R"( standalone="yes")") || take_from(rest, R"( standalone="no")"));
        static_cast<void>(take_from(rest, " "));
        if (!take_from(rest, "?>")) return std::nullopt;
    }
    while (!rest.empty() && (class_of(rest.front()) & blank) != 0)
        rest.remove_prefix(1);
    constexpr std::string_view utf_16("<\0", 2); // told by its first two bytes
    if (!rest.starts_with('<') || rest.starts_with("<?") || rest.starts_with(utf_16)) return std::nullopt;
    return bytes.size() - rest.size();
}

} // namespace tavelo
