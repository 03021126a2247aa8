// What the rules of the main window work on: the program's value, the seams to the platform and the two compositions.
// A window forwards an event to one of the rules beside this file and shows the result.
#pragma once

#include "app/programma.h"
#include "basis/seams.h"
#include "ui/display/schermkeuze.h"
#include "ui/display/tekenvlak.h"
#include "ui/main/dagverslag.h"
#include "ui/main/op_monitor.h"

namespace tavelo {

class ExcelApplication;

// Not owned; all outlive the windows.
struct Omgeving {
    const TextMeasure& meter;
    MessageBox& berichten;
    OpenDialog& open_dialoog;
    const FileStamp& tijdstempels;
    const Clock& klok;
    Pointer& muisaanwijzer;
    SkipLog& logboek;
    ExcelApplication& excel;
};

// What came of asking for the manual; said for a while.
enum class Handleiding { niet_gevraagd, gaat_open, ontbreekt, geen_browser };

struct Bediening {
    Programma& programma;
    Omgeving omgeving;
    Vertoning voorbeeld;         // preview on the main window
    Vertoning deelnemer_venster; // the participant window, while it is open

    // For the operator alone; none of it reaches a display.
    OpMonitor op_monitor = OpMonitor(); // with {} g++ 12 warns, without ground, that it is not initialized
    Monitorvenster monitorvenster = Monitorvenster::gewoon; // while the participant window is open
    Dagverslag dagverslag{};
    Handleiding handleiding = Handleiding::niet_gevraagd;
};

} // namespace tavelo
