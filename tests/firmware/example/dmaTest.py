"""Tests of what the example plays by DMA: each item that the register gets, up to the silence that fills
the last half.

    dmaTest.py CASE FRAGMENTTEKSTEN
"""

from __future__ import annotations

import math
from array import array
from pathlib import Path
from typing import Iterable

from exampleTest import (EXAMPLE, HERE, TARGET, Example, adpcm_samples, arrays_in, image_samples, main,
                         need_tools, run, speex_expected, speex_source, wav_samples)

HALF = 160
READERS = EXAMPLE.parent
LENGTHS = (0, 1, 159, 160, 161, 319, 320, 321, 479, 480, 481)
ALL_IS_WELL = 7


def clipped(samples: Iterable[int], bits: int) -> list[int]:
    """Samples as numbers from 0 on."""
    middle = 1 << (bits - 1)
    return [min(max(sample + middle, 0), 2 * middle - 1) for sample in samples]


def filled_up(items: list[int], silence: int, half: int = HALF) -> array:
    """A sound that ends with a half has one of silence behind it."""
    return array("H", items + [silence] * (half - len(items) % half))


def to_i2s(samples: Iterable[int], bits: int) -> array:
    words = [(sample << (16 - bits)) & 0xFFFF for sample in samples]
    return filled_up([word for word in words for _ in "LR"], 0, 2 * HALF)


def times(sample: int, numerator: int, denominator: int) -> int:
    """Rounded to the nearest number, halves away from zero."""
    size = math.floor(abs(sample) * numerator / denominator + 0.5)
    return size if sample > 0 else -size


def expected(example: Example) -> dict[str, array]:
    ready, chime = ([int(sample / 16) for sample in wav_samples(example.texts / f"{name}_pcm.wav")]
                    for name in ("ready", "chime"))
    soft, _ = adpcm_samples(example.texts / "ready_adpcm.wav", (0, 0))
    embedded = [sample // 16 for sample in wav_samples(example.texts / "chime_wav.wav")]
    alarm = image_samples(arrays_in(example.texts / "wav.c")["alarm_wav"], example.work)
    assert len(chime) % HALF == 0 != len(ready) % HALF, "no fragment ends with a half"
    turns = [times(sample, factor, 4) for factor in (6, 3) for sample in ready]
    return {
        "ready_right": filled_up(clipped(ready, 12), 2048),
        "chime_left": filled_up([code << 4 for code in clipped(embedded, 12)], 32768),
        "ready_left": filled_up([code << 8 for code in clipped(soft, 8)], 32768),
        "ready_bytes": filled_up(clipped(soft, 8), 128),
        "chime_bytes": filled_up([code >> 4 for code in clipped(chime, 12)], 128),
        "alarm_pwm": filled_up([code * 1000 // 4096 for code in clipped(alarm, 12)], 500),
        "ready_i2s": to_i2s(ready, 12),
        "ready_twice": filled_up(clipped(turns, 12), 2048),
    }


def compare(found: dict[str, array], wanted: dict[str, array]) -> None:
    assert sorted(found) == sorted(wanted), sorted(found)
    for name, items in wanted.items():
        assert len(found[name]) == len(items), f"{name}: {len(found[name])}, not {len(items)} items"
        wrong = [at for at, item in enumerate(items) if found[name][at] != item]
        assert not wrong, f"{name}: {len(wrong)} items differ, the first at {wrong[0]}"


def play_on_host(example: Example) -> None:
    """The arrays of the example, those of Speex decoded ahead."""
    speex = speex_expected(example)["warning_speex"]
    compare(example.play("host", "BOARD=host", "SPEEX=installed", elf="dma_play"),
            {**expected(example), "warning_speex": filled_up(list(speex), 2048)})


def play_on_target(example: Example) -> None:
    need_tools()
    compare(example.play("target", elf="dma_play"), expected(example))


def speex_on_target(example: Example) -> None:
    """Decoded in time on the board, and the same as on the host."""
    need_tools()
    source = f"SPEEX={speex_source()}"
    compare(example.play("target", source, elf="dma_play"),
            example.play("host", "BOARD=host", source, elf="dma_play"))


def ends_expected() -> dict[str, array]:
    wanted = {}
    for length in (*LENGTHS, 400):
        ramp = [at * 37 % 4096 - 2048 for at in range(length)]
        kinds = {"right": filled_up(clipped(ramp, 12), 2048),
                 "bytes": filled_up([code >> 4 for code in clipped(ramp, 12)], 128),
                 "i2s": to_i2s(ramp, 12)}
        for context in ("interrupt", "main"):
            wanted.update({f"{kind}_{context}_{length:03}": items for kind, items in kinds.items()})
    drops = wanted["right_main_400"]
    return {**{name: items for name, items in wanted.items() if not name.endswith("_400")}, "drops": drops}


def keep_ends(example: Example, compile_: tuple[str | Path, ...], *emulate: str | Path) -> None:
    """Fragments that end before, at and behind the end of a half, and an empty one."""
    program = example.work / "ends.elf"
    readers = (READERS / f"kestrolin_{name}.c" for name in ("dac", "i2s", "pwm"))
    own = (EXAMPLE / f"{name}.c" for name in ("board_dma", "dma_outputs", "dma_stream"))
    run(*compile_, "-std=c99", "-Wall", "-Wextra", "-Werror", f"-I{EXAMPLE}", "-o", program,
        HERE / "dmaTest.c", *readers, *own)
    heard = example.work / "heard"
    heard.mkdir()
    run(*emulate, program, cwd=heard, status=ALL_IS_WELL)
    (heard / "slow").unlink(missing_ok=True)
    compare({file.name: array("H", file.read_bytes()) for file in heard.iterdir()}, ends_expected())


def ends_on_host(example: Example) -> None:
    keep_ends(example, ("gcc", "-O1", EXAMPLE / "board_host.c", "-fsanitize=address,undefined",
                        "-fno-sanitize-recover=all"))


def ends_on_target(example: Example) -> None:
    need_tools()
    keep_ends(example, TARGET, EXAMPLE / "emulate")


if __name__ == "__main__":
    main({"dmaOnHost": play_on_host, "dmaOnTarget": play_on_target, "dmaSpeexOnTarget": speex_on_target,
          "dmaEndsOnHost": ends_on_host, "dmaEndsOnTarget": ends_on_target})
