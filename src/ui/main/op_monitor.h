// What stands on the public monitor, kept for the operator: noted whenever it is composed and held against the list
// that is open by now. It reads the list and the current values and changes neither.
#pragma once

#include "app/programma.h"
#include "basis/seams.h"
#include "ui/display/tekenvlak.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tavelo {

// A composition as it was made. While the participant window is closed: that of the preview.
struct OpMonitor {
    bool combinatie = false; // something was shown besides the heading
    std::int16_t nummer = 0; // 0 for a pause
    std::string naam;        // of the rider, or the text of a pause
    std::int32_t regel = 0;  // its row then, 0 for none
    std::string naam_in_rij; // what stood in that row
    int slot = 0;            // of the list it was taken from, and its file
    std::string bestand;
    int lezing = 0;
    bool in_bestand = false; // the file had a record of it
    std::string gegevens;    // its row and its record, to be compared

    bool operator==(const OpMonitor&) const = default;
};

// To be called right after a composition of the current combination.
[[nodiscard]] OpMonitor op_monitor_nu(const Programma& programma, const Clock& klok);

// The row of that combination in the grid, found again by its number: the row where it stood when it still stands
// there, else the last one that bears the number; a pause is found by its text. Nothing when it is not in the list that
// is open.
[[nodiscard]] std::optional<int> rij_op_monitor(const OpMonitor& op_monitor, const Programma& programma);

// Why what was composed is no longer what the list says.
enum class Verouderd : std::uint8_t { nee, andere_lijst, heropend, gewijzigd, verdwenen };
[[nodiscard]] Verouderd verouderd(const OpMonitor& op_monitor, const Programma& programma);

// How many lines of a composition are cut off by the edges of their area, or lie beyond them.
[[nodiscard]] int regels_buiten_beeld(const Vertoning& vertoning, const TextMeasure& meter);

} // namespace tavelo
