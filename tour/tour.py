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
SOORTEN = ("Speex", "Adpcm", "Pcm")
MELDING_SPEEX = "% of the original size"
MELDING_ADPCM = "was successfully encoded to ADPCM."
MELDING_PCM = "was successfully encoded to PCM."


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
            ("settings: a class name, and Speex as it stands", self._stel_in),
            ("speex: encoded to C++ arrays of Speex frames", self._codeer_speex),
            ("save: the C++ source gets its name", self._bewaar_speex),
            ("adpcm: the same class with ADPCM arrays, saved", self._bewaar_adpcm),
            ("pcm: the same class with PCM arrays, saved", self._bewaar_pcm),
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
        self.foto("4-settings")

    def _codeer_speex(self) -> None:
        self._p.codeer(MELDING_SPEEX)
        self.foto("5-speex")
        self._p.sluit_melding()
        if f"{KLASSE}::ready[]" not in self._p.gegenereerde_tekst():
            raise NietGebeurd("the text field shows the arrays")

    def _bewaar_speex(self) -> None:
        doel = self._firmware / f"{KLASSE}Speex.cpp"
        self._p.knop("Save")
        self._p.kies_doel(doel)
        self.foto("6-save")
        self._p.bevestig_doel(doel)
        self._compileer_klasse(doel)
        nakijken.keur_speex(doel, self._bronnen())

    def _bewaar_adpcm(self) -> None:
        doel = self._codeer_klasse("ADPCM", MELDING_ADPCM, "7-adpcm")
        nakijken.keur_adpcm(doel, self._bronnen())

    def _bewaar_pcm(self) -> None:
        doel = self._codeer_klasse("PCM", MELDING_PCM, "8-pcm")
        nakijken.keur_arrays(doel, self._bronnen())

    def _bewaar_c(self) -> None:
        doel = self._firmware / "sounds.c"
        self._p.keuzerondje("C")
        self._p.codeer(MELDING_PCM)
        self._p.sluit_melding()
        self._p.bewaar(doel)
        self.foto("9-c")
        self._neem_over(doel)
        nakijken.compileer_c(doel)
        nakijken.keur_arrays(doel, self._bronnen())

    def _verlaat(self) -> None:
        self._p.open_bestandsmenu()
        self.foto("10-exit")
        status = self._p.kies_exit()
        if status:
            raise nakijken.Afgekeurd(f"the program ended with status {status}")
        if self._p.foutregels():
            raise nakijken.Afgekeurd("on standard error:\n" + "\n".join(self._p.foutregels()))

    def _neem_over(self, bestand: Path) -> None:
        shutil.copy(bestand, self._resultaten)

    def _codeer_klasse(self, encoder: str, melding: str, foto: str) -> Path:
        """Encodes the class with another encoder, and saves it in a source of its own."""
        doel = self._firmware / f"{KLASSE}{encoder.capitalize()}.cpp"
        self._p.keuzerondje(encoder)
        self._p.codeer(melding)
        self._p.sluit_melding()
        self.foto(foto)
        self._p.bewaar(doel)
        self._compileer_klasse(doel)
        return doel

    def _compileer_klasse(self, bron: Path) -> None:
        self._neem_over(bron)
        kop = self._resultaten / f"{bron.stem}.h"
        nakijken.schrijf_klasse(bron, kop)
        nakijken.compileer_cpp(bron, kop)

    def _bronnen(self) -> list[Path]:
        return [self._fragmenten / naam for naam in BESTANDEN]


def maak_leeg(resultaten: Path) -> None:
    """Makes the folder and takes an earlier tour's results out of it, but nothing else."""
    resultaten.mkdir(parents=True, exist_ok=True)
    bronnen = (f"{KLASSE}{soort}.{uitgang}" for soort in SOORTEN for uitgang in ("cpp", "h"))
    for patroon in ("[0-9]*-*.png", "failed.png", "sounds.c", *bronnen):
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
    print("All sources compile. The PCM arrays hold the fragments byte for byte, the ADPCM arrays\n"
          "the codes that another coder gives, the Speex arrays all their frames.")
    print(f"Screenshots and sources: {resultaten}")
    return 0


if __name__ == "__main__":
    sys.exit(loop(Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()))
