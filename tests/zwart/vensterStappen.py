"""The steps of a page that are taken in the window."""

from __future__ import annotations

import shutil
import sys
from pathlib import Path
from typing import NamedTuple

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tour"))

# pylint: disable=wrong-import-position
from bediening import Programma
from teksten import MELDING_PCM
from toegang import AANGEVINKT


class Keuzes(NamedTuple):
    """What a page has chosen in the window, by the names that it gives."""

    fragmenten: list[Path]
    encoder: str
    taal: str
    dac: str
    vinkje: str
    klasse: str = ""


def maak_tekst(programma: Path, thuis: Path, keuzes: Keuzes, doel: Path) -> None:
    """Has the window make a text by these choices, and save it."""
    geluid = thuis / "geluid"
    geluid.mkdir(parents=True)
    for fragment in keuzes.fragmenten:
        shutil.copy(fragment, geluid)
    with Programma(programma, thuis) as p:
        p.open_map(geluid)
        p.keuzerondje(keuzes.encoder)
        p.keuzerondje(keuzes.taal)
        if keuzes.klasse:
            assert not p.bruikbaar("button", "Encode"), "Encode waits for no class"
            p.klassenaam(keuzes.klasse)
        p.keuze("DAC width", keuzes.dac)
        assert p.element("check box", keuzes.vinkje).is_(AANGEVINKT), f"{keuzes.vinkje} is off"
        p.codeer(MELDING_PCM)
        p.sluit_melding()
        p.bewaar(doel)
        p.knop("Quit")
        assert p.wacht_op_einde() == 0
