"""The commands of the README: whether what they call is there, and knows the options given.

    opdrachten.py PAGE     prints the commands of a page, one a line
"""

from __future__ import annotations

import json
import re
import shlex
import shutil
import subprocess
import sys
from functools import lru_cache
from pathlib import Path
from typing import Iterator, Optional

sys.dont_write_bytecode = True

# pylint: disable=wrong-import-position
from bladzijde import Bladzijde, Plek
from boom import Boom

BLADZIJDE = "README.md"
SCHEIDING = {"&&", "||", ";", "|", "&", "(", ")"}
OMLEIDING = {">", ">>", "<"}
# What another command may stand behind, and what the shell does itself.
VOORAF = {"sudo", "env", "exec"}
# What runs the command that comes behind it.
OMHULSELS = {"tests/steun/scherm", "tour/sessie"}
VAN_SHELL = {".", "cd", "export", "set", "umask", "unset"}
GEBOUWD = re.compile(r"build/([\w-]+)/bin/([\w-]+)")
TOEKENNING = re.compile(r"[A-Za-z_]\w*=")
HULP = {"cmake --build": ["cmake", "--build"], "cmake --install": ["cmake", "--install"],
        "cmake": ["cmake", "--help"], "ctest": ["ctest", "--help"]}


def opdrachten_in(bladzijde: Bladzijde) -> list[Plek]:
    """The lines of its blocks for the shell."""
    return [Plek(blok.regel + i, regel.strip()) for blok in bladzijde.blokken if blok.taal == "sh"
            for i, regel in enumerate(blok.inhoud.splitlines())
            if regel.strip() and not regel.lstrip().startswith("#")]


def _delen(regel: str) -> Iterator[list[str]]:
    """The single commands of a line, without assignments, redirections and what stands before."""
    lezer = shlex.shlex(regel, posix=True, punctuation_chars=True)
    lezer.whitespace_split = True
    deel: list[str] = []
    overslaan = False
    for woord in [*lezer, ";"]:
        if overslaan:
            overslaan = False
        elif woord in SCHEIDING:
            if deel:
                yield deel
            deel = []
        elif woord in OMLEIDING:
            overslaan = True
        elif deel or not (woord in VOORAF or TOEKENNING.match(woord)):
            deel.append(woord)


@lru_cache(maxsize=None)
def _zegt(*woorden: str) -> str:
    uitkomst = subprocess.run(woorden, capture_output=True, text=True, check=False)
    return uitkomst.stdout + uitkomst.stderr


def _staat_in(optie: str, tekst: str) -> bool:
    return bool(re.search(rf"(?<![\w-]){re.escape(optie)}(?![\w-])", tekst))


def _opties(woorden: list[str]) -> Iterator[str]:
    """The names of the options, up to what is for others."""
    for woord in woorden:
        if woord == "--":
            return
        if woord.startswith("-D"):
            yield "-D"
        elif re.match(r"--?[A-Za-z]", woord):
            yield woord.partition("=")[0]


class Keuring:
    """What commands are held against: the tree and, where there is one, its build."""

    def __init__(self, boom: Boom, bouw: Optional[Path]) -> None:
        self.boom = boom
        self.bouw = bouw

    def _presets(self, soort: str) -> set[str]:
        alle = json.loads(self.boom.lees("CMakePresets.json"))
        return {preset["name"] for preset in alle[soort] if not preset.get("hidden")}

    def _script(self, naam: str, woorden: list[str]) -> Iterator[str]:
        if naam not in self.boom.bestanden:
            yield f"there is no {naam}"
        elif not self.boom.uitvoerbaar(naam):
            yield f"{naam} is not executable"
        else:
            tekst = self.boom.lees(naam)
            ook = _zegt(*HULP["ctest"]) if re.search(r"\bctest\b.*\"\$@\"", tekst) else ""
            for optie in _opties(woorden):
                if not _staat_in(optie, tekst + ook):
                    yield f"{naam} knows no {optie}"
            if naam == "hulp/voorzieningen":
                for groep in woorden:
                    if not re.search(rf"^ *{re.escape(groep)}\)", tekst, re.MULTILINE):
                        yield f"{naam} knows no {groep}"

    def _variabele(self, naam: str) -> Iterator[str]:
        bronnen = self.boom.met("CMakeLists.txt", "*/CMakeLists.txt", "*.cmake")
        if naam.startswith("KESTROLIN_") and not any(
                f"option({naam} " in self.boom.lees(bron) for bron in bronnen):
            yield f"there is no option {naam}"

    def _doelen(self, woorden: list[str]) -> Iterator[str]:
        if not self.bouw:
            return
        bekend = re.findall(r"^(\S+): ", _zegt("cmake", "--build", str(self.bouw), "--target",
                                               "help"), re.MULTILINE)
        for i, woord in enumerate(woorden):
            if woord in ("--target", "-t"):
                for doel in woorden[i + 1 :]:
                    if doel.startswith("-"):
                        break
                    if doel not in bekend:
                        yield f"there is no target {doel}"

    def _cmake(self, naam: str, woorden: list[str]) -> Iterator[str]:
        soort = f"cmake {woorden[0]}" if woorden and f"cmake {woorden[0]}" in HULP else naam
        presets = {"cmake": "configurePresets", "cmake --build": "buildPresets",
                   "ctest": "testPresets"}.get(soort, "configurePresets")
        hulp = _zegt(*HULP[soort])
        for optie in _opties(woorden):
            if optie not in soort.split() and not _staat_in(optie, hulp):
                yield f"{soort} knows no {optie}"
        vooraf = ""
        for woord in woorden:
            bouwmap = re.fullmatch(r"build/([\w-]+)", woord)
            preset = woord if vooraf == "--preset" else woord.partition("--preset=")[2]
            if preset and preset not in self._presets(presets):
                yield f"there is no preset {preset} for {soort}"
            if bouwmap and bouwmap.group(1) not in self._presets("configurePresets"):
                yield f"no preset builds in {woord}"
            if woord.startswith("-DKESTROLIN_"):
                yield from self._variabele(re.split("[:=]", woord[2:])[0])
            vooraf = woord
        if soort == "cmake --build":
            yield from self._doelen(woorden)

    def _gebouwd(self, preset: str, programma: str) -> Iterator[str]:
        """A program of this tree, where a build has it. Whether it knows its options shows when it runs."""
        if preset not in self._presets("configurePresets"):
            yield f"no preset builds in build/{preset}"
        yield from self._doelen(["--target", programma])

    def _deel(self, woorden: list[str]) -> Iterator[str]:
        naam, rest = woorden[0], woorden[1:]
        gebouwd = GEBOUWD.fullmatch(naam)
        if naam in VAN_SHELL:
            return
        if gebouwd:
            yield from self._gebouwd(gebouwd[1], gebouwd[2])
            return
        if naam in OMHULSELS and self.boom.uitvoerbaar(naam) and rest:
            yield from self._deel(rest)
        elif "/" in naam and not naam.startswith("/"):
            yield from self._script(naam.removeprefix("./"), rest)
        elif not shutil.which(naam):
            yield f"there is no program {naam}"
        elif naam in HULP:
            yield from self._cmake(naam, rest)

    def regel(self, regel: str) -> list[str]:
        """What is wrong with a line."""
        if regel.endswith("\\"):
            return ["goes on in the next line"]
        try:
            return [klacht for deel in _delen(regel) for klacht in self._deel(deel)]
        except ValueError as fout:
            return [str(fout)]

    def code(self, code: str) -> list[str]:
        """What is wrong with a code in the text, if it is a command of the tree."""
        woorden = [woord for woord in code.split() if "[" not in woord and "]" not in woord]
        if not woorden or not (woorden[0].startswith("./") or self.boom.is_script(woorden[0])):
            return []
        return list(self._script(woorden[0].removeprefix("./"), woorden[1:]))


def opdrachten(boom: Boom, bouw: Optional[Path]) -> list[str]:
    """Every command of the README stands in a block of its own kind, and can be given."""
    bladzijde = Bladzijde(BLADZIJDE, boom.lees(BLADZIJDE))
    keuring = Keuring(boom, bouw)
    regels = opdrachten_in(bladzijde)
    klachten = [] if regels else [f"{BLADZIJDE}: no commands in ```sh blocks"]
    klachten += [f"{BLADZIJDE}:{blok.regel}: a block of no kind; commands stand in ```sh blocks"
                 for blok in bladzijde.blokken if not blok.taal]
    for plek, gevonden in ([(plek, keuring.regel(plek.tekst)) for plek in regels]
                           + [(plek, keuring.code(plek.tekst)) for plek in bladzijde.codes]):
        klachten += [f"{BLADZIJDE}:{plek.regel}: {plek.tekst}: {klacht}" for klacht in gevonden]
    return klachten


def main() -> int:
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    pad = Path(sys.argv[1])
    for plek in opdrachten_in(Bladzijde(pad.name, pad.read_text(encoding="utf-8"))):
        print(plek.tekst)
    return 0


if __name__ == "__main__":
    sys.exit(main())
