// The other words of a class ("rubriek"): ring types, weekdays, starting times, grouping of categories, and the labels
// of the main window that are made from them.
#pragma once

#include "basis/grid.h"
#include "basis/seams.h"
#include "schedule/record/rubriek_labels.h"
#include "schedule/record/schedule.h"

#include <expected>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavelo {

// "" for a ring type outside 0 to 18.
[[nodiscard]] std::string_view ringtype_naam(const RubriekRecord& rubriek);

// 0 is Monday; "onbekend" outside 0 to 6.
[[nodiscard]] std::string_view weekdag_naam(std::int16_t dag);

// Minutes since midnight, rounded half up, as "hh:mm" within the day; exactly 0 gives "", so midnight is never shown:
// it is meant so. The error is the text of a message, for a time beyond 32 bits.
[[nodiscard]] std::expected<std::string, std::string> minuten_naar_hhmm(double minuten);

// "zaterdag 9:05 uur"; "" without a day.
[[nodiscard]] std::string dag_tijd_tekst(const RubriekRecord& rubriek);

// Ring type, class and category, joined by ", ".
[[nodiscard]] std::string rubriek_regel(const RubriekRecord& rubriek, const Schedule& schedule);

// The groups of category letters that are ranked together, by the grouping mode ("rhcapu"); every letter that the
// pattern does not name is a group of its own.
[[nodiscard]] std::vector<std::string> categorie_groepen(const RubriekRecord& rubriek);

// The class list and the category groups, joined by ", ".
[[nodiscard]] std::string rubriek_lijsten(const RubriekRecord& rubriek);

// Clears the current rubriek (list mode 1, judges at C, H, M, E and B) and the labels about it, and leaves the grid its
// title row. The description of the schedule stays.
void rubriek_leeg(Grid& grid, Schedule& schedule, RubriekLabels& labels);

// Fills the labels about the rubriek after a schedule file was read; the description is not among them.
void vul_rubriek_labels(const Schedule& schedule, RubriekLabels& labels);

// Writes the "nr.--tijd" column of every row: start numbers and starting times from the rubriek's first number, start
// time and minutes per combination, held up by pauses. Ends with the current cell on row 1, column 3.
void vul_nr_tijd(Grid& grid, const RubriekRecord& rubriek, MessageBox& berichten);

} // namespace tavelo
