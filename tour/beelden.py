"""The pictures of the manual, which are screenshots of the tour. Started by `tour/beelden`.

    beelden.py neem | neem-alle | keur RESULTS [TREE]

TREE is where the documents and their pictures are, the one of this file unless given.
"""

from __future__ import annotations

import re
import subprocess
import sys
from pathlib import Path

import numpy as np

# What is heard at that moment is another piece each time.
WISSELEND = {"play"}
# What no tour shows: the window for Windows, under Wine.
ELDERS = {"windows"}
# So much may a channel of a pixel differ, of 255: by the palette that a picture is stored with, and by
# the edges of letters, which another version of the renderer of fonts shades otherwise.
SPELING = 56
# The lines around controls are fainter than that. So many pixels may differ by this much.
SPELING_LIJN = 24
LIJNPIXELS = 150


def lees(pad: Path) -> np.ndarray:
    """The pixels of a picture: rows, columns, channels."""
    ppm = subprocess.run(
        ["convert", str(pad), "-depth", "8", "ppm:-"], check=True, stdout=subprocess.PIPE
    ).stdout
    _, maten, _, bytes_ = ppm.split(b"\n", 3)
    breedte, hoogte = map(int, maten.split())
    return np.frombuffer(bytes_, np.uint8).reshape(hoogte, breedte, 3).astype(np.int16)


def _buiten(een: np.ndarray, ander: np.ndarray) -> np.ndarray:
    """How far each pixel of the one is from all that the other has there and right beside it."""
    hoogte, breedte = een.shape[:2]
    rand = np.pad(ander, ((1, 1), (1, 1), (0, 0)), mode="edge")
    buren = [rand[y:y + hoogte, x:x + breedte] for y in range(3) for x in range(3)]
    laagste, hoogste = np.minimum.reduce(buren), np.maximum.reduce(buren)
    return np.maximum(laagste - een, een - hoogste).max(axis=2)


def verschil(een: np.ndarray, ander: np.ndarray) -> np.ndarray:
    """Which pixels differ beyond what is forgiven; of pictures of two sizes all."""
    if een.shape != ander.shape:
        return np.ones(ander.shape[:2], bool)
    afstand = np.maximum(_buiten(een, ander), _buiten(ander, een))
    lijnen = afstand > SPELING_LIJN
    return lijnen if lijnen.sum() > LIJNPIXELS else afstand > SPELING


def schrijf_verschil(pad: Path, beeld: np.ndarray, waar: np.ndarray) -> None:
    """Writes a picture gone pale, with red where it differs."""
    bleek = 170 + beeld // 3
    bleek[waar] = (255, 0, 0)
    hoogte, breedte = waar.shape
    ppm = b"P6\n%d %d\n255\n" % (breedte, hoogte) + bleek.astype(np.uint8).tobytes()
    subprocess.run(["convert", "ppm:-", str(pad)], check=True, input=ppm)


def schermafdrukken(resultaten: Path) -> dict[str, Path]:
    """The tour's screenshots that can be a picture, by name."""
    gevonden = {p.stem.split("-", 1)[1]: p for p in resultaten.glob("[0-9]*-*.png")}
    return {naam: pad for naam, pad in gevonden.items() if naam not in WISSELEND}


def gebruikt(boom: Path) -> dict[str, str]:
    """The pictures that the documents show, and one document that does."""
    documenten = [boom / "README.md", *sorted((boom / "docs").glob("*.md"))]
    return {
        naam: str(document.relative_to(boom))
        for document in documenten if document.is_file()
        for naam in re.findall(r"pictures/([\w-]+)\.png", document.read_text(encoding="utf-8"))
        if naam not in ELDERS
    }


class Beelden:
    """The pictures of a tree beside the screenshots of a tour."""

    def __init__(self, resultaten: Path, boom: Path) -> None:
        self._resultaten = resultaten
        self._map = boom / "docs" / "pictures"
        self._vers = schermafdrukken(resultaten)
        self._gebruikt = gebruikt(boom)
        self._aanwezig = {p.stem for p in self._map.glob("*.png")} - ELDERS

    def _verschil(self, naam: str) -> tuple[np.ndarray, np.ndarray]:
        vers = lees(self._vers[naam])
        return vers, verschil(lees(self._map / f"{naam}.png"), vers)

    def _onbekend(self) -> list[str]:
        return [
            f"{document} shows {naam}.png, which is no screenshot of the tour"
            for naam, document in sorted(self._gebruikt.items()) if naam not in self._vers
        ]

    def neem(self, alle: bool) -> list[str]:
        """Brings the pictures up to date, those that the documents show or all that there are to
        show, and takes away the others."""
        namen = self._vers.keys() & (self._vers.keys() if alle else self._gebruikt.keys())
        self._map.mkdir(parents=True, exist_ok=True)
        for naam in sorted(namen):
            if naam in self._aanwezig and not self._verschil(naam)[1].any():
                continue
            # Flat colours and few shades: dithering would only make the file larger.
            subprocess.run(
                ["convert", str(self._vers[naam]), "-strip", "-dither", "None", "-colors", "256",
                 "-define", "png:compression-level=9", f"PNG8:{self._map / naam}.png"], check=True,
            )
            print(f"{naam}.png is new")
        for naam in sorted(self._aanwezig - namen):
            (self._map / f"{naam}.png").unlink()
            print(f"{naam}.png is gone: no document shows it")
        return self._onbekend()

    def keur(self) -> list[str]:
        """What is wrong with the pictures."""
        klachten = self._onbekend()
        for naam in sorted(self._gebruikt.keys() - self._aanwezig):
            klachten.append(f"{self._gebruikt[naam]} shows {naam}.png, which is not there")
        for naam in sorted(self._aanwezig - self._gebruikt.keys()):
            klachten.append(f"{naam}.png is shown by no document")
        for naam in sorted(self._aanwezig & self._vers.keys()):
            vers, waar = self._verschil(naam)
            if waar.any():
                pad = self._resultaten / f"differs-{naam}.png"
                schrijf_verschil(pad, vers, waar)
                klachten.append(f"{naam}.png is not what the tour shows: {waar.sum()} pixels, {pad}")
        return klachten


def main(taak: str, resultaten: Path, boom: Path) -> int:
    if not schermafdrukken(resultaten):
        print(f"There is no tour in {resultaten}.", file=sys.stderr)
        return 1
    beelden = Beelden(resultaten, boom)
    klachten = beelden.keur() if taak == "keur" else beelden.neem(taak == "neem-alle")
    print("\n".join(klachten), file=sys.stderr, end="\n" if klachten else "")
    return 1 if klachten else 0


if __name__ == "__main__":
    EIGEN_BOOM = Path(__file__).resolve().parent.parent
    sys.exit(main(sys.argv[1], Path(sys.argv[2]), Path((sys.argv[3:] or [EIGEN_BOOM])[0])))
