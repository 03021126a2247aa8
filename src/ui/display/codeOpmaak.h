// Composes the current combination for the public monitor: a heading band about the class and below it one line a
// field. The font follows the width of the area (600 twips a point at 100 %) and shrinks where the chosen lines would
// not fit.
#pragma once

#include "app/programma.h"
#include "ui/display/tekenvlak.h"

namespace tavelo {

// Clears and composes both areas of a window at their present size (of picDeelnemer; the band follows it). `nummer` is
// the number of the combination, `regel` its row in the grid (0 for none), `naam` the text of the row's name column.
// Never fails: what cannot be had is left out.
void toon_combinatie(Vertoning& venster, std::int16_t nummer, std::int32_t regel, std::string_view naam,
                     const Programma& programma, const TextMeasure& meter, const Clock& klok);

// Prints one line, aligned (0 left, 1 centre, 2 right) with half a blank as margin, smaller when it would be wider than
// 95 % of the area.
void druk_regel(Tekenvlak& vlak, std::string_view tekst, double punten, int uitlijning, const TextMeasure& meter);

// Prints lines separated by "\r\n" from the top of the area, each aligned by itself, all in one size.
void druk_rubriek(Tekenvlak& vlak, std::string_view tekst, int punten, int uitlijning, const TextMeasure& meter);

// Ring type, and below it class and category; "" for a class that has neither.
[[nodiscard]] std::string rubriek_kop(const Schedule& schedule);

} // namespace tavelo
