"""The window as a screen reader finds it: each control with its role and name, the rows of the tree,
and what is heard without being asked for.

    toegangTest.py PROGRAM

Run inside `tour/sessie`.
"""

from __future__ import annotations

import os
import shutil
import sys
import wave
from pathlib import Path

WORTEL = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(WORTEL / "tour"))

# pylint: disable=wrong-import-position
from bediening import Programma
from gebeurtenissen import Oor
from schermwerk import toets, wacht
from teksten import MELDING_SPEEX, TITEL
from toegang import BRUIKBAAR, INVOER, INVOERBAAR, OPENGEKLAPT, Element

FRAGMENTEN = WORTEL / "fragmenten"

# What stands in the window for the sake of other controls, or belongs to one.
BIJWERK = {"filler", "label", "scroll pane", "scroll bar"}

# The window of a first start: role, name, and whether it can be used.
CONTROLS = [
    ("menu bar", "", True),
    ("menu", "File", True),
    ("menu", "Speex", True),
    ("panel", "C++ / Python  options", True),
    ("panel", "Code generation", True),
    ("panel", "Speex options", True),
    ("button", "Open", True),
    ("tree", "Loaded audio files", False),
    ("button", "Play WAV Files", False),
    ("button", "Save As", False),
    ("combo box", "Speex band", True),
    ("combo box", "Kind of bit rate", True),
    ("spin button", "Quality", True),
    ("spin button", "Complexity", True),
    ("check box", "Voice Activated \nDetection", True),
    ("check box", "Adaptive Gain Control", True),
    ("check box", "Denoise input", True),
    ("check box", "Perpetual\nEnhancement", True),
    ("text", "Maximum or average bit rate", True),
    ("panel", "Encoder type", True),
    ("radio button", "PCM", True),
    ("radio button", "ADPCM", True),
    ("radio button", "Speex", True),
    ("panel", "Implementation Language", True),
    ("radio button", "Python", True),
    ("radio button", "C++", True),
    ("radio button", "C ", True),
    ("text", "Class name", True),
    ("check box", "Include header in array", True),
    ("combo box", "DAC width", True),
    ("button", "Encode", False),
    ("button", "Save", False),
    ("button", "Play Encoded", False),
    ("text", "Generated text", True),
    ("button", "Quit", True),
    ("status bar", "No audio file loaded", True),
]
KEUZES = {"Speex band": "Narrowband", "Kind of bit rate": "Fixed Bitrate", "DAC width": "16 Bit DAC"}


def gelijk(gevonden: object, verwacht: object, wat: str) -> None:
    assert gevonden == verwacht, f"{wat}: {gevonden!r}, expected {verwacht!r}"


def controls(p: Programma) -> list[tuple[str, str, bool]]:
    rijen = [(e.rol(), e.naam(), e.is_(BRUIKBAAR)) for e in p.wacht_op_venster().alle()]
    # Panels without a name hold others.
    return [rij for rij in rijen if rij[0] not in BIJWERK and rij[:2] != ("panel", "")]


def keur_controls(p: Programma) -> None:
    wacht(lambda: not p.bruikbaar("button", "Encode"), "the window is idle")
    gelijk(controls(p), CONTROLS, "controls")
    venster = p.wacht_op_venster()
    naamloos = [
        e.rol() for e in venster.alle()
        if e.is_(INVOERBAAR) and not e.naam() and e.rol() not in BIJWERK
    ]
    gelijk(naamloos, [], "controls without a name")
    gekozen = {e.naam(): e.gekozen() for e in venster.zoek("combo box")}
    gelijk(gekozen, KEUZES, "what the lists show")


def boom(p: Programma) -> Element:
    return p.element("tree", "Loaded audio files")


def rijen(p: Programma) -> list[tuple[int, str, bool]]:
    """Level, text, and whether the row is open."""
    return [(r.niveau(), r.naam(), r.is_(OPENGEKLAPT)) for r in boom(p).kinderen()]


def rij(p: Programma, naam: str) -> Element:
    return next(r for r in boom(p).kinderen() if r.naam() == naam)


def wacht_op_rij(p: Programma, naam: str) -> None:
    wacht(lambda: rij(p, naam).is_(INVOER), f'the row "{naam}" has the keyboard')


def open_rij(p: Programma, naam: str) -> None:
    toets("Right")
    wacht(lambda: rij(p, naam).is_(OPENGEKLAPT), f'the row "{naam}" is open')


def volg_rijen(p: Programma, oor: Oor, geluid: Path) -> None:
    """Goes through the tree by keyboard, and by a click where a reader says that a row stands."""
    gelijk(rijen(p), [(1, "Audio Files", False)], "rows after a load")
    p.klik(rij(p, "Audio Files"))
    wacht_op_rij(p, "Audio Files")
    open_rij(p, "Audio Files")
    toets("Down")
    wacht_op_rij(p, "ready.wav")
    open_rij(p, "ready.wav")
    with wave.open(str(geluid / "ready.wav")) as wav:
        frames = f"frames     : {wav.getnframes()}"
    toets("Down")
    wacht_op_rij(p, frames)
    bestand = [
        (2, "ready.wav", True), (3, frames, False), (3, "samplerate : 8000", False),
        (3, "channels   : 1", False), (3, "format     : WAV S16 PCM", False),
        (3, "sections:", False), (3, "seekable   : 1", False),
    ]
    gelijk(rijen(p), [(1, "Audio Files", True), *bestand, (2, "warning.wav", False)], "rows")
    ouders = [r.ouder_in_boom() for r in boom(p).kinderen()]
    namen = [o.naam() if o else "" for o in ouders]
    gelijk(namen, ["", "Audio Files", *["ready.wav"] * 6, "Audio Files"], "rows above")
    gelijk(boom(p).gekozen(), frames, "the current row")
    p.klik(rij(p, "warning.wav"))
    wacht_op_rij(p, "warning.wav")
    verwacht = ["Audio Files", "ready.wav", frames, "warning.wav"]
    wacht(lambda: oor.teksten("row") == verwacht, f"these rows are heard: {verwacht}")


def kijk_in_menu(p: Programma) -> None:
    """The toolkit empties the status bar meanwhile, and puts the text back."""
    p.open_bestandsmenu()
    wacht(lambda: p.wacht_op_venster().zoek("status bar")[0].naam() != "Audio files loaded", "help")
    toets("Escape", "Escape")
    wacht(lambda: p.wacht_op_venster().zoek("status bar", "Audio files loaded"), "the text is back")


def maak_en_speel(p: Programma, doel: Path) -> None:
    p.keuzerondje("C")
    p.codeer(MELDING_SPEEX)
    p.sluit_melding()
    p.bewaar(doel)
    p.knop("Play Encoded")
    p.sluit_box("Fragment 1: ")


def onbruikbaar(p: Programma) -> set[str]:
    return {naam for _, naam, bruikbaar in controls(p) if not bruikbaar}


def keur_gehoord(oor: Oor) -> None:
    verwacht = [
        "Audio files loaded",
        "Audio encoded in Speex embedded format",
        "Speex embedded data saved in geluid.c",
        "Decoded 1 audio fragments from Speex data are now playing.",
        "Finished playing decoded audio fragments.",
        # Of a second load: the same text as the first time is heard again.
        "Audio files loaded",
    ]
    wacht(lambda: len(oor.teksten("announcement")) >= len(verwacht), "all texts are heard")
    gelijk(oor.teksten("announcement"), verwacht, "what is heard")
    # Readers of the time before politeness know no announcements.
    gelijk(oor.teksten("notification"), [] if oor.kent_beleefdheid() else verwacht, "notifications")


def hoofd(programma: Path, thuis: Path) -> None:
    geluid = thuis / "geluid"
    geluid.mkdir(parents=True)
    for naam in ("ready.wav", "warning.wav"):
        shutil.copy(FRAGMENTEN / naam, geluid)
    oor = Oor()
    with Programma(programma, thuis, variabelen={"SDL_AUDIODRIVER": "dummy"}) as p:
        keur_controls(p)
        p.open_map(geluid)
        wacht(lambda: p.bruikbaar("tree", "Loaded audio files"), "the tree is alive")
        volg_rijen(p, oor, geluid)
        kijk_in_menu(p)
        maak_en_speel(p, thuis / "geluid.c")
        wacht(
            lambda: onbruikbaar(p) == {"Encode", "Class name"},
            "with a result, only Encode and the class name of C++ cannot be used",
        )
        # The reader knows rows that go now.
        p.open_map(geluid)
        wacht(lambda: rijen(p) == [(1, "Audio Files", False)], "only the root is left")
        keur_gehoord(oor)
        gelijk(p.venstertitels(), [TITEL], "windows")
        gelijk(p.verlaat(), 0, "exit status")
        gelijk(p.foutregels(), [], "standard error")


if __name__ == "__main__":
    hoofd(Path(sys.argv[1]), Path(os.environ["HOME"]) / "een")
