#!/usr/bin/env python3
"""How long a key takes to reach the public's wall, seen from outside: from the key event to the first changed pixel of
the full-screen participant window, beside what an empty window of the same toolkit needs to show the same key.

    scripts/bench_toets.py --program build/release/src/tavelo --empty build/release/bench/leeg_venster
"""

import argparse
import statistics
import subprocess
import tempfile
import time
from pathlib import Path

from demo import BIJSCHRIFT_DEELNEMER, Bediening, letterlijk
from scherm import TweeSchermen, wacht_tot

GENERATOR = Path(__file__).resolve().parent.parent / "tools" / "maak_groot_rooster.py"
FRAME = 1000 / 60  # ms
CIJFERS = "123456789"


# Where a line of pixels across the wall goes through the letters, from 0 at the top to 1.
REGEL_LEEG, REGEL_TAVELO = 0.5, 0.035  # the one letter; the rider's name


def tijden(scherm, keren, regel, kies_alles):
    """Milliseconds from key to changed pixel, for digits in turn."""
    links, boven, breedte, hoogte = scherm.wand()
    vlak, gemeten = (links, boven + round(regel * hoogte), breedte, 1), []
    for keer in range(keren):
        if kies_alles:
            scherm.x11.toets("Return")
        scherm.rustig_beeld()
        voor = scherm.x11.rgb(*vlak)
        begin = time.perf_counter()
        scherm.x11.toets(CIJFERS[keer % len(CIJFERS)])
        while scherm.x11.rgb(*vlak) == voor:
            if time.perf_counter() - begin > 5:
                raise SystemExit("een toets verandert niets op de wand")
        gemeten.append(1000 * (time.perf_counter() - begin))
    return gemeten


def van_leeg_venster(programma, maat, keren):
    with TweeSchermen(wand=maat) as scherm:
        scherm.start(programma, scherm.WAND)
        venster = scherm.venster("leeg venster")
        wacht_tot(lambda: venster.vlak() == scherm.wand(), "het lege venster op de wand")
        venster.activeer()
        return tijden(scherm, keren, REGEL_LEEG, kies_alles=False)


def van_tavelo(programma, rooster, maat, keren):
    with TweeSchermen(wand=maat) as scherm:
        bediening = Bediening(scherm, programma)
        bediening.wacht_op_hoofdvenster()
        bediening.open(rooster)
        scherm.venster(f".*{rooster.stem}.*")
        bediening.druk("alt+p")
        venster = scherm.venster(letterlijk(BIJSCHRIFT_DEELNEMER))
        bediening.hoofd.activeer()
        scherm.toets("F11")
        wacht_tot(lambda: venster.vlak() == scherm.wand(), "de wand")
        bediening.typ_nummer(9)
        return tijden(scherm, keren, REGEL_TAVELO, kies_alles=True)


def main():
    opties = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    opties.add_argument("--program", type=Path, required=True)
    opties.add_argument("--empty", type=Path, required=True)
    opties.add_argument("--keys", type=int, default=60)
    keuze = opties.parse_args()
    programma, leeg = keuze.program.resolve(), keuze.empty.resolve()

    with tempfile.TemporaryDirectory() as map_:
        rooster = Path(map_) / "latentie.rst"
        subprocess.run([GENERATOR, "--deelnemers", "200", "--rubrieken", "20", rooster], check=True)
        for maat in ((1920, 1080), (3840, 2160)):
            # In halves, so that a slow minute of the computer falls on both.
            gemeten = {"leeg": [], "tavelo": []}
            for _ in range(2):
                gemeten["leeg"] += van_leeg_venster(leeg, maat, keuze.keys // 2)
                gemeten["tavelo"] += van_tavelo(programma, rooster, maat, keuze.keys // 2)
            vloer, wand = statistics.median(gemeten["leeg"]), statistics.median(gemeten["tavelo"])
            naam = f"{maat[0]}x{maat[1]}"
            print(f"key to changed pixel, {naam}: wall {wand:.2f} ms, empty window {vloer:.2f} ms (medians of "
                  f"{len(gemeten['leeg'])}), {(wand - vloer) / FRAME:+.2f} frame of 60 Hz")
            print(f"ratio key_to_wall_{naam} {wand / vloer:.2f}")


if __name__ == "__main__":
    main()
