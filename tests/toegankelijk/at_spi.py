"""The program as a screen reader meets it: the tree of accessible objects, asked over the accessibility bus.

Import this only when the bus of the display at hand stands in the environment: the library connects when it is loaded.
"""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

# What lays other things out and is no control of its own.
LIJSTEN = {"filler", "panel", "layered pane", "separator", "popup menu", "menu bar", "list", "table row header"}
# A text beside a control, and what stands inside a list or a table.
TEKSTEN = {"label", "list item", "table cell", "table column header"}


class Object:
    def __init__(self, zelf):
        self._zelf = zelf

    soort = property(lambda self: self._zelf.get_role_name())
    naam = property(lambda self: self._zelf.get_name() or "")
    uitleg = property(lambda self: self._zelf.get_description() or "")
    tekst = property(lambda self: Atspi.Text.get_text(self._zelf, 0, -1))
    waarde = property(lambda self: Atspi.Value.get_current_value(self._zelf))

    def is_aan(self):
        return self._zelf.get_state_set().contains(Atspi.StateType.CHECKED)

    def heeft_de_toetsen(self):
        return self._zelf.get_state_set().contains(Atspi.StateType.FOCUSED)

    def kinderen(self):
        for i in range(self._zelf.get_child_count()):
            kind = self._zelf.get_child_at_index(i)
            if kind is not None:
                yield Object(kind)

    def alle(self, niet_in=("table", "combo box")):
        """Everything below it, but not what stands inside lists and tables."""
        for kind in self.kinderen():
            yield kind
            if kind.soort not in niet_in:
                yield from kind.alle(niet_in)

    def vind(self, soort, naam=None):
        """The first of a kind with this name, or with any."""
        gevonden = [o for o in self.alle() if o.soort == soort and naam in (None, o.naam)]
        return gevonden[0] if gevonden else None

    def besturingen(self):
        """What can be operated or read as a value: kind and name, in the order of the window."""
        return [(o.soort, o.naam) for o in self.alle() if o.soort not in LIJSTEN | TEKSTEN]


def programma(naam):
    """The program of that name on the bus, or nothing as long as it is not there."""
    bureau = Atspi.get_desktop(0)
    for i in range(bureau.get_child_count()):
        kind = bureau.get_child_at_index(i)
        if kind is not None and kind.get_name() == naam:
            return Object(kind)
    return None
