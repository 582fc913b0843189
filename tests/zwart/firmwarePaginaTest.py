"""A newcomer with docs/firmware.md and an empty folder: the window makes the array, and every file
and command of the page is taken as it stands there. What comes out of the emulated board is the
fragment.

    firmwarePaginaTest.py PROGRAM

Run inside `tour/sessie`. Ends with status 77 where the tools of the board are not installed, or fails
where KESTROLIN_TARGET says "required".
"""

from __future__ import annotations

import os
import re
import sys
from array import array
from pathlib import Path

WORTEL = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(WORTEL / "tests" / "firmware" / "example"))

# pylint: disable=wrong-import-position
import exampleTest
from pagina import blokken, samples_in, stappen, voer_uit
from vensterStappen import Keuzes, maak_tekst

BESTANDEN = ("sounds.h", "sounds.c", "main.c")


def stap_1(tekst: str) -> tuple[Keuzes, str]:
    """Step 1, by the names in bold and the file names that it has."""
    alinea = re.search(r"\*\*1\. The array\.\*\*(.*?)\n\n", tekst, re.S)
    assert alinea, "the page has no step 1"
    open_, encoder, taal, dac, vinkje, codeer, bewaar = re.findall(r"\*\*([^*]+)\*\*", alinea[1])
    assert (open_, codeer, bewaar) == ("Open", "Encode", "Save"), alinea[1]
    fragment, bestand = re.findall(r"`([^`]+)`", alinea[1])
    return Keuzes([WORTEL / fragment], encoder, taal, dac, vinkje), bestand


def keur_pakketten(tekst: str) -> None:
    """What the page has installed is what the tests here run with."""
    genoemd = re.search(r"apt-get install (.*)", tekst)
    assert genoemd and genoemd[1].split() == [*exampleTest.PACKAGES.split(), "sox"], "packages"


def keur(fragment: Path, map_: Path, getoond: str) -> None:
    samples, frequentie = samples_in(fragment)
    codes = list(array("H", (map_ / "ready.dac").read_bytes()))
    assert codes == [int(sample / 16) + 2048 for sample in samples], "the DAC got something else"
    getallen = [int(woord) for regel in getoond.splitlines() for woord in regel.split()[1:]]
    assert getallen == codes[400:500], f"od shows {getallen}"
    gehoord, snelheid = samples_in(map_ / "heard.wav")
    assert snelheid == frequentie, f"it is heard at {snelheid} Hz"
    assert len(gehoord) == len(samples), f"{len(gehoord)} samples can be heard"
    verschil = max(abs(een - ander) for een, ander in zip(gehoord, samples))
    assert verschil <= 16, f"what is heard is {verschil} off"


def main() -> None:
    exampleTest.need_tools()
    programma, thuis = Path(sys.argv[1]), Path(os.environ["HOME"])
    leeg = thuis / "leeg"
    leeg.mkdir()
    doorbell = leeg / "doorbell"
    tekst = stappen("firmware.md", "Ten minutes, from an empty folder")
    keur_pakketten(tekst)
    assert "mid-scale, 2048," in tekst, "the page tells another mid-scale"
    opdrachten = [blok for taal, blok, _ in blokken(tekst) if taal == "sh"]
    assert len(opdrachten) == 3, f"the page has {len(opdrachten)} blocks of commands"
    bestanden = {naam: blok for taal, blok, naam in blokken(tekst) if taal == "c"}
    assert tuple(bestanden) == BESTANDEN, f"the page has the files {list(bestanden)}"

    voer_uit(opdrachten[0], leeg, KESTROLIN=str(WORTEL))
    keuzes, bestand = stap_1(tekst)
    maak_tekst(programma, thuis / "een", keuzes, doorbell / bestand)
    for naam, blok in bestanden.items():
        (doorbell / naam).write_text(blok, encoding="utf-8")
    voer_uit(opdrachten[1], doorbell)
    keur(keuzes.fragmenten[0], doorbell, voer_uit(opdrachten[2], doorbell))


if __name__ == "__main__":
    main()
