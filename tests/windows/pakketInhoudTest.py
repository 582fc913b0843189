"""Test of what the installer and the zip for Windows hold: each file in its place and no other, each library that a
program loads, and the licence of all that the programs are made of.

    pakketInhoudTest.py BUILD

Ends with status 77 where Wine or makensis is missing.
"""

from __future__ import annotations

import re
import subprocess
import sys
import zipfile
from pathlib import Path

WORTEL = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(WORTEL / "tests/installatie"))

# pylint: disable=wrong-import-position
from inhoudTest import (BLADZIJDEN, CMAKE, GEMAAKT, TALEN, TEKSTEN, VERSIE, bestanden, deelbaar, gelijk,
                        ingedeeld, keur_bytes, zeg)
from wijn import sla_over_zonder

NAAM = f"Kestrolin-{VERSIE}"
PROGRAMMAS = ("Kestrolin", "kestrolin-cli")
DLL = "bin/libsndfile.dll"
LICENTIES = "share/doc/kestrolin/licences"
CATALOGI = ("Kestrolin", "Velmoradesktop", "wxstd")
# Wine has the libraries of Windows itself.
VAN_WINDOWS = Path("/usr/lib/x86_64-linux-gnu/wine/x86_64-windows")
# Whose the archives and headers of the folder of libraries are. All others are of packages of this machine.
GEREEDSCHAP = {
    r"lib/gcc_x64_lib/": "wxwidgets3.2", r"include/wx/": "wxwidgets3.2", r"lib/libsndfile\.": "libsndfile",
    r"include/sndfile\.": "libsndfile", r"lib/libspeex\.": "speex", r"include/speex/": "speex",
    r"lib/libspeexdsp\.": "speexdsp", r"include/CLI/": "libcli11-dev", r"include/kissfft/": "libkissfft-dev",
    r"include/nlohmann/": "nlohmann-json3-dev",
}
# The compiler comes in parts, with one statement on all of them.
SAMEN = {"gcc-mingw-w64-x86-64-posix-runtime": "gcc-mingw-w64-x86-64-posix",
         "g++-mingw-w64-x86-64-posix": "gcc-mingw-w64-x86-64-posix",
         "mingw-w64-common": "mingw-w64-x86-64-dev"}
# What is in the installer and in no program.
VAN_INSTALLER = {"nsis-common"}


def keur_namen(boom: Path) -> None:
    verwacht = {f"bin/{naam}.exe" for naam in PROGRAMMAS} | {DLL, *TEKSTEN, *BLADZIJDEN, *CMAKE}
    verwacht |= {*GEMAAKT, *ingedeeld()}
    verwacht |= {f"share/locale/{taal}/LC_MESSAGES/{naam}.mo" for taal in TALEN for naam in CATALOGI}
    verwacht |= {f"share/doc/kestrolin/{naam}" for naam in ("CHANGELOG.md", "LICENSE")}
    verwacht |= {f"share/kestrolin/{pad}" for pad in deelbaar()}
    gevonden = {naam for naam in bestanden(boom) if not naam.startswith(f"{LICENTIES}/")}
    gelijk(verwacht - gevonden, set(), "what is missing")
    gelijk(gevonden - verwacht, set(), "what is there too")
    keur_bytes(boom)


def keur_zip(boom: Path, zip_: Path) -> None:
    """One folder, with the same tree."""
    with zipfile.ZipFile(zip_) as ingepakt:
        gelijk(ingepakt.testzip(), None, "what is broken in the zip")
        gelijk({naam for naam in ingepakt.namelist() if not naam.endswith("/")},
               {f"{NAAM}/{naam}" for naam in bestanden(boom)}, "the zip")
        for naam in bestanden(boom):
            assert ingepakt.read(f"{NAAM}/{naam}") == (boom / naam).read_bytes(), f"{naam} is another"


def keur_vorm(boom: Path, installer: Path) -> None:
    """For 64 bits, the installer too; the window has no console, and the command has one."""
    for pad, stelsel in ((installer, "GUI"), (boom / "bin/Kestrolin.exe", "GUI"),
                         (boom / "bin/kestrolin-cli.exe", "console"), (boom / DLL, "")):
        inhoud = pad.read_bytes()
        kop = int.from_bytes(inhoud[0x3C:0x40], "little")
        gelijk((inhoud[kop : kop + 4], inhoud[kop + 4 : kop + 6]), (b"PE\0\0", b"\x64\x86"), f"form of {pad}")
        soort = int.from_bytes(inhoud[kop + 0x5C : kop + 0x5E], "little")
        assert not stelsel or soort == {"GUI": 2, "console": 3}[stelsel], f"{pad}: subsystem {soort}"


def keur_bibliotheken(boom: Path) -> None:
    """What a program loads lies beside it or is Windows' own."""
    for pad in (boom / "bin").iterdir():
        namen = set(re.findall(r"DLL Name: (\S+)", zeg("x86_64-w64-mingw32-objdump", "-p", pad)))
        assert namen, f"{pad.name} loads nothing"
        vreemd = {naam for naam in namen if not (VAN_WINDOWS / naam.lower()).exists()}
        gelijk(vreemd - {Path(DLL).name}, set(), f"what {pad.name} lacks")
        gelijk(bool(vreemd), pad.suffix == ".exe", f"whether {pad.name} loads libsndfile")


def pakketten_van(paden: set[Path], gereedschap: Path) -> set[str]:
    """The packages of these files, but for those of the tree."""
    gevonden, van_machine = set(), []
    for pad in paden:
        if gereedschap in pad.parents:
            deel = str(pad.relative_to(gereedschap))
            eigenaars = {pakket for begin, pakket in GEREEDSCHAP.items() if re.match(begin, deel)}
            assert len(eigenaars) == 1, f"{deel} is of {eigenaars}"
            gevonden |= eigenaars
        elif WORTEL not in pad.parents:
            van_machine.append(pad)
    namen = re.findall(r"^(\S+?)(?::\w+)?: ", zeg("dpkg-query", "-S", *van_machine), re.M)
    gelijk(len(namen), len(van_machine), "files with one package each")
    return gevonden | {SAMEN.get(naam, naam) for naam in namen}


def delen_van(bouw: Path) -> set[Path]:
    """All files that the linker and the compiler read for the programs."""
    gelezen: set[str] = set()
    for naam in PROGRAMMAS:
        kaart = (bouw / f"{naam}.map").read_text(encoding="utf-8", errors="replace")
        gelezen |= {str(bouw / pad) for pad in re.findall(r"^LOAD (.*)$", kaart, re.M)}
    doelen = re.split(r"\n(?=\S)", zeg("ninja", "-C", bouw, "-t", "deps"))
    for doel in doelen:
        if doel.startswith(("ninja:", "tests/", "bench/")):
            continue
        gelezen |= {str(bouw / regel.strip()) for regel in doel.splitlines()[1:] if regel.strip()}
    return {Path(pad).resolve() for pad in gelezen}


def keur_licenties(bouw: Path, boom: Path) -> None:
    gereedschap = (bouw.parent / "windows-gereedschap").resolve()
    pakketten = pakketten_van(delen_van(bouw), gereedschap)
    licenties = boom / LICENTIES
    lijst = (licenties / "README.txt").read_bytes().decode()
    gelijk(lijst.replace("\r\n", "").count("\n"), 0, "lines that end as on Linux")
    genoemd = dict(re.findall(r"^(\S+) (\d\S*)\r$", lijst, re.M))
    gelijk(set(genoemd), pakketten | VAN_INSTALLER, "packages that the list names")
    gedeeld: set[str] = set()
    for pakket in genoemd:
        verklaring = (licenties / f"{pakket}.txt").read_text(encoding="utf-8")
        assert re.search(r"copyright", verklaring, re.I), pakket
        gedeeld |= set(re.findall(r"/usr/share/common-licenses/([\w.-]*\w)", verklaring))
    for naam in gedeeld:
        gelijk((licenties / f"{naam}.txt").read_bytes(), Path("/usr/share/common-licenses", naam).read_bytes(), naam)
    gelijk(bestanden(licenties), {f"{naam}.txt" for naam in {*genoemd, *gedeeld, "README"}} | {"libsndfile.tar.xz"},
           "files beside the licences")
    bron = subprocess.run(["tar", "-tJf", licenties / "libsndfile.tar.xz"], check=True, text=True,
                          stdout=subprocess.PIPE).stdout.splitlines()
    for deel in ("COPYING", "CMakeLists.txt", "src/sndfile.c", "debian/changelog"):
        assert f"libsndfile/{deel}" in bron, f"the source of libsndfile has no {deel}"


def keur_documenten() -> None:
    """The pages that tell of installer and zip call them by their names."""
    for pagina, namen in (("README.md", {"-setup.exe"}), ("docs/manual.md", {"-setup.exe", ".zip"})):
        tekst = (WORTEL / pagina).read_text(encoding="utf-8")
        genoemd = set(re.findall(r"Kestrolin-[\d.]+-windows-x86_64[-.\w]*", tekst))
        gelijk(genoemd, {f"{NAAM}-windows-x86_64{einde}" for einde in namen}, f"names in {pagina}")


def main(bouw: str) -> None:
    sla_over_zonder("wine", "makensis")
    keur_documenten()
    boom, begin = Path(bouw, "pakket", NAAM), Path(bouw, f"{NAAM}-windows-x86_64")
    keur_namen(boom)
    keur_zip(boom, Path(f"{begin}.zip"))
    keur_vorm(boom, Path(f"{begin}-setup.exe"))
    keur_bibliotheken(boom)
    keur_licenties(Path(bouw).resolve(), boom)


if __name__ == "__main__":
    main(sys.argv[1])
