"""Draws the program's logo and prints it as an XPM picture in C text.

    python3 -B maakParrot.py > parrot.xpm

A parrot speaks, and what it says becomes bytes.
"""

from __future__ import annotations

from typing import Iterator

from tekendoos import BREEDTE, HOOGTE, Vorm, blok, ellips, haal, pad, schilder, veer, verloop, xpm

LIJF = pad(
    "50 4 C 42 3.5 35.5 8 34 16 C 32 25 25 30 21 40 C 17.5 47 17.5 54 19 61 L 32 63"
    "C 43 63 53 58 57 49 C 60 42 60.5 36 59.5 30 C 62.5 26 63.5 20 62.5 14"
    "C 60.5 8 56 4.3 50 4"
)
BUIK = pad("61 28 C 60 42 50 57 28 61 L 28 66 L 64 66 L 66 40")
GEZICHT = pad(
    "53 10.5 C 58 9 63 11 63 17 C 63.5 23 61 29 56 29.5"
    "C 51 30 46.5 26 46.5 20 C 46.5 15 49 11.5 53 10.5"
)
ONDERSNAVEL = pad(
    "60 22 C 63 24.5 66 25.5 67.5 27 C 68.5 30.5 66.5 34 63 34 C 59 33 58.5 27.5 60 22"
)
SNAVEL = pad(
    "59 8.5 C 67 7.5 74.5 12 75.5 20.5 C 76 26 74.8 30 72 34.5 C 71.3 30 69.5 26.5 66 25"
    "C 63 24 61 23.5 60 21.5 C 58.5 18 58 12.5 59 8.5"
)
SNAVELPUNT = pad("78 16 C 74 20 72 24 66 25 L 66 38 L 80 38")
SCHOUDER = pad(
    "39 27 C 46 27.5 49.5 33 47 39 C 44.5 42.5 41.5 40.5 38.8 42 C 35.5 43 33 40.5 30.6 41"
    "C 27.5 40.5 25 39.5 22 38.5 C 26 31 31.5 26.5 39 27"
)
TAK = pad(
    "-1 60 C 20 57.5 40 63 60 60.5 C 70 59.5 77 60 85 57.5"
    "C 79 63.5 72 64.5 62 65.5 C 40 68 20 63 -1 66"
)

# The root, the tip and the width of a feather; in a row of them the hindmost comes first.
Maten = tuple[float, float, float, float, float]
STAART = ((28, 52, -1, 79, 5), (28, 53, 12, 84, 6), (27, 53, 5.5, 83, 6))
SLAGPENNEN = (
    (28, 39, 12, 67, 6.5), (32, 40, 15.5, 69, 7), (36, 42, 20, 69, 7.5), (40, 44, 25.5, 66.5, 7.5),
)
GROEN = ((28, 34, 16.5, 53, 7), (33, 36, 21.5, 56.5, 8), (38, 37, 28, 57.5, 8), (44, 38, 35, 56, 8))
GEEL = ((31, 35, 21.5, 45, 7), (35, 32, 27, 48.5, 8), (40, 33, 34, 49.5, 8), (45, 34, 41, 48, 7))

GOLF = (6, 14, 26, 38, 22, 32, 16)  # heights of the bars of sound
TRAPPEN = (6, 4, 6)  # the same, in cells
TEKENS = b"Kestrolin"  # a byte a column, its highest bit on top
MIDDEN = 38  # half-way up the sound and the cells
TINTEN = ((81, "#de5a4c"), (108, "#efab45"), (117, "#a9b653"), (128, "#3f9c7a"), (176, "#24659c"))


def tekening() -> Iterator[Vorm]:
    yield Vorm(blok(0, 0, BREEDTE, HOOGTE, 0), "#f1ecdd", "#c3dedd")
    yield Vorm(ellips(45, 38.5, 35.5), "#fbdfa6", "#f6d49c")
    yield from veren(STAART[:1], "#2f78b5", "#24578c", "#1d4a7a")
    yield from veren(STAART[1:], "#c9403f", "#a92f38", "#8a2431")
    yield Vorm(TAK, "#9a6f50", "#664534")
    yield Vorm(haal("2 62 C 20 59.5 40 64.5 66 62", 0.5), "#bd936e")
    for x, y, u, v in ((78, 60.5, 88, 65.5), (70, 63, 76, 71.5)):
        yield Vorm(veer(x, y, u, v, 5), "#5fae83", "#3f8f6c")
        yield Vorm(haal(f"{x} {y} C {x} {y} {u} {v} {u} {v}", 0.7), "#a3d6b4")
    yield from lijf()
    yield from kop()
    yield from geluid()


def veren(maten: tuple[Maten, ...], boven: str, onder: str, rand: str) -> Iterator[Vorm]:
    for x, y, u, v, breedte in maten:
        yield Vorm(veer(x, y, u, v, breedte), rand)
        yield Vorm(veer(x, y, u + 0.3, v - 0.8, breedte - 1.2), boven, onder)


def lijf() -> Iterator[Vorm]:
    yield Vorm(LIJF, "#e65c4d", "#c63d40")
    yield Vorm(BUIK, "#a92f38", dekking=90, binnen=LIJF)
    yield from veren(SLAGPENNEN, "#3a86c2", "#2a68a6", "#1f518a")
    yield from veren(GROEN, "#46a883", "#358a70", "#276f5b")
    yield from veren(GEEL, "#f5c058", "#eaa640", "#c98430")
    yield Vorm(SCHOUDER, "#e4564a", "#c83f40")
    yield Vorm(haal("38.5 27 C 46.5 27.5 49.8 33 46.6 39.6", 0.9), "#b23239")
    for x in (35, 38, 41, 46, 49, 52):
        yield Vorm(blok(x, 59.5, 2, 5, 1), "#b3aaa4", "#7d7470")


def kop() -> Iterator[Vorm]:
    yield Vorm(GEZICHT, "#fdf6ea", "#f0ddc9")
    for y in (21.5, 24, 26.5):
        yield Vorm(haal(f"49 {y} C 51 {y + 1.5} 55 {y + 1.5} 58 {y}", 0.5), "#cc6a60")
    yield Vorm(ONDERSNAVEL, "#4f505c", "#2f3039")
    yield Vorm(SNAVEL, "#fff8ea", "#e2c79f")
    yield Vorm(SNAVELPUNT, "#5a5a64", "#34353e", binnen=SNAVEL)
    yield Vorm(ellips(62.5, 13, 0.9, 1.1), "#8c6f52")
    yield Vorm(ellips(54, 16.5, 3.2), "#f2c14e")
    yield Vorm(ellips(54.2, 16.5, 2.2), "#22252e")
    yield Vorm(ellips(55, 15.6, 0.8), "#ffffff")


def geluid() -> Iterator[Vorm]:
    kolommen = iter(range(81, BREEDTE, 5))
    for hoogte, x in zip(GOLF, kolommen):
        yield Vorm(blok(x, MIDDEN - hoogte / 2, 3, hoogte, 1.5), verloop(TINTEN, x))
    for cellen, x in zip(TRAPPEN, kolommen):
        for i in range(cellen):
            yield cel(x, 4 - cellen // 2 + i, verloop(TINTEN, x))
    for teken, x in zip(TEKENS, kolommen):
        for i in range(8):
            aan = teken >> (7 - i) & 1
            yield cel(x, i, verloop(TINTEN, x) if aan else "#b0cfce")


def cel(x: int, rij: int, kleur: str) -> Vorm:
    return Vorm(blok(x, MIDDEN - 20 + 5 * rij, 4, 4, 0.8), kleur)


if __name__ == "__main__":
    print("\n".join(xpm(schilder(tekening()))))
