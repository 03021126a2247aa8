// What the dialog's rules work on: a program at rest, with the default settings but for the font.
#pragma once

#include "fakes/opstelling.h"
#include "schedule/record/kolommen.h"
#include "ui/main/huidige_combinatie.h"

#include <string>

namespace tavelo::test {

struct InstellingenOpstelling : Opstelling {
    InstellingenOpstelling() {
        programma.instellingen = laad_instellingen(FakeSettings());
        programma.instellingen.fontname = "Proefletter";
        programma.instellingen.lastfolder = "C:\\Roosters\\";
        bediening.voorbeeld.picDeelnemer.breedte = 9600;
        bediening.voorbeeld.picDeelnemer.hoogte = 7200;
        bediening.deelnemer_venster.picDeelnemer.breedte = 19200;
        bediening.deelnemer_venster.picDeelnemer.hoogte = 14400;
    }

    // A worksheet of six rows with the texts "A1" to "C6", open as the start list. No column has been named yet.
    void open_werkblad() {
        programma.rooster_bestand = "C:\\Roosters\\plan.xls";
        programma.rooster_extensie = "xls";
        programma.grdExcel.set_columns(3);
        programma.grdExcel.set_rows(6);
        for (int rij = 0; rij < 6; ++rij)
            for (int kolom = 0; kolom < 3; ++kolom)
                programma.grdExcel.set_text(rij, kolom,
                                            std::string(1, static_cast<char>('A' + kolom)) + std::to_string(rij + 1));
        programma.grdRooster.set_rows(7);
    }
};

} // namespace tavelo::test
