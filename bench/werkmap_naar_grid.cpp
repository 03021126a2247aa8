// Fills the grid from the first sheet of a workbook, once, and nothing else: what excel.py measures as a process.
//   werkmap_naar_grid BESTAND
#include "excel/builtin_excel.h"
#include "excel/codeExcel.h"
#include "fakes/seams.h"

#include <iostream>

int main(int aantal, char** woorden) {
    if (aantal != 2) return 2;
    tavelo::Grid grid;
    tavelo::test::FakeMessages berichten;
    tavelo::test::FakePointer muisaanwijzer;
    const auto excel = tavelo::builtin_excel(tavelo::locale_named("nl-NL"));
    tavelo::lees_excel(woorden[1], 1, grid, *excel, berichten, muisaanwijzer);
    for (const std::string& bericht : berichten.shown)
        std::cerr << bericht << '\n';
    return berichten.shown.empty() ? 0 : 1;
}
