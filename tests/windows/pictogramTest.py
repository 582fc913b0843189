"""The icon for Windows holds the pictures that were drawn, to the pixel, as ImageMagick reads it.

    pictogramTest.py ICON FOLDER

FOLDER holds the pictures, SxS/apps/kestrolin.png.
"""

from __future__ import annotations

import subprocess
import sys
from pathlib import Path

MATEN = ["16x16", "22x22", "24x24", "32x32", "48x48", "64x64", "96x96", "128x128", "256x256"]


def vraag(*woorden: str | Path) -> bytes:
    return subprocess.run(woorden, check=True, stdout=subprocess.PIPE).stdout


def main(ico: Path, map_: Path) -> None:
    gevonden = vraag("identify", "-format", "%wx%h\\n", ico).decode().splitlines()
    assert gevonden == MATEN, gevonden
    for nummer, maat in enumerate(MATEN):
        plaatje = map_ / maat / "apps" / "kestrolin.png"
        verwacht = vraag("convert", plaatje, "-depth", "8", "rgba:-")
        assert len(set(verwacht)) > 1, f"{plaatje} shows nothing"
        assert vraag("convert", f"{ico}[{nummer}]", "-depth", "8", "rgba:-") == verwacht, maat


if __name__ == "__main__":
    main(Path(sys.argv[1]), Path(sys.argv[2]))
