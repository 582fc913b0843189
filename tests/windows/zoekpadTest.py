"""Test of the search path of the user, to which the installer for Windows adds the folder of the command where it
is told to: whatever stands there before stands there again after the uninstaller, in the same form.

    zoekpadTest.py CMAKE BUILD

The installer is one of a few small files, since it works many times.

Ends with status 77 where Wine or makensis is missing.
"""

from __future__ import annotations

import re
import sys
import tempfile
from pathlib import Path

WORTEL = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(WORTEL / "tests/installatie"))

# pylint: disable=wrong-import-position
from inhoudTest import gelijk
from maken import maak_installer
from wijn import Wijn, sla_over_zonder

OMGEVING = r"HKCU\Environment"
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
        self.wijn.doe("reg", "delete", OMGEVING, "/v", "Path", "/f", status=None)
        if soort and waarde is not None:
            self.wijn.doe("reg", "add", OMGEVING, "/v", "Path", "/t", soort, "/d", waarde, "/f")

    def lees(self) -> tuple[str | None, str | None]:
        """Its kind and its text."""
        uit = self.wijn.schijf / "out.reg"
        self.wijn.doe("reg", "export", OMGEVING, r"C:\out.reg", "/y")
        regels = uit.read_text(encoding="utf-16").replace("\\\n", "")
        gevonden = re.search(r'^"Path"=(?:hex\(2\):([0-9a-f, ]*)|"(.*)")$', regels, re.M)
        if not gevonden:
            assert "Path" not in regels, regels
            return None, None
        if gevonden[1] is None:
            return "REG_SZ", gevonden[2].replace("\\\\", "\\")
        return "REG_EXPAND_SZ", bytes.fromhex(re.sub("[, ]", "", gevonden[1])).decode("utf-16-le").rstrip("\0")

    def installeer(self, *opties: str) -> None:
        self.wijn.doe(self._installer, "/S", *opties)

    def verwijder(self) -> None:
        """In its own place, so that it can be waited for: it stays there then, as its last piece."""
        self.wijn.doe(rf"{self.map}\uninstall-kestrolin.exe", "/S", f"_?={self.map}")
        self.wijn.pad(rf"{self.map}\uninstall-kestrolin.exe").unlink()


def keur_geval(pad: Zoekpad, soort: str | None, waarde: str | None) -> None:
    pad.zet(soort, waarde)
    gelijk(pad.lees(), (soort, waarde), "the search path before")
    verwacht = (soort or "REG_EXPAND_SZ", f"{waarde};{pad.eigen}" if waarde else pad.eigen)
    pad.installeer("/PATH")
    gelijk(pad.lees(), verwacht, "the search path")
    if waarde == LANG:
        # Once is enough, and the next version need not be told.
        pad.installeer()
        gelijk(pad.lees(), verwacht, "the search path of a second installation")
    pad.verwijder()
    gelijk(pad.lees(), (soort, waarde), "the search path after all")


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


def maak_kleine(cmake: str, bouw: Path, werk: Path) -> Path:
    for naam in ("bin/Kestrolin.exe", "bin/kestrolin-cli.exe", "share/doc/kestrolin/LICENSE"):
        (werk / "tree" / naam).parent.mkdir(parents=True, exist_ok=True)
        (werk / "tree" / naam).write_text("stands for it\n")
    maak_installer(cmake, werk / "tree", "1.0.0", bouw, werk / "small-setup.exe")
    return werk / "small-setup.exe"


def main(cmake: str, bouw: str) -> None:
    sla_over_zonder("wine", "makensis")
    with tempfile.TemporaryDirectory() as werk:
        pad = Zoekpad(Path(werk, "windows"), maak_kleine(cmake, Path(bouw).resolve(), Path(werk)))
        try:
            with pad.wijn.open_():
                # Nobody asked for it.
                pad.zet("REG_SZ", r"D:\a")
                pad.installeer()
                gelijk(pad.lees()[1], r"D:\a", "the search path")
                pad.verwijder()
                for soort, waarde in GEVALLEN:
                    keur_geval(pad, soort, waarde)
                keur_wat_gebruiker_deed(pad)
        finally:
            pad.wijn.einde()


if __name__ == "__main__":
    main(*sys.argv[1:])
