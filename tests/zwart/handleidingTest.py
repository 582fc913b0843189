"""A newcomer with docs/manual.md alone, an installed program and an empty folder: the window makes the
arrays of a class, and every file and command of the page is taken as it stands there. What comes out
is the fragments.

    handleidingTest.py CMAKE BUILD

Run inside `tour/sessie`.
"""

from __future__ import annotations

import os
import re
import sys
from array import array
from pathlib import Path

from pagina import blokken, installeer, samples_in, stappen, voer_uit
from vensterStappen import Keuzes, maak_tekst

GEDEELD = "/usr/share/kestrolin"
BESTANDEN = ("sounds.h", "sounds.cpp", "main.cpp")


def stap_1(tekst: str) -> tuple[Keuzes, str]:
    """Step 1, by the names in bold and in backquotes that it has, and where it saves the text."""
    alinea = re.search(r"\*\*1\. The arrays\.\*\*(.*?)\n\n", tekst, re.S)
    assert alinea, "the page has no step 1"
    open_, encoder, taal, veld, dac, vinkje, codeer, bewaar, stop = re.findall(
        r"\*\*([^*]+)\*\*", alinea[1].replace("\n", " ")
    )
    assert (open_, veld, codeer, bewaar, stop) == ("Open", "Class :", "Encode", "Save", "Quit")
    map_, een, twee, klasse, doel, bestand = re.findall(r"`([^`]+)`", alinea[1])
    fragmenten = [Path(map_, een), Path(map_, twee)]
    return Keuzes(fragmenten, encoder, taal, dac, vinkje, klasse), f"{doel}/{bestand}"


def keur_declaraties(tekst: str, opgeslagen: str) -> None:
    """What the page shows of the text stands in it."""
    getoond = next(blok for taal, blok, _ in blokken(tekst) if taal == "text")
    assert getoond in opgeslagen, f"the text does not hold\n{getoond}"


def keur_geluid(fragmenten: list[Path], map_: Path, getoond: str) -> None:
    samples = [sample for fragment in fragmenten for sample in samples_in(fragment)[0]]
    codes = list(array("H", (map_ / "sounds.dac").read_bytes()))
    assert codes == [sample + 32768 for sample in samples], "the DAC got something else"
    getallen = [int(woord) for woord in getoond.splitlines()[0].split()[1:]]
    assert getallen == codes[400:410], f"od shows {getallen}"
    assert samples_in(map_ / "heard.wav") == (samples, 8000), "something else is heard"


def main() -> None:
    cmake, bouw = sys.argv[1], sys.argv[2]
    thuis = Path(os.environ["HOME"])
    prefix, leeg = thuis / "prefix", thuis / "leeg"
    leeg.mkdir()
    installeer(cmake, bouw, prefix)
    # As if it lay where the package puts it.
    tekst = stappen("manual.md", "From a WAV file to a C++ class").replace(
        GEDEELD, str(prefix / "share/kestrolin")
    )
    opdrachten = [blok for taal, blok, _ in blokken(tekst) if taal == "sh"]
    assert len(opdrachten) == 3, f"the page has {len(opdrachten)} blocks of commands"
    bestanden = {naam: blok for taal, blok, naam in blokken(tekst) if taal == "cpp"}
    assert tuple(bestanden) == BESTANDEN, f"the page has the files {list(bestanden)}"

    voer_uit(opdrachten[0], leeg)
    keuzes, bestand = stap_1(tekst)
    opgeslagen = leeg / bestand
    maak_tekst(prefix / "bin/Kestrolin", thuis / "een", keuzes, opgeslagen)
    map_ = opgeslagen.parent
    keur_declaraties(tekst, opgeslagen.read_text(encoding="utf-8"))
    for naam, blok in bestanden.items():
        (map_ / naam).write_text(blok, encoding="utf-8")
    # As an IDE does it.
    voer_uit("for source in *.cpp; do g++ -std=c++17 -fsyntax-only $source; done", map_)
    gezegd = voer_uit(opdrachten[1], map_)
    afdruk = [blok for taal, blok, _ in blokken(tekst) if taal == "text"][1]
    assert gezegd == afdruk, f"it says\n{gezegd}instead of\n{afdruk}"
    keur_geluid(keuzes.fragmenten, map_, voer_uit(opdrachten[2], map_))


if __name__ == "__main__":
    main()
