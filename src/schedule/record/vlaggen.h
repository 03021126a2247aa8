// How a combination takes part in a rubriek: result only, hors concours, selection, impulse. The flags stand in the
// combination's record, one set for each group of disciplines; a flag is set by exactly "1".
#pragma once

#include "schedule/record/items.h"

#include <string_view>

namespace tavelo {

// The keys of a group of disciplines in a combination's record; "" for no discipline.
struct DisciplineSleutels {
    std::string_view klasse;
    std::string_view handicap;
    std::string_view coupe;
    std::string_view resultaat;
    std::string_view selectie;
    std::string_view impuls;
};
[[nodiscard]] const DisciplineSleutels& sleutels_van(std::int16_t ringtype);

// " (res)", " (Sel)" and " (impuls)", or "".
[[nodiscard]] std::string_view resultaat_tekst(std::int16_t ringtype, const RecordItems& combinatie);
[[nodiscard]] std::string_view selectie_tekst(std::int16_t ringtype, const RecordItems& combinatie);
[[nodiscard]] std::string_view impuls_tekst(std::int16_t ringtype, const RecordItems& combinatie);

// Hors concours behind the name: " (HC)" or "". The combination's list "rhc" overrules the flag for single classes,
// with their identifier followed by "(1)" or "(2)"; the last element for `rid` wins.
[[nodiscard]] std::string_view handicap_tekst(std::string_view rid, std::int16_t ringtype,
                                              const RecordItems& combinatie);
// In its own column: "HC" for the discipline, "(HC)" or "()" when set or cleared for this class alone. Meant to differ.
[[nodiscard]] std::string_view handicap_kolom(std::string_view rid, std::int16_t ringtype,
                                              const RecordItems& combinatie);

} // namespace tavelo
