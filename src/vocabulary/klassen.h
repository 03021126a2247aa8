// Classes and categories of the sport: the fixed lists and the headings made from them.
#pragma once

#include "schedule/record/schedule.h"

#include <string>
#include <string_view>
#include <vector>

namespace tavelo {

// The classes that a discipline knows, separated by single blanks; the complete list for "alle" or an unknown code.
// Jumping heights are in metres.
[[nodiscard]] std::string_view klassen_van_discipline(std::string_view code);

// The classes of a rubriek by its list mode ("rpkl"): 0 the list of the discipline, class by class, 1 the same as one
// group, 2 its own list ("rpklh"). At most 100 parts; any other mode has none.
[[nodiscard]] std::vector<std::string> klasse_lijst(const RubriekRecord& rubriek);

// "Klasse " and the classes, "Categorie " and the categories; "" when there are none. When the file says single sign-in
// they come from the selected entries of the list of classes.
[[nodiscard]] std::string klasse_kop(const RubriekRecord& rubriek, const Schedule& schedule);
[[nodiscard]] std::string categorie_kop(const RubriekRecord& rubriek, const Schedule& schedule);

// For driving the long names of the letters that occur in `filter`, joined by ", "; a letter without a name still adds
// its comma. For other disciplines the trimmed text.
[[nodiscard]] std::string categorie_namen(std::string_view tekst, std::int16_t ringtype, std::string_view filter);

// For driving the short name of the rubriek's single category letter; otherwise "".
[[nodiscard]] std::string_view korte_categorie(const RubriekRecord& rubriek);

} // namespace tavelo
