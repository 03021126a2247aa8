// What the readers made of a schedule, and what the display makes of a combination, as one JSON object or
// as the list of what was left out.
#pragma once

#include "basis/seams.h"
#include "excel/automation.h"

#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace tavelo {

struct DumpVraag {
    std::string bestand;
    std::string daarna;                                            // re-read over `bestand`; "" for none
    std::vector<std::pair<std::string, std::string>> instellingen; // key and value
    std::optional<std::string> nummer;                             // typed into the number box
    double breedte = 19200;                                        // of the participant area, in twips
    double hoogte = 10800;
    bool log = false; // a line for everything that was left out and why, in place of the JSON
};

// Goes the way of the program: choose the file, load it, re-read it, type the number. False when a setting is unknown.
[[nodiscard]] bool dump_rooster(const DumpVraag& vraag, const TextMeasure& meter, ExcelApplication& excel,
                                std::ostream& uit);

} // namespace tavelo
