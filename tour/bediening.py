"""Operates the real program the way a user does.

Controls are found by role and label through the accessibility bus, and worked with mouse and
keyboard: a click goes to the middle of the place that the bus gives. Run inside `tour/sessie`.
"""

from __future__ import annotations

import os
import re
import subprocess
import sys
import time
from pathlib import Path
from typing import Callable, Optional, TypeVar

from toegang import AANGEVINKT, ACTIEF, BRUIKBAAR, Element, Fout, Toegang

T = TypeVar("T")

TITEL = "Kestrolin Encoder for embedded applications"
OPEN_TITEL = "Open an Audio file"
BEWAAR_TITEL = "Save the embedded speex file"

# What the toolkit prints on some systems, whatever the program does.
BEKENDE_REGELS = re.compile(r"dconf-WARNING|Couldn't connect to accessibility bus|^\s*$")


class NietGebeurd(Exception):
    """Something that had to happen did not, within the time given."""


def wacht(voorwaarde: Callable[[], Optional[T]], wat: str, grens: float = 30.0) -> T:
    """Polls until the condition gives something true, and returns that."""
    einde = time.monotonic() + grens
    while True:
        try:
            uitkomst = voorwaarde()
        except Fout:  # a control that went away while it was looked at
            uitkomst = None
        if uitkomst:
            return uitkomst
        if time.monotonic() > einde:
            raise NietGebeurd(f"waited {grens:.0f} s for this: {wat}")
        time.sleep(0.05)


def _opdracht(*woorden: str, invoer: Optional[bytes] = None) -> bytes:
    return subprocess.run(woorden, check=True, input=invoer, stdout=subprocess.PIPE).stdout


def toets(*toetsen: str) -> None:
    _opdracht("xdotool", "key", *toetsen)


def typ(tekst: str) -> None:
    _opdracht("xdotool", "type", "--delay", "15", tekst)


def schermafdruk(pad: Path) -> None:
    """Writes what is on the screen to a PNG file, as soon as it stands still."""
    beeld = b""
    for _ in range(10):
        vorige, beeld = beeld, _opdracht("import", "-window", "root", "-depth", "8", "ppm:-")
        if beeld == vorige:
            break
        time.sleep(0.1)
    _opdracht("convert", "ppm:-", "-trim", "+repage", str(pad), invoer=beeld)


def _rustplaats(element: Element) -> Optional[tuple[int, int]]:
    """Where to click, unless the window is being moved or laid out right now."""
    plaats = element.midden()
    time.sleep(0.05)
    return plaats if element.midden() == plaats else None


class Programma:
    """One running copy of the program, with a home directory of its own."""

    def __init__(self, programma: Path, thuis: Path) -> None:
        thuis.mkdir(parents=True, exist_ok=True)
        self._fouten = thuis.parent / f"{thuis.name}.stderr"
        omgeving = dict(os.environ, HOME=str(thuis))
        omgeving.pop("NO_AT_BRIDGE", None)
        with self._fouten.open("w") as fouten:
            self.proces = subprocess.Popen(
                [str(programma)], cwd=thuis, env=omgeving, stderr=fouten, stdin=subprocess.DEVNULL
            )
        self._toegang = Toegang(self.proces.pid)

    def __enter__(self) -> Programma:
        return self

    def __exit__(self, soort: object, *_: object) -> None:
        if soort:
            print(f"exit status {self.proces.poll()}, windows {self.venstertitels()}", file=sys.stderr)
            print("\n".join(self.foutregels()), file=sys.stderr)
        if self.proces.poll() is None:
            self.proces.kill()
            self.proces.wait()

    # -- what there is to see

    def foutregels(self) -> list[str]:
        """The lines on standard error that are worth a look."""
        regels = self._fouten.read_text(errors="replace").splitlines()
        return [r for r in regels if not BEKENDE_REGELS.search(r)]

    def venstertitels(self) -> list[str]:
        """Titles of this program's windows, as the window manager lists them."""
        lijst = _opdracht("xprop", "-root", "_NET_CLIENT_LIST").decode()
        titels = []
        for nummer in re.findall(r"0x[0-9a-f]+", lijst):
            gegevens = subprocess.run(
                ["xprop", "-id", nummer, "_NET_WM_PID", "_NET_WM_NAME"],
                stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False,
            ).stdout
            if re.search(rf"_NET_WM_PID.* = {self.proces.pid}\b", gegevens):
                naam = re.search(r'_NET_WM_NAME.* = "(.*)"', gegevens)
                titels.append(naam.group(1) if naam else "")
        return titels

    def venster(self, naam: str) -> Optional[Element]:
        """The top-level window that the bus knows by this name."""
        return next((v for v in self._toegang.vensters() if v.naam() == naam), None)

    def wacht_op_venster(self, naam: str = TITEL) -> Element:
        """Waits until the window stands there and has the keyboard."""

        def klaar() -> Optional[Element]:
            if self.proces.poll() is not None:
                raise NietGebeurd(f"the program ended with status {self.proces.returncode}")
            venster = self.venster(naam)
            return venster if venster and venster.is_(ACTIEF) else None

        return wacht(klaar, f'a window named "{naam}"')

    def wacht_op_vertrek(self, naam: str) -> None:
        wacht(lambda: self.venster(naam) is None, f'the window "{naam}" closes')

    def wacht_op_einde(self) -> int:
        wacht(lambda: self.proces.poll() is not None, "the program ends")
        return self.proces.returncode

    def element(
        self, rol: str, naam: Optional[str] = None, nummer: int = 0, venster: str = TITEL
    ) -> Element:
        """A control that can be used: it is visible and enabled."""

        wortel = self.wacht_op_venster(venster)

        def bruikbaar() -> Optional[Element]:
            gevonden = wortel.zoek(rol, naam)[nummer:]
            return gevonden[0] if gevonden and gevonden[0].is_(BRUIKBAAR) else None

        return wacht(bruikbaar, f'{rol} "{naam or nummer}" in "{venster}" can be used')

    def bruikbaar(self, rol: str, naam: str, venster: str = TITEL) -> bool:
        """Whether a visible control is enabled at this moment."""
        return self.wacht_op_venster(venster).zoek(rol, naam)[0].is_(BRUIKBAAR)

    # -- what there is to do

    def naar_voren(self) -> None:
        """Gives the keyboard to the main window; the window manager need not do so for a second
        program."""
        wacht(lambda: TITEL in self.venstertitels(), "the main window")
        _opdracht(
            "xdotool", "search", "--all", "--onlyvisible", "--pid", str(self.proces.pid),
            "--name", TITEL, "windowactivate",
        )

    def klik(self, element: Element) -> None:
        x, y = wacht(lambda: _rustplaats(element), "a control that stays in its place")
        _opdracht("xdotool", "mousemove", str(x), str(y), "click", "1")

    def knop(self, naam: str, venster: str = TITEL) -> None:
        self.klik(self.element("push button", naam, venster=venster))

    def keuzerondje(self, naam: str) -> None:
        rondje = self.element("radio button", naam)
        self.klik(rondje)
        wacht(lambda: rondje.is_(AANGEVINKT), f'"{naam}" is chosen')

    def vul(self, veld: Element, tekst: str) -> None:
        """Replaces what stands in a text field."""
        self.klik(veld)
        toets("ctrl+a")
        typ(tekst)
        wacht(lambda: veld.tekst() == tekst, f'the field reads "{tekst}"')

    def klassenaam(self, naam: str) -> None:
        # Fields in the order of creation: bit rate, class name, generated text.
        self.vul(self.element("text", nummer=1), naam)

    def gegenereerde_tekst(self) -> str:
        return self.element("text", nummer=-1).tekst()

    def _zet_pad(self, venster: str, pad: str) -> None:
        """Puts a path into a file dialog and leaves it there.

        Not key by key: the dialog completes what is typed, and types along.
        """
        self.wacht_op_venster(venster)
        if not self._padvelden(venster):
            toets("ctrl+l")
        veld = wacht(lambda: self._padvelden(venster), f'a field for the path in "{venster}"')[0]
        veld.zet_tekst(pad)
        wacht(lambda: veld.tekst() == pad, f'the field reads "{pad}"')

    def _padvelden(self, venster: str) -> list[Element]:
        wortel = self.venster(venster)
        return wortel.zoek("text") if wortel else []

    def kies_map(self, map_: Path) -> None:
        """Lets the open dialog, which is on the screen, show a folder with all its files chosen."""
        self._zet_pad(OPEN_TITEL, f"{map_}/")
        toets("Return")
        eerste = sorted(p.name for p in map_.iterdir())[0]
        self.klik(self.element("table cell", eerste, venster=OPEN_TITEL))
        toets("ctrl+a")

    def open_map(self, map_: Path) -> None:
        """Loads every file of a folder."""
        self.knop("Open")
        self.kies_map(map_)
        self.bevestig(OPEN_TITEL)

    def kies_doel(self, pad: Path) -> None:
        """Puts the path into the save dialog, which is on the screen."""
        self._zet_pad(BEWAAR_TITEL, str(pad))

    def bewaar(self, pad: Path) -> None:
        self.knop("Save")
        self.kies_doel(pad)
        self.bevestig_doel(pad)

    def bevestig_doel(self, pad: Path) -> None:
        self.bevestig(BEWAAR_TITEL)
        wacht(pad.is_file, f"{pad.name} stands on disk")

    def bevestig(self, venster: str) -> None:
        toets("Return")
        self.wacht_op_vertrek(venster)

    def codeer(self, melding: str) -> None:
        """Presses Encode and waits for the box that tells of the success."""
        self.knop("Encode")
        box = self.wacht_op_venster("Information")
        wacht(lambda: any(melding in e.naam() for e in box.zoek("label")), f'the box says "{melding}"')

    def sluit_melding(self) -> None:
        self.knop("OK", venster="Information")
        self.wacht_op_vertrek("Information")

    def open_bestandsmenu(self) -> None:
        self.wacht_op_venster()
        toets("alt+f")
        self.element("menu item", "Exit")

    def kies_exit(self) -> int:
        """Chooses Exit in the open menu and gives the exit status."""
        self.klik(self.element("menu item", "Exit"))
        return self.wacht_op_einde()

    def verlaat(self) -> int:
        self.open_bestandsmenu()
        return self.kies_exit()
