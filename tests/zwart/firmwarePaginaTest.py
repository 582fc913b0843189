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
import shutil
import subprocess
import sys
import wave
from array import array
from pathlib import Path

WORTEL = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(WORTEL / "tour"), str(WORTEL / "tests" / "firmware" / "example")]

# pylint: disable=wrong-import-position
import exampleTest
from bediening import Programma
from teksten import MELDING_PCM

FRAGMENT = WORTEL / "fragmenten" / "ready.wav"
BESTANDEN = ("sounds.h", "sounds.c", "main.c")


def stappen() -> str:
    """The page from the empty folder to the sound, without what follows."""
    pagina = (WORTEL / "docs" / "firmware.md").read_text(encoding="utf-8")
    begin = pagina.index("## Ten minutes, from an empty folder\n")
    return pagina[begin:pagina.index("\n## ", begin + 1)]


def blokken(tekst: str) -> list[tuple[str, str, str]]:
    """The code of the page in its order: the language, the text, and the last name in backquotes
    before it."""
    gevonden = []
    for blok in re.finditer(r"^```(\w+)\n(.*?)^```$", tekst, re.M | re.S):
        namen = re.findall(r"`([^`\n]+)`", re.sub(r"^```.*?^```$", "", tekst[:blok.start()],
                                                  flags=re.M | re.S))
        gevonden.append((blok[1], blok[2], namen[-1] if namen else ""))
    return gevonden


def maak_array(programma: Path, thuis: Path, doel: Path) -> None:
    """Step 1, in the window, by the names that the page gives its controls."""
    geluid = thuis / "geluid"
    geluid.mkdir(parents=True)
    shutil.copy(FRAGMENT, geluid)
    with Programma(programma, thuis) as p:
        p.open_map(geluid)
        p.keuzerondje("PCM")
        p.keuzerondje("C")
        p.keuze("16 Bit DAC", "12 Bit DAC")
        p.codeer(MELDING_PCM)
        p.sluit_melding()
        p.bewaar(doel)
        p.verlaat()


def voer_uit(opdrachten: str, map_: Path) -> str:
    klaar = subprocess.run(
        ["sh", "-euc", opdrachten], cwd=map_, env=dict(os.environ, KESTROLIN=str(WORTEL)),
        check=False, text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
    )
    assert klaar.returncode == 0, f"{opdrachten}{klaar.stdout}"
    return klaar.stdout


def samples_in(wav: Path) -> list[int]:
    with wave.open(str(wav), "rb") as bron:
        return list(array("h", bron.readframes(bron.getnframes())))


def keur(map_: Path, getoond: str) -> None:
    samples = samples_in(FRAGMENT)
    codes = list(array("H", (map_ / "ready.dac").read_bytes()))
    assert codes == [int(sample / 16) + 2048 for sample in samples], "the DAC got something else"
    getallen = [int(woord) for regel in getoond.splitlines() for woord in regel.split()[1:]]
    assert getallen == codes[400:500], f"od shows {getallen}"
    gehoord = samples_in(map_ / "heard.wav")
    assert len(gehoord) == len(samples), f"{len(gehoord)} samples can be heard"
    verschil = max(abs(een - ander) for een, ander in zip(gehoord, samples))
    assert verschil <= 16, f"what is heard is {verschil} off"


def main() -> None:
    exampleTest.need_tools()
    programma, thuis = Path(sys.argv[1]), Path(os.environ["HOME"])
    leeg = thuis / "leeg"
    leeg.mkdir()
    doorbell = leeg / "doorbell"
    opdrachten = [tekst for taal, tekst, _ in blokken(stappen()) if taal == "sh"]
    assert len(opdrachten) == 3, f"the page has {len(opdrachten)} blocks of commands"
    bestanden = {naam: tekst for taal, tekst, naam in blokken(stappen()) if taal == "c"}
    assert tuple(bestanden) == BESTANDEN, f"the page has the files {list(bestanden)}"

    voer_uit(opdrachten[0], leeg)
    maak_array(programma, thuis / "een", doorbell / "ready.c")
    for naam, tekst in bestanden.items():
        (doorbell / naam).write_text(tekst, encoding="utf-8")
    voer_uit(opdrachten[1], doorbell)
    keur(doorbell, voer_uit(opdrachten[2], doorbell))


if __name__ == "__main__":
    main()
