// The main window's grid as it stands before anything is read.
#pragma once

#include "ui/main/bediening.h"

namespace tavelo {

// Columns, title row and alignments, at the load of the main window.
void richt_grid_in(Grid& grid);

// The view reset before every load: empty schedule, column widths as designed (a width that the user dragged goes),
// only the title row left.
void wis_rooster(Bediening& bediening);

} // namespace tavelo
