"""A build for another processor, which hulp/processor makes and QEMU runs."""

from __future__ import annotations

import os
import subprocess
import sys
from pathlib import Path

WORTEL = Path(__file__).resolve().parents[2]
MIST = 77  # what hulp/processor ends with where its tools are missing


def bouw(processor: str, *doelen: str) -> Path:
    """The folder of the build, with these targets in it; ends the test where that cannot be."""
    klaar = subprocess.run([str(WORTEL / "hulp" / "processor"), processor, *doelen], check=False)
    if klaar.returncode == MIST and os.environ.get("KESTROLIN_PROCESSORS") != "required":
        sys.exit(MIST)
    if klaar.returncode:
        sys.exit(f"hulp/processor {processor}: exit status {klaar.returncode}")
    return WORTEL / "build" / processor


def programma(map_: Path, naam: str) -> list[str]:
    """A program of such a build, as a command of this machine."""
    return [str(map_ / "draai"), str(map_ / naam)]
