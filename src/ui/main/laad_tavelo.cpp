#include "ui/main/laad_tavelo.h"

#include "ui/main/rooster_grid.h"

namespace tavelo {

void laad_tavelo(Bediening& bediening, TaveloVenster& venster, std::string_view programma_map,
                 const SettingsStore& opslag, const SpecialFolders& mappen) {
    Programma& p = bediening.programma;
    venster.bouw_menu();
    richt_grid_in(p.grdRooster);
    p.paden = bepaal_paden(programma_map, opslag, mappen);
    venster.toon_intro();
    if (p.afgesloten) return; // ended from outside meanwhile
    if (p.muiswiel_aanwezig) venster.muiswiel_hook();
    wis_rooster(bediening);
    p.zoek_op_nummer = true;
    p.bijschrift = bijschrift_naamloos;
    venster.toon_venster();
}

} // namespace tavelo
