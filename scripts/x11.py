"""The display server itself, by its own library: faster than a program for every look or key.

Only what Scherm and the tests need: pictures, one pixel, a key, and the changes of a window's properties.
"""

import ctypes
import ctypes.util
from ctypes import POINTER, byref, c_char_p, c_int, c_long, c_uint, c_ulong, c_void_p

ALLE_VLAKKEN = c_ulong(-1).value  # AllPlanes
Z_BEELD = 2  # ZPixmap: a pixel after the other
ZICHTBAAR = 2  # IsViewable
KINDEREN, EIGENSCHAPPEN = 1 << 19, 1 << 22  # SubstructureNotifyMask, PropertyChangeMask
NIEUW_VENSTER, EIGENSCHAP = 16, 28  # CreateNotify, PropertyNotify


class _Beeld(ctypes.Structure):  # the beginning of XImage
    _fields_ = [("width", c_int), ("height", c_int), ("xoffset", c_int), ("format", c_int), ("data", c_void_p),
                ("byte_order", c_int), ("bitmap_unit", c_int), ("bitmap_bit_order", c_int), ("bitmap_pad", c_int),
                ("depth", c_int), ("bytes_per_line", c_int)]


class _Kenmerken(ctypes.Structure):  # XWindowAttributes; the space at the end is for what comes after
    _fields_ = [("x", c_int), ("y", c_int), ("width", c_int), ("height", c_int), ("border_width", c_int),
                ("depth", c_int), ("visual", c_void_p), ("root", c_ulong), ("class_", c_int), ("bit_gravity", c_int),
                ("win_gravity", c_int), ("backing_store", c_int), ("backing_planes", c_ulong),
                ("backing_pixel", c_ulong), ("save_under", c_int), ("colormap", c_ulong), ("map_installed", c_int),
                ("map_state", c_int), ("rest", c_long * 8)]


class _Gebeurtenis(ctypes.Structure):  # XCreateWindowEvent and XPropertyEvent are alike up to here
    _fields_ = [("type", c_int), ("serial", c_ulong), ("send_event", c_int), ("display", c_void_p),
                ("window", c_ulong), ("wat", c_ulong), ("rest", c_long * 24)]


def _bibliotheek(naam, functies):
    bibliotheek = ctypes.CDLL(naam)
    for functie, (uitkomst, *soorten) in functies.items():
        getattr(bibliotheek, functie).restype = uitkomst
        getattr(bibliotheek, functie).argtypes = soorten
    return bibliotheek


X = _bibliotheek("libX11.so.6", {
    "XOpenDisplay": (c_void_p, c_char_p), "XCloseDisplay": (c_int, c_void_p),
    "XSetIOErrorExitHandler": (None, c_void_p, c_void_p, c_void_p),
    "XDefaultRootWindow": (c_ulong, c_void_p), "XFlush": (c_int, c_void_p), "XFree": (c_int, c_void_p),
    "XGetImage": (POINTER(_Beeld), c_void_p, c_ulong, c_int, c_int, c_uint, c_uint, c_ulong, c_int),
    "XDestroyImage": (c_int, POINTER(_Beeld)),
    "XGetGeometry": (c_int, c_void_p, c_ulong, POINTER(c_ulong), *[POINTER(c_int)] * 2, *[POINTER(c_uint)] * 4),
    "XQueryTree": (c_int, c_void_p, c_ulong, POINTER(c_ulong), POINTER(c_ulong), POINTER(POINTER(c_ulong)),
                   POINTER(c_uint)),
    "XGetWindowAttributes": (c_int, c_void_p, c_ulong, POINTER(_Kenmerken)),
    "XGetSelectionOwner": (c_ulong, c_void_p, c_ulong),
    "XStringToKeysym": (c_ulong, c_char_p), "XKeysymToKeycode": (ctypes.c_ubyte, c_void_p, c_ulong),
    "XInternAtom": (c_ulong, c_void_p, c_char_p, c_int), "XSelectInput": (c_int, c_void_p, c_ulong, c_long),
    "XPending": (c_int, c_void_p), "XNextEvent": (c_int, c_void_p, POINTER(_Gebeurtenis)),
    "XGetWindowProperty": (c_int, c_void_p, c_ulong, c_ulong, c_long, c_long, c_int, c_ulong, POINTER(c_ulong),
                           POINTER(c_int), POINTER(c_ulong), POINTER(c_ulong), POINTER(c_void_p)),
})
XTEST = _bibliotheek("libXtst.so.6", {"XTestFakeKeyEvent": (c_int, c_void_p, c_uint, c_int, c_ulong)})

# An error, such as a window or a server that has just gone, is an answer like any other; the library's own way is to end
# the process.
_STIL = ctypes.CFUNCTYPE(c_int, c_void_p, c_void_p)(lambda *_: 0)
X.XSetErrorHandler(_STIL)
X.XSetIOErrorHandler(_STIL)


class X11:
    """A connection of its own with a display (":1"). Pixels are (red, green, blue)."""

    def __init__(self, naam):
        self._d = X.XOpenDisplay(naam.encode())
        if not self._d:
            raise OSError(f"geen verbinding met {naam}")
        X.XSetIOErrorExitHandler(self._d, _STIL, None)
        self.wortel = X.XDefaultRootWindow(self._d)

    def sluit(self):
        X.XCloseDisplay(self._d)

    def maat(self):
        wortel, x, y = c_ulong(), c_int(), c_int()
        breedte, hoogte, rand, diepte = c_uint(), c_uint(), c_uint(), c_uint()
        X.XGetGeometry(self._d, self.wortel, byref(wortel), byref(x), byref(y), byref(breedte), byref(hoogte),
                       byref(rand), byref(diepte))
        return breedte.value, hoogte.value

    def rgb(self, links, boven, breedte, hoogte):
        """The pixels of an area of the screen, three bytes each; nothing when it lies outside."""
        beeld = X.XGetImage(self._d, self.wortel, links, boven, breedte, hoogte, ALLE_VLAKKEN, Z_BEELD)
        if not beeld:
            return None
        bgrx = ctypes.string_at(beeld.contents.data, 4 * breedte * hoogte)
        X.XDestroyImage(beeld)
        rgb = bytearray(3 * breedte * hoogte)
        for plaats in range(3):
            rgb[plaats::3] = bgrx[2 - plaats::4]
        return bytes(rgb)

    def kleur(self, x, y):
        return tuple(self.rgb(x, y, 1, 1) or ())

    def toets(self, naam):
        """A key by the name of its symbol ("1", "Return"): down and up."""
        toets = X.XKeysymToKeycode(self._d, X.XStringToKeysym(naam.encode()))
        for omlaag in (1, 0):
            XTEST.XTestFakeKeyEvent(self._d, toets, omlaag, 0)
        X.XFlush(self._d)

    def vensters(self):
        """The areas of all windows that are on the screen, frames, menus and hints too: number -> area."""
        wortel, ouder, nummers, aantal = c_ulong(), c_ulong(), POINTER(c_ulong)(), c_uint()
        X.XQueryTree(self._d, self.wortel, byref(wortel), byref(ouder), byref(nummers), byref(aantal))
        vlakken, kenmerken = {}, _Kenmerken()
        for nummer in nummers[:aantal.value]:
            if X.XGetWindowAttributes(self._d, nummer, byref(kenmerken)) and kenmerken.map_state == ZICHTBAAR:
                vlakken[nummer] = kenmerken.x, kenmerken.y, kenmerken.width, kenmerken.height
        X.XFree(nummers)
        return vlakken

    def eigenaar(self, selectie):
        """The window that owns a selection, 0 without one."""
        return X.XGetSelectionOwner(self._d, self.naam(selectie))

    def naam(self, tekst):
        """The number (atom) of a name."""
        return X.XInternAtom(self._d, tekst.encode(), 0)

    def getal(self, venster, eigenschap):
        """The first number of a 32-bit property, or nothing."""
        soort, bits, aantal, rest, waarde = c_ulong(), c_int(), c_ulong(), c_ulong(), c_void_p()
        X.XGetWindowProperty(self._d, venster, self.naam(eigenschap), 0, 1, 0, 0, byref(soort), byref(bits),
                             byref(aantal), byref(rest), byref(waarde))
        if not waarde.value:
            return None
        getal = ctypes.cast(waarde, POINTER(c_ulong))[0] & 0xFFFFFFFF if aantal.value and bits.value == 32 else None
        X.XFree(waarde)
        return getal

    def volg(self, venster, masker):
        X.XSelectInput(self._d, venster, masker)
        X.XFlush(self._d)

    def gebeurtenissen(self):
        """What has come in since the last call, as (kind, number of the new window or of the property, window, time in
        milliseconds of the server; for properties)."""
        gebeurtenis = _Gebeurtenis()
        while X.XPending(self._d):
            X.XNextEvent(self._d, byref(gebeurtenis))
            yield gebeurtenis.type, gebeurtenis.wat, gebeurtenis.window, gebeurtenis.rest[0]
