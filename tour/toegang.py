"""The accessibility bus: what a program shows on the screen, and where.

Speaks to the bus directly and keeps nothing between two questions. The customary library caches,
and can block for ever when the program changes its windows while it is being asked.
"""

from __future__ import annotations

from dataclasses import dataclass
from typing import Iterator, Optional

from gi.repository import Gio, GLib

_ATSPI = "org.a11y.atspi"
_WORTEL = "/org/a11y/atspi/accessible/root"
_GRENS_MS = 10_000

# Numbers of states in the two words that GetState answers with.
ACTIEF = 1
AANGEVINKT = 4
OPENGEKLAPT = 10
INVOERBAAR = 11  # may have the keyboard
INVOER = 12  # has it
GEKOZEN = 23
BRUIKBAAR = 24
ZICHTBAAR = 25

# The number of the relation of a row to the row above it in the tree.
_KIND_VAN = 7

# Roles that older releases call otherwise.
_VROEGER = {"push button": "button", "statusbar": "status bar"}

Fout = GLib.Error


def verbind() -> Gio.DBusConnection:
    sessie = Gio.bus_get_sync(Gio.BusType.SESSION)
    adres = sessie.call_sync(
        "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
        Gio.DBusCallFlags.NONE, _GRENS_MS,
    ).unpack()[0]
    soort = Gio.DBusConnectionFlags
    return Gio.DBusConnection.new_for_address_sync(
        adres, soort.AUTHENTICATION_CLIENT | soort.MESSAGE_BUS_CONNECTION
    )


@dataclass(frozen=True)
class Element:
    """One control, window or application on the bus."""

    bus: Gio.DBusConnection
    eigenaar: str
    pad: str

    def _vraag(self, deel: str, bewerking: str, waarden: Optional[GLib.Variant] = None):
        antwoord = self.bus.call_sync(
            self.eigenaar, self.pad, deel, bewerking, waarden, None,
            Gio.DBusCallFlags.NONE, _GRENS_MS,
        )
        return antwoord.unpack()

    def _eigenschap(self, deel: str, naam: str):
        return self._vraag(
            "org.freedesktop.DBus.Properties", "Get",
            GLib.Variant("(ss)", (f"{_ATSPI}.{deel}", naam)),
        )[0]

    def naam(self) -> str:
        return self._eigenschap("Accessible", "Name")

    def beschrijving(self) -> str:
        return self._eigenschap("Accessible", "Description")

    def rol(self) -> str:
        naam = self._vraag(f"{_ATSPI}.Accessible", "GetRoleName")[0]
        return _VROEGER.get(naam, naam)

    def niveau(self) -> int:
        """How deep a row stands in its tree; the root is at 1."""
        return int(self._vraag(f"{_ATSPI}.Accessible", "GetAttributes")[0]["level"])

    def ouder_in_boom(self) -> Optional[Element]:
        """The row that this row of a tree stands under."""
        relaties = dict(self._vraag(f"{_ATSPI}.Accessible", "GetRelationSet")[0])
        paren = relaties.get(_KIND_VAN, [])
        return Element(self.bus, *paren[0]) if paren else None

    def kinderen(self) -> list[Element]:
        paren = self._vraag(f"{_ATSPI}.Accessible", "GetChildren")[0]
        return [Element(self.bus, e, p) for e, p in paren if not p.endswith("/null")]

    def is_(self, *standen: int) -> bool:
        laag, hoog = self._vraag(f"{_ATSPI}.Accessible", "GetState")[0]
        woord = laag | hoog << 32
        return all(woord >> stand & 1 for stand in standen)

    def midden(self) -> tuple[int, int]:
        """The middle of the control on the screen."""
        x, y, breedte, hoogte = self._vraag(
            f"{_ATSPI}.Component", "GetExtents", GLib.Variant("(u)", (0,))
        )[0]
        return x + breedte // 2, y + hoogte // 2

    def tekst(self) -> str:
        lengte = self._eigenschap("Text", "CharacterCount")
        return self._vraag(f"{_ATSPI}.Text", "GetText", GLib.Variant("(ii)", (0, lengte)))[0]

    def zet_tekst(self, tekst: str) -> None:
        self._vraag(f"{_ATSPI}.EditableText", "SetTextContents", GLib.Variant("(s)", (tekst,)))

    def gekozen(self) -> str:
        """The name of the first chosen one of what this holds, as a list shows it."""
        eigenaar, pad = self._vraag(
            f"{_ATSPI}.Selection", "GetSelectedChild", GLib.Variant("(i)", (0,))
        )[0]
        return Element(self.bus, eigenaar, pad).naam()

    def alle(self) -> Iterator[Element]:
        """Everything visible below this one; what is hidden hides what it holds."""
        for kind in self.kinderen():
            if kind.is_(ZICHTBAAR):
                yield kind
                yield from kind.alle()

    def zoek(self, rol: str, naam: Optional[str] = None) -> list[Element]:
        """The visible controls of this role and, where given, this label."""
        return [
            e for e in self.alle() if e.rol() == rol and (naam is None or e.naam().strip() == naam)
        ]


class Toegang:
    """The way in to one process."""

    def __init__(self, proces: int) -> None:
        self._bus = verbind()
        self._proces = proces

    def _proces_van(self, toepassing: Element) -> Optional[int]:
        try:
            return self._bus.call_sync(
                "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                "GetConnectionUnixProcessID", GLib.Variant("(s)", (toepassing.eigenaar,)), None,
                Gio.DBusCallFlags.NONE, _GRENS_MS,
            ).unpack()[0]
        except Fout:  # a process that has ended stays on the list for a while
            return None

    def vensters(self) -> list[Element]:
        """The visible top-level windows; none while the process is not on the bus."""
        bureau = Element(self._bus, f"{_ATSPI}.Registry", _WORTEL)
        for toepassing in bureau.kinderen():
            if self._proces_van(toepassing) == self._proces:
                return [v for v in toepassing.kinderen() if v.is_(ZICHTBAAR)]
        return []
