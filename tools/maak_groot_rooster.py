#!/usr/bin/env python3
"""Makes a schedule file at (or below) the limits of the format, for measuring.

    tools/maak_groot_rooster.py [--deelnemers 4000] [--rubrieken 2000] [--gewijzigd PERCENT] [--seed N] FILE

With --gewijzigd that share of the combinations, chosen by the same seed, has another horse; the rest is the same line
for line, so the file is the rewritten version of the one without.
"""

import argparse
import random
from pathlib import Path

import paardensport as ps


def main():
    opties = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    opties.add_argument("bestand", type=Path)
    opties.add_argument("--deelnemers", type=int, default=4000)
    opties.add_argument("--rubrieken", type=int, default=2000)
    opties.add_argument("--gewijzigd", type=float, default=0, metavar="PERCENT")
    opties.add_argument("--seed", type=int, default=1)
    keuze = opties.parse_args()

    toeval = random.Random(keuze.seed)
    bedenker = ps.Bedenker(toeval, eenmalig=False)
    nummers = range(1, keuze.deelnemers + 1)
    combinaties = [bedenker.combinatie(n, pony=n % 2 == 0, extra=["sk:" + toeval.choice("BLMZ"), "sa:2", "sp_dagen:za"])
                   for n in nummers]
    volgorde = list(nummers)
    toeval.shuffle(volgorde)
    startlijst = []
    for plaats, n in enumerate(volgorde, 1):
        startlijst.append(ps.startplaats(n))
        if plaats % 50 == 0:
            startlijst.append(ps.pauze(10, "Parcours ombouwen"))
    rubrieken = [ps.rubriekregel(n, id=f"S{n}", oms=f"Klasse {toeval.choice('BLMZ')}, rubriek {n}", dis="S", discode="S",
                                 klasse="*B*L*M*Z*", cat="*A*B*C*D*E*P*", dtm="20-6-2026")
                 for n in range(1, keuze.rubrieken + 1)]

    for c in random.Random(keuze.seed + 1).sample(combinaties, round(keuze.deelnemers * keuze.gewijzigd / 100)):
        c.paard = "Invaller " + c.paard

    ps.schrijf_rooster(
        keuze.bestand, rubrieken, combinaties, 1,
        [("rid", "S1"), ("roms", "Alle klassen"), ("rdag", 5), ("rring", 1), ("rtype", "Ring"), ("ruty", 7),
         ("rmty", 0), ("rpty", 1), ("rtvk", 1), ("rtvko", 3), ("rsar", 1), ("rcom", 2), ("rkla", "*B*L*M*Z*"),
         ("rcat", "*A*B*C*D*E*P*")], startlijst)


if __name__ == "__main__":
    main()
