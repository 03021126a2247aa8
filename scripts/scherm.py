"""A virtual display and what a person does with it: start a program, press keys, move the mouse, look.

Nothing in here reaches into the program: windows are found by their caption, and what they show is read from pictures of
the screen.
"""

import contextlib
import functools
import os
import re
import shutil
import struct
import subprocess
import tempfile
import time
import zlib
from pathlib import Path

from x11 import X11

LETTERTYPE = "/usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf"


class Anders(Exception):
    """The screen does not show what it should."""


def wacht_tot(voorwaarde, wat, seconden=10.0, tussen=0.1):
    """Looks again and again until `voorwaarde()` gives something true, and returns that."""
    einde = time.monotonic() + seconden
    while True:
        uitkomst = voorwaarde()
        if uitkomst:
            return uitkomst
        if time.monotonic() > einde:
            raise Anders(f"na {seconden:g} s nog niet: {wat}")
        time.sleep(tussen)


class Beeld:
    """A picture of the screen: pixels are (red, green, blue), areas (left, top, width, height)."""

    def __init__(self, breedte, hoogte, rgb):
        self.breedte, self.hoogte, self.rgb = breedte, hoogte, rgb

    def kleur(self, x, y):
        plaats = 3 * (y * self.breedte + x)
        return tuple(self.rgb[plaats:plaats + 3])

    def uitsnede(self, vlak):
        links, boven, breedte, hoogte = self._binnen(vlak)
        regels = (3 * (y * self.breedte + links) for y in range(boven, boven + hoogte))
        return Beeld(breedte, hoogte, b"".join(self.rgb[plaats:plaats + 3 * breedte] for plaats in regels))

    def _binnen(self, vlak):
        links, boven = max(vlak[0], 0), max(vlak[1], 0)
        return (links, boven, max(min(vlak[0] + vlak[2], self.breedte) - links, 0),
                max(min(vlak[1] + vlak[3], self.hoogte) - boven, 0))

    def __eq__(self, ander):
        return (self.breedte, self.hoogte, self.rgb) == (ander.breedte, ander.hoogte, ander.rgb)

    def aandeel(self, kleur):
        """The share (0 to 1) of the pixels that have exactly this colour."""
        gelijk = -1
        for kanaal, waarde in enumerate(kleur):
            een_waar_gelijk = bytes(getal == waarde for getal in range(256))
            gelijk &= int.from_bytes(self.rgb[kanaal::3].translate(een_waar_gelijk), "big")
        return gelijk.bit_count() / max(self.breedte * self.hoogte, 1)

    def inkt(self, achtergrond):
        """Left and right edge of what is not background, or nothing when all of it is."""
        lijn = 3 * self.breedte
        leeg = int.from_bytes(bytes(achtergrond) * self.breedte, "big")
        anders = 0  # a line as one number: a bit is on where some line differs
        for begin in range(0, lijn * self.hoogte, lijn):
            anders |= int.from_bytes(self.rgb[begin:begin + lijn], "big") ^ leeg
        if not anders:
            return None
        eerste = lijn - 1 - (anders.bit_length() - 1) // 8
        laatste = lijn - 1 - ((anders & -anders).bit_length() - 1) // 8
        return eerste // 3, laatste // 3 + 1

    def vlak_van(self, kleur):
        """The smallest area with every pixel of exactly this colour, or nothing."""
        zoek, lijn = bytes(kleur), 3 * self.breedte
        gevonden = []
        for y in range(self.hoogte):
            regel = self.rgb[y * lijn:(y + 1) * lijn]
            eerste, laatste = regel.find(zoek), regel.rfind(zoek)
            while eerste % 3 and eerste >= 0:  # across two pixels
                eerste = regel.find(zoek, eerste + 1)
            while laatste % 3 and laatste >= 0:
                laatste = regel.rfind(zoek, 0, laatste + 2)
            if eerste >= 0:
                gevonden.append((y, eerste // 3, laatste // 3))
        if not gevonden:
            return None
        links, rechts = min(g[1] for g in gevonden), max(g[2] for g in gevonden)
        return links, gevonden[0][0], rechts - links + 1, gevonden[-1][0] - gevonden[0][0] + 1

    def bewaar(self, pad, kleuren=None, schaal=100):
        """As a PNG; with a number of colours it becomes much smaller. The scale is in percent."""
        if not kleuren and schaal == 100:
            Path(pad).write_bytes(self._png())
            return
        beperking = ["-resize", f"{schaal}%"] if schaal != 100 else []
        beperking += ["+dither", "-colors", str(kleuren)] if kleuren else []
        subprocess.run(["convert", "-size", f"{self.breedte}x{self.hoogte}", "-depth", "8", "rgb:-", "-strip",
                        *beperking, f"png:{pad}"], input=self.rgb, check=True)

    def _png(self):
        def deel(soort, inhoud):
            return struct.pack(">I", len(inhoud)) + soort + inhoud + struct.pack(">I", zlib.crc32(soort + inhoud))
        lijn = 3 * self.breedte
        regels = b"".join(b"\0" + self.rgb[y * lijn:(y + 1) * lijn] for y in range(self.hoogte))
        kop = struct.pack(">IIBBBBB", self.breedte, self.hoogte, 8, 2, 0, 0, 0)  # three channels of eight bits
        return b"\x89PNG\r\n\x1a\n" + deel(b"IHDR", kop) + deel(b"IDAT", zlib.compress(regels)) + deel(b"IEND", b"")


@functools.cache
def inktbreedte(tekst, punten):
    """How many pixels wide the ink of a text is at this size (96 dpi), by another renderer than the program's.

    Measured ten times as large, so that fitting letters to pixels changes nothing.
    """
    if not tekst:
        return 0
    uitvoer = subprocess.run(
        ["convert", "-font", LETTERTYPE, "-density", "960", "-pointsize", str(punten), f"label:{tekst}", "-trim",
         "-format", "%w", "info:"], check=True, capture_output=True, text=True).stdout
    return int(uitvoer) / 10


class Venster:
    """A window of the program on the screen."""

    def __init__(self, scherm, nummer):
        self.scherm, self.nummer = scherm, nummer

    def bijschrift(self):
        return self.scherm.xdotool("getwindowname", self.nummer).strip()

    def vlak(self):
        """Its inner area on the screen."""
        uitvoer = self.scherm.roep("xwininfo", "-id", self.nummer)
        namen = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        waarden = [re.search(rf"{naam}: +(-?\d+)", uitvoer) for naam in namen]
        if None in waarden:
            raise Anders(f"venster {self.nummer} is er niet meer")
        return tuple(int(waarde[1]) for waarde in waarden)

    def activeer(self):
        self.scherm.xdotool("windowactivate", "--sync", self.nummer)

    def beeld(self):
        return self.scherm.beeld().uitsnede(self.vlak())

    def klik(self, x, y, knop=1):
        """A click at a place inside the window."""
        links, boven, _, _ = self.vlak()
        self.scherm.xdotool("mousemove", "--sync", str(links + x), str(boven + y), "click", str(knop))

    def maak_los(self):
        """Takes it out of maximised as a person does, by a double click on its title bar."""
        def is_gemaximaliseerd():
            return "_MAXIMIZED_" in self.scherm.roep("xprop", "-id", self.nummer, "_NET_WM_STATE")
        if is_gemaximaliseerd():
            links, boven, breedte, _ = self.vlak()
            self.scherm.xdotool("mousemove", "--sync", links + breedte // 2, boven - 8, "click", "--repeat", 2,
                                "--delay", 60, 1)
            wacht_tot(lambda: not is_gemaximaliseerd(), "een venster dat niet gemaximaliseerd is")
            self.scherm.muis_weg()

    def heeft_rand(self):
        """Whether the window manager drew a title bar around it."""
        uitvoer = self.scherm.roep("xprop", "-id", self.nummer, "_NET_FRAME_EXTENTS")
        return any(int(getal) for getal in re.findall(r"\d+", uitvoer.partition("=")[2]))


class Scherm:
    """A virtual display with a window manager and a home folder of its own, gone when it is closed."""

    def __init__(self, breedte=1280, hoogte=800, omgeving=None):
        self.breedte, self.hoogte = breedte, hoogte
        self._taken = contextlib.ExitStack()
        self.thuis = Path(tempfile.mkdtemp(prefix="tavelo-"))
        self._taken.callback(shutil.rmtree, self.thuis, ignore_errors=True)
        for map_ in ("config", "data", "cache", "runtime", "Documents"):
            (self.thuis / map_).mkdir(mode=0o700)
        self.omgeving = {
            naam: waarde for naam, waarde in os.environ.items()
            if not naam.startswith(("QT_", "XDG_", "WAYLAND", "DBUS", "DESKTOP", "LC_"))
        } | {
            "HOME": str(self.thuis), "XDG_CONFIG_HOME": str(self.thuis / "config"),
            "XDG_DATA_HOME": str(self.thuis / "data"), "XDG_CACHE_HOME": str(self.thuis / "cache"),
            "XDG_RUNTIME_DIR": str(self.thuis / "runtime"), "LANG": "C.UTF-8", "QT_QPA_PLATFORM": "xcb",
            "TZ": "Europe/Amsterdam"
        } | (omgeving or {})
        self.omgeving["DISPLAY"] = self._start_server()
        self.x11 = X11(self.omgeving["DISPLAY"])
        self._taken.callback(self.x11.sluit)
        self._richt_in()
        self.start_achtergrond("openbox", "--sm-disable")
        wacht_tot(lambda: "_NET_SUPPORTING_WM_CHECK(WINDOW)" in self.roep("xprop", "-root"), "de vensterbeheerder", 30)
        # A pointer over a control colours it; between clicks it rests in a corner.
        self.muis_weg()

    def _server(self):
        """The command of the display server."""
        return ["Xvfb", "-screen", "0", f"{self.breedte}x{self.hoogte}x24"]

    def _richt_in(self):
        """What the server still needs before the window manager comes."""

    def _start_server(self):
        lees, schrijf = os.pipe()
        # Without -noreset the server begins anew, and throws out who is just coming in, whenever its last client leaves.
        opdracht = [*self._server(), "-displayfd", str(schrijf), "-noreset", "-nolisten", "tcp"]
        self.server = server = subprocess.Popen(opdracht, pass_fds=[schrijf], stdout=subprocess.DEVNULL,
                                                stderr=subprocess.DEVNULL)
        self._taken.callback(self._stop, server)
        os.close(schrijf)
        with os.fdopen(lees) as pijp:
            nummer = pijp.readline().strip()
        if not nummer:
            raise Anders(f"{opdracht[0]} start niet")
        return f":{nummer}"

    def start_achtergrond(self, *opdracht):
        proces = subprocess.Popen(opdracht, env=self.omgeving, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self._taken.callback(self._stop, proces)
        return proces

    @staticmethod
    def _stop(proces):
        proces.terminate()
        with contextlib.suppress(subprocess.TimeoutExpired):
            proces.wait(5)
            return
        proces.kill()
        proces.wait()

    def start(self, programma, *opties):
        """Starts the program; it is ended with the display when it still runs by then."""
        proces = subprocess.Popen([str(programma), *opties], env=self.omgeving, cwd=self.thuis)
        self._taken.callback(self._stop, proces)
        return proces

    def roep(self, *opdracht):
        return subprocess.run(opdracht, env=self.omgeving, capture_output=True, text=True, check=False).stdout

    def xdotool(self, *opdracht):
        return self.roep("xdotool", *map(str, opdracht))

    def toets(self, *toetsen):
        self.xdotool("key", "--clearmodifiers", "--delay", "30", *toetsen)

    def typ(self, tekst):
        self.xdotool("type", "--delay", "20", "--", tekst)

    def muis_weg(self):
        self.xdotool("mousemove", "--sync", self.breedte - 2, self.hoogte - 2)

    def vensters(self, bijschrift):
        """The visible windows whose caption matches the whole regular expression."""
        nummers = self.xdotool("search", "--onlyvisible", "--name", f"^({bijschrift})$").split()
        return [Venster(self, nummer) for nummer in nummers]

    def venster(self, bijschrift, seconden=15.0):
        return wacht_tot(lambda: self.vensters(bijschrift), f"een venster '{bijschrift}'", seconden)[0]

    def beeld(self):
        rgb = None
        while rgb is None:  # between the two questions an output may have been switched off
            breedte, hoogte = self.x11.maat()
            rgb = self.x11.rgb(0, 0, breedte, hoogte)
        return Beeld(breedte, hoogte, rgb)

    def rustig_beeld(self, seconden=30.0):
        """A picture of the screen once two in a row are the same. (A caret blinks: a slow computer needs some tries.)"""
        vorig = self.beeld()

        def rustig():
            nonlocal vorig
            time.sleep(0.15)
            nu = self.beeld()
            gelijk, vorig = nu == vorig, nu
            return gelijk
        wacht_tot(rustig, "een rustig beeld", seconden)
        return vorig

    def sluit(self):
        self._taken.close()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.sluit()


XORG_CONF = """
Section "ServerFlags"
    Option "AutoAddDevices" "false"
    Option "AutoEnableDevices" "false"
    Option "AutoAddGPU" "false"
    Option "DontVTSwitch" "true"
EndSection
Section "Device"
    Identifier "kaart"
    Driver "dummy"
    VideoRam 262144
EndSection
Section "Screen"
    Identifier "scherm"
    Device "kaart"
    DefaultDepth 24
EndSection
"""


class TweeSchermen(Scherm):
    """A display with two outputs: the operator's and, to the right of it, the one for the public (the wall).

    Needs no graphics card, no console and no rights: the server's own program with its dummy driver.
    """

    BUREAU, WAND = "DUMMY0", "DUMMY1"

    def __init__(self, bureau=(1280, 800), wand=(1920, 1080), wand_aan=True, omgeving=None):
        self._maten = {self.BUREAU: bureau, self.WAND: wand}
        self._begin_met_wand = wand_aan
        super().__init__(*bureau, omgeving=omgeving)

    def _server(self):
        instelling = self.thuis / "xorg.conf"
        instelling.write_text(XORG_CONF)
        # Not what `Xorg` on the path may be: a wrapper that wants a console.
        return ["/usr/lib/xorg/Xorg", "-config", str(instelling), "-logfile", str(self.thuis / "Xorg.log"),
                "-novtswitch", "-s", "0"]

    def _richt_in(self):
        for uitgang, (breedte, hoogte) in self._maten.items():
            maat = f"{breedte}x{hoogte}"
            breed, hoog = breedte + 160, hoogte + 40  # with blanking; any will do
            self.xrandr("--newmode", maat, f"{breed * hoog * 60 / 1e6:.2f}", breedte, breedte + 48, breedte + 80, breed,
                        hoogte, hoogte + 3, hoogte + 8, hoog)
            self.xrandr("--addmode", uitgang, maat)
        self.xrandr("--output", self.BUREAU, "--mode", self._maat(self.BUREAU), "--pos", "0x0", "--primary")
        if self._begin_met_wand:
            self.steek_in()
        if set(self.vlakken()) != {self.BUREAU} | ({self.WAND} if self._begin_met_wand else set()):
            raise Anders(f"de schermen zijn niet uit elkaar te houden: {self.vlakken()}")

    def _maat(self, uitgang):
        return "{}x{}".format(*self._maten[uitgang])

    def xrandr(self, *opdracht):
        return self.roep("xrandr", *map(str, opdracht))

    def steek_in(self):
        """The wall is switched on."""
        self.xrandr("--output", self.WAND, "--mode", self._maat(self.WAND), "--pos", f"{self.breedte}x0")
        wacht_tot(lambda: self.WAND in self.vlakken(), "het tweede scherm")

    def trek_uit(self):
        """The wall is switched off."""
        self.xrandr("--output", self.WAND, "--off")
        wacht_tot(lambda: self.WAND not in self.vlakken(), "het einde van het tweede scherm")

    def vlakken(self):
        """The areas of the outputs that are on, by name."""
        regels = re.findall(r"^(\S+) connected (?:primary )?(\d+)x(\d+)\+(\d+)\+(\d+)", self.xrandr(), re.MULTILINE)
        return {naam: (int(links), int(boven), int(breedte), int(hoogte))
                for naam, breedte, hoogte, links, boven in regels}

    def bureau(self):
        return self.vlakken()[self.BUREAU]

    def wand(self):
        return self.vlakken()[self.WAND]
