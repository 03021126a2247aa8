// Two schedule files, one behind the other: the second is merged into the grid of the first. Afterwards the grid is no
// longer than the second file and every cell of it can be read.
#include "eis.h"
#include "fakes/los_rooster.h"

#include "schedule/herlees_rooster.h"
#include "schedule/record/kolommen.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tavelo;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    constexpr std::string_view grens = "[Vendalo 3.4]";
    const std::size_t tweede = bytes.find(grens, 1);
    if (tweede == std::string_view::npos) return 0;

    test::LosRooster rooster;
    rooster.lees(bytes.substr(0, tweede));

    Grid grdImport;
    rooster.schedule.wis_tabellen();
    lees_regels(bytes.substr(tweede + grens.size()), rooster.schedule, rooster.berichten, rooster.logboek);
    vul_rooster(rooster.doel(grdImport), rooster.schedule.rubriek_record);
    voeg_rooster_samen(rooster.grid, grdImport, rooster.schedule);
    eis(rooster.grid.rows() <= grdImport.rows());
    eis(rooster.grid.columns() == kolom_laatste + 1);

    // What came in once comes in again without a trace where no number stands twice; here only that it can be done.
    voeg_rooster_samen(rooster.grid, grdImport, rooster.schedule);
    eis(rooster.grid.rows() <= grdImport.rows());
    return 0;
}
