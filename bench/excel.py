#!/usr/bin/env python3
"""Opening a start list of 4,000 x 12 cells in Excel, as ratios against other programs in one run: lines "ratio ...".

    bench/excel.py [TAVELO_DUMP [WERKMAP_NAAR_GRID]]        # default those of build/release

Every program runs as a process of its own, start-up included. Ours are measured as every displayed text written as CSV, as
the grid filled and no more, and as the same without the start of the process: what each further time in one process takes.
unzip -p of the sheet (the floor), python3-openpyxl, python3-xlrd and LibreOffice are compared with when they are installed.
A sheet of 300,000 rows tells how memory and time grow.
Needs python3-xlsxwriter. Times are processor times, the best of a number of runs: what else the machine does only adds to them.
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import zipfile

WORTEL = pathlib.Path(__file__).resolve().parent.parent
PYTHON = "/usr/bin/python3"
BLAD = "xl/worksheets/sheet1.xml"
OPENPYXL = """
import sys, openpyxl
for rij in openpyxl.load_workbook(sys.argv[1], data_only=True).worksheets[0].iter_rows(values_only=True):
    for waarde in rij: str(waarde)
"""
XLRD = """
import sys, xlrd
blad = xlrd.open_workbook(sys.argv[1]).sheet_by_index(0)
for rij in range(blad.nrows):
    for waarde in blad.row_values(rij): str(waarde)
"""


def meet(opdracht, keren=25):
    """(seconds, peak MiB) of the fastest run; None when the program is not there or fails."""
    beste = None
    for _ in range(keren):
        proces = subprocess.Popen(opdracht, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        _, status, gebruik = os.wait4(proces.pid, 0)
        duur = gebruik.ru_utime + gebruik.ru_stime
        proces.returncode = os.waitstatus_to_exitcode(status)
        if proces.returncode != 0:
            return None
        if beste is None or duur < beste[0]:
            beste = (duur, gebruik.ru_maxrss / 1024)
    return beste


def meet_in_proces(grid, lijst):
    """Seconds from the file to the filled grid, without the start of the process."""
    keren = 20
    return (meet([grid, lijst, str(1 + keren)], 10)[0] - meet([grid, lijst])[0]) / keren


def herhaal_rijen(lijst, lang, keren):
    """Writes a workbook with the rows of another so many times below each other; gives the bytes of its sheet."""
    with zipfile.ZipFile(lijst) as van, zipfile.ZipFile(lang, "w", zipfile.ZIP_DEFLATED, compresslevel=1) as naar:
        for deel in van.infolist():
            if deel.filename != BLAD:
                naar.writestr(deel.filename, van.read(deel))
        begin, rest = van.read(BLAD).split(b"<sheetData>")
        rijen, eind = rest.split(b"</sheetData>")
        aantal = rijen.count(b"<row ")
        # Block by block: the peak of a process begins at that of the one that starts it.
        with naar.open(BLAD, "w") as blad:
            grootte = blad.write(begin + b"<sheetData>")
            for n in range(keren):
                grootte += blad.write(re.sub(rb' r="([A-Z]*)(\d+)"', lambda r: b' r="%s%d"' % (r[1], int(r[2]) + n * aantal), rijen))
            return grootte + blad.write(b"</sheetData>" + eind)


def heeft(module):
    return subprocess.run([PYTHON, "-c", f"import {module}"], capture_output=True).returncode == 0


def main():
    dump = sys.argv[1] if len(sys.argv) > 1 else str(WORTEL / "build/release/src/tavelo-dump")
    grid = sys.argv[2] if len(sys.argv) > 2 else str(WORTEL / "build/release/bench/werkmap_naar_grid")
    with tempfile.TemporaryDirectory() as naam:
        map_ = pathlib.Path(naam)
        for rijen in (4000, 16000):
            subprocess.run([PYTHON, WORTEL / "tools/maak_startlijsten.py", map_, "--rijen", str(rijen)], check=True)
        for soort in ("xlsx", "xls"):
            lijst = str(map_ / f"startlijst_4000.{soort}")
            groot = str(map_ / f"startlijst_16000.{soort}")
            ons = meet([dump, "--blad", "1", lijst])
            if ons is None:
                sys.exit(f"{dump} cannot open {lijst}")
            print(f"{soort}: {ons[0] * 1000:.1f} ms, {ons[1]:.1f} MiB")
            print(f"ratio {soort} four times the rows: {meet([dump, '--blad', '1', groot])[0] / ons[0]:.2f} times the time")
            if soort == "xlsx":
                vloer = meet(["unzip", "-p", lijst, BLAD])
                naar_grid = meet([grid, lijst])
                if vloer and naar_grid:
                    print(f"ratio xlsx as CSV to unzip -p of the sheet: {ons[0] / vloer[0]:.2f} times the time")
                    print(f"ratio xlsx in the grid to unzip -p of the sheet: {naar_grid[0] / vloer[0]:.2f} times the time")
                    in_proces = meet_in_proces(grid, lijst) / vloer[0]
                    print(f"ratio xlsx in the grid, without start-up, to unzip -p of the sheet: {in_proces:.2f} (at most 2)")
                lang = str(map_ / "lang.xlsx")
                uitgepakt = herhaal_rijen(lijst, lang, 75) / 2**20
                tijd, piek = meet([grid, lang], 3)
                print(f"ratio xlsx of 300,000 rows, memory for the grid to its unpacked sheet: {piek / uitgepakt:.2f} (at most 4)")
                print(f"ratio xlsx of 300,000 rows to 4,000: {tijd / naar_grid[0]:.1f} times the time for 75 times the rows")
            ander = ("openpyxl", OPENPYXL) if soort == "xlsx" else ("xlrd", XLRD)
            if heeft(ander[0]):
                duur = meet([PYTHON, "-c", ander[1], lijst], 5)[0]
                print(f"ratio {ander[0]} to ours, {soort}: {duur / ons[0]:.1f} times the time")
            if shutil.which("soffice"):
                opdracht = ["soffice", "--headless", "--convert-to", "csv", "--outdir", naam, lijst]
                if kantoor := meet(opdracht, 3):
                    print(f"ratio LibreOffice to ours, {soort}: {kantoor[0] / ons[0]:.1f} times the time")


if __name__ == "__main__":
    main()
