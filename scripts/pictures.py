#!/usr/bin/env python3
"""Makes the pictures of README and manual from the running program.

    scripts/pictures.py --program build/release/src/tavelo [--output docs/beelden]
"""

import argparse
import shutil
from pathlib import Path

from demo import BIJSCHRIFT_DEELNEMER, EXAMPLES, EXCEL_SLEUTELS, UITERLIJK, Bediening, letterlijk, schrijf_instellingen
from scherm import Scherm, TweeSchermen, wacht_tot

BEELDEN = EXAMPLES.parent / "docs" / "beelden"
WEDSTRIJD = Path("/tmp/wedstrijd")  # its path stands in the title bar of the pictures


def operateur(programma, map_):
    """The operator's window with a class under way, and the two pages of the settings."""
    with Scherm() as scherm:
        schrijf_instellingen(scherm, UITERLIJK, dict(zip(EXCEL_SLEUTELS, "ABCDEFGHIJKL")))
        bediening = Bediening(scherm, programma)
        bediening.wacht_op_hoofdvenster()
        bediening.open(WEDSTRIJD / "springen.rst")
        scherm.venster(".*springen.*")
        beeld = bediening.typ_nummer(178)
        beeld.uitsnede(met_titelbalk(bediening.hoofd)).bewaar(map_ / "hoofdvenster.png", 256)
        for toets, naam in (("alt+w", "instellingen_weergave"), ("alt+x", "instellingen_excel")):
            bediening.open_instellingen()
            scherm.toets(toets)
            venster = scherm.venster("Instellingen")
            scherm.rustig_beeld().uitsnede(met_titelbalk(venster)).bewaar(map_ / f"{naam}.png", 256)
            scherm.toets("Escape")
            wacht_tot(lambda: not scherm.vensters("Instellingen"), "het sluiten van de instellingen")


def monitor(programma, map_):
    """The public monitor, full screen."""
    with Scherm(1280, 720) as scherm:
        schrijf_instellingen(scherm, UITERLIJK | {"alignment": "1", "textsize": "150"})
        bediening = Bediening(scherm, programma)
        bediening.wacht_op_hoofdvenster()
        bediening.open(WEDSTRIJD / "springen.rst")
        scherm.venster(".*springen.*")
        bediening.typ_nummer(22)
        bediening.druk("alt+p")
        venster = scherm.venster(letterlijk(BIJSCHRIFT_DEELNEMER))
        scherm.toets("F11")
        wacht_tot(lambda: venster.vlak() == (0, 0, scherm.breedte, scherm.hoogte), "het beeldvullende venster")
        scherm.rustig_beeld().bewaar(map_ / "monitor.png", 256)


def twee_schermen(programma, map_):
    """The operator's screen and the public's beside each other."""
    with TweeSchermen(wand=(1280, 800)) as scherm:
        scherm.roep("xsetroot", "-solid", "#3f4a56")
        schrijf_instellingen(scherm, UITERLIJK)
        bediening = Bediening(scherm, programma)
        bediening.wacht_op_hoofdvenster()
        bediening.open(WEDSTRIJD / "springen.rst")
        scherm.venster(".*springen.*")
        bediening.typ_nummer(22)
        venster = bediening.open_monitor()
        bediening.hoofd.activeer()
        scherm.toets("F11")
        wacht_tot(lambda: venster.vlak() == scherm.wand(), "het beeldvullende venster")
        scherm.rustig_beeld().bewaar(map_ / "twee_schermen.png", 256, schaal=62.5)


def met_titelbalk(venster):
    links, boven, breedte, hoogte = venster.vlak()
    titelbalk, rand = 20, 1
    return links - rand, boven - titelbalk, breedte + 2 * rand, hoogte + titelbalk + rand


def main():
    opties = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    opties.add_argument("--program", type=Path, required=True)
    opties.add_argument("--output", type=Path, default=BEELDEN)
    keuze = opties.parse_args()
    keuze.output.mkdir(parents=True, exist_ok=True)
    WEDSTRIJD.mkdir()
    try:
        shutil.copy(EXAMPLES / "springen.rst", WEDSTRIJD)
        operateur(keuze.program.resolve(), keuze.output)
        monitor(keuze.program.resolve(), keuze.output)
        twee_schermen(keuze.program.resolve(), keuze.output)
    finally:
        shutil.rmtree(WEDSTRIJD)


if __name__ == "__main__":
    main()
