"""Tests of the sources of firmware/ as a product takes them in.

    sourcesTest.py CASE FRAGMENTTEKSTEN
"""

from __future__ import annotations

import re
import shutil
import subprocess
import sys
from pathlib import Path

from exampleTest import EXAMPLE, ROOT, Example, main, run, run_text, skip

sys.path.insert(0, str(ROOT / "tests" / "documenten"))

# pylint: disable=wrong-import-position
from boom import Boom

FIRMWARE = ROOT / "firmware"
CPP = ("-std=c++20", "-Wall", "-Wextra", "-Werror", f"-I{EXAMPLE}", f"-I{EXAMPLE / 'speex'}")
ONE_UNIT = ("-std=c99", "-Wall", "-Wextra", "-Wpedantic", "-Wconversion", "-Wsign-conversion", "-Wshadow",
            "-Wcast-qual", "-Wundef", "-Wmissing-prototypes", "-Wstrict-prototypes", "-Werror")
# Only the processors of the boards have them.
NOT_HERE = ("semihosting.h", "measure_target.h")
# What the tool writes, and what has no comments.
NO_NOTICE = ("firmware/LICENSE", "firmware/layouts/arduino/examples/Doorbell/ready.hpp",
             "firmware/layouts/arduino/library.properties")
NOTICE = re.compile(r"SPDX-FileCopyrightText: 2026 The Kestrolin team\n"
                    r"(?:# | \* |     )SPDX-License-Identifier: MIT\b")


def need(*tools: str) -> None:
    missing = [tool for tool in tools if shutil.which(tool) is None]
    if missing:
        skip(f"{' and '.join(missing)} not installed")


def headers() -> list[Path]:
    found = [*FIRMWARE.glob("*.h"), *EXAMPLE.rglob("*.h")]
    assert len(found) >= 20, f"{len(found)} headers"
    return sorted(found)


def functions(header: Path) -> list[str]:
    """The functions that a header declares, but for those that libspeex names."""
    text = re.sub(r"/\*.*?\*/|^#.*?(?<!\\)$", "", header.read_text(encoding="utf-8"), flags=re.S | re.M)
    names = re.findall(r"^(?:static inline )?[a-z]\w*(?: [a-z]\w*)*\*? (\w+)\(", text, re.M)
    return [name for name in names if not re.match(r"_?speex_(?!source_)|__attribute__", name)]


def is_apart(source: Path) -> bool:
    """A source of the example that is a program, or for the processor of the board."""
    text = source.read_text(encoding="utf-8")
    return "int main(void) {" in text or any(header in text for header in NOT_HERE)


def users(work: Path) -> tuple[list[Path], list[str]]:
    """A C++ source for each header, which takes the address of each of its functions."""
    made, names = [], []
    for number, header in enumerate(headers()):
        declared = functions(header)
        user = work / f"user{number}{'_board' if header.name in NOT_HERE else ''}.cpp"
        user.write_text(
            f'#include "{header}"\n#include "{header}"\n' + "".join(
                f"extern void (*use{number}_{name})();\n"
                f"void (*use{number}_{name})() = reinterpret_cast<void (*)()>(&{name});\n"
                for name in declared), encoding="utf-8")
        made.append(user)
        names += declared
    return made, names


def cplusplus(example: Example) -> None:
    """Every header stands alone in C++, and its functions are those of the C sources."""
    need("g++", "clang++")
    sources, names = users(example.work)
    for name in ("kestrolin_pcm_open", "kestrolin_dac_mid", "player_play", "player_queue_put",
                 "board_start_timer", "speex_source_read", "arena_take", "semihosting_exit"):
        assert name in names, f"{name} is not found among {names}"
    built = example.work / "built"
    built.mkdir()
    run("gcc", "-std=c99", f"-I{example.texts}", "-c", *FIRMWARE.glob("kestrolin_*.c"),
        *(source for source in EXAMPLE.rglob("*.c") if not is_apart(source)), cwd=built)
    (example.work / "main.cpp").write_text("int main() {}\n", encoding="utf-8")
    for compiler in ("g++", "clang++"):
        used = []
        for source in sources:
            used.append(source.with_suffix(".o"))
            run(compiler, *CPP, "-c", source, "-o", used[-1])
            missing = run_text("nm", "--undefined-only", str(used[-1]))
            assert " _Z" not in missing, f"{source.read_text(encoding='utf-8')}\n{missing}"
        run(compiler, "-o", example.work / "all", example.work / "main.cpp",
            *(path for path in used if "_board" not in path.name), *built.glob("*.o"), "-lspeex")


def one_unit(example: Example) -> None:
    """All readers in one source: no two share a name, and no compiler has a word to say."""
    need("gcc", "clang")
    readers = sorted(FIRMWARE.glob("kestrolin_*.c"))
    assert len(readers) >= 9, f"{len(readers)} readers"
    unit = example.work / "unit.c"
    unit.write_text("".join(f'#include "{reader}"\n' for reader in readers), encoding="utf-8")
    for compiler in ("gcc", "clang"):
        run(compiler, *ONE_UNIT, "-O2", "-c", unit, "-o", unit.with_suffix(".o"))


def volatile(example: Example) -> None:
    """No source counts in place what is volatile. As C++ most do not compile, but all are warned of."""
    need("g++")
    for source in (*FIRMWARE.glob("*.c"), *EXAMPLE.rglob("*.c")):
        done = subprocess.run(
            ["g++", "-x", "c++", "-std=c++20", "-fpermissive", "-fsyntax-only", "-DWITH_SPEEX",
             f"-I{EXAMPLE}", f"-I{example.texts}", source], check=False, text=True, stderr=subprocess.PIPE)
        assert "fatal error" not in done.stderr and "[-Wvolatile]" not in done.stderr, done.stderr


def guards(_: Example) -> None:
    """No guard is the name of a header of somebody else."""
    for header in headers():
        found = re.search(r"^#ifndef (\w+)\n#define \1$", header.read_text(encoding="utf-8"), re.M)
        prefix = "KESTROLIN_EXAMPLE_" if EXAMPLE in header.parents else "KESTROLIN_"
        assert found and found[1].startswith(prefix), f"{header.name} is not guarded by {prefix}..."
        assert found[1].endswith(f"{header.stem.upper()}_H"), f"{header.name} is guarded by {found[1]}"


def licence(_: Example) -> None:
    """Every file tells its licence in its first lines."""
    files = sorted(name for name in Boom(ROOT).bestanden if name.startswith("firmware/"))
    assert len(files) >= 40 and "firmware/LICENSE" in files, files
    for name in files:
        if name in NO_NOTICE:
            continue
        lines = (ROOT / name).read_text(encoding="utf-8").split("\n")
        start = 1 if lines[0].startswith("#!") else 0
        head = "\n".join(lines[start:start + 2])
        assert NOTICE.search(head), f"{name} starts with\n{head}"


if __name__ == "__main__":
    main({"cplusplus": cplusplus, "oneUnit": one_unit, "volatile": volatile, "guards": guards,
          "licence": licence})
