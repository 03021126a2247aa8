// Follows the schedule file while it is shown.
#pragma once

#include "schedule/herlees_rooster.h"
#include "ui/main/bediening.h"

#include <functional>

namespace tavelo {

inline constexpr int auto_import_interval_ms = 10000;

// One look at the open schedule file: re-reads it when its stamp is later than that of the last read. `toon_label`
// repaints the description label at once, when `herlezen_bezig` turns on and off.
void auto_import(Bediening& bediening, const std::function<void()>& toon_label,
                 WijzigingenLijst* wijzigingen = nullptr);

} // namespace tavelo
