// A schedule, a grid and everything else that the readers of a schedule file fill, and files to read them from.
#pragma once

#include "fakes/grid_events.h"
#include "fakes/seams.h"
#include "fakes/temp_folder.h"
#include "schedule/herlees_rooster.h"
#include "schedule/lees_rooster.h"
#include "schedule/record/kolommen.h"

#include <initializer_list>
#include <string>
#include <string_view>

namespace tavelo::test {

// The text of a schedule file with these lines below its first one.
[[nodiscard]] inline std::string roostertekst(std::initializer_list<std::string_view> regels) {
    std::string tekst = "[Vendalo 3.4]\r\n";
    for (const std::string_view regel : regels)
        tekst.append(regel).append("\r\n");
    return tekst;
}

// The items of one start-list entry without details.
[[nodiscard]] inline std::string deelname(std::string_view inr) { return "\tdnr:" + std::string(inr) + "\t\t\t\t\t\t"; }

struct Roosterproef {
    Grid grid;
    Grid grdImport;
    Schedule schedule;
    RubriekLabels labels;
    FakeMessages berichten;
    FakeSkipLog logboek;
    RoosterDoel doel{grid, schedule, labels, berichten, logboek};
    TempFolder map;

    Roosterproef() = default;
    Roosterproef(const Roosterproef&) = delete; // `doel` refers to its neighbours
    Roosterproef& operator=(const Roosterproef&) = delete;

    std::expected<std::string, GeenRooster> lees_bytes(std::string_view bytes) {
        return lees_rooster(map.write("proef.rst", bytes), doel);
    }
    std::expected<std::string, GeenRooster> lees(std::initializer_list<std::string_view> regels) {
        return lees_bytes(roostertekst(regels));
    }
    // The start list of a rubriek whose record is this, with the combinations that `schedule` already knows.
    void vul(std::string_view record) { vul_rooster(doel, record); }

    [[nodiscard]] std::string cel(int rij, int kolom) const { return std::string(grid.text(rij, kolom)); }
};

} // namespace tavelo::test
