"""Calls for translation in C++ sources, found without the help of xgettext."""

from __future__ import annotations

import re
from pathlib import Path
from typing import Iterator

# What xgettext is told of, with one text literal each.
GEZIEN = {"_", "wxTRANSLATE"}
# What it is not told of. The first is for texts of a table, that wxTRANSLATE marks.
ONGEZIEN = {"wxGetTranslation", "wxPLURAL", "wxTRANSLATE_IN_CONTEXT", "wxGETTEXT_IN_CONTEXT",
            "wxGETTEXT_IN_CONTEXT_PLURAL"}

# Of these folders nothing is shown to users.
OVERGESLAGEN = {"tests", "bench", "build"}
SOORTEN = {".cpp", ".cc", ".cxx", ".c", ".h", ".hh", ".hpp", ".hxx", ".inl", ".ipp", ".tpp"}

LEXEEM = re.compile(
    r"""(?P<wit>\s+|//(?:[^\n\\]|\\.)*|/\*.*?\*/)
      | (?P<rauw>R"(?P<grens>[^()\\\s]*)\(.*?\)(?P=grens)")
      | (?P<tekst>"(?:[^"\\\n]|\\.)*")
      | (?P<teken>'(?:[^'\\\n]|\\.)+')
      | (?P<woord>[A-Za-z_]\w*)
      | (?P<getal>\d(?:'?\w)*)
      | (?P<overig>.)""",
    re.DOTALL | re.VERBOSE,
)


def bronnen(wortel: Path) -> Iterator[Path]:
    """The sources of the program, relative to the root."""
    for kamer in sorted(wortel.iterdir()):
        if kamer.name in OVERGESLAGEN or kamer.name.startswith("."):
            continue
        for pad in [kamer, *sorted(kamer.rglob("*"))]:
            if pad.suffix in SOORTEN and pad.is_file():
                yield pad.relative_to(wortel)


def _lexemen(inhoud: str) -> list[tuple[str, str, int]]:
    """Kind, text and place of each, without blanks and comments."""
    return [
        (str(vondst.lastgroup), vondst.group(), vondst.start())
        for vondst in LEXEEM.finditer(inhoud)
        if vondst.lastgroup != "wit"
    ]


def aanroepen(inhoud: str) -> Iterator[tuple[int, bool]]:
    """The line of each call for translation, and whether xgettext can see its text."""
    lexemen = _lexemen(inhoud) + [("einde", "", 0)] * 2
    for i, (_, woord, plaats) in enumerate(lexemen[:-2]):
        if woord not in GEZIEN | ONGEZIEN or lexemen[i + 1][1] != "(":
            continue
        regel = inhoud.count("\n", 0, plaats) + 1
        einde = i + 2
        while lexemen[einde][0] == "tekst":
            einde += 1
        if woord in GEZIEN:
            yield regel, einde > i + 2 and lexemen[einde][1] == ")"
        elif woord != "wxGetTranslation" or lexemen[einde][0] == "rauw" or einde > i + 2:
            yield regel, False
