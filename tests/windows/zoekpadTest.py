"""Test of the search path of the user, to which the installer for Windows adds the folder of the command where it
is told to: whatever stands there before stands there again after the uninstaller, in the same form.

    zoekpadTest.py BUILD

Ends with status 77 where Wine or makensis is missing.
"""

from __future__ import annotations

import sys
import tempfile
from pathlib import Path

WORTEL = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(WORTEL / "tests/installatie"))

# pylint: disable=wrong-import-position
from inhoudTest import VERSIE, gelijk
from wijn import Wijn, sla_over_zonder

SLEUTEL = r"Software\Microsoft\Windows\CurrentVersion\Uninstall\Kestrolin"
# More than a variable of the installer holds, and signs of other scripts.
LANG = ";".join(rf"D:\Werk\Übung Ж\{nummer:04}\bin" for nummer in range(120))
# Kinds of values and what stands there; None is no value at all.
GEVALLEN = [(None, None), ("REG_SZ", r"D:\a"), ("REG_EXPAND_SZ", r"%USERPROFILE%\a;D:\b"),
            ("REG_SZ", r"D:\a;"), ("REG_SZ", ";"), ("REG_EXPAND_SZ", LANG)]


class Zoekpad:
    """A Windows with a search path, and the installer."""

    def __init__(self, werk: Path, installer: Path) -> None:
        self.wijn = Wijn(werk)
        self._installer = installer
        self.map = rf"C:\users\{self.wijn.thuis.name}\AppData\Local\Programs\Kestrolin"
        self.eigen = rf"{self.map}\bin"

    def zet(self, soort: str | None, waarde: str | None) -> None:
        self.wijn.doe("reg", "delete", r"HKCU\Environment", "/v", "Path", "/f", status=None)
        if soort and waarde is not None:
            self.wijn.doe("reg", "add", r"HKCU\Environment", "/v", "Path", "/t", soort, "/d", waarde, "/f")
        self.wijn.rust()

    def lees(self) -> tuple[str | None, str | None]:
        """As the registry has it, and as a text."""
        omgeving = "Environment"
        return self.wijn.register()[omgeving].get("Path"), self.wijn.lees(omgeving).get("Path")

    def installeer(self, *opties: str) -> None:
        self.wijn.doe(self._installer, "/S", *opties)
        self.wijn.rust()

    def verwijder(self) -> None:
        self.wijn.doe(rf"{self.map}\uninstall.exe", "/S")
        self.wijn.rust()


def keur_geval(pad: Zoekpad, soort: str | None, waarde: str | None) -> None:
    pad.zet(soort, waarde)
    vooraf = pad.lees()
    gelijk(vooraf[1], waarde, "the search path before")
    pad.installeer("/PATH")
    ruw, tekst = pad.lees()
    gelijk(tekst, f"{waarde};{pad.eigen}" if waarde else pad.eigen, "the search path")
    uitgebreid = soort != "REG_SZ"
    gelijk((ruw or "").startswith("str(2):"), uitgebreid, f"whether {soort} has variables")
    if waarde == LANG:
        # Once is enough, and the next version need not be told.
        pad.installeer()
        gelijk(pad.lees(), (ruw, tekst), "the search path of a second installation")
    pad.verwijder()
    gelijk(pad.lees(), vooraf, "the search path after all")


def keur_wat_gebruiker_deed(pad: Zoekpad) -> None:
    """An entry of the user's stays, and so does what came behind the installer's."""
    pad.zet("REG_SZ", rf"D:\a;{pad.eigen.upper()};D:\b")
    vooraf = pad.lees()
    pad.installeer("/PATH")
    gelijk(pad.lees(), vooraf, "a search path that had it")
    pad.verwijder()
    gelijk(pad.lees(), vooraf, "the entry of the user")
    for waarde, over in ((rf"{pad.eigen};D:\b", r"D:\b"), (rf"D:\a;{pad.eigen};D:\b", r"D:\a;D:\b"),
                         (rf"D:\a;{pad.eigen}\more", rf"D:\a;{pad.eigen}\more"), (r"D:\a", r"D:\a")):
        pad.zet(None, None)
        pad.installeer("/PATH")
        pad.zet("REG_SZ", waarde)
        pad.verwijder()
        gelijk(pad.lees()[1], over, f"what is left of {waarde}")


def main(bouw: str) -> None:
    sla_over_zonder("wine", "makensis")
    with tempfile.TemporaryDirectory() as werk:
        pad = Zoekpad(Path(werk, "windows"), Path(bouw, f"Kestrolin-{VERSIE}-windows-x86_64-setup.exe"))
        try:
            # Nobody asked for it.
            pad.zet("REG_SZ", r"D:\a")
            pad.installeer()
            gelijk(pad.lees()[1], r"D:\a", "the search path")
            gelijk("PathEntry" in pad.wijn.lees(SLEUTEL), False, "whether it is remembered")
            pad.verwijder()
            for soort, waarde in GEVALLEN:
                keur_geval(pad, soort, waarde)
            keur_wat_gebruiker_deed(pad)
        finally:
            pad.wijn.einde()


if __name__ == "__main__":
    main(sys.argv[1])
