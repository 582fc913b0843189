"""A newcomer with docs/firmware.md, an installation and an empty folder: the window makes the array, and
every file and command of the page is taken as it stands there. What comes out of the emulated board is
the fragment. The example plays all its arrays, on this computer and on the board.

    firmwarePaginaTest.py CMAKE BUILD

Run inside `tour/sessie`. What takes no board is done everywhere; then this ends with status 77 where the
tools of the board are not installed, or fails where KESTROLIN_TARGET says "required".
"""

from __future__ import annotations

import os
import re
import sys
from array import array
from pathlib import Path
from typing import Callable

WORTEL = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(WORTEL / "tests" / "firmware" / "example"))

# pylint: disable=wrong-import-position
import exampleTest
from pagina import blokken, installeer, samples_in, stappen, voer_uit
from vensterStappen import Keuzes, maak_tekst

BESTANDEN = ("sounds.h", "sounds.c", "main.c")


def stap_1(tekst: str, gedeeld: Path) -> tuple[Keuzes, str]:
    """Step 1, by the names in bold and the file names that it has."""
    alinea = re.search(r"\*\*1\. The array\.\*\*(.*?)\n\n", tekst, re.S)
    assert alinea, "the page has no step 1"
    open_, encoder, taal, dac, vinkje, codeer, bewaar = re.findall(r"\*\*([^*]+)\*\*", alinea[1])
    assert (open_, codeer, bewaar) == ("Open", "Encode", "Save"), alinea[1]
    fragment, bestand, andere = re.findall(r"`([^`]+)`", alinea[1])
    assert Path(bestand).suffix != andere, f"an IDE compiles {bestand}"
    return Keuzes([gedeeld / fragment], encoder, taal, dac, vinkje), bestand


def keur_pakketten(tekst: str, pakketten: str) -> None:
    """What the page has installed is what the tests here run with."""
    genoemd = re.search(r"^ {4}apt-get install (.*)", tekst, re.M)
    assert genoemd and genoemd[1] == pakketten, f"packages: {genoemd}"


def keur(fragment: Path, map_: Path, getoond: str) -> None:
    samples, frequentie = samples_in(fragment)
    codes = list(array("H", (map_ / "ready.dac").read_bytes()))
    # Behind the last sample the DAC goes to mid-scale.
    assert codes == [*(int(sample / 16) + 2048 for sample in samples), 2048], "the DAC got something else"
    getallen = [int(woord) for regel in getoond.splitlines() for woord in regel.split()[1:]]
    assert getallen == codes[400:500], f"od shows {getallen}"
    gehoord, snelheid = samples_in(map_ / "heard.wav")
    assert snelheid == frequentie, f"it is heard at {snelheid} Hz"
    assert len(gehoord) == len(codes), f"{len(gehoord)} samples can be heard"
    verschil = max(abs(een - ander) for een, ander in zip(gehoord, [*samples, 0]))
    assert verschil <= 16, f"what is heard is {verschil} off"


def keur_voorbeeld(map_: Path, namen: tuple[str, ...], gedeeld: Path) -> None:
    """Every array was played; what of each should be heard, other tests tell."""
    gevonden = {bestand.name: array("H", bestand.read_bytes()) for bestand in map_.iterdir()}
    assert sorted(gevonden) == sorted(namen), f"{map_.name} holds {sorted(gevonden)}"
    for naam in ("ready_pcm", "chime_pcm"):
        samples, _ = samples_in(gedeeld / "fragmenten" / f"{naam.partition('_')[0]}.wav")
        assert list(gevonden[naam][:-1]) == [int(sample / 16) + 2048 for sample in samples], naam
    for naam, codes in gevonden.items():
        assert codes[-1] == 2048, f"{naam} does not end at mid-scale"


def volg_voorbeeld(leeg: Path, gedeeld: Path) -> Callable[[], None]:
    """The example on this computer. The rest is for who has the tools of the board."""
    tekst = stappen("firmware.md", "The example")
    keur_pakketten(tekst, "gcc make libspeex-dev")
    hier, op_bord = [blok for taal, blok, _ in blokken(tekst) if taal == "sh"]
    (afdruk,) = [blok for taal, blok, _ in blokken(tekst) if taal == "text"]
    leeg.mkdir()
    gezegd = voer_uit(hier, leeg, KESTROLIN=str(gedeeld))
    assert gezegd.endswith(f".elf\n{afdruk}"), f"it says\n{gezegd}instead of\n{afdruk}"
    map_ = leeg / "firmware" / "example"
    keur_voorbeeld(map_ / "heard", (*exampleTest.PLAIN, *exampleTest.SPEEX), gedeeld)

    def volg_op_bord() -> None:
        voer_uit(op_bord, leeg)
        keur_voorbeeld(map_ / "dac", exampleTest.PLAIN, gedeeld)
        for bestand in (map_ / "dac").iterdir():
            assert bestand.read_bytes() == (map_ / "heard" / bestand.name).read_bytes(), bestand.name

    return volg_op_bord


def main() -> None:
    cmake, bouw = sys.argv[1:]
    thuis = Path(os.environ["HOME"])
    prefix, leeg = thuis / "prefix", thuis / "leeg"
    gedeeld = prefix / "share" / "kestrolin"
    installeer(cmake, bouw, prefix)
    leeg.mkdir()
    doorbell = leeg / "doorbell"
    tekst = stappen("firmware.md", "Ten minutes, from an empty folder")
    keur_pakketten(tekst, f"{exampleTest.PACKAGES} sox")
    assert "mid-scale, 2048," in tekst, "the page tells another mid-scale"
    opdrachten = [blok for taal, blok, _ in blokken(tekst) if taal == "sh"]
    assert len(opdrachten) == 3, f"the page has {len(opdrachten)} blocks of commands"
    bestanden = {naam: blok for taal, blok, naam in blokken(tekst) if taal == "c"}
    assert tuple(bestanden) == BESTANDEN, f"the page has the files {list(bestanden)}"

    voer_uit(opdrachten[0], leeg, KESTROLIN=str(gedeeld))
    keuzes, bestand = stap_1(tekst, gedeeld)
    maak_tekst(prefix / "bin" / "Kestrolin", thuis / "een", keuzes, doorbell / bestand)
    for naam, blok in bestanden.items():
        (doorbell / naam).write_text(blok, encoding="utf-8")
    # As an IDE does it.
    voer_uit("for source in *.c; do gcc -std=c99 -fsyntax-only $source; done", doorbell)
    volg_op_bord = volg_voorbeeld(thuis / "voorbeeld", gedeeld)
    exampleTest.need_tools()
    voer_uit(opdrachten[1], doorbell)
    keur(keuzes.fragmenten[0], doorbell, voer_uit(opdrachten[2], doorbell))
    volg_op_bord()


if __name__ == "__main__":
    main()
