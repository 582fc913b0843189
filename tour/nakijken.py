"""Looks at the program's results as a firmware author's compiler does."""

from __future__ import annotations

import re
import struct
import subprocess
import wave
from pathlib import Path


class Afgekeurd(Exception):
    """A result that is not what it has to be."""


def _compileer(*woorden: str) -> None:
    uitkomst = subprocess.run(
        [*woorden, "-Wall", "-Wextra", "-Werror", "-o", "/dev/null"],
        stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False,
    )
    if uitkomst.returncode:
        raise Afgekeurd(f"{woorden[-1]} does not compile:\n{uitkomst.stdout}")


def compileer_c(bron: Path) -> None:
    _compileer("gcc", "-std=c99", "-c", str(bron))


def schrijf_klasse(bron: Path, kop: Path) -> None:
    """Writes the header that the comments at the head of a C++ text ask for."""
    blok = re.search(r"^// class .*?^//\};$", bron.read_text(), re.MULTILINE | re.DOTALL)
    if not blok:
        raise Afgekeurd(f"{bron.name} declares no class")
    regels = [re.sub(r"^(\s*)// ?", r"\1", regel) for regel in blok.group().splitlines()]
    kop.write_text("#pragma once\n\n" + "\n".join(regels) + "\n")


def compileer_cpp(bron: Path, kop: Path) -> None:
    _compileer("g++", "-std=c++17", "-include", str(kop), "-c", str(bron))


def arrays_in(bron: Path) -> dict[str, bytes]:
    """The arrays of a generated text by name, without class."""
    vorm = re.compile(r"^const unsigned char (?:\w+::)?(\w+)\[\] = \n\{\n(.*?)\n\};", re.M | re.S)
    return {
        naam: bytes(int(woord, 16) for woord in re.findall(r"0x[0-9a-f]+", rijen))
        for naam, rijen in vorm.findall(bron.read_text())
    }


def serieel_pcm(wav: Path) -> bytes:
    """A fragment's serial image: count (4 bytes), rate (2 bytes), samples, all little endian."""
    with wave.open(str(wav), "rb") as bron:
        aantal = bron.getnframes()
        return struct.pack("<IH", aantal, bron.getframerate()) + bron.readframes(aantal)


def keur_arrays(bron: Path, fragmenten: list[Path]) -> None:
    """The arrays are the fragments, byte for byte and nothing else."""
    gevonden = arrays_in(bron)
    verwacht = {wav.stem: serieel_pcm(wav) for wav in fragmenten}
    if list(gevonden) != sorted(verwacht):
        raise Afgekeurd(f"{bron.name} holds the arrays {list(gevonden)}")
    for naam, inhoud in verwacht.items():
        if gevonden[naam] != inhoud:
            raise Afgekeurd(f"{bron.name}: the bytes of {naam} are not those of the fragment")
