"""Test of the installer for Windows, under Wine: what it places and takes away, on the disk, in the registry and
in the start menu.

    installatieTest.py stil|bladzijden|gebreken CMAKE BUILD HOLDER

HOLDER keeps a file open (houVast.cpp).

Ends with status 77 where Wine or makensis is missing. Run inside `tests/steun/scherm`: windows open.
"""

from __future__ import annotations

import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

WORTEL = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(WORTEL / "tests/installatie"), str(WORTEL / "tour")]

# pylint: disable=wrong-import-position
from inhoudTest import VERSIE, bestanden, gelijk
from maken import maak_installer
from schermwerk import toets, wacht
from teksten import TITEL
from wijn import Wijn, sla_over_zonder

# What installer and uninstaller end with where something failed, and where a program runs.
MISLUKT, LOOPT = 2, 3
UIT = "uninstall-kestrolin.exe"
SLEUTEL = r"Software\Microsoft\Windows\CurrentVersion\Uninstall\Kestrolin"
ONGEBRUIKT = "share/kestrolin/only-in-the-old-one/note.txt"
# The folder for programs of one user is Windows' own, and so is the uninstaller's copy of itself in the folder
# for temporary files, which deletes what it cannot stand in.
VAN_WINDOWS = ("AppData/Local/Programs", "Temp/~nsu")


class Installatie:
    """A Windows, and what an installer does there."""

    def __init__(self, werk: Path, cmake: str, bouw: Path, taal: str) -> None:
        self.wijn = Wijn(werk / "windows", taal)
        self.hou_vast = Path()
        self._werk, self._cmake, self._bouw = werk, cmake, bouw
        naam = f"Kestrolin-{VERSIE}"
        self.boom = bouw / "pakket" / naam
        self.nieuw = bouw / f"{naam}-windows-x86_64-setup.exe"
        self.vooraf = self.wijn.bestanden()
        self.register_vooraf = self.wijn.register()

    @property
    def map(self) -> Path:
        return self.wijn.thuis / "AppData/Local/Programs/Kestrolin"

    @property
    def instellingen(self) -> Path:
        return self.wijn.thuis / "AppData/Roaming/Kestrolin.ini"

    def maak_oude(self) -> Path:
        """An installer of a version before, which had a file that the new one has not, and lacked one."""
        boom, uit = self._werk / "old", self._werk / "old-setup.exe"
        shutil.copytree(self.boom, boom)
        (boom / ONGEBRUIKT).parent.mkdir()
        (boom / ONGEBRUIKT).write_text("old\n")
        (boom / "share/doc/kestrolin/CHANGELOG.md").unlink()
        maak_installer(self._cmake, boom, "0.9.0", self._bouw, uit)
        return uit

    def installeer(self, *opties: str, doel: Path | None = None, installer: Path | None = None,
                   status: int = 0) -> None:
        # A folder comes last and without quotes, blanks and all, which Wine would put around one word.
        in_map = f"/D={self.wijn.windows_pad(doel)}".split(" ") if doel else []
        self.wijn.doe(installer or self.nieuw, "/S", *opties, *in_map, status=status)
        if status == 0:
            self.wijn.rust()

    def verwijder(self, *opties: str) -> None:
        """As Windows does for whoever asks it to do so quietly."""
        regel = self.wijn.lees(SLEUTEL)["QuietUninstallString"]
        programma, rest = regel[1:].split('" ')
        gelijk(rest, "/S", regel)
        self.wijn.doe(programma, rest, *opties)
        self.wijn.rust()

    def keur_inhoud(self, map_: Path) -> None:
        """All files of the tree and the uninstaller, byte for byte, and nothing else."""
        gelijk(bestanden(map_), bestanden(self.boom) | {UIT}, "files installed")
        for naam in bestanden(self.boom):
            assert (map_ / naam).read_bytes() == (self.boom / naam).read_bytes(), f"{naam} is another"

    def keur_schoon(self, *over: Path) -> None:
        """Nothing is left but these files."""
        gebleven = {naam for naam in self.wijn.bestanden() - self.vooraf
                    if not naam.startswith(tuple(f"users/{self.wijn.thuis.name}/{map_}" for map_ in VAN_WINDOWS))}
        gelijk(gebleven, {str(pad.relative_to(self.wijn.schijf)) for pad in over}, "files left behind")
        gelijk(self.vooraf - self.wijn.bestanden(), set(), "files of others that went")
        gelijk(self.wijn.register(), self.register_vooraf, "what the user's registry holds")


def keur_register(i: Installatie) -> None:
    map_ = i.wijn.windows_pad(i.map)
    gevonden = i.wijn.lees(SLEUTEL)
    grootte = int(gevonden.pop("EstimatedSize")) * 1024
    echt = sum((i.map / naam).stat().st_size for naam in bestanden(i.map))
    assert 0.9 < grootte / echt < 1.1, f"EstimatedSize says {grootte} bytes of {echt}"
    gelijk(gevonden, {
        "DisplayName": "Kestrolin", "DisplayVersion": VERSIE, "DisplayIcon": rf"{map_}\bin\Kestrolin.exe",
        "Publisher": "The Kestrolin team", "URLInfoAbout": "https://kestrolin.example",
        "InstallLocation": map_, "UninstallString": rf'"{map_}\{UIT}"',
        "QuietUninstallString": rf'"{map_}\{UIT}" /S', "NoModify": "1", "NoRepair": "1",
    }, "what Windows is told")


def keur_menu(i: Installatie) -> None:
    """The entries name what they open, as they store it: in 16 bits a character."""
    menu = i.wijn.thuis / "AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Kestrolin"
    doelen = {"Kestrolin.lnk": r"bin\Kestrolin.exe",
              "Kestrolin manual.lnk": r"share\doc\kestrolin\html\manual.html"}
    gelijk({pad.name for pad in menu.iterdir()}, set(doelen), "the start menu")
    for naam, doel in doelen.items():
        volledig = rf"{i.wijn.windows_pad(i.map)}\{doel}"
        assert i.wijn.pad(volledig).is_file(), volledig
        inhoud = (menu / naam).read_bytes()
        assert volledig.encode() in inhoud or volledig.encode("utf-16-le") in inhoud, naam


def staat(titel: str = TITEL) -> bool:
    return subprocess.run(["xdotool", "search", "--onlyvisible", "--name", f"^{titel} ?$"],
                          stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False).stdout != b""


def keur_start(i: Installatie) -> None:
    """Both programs run from where they were installed; while one does, nothing is changed."""
    gelijk(i.wijn.doe(i.map / "bin/kestrolin-cli.exe", "--version").split(), ["kestrolin-cli", VERSIE],
           "what the command says")
    with i.wijn.start(i.map / "bin/Kestrolin.exe") as venster:
        wacht(staat, f'a window named "{TITEL}"')
        i.installeer(status=LOOPT)
        i.wijn.doe(i.map / UIT, "/S", f"_?={i.wijn.windows_pad(i.map)}", status=LOOPT)
        i.keur_inhoud(i.map)
        toets("alt+F4")
        gelijk(venster.wait(), 0, "status of the window")
    assert i.instellingen.is_file(), f"no {i.instellingen}"


def keur_opwaardering(i: Installatie, oude: Path) -> None:
    """The new version takes the place of the old one; what was chosen stays, and so does what the user added."""
    elders = i.wijn.schijf / "Programma's é Ж/Kestrolin"
    i.installeer("/PATH", doel=elders, installer=oude)
    gelijk(i.wijn.lees(SLEUTEL)["DisplayVersion"], "0.9.0", "the version before")
    eigen = elders / "share/mine.txt"
    eigen.write_text("mine\n")
    i.installeer()
    eigen.unlink()
    i.keur_inhoud(elders)
    gelijk(i.wijn.lees(SLEUTEL)["DisplayVersion"], VERSIE, "the version")
    gelijk(i.wijn.lees("Environment")["Path"], rf"{i.wijn.windows_pad(elders)}\bin", "the search path")
    # Into another folder: the first one goes.
    i.installeer(doel=i.map)
    assert not elders.exists(), "the folder before stays"
    i.keur_inhoud(i.map)
    gelijk(i.wijn.lees("Environment")["Path"], rf"{i.wijn.windows_pad(i.map)}\bin", "the search path")
    i.verwijder()
    elders.parent.rmdir()


def keur_stil(i: Installatie) -> None:
    i.installeer()
    i.keur_inhoud(i.map)
    keur_register(i)
    keur_menu(i)
    keur_start(i)
    i.verwijder()
    # The user's own, which the next installation finds again.
    i.keur_schoon(i.instellingen)
    i.installeer()
    i.verwijder("/SETTINGS")
    i.keur_schoon()
    keur_opwaardering(i, i.maak_oude())
    i.keur_schoon()


def blader(i: Installatie, programma: Path | str, titel: str) -> None:
    """Takes what each page proposes, up to the last one."""
    with i.wijn.start(programma) as installer:
        wacht(lambda: staat(titel), f'a window named "{titel}"')
        while staat(titel):
            # None of the pages is left without it, and what is busy does not hear it.
            toets("Return")
            time.sleep(1)
        gelijk(installer.wait(), 0, f"status of {programma}")


def keur_bladzijden(i: Installatie) -> None:
    """Page by page, in Dutch. The last page starts the program."""
    blader(i, i.nieuw, "Kestrolin-installatie")
    i.keur_inhoud(i.map)
    wacht(staat, f'a window named "{TITEL}"')
    # A key too many has opened a dialog.
    while staat():
        toets("alt+F4")
        time.sleep(1)
    i.wijn.rust()
    assert "PathEntry" not in i.wijn.lees(SLEUTEL), "the search path was not asked for"
    blader(i, i.map / UIT, "Kestrolin-deïnstallatie")
    i.wijn.rust()
    i.keur_schoon(i.instellingen)


def keur_andermans_bestanden(i: Installatie) -> None:
    """A folder with an uninstaller of another program is as it was afterwards; one with its library is not taken."""
    elders = i.wijn.schijf / "Tools"
    ander, dll = elders / "uninstall.exe", elders / "bin/libsndfile.dll"
    dll.parent.mkdir(parents=True)
    ander.write_text("of another program\n")
    i.installeer(doel=elders)
    i.verwijder()
    gelijk(bestanden(elders), {ander.name}, "what is left of the folder")
    dll.parent.mkdir()
    dll.write_text("of another program\n")
    i.installeer(doel=elders, status=MISLUKT)
    i.wijn.rust()
    i.keur_schoon(elders, ander, dll.parent, dll)
    gelijk(dll.read_text(), "of another program\n", "the library")
    # No folder can be made in a file.
    i.installeer(doel=ander / "Kestrolin", status=MISLUKT)
    i.wijn.rust()
    i.keur_schoon(elders, ander, dll.parent, dll)
    shutil.rmtree(elders)


def keur_halve(i: Installatie) -> None:
    """An installation that cannot write everything says so, and can be taken away."""
    in_de_weg = i.map / "share"
    in_de_weg.parent.mkdir(parents=True)
    in_de_weg.write_text("in the way\n")
    i.installeer(status=MISLUKT)
    i.wijn.rust()
    gelijk(i.wijn.lees(SLEUTEL)["DisplayVersion"], VERSIE, "what Windows is told")
    i.verwijder()
    gelijk(bestanden(i.map), {in_de_weg.name}, "what is left of the folder")
    shutil.rmtree(i.map)
    i.keur_schoon()


def keur_vastgehouden(i: Installatie) -> None:
    """While another program has a file open, the uninstaller says that it failed, and leaves all as it was; and so does
    an update."""
    i.installeer("/PATH")
    for naam, status in (("share/doc/kestrolin/html/manual.html", MISLUKT), ("bin/libsndfile.dll", LOOPT)):
        with i.wijn.start(i.hou_vast, i.map / naam, invoer=subprocess.PIPE) as houder:
            assert houder.stdout and houder.stdout.readline().strip() == b"open", f"{naam} is not held"
            i.wijn.doe(i.map / UIT, "/S", f"_?={i.wijn.windows_pad(i.map)}", status=status)
            i.keur_inhoud(i.map)
            i.installeer(status=status)
            i.keur_inhoud(i.map)
            houder.communicate()
        i.wijn.rust()
        i.installeer()
        i.keur_inhoud(i.map)
    # That is no program that runs.
    (i.map / "bin/Kestrolin.exe").chmod(0o444)
    i.installeer()
    i.keur_inhoud(i.map)
    i.verwijder()
    i.keur_schoon()


def keur_gebreken(i: Installatie) -> None:
    keur_andermans_bestanden(i)
    keur_halve(i)
    keur_vastgehouden(i)


GEVALLEN = {"gebreken": keur_gebreken, "stil": keur_stil, "bladzijden": keur_bladzijden}
TALEN = {"gebreken": "C.UTF-8", "stil": "C.UTF-8", "bladzijden": "nl_NL.UTF-8"}


def main(geval: str, cmake: str, bouw: str, hou_vast: str) -> None:
    sla_over_zonder("wine", "makensis")
    with tempfile.TemporaryDirectory() as werk:
        i = Installatie(Path(werk), cmake, Path(bouw).resolve(), TALEN[geval])
        i.hou_vast = Path(hou_vast)
        try:
            GEVALLEN[geval](i)
        finally:
            i.wijn.einde()


if __name__ == "__main__":
    main(*sys.argv[1:])
