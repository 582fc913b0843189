"""A Windows of its own, by Wine: a fresh home, programs run in it, and what stands in its files and its registry.
Nothing of the home of whoever runs the tests is read or changed."""

from __future__ import annotations

import os
import re
import shutil
import subprocess
import sys
from contextlib import contextmanager
from pathlib import Path
from typing import Iterator, Optional

# What Wine says, fetches or puts into menus of its own accord.
STIL = {"WINEDEBUG": "-all", "WINEARCH": "win64",
        "WINEDLLOVERRIDES": "winemenubuilder.exe,mscoree,mshtml=d"}
# Seconds. It ends only what hangs.
GEDULD = 600

# The values of each key by name, as the file of a registry has them.
Register = dict[str, dict[str, str]]


def sla_over_zonder(*programmas: str) -> None:
    """Ends the test where one of these is not installed, in the way that ctest takes for a skipped one."""
    for programma in programmas:
        if shutil.which(programma) is None:
            print(f"skipped: {programma} is not installed")
            sys.exit(77)


class Wijn:
    """Each user of it has one folder, which goes with all that is in it."""

    def __init__(self, map_: Path, taal: str = "C.UTF-8") -> None:
        self._prefix = map_ / "prefix"
        (map_ / "home").mkdir(parents=True)
        self._omgeving = {
            **{naam: os.environ[naam] for naam in ("PATH", "DISPLAY", "XAUTHORITY") if naam in os.environ},
            **STIL, "WINEPREFIX": str(self._prefix), "HOME": str(map_ / "home"), "LC_ALL": taal,
        }
        subprocess.run(["wine", "wineboot", "--init"], env={**self._omgeving, "DISPLAY": ""}, check=True,
                       timeout=GEDULD, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL)
        self.rust()

    @property
    def schijf(self) -> Path:
        return self._prefix / "drive_c"

    @property
    def thuis(self) -> Path:
        (thuis,) = (map_ for map_ in (self.schijf / "users").iterdir() if map_.name != "Public")
        return thuis

    def pad(self, windows_pad: str) -> Path:
        """Where a path of Windows is here."""
        assert windows_pad[:3].lower() == "c:\\", windows_pad
        return self.schijf / windows_pad[3:].replace("\\", "/")

    def windows_pad(self, pad: Path) -> str:
        return "C:\\" + str(pad.relative_to(self.schijf)).replace("/", "\\")

    def start(self, *woorden: str | Path, invoer: int = subprocess.DEVNULL) -> subprocess.Popen[bytes]:
        return subprocess.Popen(["wine", *map(str, woorden)], env=self._omgeving, stdin=invoer,
                                stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)

    def doe(self, *woorden: str | Path, status: Optional[int] = 0) -> str:
        """What a program says; it ends with this status, or, for None, with any."""
        with self.start(*woorden) as proces:
            gezegd = proces.communicate(timeout=GEDULD)[0].decode()
        assert status in (None, proces.returncode), f"{woorden}: status {proces.returncode}\n{gezegd}"
        return gezegd

    def rust(self) -> None:
        """Waits until no program runs; then the registry is in its files."""
        subprocess.run(["wineserver", "--wait"], env=self._omgeving, check=True, timeout=GEDULD)

    @contextmanager
    def open_(self) -> Iterator[None]:
        """This Windows stays started meanwhile, for what runs many programs one after the other."""
        with self.start("cmd", invoer=subprocess.PIPE) as wacht:
            yield
            wacht.communicate(b"exit\r\n")

    def einde(self) -> None:
        """Ends all programs of this Windows, for a test that failed."""
        subprocess.run(["wineserver", "--kill"], env=self._omgeving, check=False)

    def bestanden(self, map_: Optional[Path] = None) -> set[str]:
        """All files and folders of the disk, or below one folder of it."""
        wortel = map_ or self.schijf
        return {str(pad.relative_to(wortel)) for pad in wortel.rglob("*")}

    def register(self) -> Register:
        """The user's, but for keys that hold nothing. Only at rest."""
        alles: Register = {}
        sleutel: dict[str, str] = {}
        tekst = (self._prefix / "user.reg").read_text(encoding="utf-8", errors="surrogateescape")
        for regel in re.sub(r"\\\n\s*", "", tekst).splitlines():
            kop = re.match(r"\[(.*)\] \d+", regel)
            waarde = re.match(r'("(?:[^"\\]|\\.)*"|@)=(.*)', regel)
            if kop:
                sleutel = alles.setdefault(_rauw(kop[1]), {})
            elif waarde:
                sleutel[_rauw(waarde[1].strip('"'))] = waarde[2]
        return {naam: waarden for naam, waarden in alles.items() if waarden}

    def lees(self, sleutel: str) -> dict[str, str]:
        """The texts and numbers of one key."""
        return {naam: _tekst(waarde) for naam, waarde in self.register().get(sleutel, {}).items()}


def _rauw(tekst: str) -> str:
    """Without the escapes of the file."""
    return re.sub(r"\\(x[0-9a-f]{1,4}|.)",
                  lambda deel: chr(int(deel[1][1:], 16)) if deel[1][0] == "x" else deel[1], tekst)


def _tekst(waarde: str) -> str:
    getal = re.fullmatch(r"dword:([0-9a-f]{8})", waarde)
    if getal:
        return str(int(getal[1], 16))
    tekst = re.fullmatch(r'(?:str\(2\):)?"((?:[^"\\]|\\.)*)"', waarde)
    return _rauw(tekst[1]) if tekst else waarde
