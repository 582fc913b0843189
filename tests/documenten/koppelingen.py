"""Whether what the pages link to, and what they name in backquotes, is there."""

from __future__ import annotations

import re
from itertools import chain
from pathlib import PurePosixPath
from posixpath import normpath
from typing import Iterator
from urllib.parse import unquote, urlsplit

from bladzijde import Bladzijde
from boom import Boom

HUIS = "kestrolin.example"
PAD = re.compile(r"\.?[\w.+*?\[\]-]*(?:/[\w.+*?\[\]-]*)+")
ADRES = re.compile(r"https?://[^\s)>\]]*")
REGEL_ACHTER = re.compile(r":\d+$")
# The readers are named without their folder.
LEZER = re.compile(r"kestrolin_[a-z*]+\.(?:[ch]|\*)")
# What firmware/layouts makes of the readers.
GEMAAKT = ("kestrolin_readers.c", "kestrolin_readers.h", "kestrolin_readers.*")


def bladzijden(boom: Boom) -> list[Bladzijde]:
    return [Bladzijde(naam, boom.lees(naam)) for naam in boom.met("*.md")]


def _klacht_over_adres(doel: str) -> str:
    deel = urlsplit(doel)
    if deel.scheme == "https" and deel.netloc == HUIS:
        return ""
    return f"{doel}: leads elsewhere than to https://{HUIS}"


def _klacht_over_doel(boom: Boom, ankers: dict[str, frozenset[str]], van: str, doel: str) -> str:
    deel = urlsplit(doel)
    if deel.scheme or deel.netloc:
        return _klacht_over_adres(doel)
    pad = van
    if deel.path:
        pad = normpath(str(PurePosixPath(van).parent / unquote(deel.path)))
        if pad.startswith(("/", "..")):
            return f"{doel}: leads out of the tree"
        if pad not in boom.bestanden and pad not in boom.mappen:
            return f"{doel}: there is no {pad}"
    if "#" in doel and unquote(deel.fragment) not in ankers.get(pad, frozenset()):
        return f"{doel}: {pad} has no heading of that name"
    return ""


def _met_accolades(woord: str) -> Iterator[str]:
    """`a_{b,c}.h` stands for `a_b.h` and `a_c.h`."""
    vondst = re.search(r"\{([^{}]*)\}", woord)
    if not vondst:
        yield woord
        return
    for keuze in vondst.group(1).split(","):
        yield from _met_accolades(woord[: vondst.start()] + keuze + woord[vondst.end() :])


def namen_in(boom: Boom, code: str) -> Iterator[str]:
    """The words of a code that name a file or a folder of the tree."""
    for woord in chain.from_iterable(map(_met_accolades, code.split())):
        naam = REGEL_ACHTER.sub("", woord.rstrip(",;"))
        if LEZER.fullmatch(naam) and naam not in GEMAAKT:
            yield f"firmware/{naam}"
        elif PAD.fullmatch(naam) and naam.split("/")[0] in boom.bovenste:
            yield naam.rstrip("/")


def koppelingen(boom: Boom) -> list[str]:
    """Links and pictures lead somewhere, and what looks like a path is one."""
    alle = bladzijden(boom)
    ankers = {bladzijde.naam: bladzijde.ankers for bladzijde in alle}
    klachten = [] if alle else ["no pages"]
    for bladzijde in alle:
        gevonden = [(plek.regel, _klacht_over_doel(boom, ankers, bladzijde.naam, plek.tekst))
                    for plek in bladzijde.doelen]
        gevonden += [(plek.regel, _klacht_over_adres(adres)) for plek in bladzijde.teksten
                     for adres in ADRES.findall(plek.tekst)]
        gevonden += [(plek.regel, f"`{plek.tekst}`: there is no {naam}")
                     for plek in bladzijde.codes for naam in namen_in(boom, plek.tekst)
                     if not boom.kent(naam)]
        klachten += [f"{bladzijde.naam}:{regel}: {klacht}"
                     for regel, klacht in sorted(set(gevonden)) if klacht]
    return klachten
