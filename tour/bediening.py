"""Operates the real program the way a user does.

Controls are found by role and label through the accessibility bus, and worked with mouse and
keyboard: a click goes to the middle of the place that the bus gives. Run inside `tour/sessie`.
"""

from __future__ import annotations

import gettext
import os
import re
import subprocess
import sys
import time
from pathlib import Path
from typing import Optional

import vensters
from schermwerk import NietGebeurd, opdracht, toets, typ, wacht
from teksten import BEKENDE_REGELS, BEWAAR_TITEL, OPEN_TITEL, TAAL_TITEL, TITEL
from toegang import AANGEVINKT, ACTIEF, BRUIKBAAR, GEKOZEN, Element, Toegang


def _rustplaats(element: Element) -> Optional[tuple[int, int]]:
    """Where to click, unless the window is being moved or laid out right now."""
    plaats = element.midden()
    time.sleep(0.05)
    return plaats if element.midden() == plaats else None


class Programma:
    """One running copy of the program, with a home directory of its own.

    In another language than English its texts are looked up in the catalog beside the program.
    """

    def __init__(
        self, programma: Path, thuis: Path, taal: str = "en",
        variabelen: Optional[dict[str, str]] = None,
    ) -> None:
        thuis.mkdir(parents=True, exist_ok=True)
        self._fouten = thuis.parent / f"{thuis.name}.stderr"
        omgeving = dict(os.environ, HOME=str(thuis))
        omgeving.pop("NO_AT_BRIDGE", None)
        omgeving.update(variabelen or {})
        catalogus = gettext.translation(
            "Kestrolin", programma.parent.parent / "share/locale", [taal], fallback=taal == "en"
        )
        self.vertaal = catalogus.gettext
        with self._fouten.open("w") as fouten:
            self.proces = subprocess.Popen(
                [str(programma)], cwd=thuis, env=omgeving, stderr=fouten, stdin=subprocess.DEVNULL
            )
        self._toegang = Toegang(self.proces.pid)
        self._melding = ""

    def __enter__(self) -> Programma:
        return self

    def __exit__(self, soort: object, *_: object) -> None:
        if soort:
            self.meld_toestand()
        self.stop()

    def meld_toestand(self) -> None:
        """Tells what there is to tell of a program that went wrong."""
        print(f"exit status {self.proces.poll()}, windows {self.venstertitels()}", file=sys.stderr)
        print("\n".join(self.foutregels()), file=sys.stderr)

    def stop(self) -> None:
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
        return vensters.titels(self.proces.pid)

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

    def wacht_op_hoofdvenster(self) -> None:
        """Waits until the main window alone is on the screen, and has the keyboard."""
        # A box leaves the bus before it leaves the screen.
        wacht(lambda: self.venstertitels() == [TITEL], "no other window than the main one")
        self.wacht_op_venster()

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
        vensters.naar_voren(self.proces.pid, TITEL)

    def geef_maat(self, titel: str, maat: tuple[int, int]) -> None:
        """Makes the window of this title so large, in the middle of the screen."""
        self.wacht_op_venster(titel)
        vensters.geef_maat(self.proces.pid, titel, maat)

    def klik(self, element: Element) -> None:
        self._klik_op(wacht(lambda: _rustplaats(element), "a control that stays in its place"))

    def _klik_op(self, plaats: Optional[tuple[int, int]]) -> None:
        if plaats:
            opdracht("xdotool", "mousemove", *map(str, plaats))
            # The tip of another control goes when the mouse comes upon it, and would take the click.
            wacht(lambda: not vensters.wijst_op_tip(), "no tooltip under the mouse")
            opdracht("xdotool", "click", "1")

    def knop(self, naam: str, venster: str = TITEL) -> None:
        self.klik(self.element("button", naam, venster=venster))

    def keuzerondje(self, naam: str) -> None:
        rondje = self.element("radio button", naam)
        self.klik(rondje)
        wacht(lambda: rondje.is_(AANGEVINKT), f'"{naam}" is chosen')

    def keuze(self, naam: str, tekst: str) -> None:
        """Opens the list of this name, and picks a text from it."""
        lijst = self.element("combo box", naam)
        self.klik(lijst)
        regels = wacht(lambda: lijst.zoek("menu item", tekst), f'the list offers "{tekst}"')
        self.klik(regels[0])
        wacht(lambda: lijst.gekozen() == tekst, f'the list shows "{tekst}"')

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
        titel = self.vertaal(OPEN_TITEL)
        self._zet_pad(titel, f"{map_}/")
        toets("Return")
        namen = sorted(p.name for p in map_.iterdir())

        def alle_gekozen() -> bool:
            rijen = [self.element("table cell", naam, venster=titel) for naam in namen]
            if all(rij.is_(GEKOZEN) for rij in rijen):
                return True
            # The folder may be read once more, which drops what was chosen, and the rows too.
            self._klik_op(_rustplaats(rijen[0]))
            toets("ctrl+a")
            return False

        wacht(alle_gekozen, "all files are chosen")

    def open_map(self, map_: Path) -> None:
        """Loads every file of a folder."""
        self.wacht_op_venster()
        toets("ctrl+o")
        self.kies_map(map_)
        self.bevestig(OPEN_TITEL)

    def kies_doel(self, pad: Path, titel: str = BEWAAR_TITEL) -> None:
        """Puts the path into the save dialog, which is on the screen."""
        self._zet_pad(self.vertaal(titel), str(pad))

    def bewaar(self, pad: Path) -> None:
        self.wacht_op_venster()
        toets("ctrl+s")
        self.kies_doel(pad)
        self.bevestig_doel(pad)

    def bevestig_doel(self, pad: Path, titel: str = BEWAAR_TITEL) -> None:
        self.bevestig(titel)
        wacht(pad.is_file, f"{pad.name} stands on disk")

    def bevestig(self, titel: str) -> None:
        toets("Return")
        self.wacht_op_vertrek(self.vertaal(titel))

    def wacht_op_box(self, tekst: str) -> Element:
        """A window beside the main one that shows this text, whatever the desktop calls it, and has
        the keyboard."""

        def box() -> Optional[Element]:
            andere = [v for v in self._toegang.vensters() if v.naam() != TITEL and v.is_(ACTIEF)]
            return next((v for v in andere if any(tekst in e.naam() for e in v.zoek("label"))), None)

        return wacht(box, f'a box that says "{tekst}"')

    def sluit_box(self, tekst: str) -> None:
        """Closes a box by the button that it opens with."""
        box = self.wacht_op_box(tekst)
        toets("Return")
        wacht(lambda: box.pad not in [v.pad for v in self._toegang.vensters()], "the box closes")

    def codeer(self, melding: str) -> None:
        """Presses Encode and waits for the box that tells of the success."""
        self.knop("Encode")
        # The piece of the text that no number stands in.
        self._melding = max(re.split("%d|%%|\n", self.vertaal(melding)), key=len)
        self.wacht_op_box(self._melding)

    def sluit_melding(self) -> None:
        self.sluit_box(self._melding)

    def menu(self, toetsen: str, keuze: str) -> None:
        """Opens a menu and chooses from it."""
        self.wacht_op_venster()
        toets(toetsen)
        self.klik(self.element("menu item", keuze))

    def open_bestandsmenu(self) -> None:
        self.wacht_op_venster()
        toets("alt+f")
        self.element("menu item", "Exit")

    def kies_exit(self) -> int:
        """Chooses Exit in the open menu and gives the exit status."""
        self.klik(self.element("menu item", "Exit"))
        return self.wacht_op_einde()

    def kies_taal(self, naam: str) -> None:
        """Chooses a language in the dialog, and leaves that open."""
        self.menu("alt+f", "Language")
        rij = self.element("table cell", naam, venster=self.vertaal(TAAL_TITEL))
        self.klik(rij)
        wacht(lambda: rij.is_(GEKOZEN), f'"{naam}" is chosen')

    def bevestig_taal(self) -> int:
        """Accepts the language and the end of the program, and gives its exit status."""
        self.knop("OK", venster=self.vertaal(TAAL_TITEL))
        self.sluit_box("YES")
        return self.wacht_op_einde()

    def verlaat(self) -> int:
        self.open_bestandsmenu()
        return self.kies_exit()
