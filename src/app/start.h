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

// Returns when the main window has been shown; from there the program runs on events.
void Main(Programma& programma, const SettingsStore& opslag, const std::function<bool()>& bepaal_muiswiel,
          Hoofdvenster& venster);

// When the main window closes.
void sluit_af(const Programma& programma, SettingsStore& opslag, Pointer& muisaanwijzer, Hoofdvenster& venster);

} // namespace tavelo
