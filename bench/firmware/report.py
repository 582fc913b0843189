"""Measures what firmwareQuality decodes, puts the table into docs/firmware.md and draws the picture.

    report.py PROGRAM FRAGMENTS PICTURE.svg
    report.py PROGRAM FRAGMENTS --check       fails where the page has another table
"""

from __future__ import annotations

import csv
import os
import subprocess
import sys
import tempfile
import wave
from pathlib import Path

import numpy as np

from measure import fw_snr_seg, snr_seg
from page import PAGE, agree, fill, held
from plot import Case, draw

TITLES = {
    "ready": "ready, speech at 8000 Hz",
    "warning": "warning, speech at 8000 Hz",
    "chime": "chime, a struck bell at 16000 Hz",
    "alarm": "alarm, two tones at 32000 Hz",
}


def _sound(path: str | Path) -> tuple[np.ndarray, int]:
    with wave.open(str(path)) as file:
        return np.frombuffer(file.readframes(file.getnframes()), "<i2"), file.getframerate()


def _case(row: dict[str, str], fragments: Path) -> Case:
    original, rate = _sound(fragments / f"{row['fragment']}.wav")
    decoded = _sound(row["sound"])[0] * float(row["scale"])
    return Case(row["fragment"], row["encoder"], row["setting"],
                int(row["rate"]), fw_snr_seg(original, decoded, rate),
                snr_seg(original, decoded, rate))


def measure(program: str, fragments: Path) -> list[Case]:
    with tempfile.TemporaryDirectory() as folder:
        files = [str(fragments / f"{name}.wav") for name in TITLES]
        lines = subprocess.run([program, folder, *files], stdout=subprocess.PIPE, check=True,
                               text=True, env={**os.environ, "TMPDIR": folder}).stdout.splitlines()
        return [_case(row, fragments) for row in csv.DictReader(lines, delimiter="\t")]


def _cell(case: Case) -> str:
    # Plus zero: a figure that is rounded to zero has no sign.
    quality, plain = round(case.quality, 1) + 0, round(case.wave, 1) + 0
    return f"{quality} dB ({plain}), {case.rate / 1000:.1f} kB/s"


def table(cases: list[Case]) -> str:
    """A row a setting; of each fragment both figures of quality, and the bytes a second."""
    rows = ["| Encoder | Setting | " + " | ".join(TITLES) + " |",
            "|---|---|" + "---|" * len(TITLES)]
    found = {(case.encoder, case.setting, case.fragment): _cell(case) for case in cases}
    for setting in dict.fromkeys((case.encoder, case.setting) for case in cases):
        cells = [*setting, *(found[(*setting, fragment)] for fragment in TITLES)]
        rows.append("| " + " | ".join(cells) + " |")
    return "\n".join(rows)


def main() -> None:
    program, fragments, picture = sys.argv[1:]
    cases = measure(program, Path(fragments))
    if picture != "--check":
        fill({"quality": table(cases)})
        draw(cases, TITLES, picture)
    elif not agree(held(PAGE.read_text(encoding="utf-8"), "quality"), table(cases)):
        sys.exit(f"{PAGE.name} has another table than this:\n\n{table(cases)}")


if __name__ == "__main__":
    main()
