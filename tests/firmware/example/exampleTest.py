"""Tests of the example for the target: what the DAC gets is what the fragments hold.

    exampleTest.py CASE FRAGMENTTEKSTEN

builds the example in a directory of its own. Where a case needs the emulated board and its tools are
not installed, it ends with status 77, or fails where KESTROLIN_TARGET says "required".
"""

from __future__ import annotations

import audioop
import math
import os
import re
import shutil
import subprocess
import sys
import tempfile
from array import array
from pathlib import Path
from typing import Callable

HERE = Path(__file__).resolve().parent
ROOT = HERE.parents[2]
sys.path.insert(0, str(ROOT / "tour"))

# pylint: disable=wrong-import-position
from nakijken import Stand, arrays_in, codes_van, samples_van

EXAMPLE = ROOT / "firmware" / "example"
TOOLS = ("arm-none-eabi-gcc", "qemu-system-arm")
PACKAGES = "gcc-arm-none-eabi libnewlib-arm-none-eabi qemu-system-arm"
# What else is measured, and the packages that have the tools for it.
OTHER_TARGETS = {
    "/usr/lib/avr/include/avr/pgmspace.h": "avr-libc",
    "/usr/include/simavr/sim_avr.h": "libsimavr-dev",
    "/usr/include/libelf.h": "libelf-dev",
    "/usr/lib/picolibc/riscv64-unknown-elf/picolibc.specs": "picolibc-riscv64-unknown-elf",
    "/usr/bin/qemu-system-riscv32": "qemu-system-misc",
}
# A program of the board, with what the board brings along.
TARGET = ("arm-none-eabi-gcc", "-Os", "-mcpu=cortex-m4", "-mthumb", "-nostartfiles", "--specs=nano.specs",
          "-T", EXAMPLE / "mps2-an386.ld",
          *(EXAMPLE / f"{name}.c" for name in ("board_mps2", "semihosting", "startup")))
SKIPPED = 77
MID = 2048

PLAIN = ("ready_pcm", "chime_pcm", "ready_adpcm", "warning_adpcm", "chime_wav", "alarm_wav")
# The text of each, its band, its samples, and those by which the codec is late.
SPEEX = {
    "ready_speex": ("speex8.c", 0, 5005, 80),
    "warning_speex": ("speex8.c", 0, 6367, 80),
    "chime_speex": ("speex16.c", 1, 19200, 223),
    "alarm_speex": ("speex32.c", 2, 16000, 509),
}


def skip(why: str) -> None:
    if os.environ.get("KESTROLIN_TARGET") == "required":
        sys.exit(f"{why}, and KESTROLIN_TARGET says that it is required")
    print(f"skipped: {why}")
    sys.exit(SKIPPED)


def need_tools() -> None:
    missing = [tool for tool in TOOLS if shutil.which(tool) is None]
    if missing:
        skip(f"{' and '.join(missing)} not installed (packages {PACKAGES})")
    # The compiler answers with the bare name where it does not find the file.
    if run_text("arm-none-eabi-gcc", "-print-file-name=nano.specs") == "nano.specs":
        skip(f"the C library of the target is not installed (packages {PACKAGES})")


def speex_source() -> str:
    """The folder of libspeex's source, which the tests never fetch themselves."""
    version = run_text("pkg-config", "--modversion", "speex")
    folder = ROOT / "build" / "bronnen" / f"speex-{version}"
    if not (folder / "compleet").exists():
        skip("the source of libspeex is not here (hulp/speexBron fetches it)")
    return str(folder)


def run(*command: str | Path, cwd: Path | None = None, status: int = 0) -> str:
    """What the command writes to standard error; it has to end with this status."""
    done = subprocess.run(command, cwd=cwd, check=False, text=True, capture_output=True)
    assert done.returncode == status, f"{command}: {done.returncode}\n{done.stdout}{done.stderr}"
    return done.stderr


def run_text(*command: str) -> str:
    """The line that the command prints."""
    return subprocess.run(command, check=True, text=True, stdout=subprocess.PIPE).stdout.strip()


class Example:
    """The texts of the sample fragments, and the programs made of them."""

    def __init__(self, generator: Path, work: Path) -> None:
        self.work = work
        self.texts = work / "texts"
        run(generator, ROOT / "fragmenten", self.texts)

    def build(self, name: str, *settings: str, elf: str = "play") -> Path:
        program = self.work / name / f"{elf}.elf"
        run("make", "-s", "-j2", "-C", EXAMPLE, f"TEXTS={self.texts}", f"OUT={program.parent}",
            "WERROR=-Werror", *settings, program)
        return program

    def play(self, name: str, *settings: str, elf: str = "play") -> dict[str, array]:
        """Builds a program of the example, runs it, and returns the codes of each file."""
        program = self.build(name, *settings, elf=elf)
        dac = self.work / f"{name}-{elf}-dac"
        dac.mkdir()
        lines = run(*([program] if "BOARD=host" in settings else [EXAMPLE / "emulate", program]), cwd=dac)
        played = {file.name: array("H", file.read_bytes()) for file in dac.iterdir()}
        assert sorted(lines.splitlines()) == [f"{name}: played" for name in sorted(played)], lines
        return played


def codes_of(samples: list[int]) -> array:
    return array("H", [min(max(sample + MID, 0), 2 * MID - 1) for sample in samples])


def wav_samples(wav: Path) -> list[int]:
    return list(array("h", samples_van(wav)))


def adpcm_samples(wav: Path, state: Stand) -> tuple[list[int], Stand]:
    """What another decoder makes of the codes of another coder, which go on from `state`."""
    codes, after = codes_van(wav, state)
    swapped = bytes((byte & 0x0F) << 4 | byte >> 4 for byte in codes)
    return list(array("h", audioop.adpcm2lin(swapped, 2, state)[0])), after


def image_samples(image: bytes, work: Path) -> list[int]:
    """What sox makes of a WAV image."""
    (work / "image.wav").write_bytes(image)
    run("sox", work / "image.wav", "-t", "raw", "-e", "signed", "-b", "16", work / "image.raw")
    return list(array("h", (work / "image.raw").read_bytes()))


def expected(example: Example) -> dict[str, array]:
    codes = {
        name: codes_of([int(sample / 16) for sample in wav_samples(example.texts / f"{name}.wav")])
        for name in ("ready_pcm", "chime_pcm")
    }
    state: Stand = (0, 0)
    for name in ("ready_adpcm", "warning_adpcm"):
        narrow, state = adpcm_samples(example.texts / f"{name}.wav", state)
        codes[name] = array("H", [min(max(sample + 128, 0), 255) << 4 for sample in narrow])
    chime = wav_samples(example.texts / "chime_wav.wav")
    codes["chime_wav"] = codes_of([sample // 16 for sample in chime])
    image = arrays_in(example.texts / "wav.c")["alarm_wav"]
    codes["alarm_wav"] = codes_of(image_samples(image, example.work))
    return codes


def check(played: dict[str, array], wanted: dict[str, array]) -> None:
    assert sorted(played) == sorted(wanted), f"{sorted(played)}"
    for name, fragment in wanted.items():
        # At its end the DAC goes to mid-scale.
        codes = fragment + array("H", [MID])
        assert len(played[name]) == len(codes), f"{name}: {len(played[name])}, not {len(codes)} codes"
        wrong = [at for at, code in enumerate(codes) if played[name][at] != code]
        assert not wrong, f"{name}: {len(wrong)} codes differ, the first at {wrong[0]}"


def signal_to_noise(reference: array, codes: array) -> float:
    signal = sum((code - MID) ** 2 for code in reference)
    noise = sum((one - other) ** 2 for one, other in zip(reference, codes))
    return 10 * math.log10(signal / noise)


def speex_expected(example: Example) -> dict[str, array]:
    """What a program beside the example makes of the arrays, by the library that is installed."""
    decoder = example.work / "decodeSpeex"
    run("gcc", "-O1", "-o", decoder, HERE / "decodeSpeex.c", "-lspeex")
    codes = {}
    for name, (text, band, samples, late) in SPEEX.items():
        decoded = subprocess.run([decoder, str(band)], input=arrays_in(example.texts / text)[name],
                                 check=True, stdout=subprocess.PIPE).stdout
        codes[name] = codes_of(list(array("h", decoded))[late:late + samples])
    return codes


def host(example: Example) -> None:
    """On the host each kind of array gives what another program makes of it."""
    played = example.play("host", "BOARD=host", "SPEEX=installed")
    check(played, {**expected(example), **speex_expected(example)})


def target(example: Example) -> None:
    need_tools()
    check(example.play("target"), expected(example))


def speex_on_target(example: Example) -> None:
    """The library in fixed point gives the same on the board as on the host, and nearly what the
    installed one gives in floating point."""
    need_tools()
    source = f"SPEEX={speex_source()}"
    on_target = example.play("target", source)
    on_host = example.play("host", "BOARD=host", source)
    assert on_target == on_host, [name for name, codes in on_host.items() if on_target.get(name) != codes]
    for name, codes in speex_expected(example).items():
        assert len(on_target[name]) == len(codes) + 1, f"{name}: {len(on_target[name])} codes"
        assert signal_to_noise(codes, on_target[name]) > 25, name
        assert on_target[name][-1] == MID, f"{name} does not end at mid-scale"


def board(example: Example) -> None:
    """The start-up code, the timer and the player, by a program that tries them on the board."""
    need_tools()
    program = example.work / "board.elf"
    run(*TARGET, "-std=c99", "-Wall", "-Wextra", "-Werror", f"-I{EXAMPLE}", "-o", program,
        HERE / "boardTest.c", EXAMPLE / "player.c", EXAMPLE.parent / "kestrolin_dac.c")
    all_is_well = 7
    run(EXAMPLE / "emulate", program, cwd=example.work, status=all_is_well)
    names = ("tone", "short", "nothing", "slow")
    heard = {name: list(array("H", (example.work / name).read_bytes())) for name in names}
    period = [MID + 100, MID - 100]
    assert heard["tone"] == [*period * 1500, MID], "the tone is another one"
    assert heard["short"] == [*period * 2, MID + 100, MID], "the short tone is another one"
    assert heard["nothing"] == [MID], "a fragment of no samples leaves the DAC elsewhere"
    assert set(heard["slow"]) == {MID - 100, MID, MID + 100}, "no silence where samples were late"
    assert heard["slow"][-1] == MID, "the slow tone does not end at mid-scale"


def broken(example: Example) -> None:
    """An array that ends too early is told of, and the others are played all the same."""
    text = example.texts / "pcm.c"
    text.write_text(text.read_text(encoding="utf-8").replace("\t0x8d,0x13,", "\t0x8e,0x13,", 1),
                    encoding="utf-8")
    lines = run(example.build("host", "BOARD=host"), cwd=example.work, status=1).splitlines()
    assert lines[0] == "ready_pcm: failed", lines
    assert lines[1:] == [f"{name}: played" for name in PLAIN[1:]], lines


def empty_frame(example: Example) -> None:
    """A frame of no bytes is made up by the library, not the frame before once more."""
    text = example.texts / "speex8.c"
    frame = re.compile(r"\t0x[0-9a-f]+,  /\* Encoded Frame \[10\] Size \*/\n\t[-0-9,\n\t]*\n(?=\t0x)")
    emptied, count = frame.subn("\t0x0,  /* Encoded Frame [10] Size */\n\t\n",
                                text.read_text(encoding="utf-8"))
    assert count == 2, f"{count} frames were emptied"
    whole = speex_expected(example)
    text.write_text(emptied, encoding="utf-8")
    wanted = speex_expected(example)
    assert wanted["ready_speex"] != whole["ready_speex"], "the frame made no difference"
    check(example.play("host", "BOARD=host", "SPEEX=installed"), {**expected(example), **wanted})


def library(example: Example) -> None:
    """The folder of the readers is a library for a project with CMake."""
    (example.work / "CMakeLists.txt").write_text(
        "cmake_minimum_required(VERSION 3.10)\nproject(Bell C)\n"
        f'add_subdirectory("{EXAMPLE.parent}" readers)\n'
        "add_executable(bell bell.c)\ntarget_link_libraries(bell PRIVATE kestrolin_readers)\n",
        encoding="utf-8",
    )
    (example.work / "bell.c").write_text(
        "#include <kestrolin_pcm.h>\n"
        "int main(void) {\n  kestrolin_pcm pcm;\n"
        "  return kestrolin_pcm_open(&pcm, NULL, 0) != KESTROLIN_TRUNCATED;\n}\n",
        encoding="utf-8",
    )
    run("cmake", "-S", example.work, "-B", example.work / "bell")
    run("cmake", "--build", example.work / "bell")
    run(example.work / "bell" / "bell")


def figures(example: Example) -> None:
    """The page tells the figures that are measured, and the goals are met."""
    need_tools()
    missing = [package for path, package in OTHER_TARGETS.items() if not Path(path).exists()]
    if missing:
        skip(f"not installed: packages {' '.join(missing)}")
    run(ROOT / "bench" / "firmware" / "target", example.texts, speex_source(), example.work / "figures", "--check")


def main(cases: dict[str, Callable[[Example], None]]) -> None:
    """Runs the case that the command line names."""
    with tempfile.TemporaryDirectory(prefix="kestrolinExample") as folder:
        cases[sys.argv[1]](Example(Path(sys.argv[2]), Path(folder)))


CASES: dict[str, Callable[[Example], None]] = {
    "host": host,
    "target": target,
    "speexOnTarget": speex_on_target,
    "board": board,
    "broken": broken,
    "emptyFrame": empty_frame,
    "library": library,
    "figures": figures,
}

if __name__ == "__main__":
    main(CASES)
