#!/usr/bin/env python3
"""Makes the start lists in .xlsx that the tests open. Needs python3-xlsxwriter.

    tools/maak_startlijsten.py FOLDER             # the small ones for tests/data/excel
    tools/maak_startlijsten.py FOLDER --rijen N   # one large start list of N rows and 12 columns, for the benchmark
"""
import datetime
import pathlib
import sys

import xlsxwriter

KOP = ["Tijd", "Nr", "Hnr", "Ruiter", "Paard", "Vader", "Moeders vader", "Kleur", "Geslacht", "Leeftijd", "Stamboek", "Vereniging"]
COMBINATIES = [
    ("Zoë van der Meer", "Bonfire", "Welt Hit II", "Fürst Heinrich", "bruin", "ruin", 9, "KWPN", "RV De Lâge Wâlden"),
    ("Daniël Müller", "Été d'Or", "Apollo", "Jazz", "vos", "merrie", 12, "Old.", "LR & PC Súdwest"),
    ("Ångström, Åsa", 'Prins "Blitz"', "Negro", "Ferro", "schimmel", "hengst", 7, "SWB", "RV Øresund"),
]
GEMAAKT = datetime.datetime(2026, 11, 20)  # fixed, so that the same script gives the same file


def werkmap(pad):
    boek = xlsxwriter.Workbook(str(pad), {"in_memory": True})
    boek.set_properties({"created": GEMAAKT})
    return boek


def startlijst(boek, rijen):
    tijd = boek.add_format({"num_format": "h:mm"})
    blad = boek.add_worksheet("Startlijst")
    blad.set_column(0, 2, 6.71)
    blad.set_column(3, 4, 25.71)
    blad.write_row(0, 0, KOP)
    for i in range(rijen):
        ruiter, paard, *rest = COMBINATIES[i % len(COMBINATIES)]
        if i >= len(COMBINATIES):
            ruiter, paard = f"{ruiter} {i}", f"{paard} {i}"
        blad.write_number(i + 1, 0, (9 * 60 + 7 * i) % 1440 / 1440, tijd)
        blad.write_number(i + 1, 1, i + 1)
        blad.write_string(i + 1, 2, f"{i + 1:03d}")
        blad.write_row(i + 1, 3, (ruiter, paard, *rest))
    return blad


def klein(map_):
    boek = werkmap(map_ / "startlijst.xlsx")
    startlijst(boek, len(COMBINATIES))
    tweede = boek.add_worksheet("Uitslag")
    datum = boek.add_format({"num_format": 14})
    procent = boek.add_format({"num_format": "0.0%"})
    geld = boek.add_format({"num_format": '_("€"* #,##0.00_);_("€"* (#,##0.00);_("€"* "-"??_);_(@_)'})
    tweede.write_datetime(1, 1, GEMAAKT, datum)
    tweede.write_number(1, 2, 0.6875, procent)
    tweede.write_number(1, 3, -1234.5, geld)
    tweede.write_boolean(2, 1, True)
    tweede.write_formula(2, 2, "=1/0", value="#DIV/0!")
    tweede.write_formula(2, 3, "=1+0.5", value=1.5)
    tweede.merge_range(4, 1, 5, 2, "samengevoegd")
    tweede.write_rich_string(6, 1, boek.add_format({"bold": True}), "vet", " en ", boek.add_format({"italic": True}), "schuin")
    grafiek = boek.add_chart({"type": "column"})
    grafiek.add_series({"values": "=Startlijst!$B$2:$B$4"})
    boek.add_chartsheet("Grafiek").set_chart(grafiek)
    boek.add_worksheet("Leeg")
    boek.close()

    boek = werkmap(map_ / "leeg.xlsx")
    boek.add_worksheet()
    boek.close()

    boek = werkmap(map_ / "grafiek_eerst.xlsx")
    grafiek = boek.add_chart({"type": "column"})
    grafiek.add_series({"values": "=Blad!$A$1:$A$2"})
    boek.add_chartsheet("Grafiek").set_chart(grafiek)
    boek.add_worksheet("Blad").write_number(0, 0, 1)
    boek.close()


def main():
    map_ = pathlib.Path(sys.argv[1])
    map_.mkdir(parents=True, exist_ok=True)
    if len(sys.argv) > 3 and sys.argv[2] == "--rijen":
        boek = werkmap(map_ / "startlijst_groot.xlsx")
        startlijst(boek, int(sys.argv[3]) - 1)
        boek.close()
    else:
        klein(map_)


if __name__ == "__main__":
    main()
