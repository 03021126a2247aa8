// A number as the decimal digits that a workbook shows: at most 15 significant digits, scaled and rounded half away
// from zero in decimal, not in binary (44.275 with two decimals is 44.28). Digits beyond the fifteenth are zeros.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace tavelo {

class Decimal {
  public:
    // The size of `value`; its sign is not kept. A value that is no finite number counts as 0.
    explicit Decimal(double value);

    [[nodiscard]] bool is_zero() const { return count_ == 0; }
    // The power of ten of the first digit: 2 for 123, -1 for 0.5; 0 for zero.
    [[nodiscard]] std::int64_t exponent() const { return is_zero() ? 0 : point_ - 1; }
    void scale(std::int64_t power_of_ten);
    // Rounds to that many decimals; a negative count rounds before the decimal point.
    void round(std::int64_t decimals);

    // Without leading zeros: empty for a number below 1.
    [[nodiscard]] std::string integer_digits() const;
    // How many decimals are needed to write the number exactly.
    [[nodiscard]] std::int64_t decimals() const;
    // The n-th digit behind the decimal point, the first is number 0.
    [[nodiscard]] char decimal_digit(std::int64_t n) const;

  private:
    void drop_trailing_zeros();

    // The number is 0.DIGITS times ten to the power of `point_`.
    std::array<char, 24> digits_{};
    std::int64_t count_ = 0;
    std::int64_t point_ = 0;
};

} // namespace tavelo
