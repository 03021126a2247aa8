#!/usr/bin/env python3
"""How fast the program starts and how quietly it waits: start to the first painted window, memory, and the processor
time of a minute in which nobody does anything while a schedule is open and followed.

    scripts/bench_start.py --program build/release/src/tavelo
"""

import argparse
import os
import time
from pathlib import Path

from scherm import Scherm, wacht_tot

EXAMPLES = Path(__file__).resolve().parent.parent / "examples"


def eerste_beeld(programma):
    """Seconds from the start of the process to the first pixel on the screen."""
    with Scherm(640, 480) as scherm:
        leeg = scherm.beeld()
        begin = time.monotonic()
        scherm.start(programma)
        wacht_tot(lambda: scherm.beeld() != leeg, "het eerste beeld", 20)
        return time.monotonic() - begin


def processortijd(pid):
    velden = Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()
    return (int(velden[11]) + int(velden[12])) / os.sysconf("SC_CLK_TCK")


def status(pid, naam):
    regels = Path(f"/proc/{pid}/status").read_text().splitlines()
    return int(next(regel for regel in regels if regel.startswith(naam + ":")).split()[1])


def main():
    opties = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    opties.add_argument("--program", type=Path, required=True)
    opties.add_argument("--seconds", type=int, default=60)
    keuze = opties.parse_args()
    programma = keuze.program.resolve()

    tijden = sorted(eerste_beeld(programma) for _ in range(5))
    print(f"start to first painted window: {tijden[2]:.3f} s (best {tijden[0]:.3f} s; a look takes about 0.03 s)")

    with Scherm() as scherm:
        proces = scherm.start(programma)
        scherm.venster(r"Vendalo 3\.5 Tavelo - \[naamloos\]")
        print(f"memory without a schedule: {status(proces.pid, 'VmRSS') / 1024:.1f} MiB")
        scherm.toets("ctrl+o")
        scherm.venster("Rooster openen")
        scherm.typ(str(EXAMPLES / "springen.rst"))
        scherm.toets("Return")
        scherm.venster(".*springen.*")
        time.sleep(2)
        print(f"memory with examples/springen.rst: {status(proces.pid, 'VmRSS') / 1024:.1f} MiB")

        tijd, beurten = processortijd(proces.pid), status(proces.pid, "voluntary_ctxt_switches")
        time.sleep(keuze.seconds)
        tijd, beurten = processortijd(proces.pid) - tijd, status(proces.pid, "voluntary_ctxt_switches") - beurten
        print(f"idle for {keuze.seconds} s: {tijd:.2f} s of processor time, {beurten} times awake")


if __name__ == "__main__":
    main()
