"""The targets that the readers are measured on, each with its compiler and emulator. measure.c of the
example counts there."""

from __future__ import annotations

import re
import struct
import subprocess
import sys
from pathlib import Path
from typing import NamedTuple

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "tour"))

# pylint: disable=wrong-import-position
from nakijken import arrays_in

FIRMWARE = ROOT / "firmware"
EXAMPLE = FIRMWARE / "example"
COUNTERS = Path(__file__).resolve().parent / "counters"
BOARD = ROOT / "tests" / "firmware" / "texts" / "avr_board.c"


def run(*command: str | Path, cwd: Path | None = None) -> str:
    done = subprocess.run(command, cwd=cwd, check=False, text=True, capture_output=True)
    if done.returncode != 0:
        sys.exit(f"target: {' '.join(map(str, command))}\n{done.stdout}{done.stderr}")
    return done.stdout + done.stderr


class Counted(NamedTuple):
    """What a sample takes, read in blocks and one a call (of libspeex: in its worst frame), and the
    bytes of stack."""

    block: float
    single: float
    stack: int


class Target:
    """The figures of one target. `prefix` is that of its tools, `machine` the flags of its compiler."""

    def __init__(self, prefix: str, machine: list[str], out: Path, said: str) -> None:
        self.prefix = prefix
        self.machine = machine
        self.out = out
        self.decoder_memory: list[int] = []
        self.counted: dict[str, Counted] = {}
        for name, *figures in (line.split("\t") for line in said.splitlines()):
            opening, block, single, stack = map(int, figures)
            if name == "memory of the decoder":
                self.decoder_memory.append(opening)
            else:
                self.counted[name] = Counted(block / 100, single / 100, stack)

    def compiler(self) -> str:
        return f"{self.prefix}-gcc {run(f'{self.prefix}-gcc', '-dumpfullversion', '-dumpversion').strip()}"

    def code(self, *sources: str) -> int:
        """Bytes of code and tables at -Os."""
        objects = [self.out / f"kestrolin_{source}.o" for source in sources]
        lines = run(f"{self.prefix}-size", *objects).splitlines()[1:]
        sizes = [[int(number) for number in line.split()[:3]] for line in lines]
        if any(data or bss for _, data, bss in sizes):
            sys.exit(f"target: {sources} have variables of their own")
        return sum(text for text, _, _ in sizes)

    def state(self, kind: str) -> int:
        """The size of a type, read off an array of so many bytes."""
        probe = self.out / "state.c"
        probe.write_text(f'#include "{FIRMWARE / kind}.h"\nchar state[sizeof({kind})];\n', encoding="utf-8")
        run(f"{self.prefix}-gcc", *self.machine, "-c", probe, "-o", probe.with_suffix(".o"))
        symbols = run(f"{self.prefix}-nm", "-S", probe.with_suffix(".o")).splitlines()
        (size,) = [line.split()[1] for line in symbols if line.endswith(" state")]
        return int(size, 16)


class CortexM(Target):
    """Made by the example's own Makefile, with libspeex."""

    def __init__(self, cpu: str, texts: Path, speex: Path, out: Path) -> None:
        program = out / cpu / "measure.elf"
        run("make", "-s", "-C", EXAMPLE, f"CPU={cpu}", f"TEXTS={texts}", f"SPEEX={speex}",
            f"OUT={program.parent}", program)
        super().__init__("arm-none-eabi", [f"-mcpu={cpu}", "-mthumb"], program.parent,
                         run(EXAMPLE / "emulate", program))

    def library(self) -> int:
        """The bytes of libspeex that the linker kept."""
        kept = (self.out / "measure.map").read_text(encoding="utf-8")
        kept = kept[kept.index("Linker script and memory map"):]
        kept = kept[kept.index("\n.text"):kept.index("\n.debug_info")]
        sections = re.findall(r"\s0x([0-9a-f]+)\s+0x([0-9a-f]+) \S*/libspeex/\S+\.o$", kept, re.M)
        return sum(int(size, 16) for _, size in sections)


def build(prefix: str, machine: list[str], own: list[Path], link: list[str], texts: Path, out: Path) -> Path:
    """measure.c for a target without libspeex, with the target's own sources."""
    sources = [*sorted(FIRMWARE.glob("kestrolin_*.c")), EXAMPLE / "measure.c", *own]
    run(f"{prefix}-gcc", "-std=gnu99", "-Os", "-Wall", "-Wextra", "-Werror", "-ffunction-sections",
        "-fdata-sections", *machine, f"-I{EXAMPLE}", f"-I{texts}", "-c", *sources, cwd=out)
    program = out / "measure.elf"
    run(f"{prefix}-gcc", *machine, *link, "-Wl,--gc-sections",
        *(source.with_suffix(".o").name for source in sources), "-o", program, cwd=out)
    return program


def first_second(image: bytes) -> bytes:
    """The first second of a WAV file of PCM at 16000 Hz."""
    data = image.index(b"data")
    return image[:data + 4] + struct.pack("<I", 32000) + image[data + 8:data + 8 + 32000]


def small_sounds(texts: Path, source: Path) -> None:
    """What measure.c plays, for a compiler that takes no more than 32767 bytes for an array."""
    arrays = {
        "ready_pcm": arrays_in(texts / "pcm.c")["ready_pcm"],
        "ready_adpcm": arrays_in(texts / "adpcm.c")["ready_adpcm"],
        "chime_wav": first_second(arrays_in(texts / "wav.c")["chime_wav"]),
        "alarm_wav": arrays_in(texts / "wav.c")["alarm_wav"],
        "ready_speex": arrays_in(texts / "speex8.c")["ready_speex"],
    }
    lines = ['#include "sounds.h"']
    for name, content in arrays.items():
        kind = "signed char" if name == "ready_speex" else "unsigned char"
        cells = ", ".join(f"({kind}){byte}" for byte in content)
        lines.append(f"const {kind} {name}[] = {{{cells}}};\nconst size_t {name}_size = sizeof {name};")
    source.write_text("\n".join(lines) + "\n", encoding="utf-8")


class Avr(Target):
    """An ATmega1284P, whose emulator counts cycles."""

    def __init__(self, texts: Path, out: Path) -> None:
        out = out / "avr"
        out.mkdir(parents=True, exist_ok=True)
        small_sounds(texts, out / "small_sounds.c")
        machine = ["-mmcu=atmega1284p"]
        program = build("avr", machine, [out / "small_sounds.c", COUNTERS / "measure_avr.c"], [], texts, out)
        run("gcc", "-O1", "-o", out / "board", BOARD, "-lsimavr", "-lelf")
        run(out / "board", program, out / "said")
        super().__init__("avr", machine, out, (out / "said").read_text(encoding="utf-8"))


class RiscV(Target):
    """RV32IMAC."""

    def __init__(self, texts: Path, out: Path) -> None:
        machine = ["--specs=picolibc.specs", "-march=rv32imac", "-mabi=ilp32"]
        memory = {"flash": 0x80000000, "flash_size": 0x200000, "ram": 0x80200000, "ram_size": 0x200000}
        link = ["--oslib=semihost", "--crt0=hosted",
                *(f"-Wl,--defsym=__{name}={value:#x}" for name, value in memory.items())]
        out = out / "riscv"
        out.mkdir(parents=True, exist_ok=True)
        own = [EXAMPLE / "sounds.c", COUNTERS / "measure_riscv.c"]
        program = build("riscv64-unknown-elf", machine, own, link, texts, out)
        said = run("timeout", "600", "qemu-system-riscv32", "-machine", "virt", "-bios", "none", "-display",
                   "none", "-monitor", "none", "-serial", "none", "-icount", "shift=0,sleep=off",
                   "-semihosting-config", "enable=on,target=native", "-kernel", program)
        super().__init__("riscv64-unknown-elf", machine, program.parent, said)
