// Text as .xls files store it, turned into UTF-8.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tavelo {

constexpr unsigned western_code_page = 1252;

// BIFF8 stores the lower half of its characters in one byte each when none needs two. Excel shows those between 80 and
// 9F, which Unicode leaves to control characters, as those of code page 1252.
[[nodiscard]] char16_t character_of_byte(std::uint8_t byte);

// Half of a surrogate pair without the other half becomes U+FFFD.
[[nodiscard]] std::string utf8_of(std::u16string_view text);

// `code_page` is a Windows number (874, 932, 1250 to 1258), a DOS number (437, 850, 852, 866), 10000 for Macintosh
// Roman, or one of the two numbers that only workbooks use: 32768 (Macintosh Roman) and 32769 (1252). An unknown one
// counts as 1252.
[[nodiscard]] std::string utf8_of(std::string_view bytes, unsigned code_page);

} // namespace tavelo
