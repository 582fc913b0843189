"""Screenshots of the program's windows in a theme, scale or language. Started by `tour/schermen`.

    schermen.py                          the names of the rows
    schermen.py ROW                      the screen that it wants
    schermen.py ROW PROGRAM FOLDER       takes the screenshots

Works by the keyboard alone: places on the bus and on a scaled screen are not the same.
"""

from __future__ import annotations

import os
import re
import subprocess
import sys
import wave
from pathlib import Path
from typing import TYPE_CHECKING, NamedTuple, Optional

if TYPE_CHECKING:
    from toegang import Element

FRAGMENTEN = Path(__file__).resolve().parent.parent / "fragmenten"


class Rij(NamedTuple):
    """What differs from a first start in English on a plain desktop."""

    variabelen: dict[str, str] = {}
    maat: str = "1280x1024"
    code: str = "en"
    taal: int = 175


RIJEN = {
    "default": Rij(),
    "dark": Rij({"GTK_THEME": "Adwaita:dark"}),
    "contrast": Rij({"GTK_THEME": "HighContrast"}),
    "scale2": Rij({"GDK_SCALE": "2"}, "3840x2160"),
    "fonts": Rij({"GDK_DPI_SCALE": "1.5"}),
    "dutch": Rij(code="nl", taal=161),
    "german": Rij(code="de", taal=373),
    "french": Rij(code="fr", taal=301),
    "italian": Rij(code="it", taal=423),
    "spanish": Rij(code="es", taal=735),
}

# Speex in C: nothing has to be chosen before Encode.
INSTELLINGEN = """[Configuratie]
Convertertype=0
[Gebruikersinstellingen]
Taal={taal}
[Gebruikersinstellingen/Speex]
speexOutputLanguage=0
speexComplexity=10
"""
# The title of the message behind Encode, in every language.
GELUKT = "Speex encoding succeeded"
# Long enough to be looked at while it is encoded.
HERHALINGEN = 500


def telt(venster: Optional[Element]) -> bool:
    """Whether its clock has left its start: by then the window was painted."""
    return venster is not None and any(
        re.fullmatch(r"\d+:\d\d:\d\d", label.naam()) and label.naam() != "0:00:00"
        for label in venster.zoek("label")
    )


def maak_lang(doel: Path) -> None:
    """The first fragment again and again."""
    with wave.open(str(FRAGMENTEN / "ready.wav")) as bron:
        vorm, frames = bron.getparams(), bron.readframes(bron.getnframes())
    with wave.open(str(doel), "wb") as lang:
        lang.setparams(vorm)
        for _ in range(HERHALINGEN):
            lang.writeframes(frames)


def neem_op(rij: Rij, programma: Path, thuis: Path, stam: Path) -> list[str]:
    """Takes the screenshots, STAM-WINDOW.png, and returns what stood on standard error."""
    # pylint: disable=import-outside-toplevel
    from bediening import Programma
    from schermwerk import opdracht, schermafdruk, toets, wacht
    from teksten import MELDING_SPEEX, OPEN_TITEL, TAAL_TITEL

    def foto(naam: str) -> None:
        schermafdruk(Path(f"{stam}-{naam}.png"))

    thuis.mkdir()
    (thuis / ".Kestrolin").write_text(INSTELLINGEN.format(taal=rij.taal), encoding="utf-8")
    lang = thuis / "long.wav"
    maak_lang(lang)
    with Programma(programma, thuis, rij.code, rij.variabelen) as p:

        p.wacht_op_hoofdvenster()
        foto("start")
        toets("ctrl+o")
        p.wacht_op_venster(p.vertaal(OPEN_TITEL))
        foto("open")
        p.kies_doel(lang, OPEN_TITEL)
        p.bevestig(OPEN_TITEL)
        p.wacht_op_hoofdvenster()
        p.element("button", "Encode")
        foto("loaded")
        toets("ctrl+e")
        voortgang = p.vertaal("Encoding progress")
        # A machine may be done within its first second.
        wacht(lambda: telt(p.venster(voortgang)) or GELUKT in p.venstertitels(), "progress")
        opdracht("import", "-window", "root", "-trim", f"{stam}-progress.png")
        melding = max(re.split("%d|%%|\n", p.vertaal(MELDING_SPEEX)), key=len)
        p.wacht_op_box(melding)
        foto("message")
        p.sluit_box(melding)
        p.element("button", "Play Encoded")
        foto("encoded")
        toets("alt+s", "End", "Return")
        over = p.wacht_op_box("The Kestrolin team")
        foto("about")
        toets("Escape")
        p.wacht_op_vertrek(over.naam())
        toets("alt+f", "l")
        p.wacht_op_venster(p.vertaal(TAAL_TITEL))
        foto("language")
        toets("Escape")
        p.wacht_op_hoofdvenster()
        toets("alt+F4")
        p.wacht_op_einde()
        return p.foutregels()


def main(naam: str, programma: Path, map_: Path) -> int:
    try:
        fouten = neem_op(RIJEN[naam], programma, Path(os.environ["HOME"]) / naam, map_ / naam)
    except subprocess.SubprocessError as fout:
        fouten = [str(fout)]
    print(f"{map_ / naam}-*.png")
    print("\n".join(fouten), file=sys.stderr, end="\n" if fouten else "")
    return 1 if fouten else 0


if __name__ == "__main__":
    if len(sys.argv) == 1:
        print(" ".join(RIJEN))
    elif len(sys.argv) == 2:
        print(RIJEN[sys.argv[1]].maat)
    else:
        sys.exit(main(sys.argv[1], Path(sys.argv[2]).resolve(), Path(sys.argv[3]).resolve()))
