"""A tour of the program: loads fragments, encodes them and saves the text through the real window,
takes a screenshot of every step, and checks what came out. Started by `tour/tour`.

    tour.py PROGRAM RESULTS
"""

from __future__ import annotations

import os
import shutil
import subprocess
import sys
from pathlib import Path
from typing import Callable

import nakijken
from bediening import OPEN_TITEL, NietGebeurd, Programma, schermafdruk, toets
from toegang import Fout

FRAGMENTEN = Path(__file__).resolve().parent.parent / "fragmenten"
BESTANDEN = ("ready.wav", "warning.wav")
KLASSE = "Sounds"
MELDING = "was successfully encoded to PCM."


class Tour:
    """The steps, in the order of the screenshots."""

    def __init__(self, programma: Programma, thuis: Path, resultaten: Path) -> None:
        self._p = programma
        self._resultaten = resultaten
        self._fragmenten = thuis / "fragments"
        self._firmware = thuis / "firmware"
        self._firmware.mkdir()
        self._fragmenten.mkdir()
        for naam in BESTANDEN:
            shutil.copy(FRAGMENTEN / naam, self._fragmenten)

    def stappen(self) -> list[tuple[str, Callable[[], None]]]:
        return [
            ("start: the window as it opens", self._start),
            ("choose: two fragments in the open dialog", self._kies),
            ("loaded: what the files hold", self._laad),
            ("settings: a class name, and PCM", self._stel_in),
            ("encoded: the text of the C++ arrays", self._codeer),
            ("save: the C++ source gets its name", self._bewaar_cpp),
            ("c: encoded again in C, and saved", self._bewaar_c),
            ("exit: through the menu", self._verlaat),
        ]

    def foto(self, naam: str) -> None:
        schermafdruk(self._resultaten / f"{naam}.png")

    def _start(self) -> None:
        self._p.element("push button", "Open")
        self.foto("1-start")

    def _kies(self) -> None:
        self._p.knop("Open")
        self._p.kies_map(self._fragmenten)
        self.foto("2-choose")

    def _laad(self) -> None:
        self._p.bevestig(OPEN_TITEL)
        # The tree stands closed after a load; its first file opens too.
        self._p.klik(self._p.element("scroll pane"))
        toets("Home", "Right", "Down", "Right")
        self.foto("3-loaded")

    def _stel_in(self) -> None:
        self._p.klassenaam(KLASSE)
        self._p.keuzerondje("PCM")
        self.foto("4-settings")

    def _codeer(self) -> None:
        self._p.codeer(MELDING)
        self.foto("5-encoded")
        self._p.sluit_melding()
        if f"{KLASSE}::ready[]" not in self._p.gegenereerde_tekst():
            raise NietGebeurd("the text field shows the arrays")

    def _bewaar_cpp(self) -> None:
        doel = self._firmware / f"{KLASSE}.cpp"
        self._p.knop("Save")
        self._p.kies_doel(doel)
        self.foto("6-save")
        self._p.bevestig_doel(doel)
        self._neem_over(doel)
        kop = self._resultaten / f"{KLASSE}.h"
        nakijken.schrijf_klasse(doel, kop)
        nakijken.compileer_cpp(doel, kop)
        self._keur(doel)

    def _bewaar_c(self) -> None:
        doel = self._firmware / "sounds.c"
        self._p.keuzerondje("C")
        self._p.codeer(MELDING)
        self._p.sluit_melding()
        self._p.knop("Save")
        self._p.kies_doel(doel)
        self._p.bevestig_doel(doel)
        self.foto("7-c")
        self._neem_over(doel)
        nakijken.compileer_c(doel)
        self._keur(doel)

    def _verlaat(self) -> None:
        self._p.open_bestandsmenu()
        self.foto("8-exit")
        status = self._p.kies_exit()
        if status:
            raise nakijken.Afgekeurd(f"the program ended with status {status}")
        if self._p.foutregels():
            raise nakijken.Afgekeurd("on standard error:\n" + "\n".join(self._p.foutregels()))

    def _neem_over(self, bestand: Path) -> None:
        shutil.copy(bestand, self._resultaten)

    def _keur(self, bestand: Path) -> None:
        nakijken.keur_arrays(bestand, [self._fragmenten / naam for naam in BESTANDEN])


def maak_leeg(resultaten: Path) -> None:
    """Makes the folder and takes an earlier tour's results out of it, but nothing else."""
    resultaten.mkdir(parents=True, exist_ok=True)
    for patroon in ("[1-8]-*.png", "failed.png", f"{KLASSE}.cpp", f"{KLASSE}.h", "sounds.c"):
        for oud in resultaten.glob(patroon):
            oud.unlink()


def loop(programma: Path, resultaten: Path) -> int:
    maak_leeg(resultaten)
    thuis = Path(os.environ["HOME"])
    with Programma(programma, thuis) as p:
        tour = Tour(p, thuis, resultaten)
        stappen = tour.stappen()
        for nummer, (wat, stap) in enumerate(stappen, 1):
            print(f"  {nummer}/{len(stappen)} {wat}", flush=True)
            try:
                stap()
            except (NietGebeurd, nakijken.Afgekeurd, Fout, OSError, subprocess.SubprocessError) as f:
                tour.foto("failed")
                print(f"The tour failed at step {nummer} ({wat}):\n{f}", file=sys.stderr)
                print("\n".join(p.foutregels()), file=sys.stderr)
                print(f"Screenshots so far: {resultaten}", file=sys.stderr)
                return 1
    print("Both sources compile and hold the fragments byte for byte.")
    print(f"Screenshots and sources: {resultaten}")
    return 0


if __name__ == "__main__":
    sys.exit(loop(Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()))
