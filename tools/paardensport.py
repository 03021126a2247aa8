"""Invented riders, horses and clubs, and the lines of a schedule file made of them.

Everything comes from one random.Random with a fixed seed, so that a generator gives the same file every time.
"""

from dataclasses import dataclass, field
from pathlib import Path

VOORNAMEN_VROUW = """Anouk Anaïs Bente Chloé Danique Daniëlle Elise Esmée Femke Fleur Geertje Gwen Hanneke Ilse Inge Iris
Janneke Joëlle Judith Karlijn Kim Lieke Lotte Loïs Maartje Manon Mariëlle Marloes Merel Michèle Naömi Nienke Noëlle
Puck Renée Roos Rozemarijn Saskia Sjoukje Sterre Suzan Tessa Tjitske Valérie Veerle Wietske Yfke Ymkje Zoë""".split()
VOORNAMEN_MAN = """Aart Arjen Bas Björn Bram Cas Coen Daan Daniël Diederik Eelco Folkert Frédéric Gerben Gijs Gaëtan
Harm Henk-Jan Hessel Jasper Jelle Joël Jorrit Jurriën Koen Lars Luuk Maarten Matthijs Michaël Niek Okke Pieter Quinten
Raphaël Remco René Roelof Ruben Siebe Sietse Stijn Teun Thijs Tijmen Timéo Wessel Wouter""".split()
ACHTERNAMEN = """van Beukering|Boerrigter|ten Brinke|Bruggeman|van den Bosch|van Dalfsen|Dijkgraaf|van Doesburg|Eijkelboom
|van der Elst|Fransén|Geerlings|Gerritsen|de Graaff|Groenewold|Haverkamp|Heetebrij|van 't Hof|Hoogeboom|Huizenga|Idsardi
|Jongebloed|Kamphuis|Kleinjan|van der Kolk|Koëter|Kuijpers|Lammertink|van Leeuwen-Smit|Loohuis|van der Meulen|Nijenhuis
|Noordhoek|Oosterhoff|van Oijen|Pâques|Poelstra|Quaedvlieg|Roelofsen|Rozeboom|van Ruitenbeek|Scherpenzeel|Schröder
|Sijbesma|Slotboom|Terpstra|Tönissen|Uitdewilligen|Veldhuizen|Verhoeven|Vosmeijer|van Wageningen|Wassink|de Wit|Wolterinck
|van der Zande|Zijlstra|Zwartbol""".replace("\n", "").split("|")
PLAATSEN = """Barneveld Beilen Boekel Borculo Dalfsen Deurne Drachten Eersel Ermelo Gorssel Haaksbergen Heerde Kesteren
Lunteren Mierlo Nunspeet Oirschot Ommen Putten Raalte Someren Staphorst Ternaard Vaassen Veghel Wijhe Zeddam Zieuwent
Sint-Oedenrode Súdwâld""".split()
STRATEN = "Achterweg Beukenlaan Dorpsstraat Esweg Heidelaan Kerkpad Molenweg Stationsweg Veldweg Zandpad".split()

# A foal of a studbook year gets a name with the letter of that year.
PAARDEN = {
    2008: "Donderbui Dageraad Driekoningen Désirée Duifje".split(),
    2009: "Eglantier Elfstedenster Eldorado Ébano Edelweiss".split(),
    2010: "Fluitekruid Frivool Fjordlicht Féline Fortuna".split(),
    2011: "Graniet Goudvink Gaya Grandeur Gentiaan".split(),
    2012: "Hagelslag Heidebloem Hartendief Héroïne Hazelnoot".split(),
    2013: "IJsvogel Imposant Indigo Irène Isegrim".split(),
    2014: "Jonkvrouw Juweel Jasmijn Jade Joyeuse".split(),
    2015: "Kamperfoelie Koperwiek Klaproos Kasteelheer Kirsten".split(),
    2016: "Lentebode Lavendel Libelle Lumière Langoustine".split(),
    2017: "Meerkoet Mistral Morgenrood Mélusine Majesteit".split(),
    2018: "Noorderlicht Nachtegaal Naïla Nevelster Notenkraker".split(),
    2019: "Ondine Orchidee Octaaf Olijftak Opaal".split(),
    2020: "Papaver Pluimage Parelmoer Pimpernel Prélude".split(),
}
TOEVOEGSELS = ["", "", "", "", " W", " van de Eikhorst", " H", " fan 'e Terp", " B.S."]
PONYNAMEN = """Bolletje Beau Café-au-Lait Dribbel Elfje Flappie Grietje Hidde Kobus Kwibus Madelief Mokka Noëlle Pépita
Pinokkio Ravotter Reünie Snoepje Stuiver Toverbal Tureluur Vlinder Wervelwind Zonneschijn""".split()
VADERS = """Akkermunt|Bergkristal|Caprioleur|Don Fernão|Everdingen|Florisando|Gouverneur H|Hertog Jan van Brabant|Ibérico
|Kroonprins|Lafontaine|Menuët|Noordeinde|Obsidiaan|Primaballero|Querelle|Rubináz|Señor Juan|Trompetter|Ultimo Z
|Vondelaar|Wittebrood""".replace("\n", "").split("|")
KLEUREN = "bruin donkerbruin zwart vos zweetvos schimmel appelschimmel palomino bont valk".split()
FOKKERS = ["Stal De Zandhoeve", "Fokkerij 't Hoge Veld", "Stoeterij Het Molenwiek", "H. Wassink", "Fam. Koëter-Sijbesma"]
VERENIGINGEN = """RV De Boshoeve|LR Prins Willem|RV Het Gouden Hoef|PC De Zevensprong|RSV De Brêgeruiters|LRV Sint-Joris
|RV De Heideruiters|PC 't Stappertje|MV De Lange Teugel|RV Zuiderzicht|LR De Ijsselruiters|PSV Eendracht""".replace(
    "\n", "").split("|")

TAB = "\t"


@dataclass
class Combinatie:
    """One rider with a horse or pony; `extra` holds the items of a discipline in the order they are written."""

    nummer: int
    ruiter: str
    paard: str
    geboren: str
    geslacht: str
    kleur: str
    vader: str
    moedersvader: str
    stamboek: str
    fokker: str
    vereniging: str
    categorie: str
    combinatienummer: str
    hoofdstelnummer: str = ""
    extra: list = field(default_factory=list)
    persoon: list = field(default_factory=list)

    def record(self):
        items = ["type:1", f"hnr:{self.hoofdstelnummer}", f"co:{self.combinatienummer}",
                 f"pe_nr:{400000 + 17 * self.nummer}", f"na:{self.ruiter}", *self.persoon, "ld:NL",
                 f"di_nr:{700000 + 3 * self.nummer}", f"pa:{self.paard}", f"va:{self.vader}", f"mo:{self.moedersvader}",
                 f"di_kl:{self.kleur}", f"di_gs:{self.geslacht}", f"di_gb:{self.geboren}", f"ei:{self.ruiter}",
                 f"di_fok:{self.fokker}", f"di_st:{self.stamboek}", "di_stna:", "di_stnr:", "di_chip:",
                 f"ca:{self.categorie}", f"ve:{self.vereniging}", *self.extra]
        return TAB.join(items)


class Bedenker:
    """Invents combinations; with `eenmalig` no rider and no horse comes twice while names last."""

    def __init__(self, toeval, eenmalig=True):
        self.toeval = toeval
        self.pogingen = 50 if eenmalig else 1
        self.gebruikt = set()

    def _nieuw(self, bedenk):
        for _ in range(self.pogingen):
            naam = bedenk()
            if naam not in self.gebruikt:
                break
        self.gebruikt.add(naam)
        return naam

    def combinatie(self, nummer, pony, extra=(), categorie=""):
        kies = self.toeval.choice
        vrouw = self.toeval.random() < 0.7
        ruiter = self._nieuw(lambda: kies(VOORNAMEN_VROUW if vrouw else VOORNAMEN_MAN) + " " + kies(ACHTERNAMEN))
        jaar = self.toeval.randint(2008, 2020)
        paard = self._nieuw(lambda: kies(PONYNAMEN) if pony else kies(PAARDEN[jaar]) + kies(TOEVOEGSELS))
        dag, maand = self.toeval.randint(1, 28), self.toeval.randint(3, 7)
        leeftijd = self.toeval.randint(9, 17) if pony else self.toeval.randint(16, 62)
        return Combinatie(
            nummer=nummer, ruiter=ruiter, paard=paard, geboren=f"{dag}-{maand}-{jaar}",
            geslacht=kies("MMRRRH"), kleur=kies(KLEUREN),
            vader="Vader Onbekend" if self.toeval.random() < 0.08 else kies(VADERS),
            moedersvader="---" if self.toeval.random() < 0.1 else kies(VADERS),
            stamboek=kies(["NRPS", "WPO", ""]) if pony else kies(["KWPN", "KWPN", "Friesch Stamboek", "Oldenburger"]),
            fokker=kies(FOKKERS) if self.toeval.random() < 0.7 else "",
            vereniging=kies(VERENIGINGEN), categorie=categorie or (kies("ABCDE") if pony else "P"),
            combinatienummer=f"{'P' if pony else 'K'}-{1000 + nummer * 7}",
            hoofdstelnummer=str(100 + nummer) if self.toeval.random() < 0.25 else "", extra=list(extra),
            persoon=[f"gebdat:{self.toeval.randint(1, 28)}-{self.toeval.randint(1, 12)}-{2025 - leeftijd}",
                     f"gesl:{'V' if vrouw else 'M'}", f"ad:{kies(STRATEN)} {self.toeval.randint(1, 120)}",
                     f"pc:{self.toeval.randint(1000, 9999)} XX", f"wp:{kies(PLAATSEN)}"])


def startplaats(nummer):
    """A start-list item: the number and six positional items."""
    return TAB.join([f"dnr:{nummer}", "0", "", "0", "", "0", ""])


def pauze(minuten, tekst):
    return TAB.join(["dnr:P", str(minuten), tekst, "", "", "", ""])


def rubriekregel(nummer, **velden):
    """A line of the show's list of classes."""
    record = {"id": "", "vpn": "", "oms": "", "dis": "", "discode": "", "klasse": "", "cat": "", "ilg": "", "pid": "",
              "ptd": "", "dtm": "", "com": 0, "mop": 0, "edit": 0} | velden
    return f"rubriek:{nummer}{TAB}" + TAB.join(f"{sleutel}:{waarde}" for sleutel, waarde in record.items())


def schrijf_rooster(pad, rubrieken, combinaties, rubrieknummer, rubriekvelden, startlijst):
    """Writes a schedule file as the suite does: Windows-1252, lines ended by CR LF."""
    regels = ["[Vendalo 3.4]", "singlesignin:0", "hoofdstelnummerautomatisch:False", *rubrieken]
    regels += [f"dnr:{c.nummer}{TAB}{c.record()}" for c in sorted(combinaties, key=lambda c: c.nummer)]
    kop = [f"{sleutel}:{waarde}" for sleutel, waarde in rubriekvelden]
    regels.append(f"rnr:{rubrieknummer}{TAB}" + TAB.join([*kop, *startlijst, "ropm:", "rlocked:"]))
    Path(pad).write_bytes(("\r\n".join(regels) + "\r\n").encode("cp1252"))
