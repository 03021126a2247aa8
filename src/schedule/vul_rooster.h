// Fills a grid with the start list of a rubriek.
#pragma once

#include "basis/grid.h"
#include "basis/seams.h"
#include "schedule/record/rubriek_labels.h"
#include "schedule/record/schedule.h"

#include <string_view>

namespace tavelo {

// What the readers of a schedule file fill, and whom they tell. Nothing is owned.
struct RoosterDoel {
    Grid& grid;
    Schedule& schedule;
    RubriekLabels& labels;
    MessageBox& berichten;
    SkipLog& logboek;
};

// Decodes the schedule's own rubriek into `huidige_rubriek` and writes a row for every entry of its start list, in the
// order of the record. An empty record leaves an empty grid, but the description and the titles as they were: it is
// meant so. What cannot be read is skipped and told once, in a message "Vul rooster error 1: ...".
void vul_rooster(const RoosterDoel& doel, std::string_view record);

} // namespace tavelo
