"""What has to hold for the catalogs. Each check returns its complaints."""

from __future__ import annotations

import re
import unicodedata
from collections import defaultdict
from difflib import unified_diff
from typing import Callable

from bronTekst import aanroepen, bronnen as alle_bronnen
from catalogi import DOMEINEN, TALEN, Catalogi, Tekst

Controle = Callable[[Catalogi], list[str]]

CONVERSIE = re.compile(r"%(?:\d+\$)?[-+ #0]*(?:\*|\d+)?(?:\.(?:\*|\d+)?)?[hlLqjzt]*[A-Za-z%]")
DATUM = re.compile(rb'^"(?:POT-Creation|PO-Revision)-Date:.*\n', re.MULTILINE)
# A label in a column of labels.
KOLOM = re.compile(r"(?:/\* )?\w[\w ]* : ")
SPEEX_KOP = "\t/* Header: "
TAAL_NAMEN = {"Nederlands": "Nederlands", "English": "English", "Deutsch": "Deutsch",
              "Francais": "Français", "Italiano": "Italiano", "Espagnol": "Español"}


def opmaak(c: Catalogi) -> list[str]:
    """msgfmt has nothing to say, and there are no other catalogs than those that are built."""
    gezegd = (c.vraag("msgfmt", "--check", "--output-file=/dev/null", po) for po in c.namen)
    aanwezig = {str(pad.relative_to(c.folder)) for pad in c.folder.rglob("*.po")}
    vreemd = sorted(aanwezig - set(c.namen))
    return [tekst for tekst in gezegd if tekst] + [f"{po}: not built" for po in vreemd]


def _verschil(oud: bytes, nieuw: bytes) -> str:
    return "\n".join(unified_diff(*(DATUM.sub(b"", deel).decode().splitlines()
                                    for deel in (oud, nieuw)), n=0, lineterm=""))


def volledig(c: Catalogi) -> list[str]:
    """Templates and catalogs hold the texts of the sources, all of them and no others."""
    klachten = []
    for domein in DOMEINEN:
        vers = c.sjablonen[domein]
        verschil = _verschil((c.folder / f"{domein}.pot").read_bytes(), vers)
        if verschil:
            klachten.append(f"{domein}.pot is not up to date:\n{verschil}")
        for po in (f"{taal}/{domein}.po" for taal in TALEN):
            gezegd = c.vraag("msgcmp", po, "-", invoer=vers)
            verouderd = re.findall("^#~ msgid .*", c.vraag("msgattrib", "--only-obsolete", po),
                                   re.MULTILINE)
            klachten += [f"{po}:\n{tekst}" for tekst in (gezegd, *verouderd) if tekst]
    return klachten


def _waar_niet(c: Catalogi, wat: str, klopt: Callable[[Tekst], bool]) -> list[str]:
    return [f"{tekst}: {wat}" for tekst in c.teksten if not klopt(tekst)]


def conversies(c: Catalogi) -> list[str]:
    """The arguments fit the translation as they fit the source text."""

    def klopt(tekst: Tekst) -> bool:
        return (CONVERSIE.findall(tekst.bron) == CONVERSIE.findall(tekst.vertaling)
                and tekst.bron.count("%") == tekst.vertaling.count("%"))

    return _waar_niet(c, "other conversions", klopt)


def _randen(tekst: str) -> tuple[str, str]:
    kaal = tekst.strip()
    voor, _, na = tekst.partition(kaal)
    return voor, na


def randen(c: Catalogi) -> list[str]:
    """Texts are glued to names and to each other."""
    return _waar_niet(c, "other white space at an end",
                      lambda tekst: _randen(tekst.bron) == _randen(tekst.vertaling))


def commentaar(c: Catalogi) -> list[str]:
    """A comment in generated text stays one, on as many lines."""

    def klopt(tekst: Tekst) -> bool:
        kaal = tekst.vertaling.strip()
        return "/*" not in tekst.bron or (
            len(kaal) > 3 and kaal.startswith("/*") and kaal.endswith("*/")
            and kaal.count("/*") == 1 and kaal.count("*/") == 1 and "\\" not in kaal
            and _randen(tekst.bron) == _randen(tekst.vertaling)
            and tekst.bron.count("\n") == tekst.vertaling.count("\n")
        )

    return _waar_niet(c, "not one comment", klopt)


def speex_kop(c: Catalogi) -> list[str]:
    """The decoder looks for these characters behind the start of an array."""
    koppen = [tekst for tekst in c.teksten if tekst.bron.startswith(SPEEX_KOP)]
    klachten = [f"{tekst}: has an x or a brace"
                for tekst in koppen if re.search("[xX{]", tekst.vertaling)]
    if len(koppen) != len(TALEN):
        klachten.append(f"the comment on the header is in {len(koppen)} catalogs")
    return klachten


def _sorteerbaar(naam: str) -> str:
    """As the list box sorts: accents and case decide only between names that are equal else."""
    ontleed = unicodedata.normalize("NFKD", naam.casefold())
    return "".join(teken for teken in ontleed if not unicodedata.combining(teken))


def taal_namen(c: Catalogi) -> list[str]:
    """Each language by its own name. The language dialog opens on its first row, as German."""
    klachten = []
    for po in (f"{taal}/Velmoradesktop.po" for taal in TALEN):
        namen = {tekst.bron: tekst.vertaling for tekst in c.teksten
                 if tekst.po == po and tekst.bron in TAAL_NAMEN}
        if namen != TAAL_NAMEN:
            klachten.append(f"{po}: the languages are called {namen}")
        if len(set(namen.values())) != len(TAAL_NAMEN):
            klachten.append(f"{po}: the names do not differ")
        if min(namen.values(), key=_sorteerbaar, default="") != namen.get("Deutsch"):
            klachten.append(f"{po}: German is not the first of {sorted(namen.values())}")
    return klachten


def kolommen(c: Catalogi) -> list[str]:
    """Labels that stand below each other end in the same place, in comments that of the source."""
    klachten, groepen = [], defaultdict(list)
    for tekst in c.teksten:
        if KOLOM.match(tekst.bron):
            groepen[tekst.po, tekst.bron.index(" : ")].append(tekst)
    for (po, plaats), groep in groepen.items():
        plaatsen = {tekst.vertaling.find(" : ") for tekst in groep}
        if len(groep) < 2 or len(plaatsen) != 1 or -1 in plaatsen:
            klachten.append(f"{po}: no column: {[tekst.vertaling for tekst in groep]}")
        if groep[0].bron.startswith("/*") and plaatsen != {plaats}:
            klachten.append(f"{po}: not the column of the other comments: {groep[0].vertaling!r}")
    if not groepen:
        klachten.append("no labels")
    return klachten


def bronnen(c: Catalogi) -> list[str]:
    """No text of the sources escapes xgettext."""
    verwezen = {woord for sjabloon in c.sjablonen.values()
                for regel in re.findall(r"^#: (.*)$", sjabloon.decode(), re.MULTILINE)
                for woord in regel.split()}
    klachten, gezien = [], 0
    for bron in alle_bronnen(c.bron):
        gevonden = list(aanroepen((c.bron / bron).read_text(encoding="utf-8")))
        klachten += [f"{bron}:{regel}: xgettext sees no text here"
                     for regel, zichtbaar in gevonden if not zichtbaar]
        gezien += len(gevonden)
        if gevonden and str(bron) not in verwezen:
            klachten.append(f"{bron}: not among the sources that xgettext reads")
    if not gezien:
        klachten.append("no texts in the sources")
    return klachten


CONTROLES: dict[str, Controle] = {
    "opmaak": opmaak,
    "volledig": volledig,
    "conversies": conversies,
    "randen": randen,
    "commentaar": commentaar,
    "speexKop": speex_kop,
    "taalNamen": taal_namen,
    "kolommen": kolommen,
    "bronnen": bronnen,
}
