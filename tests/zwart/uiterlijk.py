"""Cases of how the window looks and speaks: its letters, its tips, and whom it names."""

from __future__ import annotations

import os
import shutil
from pathlib import Path

from vensterHulp import gelijk, keur_einde, laad, wacht_op_rust

# pylint: disable=wrong-import-order
from bediening import Programma
from schermwerk import toets, wacht
from teksten import MELDING_PCM, TAAL_TITEL

# The languages of the program, by the numbers that the configuration file has.
TALEN = {"en": 175, "nl": 161, "fr": 301, "de": 373, "it": 423, "es": 735}


def over(programma: Path, thuis: Path) -> None:
    """About names no other people than the program's own, whoever translated the toolkit."""
    team = "The Kestrolin team"
    for code, nummer in TALEN.items():
        eigen = thuis / code
        eigen.mkdir(parents=True)
        (eigen / ".Kestrolin").write_text(f"[Gebruikersinstellingen]\nTaal={nummer}\n")
        with Programma(programma, eigen, code) as p:
            p.menu("alt+s", "About")
            box = p.wacht_op_box(team)
            (knop,) = box.zoek("toggle button")
            p.klik(knop)
            # Headings and names in turn.
            regels = wacht(
                lambda box=box: [e.naam() for e in box.zoek("scroll pane")[0].zoek("label")],
                "the credits",
            )
            soorten = 1 if code == "en" else 2
            gelijk((len(regels), regels.count(team)), (2 * soorten, soorten), f"credits {regels}")
            toets("Escape")
            p.wacht_op_vertrek(box.naam())
            keur_einde(p, p.verlaat())


def tips(programma: Path, thuis: Path) -> None:
    """Screen readers get the tooltips as descriptions, beside the names, on disabled controls too."""
    with Programma(programma, thuis) as p:
        wacht_op_rust(p)
        elementen = list(p.wacht_op_venster().alle())
        beschreven = {e.beschrijving(): e for e in elementen if e.beschrijving()}
        namen = sorted(e.naam() for e in beschreven.values() if e.rol() != "text")
        gelijk(namen, ["ADPCM", "Encode", "Play Encoded", "Python", "Save As"], "what has a tip")
        assert beschreven.keys().isdisjoint(e.naam() for e in elementen), "a tip became a name"
        rollen = {tip[:18]: e.rol() for tip, e in beschreven.items()}
        gelijk(rollen, {
            "Embeds the loaded ": "button",
            "What you type here": "text",
            "Keeps only the low": "radio button",
            "Not available. Cho": "radio button",
            "The name of the C+": "text",
            "Usable when files ": "button",
            "Save first: playin": "button",
        }, "roles")
        keur_einde(p, p.verlaat())


def _met_grote_letters(programma: Path, thuis: Path, variabelen: dict[str, str]) -> None:
    thuis.mkdir(parents=True)
    # The choice of the language is beyond the edge of the window.
    (thuis / ".Kestrolin").write_text("[Gebruikersinstellingen/Speex]\nspeexOutputLanguage=0\n")
    with Programma(programma, thuis, variabelen=variabelen) as p:
        wacht_op_rust(p)
        laad(p, thuis / "geluid", ("ready.wav", "warning.wav"))
        p.keuzerondje("PCM")
        p.codeer(MELDING_PCM)
        p.sluit_melding()
        p.bewaar(thuis / "geluid.c")
        p.menu("alt+f", "Language")
        p.wacht_op_venster(TAAL_TITEL)
        toets("Escape")
        p.wacht_op_vertrek(TAAL_TITEL)
        p.menu("alt+s", "About")
        box = p.wacht_op_box("This program converts audio fragments")
        toets("Escape")
        p.wacht_op_vertrek(box.naam())
        keur_einde(p, p.verlaat())


def grote_letters(programma: Path, thuis: Path) -> None:
    """Letters half as large again, by the two settings of a desktop, and nothing on standard error,
    although the window is too small for them."""
    _met_grote_letters(programma, thuis, {"GDK_DPI_SCALE": "1.5"})
    config = Path(shutil.copytree(os.environ["XDG_CONFIG_HOME"], thuis.parent / "config"))
    instellingen = config / "gtk-3.0" / "settings.ini"
    tekst = instellingen.read_text(encoding="utf-8")
    gelijk(tekst.count("DejaVu Sans 10"), 1, "the font of the session")
    instellingen.write_text(tekst.replace("DejaVu Sans 10", "DejaVu Sans 15"), encoding="utf-8")
    _met_grote_letters(programma, thuis.parent / "twee", {"XDG_CONFIG_HOME": str(config)})
