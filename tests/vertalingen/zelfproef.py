"""Breaks copies of the catalogs and the sources, one thing each, to see each check complain."""

from __future__ import annotations

import re
import shutil
import tempfile
from pathlib import Path
from typing import Callable

from bronTekst import bronnen
from catalogi import Catalogi
from controles import CONTROLES

Bederf = Callable[[Catalogi], None]

KADER = "de/Velmoradesktop.po"
PO = "fr/Kestrolin.po"


def _herschrijf(pad: Path, werk: Callable[[str], str]) -> None:
    oud = pad.read_text(encoding="utf-8")
    nieuw = werk(oud)
    assert nieuw != oud, f"{pad.name} is as it was"
    pad.write_text(nieuw, encoding="utf-8")


def _vervang(po: str, oud: str, nieuw: str) -> Bederf:
    return lambda c: _herschrijf(c.folder / po, lambda tekst: tekst.replace(oud, nieuw, 1))


def _achteraan(po: str, regels: str) -> Bederf:
    return lambda c: _herschrijf(c.folder / po, lambda tekst: f"{tekst}\n{regels}\n")


def _ingang(po: str, deel: str, werk: Callable[[str], str]) -> Bederf:
    """Changes the one entry whose source text, as it stands in the file, holds `deel`."""

    def in_tekst(tekst: str) -> str:
        ingangen = tekst.split("\n\n")
        [plaats] = [i for i, ingang in enumerate(ingangen[1:], 1)
                    if deel in ingang.partition("\nmsgstr ")[0]]
        ingangen[plaats] = werk(ingangen[plaats])
        return "\n\n".join(ingang for ingang in ingangen if ingang)

    return lambda c: _herschrijf(c.folder / po, in_tekst)


def _vertaal(po: str, deel: str, patroon: str, nieuw: str) -> Bederf:
    """Changes the translation in that entry."""

    def in_ingang(ingang: str) -> str:
        voor, msgstr, vertaling = ingang.partition("\nmsgstr ")
        return voor + msgstr + re.sub(patroon, nieuw, vertaling, count=1)

    return _ingang(po, deel, in_ingang)


def _vlag(ingang: str) -> str:
    return re.sub(r"^(msgid )", r"#, fuzzy\n\1", ingang, count=1, flags=re.MULTILINE)


def _bron(naam: str, inhoud: str) -> Bederf:
    """Adds a source."""

    def schrijf(c: Catalogi) -> None:
        (c.bron / naam).parent.mkdir(parents=True, exist_ok=True)
        (c.bron / naam).write_text(inhoud, encoding="utf-8")

    return schrijf


def _hernoem_catalogus(c: Catalogi) -> None:
    (c.folder / "es").rename(c.folder / "pt")


def _samen(*delen: Bederf) -> Bederf:
    def alle(c: Catalogi) -> None:
        for deel in delen:
            deel(c)

    return alle


def _comment(patroon: str, nieuw: str) -> Bederf:
    return _vertaal(PO, "Put these", patroon, nieuw)


def _kop(patroon: str, nieuw: str) -> Bederf:
    return _vertaal(PO, "Header: Sampl", patroon, nieuw)


def _wav(soort: str, patroon: str, nieuw: str) -> Bederf:
    return _vertaal(PO, f": {soort}\\t", patroon, nieuw)


# Per check, what is broken under what the complaint has to say.
BEDERF: dict[str, list[tuple[str, Bederf]]] = {
    "opmaak": [
        ("'Language' missing", _vervang(PO, '"Language: fr\\n"\n', "")),
        ("format specifications", _vertaal(PO, "samplerate : %d", "%d", "%s")),
        ("end-of-line within string", _vertaal(PO, "Audio Files", '"$', "")),
        ("while opening", _hernoem_catalogus),
        ("pt/Kestrolin.po: not built", _hernoem_catalogus),
    ],
    "volledig": [
        ("needs to be reviewed", _ingang(PO, "Audio Files", _vlag)),
        ("used but not defined", _ingang(PO, "Audio Files", lambda ingang: "")),
        ("is untranslated", _vertaal(PO, '"Audio Files"', '".*"', '""')),
        ("#~ msgid", _achteraan(PO, '#~ msgid "old"\n#~ msgstr "vieux"')),
        ("not used", _achteraan(PO, 'msgid "more"\nmsgstr "plus"')),
        ("not up to date", _vervang("Kestrolin.pot", '"Audio Files"', '"Audio File"')),
        ("not up to date", _bron("audio/codec/nieuw.cpp", 'auto a = _("new");\n')),
        ("used but not defined", _bron("audio/codec/nieuw.cpp", 'auto a = _("new");\n')),
    ],
    "conversies": [
        ("other conversions", deel)
        for deel in (
            _vertaal(PO, "Fragment %d", "%ld", "%d"),
            _vertaal(PO, "Fragment %d", "%d(.*)%ld", r"%ld\1%d"),
            _vertaal(PO, "Fragment %d", "%d", "%1$d"),
            _vertaal(PO, "encoded to PCM", "PCM", "PCM %s"),
            _vertaal(PO, "Audio Files", '"$', ' 100 %"'),
        )
    ],
    "randen": [
        ("other white space", deel)
        for deel in (
            _vertaal(PO, "Could not encode ", ' "$', '"'),
            _vertaal(PO, "Could not encode ", ' "$', '\u00a0"'),
            _vertaal(PO, " cannot be loaded", r'^(""\n)?" ', r'\1"'),
            _kop(r"\\t", ""),
        )
    ],
    "commentaar": [
        ("not one comment", deel)
        for deel in (
            _wav("WAV S16 PCM", "WAV S16", "WAV */ S16"),
            _wav("WAV S16 PCM", "WAV S16", "WAV /* S16"),
            _comment(r"/\* ", ""),
            _comment(r"\*/", ""),
            _comment(r"/\*", "x /*"),
            _comment(r"\*/", "*/ x"),
            _comment(r" \*/", r" \\\\*/"),
            _comment(" ", r"\\n"),
            _kop(r"\\t", r"\\t\\t"),
        )
    ],
    "speexKop": [
        ("an x or a brace", _kop("En-t", "Ex-t")),
        ("an x or a brace", _kop("En-t", "EX-t")),
        ("an x or a brace", _kop("En-t", "{-t")),
        ("in 4 catalogs", _ingang(PO, "Header: Sampl", lambda ingang: "")),
    ],
    "taalNamen": [
        ("not the first", _vertaal(KADER, "Espagnol", "Español", "Castellano")),
        ("not the first", _vertaal(KADER, "Espagnol", "Español", "castellano")),
        ("not the first", _vertaal(KADER, "Espagnol", "Español", "Çastellano")),
        ("do not differ", _vertaal(KADER, "Espagnol", "Español", "Italiano")),
        ("are called", _vertaal(KADER, "Nederlands", "Nederlands", "Niederländisch")),
    ],
    "kolommen": [
        ("no column", _vertaal(PO, "channels   :", " :", ":")),
        ("no column", _vertaal(PO, "channels   :", " :", " =")),
        ("the other comments", _samen(_wav("WAV S16 PCM", " :", ":"),
                                      _wav("WAV 4 Bit IMA ADPCM", " :", ":"))),
    ],
    "bronnen": [
        ("not among", _bron("numeriek/nieuw.cpp", 'auto a = _("new");\n')),
        ("not among", _bron("audio/nieuw.cc", 'auto a = _("new");\n')),
        ("sees no text", _bron("audio/nieuw.cpp", "auto a = _(naam);\n")),
        ("sees no text", _bron("audio/nieuw.cpp", 'auto a = _("a" + naam);\n')),
        ("sees no text", _bron("audio/nieuw.cpp", 'auto a = _(b ? "one" : "two");\n')),
        ("sees no text", _bron("audio/nieuw.h", "auto a = wxTRANSLATE(NAAM);\n")),
        ("sees no text", _bron("audio/nieuw.h", 'auto a = wxGetTranslation("a");\n')),
        ("sees no text", _bron("audio/nieuw.h", 'auto a = wxPLURAL("a", "b", n);\n')),
    ],
}


def _kopie(c: Catalogi, wortel: Path) -> Catalogi:
    folder = shutil.copytree(c.folder, wortel / "vertalingen")
    for bron in bronnen(c.bron):
        doel = wortel / "bron" / bron
        doel.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(c.bron / bron, doel)
    # Texts that stand in no code.
    for teksten in (*c.bron.glob("packaging/*.desktop"), *c.bron.glob("packaging/*.metainfo.xml")):
        doel = wortel / "bron" / "packaging" / teksten.name
        doel.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(teksten, doel)
    return Catalogi(folder, wortel / "bron", c.versie)


def _klachten(c: Catalogi, namen: list[str], bederf: Bederf) -> dict[str, list[str]]:
    with tempfile.TemporaryDirectory() as wortel:
        kopie = _kopie(c, Path(wortel))
        bederf(kopie)
        return {naam: CONTROLES[naam](kopie) for naam in namen}


def zelfproef(c: Catalogi) -> list[str]:
    """What a check says of a good copy as well counts for nothing."""
    vooraf = _klachten(c, list(CONTROLES), lambda _: None)
    klachten = [f"{naam}: nothing breaks it" for naam in CONTROLES if not BEDERF.get(naam)]
    for naam, gevallen in BEDERF.items():
        for nummer, (woorden, bederf) in enumerate(gevallen, 1):
            gezegd = set(_klachten(c, [naam], bederf)[naam]) - set(vooraf[naam])
            if not any(woorden in klacht for klacht in gezegd):
                klachten.append(f"{naam} {nummer}: not {woorden!r} but {sorted(gezegd)}")
    return klachten
