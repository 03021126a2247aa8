// The load of the main window, step by step.
#pragma once

#include "ui/main/bediening.h"

#include <string_view>

namespace tavelo {

// What the load asks of the window itself.
class TaveloVenster {
  public:
    virtual ~TaveloVenster() = default;
    virtual void bouw_menu() = 0;
    virtual void toon_intro() = 0; // returns when the splash has closed
    virtual void muiswiel_hook() = 0;
    virtual void toon_venster() = 0;
};

// `programma_map` is the folder of the running program.
void laad_tavelo(Bediening& bediening, TaveloVenster& venster, std::string_view programma_map,
                 const SettingsStore& opslag, const SpecialFolders& mappen);

} // namespace tavelo
