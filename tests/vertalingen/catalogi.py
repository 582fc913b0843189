"""The catalogs and the sources that they are for, as the gettext tools read them."""

from __future__ import annotations

import os
import struct
import subprocess
from dataclasses import dataclass
from functools import cached_property
from pathlib import Path

TALEN = ("nl", "de", "fr", "it", "es")
DOMEINEN = ("Velmoradesktop", "Kestrolin", "Pakket")
SJABLOON = Path(__file__).resolve().parents[2] / "vertalingen" / "sjabloon"


class Onleesbaar(Exception):
    """A catalog or the sources cannot be read at all."""


@dataclass(frozen=True)
class Tekst:
    """One text of a catalog."""

    po: str
    bron: str
    vertaling: str

    def __str__(self) -> str:
        return f"{self.po}: {self.bron!r} is {self.vertaling!r}"


def _lees_mo(inhoud: bytes) -> dict[str, str]:
    """The texts of a compiled catalog: two tables of (length, place), both in the same order."""
    aantal, *tabellen = struct.unpack_from("<3I", inhoud, 8)

    def tekst(tabel: int, nummer: int) -> str:
        lengte, plaats = struct.unpack_from("<2I", inhoud, tabel + 8 * nummer)
        return inhoud[plaats : plaats + lengte].decode()

    bron, vertaling = ([tekst(tabel, i) for i in range(aantal)] for tabel in tabellen)
    return dict(zip(bron, vertaling))


class Catalogi:
    """A folder of catalogs. Names of files are relative to it."""

    def __init__(self, folder: Path, bron: Path, versie: str) -> None:
        self.folder = folder
        self.bron = bron
        self.versie = versie

    @property
    def namen(self) -> list[str]:
        """The catalogs that there have to be."""
        return [f"{taal}/{domein}.po" for taal in TALEN for domein in DOMEINEN]

    def _draai(self, *woorden: str, invoer: bytes = b"") -> subprocess.CompletedProcess[bytes]:
        return subprocess.run(
            woorden, cwd=self.folder, input=invoer, capture_output=True, check=False,
            env={**os.environ, "LC_ALL": "C"},
        )

    def vraag(self, *woorden: str, invoer: bytes = b"") -> str:
        """All that a tool says, and its exit status where it fails."""
        uitkomst = self._draai(*woorden, invoer=invoer)
        status = f"{woorden[0]}: exit status {uitkomst.returncode}" if uitkomst.returncode else ""
        return ((uitkomst.stdout + uitkomst.stderr).decode() + status).strip()

    def _maak(self, *woorden: str) -> bytes:
        """What a tool makes. It has nothing to say."""
        uitkomst = self._draai(*woorden)
        if uitkomst.returncode or uitkomst.stderr:
            raise Onleesbaar(f"{' '.join(woorden)}:\n{uitkomst.stderr.decode()}")
        return uitkomst.stdout

    @cached_property
    def sjablonen(self) -> dict[str, bytes]:
        """The template of each domain, made from the sources now."""
        return {
            domein: self._maak(str(SJABLOON), domein, self.versie, str(self.bron))
            for domein in DOMEINEN
        }

    @cached_property
    def teksten(self) -> list[Tekst]:
        """The texts of all catalogs as the toolkit gets them."""
        teksten = []
        for po in self.namen:
            mo = _lees_mo(self._maak("msgfmt", "--endianness=little", "--output-file=-", po))
            del mo[""]
            teksten += [Tekst(po, bron, vertaling) for bron, vertaling in mo.items()]
        return teksten
