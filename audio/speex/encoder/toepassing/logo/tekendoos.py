"""A small paint box: outlines, the pixels that they cover, and an XPM picture of these in C text.

Lengths are in pixels, from the top left. Colours come from additions, multiplications, divisions
and square roots alone, which are exact to the last bit everywhere: the same bytes come out on every
machine.
"""

from __future__ import annotations

import math
from dataclasses import dataclass
from typing import Iterable, Iterator, Sequence

BREEDTE, HOOGTE, KLEUREN = 181, 80, 256
FIJNHEID = 8  # samples a pixel, in each direction

Punt = tuple[float, float]
Kleur = tuple[int, int, int]
Stuk = tuple[int, int]  # the samples of one row from the first up to the second
Masker = dict[int, list[Stuk]]


@dataclass(frozen=True)
class Vorm:
    """A filled outline. Its colour runs from `boven` at its top to `onder` at its bottom."""

    omtrek: list[Punt]
    boven: str
    onder: str = ""
    dekking: int = 256  # out of 256, which hides all below
    binnen: list[Punt] | None = None  # outline of what it stays inside of


# --- Outlines ---------------------------------------------------------------------------------


def kromme(a: Punt, b: Punt, c: Punt, d: Punt, stappen: int = 24) -> Iterator[Punt]:
    """A cubic Bezier curve without its first point."""
    for i in range(1, stappen + 1):
        t = i / stappen
        u = 1 - t
        p, q, r, s = u * u * u, 3 * u * u * t, 3 * u * t * t, t * t * t
        x, y = (p * k + q * l + r * m + s * n for k, l, m, n in zip(a, b, c, d))
        yield x, y


def pad(tekst: str) -> list[Punt]:
    """The points of "x y" followed by any number of "L x y" and "C x y x y x y"."""
    woorden = tekst.replace("L", ";L").replace("C", ";C").split(";")
    punten: list[Punt] = []
    for woord in woorden:
        getallen = [float(getal) for getal in woord.strip("LC ").split()]
        paren = list(zip(getallen[::2], getallen[1::2]))
        punten += kromme(punten[-1], *paren) if woord.startswith("C") else paren
    return punten


def ellips(x: float, y: float, rx: float, ry: float = 0) -> list[Punt]:
    ry = ry or rx
    k, m = 0.5523 * rx, 0.5523 * ry  # a quarter of a circle as a cubic curve
    return pad(
        f"{x + rx} {y} C {x + rx} {y + m} {x + k} {y + ry} {x} {y + ry}"
        f"C {x - k} {y + ry} {x - rx} {y + m} {x - rx} {y}"
        f"C {x - rx} {y - m} {x - k} {y - ry} {x} {y - ry}"
        f"C {x + k} {y - ry} {x + rx} {y - m} {x + rx} {y}"
    )


def blok(x: float, y: float, b: float, h: float, r: float) -> list[Punt]:
    """A rectangle with rounded corners."""
    k = 0.4477 * r
    u, v = x + b, y + h
    return pad(
        f"{x + r} {y} L {u - r} {y} C {u - k} {y} {u} {y + k} {u} {y + r}"
        f"L {u} {v - r} C {u} {v - k} {u - k} {v} {u - r} {v}"
        f"L {x + r} {v} C {x + k} {v} {x} {v - k} {x} {v - r}"
        f"L {x} {y + r} C {x} {y + k} {x + k} {y} {x + r} {y}"
    )


def dwars(a: Punt, b: Punt, maat: float) -> Punt:
    """The vector of length `maat` at right angles to the line from `a` to `b`."""
    dx, dy = b[0] - a[0], b[1] - a[1]
    lengte = math.sqrt(dx * dx + dy * dy)
    return (-dy * maat / lengte, dx * maat / lengte)


def veer(x: float, y: float, u: float, v: float, breedte: float) -> list[Punt]:
    """A feather from its root (x, y) to its tip (u, v)."""
    nx, ny = dwars((x, y), (u, v), breedte * 0.67)
    ax, ay, bx, by = x + (u - x) * 0.1, y + (v - y) * 0.1, x + (u - x) * 0.98, y + (v - y) * 0.98
    return pad(
        f"{x} {y} C {ax + nx} {ay + ny} {bx + nx} {by + ny} {u} {v}"
        f"C {bx - nx} {by - ny} {ax - nx} {ay - ny} {x} {y}"
    )


def haal(tekst: str, breedte: float) -> list[Punt]:
    """A stroke of the pen, thickest halfway and pointed at both ends."""
    punten = pad(tekst)
    heen, terug = [punten[0]], []
    for i in range(1, len(punten) - 1):
        t = i / (len(punten) - 1)
        nx, ny = dwars(punten[i - 1], punten[i + 1], 2 * breedte * t * (1 - t))
        heen.append((punten[i][0] + nx, punten[i][1] + ny))
        terug.append((punten[i][0] - nx, punten[i][1] - ny))
    return heen + [punten[-1]] + terug[::-1]


# --- From outlines to pixels ------------------------------------------------------------------


def masker(omtrek: list[Punt]) -> Masker:
    """The samples inside an outline, by row."""
    snijpunten: dict[int, list[float]] = {}
    for (ax, ay), (bx, by) in zip(omtrek, omtrek[1:] + omtrek[:1]):
        if ay > by:
            ax, ay, bx, by = bx, by, ax, ay
        eerste, eind = math.ceil(ay * FIJNHEID - 0.5), math.ceil(by * FIJNHEID - 0.5)
        for rij in range(max(eerste, 0), min(eind, HOOGTE * FIJNHEID)):
            y = (rij + 0.5) / FIJNHEID
            snijpunten.setdefault(rij, []).append(ax + (bx - ax) * (y - ay) / (by - ay))
    return {rij: list(stukken(sorted(xen))) for rij, xen in snijpunten.items()}


def stukken(xen: list[float]) -> Iterator[Stuk]:
    grenzen = [math.ceil(x * FIJNHEID - 0.5) for x in xen]
    binnen = [min(max(grens, 0), BREEDTE * FIJNHEID) for grens in grenzen]
    return zip(binnen[::2], binnen[1::2])


def doorsnede(een: Masker, ander: Masker) -> Masker:
    return {
        rij: [
            (max(a, c), min(b, d))
            for a, b in deel
            for c, d in ander.get(rij, [])
            if max(a, c) < min(b, d)
        ]
        for rij, deel in een.items()
    }


def kleur(tekst: str) -> Kleur:
    rood, groen, blauw = bytes.fromhex(tekst[1:])
    return rood, groen, blauw


def meng(van: Kleur, naar: Kleur, teller: int, noemer: int) -> Kleur:
    rood, groen, blauw = ((a * (noemer - teller) + b * teller) // noemer for a, b in zip(van, naar))
    return rood, groen, blauw


def verloop(stops: Sequence[tuple[int, str]], x: int) -> str:
    """The colour at `x` of a run through colours at given places."""
    for (begin, van), (eind, naar) in zip(stops, stops[1:]):
        if begin <= x <= eind:
            return "#" + bytes(meng(kleur(van), kleur(naar), x - begin, eind - begin)).hex()
    raise ValueError(f"no colour at {x}")


def vul(doek: list[list[Kleur]], vorm: Vorm) -> None:
    gebied = masker(vorm.omtrek)
    begin, hoogte = min(gebied), len(gebied)
    if vorm.binnen:
        gebied = doorsnede(gebied, masker(vorm.binnen))
    boven, onder = kleur(vorm.boven), kleur(vorm.onder or vorm.boven)
    for rij, deel in gebied.items():
        verf = meng(boven, onder, rij - begin, hoogte)
        for links, rechts in deel:
            if vorm.dekking == 256:
                doek[rij][links:rechts] = [verf] * (rechts - links)
                continue
            for x in range(links, rechts):
                doek[rij][x] = meng(doek[rij][x], verf, vorm.dekking, 256)


def schilder(vormen: Iterable[Vorm]) -> list[list[Kleur]]:
    """The rows of pixels of shapes that are laid one over the other."""
    doek = [[(0, 0, 0)] * (BREEDTE * FIJNHEID) for _ in range(HOOGTE * FIJNHEID)]
    for vorm in vormen:
        vul(doek, vorm)
    return verklein(doek)


def verklein(doek: list[list[Kleur]]) -> list[list[Kleur]]:
    """One pixel, the mean of its samples, for each square of samples."""

    def pixel(x: int, y: int) -> Kleur:
        monsters = [
            monster
            for rij in doek[y * FIJNHEID : (y + 1) * FIJNHEID]
            for monster in rij[x * FIJNHEID : (x + 1) * FIJNHEID]
        ]
        return gemiddelde(monsters)

    return [[pixel(x, y) for x in range(BREEDTE)] for y in range(HOOGTE)]


def gemiddelde(kleuren: list[Kleur]) -> Kleur:
    n = len(kleuren)
    rood, groen, blauw = ((2 * sum(waarden) + n) // (2 * n) for waarden in zip(*kleuren))
    return rood, groen, blauw


# --- From pixels to text ----------------------------------------------------------------------


def spreiding(kleuren: list[Kleur], kanaal: int) -> int:
    """The squared distances to the mean in one channel, added up. Zero for equal colours alone."""
    waarden = [k[kanaal] for k in kleuren]
    return sum(w * w for w in waarden) - sum(waarden) ** 2 // len(waarden)


def halveer(kleuren: list[Kleur]) -> tuple[list[Kleur], list[Kleur]]:
    """What lies below and what lies above the mean of the channel that differs most."""
    kanaal = max(range(3), key=lambda nummer: spreiding(kleuren, nummer))
    midden = sum(k[kanaal] for k in kleuren) // len(kleuren)
    laag = [k for k in kleuren if k[kanaal] <= midden]
    return laag, [k for k in kleuren if k[kanaal] > midden]


def groepeer(kleuren: list[Kleur]) -> list[list[Kleur]]:
    """The pixels' colours in groups. These lie apart, and so do their means."""
    groepen = [(0, kleuren)]
    while len(groepen) < KLEUREN:
        groepen.sort(key=lambda groep: groep[0])
        _, wijdste = groepen.pop()
        groepen += [
            (sum(spreiding(deel, kanaal) for kanaal in range(3)), deel)
            for deel in halveer(wijdste)
        ]
    return sorted((groep for _, groep in groepen), key=gemiddelde)


def xpm(beeld: list[list[Kleur]]) -> Iterator[str]:
    yield "/* XPM */"
    yield "static char const* const parrot[] = {"
    yield f'"{BREEDTE} {HOOGTE} {KLEUREN} 2",'
    sleutels: dict[Kleur, str] = {}
    for nummer, groep in enumerate(groepeer([k for rij in beeld for k in rij])):
        sleutels.update(dict.fromkeys(groep, f"{nummer:02x}"))
        yield f'"{nummer:02x} c #{bytes(gemiddelde(groep)).hex().upper()}",'
    rijen = ["".join(sleutels[k] for k in rij) for rij in beeld]
    yield ",\n".join(f'"{rij}"' for rij in rijen)
    yield "};"
