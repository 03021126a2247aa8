// The texts of the main window's labels about the class that is shown, by the names of the labels. UTF-8.
#pragma once

#include <string>

namespace tavelo {

struct RubriekLabels {
    std::string lblRubriek;
    std::string lblRoosterOmschrijving;
    std::string lblRingType;
    std::string lblRingNaam = "Ring";
    std::string lblDagTijd;
    std::string lblRubriekLijsten;
    std::string lblJury;
};

} // namespace tavelo
