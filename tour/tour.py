"""A tour of the program: loads fragments, encodes them and saves the text through the real window,
takes a screenshot of every step, and checks what came out. Started by `tour/tour`.

    tour.py PROGRAM RESULTS
"""

from __future__ import annotations

import calendar
import os
import shutil
import subprocess
import sys
from pathlib import Path
from typing import Callable

import nakijken
from bediening import Programma
from schermwerk import NietGebeurd, schermafdruk, toets, wacht
from teksten import (
    BEWAAR_TITEL, INBED_TITEL, MELDING_ADPCM, MELDING_PCM, MELDING_SPEEX, OPEN_TITEL, TITEL,
)
from toegang import Fout

FRAGMENTEN = Path(__file__).resolve().parent.parent / "fragmenten"
BESTANDEN = ("ready.wav", "warning.wav")
KLASSE = "Sounds"
SOORTEN = ("Speex", "Adpcm", "Pcm")
# When the fragments are from, as the open dialog shows it; noon, for the day to be that everywhere.
DATUM = calendar.timegm((2024, 1, 2, 12, 0, 0))
# Wide enough for what the tree says of a file, and no higher than the window is, for the text field to
# end above the date. The file dialogs leave what is behind them in sight.
VENSTERMAAT = (940, 645)
DIALOOGMAAT = (760, 480)


def geluid_naar(bestand: Path) -> dict[str, str]:
    """The environment in which a program's sound goes to a file, as bare samples, slower than life
    so that it can be watched. Each sound replaces the one before."""
    return {
        "SDL_AUDIODRIVER": "disk", "SDL_DISKAUDIOFILE": str(bestand), "SDL_DISKAUDIODELAY": "100",
    }


class Tour:
    """The steps, in the order of the screenshots."""

    def __init__(self, programma: Path, thuis: Path, resultaten: Path) -> None:
        self._programma = programma
        self._thuis = thuis
        self._gehoord = thuis / "heard.raw"
        self._resultaten = resultaten
        self._fragmenten = thuis / "fragments"
        self._firmware = thuis / "firmware"
        self._firmware.mkdir()
        self._fragmenten.mkdir()
        for naam in BESTANDEN:
            os.utime(shutil.copy(FRAGMENTEN / naam, self._fragmenten), (DATUM, DATUM))
        self._foto_nummer = 0
        self._p = Programma(programma, thuis, variabelen=geluid_naar(self._gehoord))

    def stappen(self) -> list[tuple[str, Callable[[], None]]]:
        return [
            ("start: the window as it opens", self._start),
            ("choose: two fragments in the open dialog", self._kies),
            ("loaded: what the files hold", self._laad),
            ("play: the fragments, in bold what is heard", self._speel_bronnen),
            ("settings: a class name, and Speex as it stands", self._stel_in),
            ("speex: encoded to C++ arrays of Speex frames", self._codeer_speex),
            ("decoded: the result as firmware would play it", self._speel_resultaat),
            ("save: the C++ source gets its name", self._bewaar_speex),
            ("adpcm: the same class with ADPCM arrays, saved", self._bewaar_adpcm),
            ("pcm: the same class with PCM arrays, saved", self._bewaar_pcm),
            ("c: encoded again in C, and saved", self._bewaar_c),
            ("embed: the WAV files themselves as C arrays", self._bed_in),
            ("about: who made it", self._toon_over),
            ("language: Dutch from the next start on", self._kies_taal),
            ("dutch: the same encoding in Dutch", self._codeer_in_het_nederlands),
            ("exit: through the menu", self._verlaat),
        ]

    def ruim_op(self) -> None:
        self._p.meld_toestand()
        self._p.stop()

    def foto(self, naam: str) -> None:
        self._foto_nummer += 1
        schermafdruk(self._resultaten / f"{self._foto_nummer}-{naam}.png")

    def _foto_hoofdvenster(self, naam: str) -> None:
        self._p.wacht_op_hoofdvenster()
        self.foto(naam)

    def _start(self) -> None:
        self._p.element("button", "Open")
        self.foto("start")
        self._p.geef_maat(TITEL, VENSTERMAAT)

    def _kies(self) -> None:
        self._p.knop("Open")
        self._p.geef_maat(OPEN_TITEL, DIALOOGMAAT)
        self._p.kies_map(self._fragmenten)
        self.foto("choose")

    def _laad(self) -> None:
        self._p.bevestig(OPEN_TITEL)
        # The tree stands closed after a load; its first file opens too.
        self._p.wacht_op_hoofdvenster()
        self._p.klik(self._p.element("scroll pane"))
        toets("Home", "Right", "Down", "Right")
        self._foto_hoofdvenster("loaded")

    def _speel_bronnen(self) -> None:
        self._p.knop("Play WAV Files")
        # The second one, while the program is busy with nothing else.
        tweede = nakijken.samples_van(self._fragmenten / BESTANDEN[1])
        wacht(lambda: self._hoort(tweede[:2000]), "the second fragment is heard")
        self.foto("play")
        wacht(lambda: self._hoort(tweede), "the second fragment is heard to its end")

    def _hoort(self, samples: bytes) -> bool:
        # A device is silent until its first samples come.
        gehoord = self._gehoord.read_bytes() if self._gehoord.is_file() else b""
        return gehoord.lstrip(b"\0").startswith(samples.lstrip(b"\0"))

    def _stel_in(self) -> None:
        self._p.klassenaam(KLASSE)
        self._foto_hoofdvenster("settings")

    def _codeer_speex(self) -> None:
        self._p.codeer(MELDING_SPEEX)
        self.foto("speex")
        self._p.sluit_melding()
        if f"{KLASSE}::ready[]" not in self._p.gegenereerde_tekst():
            raise NietGebeurd("the text field shows the arrays")

    def _speel_resultaat(self) -> None:
        self._p.knop("Play Encoded")
        self._p.wacht_op_box("Fragment 1: sampling frequency 8000 Hz")
        self.foto("decoded")
        self._p.sluit_box("Fragment 1: ")

    def _bewaar_speex(self) -> None:
        doel = self._firmware / f"{KLASSE}Speex.cpp"
        self._p.knop("Save")
        self._p.geef_maat(BEWAAR_TITEL, DIALOOGMAAT)
        self._p.kies_doel(doel)
        self.foto("save")
        self._p.bevestig_doel(doel)
        self._compileer_klasse(doel)
        nakijken.keur_speex(doel, self._bronnen())

    def _bewaar_adpcm(self) -> None:
        doel = self._codeer_klasse("ADPCM", MELDING_ADPCM, "adpcm")
        nakijken.keur_adpcm(doel, self._bronnen())

    def _bewaar_pcm(self) -> None:
        doel = self._codeer_klasse("PCM", MELDING_PCM, "pcm")
        nakijken.keur_arrays(doel, self._bronnen())

    def _bewaar_c(self) -> None:
        doel = self._firmware / "sounds.c"
        self._p.keuzerondje("C")
        self._p.codeer(MELDING_PCM)
        self._p.sluit_melding()
        self._p.bewaar(doel)
        self._foto_hoofdvenster("c")
        self._neem_over(doel)
        nakijken.compileer_c(doel)
        nakijken.keur_arrays(doel, self._bronnen())

    def _bed_in(self) -> None:
        doel = self._firmware / "soundsWav.c"
        self._p.knop("Save As")
        self._p.kies_doel(doel, INBED_TITEL)
        self._p.bevestig_doel(doel, INBED_TITEL)
        self._foto_hoofdvenster("embed")
        self._neem_over(doel)
        nakijken.compileer_c(doel)
        nakijken.keur_beelden(doel, self._bronnen())

    def _toon_over(self) -> None:
        self._p.menu("alt+s", "About")
        box = self._p.wacht_op_box("This program converts audio fragments")
        self.foto("about")
        toets("Escape")
        self._p.wacht_op_vertrek(box.naam())

    def _kies_taal(self) -> None:
        self._p.kies_taal("Nederlands")
        self.foto("language")
        self._keur_einde(self._p.bevestig_taal())

    def _codeer_in_het_nederlands(self) -> None:
        doel = self._firmware / "soundsNl.c"
        self._p = Programma(self._programma, self._thuis, "nl")
        self._p.geef_maat(TITEL, VENSTERMAAT)
        self._p.open_map(self._fragmenten)
        self._p.codeer(MELDING_PCM)
        self.foto("dutch")
        self._p.sluit_melding()
        self._p.bewaar(doel)
        self._neem_over(doel)
        nakijken.compileer_c(doel)
        nakijken.keur_arrays(doel, self._bronnen())
        nakijken.keur_vertaling(self._firmware / "sounds.c", doel)

    def _verlaat(self) -> None:
        self._p.open_bestandsmenu()
        self.foto("exit")
        self._keur_einde(self._p.kies_exit())

    def _keur_einde(self, status: int) -> None:
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
        self._foto_hoofdvenster(foto)
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
    for patroon in ("[0-9]*-*.png", "differs-*.png", "sounds*.c", *bronnen):
        for oud in resultaten.glob(patroon):
            oud.unlink()


def loop(programma: Path, resultaten: Path) -> int:
    maak_leeg(resultaten)
    tour = Tour(programma, Path(os.environ["HOME"]), resultaten)
    stappen = tour.stappen()
    for nummer, (wat, stap) in enumerate(stappen, 1):
        print(f"  {nummer}/{len(stappen)} {wat}", flush=True)
        try:
            stap()
        except (NietGebeurd, nakijken.Afgekeurd, Fout, OSError, subprocess.SubprocessError) as f:
            tour.foto("failed")
            print(f"The tour failed at step {nummer} ({wat}):\n{f}", file=sys.stderr)
            print(f"Screenshots so far: {resultaten}", file=sys.stderr)
            tour.ruim_op()
            return 1
    print("All sources compile. The PCM arrays hold the fragments byte for byte, in both languages,\n"
          "the ADPCM arrays the codes that another coder gives, the Speex arrays all their frames, and\n"
          "the embedded arrays whole WAV files. What was played was what the files hold.")
    print(f"Screenshots and sources: {resultaten}")
    return 0


if __name__ == "__main__":
    sys.exit(loop(Path(sys.argv[1]).resolve(), Path(sys.argv[2]).resolve()))
