// The beginning and the end of a run. The windows are reached through a seam, so that the order of the steps stands
// here alone.
#pragma once

#include "app/programma.h"
#include "basis/seams.h"

#include <functional>

namespace tavelo {

// The main window as start-up and shut-down see it.
class Hoofdvenster {
  public:
    virtual ~Hoofdvenster() = default;
    // Loads and shows it; the splash comes and goes in here.
    virtual void laad() = 0;
    virtual void sluit_andere_vensters() = 0;
    virtual void muiswiel_unhook() = 0;
};

// Returns when the main window has been shown; from there the program runs on events. When it is ended while the splash
// is up the window never shows, and `programma.afgesloten` is set.
void Main(Programma& programma, const SettingsStore& opslag, const std::function<bool()>& bepaal_muiswiel,
          Hoofdvenster& venster);

// When the main window closes.
void sluit_af(Programma& programma, SettingsStore& opslag, Pointer& muisaanwijzer, Hoofdvenster& venster);

// Its last step, and all that can still be done when the display is gone: saves the settings, unless that was done.
// What was changed in a settings dialog that is still open counts as cancelled.
void bewaar_bij_afsluiten(Programma& programma, SettingsStore& opslag);

} // namespace tavelo
