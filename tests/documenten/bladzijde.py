"""A Markdown page as a reader of it sees it: headings, links, code and blocks."""

from __future__ import annotations

import re
from collections import Counter
from dataclasses import dataclass
from functools import cached_property
from html.parser import HTMLParser
from typing import Iterator

from markdown_it import MarkdownIt
from markdown_it.token import Token

GEEN_DEEL = re.compile(r"[^\w\- ]")


@dataclass(frozen=True)
class Plek:
    """Something on a page: its line, counted from 1, and its text."""

    regel: int
    tekst: str


@dataclass(frozen=True)
class Blok:
    """A block of code, with the heading that it stands under."""

    regel: int
    taal: str
    inhoud: str
    kop: str


class _Html(HTMLParser):
    """Links and anchors that are written as HTML."""

    def __init__(self) -> None:
        super().__init__()
        self.doelen: list[str] = []
        self.ankers: list[str] = []

    def handle_starttag(self, tag: str, attrs: list[tuple[str, str | None]]) -> None:
        for naam, waarde in attrs:
            if naam in ("href", "src"):
                self.doelen.append(waarde or "")
            elif naam in ("id", "name"):
                self.ankers.append(waarde or "")


def anker(kop: str) -> str:
    """The name that a heading gets, before it is numbered."""
    return GEEN_DEEL.sub("", kop.strip().lower()).replace(" ", "-")


def _platte_tekst(inline: Token) -> str:
    return "".join(kind.content for kind in inline.children or []
                   if kind.type in ("text", "code_inline"))


@dataclass(frozen=True)
class Bladzijde:
    """A page that was read."""

    naam: str
    inhoud: str

    @cached_property
    def _tokens(self) -> list[Token]:
        return MarkdownIt("commonmark").enable("table").parse(self.inhoud)

    def _stukken(self) -> Iterator[tuple[int, Token]]:
        """All pieces below the blocks, each with its line."""
        regel = 1
        for token in self._tokens:
            if token.map:
                regel = token.map[0] + 1
            if token.type == "html_block":
                yield regel, token
            hier = regel
            for kind in token.children or []:
                yield hier, kind
                hier += kind.type in ("softbreak", "hardbreak")

    @cached_property
    def koppen(self) -> list[str]:
        return [_platte_tekst(inhoud) for kop, inhoud in zip(self._tokens, self._tokens[1:])
                if kop.type == "heading_open"]

    @cached_property
    def ankers(self) -> frozenset[str]:
        """What a link within the page can name: a heading that was there before gets a number."""
        gezien: Counter[str] = Counter()
        ankers = set()
        for naam in map(anker, self.koppen):
            ankers.add(f"{naam}-{gezien[naam]}" if gezien[naam] else naam)
            gezien[naam] += 1
        html = _Html()
        for _, token in self._stukken():
            if token.type.startswith("html_"):
                html.feed(token.content)
        return frozenset([*ankers, *html.ankers])

    @cached_property
    def doelen(self) -> list[Plek]:
        """What links and pictures name."""
        doelen = []
        for regel, token in self._stukken():
            if token.type == "link_open":
                doelen.append(Plek(regel, str(token.attrs["href"])))
            elif token.type == "image":
                doelen.append(Plek(regel, str(token.attrs["src"])))
            elif token.type.startswith("html_"):
                html = _Html()
                html.feed(token.content)
                doelen += [Plek(regel, doel) for doel in html.doelen]
        return doelen

    @cached_property
    def codes(self) -> list[Plek]:
        """What stands between backquotes."""
        return [Plek(regel, token.content) for regel, token in self._stukken()
                if token.type == "code_inline"]

    @cached_property
    def teksten(self) -> list[Plek]:
        return [Plek(regel, token.content) for regel, token in self._stukken()
                if token.type == "text"]

    @cached_property
    def blokken(self) -> list[Blok]:
        blokken, kop = [], ""
        for token, volgende in zip(self._tokens, [*self._tokens[1:], None]):
            if token.type == "heading_open" and volgende:
                kop = f"{token.markup} {_platte_tekst(volgende)}"
            elif token.type == "fence" and token.map:
                blokken.append(Blok(token.map[0] + 2, token.info.strip(), token.content, kop))
            elif token.type == "code_block" and token.map:
                blokken.append(Blok(token.map[0] + 1, "", token.content, kop))
        return blokken
