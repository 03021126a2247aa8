#!/usr/bin/env python3
"""Makes start lists in Excel workbooks. Needs python3-xlsxwriter.

    tools/maak_startlijsten.py FOLDER             # the small ones for tests/data/excel
    tools/maak_startlijsten.py FOLDER --rijen N   # one start list of N rows and 12 columns, as .xlsx and as .xls
"""
import datetime
import pathlib
import struct
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


def rijen_van(aantal):
    """The header and `aantal` entries: numbers for time, start number and age, texts for the rest."""
    yield KOP
    for i in range(aantal):
        ruiter, paard, *rest = COMBINATIES[i % len(COMBINATIES)]
        if i >= len(COMBINATIES):
            ruiter, paard = f"{ruiter} {i}", f"{paard} {i}"
        yield [(9 * 60 + 7 * i) % 1440 / 1440, i + 1, f"{i + 1:03d}", ruiter, paard, *rest]


def startlijst(boek, aantal):
    tijd = boek.add_format({"num_format": 20})  # what Excel gives a time that is typed
    blad = boek.add_worksheet("Startlijst")
    blad.set_column(0, 2, 6.71)
    blad.set_column(3, 4, 25.71)
    for r, rij in enumerate(rijen_van(aantal)):
        for k, waarde in enumerate(rij):
            if isinstance(waarde, str):
                blad.write_string(r, k, waarde)
            else:
                blad.write_number(r, k, waarde, tijd if k == 0 else None)
    return blad


def record(soort, inhoud=b""):
    return struct.pack("<HH", soort, len(inhoud)) + inhoud


def xls_tekst(tekst):
    """A string of the shared table: 8 bits a character where that is enough, else 16."""
    smal = all(ord(teken) < 256 for teken in tekst)
    return struct.pack("<HB", len(tekst), 0 if smal else 1) + tekst.encode("latin-1" if smal else "utf-16-le")


def xls_teksttabel(teksten, keren):
    """SST, and CONTINUE records from the string on that no longer fits."""
    records, inhoud, soort = b"", struct.pack("<II", keren, len(teksten)), 0x00FC
    for tekst in map(xls_tekst, teksten):
        if len(inhoud) + len(tekst) > 8224:
            records += record(soort, inhoud)
            inhoud, soort = b"", 0x003C
        inhoud += tekst
    return records + record(soort, inhoud)


def xls_stroom(rijen):
    """A workbook of one sheet in BIFF8 records."""
    teksten, cellen = {}, []
    for r, rij in enumerate(rijen):
        for k, waarde in enumerate(rij):
            if isinstance(waarde, str):
                cellen.append(record(0x00FD, struct.pack("<HHHI", r, k, 0, teksten.setdefault(waarde, len(teksten)))))
            else:
                cellen.append(record(0x0203, struct.pack("<HHHd", r, k, 1 if k == 0 else 0, waarde)))
    arial = record(0x0031, struct.pack("<HHHHHBBBBBB", 200, 0, 0x7FFF, 400, 0, 0, 0, 0, 0, 5, 0) + b"Arial")
    opmaak = b"".join(record(0x00E0, struct.pack("<HHHBBBBIIH", 0, code, 1, 0x20, 0, 0, 0, 0, 0, 0)) for code in (0, 20))
    begin = record(0x0809, struct.pack("<HHHHII", 0x0600, 0x0005, 0x0DBB, 0x07CC, 0, 6)) + arial + opmaak
    tabel = xls_teksttabel(list(teksten), sum(len(rij) for rij in rijen)) + record(0x000A)
    naam = b"Startlijst"
    plaats = len(begin) + 4 + 8 + len(naam) + len(tabel)
    bladen = record(0x0085, struct.pack("<IHBB", plaats, 0, len(naam), 0) + naam)
    blad = record(0x0809, struct.pack("<HHHHII", 0x0600, 0x0010, 0x0DBB, 0x07CC, 0, 6))
    blad += record(0x0200, struct.pack("<IIHHH", 0, len(rijen), 0, len(rijen[0]), 0)) + b"".join(cellen) + record(0x000A)
    return begin + bladen + tabel + blad


def samengesteld_bestand(stroom):
    """A compound file of 512-byte sectors with the one stream "Workbook": stream, directory, table of sectors."""
    stroom += bytes(-len(stroom) % 512)
    stroom = stroom.ljust(4096, b"\0")  # below that size it would belong in a table for small streams
    eind, vrij, tabelsector = 0xFFFFFFFE, 0xFFFFFFFF, 0xFFFFFFFD
    sectoren = len(stroom) // 512
    tabellen = 1
    while tabellen * 128 < sectoren + 1 + tabellen:
        tabellen += 1
    keten = [*range(1, sectoren), eind, eind] + [tabelsector] * tabellen
    keten += [vrij] * (tabellen * 128 - len(keten))

    def ingang(naam, soort, kind, eerste, grootte):
        wijd = (naam + "\0").encode("utf-16-le") if naam else b""
        return struct.pack("<64sHBBIII16sIQQII", wijd, len(wijd), soort, 1, vrij, vrij, kind, b"", 0, 0, 0, eerste, grootte) + bytes(4)

    map_ = ingang("Root Entry", 5, 1, eind, 0) + ingang("Workbook", 2, vrij, 0, len(stroom))
    map_ += 2 * ingang("", 0, vrij, 0, 0)
    kop = struct.pack("<8s16sHHHHHHIIIIIIIIII", bytes.fromhex("d0cf11e0a1b11ae1"), b"", 0x3E, 3, 0xFFFE, 9, 6, 0, 0, 0,
                      tabellen, sectoren, 0, 4096, eind, 0, eind, 0)
    plaatsen = [sectoren + 1 + i for i in range(tabellen)]
    kop += struct.pack("<109I", *plaatsen, *[vrij] * (109 - tabellen))
    return kop + stroom + map_ + struct.pack(f"<{len(keten)}I", *keten)


def klein(map_):
    boek = werkmap(map_ / "startlijst.xlsx")
    startlijst(boek, len(COMBINATIES))
    (map_ / "startlijst.xls").write_bytes(samengesteld_bestand(xls_stroom(list(rijen_van(len(COMBINATIES))))))
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
        aantal = int(sys.argv[3])
        boek = werkmap(map_ / f"startlijst_{aantal}.xlsx")
        startlijst(boek, aantal - 1)
        boek.close()
        (map_ / f"startlijst_{aantal}.xls").write_bytes(samengesteld_bestand(xls_stroom(list(rijen_van(aantal - 1)))))
    else:
        klein(map_)


if __name__ == "__main__":
    main()
