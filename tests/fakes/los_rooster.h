// A schedule with its grid and nobody who listens: for benchmarks and fuzz targets, where recording would cost or grow.
#pragma once

#include "schedule/lees_rooster.h"
#include "vocabulary/rubriek_woorden.h"

#include <string_view>

namespace tavelo::test {

class SilentLog final : public SkipLog {
  public:
    void skipped(std::size_t, std::string_view, std::string_view) override {}
};

struct LosRooster {
    Grid grid;
    Grid grdImport;
    Schedule schedule;
    RubriekLabels labels;
    SilentMessages berichten;
    SilentLog logboek;

    [[nodiscard]] RoosterDoel doel() { return doel(grid); }
    [[nodiscard]] RoosterDoel doel(Grid& in) { return {in, schedule, labels, berichten, logboek}; }

    // The lines behind the first one of a schedule file, shown as when the file is opened.
    void lees(std::string_view regels) {
        lees_regels(regels, schedule, berichten, logboek);
        vul_rooster(doel(), schedule.rubriek_record);
        vul_rubriek_labels(schedule, labels);
        vul_nr_tijd(grid, schedule.huidige_rubriek, berichten);
    }
};

} // namespace tavelo::test
