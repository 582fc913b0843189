"""Looks at the program's results as a firmware author's compiler does."""

from __future__ import annotations

import audioop
import io
import re
import struct
import subprocess
import wave
from array import array
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


def _getallen(rijen: str) -> bytes:
    """The bytes of an array's rows, whatever the form of their numbers."""
    kaal = re.sub(r"/\*.*?\*/|\(signed char\)", "", rijen, flags=re.S)
    try:
        return bytes(int(woord, 0) & 0xFF for woord in kaal.replace(",", " ").split())
    except ValueError as f:
        raise Afgekeurd(f"an array holds something else than numbers: {f}") from f


def arrays_in(bron: Path) -> dict[str, bytes]:
    """The arrays of a generated text by name, without class."""
    vorm = re.compile(
        r"^const (?:un)?signed char (?:\w+::)?(\w+)\[\] = \n\{\n(.*?)\};", re.M | re.S
    )
    return {naam: _getallen(rijen) for naam, rijen in vorm.findall(bron.read_text())}


def serieel_pcm(wav: Path) -> bytes:
    """A fragment's serial image: count (4 bytes), rate (2 bytes), samples, all little endian."""
    with wave.open(str(wav), "rb") as bron:
        aantal = bron.getnframes()
        return struct.pack("<IH", aantal, bron.getframerate()) + bron.readframes(aantal)


def samples_van(wav: Path) -> bytes:
    with wave.open(str(wav), "rb") as bron:
        return bron.readframes(bron.getnframes())


def _arrays_van(bron: Path, fragmenten: list[Path]) -> dict[str, bytes]:
    """The arrays of a text, which are those of the fragments and no others."""
    gevonden = arrays_in(bron)
    if list(gevonden) != sorted(wav.stem for wav in fragmenten):
        raise Afgekeurd(f"{bron.name} holds the arrays {list(gevonden)}")
    return gevonden


def keur_arrays(bron: Path, fragmenten: list[Path]) -> None:
    """The arrays are the fragments, byte for byte and nothing else."""
    gevonden = _arrays_van(bron, fragmenten)
    for wav in fragmenten:
        if gevonden[wav.stem] != serieel_pcm(wav):
            raise Afgekeurd(f"{bron.name}: the bytes of {wav.stem} are not those of the fragment")


def loop_frames(array: bytes) -> list[bytes]:
    """The frames of a Speex array, walked as firmware does it: a size byte, then so many bytes."""
    frames = []
    plaats = 4
    while plaats < len(array):
        begin = plaats + 1
        plaats = begin + array[plaats]
        frames.append(array[begin:plaats])
    if plaats != len(array):
        raise Afgekeurd("the last frame goes beyond the end of its array")
    return frames


def keur_speex(bron: Path, fragmenten: list[Path]) -> None:
    """Each array has the header of its fragment, and as many frames of 20 ms as cover it."""
    gevonden = _arrays_van(bron, fragmenten)
    for wav in fragmenten:
        with wave.open(str(wav), "rb") as geluid:
            rate, aantal = geluid.getframerate(), geluid.getnframes()
        array = gevonden[wav.stem]
        if array[:4] != struct.pack("<HH", rate, aantal & 0xFFFF):
            raise Afgekeurd(f"{bron.name}: {wav.stem} has the header {array[:4].hex()}")
        frames = loop_frames(array)
        if len(frames) != -(-aantal * 50 // rate):
            raise Afgekeurd(f"{bron.name}: {wav.stem} has {len(frames)} frames")
        if not all(frames):
            raise Afgekeurd(f"{bron.name}: {wav.stem} has an empty frame")


def smalle_samples(wav: Path) -> bytes:
    """What of a fragment reaches the ADPCM coder for a DAC of 16 bits: the low byte of each sample
    with its sign, in 16 bits again, without an odd last one."""
    with wave.open(str(wav), "rb") as bron:
        samples = bron.readframes(bron.getnframes() & ~1)
    return array("h", array("b", samples[::2])).tobytes()


# Where an ADPCM coder stands: its prediction and index. None before its first code.
Stand = tuple[int, int] | None


def codes_van(wav: Path, stand: Stand) -> tuple[bytes, Stand]:
    """The codes of a fragment by another coder, and where it then stands."""
    codes, stand = audioop.lin2adpcm(smalle_samples(wav), 2, stand)
    # That coder puts the earlier code in the high half of a byte.
    return bytes((b & 0x0F) << 4 | b >> 4 for b in codes), stand


def keur_adpcm(bron: Path, fragmenten: list[Path], stand: Stand = None) -> Stand:
    """Each array is the header of nine bytes, with a start from 0 and 0, and the codes of a coder
    that runs on from fragment to fragment. Returns where it stands behind the last one."""
    gevonden = _arrays_van(bron, fragmenten)
    for wav in sorted(fragmenten):
        codes, stand = codes_van(wav, stand)
        with wave.open(str(wav), "rb") as geluid:
            kop = struct.pack("<IHhB", len(codes), geluid.getframerate(), 0, 0)
        if gevonden[wav.stem] != kop + codes:
            raise Afgekeurd(f"{bron.name}: {wav.stem} does not hold the codes of the fragment")
    return stand


def keur_beelden(bron: Path, fragmenten: list[Path]) -> None:
    """Each array is a WAV file, of the fragment's samples: those of a DAC of 16 bits are not
    scaled."""
    gevonden = _arrays_van(bron, fragmenten)
    for wav in fragmenten:
        with wave.open(io.BytesIO(gevonden[wav.stem]), "rb") as beeld, wave.open(str(wav)) as bestand:
            if beeld.getparams() != bestand.getparams():
                raise Afgekeurd(f"{bron.name}: {wav.stem} is {beeld.getparams()}")
            if beeld.readframes(beeld.getnframes()) != samples_van(wav):
                raise Afgekeurd(f"{bron.name}: {wav.stem} does not hold the samples of the fragment")


def keur_vertaling(engels: Path, vertaald: Path) -> None:
    """Two texts of one encoding differ in comments alone, and do differ."""
    def kaal(bron: Path) -> str:
        return re.sub(r"/\*.*?\*/", "", bron.read_text(encoding="utf-8"), flags=re.S)

    if kaal(engels) != kaal(vertaald):
        raise Afgekeurd(f"{vertaald.name} differs from {engels.name} in more than its comments")
    if "/* Put these declarations in a header file :*/" in vertaald.read_text(encoding="utf-8"):
        raise Afgekeurd(f"{vertaald.name} is not translated")
