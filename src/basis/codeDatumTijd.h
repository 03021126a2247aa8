// Date and time as text.
#pragma once

#include "basis/seams.h"

#include <string>
#include <string_view>

namespace tavelo {

// In `vorm` "yyyy", "mm", "dd", "hh", "nn" and "ss" stand for year, month, day, hours, minutes and seconds,
// zero-padded; "m" and "d" for month and day without padding. Anything else stands for itself.
[[nodiscard]] std::string datum_tijd_tekst(const LocalTime& tijd, std::string_view vorm);

// The modification time of a file in that form; "" when the file cannot be asked. In the form "yyyymmddhhnnss"
// comparing two texts orders the files in time.
[[nodiscard]] std::string bestand_tijdstempel(const FileStamp& stempels, std::string_view pad, std::string_view vorm);

inline constexpr std::string_view tijdstempel_vorm = "yyyymmddhhnnss";

} // namespace tavelo
