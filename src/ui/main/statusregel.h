// The line at the foot of the main window: the truth about the public monitor and the list, in words. Only the operator
// sees it.
#pragma once

#include "ui/main/bediening.h"

#include <string>

namespace tavelo {

struct StatusDeel {
    std::string tekst;   // "" for nothing to say
    bool let_op = false; // shown in amber
};

struct Statusregel {
    StatusDeel monitor;           // what is on the wall and from which list
    StatusDeel venster;           // the participant window: closed, normal, full-screen or its monitor gone
    StatusDeel handleiding;       // for a while after it was asked for
    StatusDeel buiten_beeld;      // lines that fall outside the picture on the wall
    StatusDeel lijst;             // why a file was not read, or that the list differs from its file
    StatusDeel herlezen;          // when and what the last re-read changed
    bool biedt_heropenen = false; // reopening the slot's file brings list and file together
};
[[nodiscard]] Statusregel statusregel(const Bediening& bediening);

// What an empty grid says instead of rows; "" while there are rows.
[[nodiscard]] std::string tekst_in_leeg_rooster(const Programma& programma);

// Whether the number box holds something that is not in the list. Nothing but blanks and a picked row are no error.
[[nodiscard]] bool nummer_onbekend(const Programma& programma);

// The row from which the arrow keys of the grid step: the highlighted one, without one the row that is on the wall.
[[nodiscard]] int begin_van_pijltjes(const Bediening& bediening);

} // namespace tavelo
