// Numbers in user data. One reader gives the leading number of a text, one conversion rounds it half to even and
// answers whether it fits; nothing else in the program reads a number from a file, a setting or an input box.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tavelo {

// The longest leading part that forms a number: leading blanks are skipped, then sign, digits, decimal point, exponent
// ("1e3" is 1000). "&H" and "&O" in either case introduce an unsigned hexadecimal or octal integer; a sign before them
// gives nothing. A blank inside ends the number; a leading tab or a text without a number gives nothing.
[[nodiscard]] std::optional<double> number_in(std::string_view text);

// A text of one to four digits and nothing else, as nearly every number of a file is; nothing for any other.
[[nodiscard]] inline std::optional<int> short_whole_number(std::string_view text) {
    if (constexpr std::size_t most = 4; text.empty() || text.size() > most) return std::nullopt;
    int whole = 0;
    for (const char c : text)
        whole = c >= '0' && c <= '9' && whole >= 0 ? whole * 10 + (c - '0') : -1;
    return whole >= 0 ? std::optional(whole) : std::nullopt;
}

// The number in a text, 0 when there is none.
[[nodiscard]] inline double leading_number(std::string_view text) {
    if (const std::optional<int> whole = short_whole_number(text)) return *whole;
    return number_in(text).value_or(0);
}

// To the nearest integer, halves to the even neighbour.
[[nodiscard]] double round_half_even(double value);

// Rounded half to even; nothing when the result does not fit the type.
[[nodiscard]] std::optional<std::int16_t> to_int16(double value);
[[nodiscard]] std::optional<std::int32_t> to_int32(double value);

// Inline, because an optional of two bytes that comes from a call is waited for longer than reading its digits takes.
[[nodiscard]] inline std::optional<std::int16_t> int16_of(std::string_view text) {
    if (const std::optional<int> whole = short_whole_number(text)) return static_cast<std::int16_t>(*whole);
    return to_int16(leading_number(text));
}
[[nodiscard]] inline std::optional<std::int32_t> int32_of(std::string_view text) {
    return to_int32(leading_number(text));
}

// A number as plain decimal text: no exponent up to 15 digits, a decimal point, no trailing zeros.
[[nodiscard]] std::string number_text(double value);

} // namespace tavelo
