#!/usr/bin/python3
"""What a screen reader is told of the three windows, asked from outside.

    tests/toegankelijk/toegankelijk_test.py TAVELO

With the system's Python: the library of the accessibility bus is a package of the system.
"""

import os
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

from demo import BIJSCHRIFT_DEELNEMER, EXAMPLES, UITERLIJK, Bediening, letterlijk, schrijf_instellingen  # noqa: E402
from scherm import Scherm, wacht_tot  # noqa: E402

PROGRAMMA = ""
BUS = "/usr/libexec/at-spi-bus-launcher"

HOOFDVENSTER = [
    ("text", "Nummer van de combinatie in de ring"),
    ("push button", "Vorige combinatie"),
    ("push button", "Volgende combinatie"),
    ("push button", "Nummer wissen"),
    ("check box", "Rooster 1"),
    ("check box", "Rooster 2"),
    ("push button", "Rooster openen"),
    ("push button", "Instellingen"),
    ("check box", "Monitorvenster"),
    ("table", "Startlijst"),
    ("image", "Voorbeeld van de monitor"),
    ("menu item", "Bestand"),
    ("menu item", "Openen"),
    ("menu item", "Instellingen"),
    ("menu item", "Afsluiten\tAlt+F4"),
    ("menu item", "Popup"),
]
KOLOMMEN = ["Startnummer-tijd", "Hoofdstelnummer", "Ruiter Naam", "Dier Naam", "Dier Vader", "Dier Vader Moeder",
            "Dier Kleur", "Dier Geslacht", "Dier Leeftijd", "Dier Stamboek", "Dier Fokker", "Vereniging Naam"]


def start_bus(scherm):
    """The session's bus and the accessibility bus, both of this display alone."""
    adres = f"unix:path={scherm.thuis}/runtime/bus"
    scherm.start_achtergrond("dbus-daemon", "--session", "--nofork", "--address", adres)
    wacht_tot((scherm.thuis / "runtime/bus").exists, "de bus van de sessie")
    scherm.omgeving |= {"DBUS_SESSION_BUS_ADDRESS": adres, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
    scherm.start_achtergrond(BUS, "--launch-immediately")
    os.environ.update(scherm.omgeving)


class Toegankelijk(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.scherm = Scherm(1280, 800)
        cls.addClassCleanup(cls.scherm.sluit)
        start_bus(cls.scherm)
        global at_spi
        import at_spi  # only now: it connects to the bus of this display

        # What the desktop opens pages with: a test says how.
        cls.browser = cls.scherm.thuis / "xdg-open"
        cls.browser.touch(0o755)
        cls.scherm.omgeving["PATH"] = f"{cls.scherm.thuis}:{cls.scherm.omgeving['PATH']}"
        schrijf_instellingen(cls.scherm, UITERLIJK)
        cls.bediening = Bediening(cls.scherm, PROGRAMMA)
        cls.bediening.wacht_op_hoofdvenster()
        cls.bediening.open(EXAMPLES / "springen.rst")
        cls.hoofd = cls.scherm.venster(".*springen.*")
        cls.tavelo = wacht_tot(lambda: at_spi.programma("tavelo"), "het programma op de bus", 30)

    def venster(self, naam):
        return wacht_tot(lambda: next((v for v in self.tavelo.kinderen() if naam in v.naam), None),
                         f"een venster '{naam}' op de bus")

    def test_elke_besturing_van_het_hoofdvenster_heeft_haar_soort_en_naam(self):
        besturingen = self.venster("springen").besturingen()
        # The status line is a text; its contents have a test of their own.
        self.assertEqual([b for b in besturingen if b[0] != "status bar" and "F5" not in b[1]], HOOFDVENSTER)

    def test_het_nummervak_zegt_wat_er_in_staat_en_heeft_de_toetsen(self):
        vak = self.venster("springen").vind("text", "Nummer van de combinatie in de ring")
        self.bediening.typ_nummer(178)
        wacht_tot(lambda: vak.tekst == "178", "178 in het nummervak")
        self.assertTrue(vak.heeft_de_toetsen())
        self.bediening.druk("alt+w")
        wacht_tot(lambda: vak.tekst == "", "een leeg nummervak")

    def test_het_nummervak_zegt_dat_een_nummer_niet_in_de_lijst_staat(self):
        vak = self.venster("springen").vind("text", "Nummer van de combinatie in de ring")
        self.bediening.typ_nummer(3999)
        wacht_tot(lambda: "niet in de lijst" in vak.uitleg, "de uitleg bij een onbekend nummer")
        self.bediening.typ_nummer(178)
        wacht_tot(lambda: "niet in de lijst" not in vak.uitleg, "de gewone uitleg")

    def test_het_voorbeeld_leest_voor_wat_er_op_staat(self):
        voorbeeld = self.venster("springen").vind("image", "Voorbeeld van de monitor")
        self.bediening.typ_nummer(178)
        wacht_tot(lambda: "Ymkje Quaedvlieg" in voorbeeld.uitleg, "de ruiter in het voorbeeld")
        self.bediening.druk("alt+w")
        wacht_tot(lambda: "Ymkje Quaedvlieg" not in voorbeeld.uitleg, "een leeg voorbeeld")

    def test_de_knop_van_het_monitorvenster_en_het_venster_volgen_het_scherm(self):
        knop = self.venster("springen").vind("check box", "Monitorvenster")
        self.assertFalse(knop.is_aan())
        self.bediening.typ_nummer(178)
        self.bediening.druk("alt+p")
        self.scherm.venster(letterlijk(BIJSCHRIFT_DEELNEMER))
        wacht_tot(knop.is_aan, "de ingedrukte knop")
        monitor = self.venster("Monitorvenster")
        self.assertEqual(monitor.naam, "Monitorvenster met de combinatie in de ring")
        beeld = next(o for o in monitor.alle() if o.soort == "image")
        self.assertIn("Ymkje Quaedvlieg", beeld.uitleg)
        self.bediening.druk("alt+p")
        wacht_tot(lambda: not knop.is_aan(), "de losse knop")

    def test_f1_opent_de_handleiding_en_de_statusregel_zegt_het_als_dat_niet_lukt(self):
        regel = self.venster("springen").vind("status bar")
        gevraagd = self.scherm.thuis / "gevraagd"
        for uitkomst, gezegd in ((0, "de handleiding opent in de browser"), (3, "geen browser gevonden")):
            gevraagd.unlink(missing_ok=True)
            self.browser.write_text(f'#!/bin/sh\nprintf %s "$1" >{gevraagd}\nexit {uitkomst}\n')
            self.bediening.druk("F1")
            wacht_tot(lambda: gezegd in regel.naam, f"'{gezegd}' in de statusregel")
            wacht_tot(lambda: gevraagd.is_file() and gevraagd.read_text().endswith("/handleiding.html"), "de browser")
            self.assertTrue(Path(gevraagd.read_text().removeprefix("file://")).is_file())

    def test_een_roosterknop_zegt_of_hij_gekozen_is_en_welk_bestand_hij_heeft(self):
        venster = self.venster("springen")
        een, twee = (venster.vind("check box", f"Rooster {i}") for i in (1, 2))
        self.assertEqual((een.is_aan(), twee.is_aan()), (True, False))
        self.assertEqual(een.uitleg, str(EXAMPLES / "springen.rst"))

    def test_de_startlijst_leest_haar_cellen_voor(self):
        lijst = self.venster("springen").vind("table", "Startlijst")
        namen = [o.naam for o in lijst.kinderen() if o.soort == "table cell"]
        self.assertIn("Ymkje Quaedvlieg (HC)", namen)

    def test_elke_besturing_van_de_instellingen_heeft_haar_soort_en_naam(self):
        self.bediening.open_instellingen()
        self.addCleanup(self.sluit_instellingen)
        dialoog = self.venster("Instellingen")
        besturingen = dialoog.besturingen()
        zonder_naam = [soort for soort, naam in besturingen if not naam.strip()]
        self.assertEqual(zonder_naam, [])
        for kolom in KOLOMMEN:
            self.assertIn(("combo box", kolom), besturingen)
        for naam in ["Achtergrondkleur rubriek", "Tekstkleur rubriek", "Achtergrondkleur deelnemer",
                     "Tekstkleur deelnemer", "OK", "Annuleren"]:
            self.assertIn(("push button", naam), besturingen)
        for naam in ["Rubriek", "Naam van de ruiter", "Naam van paard of pony", "Vader", "Vader van de moeder",
                     "Kleur", "Geslacht", "Leeftijd", "Stamboek", "Fokker", "Vereniging", "Er is een veldnamenrij"]:
            self.assertIn(("check box", naam), besturingen)
        self.assertEqual([b for b in besturingen if b[0] == "radio button"],
                         [("radio button", naam) for naam in ["Links", "Midden", "Rechts"] * 2 +
                          ["Geen", "Startnummer of -tijd", "Hoofdstelnummer"]])
        self.assertIn(("combo box", "Lettertype"), besturingen)

    def test_de_waarden_van_de_instellingen_volgen_het_scherm(self):
        self.bediening.open_instellingen()
        self.addCleanup(self.sluit_instellingen)
        dialoog = self.venster("Instellingen")
        balk = dialoog.vind("scroll bar", "Tekstgrootte deelnemer in procent")
        self.assertEqual(balk.waarde, int(UITERLIJK["textsize"]))
        vereniging = dialoog.vind("check box", "Vereniging")
        self.assertTrue(vereniging.is_aan())
        self.assertFalse(dialoog.vind("check box", "Fokker").is_aan())

    def sluit_instellingen(self):
        self.scherm.toets("Escape")
        wacht_tot(lambda: not self.scherm.vensters("Instellingen"), "het sluiten van de instellingen")


if __name__ == "__main__":
    PROGRAMMA = Path(sys.argv.pop(1)).resolve()
    unittest.main(verbosity=2)
