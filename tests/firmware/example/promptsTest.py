"""Tests of the program whose events start prompts: what the DAC gets, sample for sample.

    promptsTest.py CASE FRAGMENTTEKSTEN
"""

from __future__ import annotations

from array import array

from exampleTest import MID, Example, expected, main, need_tools

# What the hand of the program presses, and after how many samples.
BELL, ALARM, BELL_AGAIN, BELL_RESTARTED, LAST, MUTE, END = 100, 2100, 8000, 9000, 14500, 15000, 15200


def wanted(example: Example) -> array:
    """Each prompt plays until its end or the next press. The one of another rate is not taken."""
    codes = expected(example)
    bell, alarm, silence = codes["ready_pcm"], codes["ready_adpcm"], array("H", [MID] * END)
    timeline = silence[:BELL]
    for prompt, start, end in ((bell, BELL, ALARM), (alarm, ALARM, BELL_AGAIN),
                               (bell, BELL_AGAIN, BELL_RESTARTED), (bell, BELL_RESTARTED, LAST),
                               (alarm, LAST, MUTE), (silence, MUTE, END)):
        timeline += (prompt + silence)[:end - start]
    return timeline


def keep(example: Example, *settings: str) -> None:
    played = example.play("prompts", *settings, elf="prompts")
    assert list(played) == ["prompts"], list(played)
    found, codes = played["prompts"], wanted(example)
    assert len(found) == len(codes), f"{len(found)}, not {len(codes)} codes"
    wrong = [at for at, code in enumerate(codes) if found[at] != code]
    assert not wrong, f"{len(wrong)} codes differ, the first at {wrong[0]}"


def on_host(example: Example) -> None:
    keep(example, "BOARD=host")


def on_target(example: Example) -> None:
    need_tools()
    keep(example)


if __name__ == "__main__":
    main({"promptsOnHost": on_host, "promptsOnTarget": on_target})
