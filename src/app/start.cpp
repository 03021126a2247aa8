#include "app/start.h"

namespace tavelo {

void Main(Programma& programma, const SettingsStore& opslag, const std::function<bool()>& bepaal_muiswiel,
          Hoofdvenster& venster) {
    programma.instellingen = laad_instellingen(opslag);
    programma.muiswiel_aanwezig = bepaal_muiswiel();
    venster.laad();
}

void sluit_af(const Programma& programma, SettingsStore& opslag, Pointer& muisaanwijzer, Hoofdvenster& venster) {
    const BusyPointer bezig(muisaanwijzer);
    venster.sluit_andere_vensters();
    if (programma.muiswiel_aanwezig) venster.muiswiel_unhook();
    bewaar_instellingen(programma.instellingen, opslag);
}

} // namespace tavelo
