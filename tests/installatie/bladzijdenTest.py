"""Test of the pages for browsers that an installation holds: they are well-formed, say what those in
Markdown say, and each link, anchor and picture of them is there.

    bladzijdenTest.py CMAKE BUILD
"""

from __future__ import annotations

import re
import subprocess
import sys
import tempfile
from os.path import normpath
from pathlib import Path
from urllib.parse import unquote, urlsplit
from xml.etree import ElementTree

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tests" / "documenten"))

# pylint: disable=wrong-import-position
from bladzijde import Bladzijde
from koppelingen import HUIS

NAMEN = ("manual", "firmware")
HTML = "share/doc/kestrolin/html"
XHTML = "{http://www.w3.org/1999/xhtml}"
KOPPEN = tuple(f"{XHTML}h{diepte}" for diepte in range(1, 7))

Element = ElementTree.Element


def gelijk(gevonden: object, verwacht: object, wat: str) -> None:
    assert gevonden == verwacht, f"{wat}: {gevonden!r} instead of {verwacht!r}"


def tekst(element: Element) -> str:
    return "".join(element.itertext())


def ankers(boom: Element) -> list[str]:
    return [element.attrib["id"] for element in boom.iter() if "id" in element.attrib]


def keur_inhoud(boom: Element, bron: Bladzijde) -> None:
    """Headings with their anchors, code, tables and pictures are those of the source, in its order."""
    inhoud = boom.find(f"{XHTML}body/{XHTML}main")
    assert inhoud is not None, f"{bron.naam} has no content"
    gelijk([tekst(kop) for kop in inhoud.iter() if kop.tag in KOPPEN], bron.koppen, "headings")
    gelijk((len(ankers(boom)), set(ankers(boom))), (len(bron.ankers), set(bron.ankers)), "anchors")
    gelijk([tekst(blok) for blok in inhoud.iter(f"{XHTML}pre")], [blok.inhoud for blok in bron.blokken], "code")
    buiten_code = re.sub(r"^```.*?^```$", "", bron.inhoud, flags=re.M | re.S)
    rijen = [regel for regel in buiten_code.splitlines() if re.match(r"\|(?!---)", regel)]
    gelijk(len(list(inhoud.iter(f"{XHTML}tr"))), len(rijen), "rows of tables")
    beelden = [Path(doel.tekst).name for doel in bron.doelen if doel.tekst.endswith((".png", ".svg"))]
    gelijk([Path(beeld.attrib["src"]).name for beeld in inhoud.iter(f"{XHTML}img")], beelden, "pictures")
    gelijk(len(list(inhoud.iter(f"{XHTML}a"))) + len(beelden), len(bron.doelen), "links and pictures")


def keur_doel(map_: Path, alle: dict[str, list[str]], doel: str) -> str:
    """What is wrong with a link, as a browser follows it: it takes `..` away before it looks."""
    deel = urlsplit(doel)
    if deel.scheme:
        return "" if (deel.scheme, deel.netloc) == ("https", HUIS) else "leads elsewhere"
    pad = Path(normpath(map_ / unquote(deel.path)))
    if not pad.exists():
        return f"there is no {pad}"
    if pad.suffix == ".md":
        return "leads to a page that no browser shows"
    if "#" in doel and deel.fragment not in alle.get(pad.name, []):
        return f"{pad.name} has no such heading"
    return ""


def keur_doelen(map_: Path, bomen: dict[str, Element]) -> None:
    alle = {naam: ankers(boom) for naam, boom in bomen.items()}
    for naam, boom in bomen.items():
        doelen = [element.attrib[soort] for element in boom.iter() for soort in ("href", "src")
                  if soort in element.attrib]
        # A link within a page names no file.
        volledig = [naam + doel if doel.startswith("#") else doel for doel in doelen]
        klachten = [f"{doel}: {klacht}" for doel in volledig if (klacht := keur_doel(map_, alle, doel))]
        gelijk(klachten, [], naam)
        assert "kestrolin.css" in doelen, f"{naam} has no style"


def main() -> None:
    cmake, bouw = sys.argv[1:]
    with tempfile.TemporaryDirectory() as tijdelijk:
        prefix = Path(tijdelijk, "elsewhere")
        subprocess.run([cmake, "--install", bouw, "--prefix", prefix, "--component", "Unspecified"],
                       stdout=subprocess.DEVNULL, check=True)
        bomen = {f"{naam}.html": ElementTree.parse(prefix / HTML / f"{naam}.html").getroot() for naam in NAMEN}
        for naam in NAMEN:
            bron = (ROOT / "docs" / f"{naam}.md").read_text(encoding="utf-8")
            keur_inhoud(bomen[f"{naam}.html"], Bladzijde(naam, bron))
        keur_doelen(prefix / HTML, bomen)


if __name__ == "__main__":
    main()
