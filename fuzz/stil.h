// What the targets on schedule files share: seams that answer without a platform, and a schedule with its grid.
#pragma once

#include "basis/seams.h"
#include "schedule/lees_rooster.h"
#include "vocabulary/rubriek_woorden.h"

#include <cstdlib>
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
class VasteKlok : public Clock {
  public:
    [[nodiscard]] LocalTime now() const override { return {.year = 2026, .month = 6, .day = 20}; }
};
// Every byte half as wide as it is high.
class VasteMaat : public TextMeasure {
  public:
    [[nodiscard]] double width(std::string_view, double points, std::string_view text) const override {
        return 10 * points * static_cast<double>(text.size());
    }
    [[nodiscard]] double height(std::string_view, double points) const override { return 23 * points; }
};

struct LosRooster {
    Grid grid;
    Schedule schedule;
    RubriekLabels labels;
    GeenBerichten berichten;
    GeenLogboek logboek;

    [[nodiscard]] RoosterDoel doel(Grid& in) { return {in, schedule, labels, berichten, logboek}; }
    void lees(std::string_view regels) {
        lees_regels(regels, schedule, berichten, logboek);
        vul_rooster(doel(grid), schedule.rubriek_record);
        vul_rubriek_labels(schedule, labels);
        vul_nr_tijd(grid, schedule.huidige_rubriek, berichten);
    }
};

inline void eis(bool voorwaarde) {
    if (!voorwaarde) std::abort();
}

} // namespace tavelo
