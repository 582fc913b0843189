"""Puts what firmwareQuality measures into the table of docs/firmware.md, and draws the picture.

    report.py PROGRAM FRAGMENTS PICTURE.svg
    report.py PROGRAM FRAGMENTS --check       fails where the page has another table
"""

from __future__ import annotations

import csv
import os
import subprocess
import sys
import tempfile
from pathlib import Path

from page import PAGE, agree, fill, held
from plot import Case, draw

TITLES = {
    "ready": "ready, speech at 8000 Hz",
    "warning": "warning, speech at 8000 Hz",
    "chime": "chime, a struck bell at 16000 Hz",
    "alarm": "alarm, two tones at 32000 Hz",
}


def measure(program: str, fragments: Path) -> list[Case]:
    with tempfile.TemporaryDirectory() as folder:
        files = [str(fragments / f"{name}.wav") for name in TITLES]
        lines = subprocess.run([program, folder, *files], stdout=subprocess.PIPE, check=True,
                               text=True, env={**os.environ, "TMPDIR": folder}).stdout.splitlines()
    return [Case(row["fragment"], row["encoder"], row["setting"], int(row["rate"]),
                 float(row["quality"]), float(row["wave"]))
            for row in csv.DictReader(lines, delimiter="\t")]


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
