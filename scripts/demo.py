#!/usr/bin/env python3
"""Plays the demonstration: the real program on a virtual display, driven by keys and mouse alone.

    scripts/demo.py --program build/release/src/tavelo --dump build/release/src/tavelo-dump --output demo [CHAPTER...]

Writes a picture of every step and verslag.md with a sentence about each. Ends with an error at the first step that does
not show what it should; its picture is then the last one. What should be shown comes from tavelo-dump, whether it is
shown from the pictures.
"""

import argparse
import configparser
import contextlib
import csv
import json
import os
import re
import shutil
import subprocess
import sys
import time
from pathlib import Path

from scherm import Anders, Scherm, TweeSchermen, inktbreedte, wacht_tot

EXAMPLES = Path(__file__).resolve().parent.parent / "examples"

NAAMLOOS = "Vendalo 3.5 Tavelo - [naamloos]"
BIJSCHRIFT_DEELNEMER = "Toon combinatie (F11 voor beeldvullend)"
BIJSCHRIFT_MONITOR = "Monitor venster (F11 voor beeldvullend)"
INI_NAAM = "Vendalo 3.5 Deelnemer.ini"

PIXEL = 15  # twips
PUNT = 96 / 72  # pixels

# The columns of the start list.
INR, NAAM, PAARD = 1, 4, 6

# How the public monitor looks in the demonstration; colours as they are stored, 0xBBGGRR.
BLAUW, WIT, ROOM = (0x14, 0x3C, 0x5F), (0xFF, 0xFF, 0xFF), (0xFF, 0xF9, 0xEC)
UITERLIJK = {
    "rubricbackcolor": "&H5F3C14", "rubricforecolor": "&HFFFFFF", "rubricalignment": "1", "rubrictextsize": "90",
    "backcolor": "&HECF9FF", "forecolor": "&H5F3C14", "textsize": "110", "showrubric": "1", "shownumber": "1",
    "showhorsesiredamr": "1", "showhorsecolor": "1", "showhorsegender": "1", "showhorseage": "1",
    "showhorsebreed": "1", "showunionname": "1",
}


# The twelve columns of a workbook, and the key that goes to each list on the page Excel of the settings.
EXCEL_SLEUTELS = ["col_startnumber", "col_hnr", "col_rider_name", "col_horse_name", "col_horse_sire",
                  "col_horse_siredam", "col_horse_color", "col_horse_sex", "col_horse_age", "col_horse_book",
                  "col_horse_breeder", "col_union_name"]
EXCEL_TOETSEN = "shrnvmkglbfi"

MARKERING = (48, 140, 198)  # a selected row
AMBER = (0xFF, 0xBF, 0x3C)  # what the status line wants seen


def letterlijk(bijschrift):
    """A caption as a regular expression."""
    return re.sub(r"([][().])", r"\\\1", bijschrift)


def ligt_in(binnen, buiten):
    """Whether an area lies wholly within another one."""
    return (buiten[0] <= binnen[0] and binnen[0] + binnen[2] <= buiten[0] + buiten[2] and buiten[1] <= binnen[1]
            and binnen[1] + binnen[3] <= buiten[1] + buiten[3])


def eis(voorwaarde, anders):
    if not voorwaarde:
        raise Anders(anders)


class Dump:
    """What the program must show, asked of tavelo-dump."""

    def __init__(self, programma):
        self.programma = programma

    def roep(self, *opdracht):
        """What it prints."""
        return subprocess.run([str(self.programma), *map(str, opdracht)], check=True, capture_output=True,
                              encoding="utf-8",
                              env={"QT_QPA_PLATFORM": "offscreen", "LANG": "C.UTF-8", "TZ": "Europe/Amsterdam"}).stdout

    def lees(self, bestand, *opties, uiterlijk=None):
        for sleutel, waarde in (UITERLIJK if uiterlijk is None else uiterlijk).items():
            opties += ("--instelling", f"{sleutel}={waarde}")
        return json.loads(self.roep(*opties, bestand))

    def weergave(self, bestand, nummer, breedte, hoogte, *opties, uiterlijk=None):
        return self.lees(bestand, *opties, "--nummer", nummer, "--breedte", breedte * PIXEL, "--hoogte",
                         hoogte * PIXEL, uiterlijk=uiterlijk)["weergave"]


def rgb(kleur):
    return kleur & 0xFF, kleur >> 8 & 0xFF, kleur >> 16 & 0xFF


def controleer_vlak(beeld, vlak, boven, waar):
    """Looks, line by line, whether the texts of a composed area stand where they should, from row `boven` on."""
    achtergrond, voorgrond = rgb(vlak["achtergrond"]), rgb(vlak["voorgrond"])
    onder = boven
    for regel in vlak["regels"]:
        hoogte = regel["punten"] * PUNT * 1.1
        y = regel["y"] / PIXEL
        onder = max(onder, round(y + 1.1 * hoogte))
        # Without the edges of the line: there the tails and accents of its neighbours may reach in.
        strook = beeld.uitsnede((0, round(y + 0.15 * hoogte), beeld.breedte, round(0.87 * hoogte)))
        inkt = strook.inkt(achtergrond)
        verwacht = inktbreedte(regel["tekst"], regel["punten"])
        if not verwacht:
            eis(inkt is None, f"{waar}: er staat iets waar een lege regel hoort")
            continue
        eis(inkt is not None, f"{waar}: '{regel['tekst']}' staat er niet")
        speling = 3 + 0.15 * hoogte + 0.02 * verwacht
        eis(abs(inkt[0] - regel["x"] / PIXEL) <= speling and abs(inkt[1] - inkt[0] - verwacht) <= speling,
            f"{waar}: '{regel['tekst']}' hoort {verwacht:.0f} pixels breed te zijn vanaf {regel['x'] / PIXEL:.0f}, "
            f"er staat {inkt[1] - inkt[0]} vanaf {inkt[0]}")
        eis(strook.aandeel(voorgrond) > 0, f"{waar}: '{regel['tekst']}' heeft niet de gekozen kleur")
    rest = beeld.uitsnede((0, onder, beeld.breedte, beeld.hoogte - onder))
    eis(rest.inkt(achtergrond) is None, f"{waar}: onder de laatste regel staat nog iets")


def controleer_weergave(beeld, weergave, waar):
    """Looks whether a picture of the display shows what was composed for it."""
    rubriek, deelnemer = weergave["picRubriek"], weergave["picDeelnemer"]
    band = round(rubriek["hoogte"] / PIXEL) if rubriek["zichtbaar"] else 0
    if band:
        controleer_vlak(beeld.uitsnede((0, 0, beeld.breedte, band)), rubriek, 0, f"{waar}, kop")
    controleer_vlak(beeld, deelnemer, band + 1, waar)


class Verslag:
    """The pictures and sentences of a chapter."""

    def __init__(self, map_):
        self.map = map_
        self.regels = []
        self.volgnummer = 0

    def hoofdstuk(self, titel):
        self.regels.append(f"\n## {titel}\n")
        print(f"-- {titel}", flush=True)

    def stap(self, naam, zin, beeld):
        self.volgnummer += 1
        bestand = f"{self.volgnummer:02}-{naam}.png"
        beeld.bewaar(self.map / bestand)
        self.regels.append(f"{zin}\n\n![{zin}]({bestand})\n")
        print(f"   {zin}", flush=True)
        (self.map / "verslag.md").write_text("# Demonstratie\n" + "\n".join(self.regels), encoding="utf-8")


class Bediening:
    """The operator: knows the keys and where things are on the main window."""

    def __init__(self, scherm, programma):
        self.scherm = scherm
        self.proces = scherm.start(programma)

    def wacht_op_hoofdvenster(self):
        self.hoofd = self.scherm.venster(letterlijk(NAAMLOOS), 20)
        self.hoofd.activeer()
        self.scherm.rustig_beeld()

    def open(self, bestand, toets="ctrl+o"):
        """Through the open dialog, by typing the path."""
        self.scherm.toets(toets)
        dialoog = self.scherm.venster("Rooster openen")
        dialoog.activeer()
        self.scherm.typ(str(bestand))
        beeld = self.scherm.rustig_beeld()
        self.scherm.toets("Return")
        return beeld

    def wacht_op_bijschrift(self, bijschrift):
        wacht_tot(lambda: self.hoofd.bijschrift() == bijschrift, f"het bijschrift '{bijschrift}'")

    def typ_nummer(self, nummer):
        self.hoofd.activeer()
        self.scherm.toets("alt+n", "ctrl+a")
        self.scherm.typ(str(nummer))
        return self.scherm.rustig_beeld()

    def druk(self, toets):
        self.hoofd.activeer()
        self.scherm.toets(toets)
        return self.scherm.rustig_beeld()

    def voorbeeld(self, beeld, achtergrond=ROOM):
        """The preview in a picture of the screen: the heading's band and what lies below it in its own background."""
        venster = beeld.uitsnede(self.hoofd.vlak())
        band = venster.vlak_van(BLAUW)
        eis(band, "het voorbeeld is nergens te zien")
        links, boven, breedte, hoogte = band
        onder = boven + hoogte
        while onder < venster.hoogte and venster.kleur(links + breedte - 1, onder) == achtergrond:
            onder += 1
        return venster.uitsnede((links, boven, breedte, onder - boven))

    def gekozen_rij(self, beeld):
        """The highlighted row of the start list: its area in the main window."""
        vlak = self.lijst(beeld).vlak_van(MARKERING)
        eis(vlak, "er is geen gekozen rij in de startlijst")
        return vlak[0], vlak[1] + 150, vlak[2], vlak[3]

    def lijst(self, beeld):
        """The start list in a picture of the screen."""
        venster = beeld.uitsnede(self.hoofd.vlak())
        return venster.uitsnede((0, 150, venster.breedte // 2, venster.hoogte - 150))

    def open_monitor(self):
        self.druk("alt+p")
        return self.scherm.venster(letterlijk(BIJSCHRIFT_DEELNEMER))

    def open_instellingen(self):
        self.hoofd.activeer()
        self.scherm.toets("alt+b")
        self.scherm.toets("i")
        venster = self.scherm.venster("Instellingen")
        venster.activeer()
        self.scherm.rustig_beeld()

    def sluit(self):
        """The way an operator ends it; gives the settings that are then in the store."""
        self.hoofd.activeer()
        self.scherm.toets("alt+F4")
        wacht_tot(lambda: self.proces.poll() is not None, "het einde van het programma")
        eis(self.proces.returncode == 0, f"het programma eindigt met {self.proces.returncode}")
        return lees_instellingen(self.scherm)


def lees_instellingen(scherm):
    ini = configparser.RawConfigParser(delimiters=("=",), strict=False)
    ini.optionxform = str
    ini.read(scherm.thuis / "config" / INI_NAAM, encoding="utf-8")
    return {sleutel: waarde for sectie in ini.sections() for sleutel, waarde in ini.items(sectie)}


def schrijf_instellingen(scherm, layout, excel=None):
    regels = ["[Layout]", *(f"{sleutel}={waarde}" for sleutel, waarde in layout.items())]
    regels += ["[Excel]", *(f"{sleutel}={waarde}" for sleutel, waarde in (excel or {}).items())]
    (scherm.thuis / "config" / INI_NAAM).write_text("\n".join(regels) + "\n", encoding="utf-8")


def genummerde_rijen(rooster):
    """The rows of a start list that carry a number, as (row, number)."""
    return [(rij, teksten[INR]) for rij, teksten in enumerate(rooster) if rij and teksten[INR].isdigit()]


def herschreven_rooster(bestand, nieuw, nummer, nieuwe):
    """The file as the suite would rewrite it: another horse for `nummer`, and a new combination right behind it."""
    regels = bestand.read_bytes().decode("cp1252").split("\r\n")
    plaats = next(i for i, regel in enumerate(regels) if regel.startswith(f"dnr:{nummer}\t"))
    anders = re.sub(r"\tpa:[^\t]*", "\tpa:Invalster van Sint-Oedenrode", regels[plaats])
    toegevoegd = re.sub(r"\tna:[^\t]*", "\tna:Désirée Nakomer", anders).replace(f"dnr:{nummer}", f"dnr:{nieuwe}", 1)
    regels[plaats:plaats + 1] = [anders, toegevoegd]
    rubriek = next(i for i, regel in enumerate(regels) if regel.startswith("rnr:"))
    start = re.search(rf"\tdnr:{nummer}(\t[^\t]*){{6}}", regels[rubriek])[0]
    regels[rubriek] = regels[rubriek].replace(start, start + start.replace(nummer, nieuwe, 1), 1)
    nieuw.write_bytes("\r\n".join(regels).encode("cp1252"))


class Demonstratie:
    def __init__(self, keuze):
        self.programma = keuze.program.resolve()
        self.dump = Dump(keuze.dump.resolve())
        self.verslag = Verslag(keuze.output)

    def controleer_voorbeeld(self, bediening, beeld, bestand, nummer, *opties, uiterlijk=None):
        voorbeeld = bediening.voorbeeld(beeld)
        controleer_weergave(voorbeeld, self.dump.weergave(bestand, nummer, voorbeeld.breedte, voorbeeld.hoogte, *opties,
                                                          uiterlijk=uiterlijk), "voorbeeld")

    def controleer_monitor(self, beeld, bestand, nummer, *opties, uiterlijk=None):
        controleer_weergave(beeld, self.dump.weergave(bestand, nummer, beeld.breedte, beeld.hoogte, *opties,
                                                      uiterlijk=uiterlijk), "monitor")

    @contextlib.contextmanager
    def op_scherm(self, soort=Scherm):
        """A display; what stands on it when a step goes wrong is kept as mis.png."""
        with soort() as scherm:
            try:
                yield scherm
            except Anders:
                scherm.beeld().bewaar(self.verslag.map / "mis.png")
                raise

    # The chapters.

    def rooster(self):
        verslag, bestand = self.verslag, EXAMPLES / "springen.rst"
        verslag.hoofdstuk("Van roosterbestand naar monitor")
        rooster = self.dump.lees(bestand)
        rijen = genummerde_rijen(rooster["rooster"])
        with self.op_scherm() as scherm:
            schrijf_instellingen(scherm, UITERLIJK)
            leeg = scherm.beeld()
            bediening = Bediening(scherm, self.programma)
            wacht_tot(lambda: scherm.beeld() != leeg, "het openingsbeeld")
            time.sleep(1)
            beeld = scherm.beeld()
            eis(beeld != leeg and not scherm.vensters(r"Vendalo.*naamloos\]"), "het openingsbeeld staat er niet alleen")
            verslag.stap("openingsbeeld", "Het programma begint met zijn openingsbeeld.", beeld)

            bediening.wacht_op_hoofdvenster()
            begin = scherm.beeld()
            verslag.stap("leeg", "Drie seconden later staat het hoofdvenster klaar, nog zonder rooster.", begin)

            verslag.stap("dialoog", "Ctrl+O vraagt welk rooster; het pad wordt ingetypt.", bediening.open(bestand))
            bediening.wacht_op_bijschrift(rooster["bijschrift"])
            beeld = scherm.rustig_beeld()
            eis(beeld != begin, "het hoofdvenster verandert niet")
            verslag.stap("geopend", "Het rooster staat in de lijst, met startnummers, tijden en pauzes.", beeld)

            _, nummer = rijen[4]
            beeld = bediening.typ_nummer(nummer)
            self.controleer_voorbeeld(bediening, beeld, bestand, nummer)
            verslag.stap("nummer", f"Nummer {nummer} is ingetypt: het voorbeeld toont die combinatie, de rij is gemarkeerd.",
                         beeld)

            # Next, over the pause that stands before row 12.
            vorige, (_, volgende) = next((a, b) for a, b in zip(rijen, rijen[1:]) if b[0] - a[0] > 1)
            bediening.typ_nummer(vorige[1])
            beeld = bediening.druk("alt+o")
            self.controleer_voorbeeld(bediening, beeld, bestand, volgende)
            verslag.stap("volgende", f"Volgende: van {vorige[1]} over de pauze heen naar {volgende}.", beeld)
            beeld = bediening.druk("alt+v")
            self.controleer_voorbeeld(bediening, beeld, bestand, vorige[1])
            verslag.stap("vorige", f"Vorige: terug naar {vorige[1]}.", beeld)

            # A click two rows above the chosen one.
            links, boven, _, hoogte = bediening.gekozen_rij(beeld)
            bediening.hoofd.klik(links + 200, boven + hoogte // 2 - 2 * (hoogte + 1))
            scherm.muis_weg()
            geklikt = rooster["rooster"][vorige[0] - 2][INR]
            beeld = scherm.rustig_beeld()
            self.controleer_voorbeeld(bediening, beeld, bestand, geklikt)
            verslag.stap("muis", f"Een klik in de lijst toont nummer {geklikt}.", beeld)

            beeld = bediening.typ_nummer(9999)
            self.controleer_voorbeeld(bediening, beeld, bestand, 9999)
            verslag.stap("onbekend", "Een nummer dat niet meedoet: alleen de kop van de rubriek blijft staan.", beeld)

            bediening.typ_nummer(nummer)
            monitor = bediening.open_monitor()
            beeld = scherm.rustig_beeld()
            self.controleer_monitor(beeld.uitsnede(monitor.vlak()), bestand, nummer)
            eis(monitor.heeft_rand(), "het monitorvenster heeft geen rand")
            verslag.stap("monitorvenster", "Het monitorvenster is open en toont dezelfde combinatie.", beeld)

            # It belongs to the main window: raising that one does not cover it.
            scherm.xdotool("windowraise", bediening.hoofd.nummer)
            self.controleer_monitor(scherm.rustig_beeld().uitsnede(monitor.vlak()), bestand, nummer)

            beeld = self.wissel_beeldvullend(scherm, bediening, True)
            self.controleer_monitor(beeld, bestand, nummer)
            verslag.stap("beeldvullend", "F11 vult het hele scherm, zonder rand en zonder muisaanwijzer.", beeld)

            # The keys still go to the main window behind it.
            scherm.toets("ctrl+a")
            scherm.typ(volgende)
            beeld = scherm.rustig_beeld()
            self.controleer_monitor(beeld, bestand, volgende)
            verslag.stap("ander-nummer", f"De operateur typt verder: nummer {volgende} staat op de monitor.", beeld)

            # A click on the wall gives the keys back to the number box, and Alt+F4 there closes nothing.
            monitor.klik(200, 200)
            scherm.muis_weg()
            wacht_tot(lambda: scherm.xdotool("getactivewindow").strip() == str(bediening.hoofd.nummer),
                      "het hoofdvenster weer onder de toetsen")
            scherm.typ(nummer)
            self.controleer_monitor(scherm.rustig_beeld(), bestand, nummer)
            monitor.activeer()
            scherm.toets("alt+F4")
            self.controleer_monitor(scherm.rustig_beeld(), bestand, nummer)
            bediening.hoofd.activeer()

            # Typed as fast as the computer can, no key of the next number is lost behind that of the button.
            scherm.xdotool("key", "--delay", "0", "alt+w", *str(volgende))
            beeld = scherm.rustig_beeld()
            self.controleer_monitor(beeld, bestand, volgende)
            verslag.stap("niets-kwijt", "Een klik op de monitor en snelle toetsen: geen cijfer gaat verloren.", beeld)

            beeld = self.wissel_beeldvullend(scherm, bediening, False)
            scherm.venster(letterlijk(BIJSCHRIFT_MONITOR))
            verslag.stap("terug", "Nog eens F11: de monitor is weer een gewoon venster.", beeld)

            # The same key in the window itself, with that window's own caption.
            monitor.activeer()
            scherm.toets("F11")
            wacht_tot(lambda: monitor.vlak() == (0, 0, scherm.breedte, scherm.hoogte), "het beeldvullende venster")
            self.controleer_monitor(scherm.rustig_beeld(), bestand, volgende)
            scherm.toets("F11")
            scherm.venster(letterlijk(BIJSCHRIFT_DEELNEMER))
            beeld = scherm.rustig_beeld()
            verslag.stap("f11-daar", "F11 werkt ook in het monitorvenster zelf.", beeld)

            bediening.druk("alt+w")
            monitor.activeer()
            beeld = scherm.rustig_beeld()
            vlak = beeld.uitsnede(monitor.vlak())
            eis(vlak.aandeel(ROOM) + vlak.aandeel(BLAUW) > 0.999, "de monitor is niet leeg")
            verslag.stap("gewist", "Wissen: er is niemand in de ring.", beeld)

            bediening.druk("alt+p")
            wacht_tot(lambda: not scherm.vensters("(Toon combinatie|Monitor venster).*"), "het sluiten van de monitor")
            bewaard = bediening.sluit()
            eis(bewaard["lastfolder"] == f"{EXAMPLES}/", f"lastfolder is {bewaard.get('lastfolder')}")
            eis(bewaard["backcolor"] == str(0xECF9FF), f"backcolor is {bewaard['backcolor']}")

    def wissel_beeldvullend(self, scherm, bediening, aan):
        bediening.hoofd.activeer()
        scherm.toets("F11")

        def vult():
            hoeken = [(0, 0), (scherm.breedte - 1, 0), (0, scherm.hoogte - 1), (scherm.breedte - 1, scherm.hoogte - 1)]
            beeld = scherm.beeld()
            return all(beeld.kleur(*hoek) in (BLAUW, ROOM) for hoek in hoeken)
        wacht_tot(lambda: vult() == aan, "het wisselen van beeldvullend")
        return scherm.rustig_beeld()

    def wijziging(self):
        verslag = self.verslag
        verslag.hoofdstuk("Het rooster verandert terwijl de rubriek loopt")
        with self.op_scherm() as scherm:
            schrijf_instellingen(scherm, UITERLIJK)
            bestand, nieuw = scherm.thuis / "Documents" / "rubriek.rst", scherm.thuis / "nieuw.rst"
            shutil.copy(EXAMPLES / "springen.rst", bestand)
            os.utime(bestand, (time.time() - 60,) * 2)
            rijen = genummerde_rijen(self.dump.lees(bestand)["rooster"])
            nummer = rijen[4][1]
            herschreven_rooster(bestand, nieuw, nummer, nieuwe="199")

            bediening = Bediening(scherm, self.programma)
            bediening.wacht_op_hoofdvenster()
            bediening.open(bestand)
            bediening.wacht_op_bijschrift(self.dump.lees(bestand)["bijschrift"])
            beeld = bediening.typ_nummer(nummer)
            self.controleer_voorbeeld(bediening, beeld, bestand, nummer)
            voorbeeld = bediening.voorbeeld(beeld)
            verslag.stap("voor", f"Nummer {nummer} rijdt; het wedstrijdprogramma heeft het rooster geschreven.", beeld)

            # The other program writes the file; nobody touches this one.
            subprocess.run(["cp", str(nieuw), str(bestand)], check=True)
            lijst = bediening.lijst(beeld)
            wacht_tot(lambda: bediening.lijst(scherm.beeld()) != lijst, "het volgen van het gewijzigde rooster", 25)
            beeld = scherm.rustig_beeld()
            eis(bediening.voorbeeld(beeld) == voorbeeld, "wat op de monitor staat verandert uit zichzelf")
            verslag.stap("gevolgd", "Binnen tien seconden staat in de lijst wat een ander programma schreef: een ander "
                                    "paard en een nieuwe combinatie. De monitor en het getypte nummer blijven staan.",
                         beeld)

            beeld = bediening.druk("alt+o")
            self.controleer_voorbeeld(bediening, beeld, nieuw, "199")
            verslag.stap("nieuwe", "Volgende: de nieuwe combinatie staat op de plaats die zij in het rooster kreeg.",
                         beeld)
            beeld = bediening.typ_nummer(nummer)
            self.controleer_voorbeeld(bediening, beeld, nieuw, nummer)
            eis(bediening.voorbeeld(beeld) != voorbeeld, "het nieuwe paard is niet te zien")
            verslag.stap("ander-paard", f"Nummer {nummer} rijdt nu een ander paard.", beeld)
            bediening.sluit()

    def startlijst(self):
        verslag, bestand = self.verslag, EXAMPLES / "startlijst.xlsx"
        verslag.hoofdstuk("Een startlijst uit Excel")
        kolommen = dict(zip(EXCEL_SLEUTELS, "ABCDEFGHIJKL"))
        with self.op_scherm() as scherm:
            schrijf_instellingen(scherm, UITERLIJK)
            bediening = Bediening(scherm, self.programma)
            bediening.wacht_op_hoofdvenster()
            bediening.open(bestand)
            melding = scherm.venster(r"Vendalo 3\.5 Tavelo")
            verslag.stap("melding", "Een werkmap zonder opgegeven kolommen: het programma vraagt erom.",
                         scherm.rustig_beeld())
            melding.activeer()
            scherm.toets("Return")
            wacht_tot(lambda: not scherm.vensters(r"Vendalo 3\.5 Tavelo"), "het sluiten van de melding")
            bediening.wacht_op_bijschrift(self.dump.lees(bestand)["bijschrift"])

            bediening.open_instellingen()
            scherm.toets("alt+x")
            for toets, letter in zip(EXCEL_TOETSEN, kolommen.values()):
                scherm.toets(f"alt+{toets}", letter.lower())
            verslag.stap("kolommen", "In de instellingen krijgt elk veld de letter van zijn kolom; de lijst loopt mee.",
                         scherm.rustig_beeld())
            scherm.toets("Return")
            wacht_tot(lambda: not scherm.vensters("Instellingen"), "het sluiten van de instellingen")

            # With the keys: into the list, to the first row (the sheet's own titles) and three down.
            bediening.hoofd.activeer()
            scherm.toets("alt+n", *["Tab"] * 9, "Home", "Down", "Down", "Down")
            beeld = scherm.rustig_beeld()
            bediening.gekozen_rij(beeld)
            voorbeeld = bediening.voorbeeld(beeld)
            controleer_weergave(voorbeeld, self.weergave_uit_werkblad(bestand, 4, voorbeeld, kolommen), "voorbeeld")
            verslag.stap("getoond", "De vierde rij is gekozen: tijd, namen en leeftijd staan er zoals in het werkblad.",
                         beeld)
            bewaard = bediening.sluit()
            eis({sleutel: bewaard[sleutel] for sleutel in kolommen} == kolommen, "de kolommen zijn niet bewaard")

    def weergave_uit_werkblad(self, bestand, rij, voorbeeld, kolommen):
        """The display of a row of the workbook: its own texts, placed as those of a schedule in the same area."""
        cellen = list(csv.reader(self.dump.roep("--blad", "1", "--land", "en-US", bestand).splitlines()))[rij - 1]
        veld = {sleutel: cellen[ord(letter) - ord("A")] for sleutel, letter in kolommen.items()}
        teksten = [veld["col_startnumber"], veld["col_rider_name"], veld["col_horse_name"],
                   f"{veld['col_horse_sire']} x {veld['col_horse_siredam']}",
                   f"{veld['col_horse_color']} / {veld['col_horse_sex']} / {veld['col_horse_age']}",
                   veld["col_horse_book"], veld["col_union_name"], veld["col_rider_name"]]

        model = EXAMPLES / "springen.rst"
        nummer = genummerde_rijen(self.dump.lees(model)["rooster"])[0][1]
        weergave = self.dump.weergave(model, nummer, voorbeeld.breedte, voorbeeld.hoogte)
        regels = weergave["picDeelnemer"]["regels"]
        eis(len(regels) == len(teksten), "de weergave heeft een ander aantal regels dan het werkblad velden")
        for regel, tekst in zip(regels, teksten):
            regel["tekst"] = tekst
        weergave["picRubriek"]["regels"] = []  # the number box is empty: the band has no heading
        return weergave

    def uiterlijk(self):
        verslag, bestand = self.verslag, EXAMPLES / "dressuur.rst"
        verslag.hoofdstuk("Het uiterlijk van de monitor")
        gekozen = {"textsize": "130", "showrubric": "1", "showhorsecolor": "1", "rubricbackcolor": str(0x5F3C14),
                   "rubricforecolor": str(0xFFFFFF)}
        nummer = genummerde_rijen(self.dump.lees(bestand)["rooster"])[2][1]
        with self.op_scherm() as scherm:
            bediening = Bediening(scherm, self.programma)
            bediening.wacht_op_hoofdvenster()
            bediening.open(bestand)
            bediening.wacht_op_bijschrift(self.dump.lees(bestand)["bijschrift"])
            bediening.typ_nummer(nummer)
            monitor = bediening.open_monitor()
            voor = scherm.rustig_beeld().uitsnede(monitor.vlak())
            self.controleer_monitor(voor, bestand, nummer, uiterlijk={})

            self.kies_uiterlijk(scherm, bediening)
            monitor.scherm.xdotool("windowraise", monitor.nummer)
            beeld = scherm.rustig_beeld()
            self.controleer_monitor(beeld.uitsnede(monitor.vlak()), bestand, nummer, uiterlijk=gekozen)
            verslag.stap("kiezen", "Elke wijziging in de instellingen is meteen op de monitor te zien.", beeld)
            scherm.venster("Instellingen").activeer()
            scherm.toets("Escape")
            wacht_tot(lambda: not scherm.vensters("Instellingen"), "het sluiten van de instellingen")
            monitor.activeer()
            beeld = scherm.rustig_beeld()
            eis(beeld.uitsnede(monitor.vlak()) == voor, "annuleren zet de monitor niet terug")
            verslag.stap("annuleren", "Esc zet alles terug zoals het was.", beeld)

            self.kies_uiterlijk(scherm, bediening)
            scherm.toets("alt+l")
            scherm.typ("Liberation")  # the first one of that name
            scherm.rustig_beeld()
            scherm.toets("Return")
            wacht_tot(lambda: not scherm.vensters("Instellingen"), "het sluiten van de instellingen")
            monitor.activeer()
            beeld = scherm.rustig_beeld()
            eis(beeld.uitsnede(monitor.vlak()) != voor, "OK houdt de wijzigingen niet vast")
            verslag.stap("ok", "Nog eens, met een ander lettertype, en nu met OK: het blijft zo.", beeld)
            bewaard = bediening.sluit()
            verwacht = gekozen | {"fontname": "Liberation Mono", "showridername": "1", "backcolor": str(0xFFFFFF)}
            anders = {sleutel: bewaard.get(sleutel) for sleutel, waarde in verwacht.items() if bewaard.get(sleutel) != waarde}
            eis(not anders, f"anders bewaard dan gekozen: {anders}")

            bediening = Bediening(scherm, self.programma)
            bediening.wacht_op_hoofdvenster()
            bediening.open(bestand)
            bediening.wacht_op_bijschrift(self.dump.lees(bestand)["bijschrift"])
            beeld = bediening.typ_nummer(nummer)
            voorbeeld = bediening.voorbeeld(beeld, WIT)
            controleer_weergave(voorbeeld, self.dump.weergave(bestand, nummer, voorbeeld.breedte, voorbeeld.hoogte,
                                                              uiterlijk=gekozen), "voorbeeld")
            verslag.stap("herstart", "Na een nieuwe start is het gekozen uiterlijk er nog, alleen het lettertype begint "
                                     "weer met Arial.", beeld)
            bediening.sluit()

    @staticmethod
    def kies_uiterlijk(scherm, bediening):
        """In the settings: larger texts, a heading in other colours, the colour of the horse."""
        bediening.open_instellingen()
        scherm.toets("alt+o", *["Right"] * 6)  # size of the participant's texts, 5 % a step
        scherm.toets("alt+r", "alt+k")  # heading, colour of the horse
        for toets, kleur in (("alt+c", "#143c5f"), ("alt+t", "#ffffff")):
            scherm.toets(toets)
            dialoog = scherm.venster("Kleur kiezen")
            dialoog.activeer()
            scherm.rustig_beeld()
            scherm.toets("alt+m", "ctrl+a")
            scherm.typ(kleur)
            scherm.rustig_beeld()
            scherm.toets("Return")
            wacht_tot(lambda: not scherm.vensters("Kleur kiezen"), "het sluiten van de kleuren")


    def wedstrijddag(self):
        verslag = self.verslag
        verslag.hoofdstuk("Een wedstrijddag op twee schermen")
        with self.op_scherm(TweeSchermen) as scherm:
            schrijf_instellingen(scherm, UITERLIJK)
            ochtend, middag = (scherm.thuis / "Documents" / naam for naam in ("ochtend.rst", "middag.rst"))
            for voorbeeld, bestand in (("springen.rst", ochtend), ("dressuur.rst", middag)):
                shutil.copy(EXAMPLES / voorbeeld, bestand)
                os.utime(bestand, (time.time() - 60,) * 2)
            rijen = genummerde_rijen(self.dump.lees(ochtend)["rooster"])
            nummer, volgende = rijen[4][1], rijen[6][1]

            bediening = Bediening(scherm, self.programma)
            bediening.wacht_op_hoofdvenster()
            bediening.open(ochtend)
            bediening.wacht_op_bijschrift(self.dump.lees(ochtend)["bijschrift"])
            bediening.typ_nummer(nummer)
            monitor = bediening.open_monitor()
            eis(ligt_in(monitor.vlak(), scherm.wand()), "het monitorvenster opent niet op het tweede scherm")
            verslag.stap("begin", f"Het rooster is open, nummer {nummer} is getypt en het monitorvenster staat vanzelf op "
                                  "het tweede scherm.", scherm.rustig_beeld())

            bediening.hoofd.activeer()
            scherm.toets("F11")
            wacht_tot(lambda: monitor.vlak() == scherm.wand(), "het beeldvullende venster op het tweede scherm")
            beeld = scherm.rustig_beeld()
            self.controleer_monitor(beeld.uitsnede(scherm.wand()), ochtend, nummer)
            verslag.stap("wand", "F11: het vult dat scherm. De operateur houdt het eerste.", beeld)

            time.sleep(1.6)  # after this pause a digit begins the next number
            scherm.typ(volgende)
            beeld = scherm.rustig_beeld()
            self.controleer_monitor(beeld.uitsnede(scherm.wand()), ochtend, volgende)
            verslag.stap("volgende", f"De volgende komt binnen: {volgende}, zonder Enter en zonder te wissen.", beeld)
            wand = beeld.uitsnede(scherm.wand())

            scherm.xdotool("windowminimize", bediening.hoofd.nummer)
            beeld = scherm.rustig_beeld()
            eis(beeld.kleur(400, 300) == (0, 0, 0), "het hoofdvenster is niet klein gemaakt")
            eis(beeld.uitsnede(scherm.wand()) == wand, "de wand gaat mee met het hoofdvenster")
            verslag.stap("klein", "Het hoofdvenster klein maken laat de monitor staan.", beeld)
            bediening.hoofd.activeer()

            eis(not self.in_amber(bediening, scherm.rustig_beeld()), "de statusregel is al amber")
            scherm.trek_uit()
            wacht_tot(lambda: monitor.heeft_rand() and self.in_amber(bediening, scherm.beeld()), "het uitwijken")
            verslag.stap("los", "Iemand trekt de stekker van de monitor uit: het venster staat naast de lijst, de "
                                "statusregel zegt waarom, de toetsen blijven bij de operateur.", scherm.rustig_beeld())
            scherm.steek_in()
            wacht_tot(lambda: monitor.vlak() == scherm.wand(), "het terugkeren naar de monitor")
            beeld = scherm.rustig_beeld()
            self.controleer_monitor(beeld.uitsnede(scherm.wand()), ochtend, volgende)
            wand = beeld.uitsnede(scherm.wand())
            verslag.stap("vast", "De stekker zit er weer in: alles staat terug.", beeld)

            self.herschrijf(scherm, bediening, ochtend, volgende)
            wacht_tot(lambda: self.in_amber(bediening, scherm.beeld()), "de amberen statusregel")
            beeld = scherm.rustig_beeld()
            eis(beeld.uitsnede(scherm.wand()) == wand, "wat op de monitor staat verandert uit zichzelf")
            verslag.stap("herschreven", "Het wedstrijdprogramma heeft het rooster herschreven: de statusregel zegt wat, en "
                                        "in amber dat het paard op de monitor niet meer klopt.", beeld)
            scherm.toets("F6")
            verslagvenster = scherm.venster("Wijzigingen van vandaag")
            eis(ligt_in(verslagvenster.vlak(), scherm.bureau()), "de wijzigingen staan op de monitor")
            verslag.stap("wijzigingen", "F6 laat zien wat er gewijzigd is.", scherm.rustig_beeld())
            scherm.toets("Escape")
            wacht_tot(lambda: not scherm.vensters("Wijzigingen van vandaag"), "het sluiten van de wijzigingen")
            bediening.typ_nummer(volgende)
            beeld = scherm.rustig_beeld()
            self.controleer_monitor(beeld.uitsnede(scherm.wand()), ochtend, volgende)
            eis(not self.in_amber(bediening, beeld), "de statusregel blijft amber")
            wand = beeld.uitsnede(scherm.wand())
            verslag.stap("bijgewerkt", "Het nummer nog eens getypt: het nieuwe paard staat er, het amber is weg.", beeld)

            bediening.open(middag, "alt+2")
            bediening.wacht_op_bijschrift(self.dump.lees(middag)["bijschrift"])
            beeld = scherm.rustig_beeld()
            eis(beeld.uitsnede(scherm.wand()) == wand, "de wand wisselt mee met de lijst")
            eis(self.in_amber(bediening, beeld), "de statusregel verzwijgt de andere lijst")
            verslag.stap("lijstwissel", "Rooster 2 wordt vast geopend. Op de monitor rijdt nog de vorige rubriek; de "
                                        "statusregel zegt het in amber.", beeld)
            nummer = genummerde_rijen(self.dump.lees(middag)["rooster"])[0][1]
            beeld = bediening.typ_nummer(nummer)
            self.controleer_monitor(beeld.uitsnede(scherm.wand()), middag, nummer)
            eis(not self.in_amber(bediening, beeld), "de statusregel blijft amber")
            verslag.stap("nieuwe-rubriek", f"De nieuwe rubriek begint: nummer {nummer}.", beeld)
            bediening.sluit()
            wacht_tot(lambda: not scherm.vensters("Wijzigingen.*"), "het einde van alle vensters")

    @staticmethod
    def in_amber(bediening, beeld):
        """Whether the status line at the foot of the main window wants something seen."""
        links, boven, breedte, hoogte = bediening.hoofd.vlak()
        return beeld.uitsnede((links, boven + hoogte - 40, breedte, 40)).aandeel(AMBER) > 0

    @staticmethod
    def herschrijf(scherm, bediening, bestand, nummer):
        """The other program rewrites the file; waits until the list follows."""
        nieuw = scherm.thuis / "nieuw.rst"
        herschreven_rooster(bestand, nieuw, nummer, nieuwe="199")
        lijst = bediening.lijst(scherm.beeld())
        subprocess.run(["cp", str(nieuw), str(bestand)], check=True)
        wacht_tot(lambda: bediening.lijst(scherm.beeld()) != lijst, "het volgen van het gewijzigde rooster", 25)


HOOFDSTUKKEN = ["rooster", "wijziging", "startlijst", "uiterlijk", "wedstrijddag"]


def main():
    opties = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    opties.add_argument("--program", type=Path, required=True)
    opties.add_argument("--dump", type=Path, required=True)
    opties.add_argument("--output", type=Path, required=True)
    opties.add_argument("hoofdstukken", nargs="*", metavar="CHAPTER", help=", ".join(HOOFDSTUKKEN))
    keuze = opties.parse_args()

    shutil.rmtree(keuze.output, ignore_errors=True)
    keuze.output.mkdir(parents=True)
    demonstratie = Demonstratie(keuze)
    try:
        for hoofdstuk in keuze.hoofdstukken or HOOFDSTUKKEN:
            getattr(demonstratie, hoofdstuk)()
    except Anders as anders:
        print(f"MIS: {anders}", file=sys.stderr)
        return 1
    print(f"alles is te zien in {keuze.output}/verslag.md")
    return 0


if __name__ == "__main__":
    sys.exit(main())
