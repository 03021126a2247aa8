#!/usr/bin/env python3
"""Makes the files of examples/: one schedule a discipline and one start list as a workbook.

    tools/maak_voorbeelden.py [FOLDER]          the schedules, and the workbook when python3-xlsxwriter is installed
    tools/maak_voorbeelden.py --controle        fails when a schedule in examples/ is not what this script makes
"""

import argparse
import datetime
import random
import sys
import tempfile
from pathlib import Path

import paardensport as ps

EXAMPLES = Path(__file__).resolve().parent.parent / "examples"


def lijst_van_rubrieken(prefix, dis, omschrijving, klasse, cat, aantal):
    return [ps.rubriekregel(n, id=f"{prefix}{n}", oms=f"{omschrijving}, proef {n}", dis=prefix, discode=dis,
                            klasse=klasse, cat=cat, dtm="20-6-2026") for n in range(1, aantal + 1)]


def dressuur(map_):
    toeval = random.Random(2601)
    bedenker = ps.Bedenker(toeval)
    nummers = sorted(toeval.sample(range(1, 120), 28))
    combinaties = []
    for n in nummers:
        klasse = toeval.choice(["L1", "L2"])
        extra = [f"dk:{klasse}", "da:1", "dr_dagen:za"]
        if toeval.random() < 0.1:
            extra.append("d_sel:1")
        combinaties.append(bedenker.combinatie(n, pony=False, extra=extra))
    volgorde = nummers[:]
    toeval.shuffle(volgorde)
    startlijst = [ps.startplaats(n) for n in volgorde]
    startlijst.insert(14, ps.pauze(15, "Baan slepen"))
    ps.schrijf_rooster(
        map_ / "dressuur.rst", lijst_van_rubrieken("D", "D", "L1 en L2 paarden", "*L1*L2*", "*P*", 4), combinaties, 2,
        [("rid", "D2"), ("rxpad", ""), ("roms", "L1 en L2 paarden, proef 12"), ("rkop", ""), ("rvoet", ""),
         ("rdag", 5), ("rring", 1), ("rtype", "Ring"), ("ruty", 9), ("rmty", "00"), ("rpty", 7), ("rtvk", 1),
         ("rtvko", 3), ("rsar", 1), ("rcom", 0), ("rkla", "*L1*L2*"), ("rcat", "*P*"), ("rjp1", "C"),
         ("rjn1", "Hélène van Ruitenbeek"), ("rjp2", "M"), ("rjn2", "Jurriën Loohuis"), ("rxqd", 1)], startlijst)


def springen(map_):
    toeval = random.Random(2602)
    bedenker = ps.Bedenker(toeval)
    nummers = sorted(toeval.sample(range(1, 200), 36))
    combinaties = []
    for n in nummers:
        extra = [f"sk:{toeval.choice(['B', 'L'])}", "sa:2", "sp_dagen:zo"]
        lot = toeval.random()
        if lot < 0.12:
            extra.append("sh:1")  # hors concours in every jumping class
        elif lot < 0.2:
            extra.append("rhc:S3(1)")  # in this class alone
        elif lot < 0.26:
            extra += ["sh:1", "rhc:S3(2)"]  # in every class but this one
        elif lot < 0.32:
            extra.append("s_res:1")
        combinaties.append(bedenker.combinatie(n, pony=True, extra=extra))
    volgorde = nummers[:]
    toeval.shuffle(volgorde)
    startlijst = [ps.pauze(10, "Parcours verkennen")] + [ps.startplaats(n) for n in volgorde]
    startlijst.insert(13, ps.pauze(20, "Koffiepauze – ringmeesters wisselen"))
    startlijst.insert(27, ps.pauze(5, "Hindernis 7 herstellen"))
    ps.schrijf_rooster(
        map_ / "springen.rst", lijst_van_rubrieken("S", "S", "B en L pony's", "*B*L*", "*A*B*C*D*E*", 6), combinaties,
        3,
        [("rid", "S3"), ("rxpad", ""), ("roms", "B en L pony's, Café De Hoef-bokaal"), ("rkop", ""), ("rvoet", ""),
         ("rdag", 6), ("rring", 2), ("rtype", "Ring"), ("ruty", 13), ("rmty", 30), ("rpty", 2), ("rtvk", 1),
         ("rtvko", 3), ("rsar", 1), ("rcom", 2), ("rkla", "*B*L*"), ("rcat", "*A*B*C*D*E*"), ("rjp1", "C"),
         ("rjn1", "Gaëtan Quaedvlieg"), ("rxqd", 1)], startlijst)


def mennen(map_):
    toeval = random.Random(2603)
    bedenker = ps.Bedenker(toeval)
    nummers = sorted(toeval.sample(range(1, 60), 22))
    combinaties = []
    for n in nummers:
        span = toeval.choice("AABBBCDEPSU")
        extra = [f"mvk:{toeval.choice(['B', 'L', 'M'])}", "mva:1", "meva_dagen:zo"]
        if toeval.random() < 0.15:
            extra.append("mv_coup:1")
        combinaties.append(bedenker.combinatie(n, pony=span in "ACESU", extra=extra, categorie=span))
    volgorde = nummers[:]
    toeval.shuffle(volgorde)
    startlijst = [ps.startplaats(n) for n in volgorde]
    startlijst.insert(11, ps.pauze(30, "Lunch"))
    ps.schrijf_rooster(
        map_ / "mennen.rst",
        lijst_van_rubrieken("MV", "MV", "Vaardigheid B, L en M", "*B*L*M*", "*A*B*C*D*E*P*S*U*", 3), combinaties, 1,
        [("rid", "MV1"), ("rxpad", ""), ("roms", "Vaardigheid B, L en M, alle aanspanningen"), ("rkop", ""),
         ("rvoet", ""), ("rdag", 6), ("rring", "Zuid"), ("rtype", "Terrein"), ("ruty", 10), ("rmty", 15), ("rpty", 5),
         ("rtvk", 1), ("rtvko", 0), ("rsar", ""), ("rcom", 8), ("rkla", "*B*L*M*"), ("rcat", "*A*B*C*D*E*P*S*U*"),
         ("rjp1", "C"), ("rjn1", "Tjitske Idsardi"), ("rxqd", 1)], startlijst)


def afdelingsdressuur(map_):
    toeval = random.Random(2604)
    bedenker = ps.Bedenker(toeval)
    combinaties, startlijst = [], []
    for team in range(6):
        vereniging = ps.VERENIGINGEN[team * 2]
        for lid in range(4):
            c = bedenker.combinatie(10 * (team + 1) + lid + 1, pony=True, extra=["dk:L", "da:1", "dr_dagen:za"])
            c.vereniging, c.hoofdstelnummer = vereniging, str(c.nummer)
            combinaties.append(c)
            startlijst.append(ps.startplaats(c.nummer))
        if team == 2:
            startlijst.append(ps.pauze(15, "Baan slepen"))
    ps.schrijf_rooster(
        map_ / "afdelingsdressuur.rst",
        lijst_van_rubrieken("D", "AD", "Viertallen pony's klasse L", "*L*", "*A*B*C*D*E*", 2), combinaties, 1,
        [("rid", "D1"), ("rxpad", ""), ("roms", "Viertallen pony's, kringkampioenschap"), ("rkop", ""), ("rvoet", ""),
         ("rdag", 5), ("rring", 3), ("rtype", "Baan"), ("ruty", 11), ("rmty", 30), ("rpty", 3), ("rtvk", 1),
         ("rtvko", 1), ("rsar", 1), ("rcom", 12), ("rkla", "*L*"), ("rcat", "*A*B*C*D*E*"), ("rjp1", "C"),
         ("rjn1", "René Schröder"), ("rjp2", "B"), ("rjn2", "Janneke van Oijen"), ("rxqd", 1)], startlijst)


ROOSTERS = [dressuur, springen, mennen, afdelingsdressuur]


def werkmap(map_):
    """A start list as a show secretary keeps it: a header row, start times as times, ages by formula, accents."""
    import xlsxwriter

    toeval = random.Random(2605)
    bedenker = ps.Bedenker(toeval)
    boek = xlsxwriter.Workbook(map_ / "startlijst.xlsx")
    boek.set_properties({"title": "Startlijst", "created": datetime.datetime(2026, 6, 1)})
    blad = boek.add_worksheet("Startlijst")
    kop = boek.add_format({"bold": True, "bg_color": "#DDEBF7"})
    tijd = boek.add_format({"num_format": "hh:mm"})
    leeftijd = boek.add_format({"num_format": '0" jr"'})
    titels = ["Tijd", "Hoofdnr", "Ruiter", "Paard", "Vader", "Moeders vader", "Kleur", "Geslacht", "Leeftijd",
              "Stamboek", "Fokker", "Vereniging"]
    for kolom, (titel, breedte) in enumerate(zip(titels, [8, 9, 26, 24, 22, 22, 14, 10, 9, 16, 24, 22])):
        blad.write(0, kolom, titel, kop)
        blad.set_column(kolom, kolom, breedte)
    woorden = {"M": "merrie", "R": "ruin", "H": "hengst"}
    for rij in range(1, 25):
        c = bedenker.combinatie(rij, pony=False)
        minuten = 9 * 60 + 30 + 6 * rij
        blad.write_datetime(rij, 0, datetime.time(minuten // 60, minuten % 60), tijd)
        blad.write_number(rij, 1, 200 + rij)
        jaren = 2026 - int(c.geboren.rpartition("-")[2])
        for kolom, tekst in enumerate([c.ruiter, c.paard, c.vader, c.moedersvader, c.kleur, woorden[c.geslacht]], 2):
            blad.write_string(rij, kolom, tekst)
        blad.write_formula(rij, 8, f"=2026-{2026 - jaren}", leeftijd, jaren)
        for kolom, tekst in enumerate([c.stamboek, c.fokker, c.vereniging], 9):
            blad.write_string(rij, kolom, tekst)
    boek.close()


def controle():
    with tempfile.TemporaryDirectory() as map_:
        for maak in ROOSTERS:
            maak(Path(map_))
        anders = [vers.name for vers in sorted(Path(map_).iterdir())
                  if not (EXAMPLES / vers.name).exists() or (EXAMPLES / vers.name).read_bytes() != vers.read_bytes()]
    print("\n".join(f"examples/{naam} is not what tools/maak_voorbeelden.py makes" for naam in anders) or "up to date")
    return 1 if anders else 0


def main():
    opties = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    opties.add_argument("map", nargs="?", type=Path, default=EXAMPLES)
    opties.add_argument("--controle", action="store_true")
    keuze = opties.parse_args()
    if keuze.controle:
        return controle()
    for maak in ROOSTERS:
        maak(keuze.map)
    try:
        werkmap(keuze.map)
    except ImportError:
        print("no python3-xlsxwriter: startlijst.xlsx is left as it is", file=sys.stderr)
    return 0


if __name__ == "__main__":
    sys.exit(main())
