"""The drawings of byte layouts: those of the manual, and their copies beside the code."""

from __future__ import annotations

import re
from typing import Iterator

from bladzijde import Bladzijde
from boom import Boom

HANDLEIDING = "docs/manual.md"
# Whose layouts each source draws.
TEKENAARS = {
    "firmware/kestrolin_pcm.h": "### PCM arrays",
    "firmware/kestrolin_adpcm.h": "### ADPCM arrays",
    "firmware/kestrolin_speex.h": "### Speex arrays",
    "firmware/kestrolin_wav.h": "### Embedded WAV files",
    "audio/codec/pcmPakket.h": "### PCM arrays",
    "audio/codec/adpcmPakket.h": "### ADPCM arrays",
    "externals/software/extern/speex/speexHeader.h": "### Speex arrays",
}
# Draws what two layouts begin with alike.
DEEL = "audio/codec/serieleKop.h"
BRONNEN = ("audio/*.h", "externals/*.h", "firmware/*.h", "numeriek/*.h")

MERK = re.compile(r"^ ?(?://|/\*|\*)")
LINEAAL = re.compile(r"\+--")

# The lines of a drawing, without what they are indented by.
Tekening = tuple[str, ...]


def _is_lineaal(regel: str) -> bool:
    return bool(LINEAAL.match(regel.strip()))


def _tekening(regels: list[str]) -> Tekening:
    """From the line of byte numbers to the last ruler, as far to the left as it goes."""
    einde = max((i for i, regel in enumerate(regels) if _is_lineaal(regel)), default=0) + 1
    marge = len(regels[0]) - len(regels[0].lstrip())
    kaal = []
    for regel in regels[:einde]:
        kaal.append(regel[marge:] if not regel[:marge].strip() else regel)
    return tuple(regel.rstrip() for regel in kaal)


def tekeningen_in(regels: list[str]) -> Iterator[tuple[int, Tekening]]:
    """Each drawing, with the number of its first line."""
    for i, regel in enumerate(regels):
        volgende = regels[i + 1] if i + 1 < len(regels) else ""
        if not regel.strip().startswith("byte ") or not _is_lineaal(volgende):
            continue
        einde = i + 1
        while einde < len(regels) and regels[einde].strip().startswith(("+", "|")):
            einde += 1
        yield i + 1, _tekening(regels[i:einde])


def zonder_merken(bron: str) -> list[str]:
    """The lines of a source, without the marks of comments."""
    return [MERK.sub("", regel) for regel in bron.splitlines()]


def _van_handleiding(boom: Boom) -> dict[str, list[Tekening]]:
    """The drawings of the manual by heading."""
    tekeningen: dict[str, list[Tekening]] = {kop: [] for kop in TEKENAARS.values()}
    for blok in Bladzijde(HANDLEIDING, boom.lees(HANDLEIDING)).blokken:
        if blok.taal == "text" and blok.kop in tekeningen:
            gevonden = [beeld for _, beeld in tekeningen_in(blok.inhoud.splitlines())]
            tekeningen[blok.kop] += gevonden
    return tekeningen


def _verschil(tekening: Tekening, bekend: list[Tekening]) -> str:
    """The line that is in no drawing of the manual, or else the whole."""
    regels = {regel for beeld in bekend for regel in beeld}
    vreemd = [regel for regel in tekening if regel not in regels]
    return "\n".join(vreemd or tekening)


def _van_bron(boom: Boom, naam: str, bekend: list[Tekening]) -> list[str]:
    """What a source draws, against what the manual does."""
    gevonden = list(tekeningen_in(zonder_merken(boom.lees(naam))))
    klachten = [f"{naam}:{regel}: not as {HANDLEIDING} draws it:\n{_verschil(beeld, bekend)}"
                for regel, beeld in gevonden if beeld not in bekend]
    ontbreekt = [beeld for beeld in bekend if beeld not in (b for _, b in gevonden)]
    if naam in TEKENAARS and ontbreekt and not klachten:
        klachten = [f"{naam}: does not draw this:\n" + "\n".join(beeld) for beeld in ontbreekt]
    return klachten


def tekeningen(boom: Boom) -> list[str]:
    """Every drawing is one of the manual, to the letter."""
    if HANDLEIDING not in boom.bestanden:
        return [f"{HANDLEIDING} is missing"]
    bekend = _van_handleiding(boom)
    klachten = [f"{HANDLEIDING}: no drawing under \"{kop}\"" for kop, beelden in bekend.items()
                if not beelden]
    klachten += [f"{naam} is missing" for naam in TEKENAARS if naam not in boom.bestanden]
    alle = [beeld for beelden in bekend.values() for beeld in beelden]
    for naam in boom.met(*BRONNEN):
        if naam != DEEL:
            klachten += _van_bron(boom, naam, bekend.get(TEKENAARS.get(naam, ""), alle))
    for naam in boom.met("*.md"):
        vreemd = [(regel, beeld) for regel, beeld in tekeningen_in(boom.lees(naam).splitlines())
                  if beeld not in alle]
        klachten += [f"{naam}:{regel}: a drawing that {HANDLEIDING} has not" for regel, _ in vreemd]
    return klachten
