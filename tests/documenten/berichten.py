"""The manual tells every text that the program shows: those of its catalogs, line by line."""

from __future__ import annotations

import re
import subprocess

from boom import Boom

HANDLEIDING = "docs/manual.md"
SJABLONEN = ("vertalingen/Kestrolin.pot", "vertalingen/Velmoradesktop.pot")
# Nobody reads these: a title that is replaced, and a label that always gets its number.
ONGEZIEN = {"Kestrolin for embedded applications", "channels:"}

# What a number or a name takes the place of.
CONVERSIE = re.compile(r"\n|%l?[ds]|%\.2lf")
TEKST = re.compile(r'^msgid ((?:".*"\n)+)', re.MULTILINE)
TEKENS = {r"\n": "\n", r"\t": "\t", r"\"": '"', r"\\": "\\"}


def _teksten(sjabloon: str) -> list[str]:
    """The texts of a template, but for its head."""
    blokken = ("".join(re.findall(r'"(.*)"', blok)) for blok in TEKST.findall(sjabloon))
    return [re.sub(r'\\[nt"\\]', lambda teken: TEKENS[teken[0]], blok) for blok in blokken if blok]


def _stukken(tekst: str) -> list[str]:
    """The pieces of it that are always the same."""
    stukken = (stuk.strip() for stuk in CONVERSIE.split(tekst.replace("%%", "%")))
    return [stuk for stuk in stukken if stuk and stuk not in ONGEZIEN]


def berichten(boom: Boom) -> list[str]:
    """Every piece of every text stands in the manual."""
    handleiding = boom.lees(HANDLEIDING)
    klachten = []
    for naam in SJABLONEN:
        sjabloon = subprocess.run(
            ["msgcat", "--no-wrap", "-"], input=boom.lees(naam), capture_output=True, text=True,
            check=True,
        ).stdout
        teksten = _teksten(sjabloon)
        if not teksten:
            klachten.append(f"{naam}: no texts")
        klachten += [f"{HANDLEIDING} does not tell {stuk!r} of {naam}"
                     for tekst in teksten for stuk in _stukken(tekst) if stuk not in handleiding]
    return klachten
