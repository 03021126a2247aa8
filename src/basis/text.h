// Texts: UTF-8 everywhere in the kern. "Blank" is the space alone (U+0020), never a tab. Upper and lower case fold the
// letters of Windows-1252 one to one (é/É, ÿ/Ÿ, š/Š), whatever the locale of the computer; ß stays.
#pragma once

#include "basis/byte_mask.h"

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
[[nodiscard]] std::string join(std::span<const std::string> parts, std::string_view separator);
// Walks the same parts one by one, for a text of any size.
class Parts {
  public:
    Parts(std::string_view text, char separator) : text_(text), separators_(text, EqualTo{separator}) {}

    // The next part; nothing behind the last one.
    std::optional<std::string_view> next() {
        if (begin_ > text_.size()) return std::nullopt;
        const std::size_t end = separators_.next();
        const std::string_view part = text_.substr(begin_, end - begin_);
        begin_ = end + 1;
        return part;
    }

  private:
    std::string_view text_;
    Places<EqualTo> separators_;
    std::size_t begin_ = 0; // of the next part; beyond the end behind the last one
};

// The last `count` characters.
[[nodiscard]] std::string_view last(std::string_view text, std::size_t count);

// Decodes Windows-1252. The five bytes without a character become the control character of the same code.
[[nodiscard]] std::string from_windows_1252(std::string_view bytes);
// The same into a text whose room is used again, for many texts in a row.
void from_windows_1252(std::string_view bytes, std::string& text);
// The same as a view: on `bytes` when they are ASCII, which stays as it is, else on `room`.
[[nodiscard]] std::string_view view_of_windows_1252(std::string_view bytes, std::string& room);

// The code points of a UTF-8 text; a byte that is not UTF-8 gives U+FFFD.
[[nodiscard]] std::u32string code_points(std::string_view text);
void append_utf8(std::string& text, char32_t code_point);
// As strict as the standard: no overlong form, no half of a surrogate pair, nothing beyond U+10FFFF.
[[nodiscard]] bool is_utf8(std::string_view text);

} // namespace tavelo
