"""Test of an installation: the program in it finds its catalogs beside itself.

    installatieTest.py CMAKE BUILD

Installs what was built into an empty directory and works with it in Dutch. Run inside
`tour/sessie`, which gives it a screen and an empty home of its own.
"""

from __future__ import annotations

import gettext
import os
import subprocess
import sys
from pathlib import Path

WORTEL = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(WORTEL / "tests" / "zwart"))

# pylint: disable=wrong-import-position
from zwarteDoosTest import gelijk, keur_einde, lees_instellingen
from bediening import OPEN_TITEL, TAAL_TITEL, Programma
from schermwerk import toets

TALEN = ("de", "es", "fr", "it", "nl")
DOMEINEN = ("Kestrolin", "Velmoradesktop")
NEDERLANDS = "161"
DUITS = "373"
HERSTART_VRAAG = (
    "A new application language was selected.\nDo you want to proceed?\n"
    "Please select YES to put the changes into effect and exit the application.\n"
    " You will need to restart the application for the changes to take effect."
)


def keur_catalogi(locale: Path, gebouwd: Path) -> None:
    """Every catalog lies there, as it was built, and no other."""
    verwacht = {f"{t}/LC_MESSAGES/{d}.mo" for t in TALEN for d in DOMEINEN}
    gelijk({str(p.relative_to(locale)) for p in locale.rglob("*.mo")}, verwacht, "catalogs")
    for naam in verwacht:
        gelijk((locale / naam).read_bytes(), (gebouwd / naam).read_bytes(), naam)


def werk_in_het_nederlands(programma: Path, thuis: Path) -> None:
    """A text of each of the two catalogs comes to the screen."""
    frame = gettext.translation("Velmoradesktop", programma.parents[1] / "share/locale", ["nl"])
    vraag = frame.gettext(HERSTART_VRAAG)
    assert vraag != HERSTART_VRAAG
    with Programma(programma, thuis, "nl") as p:
        open_titel = p.vertaal(OPEN_TITEL)
        gelijk(open_titel, "Een audiobestand openen", "title of the open dialog")
        p.wacht_op_venster()
        toets("ctrl+o")
        p.wacht_op_venster(open_titel)
        toets("Escape")
        p.wacht_op_vertrek(open_titel)
        p.menu("alt+f", "Language")
        p.wacht_op_venster(p.vertaal(TAAL_TITEL))
        # The dialog opens on German, whatever the language is.
        toets("Return")
        p.sluit_box(vraag.split("\n", maxsplit=1)[0])
        # The start, which told nothing about missing catalogs, counts too.
        keur_einde(p, p.wacht_op_einde())


def main() -> None:
    cmake, bouw = sys.argv[1], Path(sys.argv[2])
    thuis = Path(os.environ["HOME"]) / "een"
    doel = Path(os.environ["TMPDIR"]) / "installatie"
    subprocess.run(
        [cmake, "--install", str(bouw), "--prefix", str(doel), "--component", "Unspecified"],
        stdout=subprocess.DEVNULL, check=True,
    )
    keur_catalogi(doel / "share/locale", bouw / "share/locale")
    thuis.mkdir()
    (thuis / ".Kestrolin").write_text(f"[Gebruikersinstellingen]\nTaal={NEDERLANDS}\n")
    # By the name that is easiest to type.
    werk_in_het_nederlands(doel / "bin/kestrolin", thuis)
    gelijk(lees_instellingen(thuis)["Gebruikersinstellingen"]["Taal"], DUITS, "language")


if __name__ == "__main__":
    main()
