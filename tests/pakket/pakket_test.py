#!/usr/bin/python3
"""Installs the Debian package in a clean Debian, uses it there as a user does, removes it and looks what is left.

    tests/pakket/pakket_test.py --root DEBIAN --fetched FOLDER --output FOLDER PACKAGE

scripts/test_package.sh makes the Debian and calls this as root, in a mount namespace of its own. The display stands
outside; the program sees nothing but the clean Debian. Ends with an error at the first thing that is not as it should be.
"""

import argparse
import os
import re
import shlex
import shutil
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))

from demo import (AMBER, EXAMPLES, EXCEL_SLEUTELS, INI_NAAM, INR, UITERLIJK, Bediening, Dump, controleer_weergave, eis,  # noqa: E402
                  genummerde_rijen, letterlijk, schrijf_instellingen)
from scherm import Anders, Scherm, wacht_tot  # noqa: E402

GEBRUIKER = "operateur"
THUIS = f"/home/{GEBRUIKER}"
VOORBEELDEN = ["springen.rst", "startlijst.xlsx"]
ROOSTER, STARTLIJST = (f"{THUIS}/{voorbeeld}" for voorbeeld in VOORBEELDEN)
HANDLEIDING = "/usr/share/doc/tavelo/html/handleiding.html"

# What the package system writes down about itself, and what is made anew of what is installed.
BOEKHOUDING = re.compile(r"/(var/lib/(dpkg|apt)|var/cache|var/log|tmp|dev|run)(/|$)|/etc/ld\.so\.cache$")


def roep(*opdracht, **opties):
    return subprocess.run([str(deel) for deel in opdracht], check=True, text=True, capture_output=True, **opties).stdout


class Debian:
    """A Debian system in a folder."""

    def __init__(self, root, opgehaald):
        self.root = root
        for wat in (["-t", "proc", "proc", root / "proc"], ["--bind", opgehaald, root / "var/cache/apt/archives"]):
            roep("mount", *wat)
        sockets = root / "tmp/.X11-unix"
        sockets.mkdir(exist_ok=True)
        Path("/tmp/.X11-unix").mkdir(mode=0o1777, exist_ok=True)
        roep("mount", "--bind", "/tmp/.X11-unix", sockets)
        (root / "etc/resolv.conf").write_bytes(Path("/etc/resolv.conf").read_bytes())
        beleid = root / "usr/sbin/policy-rc.d"  # no services in here
        beleid.write_text("#!/bin/sh\nexit 101\n")
        beleid.chmod(0o755)
        self.als_root("useradd", "--create-home", "--shell", "/bin/sh", GEBRUIKER)

    def als_root(self, *opdracht):
        try:
            return roep("chroot", self.root, "/usr/bin/env", "-i", "PATH=/usr/sbin:/usr/bin:/sbin:/bin", "LANG=C.UTF-8",
                        "DEBIAN_FRONTEND=noninteractive", *opdracht)
        except subprocess.CalledProcessError as mislukt:
            raise Anders(f"{shlex.join(map(str, opdracht))}\n{mislukt.stdout}{mislukt.stderr}") from mislukt

    def apt(self, *opdracht):
        return self.als_root("apt-get", "--yes", "--quiet=2", "--no-install-recommends", *opdracht)

    def pakketten(self):
        """The installed packages and what they take, in KiB."""
        regels = self.als_root("dpkg-query", "--show", "--showformat", "${Package}\t${Installed-Size}\n").splitlines()
        return {naam: int(maat) for naam, maat in (regel.split("\t") for regel in regels)}

    def paden(self):
        """Everything that stands in it, but the processes."""
        for map_, mappen, namen in os.walk(self.root):
            if Path(map_) == self.root:
                mappen.remove("proc")
            yield from (Path(map_, naam) for naam in mappen + namen)

    def bestanden(self):
        """What stands in it and is not the package system's own: of every path what it holds."""
        gevonden = {}
        for pad in self.paden():
            eigen = "/" + str(pad.relative_to(self.root))
            if BOEKHOUDING.match(eigen):
                continue
            if pad.is_symlink():
                gevonden[eigen] = os.readlink(pad)
            else:
                gevonden[eigen] = pad.read_bytes() if pad.is_file() else "map"
        return gevonden

    def als_gebruiker(self, naar, opdracht, *opties):
        """A command outside that runs one inside as the user, on whatever display is asked for."""
        naar.write_text(f"#!/bin/sh\nexec chroot --userspec={GEBRUIKER}:{GEBRUIKER} {self.root} /usr/bin/env -i "
                        f"PATH=/usr/local/bin:/usr/bin:/bin HOME={THUIS} LANG=C.UTF-8 TZ=Europe/Amsterdam "
                        f'DISPLAY="$DISPLAY" ${{QT_QPA_PLATFORM:+QT_QPA_PLATFORM=$QT_QPA_PLATFORM}} '
                        f'{shlex.join([opdracht, *opties])} "$@"\n')
        naar.chmod(0o755)
        return naar


def stap(zin):
    print(f"-- {zin}", flush=True)


def installeer(debian, pakket):
    stap("installeren")
    debian.apt("update")
    eerst = debian.pakketten()
    shutil.copy(pakket, debian.root / "tmp" / pakket.name)
    debian.apt("install", f"/tmp/{pakket.name}")
    (debian.root / "tmp" / pakket.name).unlink()
    erbij = {naam: maat for naam, maat in debian.pakketten().items() if naam not in eerst}
    print(f"   tavelo {erbij['tavelo'] / 1024:.1f} MiB; met {len(erbij) - 1} andere pakketten "
          f"{sum(erbij.values()) / 1024:.0f} MiB")


def opdracht_van_dubbelklik(debian):
    """What a file manager starts for a schedule: known by its contents, and the program that says it takes that kind."""
    vraag = ("import sys\nimport gi\ngi.require_version('Gio', '2.0')\nfrom gi.repository import Gio\n"
             "soort = Gio.content_type_guess(sys.argv[1], open(sys.argv[1], 'rb').read())[0]\n"
             "app = Gio.DesktopAppInfo.new_from_filename(sys.argv[2])\n"
             "print(soort, *app.get_supported_types(), sep='\\n')\nprint(app.get_commandline())\n")
    usr = debian.root / "usr"
    soort, *kan, opdracht = roep(
        sys.executable, "-c", vraag, debian.root / ROOSTER[1:], usr / "share/applications/tavelo.desktop",
        env={"XDG_DATA_DIRS": str(usr / "share"), "XDG_DATA_HOME": "/nonexistent", "PATH": f"{usr}/bin",
             "LANG": "C.UTF-8"}).splitlines()
    eis(soort in kan, f"een rooster is van soort {soort}, het programma opent {kan}")
    return [deel if deel != "%f" else ROOSTER for deel in shlex.split(opdracht)]


def in_amber(bediening):
    links, boven, breedte, hoogte = bediening.hoofd.vlak()
    return bediening.scherm.beeld().uitsnede((links, boven + hoogte - 40, breedte, 40)).aandeel(AMBER) > 0


def gebruik(debian, uitvoer):
    for voorbeeld in VOORBEELDEN:
        shutil.copy(EXAMPLES / voorbeeld, debian.root / THUIS[1:])
    with Scherm() as scherm:
        try:
            gebruik_op(scherm, debian)
        finally:
            uitvoer.mkdir(parents=True, exist_ok=True)
            scherm.beeld().bewaar(uitvoer / "scherm.png")


def gebruik_op(scherm, debian):
    # The wall as the demonstration has it, so that the same eyes can look at it.
    schrijf_instellingen(scherm, UITERLIJK, dict(zip(EXCEL_SLEUTELS, "ABCDEFGHIJKL")))
    instellingen = debian.root / THUIS[1:] / ".config"
    instellingen.mkdir()
    shutil.copy(scherm.thuis / "config" / INI_NAAM, instellingen)
    roep("chown", "--recursive", "--reference", debian.root / THUIS[1:], instellingen)

    stap("een dubbelklik op een rooster")
    dump = Dump(debian.als_gebruiker(scherm.thuis / "dump", "tavelo-dump"))
    verwacht = dump.lees(ROOSTER)
    programma = debian.als_gebruiker(scherm.thuis / "programma", *opdracht_van_dubbelklik(debian))
    bediening = Bediening(scherm, programma)
    bediening.hoofd = scherm.venster(letterlijk(verwacht["bijschrift"]), 30)
    bediening.hoofd.activeer()

    stap("een nummer typen")
    _, nummer = genummerde_rijen(verwacht["rooster"])[4]
    beeld = bediening.typ_nummer(nummer)
    voorbeeld = bediening.voorbeeld(beeld)
    controleer_weergave(voorbeeld, dump.weergave(ROOSTER, nummer, voorbeeld.breedte, voorbeeld.hoogte), "voorbeeld")
    bediening.gekozen_rij(beeld)

    stap("een startlijst uit Excel")
    bediening.open(STARTLIJST)
    bediening.wacht_op_bijschrift(dump.lees(STARTLIJST)["bijschrift"])

    stap("F1 zonder browser, en met een")
    bediening.hoofd.activeer()
    scherm.toets("F1")
    wacht_tot(lambda: in_amber(bediening), "de statusregel die zegt dat er geen browser is")
    geopend = debian.root / THUIS[1:] / "geopend"
    browser = debian.root / "usr/local/bin/xdg-open"
    browser.write_text(f'#!/bin/sh\nprintf %s "$1" >{THUIS}/geopend\n')
    browser.chmod(0o755)
    scherm.toets("F1")
    wacht_tot(lambda: geopend.is_file() and geopend.read_text() == f"file://{HANDLEIDING}", "de handleiding in de browser")
    pagina = (debian.root / HANDLEIDING[1:]).read_text(encoding="utf-8")
    for beeld in re.findall(r'<img src="([^"]+)"', pagina):
        eis((debian.root / HANDLEIDING[1:]).parent.joinpath(beeld).is_file(), f"de handleiding mist {beeld}")
    browser.unlink()
    geopend.unlink()

    stap("afsluiten")
    bediening.druk("alt+F4")
    wacht_tot(lambda: bediening.proces.poll() is not None, "het einde van het programma")
    eis(bediening.proces.returncode == 0, f"het programma eindigt met {bediening.proces.returncode}")
    for voorbeeld in VOORBEELDEN:
        (debian.root / THUIS[1:] / voorbeeld).unlink()


def verwijder(debian, eerst):
    stap("verwijderen")
    debian.apt("purge", "--autoremove", "tavelo")
    eis("tavelo" not in debian.pakketten(), "het pakket staat er nog")
    daarna = debian.bestanden()
    van_gebruiker = sorted(pad for pad in daarna.keys() - eerst.keys() if pad.startswith(THUIS))
    print(f"   blijft: {', '.join(van_gebruiker)}")
    anders = sorted(pad for pad in daarna.keys() | eerst.keys()
                    if daarna.get(pad) != eerst.get(pad) and not pad.startswith(THUIS))
    eis(not anders, "anders dan voor het installeren: " + ", ".join(anders))
    sporen = [str(pad) for pad in debian.paden() if "tavelo" in pad.name.lower()]
    eis(not sporen, "wat nog naar het programma heet: " + ", ".join(sporen))
    bestanden = [pad for pad in van_gebruiker if daarna[pad] != "map"]
    eis(bestanden == [f"{THUIS}/.config/{INI_NAAM}"], f"bij de gebruiker: {', '.join(bestanden)}")


def main():
    opties = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    opties.add_argument("--root", type=Path, required=True)
    opties.add_argument("--fetched", type=Path, required=True)
    opties.add_argument("--output", type=Path, required=True)
    opties.add_argument("pakket", type=Path)
    keuze = opties.parse_args()
    try:
        debian = Debian(keuze.root.resolve(), keuze.fetched)
        eerst = debian.bestanden()
        installeer(debian, keuze.pakket)
        gebruik(debian, keuze.output)
        verwijder(debian, eerst)
    except Anders as anders:
        print(f"MIS: {anders}", file=sys.stderr)
        return 1
    except subprocess.CalledProcessError as mislukt:
        print(f"MIS: {mislukt}\n{mislukt.stderr}", file=sys.stderr)
        return 1
    print("alles klopt")
    return 0


if __name__ == "__main__":
    sys.exit(main())
