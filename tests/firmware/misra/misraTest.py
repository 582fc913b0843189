"""The readers against MISRA C:2012, as far as cppcheck can tell: it finds what firmware/MISRA.md lists as
deviations, and nothing else, neither by those rules nor by its own.

Where cppcheck is not installed, it ends with status 77, or fails where KESTROLIN_TARGET says "required".
Versions of cppcheck differ in the advisory rules that they check. So that of Debian 12 has to find exactly
what is listed; of another one, advisory rules that are not listed count for nothing, nor does a listed rule
that it does not find.
"""

from __future__ import annotations

import re
import shutil
import subprocess
import sys
from pathlib import Path

HERE = Path(__file__).resolve().parent
ROOT = HERE.parents[2]
sys.path.insert(0, str(HERE.parent / "example"))

# pylint: disable=wrong-import-position
from exampleTest import skip

FIRMWARE = ROOT / "firmware"
EXACT = "Cppcheck 2.10"
# Integers of 16 bits and of 32. The macros are what avr-libc has, which is not ours to check.
TARGETS = (("--platform=avr8", "-D__AVR__", "-DPROGMEM=", "-Dpgm_read_byte(address)=(*(address))",
            "-Dpgm_read_word(address)=(*(address))"),
           ("--platform=unix32", "-U__AVR__"))
ADVISORY = frozenset("""
    2.3 2.4 2.5 2.6 2.7 5.9 8.7 8.9 8.11 8.13 10.5 11.4 11.5 12.1 12.3 12.4 13.3 13.4 15.1 15.4 15.5 17.5
    17.8 18.4 18.5 19.2 20.1 20.5 21.12""".split())
MISRA = "misra-c2012-"

# A rule, or the name of a check of cppcheck's own, and a file.
Finding = tuple[str, str]


def listed() -> set[Finding]:
    """The rows of the table of deviations."""
    rows = re.findall(r"^\| (\d+\.\d+) \|[^|]*\|([^|]*)\|", (FIRMWARE / "MISRA.md").read_text("utf-8"), re.M)
    pairs = [(rule, file) for rule, files in rows for file in re.findall(r"`(kestrolin_\w+\.[ch])`", files)]
    assert len({rule for rule, _ in rows}) == len(rows) > 0, f"rows of firmware/MISRA.md: {rows}"
    assert len(set(pairs)) == len(pairs), f"a file stands twice in a row: {pairs}"
    assert {rule for rule, _ in rows} <= ADVISORY, "firmware/MISRA.md: a rule that is not advisory"
    return set(pairs)


def found() -> dict[Finding, str]:
    """What cppcheck finds, with one place of each."""
    sources = sorted(file.name for file in FIRMWARE.glob("kestrolin_*.c"))
    places: dict[Finding, str] = {}
    for target in TARGETS:
        said = subprocess.run(
            ["cppcheck", "--quiet", "--addon=misra", "--std=c99", "--error-exitcode=0",
             "--enable=warning,style,performance,portability", "--template={id} {file}:{line}",
             "-UKESTROLIN_CONFIG", *target, *sources],
            cwd=FIRMWARE, check=True, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True).stdout
        findings = re.findall(r"^(\S+) ((\S*):\d+)$", said, re.M)
        assert len(findings) == len(said.splitlines()), said
        places.update({(check.removeprefix(MISRA), file): f"{place} ({target[0]})"
                       for check, place, file in findings})
    return places


def main() -> None:
    if shutil.which("cppcheck") is None:
        skip("cppcheck not installed (package cppcheck)")
    version = subprocess.run(["cppcheck", "--version"], check=True, stdout=subprocess.PIPE,
                             text=True).stdout.strip()
    exact = version == EXACT
    deviations = listed()
    places = found()
    wrong = [f"{place}: {check}" for (check, file), place in sorted(places.items())
             if (check, file) not in deviations and (exact or check not in ADVISORY)]
    wrong += [f"firmware/MISRA.md: {check} in {file}, which {version} does not find"
              for check, file in sorted(deviations - places.keys()) if exact]
    assert places, f"{version} finds nothing at all, as if it had not looked"
    if wrong:
        sys.exit("\n".join(wrong))


if __name__ == "__main__":
    main()
