// File names, and reading a file whole. Paths are UTF-8; "\" and "/" both separate folders on every system.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavelo {

// The text after the last "." of the last path element; "" when that element has no point. As written, not lower-cased.
[[nodiscard]] std::string bestand_extensie(std::string_view pad);

// The path trimmed, then the part after the last "/", "\" or ":", without its last "." and what follows it.
[[nodiscard]] std::string bestand_titel(std::string_view pad);

// The path trimmed, up to and including its last "\", "/" or ":"; "" when it has none.
[[nodiscard]] std::string bestand_map(std::string_view pad);

// Reads a whole file and closes it at once, without keeping another program from writing it. Nothing when it cannot be
// opened or is not a plain file. What another program takes away while it is read is missing at the end.
[[nodiscard]] std::optional<std::string> lees_bestand(std::string_view pad);
// The same, but only when the file begins with `begin`; a file of another kind is not read further: `begin_klopt` is
// false.
struct BestandInhoud {
    std::string bytes;
    bool begin_klopt = false;
};
[[nodiscard]] std::optional<BestandInhoud> lees_bestand_met_begin(std::string_view pad, std::string_view begin);

// True when `naam` is not "" and names a file that can be opened for reading.
[[nodiscard]] bool bestandbestaat(std::string_view naam);

} // namespace tavelo
