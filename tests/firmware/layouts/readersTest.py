"""Tests of the readers in a project with CMake: from an installation, from a source tree, or by themselves.

    readersTest.py CASE CMAKE BUILD

Where `target` lacks the tools of the emulated board, it ends with status 77, or fails where
KESTROLIN_TARGET says "required".
"""

from __future__ import annotations

import re
import sys
import tarfile
import tempfile
from pathlib import Path
from typing import Callable

HERE = Path(__file__).resolve().parent
sys.path[:0] = [str(HERE.parent / "build"), str(HERE.parent / "example")]

# pylint: disable=wrong-import-position
from exampleTest import need_tools
from player import Sounds
from project import RECORDINGS, ROOT, STRICT, Place, equal, install, succeed

FIND = """\
cmake_minimum_required(VERSION 3.13)
project(Bell C)
find_package(KestrolinReaders 1.1 REQUIRED{more})
add_executable(bell main.c)
target_link_libraries(bell PRIVATE kestrolin::readers)
"""
# For the board of firmware/example.
ON_BOARD = """\
target_sources(bell PRIVATE "{example}/board_mps2.c" "{example}/semihosting.c" "{example}/startup.c")
target_include_directories(bell PRIVATE "{example}")
target_link_options(bell PRIVATE -nostartfiles --specs=nano.specs -T "{example}/mps2-an386.ld")
"""
FETCH = """\
cmake_minimum_required(VERSION 3.24)
project(Bell C)
include(FetchContent)
FetchContent_Declare(kestrolin URL "{archive}" SOURCE_SUBDIR firmware)
FetchContent_MakeAvailable(kestrolin)
add_executable(bell main.c)
target_link_libraries(bell PRIVATE kestrolin::readers)
"""
TOGETHER = """\
cmake_minimum_required(VERSION 3.20)
project(Bell C)
{packages}
kestrolin_add_sounds(words FILES ready.wav)
add_executable(bell main.c)
target_link_libraries(bell PRIVATE words kestrolin::readers)
"""
WORDS = """\
#include <kestrolin_pcm.h>

#include "words.h"

int main(void) {
  kestrolin_pcm pcm;
  return kestrolin_pcm_open(&pcm, ready, ready_size) != KESTROLIN_OK || pcm.left != 5005;
}
"""


def readers_alone(place: Place) -> Path:
    """The prefix of an installation without the tool."""
    prefix = place.folder / "prefix"
    install(place.cmake, place.build, prefix)
    for program in (prefix / "bin").iterdir():
        program.unlink()
    return prefix


def built(place: Place, folder: Path, *settings: str) -> Path:
    """The program of a folder, which is configured and built without a warning."""
    for words in (("-S", folder, "-B", folder / "build", *settings), ("--build", folder / "build")):
        said = succeed(place.cmake, *words)
        assert "warning" not in said.lower(), said
    return folder / "build" / "bell"


def project(place: Place, text: str, board: bool = False) -> tuple[Path, Sounds]:
    folder, sounds = place.folder / "project", Sounds()
    folder.mkdir()
    (folder / "CMakeLists.txt").write_text(text, encoding="utf-8")
    sounds.write(folder, **({"board": None} if board else {}))
    return folder, sounds


def host(place: Place) -> None:
    """From an installation, by its prefix, without kestrolin-cli."""
    folder, sounds = project(place, FIND.format(more=""))
    prefix = readers_alone(place)
    bell = built(place, folder, f"-DCMAKE_PREFIX_PATH={prefix}", f"-DCMAKE_C_FLAGS={STRICT}")
    succeed(bell, cwd=place.folder)
    sounds.check(place.folder)
    cache = (folder / "build" / "CMakeCache.txt").read_text(encoding="utf-8")
    assert str(place.build) not in cache, "it knows of the build tree"


def target(place: Place) -> None:
    """The same for another processor, whose toolchain looks for packages of its own alone."""
    need_tools()
    prefix = readers_alone(place)
    firmware = prefix / "share" / "kestrolin" / "firmware"
    text = FIND.format(more=" NO_CMAKE_FIND_ROOT_PATH") + ON_BOARD.format(example=firmware / "example")
    folder, sounds = project(place, text, board=True)
    bell = built(place, folder, f"-DCMAKE_PREFIX_PATH={prefix}", f"-DCMAKE_FIND_ROOT_PATH={place.folder / 'root'}",
                 "--toolchain", str(firmware / "example-cmake" / "arm-none-eabi.cmake"))
    succeed(firmware / "example" / "emulate", bell, cwd=place.folder)
    sounds.check(place.folder)


def fetched(place: Place) -> None:
    """From the source tree, of which the readers are built and nothing else."""
    archive = place.folder / "kestrolin.tar.gz"
    with tarfile.open(archive, "w:gz") as packed:
        for name in ("CMakeLists.txt", "firmware"):
            packed.add(ROOT / name, f"kestrolin/{name}")
    folder, sounds = project(place, FETCH.format(archive=archive))
    succeed(built(place, folder), cwd=place.folder)
    sounds.check(place.folder)


def alone(place: Place) -> None:
    """The folder of the readers by itself is a project, for whoever links by hand."""
    folder, sounds, readers = place.folder / "readers", Sounds(), ROOT / "firmware"
    for words in (("-S", readers, "-B", folder), ("--build", folder)):
        said = succeed(place.cmake, *words)
        assert "warning" not in said.lower(), said
    sounds.write(place.folder)
    succeed("gcc", "-std=c99", f"-I{readers}", "-o", "bell", "main.c", folder / "libkestrolin_readers.a",
            cwd=place.folder)
    succeed(place.folder / "bell", cwd=place.folder)
    sounds.check(place.folder)


def together(place: Place) -> None:
    """Beside the package with the tool, before and behind it, in a build tree; the readers are made once."""
    packages = [f"find_package({name} 1.1 REQUIRED)" for name in ("Kestrolin", "KestrolinReaders")]
    for name, order in (("behind", packages), ("before", packages[::-1])):
        folder = place.folder / name
        folder.mkdir()
        (folder / "CMakeLists.txt").write_text(TOGETHER.format(packages="\n".join(order)), encoding="utf-8")
        (folder / "main.c").write_text(WORDS, encoding="utf-8")
        (folder / "ready.wav").write_bytes((RECORDINGS / "ready.wav").read_bytes())
        succeed(built(place, folder, f"-DCMAKE_PREFIX_PATH={place.build}"))
        equal(len(list(folder.rglob("libkestrolin_readers.a"))), 1, "libraries of the readers")


def languages(place: Place) -> None:
    """A project without C is told so."""
    text = FIND.format(more="").replace("Bell C", "Bell CXX").replace("REQUIRED", "QUIET")
    lists = text.split("add_executable", maxsplit=1)[0]
    lists += "message(STATUS found=${KestrolinReaders_FOUND},${KestrolinReaders_NOT_FOUND_MESSAGE})\n"
    folder, _ = project(place, lists)
    said = succeed(place.cmake, "-S", folder, "-B", folder / "build", f"-DCMAKE_PREFIX_PATH={place.build}")
    assert re.search("^-- found=(0|FALSE),the readers are C, so that", said, re.M), said


CASES: dict[str, Callable[[Place], None]] = {
    case.__name__: case for case in (host, target, fetched, alone, together, languages)
}

if __name__ == "__main__":
    with tempfile.TemporaryDirectory(prefix="kestrolinReaders") as folder_:
        CASES[sys.argv[1]](Place(*sys.argv[2:4], folder_))
