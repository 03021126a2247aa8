// Texts: UTF-8 everywhere in the kern. "Blank" is the space alone (U+0020), never a tab. Upper and lower case fold the
// letters of Windows-1252 one to one (é/É, ÿ/Ÿ, š/Š), whatever the locale of the computer; ß stays.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tavelo {

// The text without its leading and trailing blanks, as a view on `text`.
[[nodiscard]] std::string_view trimmed(std::string_view text);
[[nodiscard]] std::string lower_case(std::string_view text);
[[nodiscard]] std::string upper_case(std::string_view text);
// An empty `from` changes nothing. Replaced text is not searched again.
[[nodiscard]] std::string replaced(std::string_view text, std::string_view from, std::string_view to);
[[nodiscard]] std::string removed(std::string_view text, std::string_view part);
// Views on `text`; a text without the separator gives one part, an empty text one empty part.
[[nodiscard]] std::vector<std::string_view> split(std::string_view text, std::string_view separator);
// Takes the part before the next separator off the front of `rest`; nothing once the last part is taken. Walks a text
// of any size without building a list. Start with `std::optional rest = text`.
[[nodiscard]] std::optional<std::string_view> take_part(std::optional<std::string_view>& rest, char separator);
[[nodiscard]] std::string join(std::span<const std::string> parts, std::string_view separator);
// The last `count` bytes; used for texts of digits.
[[nodiscard]] std::string_view last(std::string_view text, std::size_t count);

// Decodes Windows-1252. The five bytes without a character become the control character of the same code.
[[nodiscard]] std::string from_windows_1252(std::string_view bytes);

// The code points of a UTF-8 text; a byte that is not UTF-8 gives U+FFFD.
[[nodiscard]] std::u32string code_points(std::string_view text);
void append_utf8(std::string& text, char32_t code_point);

} // namespace tavelo
