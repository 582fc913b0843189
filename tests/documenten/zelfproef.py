"""Shows each check small trees: of a good one it says nothing, of the others what is wrong."""

from __future__ import annotations

import shutil
import subprocess
import tempfile
from pathlib import Path
from typing import Callable, Iterator

from berichten import berichten
from boom import Boom
from gevallen import (DOEL, GOEDE_BERICHTEN, GOEDE_KOPPELINGEN, GOEDE_OPDRACHTEN, GOEDE_SPELLING,
                      GOEDE_PAKKETTEN,
                      GOEDE_TEKENINGEN, SLECHTE_BERICHTEN, SLECHTE_KOPPELINGEN, SLECHTE_OPDRACHTEN,
                      SLECHTE_PAKKETTEN, SLECHTE_SPELLING, SLECHTE_TEKENINGEN,
                      Bestanden, Geval)
from koppelingen import koppelingen
from opdrachten import opdrachten
from pakketten import pakketten
from spelling import spelling
from tekeningen import tekeningen

Controle = Callable[[Boom], list[str]]

HIER = Path(__file__).resolve().parent
_KOP = "Nothing.\n\n```sh\n"


def _plant(wortel: Path, bestanden: Bestanden) -> Boom:
    """A tree with these files; scripts in it can be run."""
    for naam, inhoud in bestanden.items():
        pad = wortel / naam
        pad.parent.mkdir(parents=True, exist_ok=True)
        pad.write_text(inhoud, encoding="utf-8")
        pad.chmod(0o755 if inhoud.startswith("#!") else 0o644)
    return Boom(wortel)


def _zegt(controle: Controle, bestanden: Bestanden) -> list[str]:
    with tempfile.TemporaryDirectory() as wortel:
        return controle(_plant(Path(wortel), bestanden))


def _opdrachten(boom: Boom) -> list[str]:
    """With a build that has the targets that every one has."""
    bouw = boom.wortel / "build" / "release"
    (boom.wortel / "CMakeLists.txt").write_text(
        boom.lees("CMakeLists.txt") + "project(A NONE)\n", encoding="utf-8")
    subprocess.run(["cmake", "-G", "Ninja", "-S", str(boom.wortel), "-B", str(bouw)], check=True,
                   capture_output=True)
    return opdrachten(boom, bouw)


def _bladzijde(tekst: str) -> Bestanden:
    return {**DOEL, "README.md": f"{tekst}\n"}


def _regel(regel: str) -> Bestanden:
    return {**GOEDE_OPDRACHTEN, "README.md": f"{_KOP}{regel}\n```\n"}


# Each check with its good tree and the others.
PROEVEN: dict[str, tuple[Controle, Bestanden, list[Geval]]] = {
    "koppelingen": (koppelingen, GOEDE_KOPPELINGEN,
                    [("no pages", {"a.txt": ""})]
                    + [(klacht, _bladzijde(tekst)) for klacht, tekst in SLECHTE_KOPPELINGEN]),
    "spelling": (spelling, GOEDE_SPELLING, SLECHTE_SPELLING),
    "tekeningen": (tekeningen, GOEDE_TEKENINGEN, SLECHTE_TEKENINGEN),
    "berichten": (berichten, GOEDE_BERICHTEN, SLECHTE_BERICHTEN),
    "pakketten": (pakketten, GOEDE_PAKKETTEN, SLECHTE_PAKKETTEN),
    "opdrachten": (_opdrachten, GOEDE_OPDRACHTEN,
                   [(klacht, _regel(regel)) for klacht, regel in SLECHTE_OPDRACHTEN]
                   + [("no commands", {**GOEDE_OPDRACHTEN, "README.md": "./start\n"}),
                      ("a block of no kind", {**GOEDE_OPDRACHTEN, "README.md": "    ./start\n"}),
                      ("a block of no kind", {**GOEDE_OPDRACHTEN,
                                              "README.md": "```\n./test\n```\n"}),
                      ("there is no stat", {**GOEDE_OPDRACHTEN, "README.md": "`./stat --tour`\n"}),
                      ("knows no --tours", {**GOEDE_OPDRACHTEN,
                                            "README.md": "`./start --tours [A]`\n"})]),
}


def _oordeel(naam: str) -> Iterator[str]:
    controle, goed, slecht = PROEVEN[naam]
    gezegd = _zegt(controle, goed)
    if gezegd:
        yield f"{naam}: of a good tree: {gezegd}"
    for nummer, (klacht, bestanden) in enumerate(slecht, 1):
        gezegd = _zegt(controle, bestanden)
        if not any(klacht in regel for regel in gezegd):
            yield f"{naam} {nummer}: not {klacht!r} but {gezegd}"


def _buiten_git() -> Iterator[str]:
    """What git ignores, or no longer has, is no part of the tree."""
    with tempfile.TemporaryDirectory() as wortel:
        boom = _plant(Path(wortel), {".gitignore": "weg\n", "weg": "", "a/nieuw": "", "oud": ""})
        subprocess.run(["git", "init", "-q", wortel], check=True, capture_output=True)
        subprocess.run(["git", "-C", wortel, "add", "oud"], check=True, capture_output=True)
        (boom.wortel / "oud").unlink()
        if boom.bestanden != {".gitignore", "a/nieuw"} or boom.mappen != {".", "a"}:
            yield f"git: {sorted(boom.bestanden)}"


def _gegeven(opdrachten_tekst: str, *overgeslagen: str) -> subprocess.CompletedProcess[str]:
    """What .ci/opdrachten makes of a README with these commands."""
    with tempfile.TemporaryDirectory() as wortel:
        boom = _plant(Path(wortel), {"README.md": f"{_KOP}{opdrachten_tekst}\n```\n"})
        shutil.copytree(HIER, boom.wortel / "tests" / "documenten")
        (boom.wortel / ".ci").mkdir()
        script = shutil.copy(HIER.parents[1] / ".ci" / "opdrachten", boom.wortel / ".ci")
        return subprocess.run([script, *overgeslagen], capture_output=True, text=True, check=False)


def _echte_opdrachten() -> Iterator[str]:
    """The commands are really given: all but those that were, or that change the machine."""
    installatie = 'sudo sh -c "test -n \\"\\$DESTDIR\\"" # cmake --install build/release'
    gevallen = [
        ("true", [], 0, "0 s  true"),
        ("echo mine\nfalse\necho mine", [], 1, "exit status 1: false"),
        ("echo mine; exit 3", [], 1, "mine\nopdrachten: exit status 3"),
        ("echo $nothing", [], 1, "nothing: "),
        ("test -f README.md", [], 0, "s  test -f README.md"),
        ("test -z \"${DISPLAY:-}\"", [], 0, "s  test"),
        ("false", ["false"], 0, "false: was given already"),
        ("true", ["false"], 2, "no command of README.md: false"),
        ("sudo apt install ./kestrolin_1-1_amd64.deb", [], 0, "clean root"),
        (installatie, [], 0, "s  sudo"),
        ("# nothing", [], 2, "has none"),
    ]
    for tekst, overgeslagen, status, woorden in gevallen:
        uitkomst = _gegeven(tekst, *overgeslagen)
        gezegd = uitkomst.stdout + uitkomst.stderr
        if uitkomst.returncode != status or woorden not in gezegd or "\nmine" in uitkomst.stdout:
            yield f".ci/opdrachten: {tekst!r}: exit status {uitkomst.returncode}: {gezegd}"


def zelfproef() -> list[str]:
    """A check that says nothing of a bad tree, or anything of a good one."""
    oordelen = [klacht for naam in PROEVEN for klacht in _oordeel(naam)]
    return [*oordelen, *_buiten_git(), *_echte_opdrachten()]
