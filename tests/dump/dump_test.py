#!/usr/bin/env python3
"""Drives tavelo-dump as a helpdesk does: as a program.

    tests/dump/dump_test.py TAVELO-DUMP
"""

import json
import os
import resource
import subprocess
import sys
import tempfile
import unittest
import zipfile
from pathlib import Path

DUMP = ""
EXAMPLES = Path(__file__).resolve().parents[2] / "examples"
TITELS = ["nr.--tijd", "Inr", "Hnr", "Cnr", "Naam", "HC", "Paard", "Vader", "Vereniging", "Kl.", "Cat."]
NAAMLOOS = "Vendalo 3.5 Tavelo - [naamloos]"


def breedte(tekst, punten):
    """Width of a text in the fixed metric."""
    return punten * sum(6 if c == " " else 5 + ord(c) * 7 % 11 for c in tekst)


def rooster(start, combinaties, kop="", rubriek=""):
    """A dressage schedule as the suite writes it; `start` lists the numbers, "P" for a pause of a quarter."""
    regels = ["[Vendalo 3.4]"] + kop.splitlines()
    regels += [f"dnr:{nummer}\t{record}" for nummer, record in combinaties.items()]
    lijst = "".join(f"\tdnr:{n}" + ("\t15\tKoffie\t\t\t\t" if n == "P" else "\t\t\t\t\t\t") for n in start)
    regels.append(
        "rnr:1\trid:D1\trcom:0\trkla:*B*\trcat:*C*\troms:Proef 1\trtype:Ring\trring:2\trdag:5\truty:9\trmty:0\trpty:6"
        f"\trsar:1\trtvko:3{rubriek}{lijst}")
    return ("\r\n".join(regels) + "\r\n").encode("cp1252")


def werkmap(bestand, bladen):
    """A workbook of texts, part by part."""
    def cel(tekst):
        return f'<c t="inlineStr"><is><t>{tekst}</t></is></c>'

    rijen = {naam: "".join("<row>" + "".join(map(cel, rij)) + "</row>" for rij in blad)
             for naam, blad in bladen.items()}
    main = "http://schemas.openxmlformats.org/spreadsheetml/2006/main"
    rel = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
    soort = "http://schemas.openxmlformats.org/package/2006"
    with zipfile.ZipFile(bestand, "w") as zip_:
        zip_.writestr("[Content_Types].xml", f'<Types xmlns="{soort}/content-types">'
                      '<Default Extension="rels" '
                      'ContentType="application/vnd.openxmlformats-package.relationships+xml"/>'
                      '<Override PartName="/xl/workbook.xml" '
                      'ContentType="application/vnd.openxmlformats-officedocument.spreadsheetml.sheet.main+xml"/>'
                      '</Types>')
        zip_.writestr("_rels/.rels", f'<Relationships xmlns="{soort}/relationships">'
                      f'<Relationship Id="r1" Type="{rel}/officeDocument" Target="xl/workbook.xml"/></Relationships>')
        zip_.writestr("xl/workbook.xml", f'<workbook xmlns="{main}" xmlns:r="{rel}"><sheets>' + "".join(
            f'<sheet name="{naam}" sheetId="{i}" r:id="s{i}"/>' for i, naam in enumerate(rijen, 1)) +
            '</sheets></workbook>')
        zip_.writestr("xl/_rels/workbook.xml.rels", f'<Relationships xmlns="{soort}/relationships">' + "".join(
            f'<Relationship Id="s{i}" Type="{rel}/worksheet" Target="worksheets/sheet{i}.xml"/>'
            for i in range(1, len(rijen) + 1)) + '</Relationships>')
        for i, blad in enumerate(rijen.values(), 1):
            zip_.writestr(f"xl/worksheets/sheet{i}.xml",
                          f'<worksheet xmlns="{main}"><sheetData>{blad}</sheetData></worksheet>')


class DumpTest(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        tijdelijk = tempfile.TemporaryDirectory()
        self.addCleanup(tijdelijk.cleanup)
        self.map = Path(tijdelijk.name)

    def schrijf(self, naam, inhoud):
        bestand = self.map / naam
        bestand.write_bytes(inhoud)
        return bestand

    def start(self, *woorden):
        return subprocess.run([DUMP, *woorden], capture_output=True, check=False, timeout=60)

    def dump(self, *woorden):
        gedaan = self.start(*woorden)
        self.assertEqual((gedaan.returncode, gedaan.stderr), (0, b""))
        return json.loads(gedaan.stdout.decode("utf-8"))

    def weergave(self, *woorden):
        return self.dump(*woorden, "--maat", "raster")["weergave"]

    def weigert(self, *woorden):
        gedaan = self.start(*woorden)
        self.assertEqual((gedaan.returncode, gedaan.stdout), (2, b""), woorden)
        self.assertTrue(gedaan.stderr.decode("utf-8").startswith("Gebruik: tavelo-dump"), woorden)


class Rooster(DumpTest):
    def setUp(self):
        super().setUp()
        self.bestand = self.schrijf("zondag.rst", rooster([12, "P", 3], {
            3: "na:Zoë d'Hondt\tpa:Œil\tva:Ferro\thnr:203\tco:1\\2\"3\tve:RV Zuid\tdk:B\tca:C",
            12: "na:Jan\tpa:Bles\tva:Vader Onbekend\tmo:Jazz\tdh:1"},
            kop="singlesignin:2\nhoofdstelnummerautomatisch:True\n"
                "rubriek:7\tid:D7\toms:Proef 7\tklasse:*B*\tcom:3"))

    def test_de_sleutels_staan_in_vaste_volgorde(self):
        d = self.dump(self.bestand)
        self.assertEqual(list(d), ["kop", "rubriek", "rubrieken", "deelnemers", "rooster", "rijwaarden", "bijschrift",
                                   "labels", "berichten", "overgeslagen"])
        d = self.dump(self.bestand, "--nummer", "12", "--daarna", self.bestand, "--maat", "raster")
        self.assertEqual(list(d), ["kop", "rubriek", "rubrieken", "deelnemers", "rooster", "rijwaarden", "bijschrift",
                                   "labels", "weergave", "wijzigingen", "berichten", "overgeslagen"])

    def test_kop_en_records_komen_zoals_ze_gelezen_zijn(self):
        d = self.dump(self.bestand)
        self.assertEqual(d["kop"], {"singlesignin": 2, "hoofdstelnummerautomatisch": True})
        self.assertEqual(d["deelnemers"]["12"], "na:Jan\tpa:Bles\tva:Vader Onbekend\tmo:Jazz\tdh:1")
        self.assertEqual(sorted(d["deelnemers"]), ["12", "3"])
        self.assertEqual(d["rubrieken"], {"7": {"id": "D7", "vpn": "", "oms": "Proef 7", "dis": "", "discode": "",
                                                "klasse": "*B*", "cat": "", "ilg": "", "pid": "", "ptd": "", "dtm": "",
                                                "com": 3, "mop": 0, "edit": 0}})
        rubriek = d["rubriek"]
        for sleutel, waarde in {"rid": "D1", "rcom": 0, "rkla": "*B*", "rdag": "5", "ruty": "9", "rtvko": 3,
                                "rjp1": "", "rjn5": "", "rlocked": ""}.items():
            self.assertEqual(rubriek[sleutel], waarde, sleutel)
        for sleutels in ([f"rpro{n}" for n in range(26)], [f"rproab{n}" for n in range(26)],
                         [f"rprijs{n}" for n in range(1, 16)], [f"rj{s}{n}" for s in "pnc" for n in range(1, 6)]):
            self.assertLessEqual(set(sleutels), set(rubriek))

    def test_het_rooster_heeft_een_titelrij_en_een_rij_per_start(self):
        d = self.dump(self.bestand)
        self.assertEqual(d["rooster"], [
            TITELS,
            ["1--09:00", "12", "12", "", "Jan (HC)", "HC", "Bles", "Vader Onbekend", "", "", ""],
            ["09:06", "P", "", "", "Koffie", "", "", "", "", "", ""],
            ["2--09:21", "3", "203", "1\\2\"3", "Zoë d'Hondt", "", "Œil", "Ferro", "RV Zuid", "B", "C"]])
        self.assertEqual(d["rijwaarden"], [0, 0, 15, 0])

    def test_bijschrift_en_labels(self):
        d = self.dump(self.bestand)
        self.assertEqual(d["bijschrift"], f"B dres. cat C     -     {self.bestand}     -     Proef 1")
        labels = d["labels"]
        self.assertEqual(list(labels), ["lblRubriek", "lblRoosterOmschrijving", "lblRingType", "lblRingNaam",
                                        "lblDagTijd", "lblRubriekLijsten", "lblJury"])
        self.assertEqual(labels["lblRoosterOmschrijving"], "Ring 2, Proef 1")
        self.assertEqual(labels["lblDagTijd"], "zaterdag 9:00 uur")

    def test_het_log_noemt_regel_sleutel_en_reden_van_wat_is_overgeslagen(self):
        bestand = self.schrijf("fout.rst", b"[Vendalo 3.4]\r\ndnr:9\r\ndnr:4001\tna:Jan\r\n"
                               b"rnr:1\troms:Proef\trcom:40000\r\n")
        regels = self.start("--log", bestand).stdout.decode("utf-8").splitlines()
        self.assertIn("fout.rst", regels[0])
        self.assertIn("melding: Vul rooster error 1: Overloop", regels)
        self.assertEqual(regels[-3:], ["regel 2, dnr: regel zonder tab", "regel 3, dnr: nummer buiten 0 tot 4000",
                                       "rcom: Overloop"])

    def test_het_log_zegt_dat_er_niets_is_overgeslagen(self):
        for woorden in [("--log", self.bestand), (self.bestand, "--log", "--daarna", self.bestand)]:
            self.assertEqual(self.start(*woorden).stdout.decode("utf-8").splitlines()[1:],
                             ["Er is niets overgeslagen."])

    def test_wat_is_overgeslagen_staat_er_met_zijn_regel(self):
        bestand = self.schrijf("fout.rst", rooster([], {}, kop="singlesignin:99999\ndnr:5 zonder tab"))
        self.assertEqual([(o["regel"], o["sleutel"]) for o in self.dump(bestand)["overgeslagen"]],
                         [(2, "singlesignin"), (3, "dnr")])

    def test_een_bericht_van_het_programma_staat_erbij(self):
        bestand = self.schrijf("fout.rst", rooster([], {}, rubriek="\trkur:99999"))
        self.assertEqual(self.dump(bestand)["berichten"], ["Vul rooster error 1: Overloop"])

    def test_een_bestand_dat_er_niet_is_of_geen_rooster_is_geeft_een_leeg_rooster(self):
        geen_rooster = self.schrijf("b.rst", b"iets anders\r\n\xff\x00")
        for bestand in (self.map / "weg.rst", geen_rooster, self.schrijf("leeg.rst", b""), self.map):
            d = self.dump(bestand)
            self.assertEqual(len(d["rooster"]), 1, bestand)
            self.assertEqual(len(d["rooster"][0]), 11)
            self.assertEqual((d["bijschrift"], d["deelnemers"], d["rijwaarden"]), (NAAMLOOS, {}, [0]))

    @unittest.skipIf(os.name == "nt", "file names are Unicode there")
    def test_een_bestandsnaam_die_geen_utf8_is_geeft_nog_steeds_json(self):
        bestand = os.fsencode(self.map) + b"/z\xf6ndag.rst"
        Path(os.fsdecode(bestand)).write_bytes(self.bestand.read_bytes())
        self.assertIn("z\ufffdndag.rst", self.dump(bestand)["bijschrift"])


class Weergave(DumpTest):
    def setUp(self):
        super().setUp()
        self.bestand = self.schrijf("zondag.rst", rooster([12, 3], {
            3: "na:Zoë\tpa:Œil", 12: "na:Jan\tpa:Bles\tva:Vader Onbekend\tmo:Jazz"}))

    def test_de_vlakken_hebben_plaats_kleur_en_zichtbaarheid(self):
        w = self.weergave(self.bestand, "--nummer", "12", "--breedte", "12000", "--hoogte", "9000",
                          "--instelling", "backcolor=255", "--instelling", "rubricforecolor=&HFF0000")
        self.assertEqual(list(w), ["picRubriek", "picDeelnemer"])
        kop, deelnemer = w["picRubriek"], w["picDeelnemer"]
        for vlak in (kop, deelnemer):
            self.assertEqual(list(vlak), ["links", "boven", "breedte", "hoogte", "achtergrond", "voorgrond",
                                          "zichtbaar", "lettertype", "regels"])
        del kop["regels"], deelnemer["regels"]
        self.assertEqual(deelnemer, {"links": 0, "boven": 0, "breedte": 12000, "hoogte": 9000, "achtergrond": 255,
                                     "voorgrond": 0, "zichtbaar": True, "lettertype": "Arial"})
        self.assertEqual(kop, {"links": 0, "boven": 0, "breedte": 12000, "hoogte": 2.2 * 460, "achtergrond": 16777215,
                               "voorgrond": 16711680, "zichtbaar": False, "lettertype": "Arial"})

    def test_de_regels_staan_in_twips_en_punten(self):
        w = self.weergave(self.bestand, "--nummer", "12", "--breedte", "12000", "--hoogte", "9000",
                          "--instelling", "showrubric=1", "--instelling", "rubricalignment=1",
                          "--instelling", "alignment=2", "--instelling", "showhorsesiredamr=1")
        kop = ["Dressuur", "Klasse B, Categorie C"]
        self.assertEqual(w["picRubriek"]["regels"], [
            {"x": 0.5 * (12000 - breedte(tekst, 20)), "y": 460 * i, "punten": 20, "tekst": tekst}
            for i, tekst in enumerate(kop)])
        deelnemer = ["Jan", "Bles", "________ x Jazz", "Jan"]
        self.assertEqual(w["picDeelnemer"]["regels"], [
            {"x": 12000 - 60 - breedte(tekst, 20), "y": 2.2 * 460 + 460 * i, "punten": 20, "tekst": tekst}
            for i, tekst in enumerate(deelnemer)])

    def test_een_nummer_dat_er_niet_is_en_een_leeg_nummer(self):
        kop = ["--instelling", "showrubric=1"]
        w = self.weergave(self.bestand, "--nummer", "99", *kop)
        self.assertEqual((len(w["picRubriek"]["regels"]), w["picDeelnemer"]["regels"]), (2, []))
        w = self.weergave(self.bestand, "--nummer", "", *kop)
        self.assertEqual((w["picRubriek"]["regels"], w["picDeelnemer"]["regels"]), ([], []))
        self.assertEqual((w["picRubriek"]["zichtbaar"], w["picRubriek"]["hoogte"]), (True, 2.2 * 736))

    def test_zonder_maat_is_het_vlak_19200_bij_10800(self):
        vlak = self.weergave(self.bestand, "--nummer", "3")["picDeelnemer"]
        self.assertEqual((vlak["breedte"], vlak["hoogte"]), (19200, 10800))
        self.assertEqual([r["tekst"] for r in vlak["regels"]], ["Zoë", "Œil", "________", "Zoë"])

    def test_zonder_vaste_maat_meten_de_letters_van_deze_computer(self):
        gedaan = self.start(self.bestand, "--nummer", "12", "--instelling", "alignment=2")
        if gedaan.returncode == 2:  # built without windows
            self.assertEqual((gedaan.stdout, gedaan.stderr.decode("utf-8")),
                             (b"", "Deze tavelo-dump meet geen lettertypen; geef --maat raster op.\n"))
            return
        self.assertEqual(gedaan.returncode, 0, gedaan.stderr)
        regels = json.loads(gedaan.stdout.decode("utf-8"))["weergave"]["picDeelnemer"]["regels"]
        self.assertEqual([(r["tekst"], r["punten"]) for r in regels],
                         [("Jan", 32), ("Bles", 32), ("________", 32), ("Jan", 32)])
        jan, bles, streep, naam = [r["x"] for r in regels]
        self.assertTrue(0 < streep < bles < jan == naam < 19200, regels)  # set to the right, by their width

    def test_een_instelling_die_niet_past_blijft_zoals_zij_was(self):
        vlak = self.weergave(self.bestand, "--nummer", "3", "--instelling", "textsize=99999")["picDeelnemer"]
        self.assertEqual(vlak["regels"][0]["punten"], 32)

    def test_een_werkmap_wordt_naar_de_kolommen_van_de_instellingen_gelezen(self):
        bestand = self.map / "lijst.xlsx"
        werkmap(bestand, {"Start": [["1", "Jan", "Bles"], ["2", "Zoë", "Œil"]]})
        d = self.dump(bestand, "--instelling", "col_startnumber=A", "--instelling", "col_rider_name=b")
        self.assertEqual([rij[0] + " " + rij[4] for rij in d["rooster"][1:]], ["1 Jan", "2 Zoë"])
        self.assertEqual(d["bijschrift"], "Vendalo 3.5 Tavelo - lijst")


class Daarna(DumpTest):
    def test_een_later_bestand_wordt_samengevoegd(self):
        eerst = self.schrijf("a.rst", rooster([3, 12], {3: "na:Jan\tco:77", 12: "na:Piet"}))
        daarna = self.schrijf("b.rst", rooster([3, 5, 12], {3: "na:Janna", 5: "na:Kees", 12: "na:Piet"}))
        d = self.dump(eerst, "--daarna", daarna)
        self.assertEqual([(rij[0], rij[1], rij[3], rij[4]) for rij in d["rooster"][1:]], [
            ("1--09:00", "3", "77", "Janna"), ("2--09:06", "5", "", "Kees"), ("3--09:12", "12", "", "Piet")])
        self.assertEqual([regel.split("\t")[0] for regel in d["wijzigingen"]],
                         ["gewijzigd", "", "toegevoegd", "gewijzigd", ""])
        self.assertEqual(d["berichten"], [])

    def test_een_later_bestand_dat_geen_rooster_is_verandert_niets(self):
        eerst = self.schrijf("a.rst", rooster([3], {3: "na:Jan"}))
        voor = self.dump(eerst)
        anders = self.schrijf("b.rst", b"iets anders")
        for daarna, genoteerd in ((anders, [str(anders)]), (self.map / "weg.rst", [])):  # what has no stamp is not read
            na = self.dump(eerst, "--daarna", daarna)
            self.assertEqual(na.pop("wijzigingen"), [])
            self.assertEqual([o["sleutel"] for o in na.pop("overgeslagen")], genoteerd)
            self.assertEqual(na | {"overgeslagen": []}, voor)


class Blad(DumpTest):
    def setUp(self):
        super().setUp()
        self.bestand = self.map / "lijst.xlsx"
        werkmap(self.bestand, {"Start": [["Naam", "Paard"], ["Zoë", "a,b"]], "Uitslag": [["1"]]})

    def mislukt(self, *woorden):
        gedaan = self.start(*woorden)
        self.assertEqual((gedaan.returncode, gedaan.stdout), (1, b""))
        return gedaan.stderr.decode("utf-8")

    def test_een_blad_als_csv(self):
        gedaan = self.start("--blad", "1", self.bestand)
        self.assertEqual((gedaan.returncode, gedaan.stderr), (0, b""))
        self.assertEqual(gedaan.stdout.decode("utf-8").splitlines(), ["Naam,Paard", 'Zoë,"a,b"'])
        self.assertEqual(self.start(self.bestand, "--blad", "2").stdout.decode("utf-8").splitlines(), ["1"])

    def test_een_blad_dat_er_niet_is_is_leeg(self):
        gedaan = self.start("--blad", "3", self.bestand)
        self.assertEqual((gedaan.returncode, gedaan.stdout, gedaan.stderr), (0, b"", b""))

    def test_een_bestand_dat_niet_open_kan_is_een_zin(self):
        zinnen = {self.mislukt("--blad", "1", bestand)
                  for bestand in (self.map / "weg.xlsx", self.schrijf("geen.xlsx", b"geen werkmap"))}
        self.assertEqual(len(zinnen), 2)
        for zin in zinnen:
            self.assertRegex(zin, r"\A[A-Z][^\n]+\.\n\Z")


class WeinigGeheugen(DumpTest):
    """The program under a hard limit of its memory: whatever asks for more, the program itself or a library that it
    reads workbooks with, the answer is a sentence."""
    ZIN = "Er is te weinig geheugen om de werkmap te lezen."

    def setUp(self):
        super().setUp()
        self.klein, self.groot = self.map / "klein.xlsx", self.map / "groot.xlsx"
        werkmap(self.klein, {"Start": [["1"]]})
        werkmap(self.groot, {"Start": [["1"]] * 1_000_000})

    def begrensd(self, mib, *woorden):
        def begrens():
            resource.setrlimit(resource.RLIMIT_AS, (mib * 2**20, mib * 2**20))
        gedaan = subprocess.run([DUMP, "--maat", "raster", *woorden], capture_output=True, check=False, timeout=60,
                                preexec_fn=begrens)
        return gedaan.returncode, gedaan.stdout.decode("utf-8"), gedaan.stderr.decode("utf-8")

    def test_te_weinig_geheugen_is_een_zin(self):
        genoeg = next(mib for mib in range(16, 4096, 8) if self.begrensd(mib, self.klein)[0] == 0)
        for meer in (1, 3, 6, 12, 24, 40):
            with self.subTest(meer=meer):
                status, uit, _ = self.begrensd(genoeg + meer, self.groot)
                self.assertEqual(status, 0)
                self.assertIn("YEP1: " + self.ZIN, json.loads(uit)["berichten"])
                self.assertEqual(self.begrensd(genoeg + meer, "--blad", "1", self.groot), (1, "", self.ZIN + "\n"))


class Gebruik(DumpTest):
    def test_help_legt_elke_optie_uit(self):
        gedaan = self.start("--help")
        self.assertEqual((gedaan.returncode, gedaan.stderr), (0, b""))
        tekst = gedaan.stdout.decode("utf-8")
        uitleg = tekst.partition("\n\n")[2]
        for optie in ["--log", "--daarna", "--nummer", "--breedte", "--hoogte", "--instelling", "--maat", "--blad",
                      "--land"]:
            self.assertIn(optie, uitleg)
        self.assertLessEqual(max(map(len, tekst.splitlines())), 110)

    def test_een_verkeerde_aanroep_wijst_de_weg(self):
        bestand = self.schrijf("a.rst", rooster([3], {3: "na:Jan"}))
        for woorden in ([], ["--nummer", "3"], [bestand, bestand], [bestand, "--nummer"], [bestand, "--onbekend", "1"],
                        [bestand, "--maat", "cm"], [bestand, "--blad", "0"], [bestand, "--blad", "een"],
                        [bestand, "--breedte", "breed"], [bestand, "--hoogte", "-1"], [bestand, "--breedte", "1e999"],
                        [bestand, "--instelling", "textsize"], [bestand, "--instelling", "onbekend=1"]):
            self.weigert(*woorden)


    @unittest.skipUnless(os.path.exists("/dev/full"), "no device that is always full")
    def test_een_volle_schijf_is_een_zin(self):
        bestand = self.schrijf("a.rst", rooster([3], {3: "na:Jan"}))
        werkmap(self.map / "a.xlsx", {"Start": [["1"]]})
        for woorden in ([bestand], ["--blad", "1", self.map / "a.xlsx"]):
            with open("/dev/full", "wb") as vol:
                gedaan = subprocess.run([DUMP, *woorden], stdout=vol, stderr=subprocess.PIPE, check=False, timeout=60)
            self.assertEqual((gedaan.returncode, gedaan.stderr.decode("utf-8")),
                             (1, "De uitvoer kan niet worden geschreven.\n"))


class Voorbeelden(DumpTest):
    def test_elk_voorbeeld_heeft_een_start_voor_elke_combinatie(self):
        for naam in ("dressuur", "springen", "mennen", "afdelingsdressuur"):
            d = self.dump(EXAMPLES / f"{naam}.rst")
            starts = [rij[1] for rij in d["rooster"][1:] if rij[1] not in ("P", "0")]
            self.assertEqual(sorted(starts), sorted(d["deelnemers"]), naam)
            self.assertEqual((d["berichten"], d["overgeslagen"]), ([], []), naam)


if __name__ == "__main__":
    DUMP = sys.argv.pop(1)
    unittest.main()
