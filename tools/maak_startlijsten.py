#!/usr/bin/env python3
"""Makes start lists in Excel workbooks. Needs python3-xlsxwriter and openssl.

    tools/maak_startlijsten.py FOLDER             # the small ones for tests/data/workbook
    tools/maak_startlijsten.py FOLDER --rijen N   # one start list of N rows and 12 columns, as .xlsx and as .xls
"""
import base64
import datetime
import hashlib
import pathlib
import struct
import subprocess
import sys

import xlsxwriter

KOP = ["Tijd", "Nr", "Hnr", "Ruiter", "Paard", "Vader", "Moeders vader", "Kleur", "Geslacht", "Leeftijd", "Stamboek", "Vereniging"]
COMBINATIES = [
    ("Zoë van der Meer", "Bonfire", "Welt Hit II", "Fürst Heinrich", "bruin", "ruin", 9, "KWPN", "RV De Lâge Wâlden"),
    ("Daniël Müller", "Été d'Or", "Apollo", "Jazz", "vos", "merrie", 12, "Old.", "LR & PC Súdwest"),
    ("Ångström, Åsa", 'Prins "Blitz"', "Negro", "Ferro", "schimmel", "hengst", 7, "SWB", "RV Øresund"),
]
WACHTWOORD_VAN_EXCEL = "VelvetSweatshop"  # Excel tries it before it asks
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


def samengesteld_bestand(stromen):
    """A compound file of 512-byte sectors: the streams by name, then directory and table of sectors."""
    eind, vrij, tabelsector = 0xFFFFFFFE, 0xFFFFFFFF, 0xFFFFFFFD

    def ingang(naam, soort, rechts, kind, eerste, grootte):
        wijd = (naam + "\0").encode("utf-16-le") if naam else b""
        vaste = struct.pack("<64sHBBIII16sIQQII", wijd, len(wijd), soort, 1, vrij, rechts, kind, b"", 0, 0, 0, eerste, grootte)
        return vaste + bytes(4)

    inhoud, keten, ingangen = b"", [], []
    for nummer, (naam, stroom) in enumerate(stromen.items(), 1):
        grootte = max(len(stroom), 4096)  # below that size a stream would belong in a table for small ones
        stroom = stroom.ljust(grootte + -grootte % 512, b"\0")
        eerste = len(keten)
        keten += [*range(eerste + 1, eerste + len(stroom) // 512), eind]
        ingangen.append(ingang(naam, 2, nummer + 1 if nummer < len(stromen) else vrij, vrij, eerste, grootte))
        inhoud += stroom
    map_ = ingang("Root Entry", 5, vrij, 1, eind, 0) + b"".join(ingangen) + (3 - len(ingangen)) * ingang("", 0, vrij, vrij, 0, 0)
    plaats_map = len(keten)
    tabellen = 1
    while tabellen * 128 < plaats_map + 1 + tabellen:
        tabellen += 1
    keten += [eind] + [tabelsector] * tabellen
    keten += [vrij] * (tabellen * 128 - len(keten))
    kop = struct.pack("<8s16sHHHHHHIIIIIIIIII", bytes.fromhex("d0cf11e0a1b11ae1"), b"", 0x3E, 3, 0xFFFE, 9, 6, 0, 0, 0,
                      tabellen, plaats_map, 0, 4096, eind, 0, eind, 0)
    kop += struct.pack("<109I", *(plaats_map + 1 + i for i in range(tabellen)), *[vrij] * (109 - tabellen))
    return kop + inhoud + map_ + struct.pack(f"<{len(keten)}I", *keten)


def aes(sleutel, begin, klaar):
    """AES in chained blocks, or in single ones without `begin`; `klaar` is a number of whole blocks."""
    soort = f"-aes-{len(sleutel) * 8}-" + ("cbc" if begin else "ecb")
    opdracht = ["openssl", "enc", soort, "-nopad", "-K", sleutel.hex(), *(["-iv", begin.hex()] if begin else [])]
    return subprocess.run(opdracht, input=klaar, capture_output=True, check=True).stdout


def heel(bytes_):
    return bytes_ + bytes(-len(bytes_) % 16)


def wachtwoord_hash(soort, zout, wachtwoord, keren):
    waarde = hashlib.new(soort, zout + wachtwoord.encode("utf-16-le")).digest()
    for keer in range(keren):
        waarde = hashlib.new(soort, struct.pack("<I", keer) + waarde).digest()
    return waarde


def gewoon_vergrendeld(pakket, wachtwoord):
    """Locked as Excel 2007 does it."""
    zout, proef = bytes(range(16)), bytes(range(100, 116))
    waarde = wachtwoord_hash("sha1", zout, wachtwoord, 50000)
    waarde = hashlib.sha1(waarde + struct.pack("<I", 0)).digest()
    kussen = bytes(0x36 ^ (waarde[i] if i < 20 else 0) for i in range(64))
    sleutel = hashlib.sha1(kussen).digest()[:16]
    csp = "Microsoft Enhanced RSA and AES Cryptographic Provider\0".encode("utf-16-le")
    kop = struct.pack("<IIIIIIII", 0x24, 0, 0x660E, 0x8004, 128, 0x18, 0, 0) + csp
    info = struct.pack("<HHII", 3, 2, 0x24, len(kop)) + kop
    info += struct.pack("<I", 16) + zout + aes(sleutel, None, proef)
    info += struct.pack("<I", 20) + aes(sleutel, None, heel(hashlib.sha1(proef).digest()))
    return samengesteld_bestand({"EncryptionInfo": info,
                                 "EncryptedPackage": struct.pack("<Q", len(pakket)) + aes(sleutel, None, heel(pakket))})


def lenig_vergrendeld(pakket, wachtwoord):
    """Locked as Excel 2013 does it."""
    zout, zout_data, proef, sleutel = bytes(range(16)), bytes(range(50, 66)), bytes(range(100, 116)), bytes(range(200, 232))
    waarde = wachtwoord_hash("sha512", zout, wachtwoord, 1000)

    def vergrendeld(doel, klaar):
        afgeleid = hashlib.sha512(waarde + bytes.fromhex(doel)).digest()[:32]
        return base64.b64encode(aes(afgeleid, zout, heel(klaar))).decode()

    soort = 'blockSize="16" keyBits="256" hashSize="64" cipherAlgorithm="AES" cipherChaining="ChainingModeCBC" hashAlgorithm="SHA512"'
    xml = f"""<?xml version="1.0" encoding="UTF-8" standalone="yes"?>
<encryption xmlns="http://schemas.microsoft.com/office/2006/encryption" xmlns:p="http://schemas.microsoft.com/office/2006/keyEncryptor/password"><keyData saltSize="16" {soort} saltValue="{base64.b64encode(zout_data).decode()}"/><keyEncryptors><keyEncryptor uri="http://schemas.microsoft.com/office/2006/keyEncryptor/password"><p:encryptedKey spinCount="1000" saltSize="16" {soort} saltValue="{base64.b64encode(zout).decode()}" encryptedVerifierHashInput="{vergrendeld("fea7d2763b4b9e79", proef)}" encryptedVerifierHashValue="{vergrendeld("d7aa0f6d3061344e", hashlib.sha512(proef).digest())}" encryptedKeyValue="{vergrendeld("146e0be7abacd0d6", sleutel)}"/></keyEncryptor></keyEncryptors></encryption>"""
    stukken = b""
    for nummer, plaats in enumerate(range(0, len(pakket), 4096)):
        begin = hashlib.sha512(zout_data + struct.pack("<I", nummer)).digest()[:16]
        stukken += aes(sleutel, begin, heel(pakket[plaats:plaats + 4096]))
    info = struct.pack("<HHI", 4, 4, 0x40) + xml.encode().ljust(4096)
    return samengesteld_bestand({"EncryptionInfo": info, "EncryptedPackage": struct.pack("<Q", len(pakket)) + stukken})


def klein(map_):
    boek = werkmap(map_ / "startlijst.xlsx")
    startlijst(boek, len(COMBINATIES))
    (map_ / "startlijst.xls").write_bytes(samengesteld_bestand({"Workbook": xls_stroom(list(rijen_van(len(COMBINATIES))))}))
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

    pakket = (map_ / "startlijst.xlsx").read_bytes()
    (map_ / "vergrendeld_2007.xlsx").write_bytes(gewoon_vergrendeld(pakket, WACHTWOORD_VAN_EXCEL))
    (map_ / "vergrendeld_2013.xlsx").write_bytes(lenig_vergrendeld(pakket, WACHTWOORD_VAN_EXCEL))
    (map_ / "geheim_2007.xlsx").write_bytes(gewoon_vergrendeld(pakket, "geheim"))
    (map_ / "geheim_2013.xlsx").write_bytes(lenig_vergrendeld(pakket, "geheim"))

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
        (map_ / f"startlijst_{aantal}.xls").write_bytes(samengesteld_bestand({"Workbook": xls_stroom(list(rijen_van(aantal - 1)))}))
    else:
        klein(map_)


if __name__ == "__main__":
    main()
