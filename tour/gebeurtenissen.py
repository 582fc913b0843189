"""What a program tells on the accessibility bus by itself, as a screen reader hears it."""

from __future__ import annotations

from typing import NamedTuple

from gi.repository import Gio, GLib

from toegang import Element, Fout, verbind

_EVENTS = "org.a11y.atspi.Event.Object"
# As their listeners name them. A program that is listened to tells more than it was asked for.
_SOORTEN = ("announcement", "state-changed:showing", "active-descendant-changed")


class Gehoord(NamedTuple):
    """One thing that a reader says by itself."""

    soort: str
    tekst: str
    # Of an announcement: 0 where the toolkit knows no politeness yet.
    detail: int


class Oor:
    """Hears from its making on what programs on this bus tell. Make it before the program starts, which
    asks at its start what anybody listens to."""

    def __init__(self) -> None:
        self._gehoord: list[Gehoord] = []
        self._bus = verbind()
        for soort in _SOORTEN:
            self._bus.call_sync(
                "org.a11y.atspi.Registry", "/org/a11y/atspi/registry", "org.a11y.atspi.Registry",
                "RegisterEvent", GLib.Variant("(sass)", (f"object:{soort}", [], "")), None,
                Gio.DBusCallFlags.NONE, -1,
            )
        self._bus.signal_subscribe(
            None, _EVENTS, None, None, None, Gio.DBusSignalFlags.NONE, self._hoor
        )

    def _hoor(self, *gegevens) -> None:
        _bus, zender, pad, _deel, signaal, inhoud = gegevens
        stand, detail, _, waarde = inhoud.unpack()[:4]
        try:
            if signaal == "Announcement":
                self._gehoord.append(Gehoord("announcement", waarde, detail))
            elif signaal == "ActiveDescendantChanged":
                naam = Element(self._bus, *waarde).naam()
                self._gehoord.append(Gehoord("row", naam, detail))
            elif signaal == "StateChanged" and stand == "showing" and detail:
                bron = Element(self._bus, zender, pad)
                if bron.rol() == "notification":
                    self._gehoord.append(Gehoord("notification", bron.naam(), detail))
        except Fout:  # gone before it could be asked
            pass

    def teksten(self, soort: str) -> list[str]:
        """What was heard of this kind until now."""
        while GLib.MainContext.default().iteration(False):
            pass
        return [g.tekst for g in self._gehoord if g.soort == soort]

    def kent_beleefdheid(self) -> bool:
        """Whether the announcements tell how urgent they are."""
        return all(g.detail > 0 for g in self._gehoord if g.soort == "announcement")
