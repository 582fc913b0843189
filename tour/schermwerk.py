"""Waiting, keys and screenshots: what anybody does who works a program on a screen."""

from __future__ import annotations

import subprocess
import time
from pathlib import Path
from typing import Callable, Optional, TypeVar

from toegang import Fout

T = TypeVar("T")

# Seconds. It ends only where nothing comes any more: no machine is too busy for it.
GEDULD = 300.0


class NietGebeurd(Exception):
    """Something that had to happen did not, within the time given."""


def wacht(voorwaarde: Callable[[], Optional[T]], wat: str) -> T:
    """Polls until the condition gives something true, and returns that."""
    einde = time.monotonic() + GEDULD
    while True:
        try:
            uitkomst = voorwaarde()
        except Fout:  # a control that went away while it was looked at
            uitkomst = None
        if uitkomst:
            return uitkomst
        if time.monotonic() > einde:
            raise NietGebeurd(f"waited {GEDULD:.0f} s for this: {wat}")
        time.sleep(0.05)


def opdracht(*woorden: str, invoer: Optional[bytes] = None) -> bytes:
    return subprocess.run(woorden, check=True, input=invoer, stdout=subprocess.PIPE).stdout


def toets(*toetsen: str) -> None:
    opdracht("xdotool", "key", *toetsen)


def typ(tekst: str) -> None:
    opdracht("xdotool", "type", "--delay", "15", tekst)


def schermafdruk(pad: Path) -> None:
    """Writes what is on the screen to a PNG file, as soon as it stands still."""
    # Away from all windows, for no tooltip to come up.
    opdracht("xdotool", "mousemove", "0", "0")
    beeld, gelijk = b"", 0
    for _ in range(100):
        vorige, beeld = beeld, opdracht("import", "-window", "root", "-depth", "8", "ppm:-")
        gelijk = gelijk + 1 if beeld == vorige else 0
        if gelijk == 3:
            break
        time.sleep(0.1)
    opdracht("convert", "ppm:-", "-trim", "+repage", str(pad), invoer=beeld)
