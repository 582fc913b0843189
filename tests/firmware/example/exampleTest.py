"""Tests of the example for the target: what the DAC gets is what the fragments hold.

    exampleTest.py CASE FRAGMENTTEKSTEN

builds the example in a directory of its own. Where a case needs the emulated board and its tools are
not installed, it ends with status 77, or fails where KESTROLIN_TARGET says "required".
"""

from __future__ import annotations

import audioop
import math
import os
import shutil
import subprocess
import sys
import tempfile
from array import array
from pathlib import Path
from typing import Callable

ROOT = Path(__file__).resolve().parents[3]
sys.path.insert(0, str(ROOT / "tour"))

# pylint: disable=wrong-import-position
from nakijken import Stand, arrays_in, codes_van, samples_van

EXAMPLE = ROOT / "firmware" / "example"
TOOLS = ("arm-none-eabi-gcc", "qemu-system-arm")
PACKAGES = "gcc-arm-none-eabi libnewlib-arm-none-eabi qemu-system-arm"
SKIPPED = 77
MID = 2048

PLAIN = ("ready_pcm", "chime_pcm", "ready_adpcm", "warning_adpcm", "chime_wav", "alarm_wav")
# Rate, frames of 20 ms and samples of each, and the samples by which the codec is late.
SPEEX = {
    "ready_speex": (32, 160, 5005, 80),
    "warning_speex": (40, 160, 6367, 80),
    "chime_speex": (60, 320, 19200, 223),
    "alarm_speex": (25, 640, 16000, 509),
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


def speex_source() -> str:
    """The folder of libspeex's source, which the tests never fetch themselves."""
    found = sorted((ROOT / "build" / "bronnen").glob("speex-*/compleet"))
    if not found:
        skip("the source of libspeex is not here (hulp/speexBron fetches it)")
    return str(found[-1].parent)


def run(*command: str | Path, cwd: Path | None = None) -> str:
    done = subprocess.run(command, cwd=cwd, check=False, text=True, capture_output=True)
    assert done.returncode == 0, f"{command}: status {done.returncode}\n{done.stdout}{done.stderr}"
    return done.stderr


class Example:
    """The texts of the sample fragments, and the programs made of them."""

    def __init__(self, generator: Path, work: Path) -> None:
        self.work = work
        self.texts = work / "texts"
        run(generator, ROOT / "fragmenten", self.texts)

    def play(self, name: str, *settings: str) -> dict[str, array]:
        """Builds the example, plays it, and returns the codes of each fragment."""
        out = self.work / name
        program = out / "play.elf"
        run("make", "-s", "-C", EXAMPLE, f"TEXTS={self.texts}", f"OUT={out}", *settings, program)
        dac = self.work / f"{name}-dac"
        dac.mkdir()
        lines = run(*([program] if "HOST=1" in settings else [EXAMPLE / "emulate", program]), cwd=dac)
        played = {file.name: array("H", file.read_bytes()) for file in dac.iterdir()}
        assert lines.split() == [
            word for fragment in self.order(played) for word in (f"{fragment}:", "played")
        ], lines
        return played

    @staticmethod
    def order(played: dict[str, array]) -> list[str]:
        return [name for name in (*PLAIN, *SPEEX) if name in played]


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
    for name, codes in wanted.items():
        assert len(played[name]) == len(codes), f"{name}: {len(played[name])}, not {len(codes)} codes"
        wrong = [at for at, code in enumerate(codes) if played[name][at] != code]
        assert not wrong, f"{name}: {len(wrong)} codes differ, the first at {wrong[0]}"


def signal_to_noise(reference: array, codes: array) -> float:
    signal = sum((code - MID) ** 2 for code in reference)
    noise = sum((one - other) ** 2 for one, other in zip(reference, codes))
    return 10 * math.log10(signal / noise)


def host(example: Example) -> None:
    """On the host each kind of array gives what another program makes of it."""
    check(example.play("host", "HOST=1"), expected(example))


def target(example: Example) -> None:
    need_tools()
    check(example.play("target"), expected(example))


def speex_on_target(example: Example) -> None:
    """The library in fixed point gives the same on the board as on the host, and nearly what the
    installed one gives in floating point."""
    need_tools()
    source = f"SPEEX={speex_source()}"
    on_target = example.play("target", source)
    check(on_target, example.play("host", "HOST=1", source))
    installed = example.play("installed", "HOST=1", "SPEEX=installed")
    for name, (frames, frame, samples, late) in SPEEX.items():
        count = min(samples, frames * frame - late)
        assert len(on_target[name]) == count, f"{name}: {len(on_target[name])} codes"
        assert signal_to_noise(installed[name], on_target[name]) > 20, name


def figures(example: Example) -> None:
    """The page tells the figures that are measured, and the goals are met."""
    need_tools()
    run(ROOT / "bench" / "firmware" / "target", example.texts, speex_source(), example.work / "figures", "--check")


CASES: dict[str, Callable[[Example], None]] = {
    "host": host,
    "target": target,
    "speexOnTarget": speex_on_target,
    "figures": figures,
}

if __name__ == "__main__":
    with tempfile.TemporaryDirectory(prefix="kestrolinExample") as folder:
        CASES[sys.argv[1]](Example(Path(sys.argv[2]), Path(folder)))
