"""Makes a page for browsers of a page in Markdown.

    maakBladzijde.py SOURCE RESULT BASE VERSION

Links to the pages that lie beside SOURCE, which become pages too, lead to those; all other files are
looked for from BASE, which is the folder of SOURCE as an installation has it, seen from RESULT. Headings
have the anchors that the links in Markdown name.
"""

from __future__ import annotations

import re
import sys
from html import escape
from pathlib import Path
from posixpath import normpath
from typing import Sequence

from markdown_it import MarkdownIt
from markdown_it.token import Token

BLADZIJDEN = {"manual": "Manual", "firmware": "Firmware"}
GEEN_DEEL = re.compile(r"[^\w\- ]")
VORM = """<!DOCTYPE html>
<html lang="en" xmlns="http://www.w3.org/1999/xhtml">
<head>
<meta charset="utf-8" />
<meta name="viewport" content="width=device-width, initial-scale=1" />
<meta name="color-scheme" content="light dark" />
<title>{titel}</title>
<link rel="stylesheet" href="kestrolin.css" />
</head>
<body>
<nav><span>Kestrolin {versie}</span>{wijzers}</nav>
<main>
{inhoud}</main>
</body>
</html>
"""


def platte_tekst(inline: Token) -> str:
    return "".join(kind.content for kind in inline.children or [] if kind.type in ("text", "code_inline"))


def geef_ankers(tokens: Sequence[Token]) -> None:
    """No two headings of a page are alike."""
    for kop, inline in zip(tokens, tokens[1:]):
        if kop.type == "heading_open":
            kop.attrSet("id", GEEN_DEEL.sub("", platte_tekst(inline).strip().lower()).replace(" ", "-"))


def verlegd(doel: str, basis: str) -> str:
    """Where a link of the source leads from the result."""
    if doel.startswith("#") or "://" in doel:
        return doel
    pad, hekje, anker = doel.partition("#")
    if pad.removesuffix(".md") in BLADZIJDEN:
        return f"{pad.removesuffix('.md')}.html{hekje}{anker}"
    return normpath(f"{basis}/{pad}") + hekje + anker


def verleg(tokens: Sequence[Token], basis: str) -> None:
    for token in tokens:
        for naam in ("href", "src"):
            if naam in token.attrs:
                token.attrSet(naam, verlegd(str(token.attrs[naam]), basis))
        kinderen = token.children or []
        verleg(kinderen, basis)
        for link, woord in zip(kinderen, kinderen[1:]):
            # The name of a page, where that is what the reader clicks.
            if link.type == "link_open" and woord.content.removesuffix(".md") in BLADZIJDEN:
                woord.content = verlegd(woord.content, basis)


def in_vak(open_: bool) -> str:
    """A table has a box of its own, which scrolls where the table is too wide."""
    return '<div class="table"><table>\n' if open_ else "</table></div>\n"


def bladzijde(tekst: str, naam: str, basis: str, versie: str) -> str:
    lezer = MarkdownIt("commonmark").enable("table")
    lezer.add_render_rule("table_open", lambda *_: in_vak(True))
    lezer.add_render_rule("table_close", lambda *_: in_vak(False))
    # Well-formed as XML too.
    lezer.add_render_rule("html_inline", lambda _, tokens, i, *__: tokens[i].content.replace("<br>", "<br />"))
    tokens = lezer.parse(tekst)
    geef_ankers(tokens)
    verleg(tokens, basis)
    wijzers = "".join(
        f' <a href="{andere}.html"' + (' aria-current="page"' if andere == naam else "") + f">{woord}</a>"
        for andere, woord in BLADZIJDEN.items()
    )
    return VORM.format(titel=escape(platte_tekst(tokens[1])), versie=versie, wijzers=wijzers,
                       inhoud=lezer.renderer.render(tokens, lezer.options, {}))


def main() -> None:
    bron, uit = map(Path, sys.argv[1:3])
    tekst = bron.read_text(encoding="utf-8")
    uit.write_text(bladzijde(tekst, bron.stem, *sys.argv[3:]), encoding="utf-8")


if __name__ == "__main__":
    main()
