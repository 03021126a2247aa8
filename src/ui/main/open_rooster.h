// Opening a schedule: the dialog, the two slots, and the choice between the suite's schedule file and an Excel
// workbook.
#pragma once

#include "ui/main/bediening.h"

namespace tavelo {

// Opens or reloads the schedule of a slot (0 or 1); an empty `bestand` asks the user. It is always the current file
// that is read, not `bestand`: a caller makes a file current first. It is meant so.
void open_rooster(Bediening& bediening, std::string_view bestand, int slot);

// Makes `pad` the current file and that of the slot, as when it is chosen in the dialog.
void kies_bestand(Bediening& bediening, std::string_view pad, int slot);
// Resets the view and reads the current file by the kind of the slot.
void laad_rooster(Bediening& bediening, int slot);

// A mouse button on a slot button: left reloads the slot's file, right asks for another.
enum class Muisknop { links, rechts, anders };
void klik_slot(Bediening& bediening, int slot, Muisknop knop);

} // namespace tavelo
