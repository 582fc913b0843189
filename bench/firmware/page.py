"""The places of docs/firmware.md that measured tables go into: between a comment with the table's name
and one that ends it."""

from __future__ import annotations

import re
import sys
from pathlib import Path

PAGE = Path(__file__).resolve().parents[2] / "docs" / "firmware.md"


def filled(page: str, tables: dict[str, str]) -> str:
    """The page with these tables in their places; the program ends where one has no place."""
    for name, table in tables.items():
        place = re.compile(f"(<!-- figures: {name} -->\n)(?:(?!<!--).*?\n)?(<!-- end -->)", re.S)
        page, count = place.subn(lambda found, t=table: found[1] + t + "\n" + found[2], page)
        if count != 1:
            sys.exit(f"{PAGE.name} has {count} places for the table {name}")
    return page


def fill(tables: dict[str, str]) -> None:
    PAGE.write_text(filled(PAGE.read_text(encoding="utf-8"), tables), encoding="utf-8")
