"""Packs pictures into an icon for Windows.

    maakIco.py ICO PNG...

The PNGs are square, of 8 bits for each of red, green, blue and alpha, as rsvg-convert makes them. Up
to 255 pixels they become bitmaps, which all that reads icons knows; larger ones stay PNG.
"""

from __future__ import annotations

import struct
import sys
import zlib
from pathlib import Path
from typing import Iterator, NamedTuple

BYTES = 4  # of a pixel
GROOTSTE_BITMAP = 255
MASKER_BITS = 32  # a row of the mask is filled up to these


class Beeld(NamedTuple):
    maat: int
    rijen: list[bytes]  # from top to bottom, red green blue alpha


def brokken(png: bytes) -> Iterator[tuple[bytes, bytes]]:
    """The chunks behind the signature, each its name and its content."""
    plaats = 8
    while plaats < len(png):
        lengte, naam = struct.unpack_from(">I4s", png, plaats)
        yield naam, png[plaats + 8:plaats + 8 + lengte]
        plaats += lengte + 12


def voorspel(links: int, boven: int, schuin: int) -> int:
    """What the fourth filter of PNG reckons with."""
    som = links + boven - schuin
    return min((links, boven, schuin), key=lambda buur: abs(som - buur))


def ontfilter(soort: int, rij: bytes, vorige: bytes) -> bytes:
    uit = bytearray(BYTES) + bytearray(rij)
    voor = bytes(BYTES) + vorige
    for i in range(BYTES, len(uit)):
        links, boven, schuin = uit[i - BYTES], voor[i], voor[i - BYTES]
        bij = (0, links, boven, (links + boven) // 2, voorspel(links, boven, schuin))[soort]
        uit[i] = (uit[i] + bij) & 0xFF
    return bytes(uit[BYTES:])


def lees(png: bytes) -> Beeld:
    kop = next(inhoud for naam, inhoud in brokken(png) if naam == b"IHDR")
    breedte, hoogte, *vorm = struct.unpack(">IIBBBBB", kop)
    if breedte != hoogte or vorm != [8, 6, 0, 0, 0]:
        raise ValueError(f"no square picture of 8 bits with alpha: {breedte}x{hoogte} {vorm}")
    gepakt = b"".join(inhoud for naam, inhoud in brokken(png) if naam == b"IDAT")
    ruw = zlib.decompress(gepakt)
    stap = breedte * BYTES + 1
    rijen: list[bytes] = []
    vorige = bytes(stap - 1)
    for begin in range(0, stap * hoogte, stap):
        vorige = ontfilter(ruw[begin], ruw[begin + 1:begin + stap], vorige)
        rijen.append(vorige)
    return Beeld(breedte, rijen)


def masker(rij: bytes) -> bytes:
    """A bit for each pixel, set where nothing of the picture is to be seen."""
    bits = "".join("0" if alpha else "1" for alpha in rij[3::BYTES])
    bits = bits.ljust(-(-len(bits) // MASKER_BITS) * MASKER_BITS, "0")
    return int(bits, 2).to_bytes(len(bits) // 8, "big")


def bitmap(beeld: Beeld) -> bytes:
    """Blue green red alpha, from bottom to top, and the mask below; the height counts both."""
    kop = struct.pack("<IiiHHIIiiII", 40, beeld.maat, 2 * beeld.maat, 1, 8 * BYTES, 0, 0, 0, 0, 0, 0)
    kleuren = bytearray()
    for rij in reversed(beeld.rijen):
        for i in range(0, len(rij), BYTES):
            rood, groen, blauw, alpha = rij[i:i + BYTES]
            kleuren += bytes((blauw, groen, rood, alpha))
    return kop + bytes(kleuren) + b"".join(masker(rij) for rij in reversed(beeld.rijen))


def maak_ico(pngs: list[bytes]) -> bytes:
    beelden = [lees(png) for png in pngs]
    inhouden = [bitmap(beeld) if beeld.maat <= GROOTSTE_BITMAP else png
                for beeld, png in zip(beelden, pngs)]
    ico = struct.pack("<HHH", 0, 1, len(pngs))
    plaats = len(ico) + 16 * len(pngs)
    for beeld, inhoud in zip(beelden, inhouden):
        kant = beeld.maat if beeld.maat <= GROOTSTE_BITMAP else 0
        ico += struct.pack("<BBBBHHII", kant, kant, 0, 0, 1, 8 * BYTES, len(inhoud), plaats)
        plaats += len(inhoud)
    return ico + b"".join(inhouden)


if __name__ == "__main__":
    Path(sys.argv[1]).write_bytes(maak_ico([Path(png).read_bytes() for png in sys.argv[2:]]))
