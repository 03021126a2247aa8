// Why the open schedule file could not be read, for the status line and the helpdesk.
#pragma once

#include "ui/main/bediening.h"

#include <optional>

namespace tavelo {

// Keeps the outcome of a read of the current file in the program's value; nothing when it succeeded. A failure goes to
// the log, but not again as long as it is the same one: the poll meets it every ten seconds.
void noteer_lezing(Bediening& bediening, std::optional<GeenRooster> fout);

// "lezen is mislukt", to follow the name of the file.
[[nodiscard]] std::string_view leesfout_tekst(GeenRooster fout);

} // namespace tavelo
