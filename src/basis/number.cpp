#include "basis/number.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>

namespace tavelo {

namespace {

bool is_digit(char c) { return c >= '0' && c <= '9'; }

// Digits of a base, nothing when there are none; those of a number too large for a double end in infinity, which fits
// no field.
std::optional<double> unsigned_in_base(std::string_view digits, int base) {
    std::optional<double> value;
    for (const char c : digits) {
        int digit = base;
        if (is_digit(c)) digit = c - '0';
        if (c >= 'a' && c <= 'f') digit = c - 'a' + 10;
        if (c >= 'A' && c <= 'F') digit = c - 'A' + 10;
        if (digit >= base) break;
        value = value.value_or(0) * base + digit;
    }
    return value;
}

// Length of the leading decimal number (without sign) in `text`; 0 when there is none.
std::size_t decimal_length(std::string_view text) {
    std::size_t at = 0;
    std::size_t digits = 0;
    const auto skip_digits = [&] {
        while (at < text.size() && is_digit(text[at])) {
            ++at;
            ++digits;
        }
    };
    skip_digits();
    if (at < text.size() && text[at] == '.') {
        ++at;
        skip_digits();
    }
    if (digits == 0) return 0;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        std::size_t exponent = at + 1;
        if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
        if (exponent < text.size() && is_digit(text[exponent])) {
            at = exponent;
            while (at < text.size() && is_digit(text[at]))
                ++at;
        }
    }
    return at;
}

// The value of a number that a double cannot hold: too small is zero, too large infinity, which fits no field. The
// place of the first digit that counts decides together with the exponent; either may be of any length.
double beyond_range(std::string_view number) {
    const std::size_t mantissa = std::min(number.find_first_of("eE"), number.size());
    const std::string_view digits = number.substr(0, mantissa);
    const auto point = static_cast<std::ptrdiff_t>(std::min(digits.find('.'), digits.size()));
    const auto first = static_cast<std::ptrdiff_t>(digits.find_first_of("123456789"));
    std::ptrdiff_t exponent = 0;
    if (mantissa < number.size()) {
        std::string_view written = number.substr(mantissa + 1);
        if (written.starts_with('+')) written.remove_prefix(1);
        const auto result = std::from_chars(written.data(), written.data() + written.size(), exponent);
        if (result.ec == std::errc::result_out_of_range) {
            constexpr std::ptrdiff_t beyond_any_text = std::numeric_limits<std::ptrdiff_t>::max() / 2;
            exponent = written.starts_with('-') ? -beyond_any_text : beyond_any_text;
        }
    }
    return exponent < first - point ? 0 : std::numeric_limits<double>::infinity();
}

template <class Integer>
std::optional<Integer> fitted(double value) {
    const double rounded = round_half_even(value);
    // Written so that a NaN fails it as well.
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max()))
        return std::nullopt;
    return static_cast<Integer>(rounded);
}

} // namespace

std::optional<double> number_in(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return std::nullopt;
    text.remove_prefix(first);
    if (text.size() >= 2 && text[0] == '&') {
        if (text[1] == 'H' || text[1] == 'h') return unsigned_in_base(text.substr(2), 16);
        if (text[1] == 'O' || text[1] == 'o') return unsigned_in_base(text.substr(2), 8);
        return std::nullopt;
    }
    const bool negative = text[0] == '-';
    if (negative || text[0] == '+') text.remove_prefix(1);
    text = text.substr(0, decimal_length(text));
    if (text.empty()) return std::nullopt;
    if (constexpr std::size_t always_fits = 9; text.size() <= always_fits && std::ranges::all_of(text, is_digit)) {
        int whole = 0;
        for (const char c : text)
            whole = whole * 10 + (c - '0');
        return negative ? -whole : whole;
    }
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) value = beyond_range(text); // from_chars left it alone
    return negative ? -value : value;
}

// The default rounding mode of the computer is the one that is wanted; nothing in the program changes it.
double round_half_even(double value) { return std::nearbyint(value); }

std::optional<std::int16_t> to_int16(double value) { return fitted<std::int16_t>(value); }
std::optional<std::int32_t> to_int32(double value) { return fitted<std::int32_t>(value); }

std::string number_text(double value) {
    std::array<char, 400> buffer{};
    const bool plain = std::abs(value) < 1e15;
    const auto result =
        plain ? std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed)
              : std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    const std::string text(buffer.data(), result.ptr);
    return text == "-0" ? "0" : text;
}

} // namespace tavelo
