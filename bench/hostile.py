#!/usr/bin/env python3
"""Workbooks that are made to take time and memory, each filled into the grid by a process of its own: what it costs, and
the same under a limit of 1 GiB for all its memory.

    bench/hostile.py [WERKMAP_NAAR_GRID]        # default build/release/bench/werkmap_naar_grid

Prints one line for each: size of the file and of its largest part, processor time and peak memory, and what the program
answered within the limit: "gelezen", or its sentence.
"""
import os
import pathlib
import resource
import subprocess
import sys
import tempfile
import zipfile

WORTEL = pathlib.Path(__file__).resolve().parent.parent
MIB = 2**20
MAIN = "http://schemas.openxmlformats.org/spreadsheetml/2006/main"
REL = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
SOORT = "http://schemas.openxmlformats.org/package/2006"


def blad(rijen, erna=""):
    return f'<worksheet xmlns="{MAIN}"><sheetData>{rijen}</sheetData>{erna}</worksheet>'


def rij(cel):
    return f"<row>{cel}</row>"


def teksten(inhoud):
    return f'<sst xmlns="{MAIN}">{inhoud}</sst>'


# name, sheet, shared strings
SOORTEN = {
    "one shared string of 1 MiB, 12,000 cells": lambda: (
        blad(rij('<c t="s"><v>0</v></c>') * 12_000), teksten("<si><t>" + "x" * MIB + "</t></si>")),
    "one inline string of 200 MiB": lambda: (
        blad(rij('<c t="inlineStr"><is><t>' + "x" * (200 * MIB) + "</t></is></c>")), None),
    "8 million shared strings": lambda: (
        blad(rij('<c t="s"><v>7999999</v></c>')), teksten("<si><t>ab</t></si>" * 8_000_000)),
    "9 million shared strings": lambda: (
        blad(rij('<c t="s"><v>0</v></c>')), teksten("<si><t>ab</t></si>" * 9_000_000)),
    "a million empty styled cells": lambda: (blad(rij('<c s="1"/>') * 1_000_000), None),
    "16,384 columns, 240 rows": lambda: (blad(rij("<c><v>1</v></c>" * 16_384) * 240), None),
    "8 million cells in 16,384 columns": lambda: (blad(rij("<c><v>1</v></c>" * 16_384) * 488), None),
    "a million merged ranges": lambda: (
        blad(rij("<c><v>1</v></c>"), "<mergeCells>" + '<mergeCell ref="A1:B2"/>' * 1_000_000 + "</mergeCells>"), None),
    "64 MiB in one text node": lambda: (blad(rij('<c t="str"><v>' + "x" * (64 * MIB) + "</v></c>")), None),
    "64 MiB of text between the cells": lambda: (blad("x" * (64 * MIB) + rij("<c><v>1</v></c>")), None),
}


def schrijf(bestand, sheet, strings):
    with zipfile.ZipFile(bestand, "w", zipfile.ZIP_DEFLATED, compresslevel=1) as zip_:
        zip_.writestr("_rels/.rels", f'<Relationships xmlns="{SOORT}/relationships">'
                      f'<Relationship Id="r1" Type="{REL}/officeDocument" Target="xl/workbook.xml"/></Relationships>')
        zip_.writestr("xl/workbook.xml", f'<workbook xmlns="{MAIN}" xmlns:r="{REL}"><sheets>'
                      '<sheet name="Start" sheetId="1" r:id="s"/></sheets></workbook>')
        zip_.writestr("xl/_rels/workbook.xml.rels", f'<Relationships xmlns="{SOORT}/relationships">'
                      f'<Relationship Id="s" Type="{REL}/worksheet" Target="sheet.xml"/>'
                      f'<Relationship Id="t" Type="{REL}/sharedStrings" Target="strings.xml"/></Relationships>')
        zip_.writestr("xl/sheet.xml", sheet)
        if strings:
            zip_.writestr("xl/strings.xml", strings)


def vul(programma, bestand, grens=None):
    """(answer, processor seconds, peak MiB)"""
    def begrens():
        if grens:
            resource.setrlimit(resource.RLIMIT_AS, (grens, grens))
    proces = subprocess.Popen([programma, bestand], stderr=subprocess.PIPE, preexec_fn=begrens)
    fout = proces.stderr.read().decode("utf-8").strip()
    _, status, gebruik = os.wait4(proces.pid, 0)
    proces.returncode = os.waitstatus_to_exitcode(status)
    antwoord = {0: "gelezen", 1: fout}.get(proces.returncode, f"ENDED WITH {proces.returncode}: {fout}")
    return antwoord, gebruik.ru_utime + gebruik.ru_stime, gebruik.ru_maxrss / 1024


def main():
    programma = sys.argv[1] if len(sys.argv) > 1 else str(WORTEL / "build/release/bench/werkmap_naar_grid")
    with tempfile.TemporaryDirectory() as map_:
        bestand = pathlib.Path(map_) / "werkmap.xlsx"
        for naam, maak in SOORTEN.items():
            sheet, strings = maak()
            schrijf(bestand, sheet, strings)
            uitgepakt = max(len(sheet), len(strings or "")) / MIB
            del sheet, strings # a process that begins counts what its parent holds
            antwoord, tijd, piek = vul(programma, bestand)
            print(f"{naam}: {bestand.stat().st_size / MIB:.1f} MiB, unpacked {uitgepakt:.0f} MiB; {tijd:.2f} s, "
                  f"{piek:.0f} MiB, {antwoord}; within 1 GiB: {vul(programma, bestand, 1024 * MIB)[0]}", flush=True)


if __name__ == "__main__":
    main()
