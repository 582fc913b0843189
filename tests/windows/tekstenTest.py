"""Texts are the same on Windows and on Linux, but for the name of the system, and of the place of its
settings: those of a table of runs of kestrolin-cli, with what it says and its status, and those of
fragmentTeksten.

    tekstenTest.py BUILD_OF_WINDOWS BUILD_OF_LINUX

Ends with status 77 where the programs of Linux are not built.
"""

from __future__ import annotations

import os
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from opdrachtHulp import FRAGMENTEN, WIJN, Einde, draai, maak_wav, ruis

# A settings file of the window.
INSTELLINGEN = """[Gebruikersinstellingen]
[Gebruikersinstellingen/Speex]
speexQuality=4
speexOutputLanguage=1
dacNumberOfBits=1
IncludeHeader=0
[Configuratie]
Convertertype=1
klasseNaam=Geluid
"""
SYSTEMEN = (b"Microsoft Windows NT (64 bit)", b"Linux (64 bit)")
INI = (b"%APPDATA%\\Kestrolin.ini", b"~/.Kestrolin")
# How each text is made: the recordings, and the options.
SPREEK = ["ready.wav", "warning.wav"]
RIJEN: list[list[str]] = [
    [*SPREEK, "--encoder", "pcm", "-v"],
    [*SPREEK, "--encoder", "pcm", "--dac", "12", "--no-header", "--language", "c++", "--class", "Geluid"],
    [*SPREEK, "--encoder", "adpcm"],
    ["chime.wav", "--encoder", "adpcm", "--no-header", "--language", "c++", "--class", "Geluid"],
    ["chime.wav", "stereo.wav", "--encoder", "wav", "--dac", "8"],
    ["ima.wav", "alarm.wav", "--encoder", "wav", "--dac", "10"],
    ["ima.wav", "alarm.wav", "--encoder", "pcm"],
    ["leeg8.wav", "een8.wav", "ruis8.wav", "zacht8.wav", "--encoder", "pcm", "--dac", "10"],
    ["leeg8.wav", "een8.wav", "ruis8.wav", "zacht8.wav", "--encoder", "adpcm"],
    ["een8.wav", "ruis8.wav", "zacht8.wav", "--encoder", "wav", "--dac", "12"],
    *([*SPREEK, "ruis8.wav", "--encoder", "speex", "--quality", str(kwaliteit)] for kwaliteit in (0, 3, 8, 10)),
    *(["chime.wav", "ruis16.wav", "--encoder", "speex", "--quality", str(kwaliteit)] for kwaliteit in (1, 5, 8, 10)),
    *(["alarm.wav", "ruis32.wav", "--encoder", "speex", "--quality", str(kwaliteit)] for kwaliteit in (2, 7, 8, 10)),
    ["chime.wav", "--encoder", "speex", "--bitrate", "variable", "--max-bitrate", "20000", "--complexity", "10"],
    ["alarm.wav", "--encoder", "speex", "--bitrate", "average", "--max-bitrate", "16000", "--no-vad"],
    [*SPREEK, "--encoder", "speex", "--bitrate", "variable", "--no-denoise", "--no-agc", "--dac", "8"],
    [*SPREEK, "--settings", "venster.ini"],
    [*SPREEK, "--settings", "crlf.ini", "--class", "Ander"],
]
MET_BIJLAGEN = ["-o", "uit/tekst.c", "--declarations", "uit/tekst.h", "--source", "bron.c", "--depfile", "tekst.d"]
GEMAAKT = [["encode", *rij, *MET_BIJLAGEN] for rij in RIJEN]
# Runs that make no text, or none that is right.
ANDERE: list[list[str]] = [
    ["--version"], ["--help"], ["list", "--help"], ["decode", "--help"],
    ["compare", "--help"], ["play", "--help"], [], ["/encode"], ["encode"],
    ["encode", "weg.wav", "-o", "a.c"], ["encode", "uit", "-o", "a.c"], ["encode", "chime.wav", "-o", "uit"],
    ["encode", "chime.wav", "-o", "weg/a.c"], ["encode", "chime.wav", "ready.wav", "-o", "a.c"],
    ["encode", "tekst.txt", "-o", "a.c"], ["encode", "chime.wav", "-o", "a.c", "--declarations", "./a.c"],
    ["encode", "chime.wav", "-o", "chime.wav"], ["encode", "3.wav", "-o", "a.c"],
    ["encode", "größe Ω 日本.wav", "-o", "a.c"], ["encode", "chime.wav", "-o", "größe Ω 日本.c", "-v"],
    ["encode", "chime.wav", "-o", "-"], ["encode", "chime.wav", "-o", "oud.c", "--append"],
    ["encode", "ready.wav", "-o", "oud.c", "--append"], ["encode", "chime.wav", "--settings", "weg.ini", "-o", "-"],
    ["encode", "chime.wav", "--settings", "tekst.txt", "-o", "-"],
    ["list", "oud.c"], ["list", "--json", "oud.c", "oud.c"], ["list", "-"], ["list", "weg.c"], ["list", "tekst.txt"],
    ["decode", "oud.c", "--to", "nieuw/map", "-v"], ["decode", "oud.c", "--to", "tekst.txt/map"],
    ["decode", "-", "--to", "."], ["compare", "ready.wav"], ["compare", "--json", "--plot", "plaat.svg", "chime.wav"],
    ["compare", "alarm.wav", "zacht8.wav", "een8.wav"],
    ["play", "weg.c"],
]


class Bouw:
    """The programs of one system."""

    def __init__(self, map_: str, is_windows: bool) -> None:
        self.bin = Path(map_).resolve() / "bin"
        self.voor, self.einde = ([str(WIJN)], ".exe") if is_windows else ([], "")

    def programma(self, naam: str) -> list[str]:
        return [*self.voor, str(self.bin / (naam + self.einde))]

    def is_er(self) -> bool:
        return all((self.bin / (naam + self.einde)).is_file() for naam in ("kestrolin-cli", "fragmentTeksten"))


def vul(map_: Path, ima: bytes) -> None:
    """The files that every run finds."""
    (map_ / "uit").mkdir(parents=True)
    for naam in ("ready", "warning", "chime", "alarm"):
        (map_ / f"{naam}.wav").write_bytes((FRAGMENTEN / f"{naam}.wav").read_bytes())
    for rate in (8, 16, 32):
        maak_wav(map_ / f"ruis{rate}.wav", rate * 1000, ruis(3333, rate))
    maak_wav(map_ / "zacht8.wav", 8000, ruis(2001, 4, 127))
    maak_wav(map_ / "leeg8.wav", 8000, [])
    maak_wav(map_ / "een8.wav", 8000, [-32768])
    maak_wav(map_ / "stereo.wav", 16000, ruis(2002, 5), 2)
    for naam in ("3.wav", "größe Ω 日本.wav"):
        maak_wav(map_ / naam, 16000, [1, 2, 3])
    (map_ / "ima.wav").write_bytes(ima)
    (map_ / "tekst.txt").write_text("Vlaamse größe\n", encoding="utf-8")
    (map_ / "venster.ini").write_text(INSTELLINGEN, encoding="utf-8")
    (map_ / "crlf.ini").write_bytes(INSTELLINGEN.replace("\n", "\r\n").encode())


def zonder_systeem(bytes_: bytes) -> bytes:
    for naam in SYSTEMEN + INI:
        bytes_ = bytes_.replace(naam, b"SYSTEM")
    return bytes_


def verschil(windows: Einde, linux: Einde) -> str:
    """What differs between two runs, empty where nothing does."""
    if windows.status != linux.status:
        return f"status {windows.status} instead of {linux.status}, {windows.fout!r}"
    for naam, een, ander in (("output", windows.uit, linux.uit), ("errors", windows.fout, linux.fout)):
        if zonder_systeem(een) != zonder_systeem(ander):
            return f"{naam} {een[:600]!r} instead of {ander[:600]!r}"
    if windows.bestanden.keys() != linux.bestanden.keys():
        return f"files {sorted(windows.bestanden)} instead of {sorted(linux.bestanden)}"
    return " ".join(f"{naam} differs" for naam, inhoud in linux.bestanden.items()
                    if zonder_systeem(windows.bestanden[naam]) != zonder_systeem(inhoud))


def fragment_teksten(bouw: Bouw, map_: Path) -> Einde:
    map_.mkdir()
    return draai(bouw.programma("fragmentTeksten"), [str(FRAGMENTEN), "teksten"], map_)


def keur_rij(nummer: int, woorden: list[str], windows: Bouw, linux: Bouw, map_: Path, ima: bytes) -> str:
    """Runs the command of both systems, each in a folder of its own. Empty where they do the same."""
    einden = []
    for bouw in (windows, linux):
        hier = map_ / f"{nummer}{bouw.einde}"
        vul(hier, ima)
        oud = draai(linux.programma("kestrolin-cli"), ["encode", "chime.wav", "-o", "oud.c"], hier)
        assert oud.status == 0, oud.fout
        invoer = oud.bestanden["oud.c"] if "-" in woorden else b""
        einden.append(draai(bouw.programma("kestrolin-cli"), woorden, hier, invoer))
    gebrek = verschil(*einden)
    if not gebrek and woorden in GEMAAKT:
        van_windows = einden[0]
        if van_windows.status or SYSTEMEN[0] not in van_windows.bestanden["uit/tekst.c"]:
            gebrek = f"no text of Windows was made: {van_windows.fout!r}"
    return f"{' '.join(woorden)}: {gebrek}" if gebrek else ""


def main() -> int:
    windows, linux = Bouw(sys.argv[1], True), Bouw(sys.argv[2], False)
    if not linux.is_er():
        print(f"no kestrolin-cli and fragmentTeksten are in {linux.bin}: build them first")
        return 77
    with tempfile.TemporaryDirectory(prefix="kestrolin") as tijdelijk:
        map_ = Path(tijdelijk)
        einden = [fragment_teksten(bouw, map_ / naam) for bouw, naam in ((windows, "w"), (linux, "l"))]
        assert einden[1].status == 0 and len(einden[1].bestanden) > 6, einden[1].fout
        gebreken = [f"fragmentTeksten: {verschil(*einden)}"] if verschil(*einden) else []
        ima = einden[1].bestanden["teksten/alarm_wav.wav"]
        with ThreadPoolExecutor(os.cpu_count()) as werkers:
            gebreken += filter(None, werkers.map(
                lambda rij: keur_rij(*rij, windows, linux, map_, ima), enumerate(GEMAAKT + ANDERE)))
    print("\n".join(gebreken))
    print(f"{len(GEMAAKT + ANDERE)} runs")
    return 1 if gebreken else 0


if __name__ == "__main__":
    sys.exit(main())
