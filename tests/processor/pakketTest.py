"""The Debian package for arm64, made here: it holds what an installation holds, lintian finds nothing in
it, its programs are of that processor and need no library of Speex, and the command starts.

    pakketTest.py CPACK

Ends with status 77 where the compiler or QEMU is missing, or fails where KESTROLIN_PROCESSORS says
"required".
"""

from __future__ import annotations

import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

from vreemd import WORTEL, bouw, programma

INSTALLATIE = WORTEL / "tests" / "installatie"
ARM64 = 183  # e_machine of ELF


def zeg(*woorden: str | Path, **omgeving: str) -> str:
    klaar = subprocess.run([str(woord) for woord in woorden], env=os.environ | omgeving, check=False,
                           stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    assert klaar.returncode == 0, f"{woorden}: {klaar.stdout}"
    return klaar.stdout


def processor_van(pad: Path) -> int:
    inhoud = pad.read_bytes()
    assert inhoud[:6] == b"\x7fELF\x02\x01", f"{pad} is no little-endian program of 64 bits"
    return int.from_bytes(inhoud[18:20], "little")


def keur(map_: Path, pakket: Path) -> None:
    assert zeg("dpkg-deb", "-f", pakket, "Architecture").strip() == "arm64"
    nodig = zeg("dpkg-deb", "-f", pakket, "Depends")
    for naam in ("libc6", "libwxbase3.2-1", "libwxgtk3.2-1", "libsndfile1", "libsdl2-2.0-0", "libgtk-3-0"):
        assert re.search(rf"\b{re.escape(naam)}\b", nodig), f"no {naam} in {nodig}"
    assert "speex" not in nodig, nodig
    zeg(sys.executable, "-B", INSTALLATIE / "inhoudTest.py", pakket)
    with tempfile.TemporaryDirectory() as uitgepakt:
        zeg("dpkg-deb", "-x", pakket, uitgepakt)
        usr = Path(uitgepakt, "usr")
        for naam in ("bin/Kestrolin", "bin/kestrolin-cli", "lib/kestrolin/geluid.so"):
            assert processor_van(usr / naam) == ARM64, naam
        versie = zeg(*programma(map_, str(usr / "bin" / "kestrolin-cli")), "--version")
        assert re.fullmatch(r"kestrolin-cli \d+\.\d+\.\d+\n", versie), versie


def main() -> None:
    map_ = bouw("arm64", "all")
    sysroot = re.search(r"^KESTROLIN_SYSROOT:\w+=(.*)$", (map_ / "CMakeCache.txt").read_text(), re.M)
    assert sysroot
    # dpkg-shlibdeps of that processor goes first.
    zeg(INSTALLATIE / "maakPakket", sys.argv[1], map_, map_ / "pakket",
        PATH=f"{sysroot[1]}/bin:{os.environ['PATH']}")
    keur(map_, map_ / "pakket" / "kestrolin.deb")


if __name__ == "__main__":
    main()
