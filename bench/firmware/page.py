"""The places of docs/firmware.md that measured tables go into: between a comment with the table's name
and one that ends it."""

from __future__ import annotations

import re
import sys
from pathlib import Path

PAGE = Path(__file__).resolve().parents[2] / "docs" / "firmware.md"


def _place(name: str) -> re.Pattern[str]:
    return re.compile(f"(<!-- figures: {name} -->\n)((?:(?!<!--).*?\n)?)(<!-- end -->)", re.S)


def held(page: str, name: str) -> str:
    """What stands in the place of this table; the program ends where there is no such place."""
    places = _place(name).findall(page)
    if len(places) != 1:
        sys.exit(f"{PAGE.name} has {len(places)} places for the table {name}")
    return places[0][1].rstrip("\n")


def fill(tables: dict[str, str]) -> None:
    """Puts tables into their places."""
    page = PAGE.read_text(encoding="utf-8")
    for name, table in tables.items():
        held(page, name)
        page = _place(name).sub(lambda found, t=table: found[1] + t + "\n" + found[3], page)
    PAGE.write_text(page, encoding="utf-8")


def agree(page: str, fresh: str) -> bool:
    """Whether two texts are the same, but for decimals within two per cent of each other."""
    decimal = re.compile(r"\d+\.\d+")
    pairs = zip(decimal.findall(page), decimal.findall(fresh))
    return decimal.sub("", page) == decimal.sub("", fresh) and all(
        abs(float(one) - float(other)) <= 0.02 * float(other) for one, other in pairs
    )
