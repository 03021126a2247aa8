// File names, and reading a file whole. Paths are UTF-8; "\" and "/" both separate folders on every system.
#pragma once

#include "basis/plain_file.h"

#include <cstdint>
#include <expected>
#include <string>
#include <string_view>

namespace tavelo {

// The text after the last "." of the last path element; "" when that element has no point. As written, not lower-cased.
[[nodiscard]] std::string bestand_extensie(std::string_view pad);

// The path trimmed, then the part after the last "/", "\" or ":", without its last "." and what follows it.
[[nodiscard]] std::string bestand_titel(std::string_view pad);

// The path trimmed, up to and including its last "\", "/" or ":"; "" when it has none.
[[nodiscard]] std::string bestand_map(std::string_view pad);

enum class Leesfout {
    niet_te_openen, // or no plain file
    mislukt,        // a read failed before the end
    te_groot,
};

// Reads a whole file and closes it at once, without keeping another program from writing it. A file of more than
// `hoogstens` bytes is refused by its size; one that grows beyond it while it is read as well. A read that does not
// reach the end of the file is no read: what was read is thrown away. What another program cuts off meanwhile is
// missing at the end.
[[nodiscard]] std::expected<std::string, Leesfout> lees_bestand(std::string_view pad, std::uint64_t hoogstens);
// The same, but only when the file begins with `begin`; a file of another kind is not read further: `begin_klopt` is
// false.
struct BestandInhoud {
    std::string bytes;
    bool begin_klopt = false;
    Bestandskenmerk kenmerk; // before the first byte was read: of what is written meanwhile it cannot be
};
[[nodiscard]] std::expected<BestandInhoud, Leesfout>
lees_bestand_met_begin(std::string_view pad, std::string_view begin, std::uint64_t hoogstens);

// True when `naam` is not "" and names a file that can be opened for reading.
[[nodiscard]] bool bestandbestaat(std::string_view naam);

} // namespace tavelo
