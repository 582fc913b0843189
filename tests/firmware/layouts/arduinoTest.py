"""Tests of the Arduino library: its sketch plays its sound to the last sample on an emulated Uno.

    arduinoTest.py library|text|sketch BUILD

Where `sketch` lacks its tools, it ends with status 77, or fails where KESTROLIN_TARGET says "required".
"""

from __future__ import annotations

import audioop
import re
import struct
import sys
import tempfile
from array import array
from pathlib import Path
from typing import Callable

HERE = Path(__file__).resolve().parent
sys.path[:0] = [str(HERE.parent / "build"), str(HERE.parent / "example"), str(HERE.parents[2] / "tour")]

# pylint: disable=wrong-import-position
from exampleTest import skip
from nakijken import arrays_in
from project import MOMENT, RECORDINGS, ROOT, command_of, equal, run, succeed

LAYOUTS = ROOT / "firmware" / "layouts"
EXAMPLE = Path("examples", "Doorbell")
HARDWARE = Path("/usr/share/arduino/hardware")
# What has to be there, and the package that has it.
NEEDED = {
    "/usr/bin/arduino-builder": "arduino-builder",
    str(HARDWARE / "arduino" / "avr" / "boards.txt"): "arduino-core-avr",
    "/usr/bin/avr-g++": "gcc-avr",
    "/usr/lib/avr/include/avr/pgmspace.h": "avr-libc",
    "/usr/bin/simavr": "simavr",
    "/usr/include/simavr/avr/avr_mcu_section.h": "libsimavr-dev",
}
# The file of the array, and the code of silence.
TEXT = "ready.hpp"
SILENCE = 128
# Between two samples, in microseconds, and how much sooner or later a code may come: the clock of the Arduino
# core has an interrupt too, and the decoder takes another way through for another code.
PERIOD, JITTER = 125, 20


def make(work: Path) -> Path:
    """The library, where the builder looks for it."""
    library = work / "libraries" / "Kestrolin"
    succeed(LAYOUTS / "make-arduino", library)
    return library


def library_(work: Path, _build: Path) -> None:
    """It has what the builder asks of a library, all readers flat, and the version of the project."""
    made = make(work)
    properties = dict(line.split("=", 1) for line in
                      (made / "library.properties").read_text(encoding="utf-8").splitlines())
    version = re.search(r"^project\(Kestrolin VERSION (\S+)", (ROOT / "CMakeLists.txt").read_text(encoding="utf-8"),
                        re.M)
    assert version is not None
    equal(properties["version"], version[1], "the version")
    equal(properties["name"], made.name, "the name")
    equal(properties["architectures"], "*", "the architectures")
    umbrella = made / "src" / properties["includes"]
    readers = {path.name for path in (ROOT / "firmware").glob("kestrolin_*.[ch]")}
    equal({path.name for path in (made / "src").iterdir()}, readers | {umbrella.name}, "the sources")
    (work / "all.cpp").write_text(f'#include "{umbrella.name}"\n', encoding="utf-8")
    seen = succeed("g++", "-M", f"-I{umbrella.parent}", work / "all.cpp")
    equal({name for name in readers if name.endswith(".h")} - set(re.findall(r"kestrolin_\w+\.h", seen)), set(),
          "headers that it leaves out")


def text(work: Path, build: Path) -> None:
    """The array is what the tool makes of the sample fragment, as the head of the sketch tells."""
    succeed("sox", "-D", RECORDINGS / "ready.wav", work / "ready.wav", "vol", "0.00387")
    succeed(*command_of(build), "encode", "--encoder", "adpcm", "-o", TEXT, "ready.wav", cwd=work,
            SOURCE_DATE_EPOCH=MOMENT)
    made, kept = ((folder / TEXT).read_text(encoding="utf-8").splitlines()
                  for folder in (work, LAYOUTS / "arduino" / EXAMPLE))
    equal(*([line for line in lines if "Encoded on" not in line] for lines in (made, kept)), TEXT)


def wanted(example: Path) -> list[int]:
    """The codes of the array, by another decoder."""
    content = arrays_in(example / TEXT)["ready"]
    count, rate, predictor, index = struct.unpack("<IHhB", content[:9])
    equal((count, rate, predictor, index), (len(content) - 9, 8000, 0, 0), "the header of the array")
    # That decoder takes the earlier code from the high half of a byte.
    packed = bytes((byte & 0x0F) << 4 | byte >> 4 for byte in content[9:])
    samples = array("h", audioop.adpcm2lin(packed, 2, None)[0])
    return [min(max(sample + SILENCE, 0), 255) for sample in samples]


def compiled(work: Path, library: Path) -> Path:
    """The program, built as with "More warnings", none of which is about the library or the sketch."""
    folder = work / "build"
    folder.mkdir()
    # The compiler of Debian 12 knows the macro by its other name alone, in C++, and the core of the board
    # needs the one.
    said = succeed("arduino-builder", "-hardware", "/usr/share/arduino-builder", "-hardware", HARDWARE, "-tools",
                   "/usr/bin", "-libraries", library.parent, "-fqbn", "arduino:avr:uno", "-warnings", "all",
                   "-prefs=compiler.cpp.extra_flags=-DDECIMAL_DIG=__DECIMAL_DIG__", "-build-path", folder,
                   library / EXAMPLE / "Doorbell.ino")
    # Nor is what a newer linker says of its own pace.
    found = [line for line in said.splitlines()
             if re.search(r"warning|error", line) and not line.startswith((str(HARDWARE), "lto-wrapper: "))]
    equal(found, [], "warnings")
    return folder / "Doorbell.ino.elf"


def heard(work: Path, library: Path, program: Path, least: int) -> list[tuple[float, int]]:
    """The moments and codes, `least` at least, of a run that is as long as it has to be."""
    codes: list[tuple[float, int]] = []
    for seconds in (2, 8, 32, 128, 512):
        status, said = run(library / "extras" / "simavr" / "codes", program, str(seconds), cwd=work)
        equal(status, 0, said)
        rows = re.findall(r"^(\d+\.\d+) (\d+)$", said, re.M)
        codes = [(float(moment), int(code)) for moment, code in rows]
        if len(codes) >= least:
            break
    return codes


def need_tools() -> None:
    missing = [package for path, package in NEEDED.items() if not Path(path).exists()]
    if missing:
        skip(f"not installed: packages {' '.join(missing)}")


def sketch(work: Path, _build: Path) -> None:
    need_tools()
    library = make(work)
    program = compiled(work, library)
    samples = wanted(library / EXAMPLE)
    # Silence before the first one, and behind the last.
    codes = heard(work, library, program, len(samples) + 2)
    equal([code for _, code in codes], [SILENCE, *samples, SILENCE], "the codes")
    moments = [moment for moment, _ in codes[1:]]
    late = [moment for at, moment in enumerate(moments) if abs(moment - moments[0] - at * PERIOD) > JITTER]
    equal(late, [], "codes that do not come 8000 times a second")


CASES: dict[str, Callable[[Path, Path], None]] = {"library": library_, "text": text, "sketch": sketch}

if __name__ == "__main__":
    with tempfile.TemporaryDirectory(prefix="kestrolinArduino") as folder_:
        CASES[sys.argv[1]](Path(folder_), Path(sys.argv[2]))
