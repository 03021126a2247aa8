#!/usr/bin/env python3
"""Kills the program at random moments: afterwards the settings are the old ones or the new ones, whole.

    tests/storing/kills.py --program build/dev/src/tavelo --storing build/dev/tests/storing/libstoring.so
        [--kills 1000] [--seed 1] [--workers 4]

Four in ten while it starts, five in ten while it shuts down, half of these with every call on the settings file slowed
down, so that a kill falls between the steps of the write; one in ten around the OK of the settings dialog, on a virtual
display. What a killed write leaves must be gone after the next start. Prints what was found, and ends with an error at
anything else.
"""

import argparse
import contextlib
import random
import signal
import sys
import tempfile
import time
from collections import Counter
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from programma_test import GEDULD, INI_NAAM, OUD, Anders, Loop, SchermLoop, eis

START_SECONDEN = 4.0  # the splash stays for three
TRAAG = "* *Deelnemer.ini* 10ms"


def dood(proces):
    proces.kill()
    code = proces.wait(GEDULD)
    eis(code in (-signal.SIGKILL, 0), f"het programma eindigt met {code}")  # 0: it was ready before


def soort(tekst, nieuw, waar):
    eis(tekst in (OUD, nieuw), f"{waar}: noch de oude noch de nieuwe instellingen: {tekst!r}")
    return "oud" if tekst == OUD else "nieuw"


def nieuw_na(opties):
    """The settings after a run that nobody disturbs."""
    loop = Loop(opties)
    loop.start()
    loop.beeindig()
    eis(loop.tekst() != OUD, "er wordt niets bewaard")
    return loop.tekst()


def bij_start(opties, toeval, _nieuw):
    loop = Loop(opties)
    loop.begin()
    time.sleep(toeval.uniform(0, START_SECONDEN))
    dood(loop.proces)
    eis(loop.tekst() == OUD and loop.namen() == [INI_NAAM], f"bij de start: {loop.namen()} {loop.tekst()!r}")
    return "start: oud"


def bij_afsluiten(opties, toeval, nieuw):
    traag = toeval.random() < 0.5
    loop = Loop(opties)
    loop.start(TRAAG if traag else "")
    loop.proces.send_signal(signal.SIGTERM)
    time.sleep(toeval.uniform(0, 0.8 if traag else 0.06))
    dood(loop.proces)
    uitkomst = soort(loop.tekst(), nieuw, "bij het afsluiten")
    rest = len(loop.namen()) > 1
    # The next start finds its way, and nothing is left of the last one.
    loop.log.unlink()
    loop.start()
    loop.beeindig()
    eis(loop.tekst() == nieuw and loop.namen() == [INI_NAAM], f"na een volgende start: {loop.namen()}")
    return f"afsluiten{', traag' if traag else ''}: {uitkomst}{' met een rest' if rest else ''}"


def bij_ok(opties, toeval, nieuw):
    met_ok = nieuw.replace("showrubric=0\n", "showrubric=1\n")
    with contextlib.ExitStack() as taken:
        loop = SchermLoop(opties, taken)
        loop.kies(ok=False)
        loop.scherm.toets("Return")
        if toeval.random() < 0.5:
            time.sleep(toeval.uniform(0, 0.2))
            dood(loop.proces)
            eis(loop.ini.read_text(encoding="utf-8") == OUD, "bij OK: er is al geschreven")
            return "OK: oud"
        loop.proces.send_signal(signal.SIGTERM)
        time.sleep(toeval.uniform(0, 0.2))
        dood(loop.proces)
        tekst = loop.ini.read_text(encoding="utf-8")
        # The key may have come after the signal: then the change counts as cancelled.
        return f"OK en afsluiten: {'nieuw' if tekst == met_ok else soort(tekst, nieuw, 'bij OK')}"


def main():
    lezer = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    lezer.add_argument("--program", type=lambda pad: Path(pad).resolve(), required=True)
    lezer.add_argument("--storing", type=lambda pad: Path(pad).resolve(), required=True)
    lezer.add_argument("--kills", type=int, default=1000)
    lezer.add_argument("--seed", type=int, default=random.randrange(1_000_000))
    lezer.add_argument("--workers", type=int, default=4, help="runs at the same time; they wait more than they work")
    opties = lezer.parse_args()
    print(f"{opties.kills} keer, toeval {opties.seed}", flush=True)

    def een(nummer):
        toeval = random.Random(opties.seed * 1_000_003 + nummer)
        soorten = [bij_start] * 4 + [bij_afsluiten] * 5 + [bij_ok]
        try:
            return soorten[nummer % len(soorten)](opties, toeval, nieuw)
        except Anders as anders:
            return f"MIS {nummer}: {anders}"

    with (tempfile.TemporaryDirectory(prefix="tavelo-") as opties.werkmap,
          ThreadPoolExecutor(opties.workers) as werkers):
        nieuw = nieuw_na(opties)
        uitkomsten = Counter(werkers.map(een, range(opties.kills)))
        Loop.ruim_op()
    for uitkomst, aantal in sorted(uitkomsten.items()):
        print(f"{aantal:5} {uitkomst}")
    mis = sum(aantal for uitkomst, aantal in uitkomsten.items() if uitkomst.startswith("MIS"))
    print(f"{opties.kills - mis} goed, {mis} mis")
    return 1 if mis else 0


if __name__ == "__main__":
    sys.exit(main())
