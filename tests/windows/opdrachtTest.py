"""What kestrolin-cli.exe does as Windows alone has it: names outside any code page, separators and drives,
devices, wildcards, names that differ in capitals alone, Ctrl+C.

    opdrachtTest.py BUILD_OF_WINDOWS
"""

from __future__ import annotations

import os
import re
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path
from typing import Callable

from opdrachtHulp import FRAGMENTEN, WIJN, Einde, bestanden_in, draai, maak_wav

NAAM = "größe Ω 日本"


class Proef:
    """A folder of its own, and the program."""

    def __init__(self, bouw: Path, map_: Path) -> None:
        self.bouw, self.map = bouw, map_
        self.programma = [str(WIJN), str(bouw / "bin" / "kestrolin-cli.exe")]
        self.map.mkdir()
        for naam in ("chime", "ready"):
            (self.map / f"{naam}.wav").write_bytes((FRAGMENTEN / f"{naam}.wav").read_bytes())

    def draai(self, *woorden: str, invoer: bytes = b"", **omgeving: str) -> Einde:
        return draai(self.programma, list(woorden), self.map, invoer, **omgeving)

    def windows_pad(self, naam: str) -> str:
        """The full path of a name in the folder, as Windows writes it."""
        return "Z:" + str(self.map / naam).replace("/", "\\")


def gelijk(gevonden: object, verwacht: object, wat: str) -> None:
    assert gevonden == verwacht, f"{wat}: {gevonden!r} instead of {verwacht!r}"


def slaag(einde: Einde) -> Einde:
    gelijk((einde.status, einde.fout), (0, b""), "status and errors")
    return einde


def faal(einde: Einde, regel: str) -> None:
    gelijk((einde.status, einde.uit, einde.fout.decode()), (1, b"", f"kestrolin-cli: {regel}\n"), "failure")


def namen(proef: Proef) -> None:
    """Names outside the code page lead to their files, and stand in texts and messages as UTF-8."""
    (proef.map / NAAM).mkdir()
    (proef.map / "chime.wav").rename(proef.map / NAAM / "chime.wav")
    gemaakt = slaag(proef.draai("encode", f"{NAAM}/chime.wav", "-o", f"{NAAM}/ü.c",
                                "--encoder", "wav")).bestanden
    gelijk(b"/* WAV file : chime.wav\t\t*/" in gemaakt[f"{NAAM}/ü.c"], True, "the text")
    lijst = slaag(proef.draai("list", f"{NAAM}/ü.c")).uit.decode()
    gelijk(re.split(" +", lijst.splitlines()[1])[:2], ["chime", "WAV"], "the list")
    slaag(proef.draai("decode", f"{NAAM}/ü.c", "--to", "日本/Ω"))
    gelijk((proef.map / "日本" / "Ω" / "chime.wav").is_file(), True, "the decoded file")
    (proef.map / "ready.wav").rename(proef.map / f"{NAAM}.wav")
    faal(proef.draai("encode", f"{NAAM}.wav", "-o", "a.c"),
         f"{NAAM}.wav: its array would be called \"{NAAM}\", which is no name in C; rename the file")
    faal(proef.draai("encode", "Ω.wav", "-o", "a.c"), "Ω.wav: cannot be read: No such file or directory; check the path")


def paden(proef: Proef) -> None:
    """Backslashes and drives are separators of names; in what make and compilers read there are none."""
    (proef.map / "uit").mkdir()
    slaag(proef.draai("encode", proef.windows_pad("chime.wav"), "-o", "uit\\tekst.c", "--declarations",
                      proef.windows_pad("uit\\tekst.h"), "--source", "bron.c", "--depfile", "uit\\tekst.d"))
    hier = "Z:" + str(proef.map)
    gelijk((proef.map / "uit" / "tekst.d").read_text(),
           f"uit/tekst.c: \\\n  {hier}/chime.wav\n\n{hier}/chime.wav:\n", "dependencies")
    bron = (proef.map / "bron.c").read_text().splitlines()
    gelijk([bron[1], bron[3]], ['#include "uit/tekst.h"', '#include "uit/tekst.c"'], "includes")
    gelijk("extern const unsigned char chime[];" in (proef.map / "uit" / "tekst.h").read_text(), True, "the name")


def schijven(proef: Proef) -> None:
    """From one drive to another a source includes by the full path."""
    ander = proef.bouw / "wijn" / "drive_c" / f"kestrolin{os.getpid()}"
    ander.mkdir()
    try:
        slaag(proef.draai("encode", "chime.wav", "-o", "tekst.c", "--declarations", "tekst.h", "--source",
                          f"C:\\{ander.name}\\bron.c"))
        bron = (ander / "bron.c").read_text().splitlines()
        hier = "Z:" + str(proef.map)
        gelijk([bron[1], bron[3]], [f'#include "{hier}/tekst.h"', f'#include "{hier}/tekst.c"'], "includes")
    finally:
        for pad in ander.iterdir():
            pad.unlink()
        ander.rmdir()


def mappen(proef: Proef) -> None:
    """Folders are made below a drive, by whatever way it is named; a share that is not there makes none."""
    slaag(proef.draai("encode", "chime.wav", "-o", "tekst.c"))
    for naam, plaats in (("een/twee", proef.windows_pad("een\\twee")), ("drie/vier", "Z:drie/vier")):
        slaag(proef.draai("decode", "tekst.c", "--to", plaats))
        gelijk((proef.map / naam / "chime.wav").is_file(), True, plaats)
    voor = sorted(proef.map.rglob("*"))
    plaats = "\\\\nergens\\deel\\map"
    faal(proef.draai("decode", "tekst.c", "--to", plaats),
         f"cannot make the folder {plaats}: No such file or directory; give another one")
    gelijk(sorted(proef.map.rglob("*")), voor, "folders")
    gelijk(Path("/nergens").exists(), False, "a folder of the current drive")


def toestellen(proef: Proef) -> None:
    """What goes to a device leaves no file, and a full one is told of."""
    voor = bestanden_in(proef.map)
    gelijk(slaag(proef.draai("encode", "chime.wav", "-o", "NUL")).bestanden, voor, "files behind NUL")
    faal(proef.draai("encode", "chime.wav", "-o", "/dev/full"),
         "cannot write /dev/full: No space left on device; make room, or give another place")
    gelijk(bestanden_in(proef.map), voor, "files behind a full device")


def invoer(proef: Proef) -> None:
    """Bytes come from standard input as they are."""
    tekst = slaag(proef.draai("encode", "chime.wav", "-o", "-")).uit
    gelijk(b"\r" in tekst, False, "carriage returns")
    vreemd = b"/* \x1a */\r\n" + tekst.replace(b"\n", b"\r\n")
    lijst = slaag(proef.draai("list", "-", invoer=tekst)).uit
    gelijk(slaag(proef.draai("list", "-", invoer=vreemd)).uit, lijst, "the list of the other")


def rechten(proef: Proef) -> None:
    """A file that may not be written, and a folder that is none, leave all outputs as they were."""
    (proef.map / "vast.h").write_text("mijn")
    (proef.map / "vast.h").chmod(0o444)
    voor = bestanden_in(proef.map)
    faal(proef.draai("encode", "chime.wav", "-o", "a.c", "--declarations", "vast.h"),
         "cannot write vast.h: Permission denied; change its permissions, or give another place")
    faal(proef.draai("encode", "chime.wav", "-o", "a.c", "--declarations", "weg\\a.h"),
         "cannot write weg\\a.h: No such file or directory; check the path")
    gelijk(bestanden_in(proef.map), voor, "files")


def hoofdletters(proef: Proef) -> None:
    """Names that differ in capitals alone, or in dots and blanks at the end, are those of one file."""
    voor = bestanden_in(proef.map)
    faal(proef.draai("encode", "chime.wav", "-o", "tekst.c", "--declarations", "TEKST.C"),
         "cannot write TEKST.C twice: give each output a file of its own")
    for naam in ("tekst.c.", "tekst.c "):
        faal(proef.draai("encode", "chime.wav", "-o", "tekst.c", "--declarations", naam),
             f"cannot write {naam} twice: give each output a file of its own")
    faal(proef.draai("encode", "chime.wav", "-o", "CHIME.WAV"),
         "cannot write CHIME.WAV: it is one of the files to read; give another name")
    gelijk(bestanden_in(proef.map), voor, "files")


def patronen(proef: Proef) -> None:
    """The program expands what the shells of Windows leave to it."""
    (proef.map / "ready.wav").unlink()
    maak_wav(proef.map / "tik.wav", 16000, [1, 2])
    gemaakt = slaag(proef.draai("encode", "*.wav", "-o", "tekst.c")).bestanden["tekst.c"].decode()
    gelijk(re.findall(r"^const unsigned char (\w+)\[\]", gemaakt, re.M), ["chime", "tik"], "arrays")


def onderbreking(proef: Proef) -> None:
    """Ctrl+C takes away what was begun."""
    slaag(proef.draai("encode", "chime.wav", "-o", "tekst.c"))
    voor = bestanden_in(proef.map)
    with subprocess.Popen([*proef.programma, "decode", "tekst.c", "-", "--to", "nieuw/map"], cwd=proef.map,
                          stdin=subprocess.PIPE, start_new_session=True) as loopt:
        # It has decoded the one text, and waits for the other.
        while len(bestanden_in(proef.map)) == len(voor) and loopt.poll() is None:
            time.sleep(0.05)
        gelijk(loopt.poll(), None, "a run that waits")
        os.kill(loopt.pid, signal.SIGINT)
        # Wine gives any status, depending on what the program is at.
        loopt.wait(300)
    gelijk((bestanden_in(proef.map), (proef.map / "nieuw").exists()), (voor, False), "what is left")


GEVALLEN: list[Callable[[Proef], None]] = [
    namen, paden, schijven, mappen, toestellen, invoer, rechten, hoofdletters, patronen, onderbreking]


def main() -> int:
    fouten = 0
    for geval in GEVALLEN:
        if sys.argv[2:] and geval.__name__ not in sys.argv[2:]:
            continue
        with tempfile.TemporaryDirectory(prefix="kestrolin") as map_:
            try:
                geval(Proef(Path(sys.argv[1]).resolve(), Path(map_) / "werk"))
            except AssertionError as fout:
                print(f"{geval.__name__}: {fout}")
                fouten += 1
    return 1 if fouten else 0


if __name__ == "__main__":
    sys.exit(main())
