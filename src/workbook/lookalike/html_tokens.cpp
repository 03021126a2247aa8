#include "workbook/lookalike/html_tokens.h"

#include "basis/text.h"
#include "workbook/lookalike/html_entities.h"

#include <algorithm>
#include <charconv>

namespace tavelo {

namespace {

constexpr std::string_view space = " \t\r\n\f";

bool is_letter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool is_letter_or_digit(char c) { return is_letter(c) || (c >= '0' && c <= '9'); }

bool begins_markup(std::string_view text) {
    if (text.size() < 2 || text[0] != '<') return false;
    return is_letter(text[1]) || text[1] == '/' || text[1] == '!' || text[1] == '?';
}

// Small letters for ASCII only: names of elements and attributes have no others.
char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool equals_in_small_letters(std::string_view text, std::string_view lower_case) {
    return std::ranges::equal(text, lower_case, {}, lower);
}

char32_t character_of(std::uint32_t number) {
    constexpr char32_t replacement = 0xFFFD;
    if (number >= 0x80 && number < 0xA0) {
        const char byte = static_cast<char>(static_cast<unsigned char>(number));
        return code_points(from_windows_1252({&byte, 1})).front();
    }
    if (number == 0 || number > 0x10FFFF || (number >= 0xD800 && number < 0xE000)) return replacement;
    return number;
}

// Takes the reference that `text` begins with, "&" included; nothing when it is none.
std::optional<char32_t> take_numeric_reference(std::string_view& text) {
    const bool hexadecimal = text.size() > 2 && lower(text[2]) == 'x';
    const std::string_view digits = text.substr(hexadecimal ? 3 : 2);
    std::uint32_t number = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), number, hexadecimal ? 16 : 10);
    if (end == digits.data()) return std::nullopt;
    if (error != std::errc()) number = 0; // too large
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    if (text.starts_with(';')) text.remove_prefix(1);
    return character_of(number);
}

std::optional<char32_t> take_named_reference(std::string_view& text) {
    const auto end = std::find_if_not(text.begin() + 1, text.end(), is_letter_or_digit);
    const auto name = text.substr(1, static_cast<std::size_t>(end - text.begin()) - 1);
    const auto character = html_entity(name);
    if (!character) return std::nullopt;
    text.remove_prefix(name.size() + 1);
    if (text.starts_with(';')) text.remove_prefix(1);
    return character;
}

} // namespace

unsigned HtmlToken::number(std::string_view attribute) const {
    for (std::string_view rest = content; !rest.empty();) {
        rest.remove_prefix(std::min(rest.find_first_not_of(" \t\r\n\f/"), rest.size()));
        const auto key = rest.substr(0, rest.find_first_of(" \t\r\n\f/="));
        rest.remove_prefix(key.size());
        rest.remove_prefix(std::min(rest.find_first_not_of(space), rest.size()));
        std::string_view value;
        if (rest.starts_with('=')) {
            rest.remove_prefix(1);
            rest.remove_prefix(std::min(rest.find_first_not_of(space), rest.size()));
            const bool quoted = rest.starts_with('"') || rest.starts_with('\'');
            const std::string_view ends = quoted ? rest.substr(0, 1) : space;
            if (quoted) rest.remove_prefix(1);
            value = rest.substr(0, rest.find_first_of(ends));
            rest.remove_prefix(std::min(value.size() + (quoted ? 1 : 0), rest.size()));
        } else if (key.empty() && !rest.empty()) {
            rest.remove_prefix(1);
        }
        if (!equals_in_small_letters(key, attribute)) continue;
        value.remove_prefix(std::min(value.find_first_not_of(space), value.size()));
        unsigned number = 1;
        const auto error = std::from_chars(value.data(), value.data() + value.size(), number).ec;
        return error == std::errc() ? std::max(number, 1U) : 1;
    }
    return 1;
}

bool HtmlTokens::next(HtmlToken& token) {
    while (!rest_.empty()) {
        if (rest_.starts_with("<!--")) {
            skip_comment();
        } else if (rest_.starts_with("<!") || rest_.starts_with("<?")) {
            skip_behind(">");
        } else if (begins_markup(rest_)) {
            read_tag(token);
            return true;
        } else {
            token.kind = HtmlToken::Kind::text;
            std::size_t end = 1;
            while (end < rest_.size() && !begins_markup(rest_.substr(end)))
                end = std::min(rest_.find('<', end + (rest_[end] == '<' ? 1 : 0)), rest_.size());
            token.content = rest_.substr(0, end);
            rest_.remove_prefix(end);
            return true;
        }
    }
    return false;
}

void HtmlTokens::read_tag(HtmlToken& token) {
    const bool is_end = rest_[1] == '/';
    rest_.remove_prefix(is_end ? 2 : 1);
    const auto end = std::min(rest_.find_first_of(" \t\r\n\f/>"), rest_.size());
    token.kind = is_end ? HtmlToken::Kind::end_tag : HtmlToken::Kind::start_tag;
    token.name.resize(end);
    std::ranges::transform(rest_.substr(0, end), token.name.begin(), lower);
    rest_.remove_prefix(end);
    const std::size_t closed = end_of_attributes();
    token.content = rest_.substr(0, closed);
    rest_.remove_prefix(std::min(closed + 1, rest_.size()));
    if (!is_end && (token.name == "script" || token.name == "style")) skip_raw_text(token.name);
}

// The place of the ">" that ends the tag. Within the quotes of a value it ends nothing; a quote without its other half
// is a character like any other, or a typing error would swallow the page.
std::size_t HtmlTokens::end_of_attributes() {
    std::size_t place = 0;
    while (true) {
        place = rest_.find_first_of("=>", place);
        if (place == std::string_view::npos) return rest_.size();
        if (rest_[place] == '>') return place;
        place = std::min(rest_.find_first_not_of(space, place + 1), rest_.size());
        if (place == rest_.size()) return place;
        const char quote = rest_[place];
        if (quote != '"' && quote != '\'') continue;
        bool& none_left = quote == '"' ? no_double_quote_left_ : no_single_quote_left_;
        if (none_left) {
            ++place;
            continue;
        }
        const auto end = rest_.find(quote, place + 1);
        none_left = end == std::string_view::npos;
        place = none_left ? place + 1 : end + 1;
    }
}

void HtmlTokens::skip_comment() {
    rest_.remove_prefix(4);
    if (rest_.starts_with('>')) return rest_.remove_prefix(1); // "<!-->" is a whole comment
    skip_behind("-->");
}

void HtmlTokens::skip_behind(std::string_view end) {
    const auto found = rest_.find(end);
    rest_.remove_prefix(found == std::string_view::npos ? rest_.size() : found + end.size());
}

void HtmlTokens::skip_raw_text(std::string_view element) {
    for (auto place = rest_.find("</"); place != std::string_view::npos; place = rest_.find("</", place + 2)) {
        if (!equals_in_small_letters(rest_.substr(place + 2, element.size()), element)) continue;
        rest_.remove_prefix(place);
        return;
    }
    rest_ = {};
}

void append_resolved(std::string& out, std::string_view text) {
    while (!text.empty()) {
        const auto plain = std::min(text.find('&'), text.size());
        out += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty()) return;
        const auto character = text.starts_with("&#") ? take_numeric_reference(text) : take_named_reference(text);
        if (character) {
            append_utf8(out, *character);
        } else {
            out += '&';
            text.remove_prefix(1);
        }
    }
}

} // namespace tavelo
