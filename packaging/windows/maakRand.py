"""Makes the strip beside the last page of the installer: the icon of the program on a light ground.

    maakRand.py PNG BMP
"""

from __future__ import annotations

import struct
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "icon"))

# pylint: disable=wrong-import-position
from maakIco import BYTES, lees

# What the page has room for. A row of three bytes a pixel is filled up to four.
BREEDTE, HOOGTE = 164, 314
GROND = (233, 238, 242)
BOVEN = 72


def main(png: str, bmp: str) -> None:
    beeld = lees(Path(png).read_bytes())
    links = (BREEDTE - beeld.maat) // 2
    rijen = [bytearray(bytes(reversed(GROND)) * BREEDTE) for _ in range(HOOGTE)]
    for rij, pixels in zip(rijen[BOVEN:], beeld.rijen):
        for x in range(beeld.maat):
            *kleuren, alpha = pixels[x * BYTES:(x + 1) * BYTES]
            gemengd = [(kleur * alpha + grond * (255 - alpha)) // 255 for kleur, grond in zip(kleuren, GROND)]
            rij[3 * (links + x):3 * (links + x + 1)] = bytes(reversed(gemengd))
    inhoud = b"".join(bytes(rij).ljust(-(-len(rij) // 4) * 4, b"\0") for rij in reversed(rijen))
    kop = struct.pack("<IiiHHIIiiII", 40, BREEDTE, HOOGTE, 1, 24, 0, len(inhoud), 0, 0, 0, 0)
    begin = 14 + len(kop)
    Path(bmp).write_bytes(struct.pack("<2sIHHI", b"BM", begin + len(inhoud), 0, 0, begin) + kop + inhoud)


if __name__ == "__main__":
    main(*sys.argv[1:])
