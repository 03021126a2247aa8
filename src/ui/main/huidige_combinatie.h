// Which combination is in the ring: typed, picked in the grid, or stepped to. Numbers are compared with the "Inr"
// column by their numeric value; when several rows carry a number, the last one wins.
#pragma once

#include "ui/main/bediening.h"

namespace tavelo {

// Writes the text of the number box. An unchanged text does nothing.
void zet_txtINR(Bediening& bediening, std::string_view tekst);

// The operator typed and the box now holds `tekst`, maybe the text that it held: typed once more, a number is looked up
// in the schedule that is open by now.
void typ_txtINR(Bediening& bediening, std::string_view tekst);

// The user picked the grid's current row, with mouse or keys.
void kies_rij(Bediening& bediening);

enum class Blader { vorige, volgende, wis };
void blader(Bediening& bediening, Blader richting);

// Composes the current combination again, on the preview and, while it is open, on the participant window.
void toon_overal(Bediening& bediening);
void toon_voorbeeld(Bediening& bediening);
void toon_deelnemer_venster(Bediening& bediening);

} // namespace tavelo
