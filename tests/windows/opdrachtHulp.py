"""What the tests of kestrolin-cli.exe share: runs by Wine, and recordings to run it on."""

from __future__ import annotations

import os
import random
import struct
import subprocess
import wave
from dataclasses import dataclass, field
from pathlib import Path

WORTEL = Path(__file__).resolve().parents[2]
FRAGMENTEN = WORTEL / "fragmenten"
WIJN = WORTEL / "tests" / "steun" / "wijn"
EPOCH = "1795262400"  # 2026-11-21 12:00:00 UTC


@dataclass
class Einde:
    """What a run of the program left: its status, its two outputs, and the files of its folder."""

    status: int
    uit: bytes
    fout: bytes
    bestanden: dict[str, bytes] = field(default_factory=dict)


def bestanden_in(map_: Path) -> dict[str, bytes]:
    return {str(pad.relative_to(map_)): pad.read_bytes() for pad in sorted(map_.rglob("*")) if pad.is_file()}


def draai(programma: list[str], woorden: list[str], map_: Path, invoer: bytes = b"", **omgeving: str) -> Einde:
    """Runs the program in the folder to its end."""
    alles = os.environ | {"SOURCE_DATE_EPOCH": EPOCH, "LC_ALL": "C.UTF-8"} | omgeving
    klaar = subprocess.run([*programma, *woorden], cwd=map_, env=alles, input=invoer, capture_output=True, check=False)
    return Einde(klaar.returncode, klaar.stdout, klaar.stderr, bestanden_in(map_))


def maak_wav(pad: Path, rate: int, samples: list[int], kanalen: int = 1) -> None:
    with wave.open(str(pad), "wb") as uit:
        uit.setnchannels(kanalen)
        uit.setsampwidth(2)
        uit.setframerate(rate)
        uit.writeframes(struct.pack(f"<{len(samples)}h", *samples))


def ruis(aantal: int, zaad: int, top: int = 32767) -> list[int]:
    """Samples of any value, with the outermost ones among them."""
    bron = random.Random(zaad)
    return [bron.choice([0, -1, 1, top, -top - 1, bron.randint(-top - 1, top)]) for _ in range(aantal)]
