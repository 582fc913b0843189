"""Tests of the readers as two files: they need no other file, whatever the compiler, and play every array.

    twoFilesTest.py c|cpp|targets

Where `targets` finds none of its compilers, it ends with status 77; under KESTROLIN_TARGET=required each of
them has to be there.
"""

from __future__ import annotations

import os
import re
import shutil
import sys
import tempfile
from pathlib import Path
from typing import Callable

HERE = Path(__file__).resolve().parent
sys.path[:0] = [str(HERE.parent / "build"), str(HERE.parent / "example")]

# pylint: disable=wrong-import-position
from exampleTest import skip
from player import Sounds
from project import ROOT, STRICT, equal, run, succeed

FIRMWARE = ROOT / "firmware"
PAIR = ("kestrolin_readers.c", "kestrolin_readers.h")
# Twice, as headers of a product may do.
READERS = '#include "kestrolin_readers.h"\n' * 2
# The compilers of other processors, and what each needs to be told. An Arduino is built with the second.
TARGETS = (("arm-none-eabi-gcc", "-mcpu=cortex-m0", "gcc-arm-none-eabi libnewlib-arm-none-eabi"),
           ("avr-gcc", "-mmcu=atmega328p", "gcc-avr avr-libc"))


def make(work: Path) -> Path:
    """The two files, in a folder of their own."""
    folder = work / "two files"
    succeed(FIRMWARE / "layouts" / "make-two-files", folder)
    equal(sorted(path.name for path in folder.iterdir()), sorted(PAIR), "what was made")
    return folder


def play(folder: Path, work: Path, compiler: list[str], program: str) -> None:
    """Links a program with the compiled readers, and hears it."""
    sounds = Sounds()
    sounds.write(work, READERS)
    (work / "main.c").rename(work / program)
    succeed(*compiler, f"-I{folder}", "-o", "bell", program, "readers.o", cwd=work)
    succeed(work / "bell", cwd=work)
    sounds.check(work)


def in_c(work: Path) -> None:
    folder = make(work)
    for compiler in ("gcc", "clang"):
        words = [compiler, "-std=c99", *STRICT.split()]
        succeed(*words, "-c", "-o", "readers.o", folder / "kestrolin_readers.c", cwd=work)
        play(folder, work, words, "main.c")
    whole(folder)


def whole(folder: Path) -> None:
    """The licence stands at the top of both, and the guard and every operation of each header are there."""
    licence = (FIRMWARE / "LICENSE").read_text(encoding="utf-8").split()
    source, header = ((folder / name).read_text(encoding="utf-8") for name in PAIR)
    for text in (source, header):
        top = [word for word in text[:2000].split() if word != "*"]
        begin = top.index("MIT", top.index("MIT") + 1)
        equal(top[begin:begin + len(licence)], licence, "the licence")
        equal(len(text.split("SPDX-License-Identifier: MIT")), 2, "its short form, and one more")
    equal(re.findall(r'#include "(.*)"', source + header), [PAIR[1]], "our files that they include")
    for path in FIRMWARE.glob("kestrolin_*.h"):
        equal(header.count(f"#define {path.stem.upper()}_H\n"), 1, f"the guard of {path.name}")
        for name in re.findall(r"kestrolin_\w+(?=\()", path.read_text(encoding="utf-8")):
            assert name in header, f"{name} is missing"


def in_cpp(work: Path) -> None:
    """A program in C++ links with what the C compiler made."""
    folder = make(work)
    succeed("gcc", "-std=c99", "-c", "-o", "readers.o", folder / "kestrolin_readers.c", cwd=work)
    for standard in ("11", "20"):
        play(folder, work, ["g++", f"-std=c++{standard}", *STRICT.split()], "main.cpp")


def targets(work: Path) -> None:
    folder = make(work)
    # A C library is a package of its own.
    (work / "probe.c").write_text("#include <string.h>\n", encoding="utf-8")
    there = [row for row in TARGETS
             if shutil.which(row[0]) and run(row[0], row[1], "-E", work / "probe.c").status == 0]
    missing = [row for row in TARGETS if row not in there]
    if missing and (not there or os.environ.get("KESTROLIN_TARGET") == "required"):
        skip(f"not installed: packages {' '.join(row[2] for row in missing)}")
    for compiler, option, _ in there:
        for words in (["-std=c99", "-Os"], ["-std=c11", "-O2"]):
            succeed(compiler, option, *words, "-Wall", "-Wextra", "-Wpedantic", "-Werror", "-c", "-o",
                    "readers.o", folder / "kestrolin_readers.c", cwd=work)


CASES: dict[str, Callable[[Path], None]] = {"c": in_c, "cpp": in_cpp, "targets": targets}

if __name__ == "__main__":
    with tempfile.TemporaryDirectory(prefix="kestrolinTwoFiles") as folder_:
        CASES[sys.argv[1]](Path(folder_))
