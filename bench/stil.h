// Seams that do nothing, and a schedule with its grid on top of them.
#pragma once

#include "basis/seams.h"
#include "schedule/lees_rooster.h"

#include <string>

namespace tavelo {

class GeenBerichten : public MessageBox {
  public:
    void show(std::string_view) override {}
};
class GeenLogboek : public SkipLog {
  public:
    void skipped(std::size_t, std::string_view, std::string_view) override {}
};

struct LosRooster {
    Grid grid;
    Grid grdImport;
    Schedule schedule;
    RubriekLabels labels;
    GeenBerichten berichten;
    GeenLogboek logboek;

    [[nodiscard]] RoosterDoel doel() { return {grid, schedule, labels, berichten, logboek}; }
};

inline const std::string bench_data = TAVELO_BENCH_DATA "/";

} // namespace tavelo
