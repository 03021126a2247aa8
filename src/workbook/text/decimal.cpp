#include "workbook/text/decimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace tavelo {

namespace {

constexpr std::int64_t significant_digits = 15;

} // namespace

Decimal::Decimal(double value) {
    if (!std::isfinite(value) || value == 0) return;
    std::array<char, 40> written{};
    // The shortest form is exact enough when it is short; it also keeps the digits of the smallest numbers as they were
    // typed.
    auto end = std::to_chars(written.begin(), written.end(), std::fabs(value), std::chars_format::scientific).ptr;
    if (std::find(written.begin(), end, 'e') - written.begin() > significant_digits + 1)
        end = std::to_chars(written.begin(), written.end(), std::fabs(value), std::chars_format::scientific,
                            significant_digits - 1)
                  .ptr;
    const char* exponent = std::find(written.begin(), end, 'e');
    for (const char* at = written.begin(); at != exponent; ++at)
        if (*at != '.') digits_[static_cast<std::size_t>(count_++)] = *at;
    int power = 0;
    std::from_chars(exponent[1] == '+' ? exponent + 2 : exponent + 1, end, power);
    point_ = power + 1;
    drop_trailing_zeros();
}

void Decimal::scale(std::int64_t power_of_ten) {
    if (!is_zero()) point_ += power_of_ten;
}

void Decimal::round(std::int64_t decimals) {
    const std::int64_t kept = point_ + decimals;
    if (kept >= count_) return;
    if (kept < 0) {
        count_ = point_ = 0;
        return;
    }
    bool carry = digits_[static_cast<std::size_t>(kept)] >= '5';
    count_ = kept;
    for (auto at = kept; carry && at > 0; --at) {
        char& digit = digits_[static_cast<std::size_t>(at - 1)];
        carry = digit == '9';
        digit = carry ? '0' : static_cast<char>(digit + 1);
    }
    if (carry) {
        digits_[0] = '1';
        count_ = 1;
        ++point_;
    }
    drop_trailing_zeros();
}

std::string Decimal::integer_digits() const {
    if (is_zero() || point_ <= 0) return {};
    std::string digits(digits_.begin(), digits_.begin() + std::min(count_, point_));
    digits.resize(static_cast<std::size_t>(point_), '0');
    return digits;
}

std::int64_t Decimal::decimals() const { return std::max<std::int64_t>(count_ - point_, 0); }

char Decimal::decimal_digit(std::int64_t n) const {
    const std::int64_t at = point_ + n;
    return at >= 0 && at < count_ ? digits_[static_cast<std::size_t>(at)] : '0';
}

void Decimal::drop_trailing_zeros() {
    while (count_ > 0 && digits_[static_cast<std::size_t>(count_ - 1)] == '0')
        --count_;
    if (is_zero()) point_ = 0;
}

} // namespace tavelo
