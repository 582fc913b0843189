"""The manual tells every text that the programs show: those of the catalogs, line by line, and what the
command and its CMake function say."""

from __future__ import annotations

import re
import subprocess
from pathlib import Path

from boom import Boom

HANDLEIDING = "docs/manual.md"
SJABLONEN = ("vertalingen/Kestrolin.pot", "vertalingen/Velmoradesktop.pot")
# Nobody reads these: a title that is replaced, a label that always gets its number, and a key that each
# catalog replaces by a name.
ONGEZIEN = {"Kestrolin for embedded applications", "channels:", "translator-credits"}

# The command has no catalog: its texts are those of these sources, but for the help and for what is
# printed as a result.
KAMERS = ("opdrachtregel/*.cpp", "audio/weergave/*.cpp")
RESULTATEN = {f"opdrachtregel/{naam}.cpp" for naam in (
    "bijlagen", "kwaliteitPlaat", "lijst", "opmaak", "svg", "vergelijkTekst")}
HULP = re.compile(r"\b(?:add_option|add_flag|add_subcommand|footer|set_help_flag|set_version_flag|"
                  r"CLI::App programma)\(")
LETTERLIJK = re.compile(r"""//[^\n]*|#include[^\n]*|'(?:[^'\\]|\\.)+'|"((?:[^"\\\n]|\\.)*)\"""")
PAKKET = "packaging/cmake/*.cmake"
GEZEGD = re.compile(r'(?:_kestrolin_fail\(|NOT_FOUND_MESSAGE\s)\s*"((?:[^"\\]|\\.)*)"')
WOORDEN = re.compile(r"[A-Za-z]{2,}[,;:+]* \S*[A-Za-z]{2,}")
VERWIJZING = re.compile(r"\$\{(?:[^{}]|\$\{[^{}]*\})*\}")

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


def _zonder_hulp(bron: str) -> str:
    """A source without the calls that make up the help."""
    while vondst := HULP.search(bron):
        diepte, einde = 1, vondst.end()
        for deel in re.finditer(r'"(?:[^"\\\n]|\\.)*"|[()]', bron[vondst.end() :]):
            diepte += {"(": 1, ")": -1}.get(deel[0], 0)
            if not diepte:
                einde += deel.end()
                break
        bron = bron[: vondst.start()] + bron[max(einde, vondst.end()) :]
    return bron


def _van_opdracht(boom: Boom) -> list[tuple[str, str]]:
    """The pieces that the command says, each with its source. A piece of one word tells nothing."""
    gevonden = []
    for naam in boom.met(*KAMERS):
        if naam not in RESULTATEN:
            bron = re.sub(r'"\s*\n\s*"', "", _zonder_hulp(boom.lees(naam)))
            gevonden += [(naam, deel[1]) for deel in LETTERLIJK.finditer(bron) if deel[1]]
    for naam in boom.met(PAKKET):
        gevonden += [(naam, stuk) for deel in GEZEGD.finditer(boom.lees(naam))
                     for stuk in VERWIJZING.split(deel[1])]
    stukken = [(naam, re.sub(r'\\[nt"\\]', lambda teken: TEKENS[teken[0]], tekst).strip())
               for naam, tekst in gevonden]
    return [(naam, stuk) for naam, stuk in stukken if WOORDEN.search(stuk)]


def berichten(boom: Boom) -> list[str]:
    """Every piece of every text stands in the manual."""
    handleiding = boom.lees(HANDLEIDING)
    van_opdracht = _van_opdracht(boom)
    klachten = [f"{HANDLEIDING} does not tell {stuk!r} of {naam}"
                for naam, stuk in van_opdracht if stuk not in handleiding]
    klachten += [f"{vorm}: no texts" for vorm in (KAMERS[0], PAKKET)
                 if not any(Path(naam).match(vorm) for naam, _ in van_opdracht)]
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
