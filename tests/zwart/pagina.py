"""Pages of docs/ that somebody follows to the letter: their steps, files and commands."""

from __future__ import annotations

import os
import re
import subprocess
import wave
from array import array
from pathlib import Path

DOCS = Path(__file__).resolve().parents[2] / "docs"


def stappen(pagina: str, kop: str) -> str:
    """A chapter of a page."""
    tekst = (DOCS / pagina).read_text(encoding="utf-8")
    begin = tekst.index(f"## {kop}\n")
    return tekst[begin:tekst.index("\n## ", begin + 1)]


def blokken(tekst: str) -> list[tuple[str, str, str]]:
    """The code of the page in its order: the language, the text, and the last name in backquotes
    before it."""
    gevonden = []
    for blok in re.finditer(r"^```(\w+)\n(.*?)^```$", tekst, re.M | re.S):
        namen = re.findall(r"`([^`\n]+)`", re.sub(r"^```.*?^```$", "", tekst[:blok.start()],
                                                  flags=re.M | re.S))
        gevonden.append((blok[1], blok[2], namen[-1] if namen else ""))
    return gevonden


def installeer(cmake: str, bouw: str, prefix: Path) -> None:
    """What was built, into an empty folder."""
    # A component: the list of files of a user's own installation is left alone so.
    subprocess.run([cmake, "--install", bouw, "--prefix", str(prefix), "--component", "Unspecified"],
                   stdout=subprocess.DEVNULL, check=True)


def voer_uit(opdrachten: str, map_: Path, **variabelen: str) -> str:
    """What the commands say. They have to succeed."""
    klaar = subprocess.run(
        ["sh", "-euc", opdrachten], cwd=map_, env={**os.environ, **variabelen}, check=False,
        text=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
    )
    assert klaar.returncode == 0, f"{opdrachten}{klaar.stdout}"
    return klaar.stdout


def samples_in(wav: Path) -> tuple[list[int], int]:
    with wave.open(str(wav), "rb") as bron:
        return list(array("h", bron.readframes(bron.getnframes()))), bron.getframerate()
