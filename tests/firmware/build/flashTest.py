"""Test of what kestrolin-cli encode --flash makes, with the compilers for AVR: arrays and states lie in
flash, in C and in C++.

    flashTest.py BUILD

Where their packages are missing, it ends with status 77, or fails where KESTROLIN_TARGET says "required".
"""

from __future__ import annotations

import shutil
import sys
import tempfile
from pathlib import Path

from project import RECORDINGS, ROOT, command_of, equal, run, succeed

sys.path.insert(0, str(ROOT / "tests" / "firmware" / "example"))

# pylint: disable=wrong-import-position
from exampleTest import skip

# The section of what avr-libc's PROGMEM puts into flash.
FLASH = ".progmem.data"
COMPILER = {"c": ["avr-gcc", "-std=c99"], "c++": ["avr-g++", "-std=c++11"]}
# What each encoder makes for a recording beside its array.
ENCODERS = {"speex": [], "adpcm": ["_state"], "pcm": [], "wav": []}
FRAGMENTS = ("ready", "warning")


def encode(build: Path, work: Path, language: str, encoder: str, *options: str) -> None:
    also = ["--class", "Bell"] if language == "c++" else []
    also += ["--states"] if encoder == "adpcm" else []
    succeed(*command_of(build), "encode", "--encoder", encoder, "--language", language, *also, *options, "-o",
            "bell.inc", "--declarations", "bell.h", "--source", "bell.source",
            *(f"{fragment}.wav" for fragment in FRAGMENTS), cwd=work)


def in_flash(work: Path, language: str) -> set[str]:
    """The names of what an object for AVR has in flash."""
    succeed(*COMPILER[language], "-mmcu=atmega328p", "-Os", "-Wall", "-Wextra", "-Wpedantic", "-Werror",
            f"-I{ROOT / 'firmware'}", "-x", language, "-c", "-o", "bell.o", "bell.source", cwd=work)
    rows = (line.split() for line in succeed("avr-objdump", "-t", "-C", "bell.o", cwd=work).splitlines())
    return {row[-1] for row in rows if len(row) == 6 and row[1:4] == ["g", "O", FLASH]}


def main(build: Path, work: Path) -> None:
    # The C library is a package of its own.
    (work / "probe.c").write_text("#include <avr/pgmspace.h>\n", encoding="utf-8")
    if shutil.which("avr-g++") is None or run("avr-gcc", "-E", work / "probe.c").status != 0:
        skip("not installed: packages gcc-avr avr-libc")
    for fragment in FRAGMENTS:
        shutil.copy(RECORDINGS / f"{fragment}.wav", work)
    for language in COMPILER:
        member = "Bell::" if language == "c++" else ""
        for encoder, also in ENCODERS.items():
            encode(build, work, language, encoder, "--flash")
            equal(in_flash(work, language),
                  {f"{member}{fragment}{end}" for fragment in FRAGMENTS for end in ("", *also)},
                  f"in flash, {encoder} in {language}")
    encode(build, work, "c", "adpcm")
    equal(in_flash(work, "c"), set(), "in flash without --flash")


if __name__ == "__main__":
    with tempfile.TemporaryDirectory(prefix="kestrolinFlash") as folder_:
        main(Path(sys.argv[1]), Path(folder_))
