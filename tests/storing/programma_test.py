#!/usr/bin/env python3
"""The real program when the system fails it, and when it is ended from outside.

    tests/storing/programma_test.py --program build/dev/src/tavelo --storing build/dev/tests/storing/libstoring.so

Most runs need no display: they are ended while the splash is up, and the shut-down writes the settings all the same,
numbers as plain text. So a write shows in the file: "&HFF" becomes "255". Runs in which an operator chooses something
have a virtual display each.
"""

import argparse
import contextlib
import os
import signal
import stat
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "scripts"))
from scherm import Anders, Scherm, wacht_tot  # noqa: E402

INI_NAAM = "Vendalo 3.5 Deelnemer.ini"
OUD = "[Layout]\nbackcolor=&HFF\ntextsize=130\n[Vreemd]\nsleutel=waarde\n"
REST = f".{INI_NAAM}.0123456789abcdef.nieuw"
GEDULD = 120  # seconds; a busy machine is slow

EINDE_STAPPEN = ["open *.nieuw", "write *.nieuw", "sync *.nieuw", "close *.nieuw", "rename *Deelnemer.ini"]


def eis(voorwaarde, anders):
    if not voorwaarde:
        raise Anders(anders)


class Loop:
    """Runs of the program without a display, in a folder of their own."""

    begonnen = []  # every process, each with a group of its own

    def __init__(self, opties, inhoud=OUD):
        self.opties = opties
        self.thuis = Path(tempfile.mkdtemp(dir=opties.werkmap))
        self.map = self.thuis / "config"
        self.map.mkdir()
        self.ini = self.map / INI_NAAM
        self.log = self.thuis / "log"
        if inhoud is not None:
            self.ini.write_text(inhoud, encoding="utf-8")

    def begin(self, storing="", vooraf=()):
        omgeving = os.environ | {
            "HOME": str(self.thuis), "XDG_CONFIG_HOME": str(self.map), "XDG_RUNTIME_DIR": str(self.thuis),
            "QT_QPA_PLATFORM": "offscreen", "STORING_LOG": str(self.log),
            # The log of the first rule tells how far the program is.
            "STORING": f"stat *Deelnemer.ini log;{storing}"
        }
        opdracht = [*vooraf, "env", f"LD_PRELOAD={self.opties.storing}", str(self.opties.program)]
        self.proces = subprocess.Popen(opdracht, env=omgeving, cwd=self.thuis, stdout=subprocess.DEVNULL,
                                       stderr=subprocess.DEVNULL, start_new_session=True)
        self.begonnen.append(self.proces)

    @classmethod
    def ruim_op(cls):
        """Ends what a failed test left running."""
        for proces in cls.begonnen:
            if proces.poll() is None:
                os.killpg(proces.pid, signal.SIGKILL)
                proces.wait()

    def start(self, storing="", vooraf=()):
        """Returns when the program has asked for its settings."""
        self.begin(storing, vooraf)
        wacht_tot(lambda: self.log.exists() or self.proces.poll() is not None, "het lezen van de instellingen", GEDULD)
        eis(self.proces.poll() is None, f"het programma start niet: {self.proces.poll()}")

    def beeindig(self, sein=signal.SIGTERM):
        self.proces.send_signal(sein)
        self.wacht_op_einde()

    def wacht_op_einde(self):
        try:
            code = self.proces.wait(GEDULD)
        except subprocess.TimeoutExpired as nooit:
            self.proces.kill()
            raise Anders("het programma eindigt niet") from nooit
        eis(code == 0, f"het programma eindigt met {code}")

    def geraakt(self, regel):
        """How often the rule of this effect was met."""
        return self.log.read_text(encoding="utf-8").count(f" {regel} ")

    def tekst(self):
        return self.ini.read_text(encoding="utf-8")

    def namen(self):
        return sorted(os.listdir(self.map))


def een_sein_tijdens_het_beginscherm_sluit_af_en_bewaart(opties):
    for sein in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
        loop = Loop(opties)
        loop.start("rename *Deelnemer.ini log")
        loop.beeindig(sein)
        eis("backcolor=255\n" in loop.tekst() and "sleutel=waarde\n" in loop.tekst(), f"niet bewaard na {sein}")
        hernoemd = [regel for regel in loop.log.read_text(encoding="utf-8").splitlines() if regel.startswith("rename")]
        eis(len(hernoemd) == 1, f"{len(hernoemd)} keer geschreven")


def een_tweede_sein_verandert_daar_niets_aan(opties):
    loop = Loop(opties)
    loop.start("sync *.nieuw 500ms")
    loop.proces.send_signal(signal.SIGTERM)
    wacht_tot(lambda: loop.geraakt("500ms"), "het schrijven", GEDULD)
    loop.proces.send_signal(signal.SIGHUP)
    loop.proces.send_signal(signal.SIGTERM)
    loop.wacht_op_einde()
    eis("backcolor=255\n" in loop.tekst() and loop.geraakt("500ms") == 1, "niet een keer bewaard")


def een_schrijffout_laat_het_oude_bestand_heel(opties):
    for stap, fout in zip(EINDE_STAPPEN, ("EDQUOT", "ENOSPC", "EIO", "EDQUOT", "EIO")):
        loop = Loop(opties)
        loop.start(f"{stap} {fout}")
        loop.beeindig()
        eis(loop.geraakt(fout) == 1, f"{stap} is niet geraakt")
        eis(loop.tekst() == OUD, f"na {fout} bij {stap} staat er: {loop.tekst()!r}")
        eis(loop.namen() == [INI_NAAM], f"na {stap} is er meer: {loop.namen()}")


def een_volle_schijf_laat_het_oude_bestand_heel(opties):
    """A disk of two pages that are both taken; without the right to mount one, the library plays it."""
    loop = Loop(opties)
    mag = subprocess.run(["unshare", "--mount", "mount", "-t", "tmpfs", "none", str(loop.map)], check=False,
                         stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0
    if not mag:
        loop.start("write *.nieuw room0")
        loop.beeindig()
        eis(loop.tekst() == OUD, f"er staat: {loop.tekst()!r}")
        return
    uitkomst, klaar = loop.thuis / "uitkomst", loop.thuis / "klaar"
    os.mkfifo(klaar)
    # The shell keeps the disk alive for as long as the program is looked at.
    script = ('cp "$1" "$3" && mount -t tmpfs -o size=8k none "$2" && cp "$3" "$1" && '
              'head -c 4096 /dev/zero >"$2/vulsel" && ( shift 3; "$@" & echo $! >"$0"; wait; ); '
              'cp "$1" "$3"; ls -A "$2" >>"$3"')
    vooraf = ["unshare", "--mount", "sh", "-c", script, str(klaar), str(loop.ini), str(loop.map), str(uitkomst)]
    with ThreadPoolExecutor(1) as lezer:
        nummer = lezer.submit(lambda: int(klaar.read_text(encoding="ascii")))
        loop.start("write *.nieuw log", vooraf)
        os.kill(nummer.result(GEDULD), signal.SIGTERM)
    loop.proces.wait(GEDULD)
    eis("write log" in loop.log.read_text(encoding="utf-8"), "er is niet geschreven")
    eis(uitkomst.read_text(encoding="utf-8") == f"{OUD}{INI_NAAM}\nvulsel\n",
        f"er staat: {uitkomst.read_text(encoding='utf-8')!r}")


def wat_niet_te_lezen_was_wordt_niet_door_standaardwaarden_vervangen(opties):
    for fout in ("open *Deelnemer.ini EACCES", "open *Deelnemer.ini EMFILE", "read *Deelnemer.ini EIO"):
        for keer, verwacht in ((1, "textsize=130\n"), (2, "backcolor=&HFF\ntextsize=130\n")):
            loop = Loop(opties)
            loop.start(f"{fout} 1-{keer}")
            loop.beeindig()
            eis(loop.geraakt(fout.split()[2]) == keer, f"niet geraakt: {fout}")
            eis(verwacht in loop.tekst() and "showrubric=0\n" in loop.tekst(), f"na {fout}: {loop.tekst()!r}")


def nul_apparaat(pad):
    """A device of its own; who may not make one gets the system's, which he cannot replace either."""
    try:
        os.mknod(pad, stat.S_IFCHR | 0o666, os.makedev(1, 3))
        return pad
    except PermissionError:
        return Path("/dev/null")


def wat_geen_gewoon_bestand_is_blijft(opties):
    for soort in ("pijp", "apparaat"):
        loop = Loop(opties, inhoud=None)
        if soort == "pijp":
            os.mkfifo(loop.ini)
        else:
            apparaat = nul_apparaat(loop.thuis / "nul")
            loop.ini.symlink_to(apparaat)
        loop.start()
        loop.beeindig()
        eis(loop.namen() == [INI_NAAM], f"er is meer: {loop.namen()}")
        if soort == "pijp":
            eis(stat.S_ISFIFO(loop.ini.lstat().st_mode), "de pijp is vervangen")
        else:
            eis(loop.ini.is_symlink() and loop.ini.is_char_device(), "de koppeling of het apparaat is vervangen")


def een_koppeling_naar_een_bestand_wordt_gevolgd_en_blijft(opties):
    loop = Loop(opties, inhoud=None)
    echt = loop.thuis / "echt.ini"
    echt.write_text(OUD, encoding="utf-8")
    loop.ini.symlink_to(echt)
    loop.start()
    loop.beeindig()
    eis(loop.ini.is_symlink() and "backcolor=255\n" in echt.read_text(encoding="utf-8"), "niet gevolgd")


def een_rest_van_een_gedode_schrijver_gaat_weg(opties):
    loop = Loop(opties)
    loop.start("rename *Deelnemer.ini kill")
    loop.proces.send_signal(signal.SIGTERM)
    eis(loop.proces.wait(GEDULD) == -signal.SIGKILL, "niet gedood")
    eis(loop.tekst() == OUD and len(loop.namen()) == 2, f"na de dood: {loop.namen()}")
    vreemd = loop.map / (INI_NAAM + ".nieuw")
    vreemd.write_text("van een ander", encoding="utf-8")
    loop.log.unlink()
    loop.start()
    loop.beeindig()
    eis(loop.namen() == [INI_NAAM, vreemd.name], f"na de volgende start: {loop.namen()}")
    eis("backcolor=255\n" in loop.tekst(), "niet bewaard")


def een_veel_te_groot_bestand_kost_niets_en_blijft(opties):
    def geheugen(grootte):
        loop = Loop(opties)
        if grootte:
            os.truncate(loop.ini, grootte)
        loop.start("read *Deelnemer.ini 0ms")
        loop.proces.send_signal(signal.SIGTERM)
        _, status, gebruik = os.wait4(loop.proces.pid, 0)
        loop.proces.returncode = os.waitstatus_to_exitcode(status)
        eis(loop.proces.returncode == 0, f"het programma eindigt met {loop.proces.returncode}")
        eis((loop.geraakt("0ms") == 0) == bool(grootte), "gelezen terwijl het te groot is, of niet gelezen")
        eis(not grootte or loop.ini.stat().st_size == grootte, "geschreven")
        return gebruik.ru_maxrss  # kB
    gewoon, groot = geheugen(0), geheugen(200_000_000)
    eis(groot < gewoon + 20_000, f"{groot} kB tegen {gewoon} kB")


class SchermLoop:
    """The program on a display; `kies` opens the settings and switches the rubriek on."""

    def __init__(self, opties, taken):
        self.scherm = taken.enter_context(Scherm())
        self.ini = self.scherm.thuis / "config" / INI_NAAM
        self.ini.write_text(OUD, encoding="utf-8")
        self.proces = self.scherm.start(opties.program)
        self.hoofd = self.scherm.venster(r"Vendalo 3\.5 Tavelo - \[naamloos\]", GEDULD)

    def kies(self, ok):
        self.hoofd.activeer()
        self.scherm.toets("alt+b")
        self.scherm.toets("i")
        venster = self.scherm.venster("Instellingen", GEDULD)
        venster.activeer()
        voor = self.scherm.rustig_beeld(GEDULD)
        self.scherm.toets("alt+r")
        wacht_tot(lambda: self.scherm.beeld() != voor, "het vinkje", GEDULD)
        if ok:
            self.scherm.toets("Return")
            wacht_tot(lambda: not self.scherm.vensters("Instellingen"), "het sluiten van de instellingen", GEDULD)

    def einde(self, code):
        uitkomst = self.proces.wait(GEDULD)
        eis(uitkomst == code, f"het programma eindigt met {uitkomst}")
        return self.ini.read_text(encoding="utf-8")


def met_scherm(opties, ok, einde, code, verwacht):
    with contextlib.ExitStack() as taken:
        loop = SchermLoop(opties, taken)
        loop.kies(ok)
        eis(loop.ini.read_text(encoding="utf-8") == OUD, "te vroeg geschreven")
        einde(loop)
        tekst = loop.einde(code)
        eis("backcolor=255\n" in tekst and verwacht in tekst, f"er staat: {tekst!r}")


def ok_overleeft_sigterm(opties):
    met_scherm(opties, True, lambda loop: loop.proces.send_signal(signal.SIGTERM), 0, "showrubric=1\n")


def ok_overleeft_sighup(opties):
    met_scherm(opties, True, lambda loop: loop.proces.send_signal(signal.SIGHUP), 0, "showrubric=1\n")


def ok_overleeft_een_scherm_dat_weg_is(opties):
    met_scherm(opties, True, lambda loop: loop.scherm.server.kill(), 1, "showrubric=1\n")


def onder_wayland_opent_het_op_de_x_server_ernaast(opties):
    """Where the windows may be placed, and where settings outlive the display."""
    with Scherm() as scherm:
        scherm.omgeving |= {"WAYLAND_DISPLAY": "wayland-proef", "XDG_SESSION_TYPE": "wayland"}
        del scherm.omgeving["QT_QPA_PLATFORM"]
        scherm.start_achtergrond("weston", "--backend=headless-backend.so", "--socket=wayland-proef")
        stopcontact = Path(scherm.omgeving["XDG_RUNTIME_DIR"]) / "wayland-proef"
        wacht_tot(stopcontact.exists, "Wayland", GEDULD)
        scherm.start(opties.program)
        scherm.venster(r"Vendalo 3\.5 Tavelo - \[naamloos\]", GEDULD)


def wat_niet_met_ok_gekozen_is_wordt_door_een_sein_geannuleerd(opties):
    met_scherm(opties, False, lambda loop: loop.proces.send_signal(signal.SIGTERM), 0, "showrubric=0\n")


def wat_niet_met_ok_gekozen_is_wordt_ook_zonder_scherm_niet_bewaard(opties):
    met_scherm(opties, False, lambda loop: loop.scherm.server.kill(), 1, "showrubric=0\n")


def een_sein_onder_een_open_dialoog_sluit_af(opties):
    for kleur in (False, True):
        with contextlib.ExitStack() as taken:
            loop = SchermLoop(opties, taken)
            if kleur:
                loop.kies(ok=False)
                loop.scherm.toets("alt+c")
                loop.scherm.venster("Kleur kiezen", GEDULD)
            else:
                loop.hoofd.activeer()
                loop.scherm.toets("ctrl+o")
                loop.scherm.venster("Rooster openen", GEDULD)
            loop.proces.send_signal(signal.SIGTERM)
            tekst = loop.einde(0)
            eis("backcolor=255\n" in tekst and "showrubric=0\n" in tekst, f"er staat: {tekst!r}")


PROEVEN = [
    een_sein_onder_een_open_dialoog_sluit_af,
    ok_overleeft_sigterm,
    ok_overleeft_sighup,
    ok_overleeft_een_scherm_dat_weg_is,
    onder_wayland_opent_het_op_de_x_server_ernaast,
    wat_niet_met_ok_gekozen_is_wordt_door_een_sein_geannuleerd,
    wat_niet_met_ok_gekozen_is_wordt_ook_zonder_scherm_niet_bewaard,
    een_sein_tijdens_het_beginscherm_sluit_af_en_bewaart,
    een_tweede_sein_verandert_daar_niets_aan,
    een_schrijffout_laat_het_oude_bestand_heel,
    een_volle_schijf_laat_het_oude_bestand_heel,
    wat_niet_te_lezen_was_wordt_niet_door_standaardwaarden_vervangen,
    wat_geen_gewoon_bestand_is_blijft,
    een_koppeling_naar_een_bestand_wordt_gevolgd_en_blijft,
    een_rest_van_een_gedode_schrijver_gaat_weg,
    een_veel_te_groot_bestand_kost_niets_en_blijft,
]


def uitkomst_van(proef, opties):
    try:
        proef(opties)
    except Exception as anders:  # one that fails must not hide what the others say
        return f"{type(anders).__name__}: {anders}"
    return None


def main():
    lezer = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    lezer.add_argument("--program", type=lambda pad: Path(pad).resolve(), required=True)
    lezer.add_argument("--storing", type=lambda pad: Path(pad).resolve(), required=True)
    lezer.add_argument("proeven", nargs="*", metavar="TEST", help="names of tests; all without")
    opties = lezer.parse_args()
    gekozen = [proef for proef in PROEVEN if not opties.proeven or proef.__name__ in opties.proeven]
    with (tempfile.TemporaryDirectory(prefix="tavelo-") as opties.werkmap,
          ThreadPoolExecutor(4) as werkers):  # they wait more than they work
        uitkomsten = list(werkers.map(lambda proef: uitkomst_van(proef, opties), gekozen))
        Loop.ruim_op()
    for proef, uitkomst in zip(gekozen, uitkomsten):
        print("MIS " if uitkomst else "goed", proef.__name__, uitkomst or "")
    return 1 if any(uitkomsten) or not gekozen else 0


if __name__ == "__main__":
    sys.exit(main())
