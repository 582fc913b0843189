"""A newcomer with docs/firmware.md, an installation and an empty folder, who takes a way that needs no
window: every file and command of the chapter is taken as it stands there, and what comes out are the codes
of the recording.

    pageTest.py CASE CMAKE BUILD

Ends with status 77 where the tools of a chapter are not installed, or fails where KESTROLIN_TARGET says
"required".
"""

from __future__ import annotations

import os
import subprocess
import sys
import tempfile
from pathlib import Path
from typing import Callable

ROOT = Path(__file__).resolve().parents[3]
sys.path[:0] = [str(ROOT / "tests" / "zwart"), str(Path(__file__).resolve().parent)]

# pylint: disable=wrong-import-position
import arduinoTest
from pagina import blokken, installeer, samples_in, stappen, voer_uit

MID = 2048
BELL = """\
#include <kestrolin_pcm.h>

int main(void) {
  kestrolin_pcm pcm;
  return kestrolin_pcm_open(&pcm, (const unsigned char*)"", 0) != KESTROLIN_TRUNCATED;
}
"""


class Reader:
    """Who follows a chapter, in an empty folder."""

    def __init__(self, chapter: str, work: Path, prefix: Path) -> None:
        self.text = stappen("firmware.md", chapter)
        self.folder = work / "empty"
        self.folder.mkdir()
        self.shared = prefix / "share" / "kestrolin"
        self.variables = {
            "KESTROLIN": str(self.shared), "CMAKE_PREFIX_PATH": str(prefix),
            "PATH": f"{prefix / 'bin'}:{os.environ['PATH']}", "HOME": str(work),
        }

    def commands(self) -> list[str]:
        return [block for language, block, _ in blokken(self.text) if language == "sh"]

    def write_files(self, *names: str) -> list[str]:
        """The files of the chapter, which have to begin with these; returns the blocks behind them."""
        files = [(name, block) for language, block, name in blokken(self.text) if language in ("c", "cmake")]
        assert tuple(name for name, _ in files[:len(names)]) == names, f"the chapter has {files}"
        for name, block in files[:len(names)]:
            (self.folder / name).write_text(block, encoding="utf-8")
        return [block for _, block in files[len(names):]]

    def run(self, commands: str) -> str:
        return voer_uit(commands, self.folder, **self.variables)


def numbers(file: Path, column: int = 0) -> list[int]:
    return [int(line.split()[column]) for line in file.read_text(encoding="utf-8").splitlines()]


def recording(reader: Reader) -> list[int]:
    """The codes of the recording, at a DAC of 12 bits that is left at mid-scale."""
    samples, _ = samples_in(reader.shared / "fragmenten" / "ready.wav")
    return [*(int(sample / 16) + MID for sample in samples), MID]


def cmake(work: Path, prefix: Path) -> None:
    reader = Reader("A project with CMake", work, prefix)
    copy, build = reader.commands()
    reader.run(copy)
    installed, fetched = reader.write_files("CMakeLists.txt", "main.c")
    reader.run(build)
    assert numbers(reader.folder / "codes.txt") == recording(reader), "the codes are not those of the recording"

    # What the source tree has of the readers, packed.
    archive = work / "tree.tar"
    subprocess.run(["tar", "-cf", archive, "--exclude=build", "-C", ROOT.parent, f"{ROOT.name}/LICENSE",
                    f"{ROOT.name}/firmware"], check=True)
    for number, lines in enumerate((installed, fetched.replace("/path/to/kestrolin.tar.gz", str(archive)))):
        assert "/path/to" not in lines, lines
        project = reader.folder / f"readers{number}"
        project.mkdir()
        (project / "bell.c").write_text(BELL, encoding="utf-8")
        (project / "CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.24)\nproject(Doorbell C)\nadd_executable(doorbell bell.c)\n" + lines,
            encoding="utf-8")
        reader.run(f"cd {project.name}; cmake -S . -B build; cmake --build build; build/doorbell")


def two_files(work: Path, prefix: Path) -> None:
    reader = Reader("Two files", work, prefix)
    copy, build = reader.commands()
    reader.run(copy)
    assert not reader.write_files("player.c")
    reader.run(build)
    assert numbers(reader.folder / "codes.txt") == recording(reader), "the codes are not those of the recording"


def arduino(work: Path, prefix: Path) -> None:
    arduinoTest.need_tools()
    reader = Reader("A sketch for Arduino", work, prefix)
    copy, sound, build = reader.commands()
    reader.run(copy)
    reader.run(sound)
    reader.run(build)
    codes = [arduinoTest.SILENCE, *arduinoTest.wanted(reader.folder / "sketches" / "Doorbell"), arduinoTest.SILENCE]
    # A slow machine takes longer than the page says.
    trace = build.splitlines()[-1]
    for seconds in ("8", "40", "200", "1000"):
        found = numbers(reader.folder / "codes.txt", column=1)
        if len(found) >= len(codes):
            break
        reader.run(trace.replace(" 8 >", f" {seconds} >"))
    assert found == codes, "the codes are not those of the recording"


CASES: dict[str, Callable[[Path, Path], None]] = {"cmake": cmake, "twoFiles": two_files, "arduino": arduino}


def main() -> None:
    case, program, build = sys.argv[1:]
    with tempfile.TemporaryDirectory(prefix="kestrolinPage") as folder:
        prefix = Path(folder, "prefix")
        installeer(program, build, prefix)
        CASES[case](Path(folder), prefix)


if __name__ == "__main__":
    main()
