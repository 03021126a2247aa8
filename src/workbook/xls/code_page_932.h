// Japanese text of old workbooks: one or two bytes a character.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tavelo {

// U+FFFD for two bytes that are no character.
[[nodiscard]] std::u16string characters_of_932(std::string_view bytes);

} // namespace tavelo
