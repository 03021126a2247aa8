// The wide characters of Windows and the UTF-8 of the program.
#pragma once

#include <string>
#include <string_view>

namespace tavelo {

// What is no text in the one becomes the replacement character in the other.
[[nodiscard]] std::wstring wide(std::string_view text);
[[nodiscard]] std::string narrow(std::wstring_view text);

} // namespace tavelo
