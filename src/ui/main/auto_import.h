// Follows the schedule file while it is shown.
#pragma once

#include "schedule/herlees_rooster.h"
#include "ui/main/bediening.h"

#include <expected>
#include <functional>
#include <string>

namespace tavelo {

inline constexpr int auto_import_interval_ms = 10000;

// One look at the open schedule file: re-reads it when its stamp is later than that of the last read. `toon_label`
// repaints the description label at once, when `herlezen_bezig` turns on and off.
// Looks, reads and merges before it returns: a share that answers slowly holds it up.
void auto_import(Bediening& bediening, const std::function<void()>& toon_label,
                 WijzigingenLijst* wijzigingen = nullptr);

// Whether there is an open file that takes part.
[[nodiscard]] bool wordt_gevolgd(const Programma& programma);
// The same for a newer file whose bytes were read before; `stempel` is its stamp from before that read.
void verwerk_herlezing(Bediening& bediening, const std::string& stempel,
                       const std::expected<Roosterbestand, GeenRooster>& lezing,
                       const std::function<void()>& toon_label, WijzigingenLijst* wijzigingen = nullptr);

} // namespace tavelo
