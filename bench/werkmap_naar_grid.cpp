// Fills a grid from the first sheet of a workbook and nothing else: what excel.py measures as a process. More than once
// tells what it takes without the start of the process.
//   werkmap_naar_grid BESTAND [KEREN]
#include "excel/builtin_excel.h"
#include "excel/codeExcel.h"
#include "fakes/seams.h"

#include <cstdlib>
#include <iostream>

int main(int aantal, char** woorden) {
    if (aantal < 2) return 2;
    tavelo::test::FakeMessages berichten;
    tavelo::test::FakePointer muisaanwijzer;
    const auto excel = tavelo::builtin_excel(tavelo::locale_named("nl-NL"));
    for (int keer = aantal > 2 ? std::atoi(woorden[2]) : 1; keer > 0; --keer) {
        tavelo::Grid grid;
        tavelo::lees_excel(woorden[1], 1, grid, *excel, berichten, muisaanwijzer);
    }
    for (const std::string& bericht : berichten.shown)
        std::cerr << bericht << '\n';
    return berichten.shown.empty() ? 0 : 1;
}
