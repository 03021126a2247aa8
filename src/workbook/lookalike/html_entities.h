// The names that a page may use for characters.
#pragma once

#include <optional>
#include <string_view>

namespace tavelo {

// The character of one of the 252 names of HTML 4 or of "apos", without "&" and ";"; capitals matter. Nothing for
// another name.
[[nodiscard]] std::optional<char32_t> html_entity(std::string_view name);

} // namespace tavelo
