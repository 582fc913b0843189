"""Test of the rule by which make follows the recordings of a folder, with GNU make.

    makeTest.py BUILD
"""

from __future__ import annotations

import shutil
import sys
import tempfile
from pathlib import Path

from project import RECORDINGS, ROOT, Tool, equal, run, succeed

# The recordings of a folder give a source, a header and the text, all three in one run. The folder changes
# when a recording comes or goes; the depfile tells of one that changes.
RULE = """\
%.c %.h %_data.c: recordings/% Makefile
\tkestrolin-cli encode --dac 12 -o $*_data.c --declarations $*.h --source $*.c --depfile $*_data.d $</*.wav

-include $(wildcard *.d)
"""
MAKEFILE = f"""\
CFLAGS = -std=c99 -Wall -Wextra -Wpedantic -Werror -MMD -I{ROOT}/firmware
doorbell: main.o sounds.o kestrolin_pcm.o
\t$(CC) -o $@ $^
main.o sounds.o: sounds.c sounds.h sounds_data.c
kestrolin_pcm.o: {ROOT}/firmware/kestrolin_pcm.c
\t$(CC) $(CFLAGS) -c $< -o $@

""" + RULE
MAIN = """\
#include <kestrolin_pcm.h>
#include <stdio.h>

#include "sounds.h"

int main(void) {
  kestrolin_pcm pcm;
  if (kestrolin_pcm_open(&pcm, ready, ready_size) != KESTROLIN_OK) {
    return 1;
  }
  printf("%u\\n", (unsigned)pcm.left);
  return 0;
}
"""


class Doorbell:
    """A program in a folder, above one with its recordings."""

    def __init__(self, build: Path, folder: Path) -> None:
        self.folder, self.recordings = folder, folder / "recordings" / "sounds"
        (folder / "tool").mkdir()
        self.tool = Tool(build, folder / "tool")
        self.recordings.mkdir(parents=True)
        (folder / "Makefile").write_text(MAKEFILE, encoding="utf-8")
        (folder / "main.c").write_text(MAIN, encoding="utf-8")

    def record(self, name: str, fragment: str) -> None:
        shutil.copyfile(RECORDINGS / f"{fragment}.wav", self.recordings / f"{name}.wav")

    def make(self) -> tuple[int, str]:
        return run("make", "-j4", cwd=self.folder, PATH=f"{self.folder / 'tool'}:/usr/bin:/bin")

    def remake(self, *recordings: str) -> list[str]:
        """Builds, which has to go well, by one run over these recordings. What was compiled."""
        status, said = self.make()
        equal(status, 0, said)
        equal([word for word in self.tool.asked() if word.startswith("recordings/")],
              [f"recordings/sounds/{name}.wav" for name in recordings], "what was encoded, in one run")
        equal("-o doorbell " in said, bool(recordings), "linked")
        return [name for name in ("main", "sounds", "kestrolin_pcm") if f"-o {name}.o" in said]

    def samples(self) -> int:
        return int(succeed(self.folder / "doorbell"))


def main(build: Path, folder: Path) -> None:
    bell = Doorbell(build, folder)
    bell.record("ready", "ready")
    equal(bell.remake("ready"), ["main", "sounds", "kestrolin_pcm"], "compiled at first")
    equal(bell.samples(), 5005, "samples")
    equal(bell.remake(), [], "compiled without a change")

    bell.record("ready", "warning")
    equal(bell.remake("ready"), ["main", "sounds"], "compiled for a recording")
    equal(bell.samples(), 6367, "samples of the new recording")
    equal(bell.remake(), [], "compiled without a change")

    bell.record("alarm", "ready")
    equal(bell.remake("alarm", "ready"), ["main", "sounds"], "compiled for one more recording")
    equal("alarm[]" in (folder / "sounds.h").read_text(encoding="utf-8"), True, "the alarm is declared")
    (bell.recordings / "alarm.wav").unlink()
    equal(bell.remake("ready"), ["main", "sounds"], "compiled for one recording less")
    equal("alarm[]" in (folder / "sounds.h").read_text(encoding="utf-8"), False, "the alarm is declared")

    text = (folder / "sounds_data.c").read_bytes()
    (folder / "Makefile").write_text(MAKEFILE.replace("--dac 12", "--dac 10"), encoding="utf-8")
    equal(bell.remake("ready"), ["main", "sounds"], "compiled for an option")
    assert (folder / "sounds_data.c").read_bytes() != text, "the option has no effect"
    equal(bell.remake(), [], "compiled without a change")
    failing(bell)


def failing(bell: Doorbell) -> None:
    """Where a recording cannot be encoded, the build stops and leaves all as it was."""
    before = {file.name: file.read_bytes() for file in bell.folder.glob("sounds*.*")}
    (bell.recordings / "two words.wav").touch()
    status, said = bell.make()
    equal(status, 2, "the status of make")
    assert "kestrolin-cli: recordings/sounds/two words.wav: " in said, said
    equal({file.name: file.read_bytes() for file in bell.folder.glob("sounds*.*")}, before, "what there is")
    (bell.recordings / "two words.wav").unlink()
    bell.tool.asked()
    bell.remake("ready")
    equal(bell.remake(), [], "compiled without a change")


if __name__ == "__main__":
    with tempfile.TemporaryDirectory(prefix="kestrolinMake") as folder_:
        main(Path(sys.argv[1]), Path(folder_))
