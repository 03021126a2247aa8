#include "app/start.h"

#include <utility>

namespace tavelo {

void Main(Programma& programma, const SettingsStore& opslag, const std::function<bool()>& bepaal_muiswiel,
          Hoofdvenster& venster) {
    programma.instellingen = laad_instellingen(opslag);
    programma.muiswiel_aanwezig = bepaal_muiswiel();
    venster.laad();
}

void sluit_af(Programma& programma, SettingsStore& opslag, Pointer& muisaanwijzer, Hoofdvenster& venster) {
    const BusyPointer bezig(muisaanwijzer);
    venster.sluit_andere_vensters();
    if (programma.muiswiel_aanwezig) venster.muiswiel_unhook();
    bewaar_bij_afsluiten(programma, opslag);
}

void bewaar_bij_afsluiten(Programma& programma, SettingsStore& opslag) {
    if (std::exchange(programma.afgesloten, true)) return;
    bewaar_instellingen(programma.instellingen_bij_annuleren.value_or(programma.instellingen), opslag);
}

} // namespace tavelo
