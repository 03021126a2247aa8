// What the program knows while it runs. One value, made by main (or a test) and passed by reference to who needs it.
#pragma once

#include "app/codeBepaalPaden.h"
#include "app/instellingen.h"
#include "basis/grid.h"
#include "basis/plain_file.h"
#include "schedule/lees_rooster.h"
#include "schedule/record/rubriek_labels.h"
#include "schedule/record/schedule.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace tavelo {

inline constexpr std::string_view programma_titel = "Vendalo 3.5 Tavelo";
inline constexpr std::string_view bijschrift_naamloos = "Vendalo 3.5 Tavelo - [naamloos]";

// A schedule file that the operator has at hand under one of the two slot buttons.
struct RoosterSlot {
    std::string bestand;     // full path, "" for none
    std::string tijdstempel; // "yyyymmddhhnnss", when it was chosen or last re-read
    std::string extensie;    // "rst", "xls" (for .xlsx as well) or ""
};

// Which list stands in the grid.
struct OpenLijst {
    int slot = 0;
    std::string bestand;   // "" before the first opening
    int lezing = 0;        // counts the openings, of whatever file
    bool wijkt_af = false; // its members or their order are not those of the file as it was re-read last
};

struct Programma {
    Instellingen instellingen;
    // While the settings dialog is open: what they go back to, whatever ends it but OK.
    std::optional<Instellingen> instellingen_bij_annuleren;
    Paden paden;
    bool muiswiel_aanwezig = false;

    Schedule schedule;
    RubriekLabels labels;
    std::string bijschrift{bijschrift_naamloos}; // caption of the main window
    bool herlezen_bezig = false;                 // a re-read is under way: the description label is green

    Grid grdRooster; // the start list
    Grid grdImport;  // the re-read start list, before it is merged
    Grid grdExcel;   // the copied worksheet

    std::array<RoosterSlot, 2> slots;
    std::int16_t rooster_slot = 0;
    std::string rooster_bestand;
    std::string rooster_tijdstempel;
    std::string rooster_extensie;
    // Of the bytes that were read of that file. Nothing when only its stamp is known; the kenmerk of no file when they
    // could not be read.
    std::optional<Bestandskenmerk> rooster_kenmerk;
    std::optional<GeenRooster> leesfout; // of the last read of that file

    OpenLijst lijst;

    // The number box and the current combination. The row is 0 for none.
    std::string txtINR;
    bool zoek_op_nummer = false;
    std::int16_t huidig_nummer = 0;
    std::int32_t huidige_regel = 0;
    std::string huidig_nr_tijd;
    std::string huidig_hnr;
    std::string huidig_naam;

    bool deelnemer_open = false;
    bool afgesloten = false; // the settings have been saved, once and for all
};

} // namespace tavelo
