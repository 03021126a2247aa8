// The text in a file that says nothing, or little, about its character set.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>

namespace tavelo {

// UTF-8. A byte order mark decides (UTF-8, UTF-16 in either order) and is left out; then, in markup, the charset of a
// <meta> near the begin; then the bytes themselves: what is valid UTF-8 is UTF-8, and zeros at every second place are
// UTF-16. Everything else is Windows-1252, also when the file claims to be UTF-8. Nothing for bytes that are no text:
// with a control character that is no blank or line end.
[[nodiscard]] std::optional<std::string> decoded_text(std::span<const std::byte> bytes);

} // namespace tavelo
