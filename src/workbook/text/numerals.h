// Chinese numerals, for format codes with [DBNum1] or [DBNum2] and a Chinese language tag.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tavelo {

enum class Numerals : std::uint8_t { western, chinese, chinese_formal };

enum class NumeralStyle : std::uint8_t {
    spelled,  // 12 is one-ten-two, as General has it
    calendar, // 12 is ten-two, and a year goes digit by digit
    digits,   // every digit by itself
};

// `text` with its digits in these numerals; all other characters stay. Unchanged for western numerals.
[[nodiscard]] std::string with_numerals(std::string_view text, Numerals numerals, NumeralStyle style);

} // namespace tavelo
