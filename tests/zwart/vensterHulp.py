"""The steps that the cases of the window from outside share."""

from __future__ import annotations

import shutil
import sys
from pathlib import Path

WORTEL = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(WORTEL / "tour"))

# pylint: disable=wrong-import-position
from bediening import Programma
from schermwerk import wacht
from teksten import MELDING_PCM

FRAGMENTEN = WORTEL / "fragmenten"


def gelijk(gevonden: object, verwacht: object, wat: str) -> None:
    assert gevonden == verwacht, f"{wat}: {gevonden!r}, expected {verwacht!r}"


def wacht_op_rust(p: Programma) -> None:
    """The window is up, and has been idle once: only then are the unusable buttons grey."""
    p.element("button", "Open")
    wacht(lambda: not p.bruikbaar("button", "Encode"), "Encode is grey without audio")


def laad(p: Programma, geluid: Path, fragmenten: tuple[str, ...]) -> list[Path]:
    """Copies the fragments to a folder and loads them all."""
    geluid.mkdir(parents=True)
    wavs = [Path(shutil.copy(FRAGMENTEN / naam, geluid)) for naam in fragmenten]
    p.open_map(geluid)
    return wavs


def laad_en_codeer(p: Programma, geluid: Path, fragmenten: tuple[str, ...]) -> list[Path]:
    """Loads copies of the fragments and encodes them to PCM in C."""
    wavs = laad(p, geluid, fragmenten)
    p.keuzerondje("PCM")
    p.keuzerondje("C")
    p.codeer(MELDING_PCM)
    p.sluit_melding()
    return wavs


def keur_einde(p: Programma, status: int) -> None:
    gelijk(status, 0, "exit status")
    gelijk(p.foutregels(), [], "standard error")
