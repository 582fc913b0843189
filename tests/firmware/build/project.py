"""A project for firmware, as somebody has it who takes kestrolin_add_sounds from an installation or from
a build of this tree."""

from __future__ import annotations

import os
import shlex
import shutil
import subprocess
from pathlib import Path
from typing import NamedTuple

ROOT = Path(__file__).resolve().parents[3]
RECORDINGS = ROOT / "fragmenten"
STRICT = "-Wall -Wextra -Wpedantic -Wmissing-declarations -Wshadow -Wconversion -Werror"
HEAD = "cmake_minimum_required(VERSION 3.20)\nproject(Bell {})\nfind_package(Kestrolin 1.1 REQUIRED)\n"
SETTINGS = "[Gebruikersinstellingen/Speex]\nspeexQuality={}\n"
# A moment for all texts, so that they can be compared.
MOMENT = "1000000000"


class Done(NamedTuple):
    status: int
    said: str


def run(*command: str | Path, cwd: Path | None = None, **variables: str) -> Done:
    """What a command says."""
    environment = {"PATH": "/usr/bin:/bin", "HOME": "/nonexistent", "LC_ALL": "C.UTF-8",
                   "SOURCE_DATE_EPOCH": MOMENT, **variables}
    done = subprocess.run([str(word) for word in command], cwd=cwd, check=False, text=True, env=environment,
                          stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return Done(done.returncode, done.stdout)


def succeed(*command: str | Path, cwd: Path | None = None, **variables: str) -> str:
    done = run(*command, cwd=cwd, **variables)
    assert done.status == 0, f"{[str(word) for word in command]}: status {done.status}\n{done.said}"
    return done.said


def equal(found: object, wanted: object, what: str) -> None:
    assert found == wanted, f"{what}: {found!r} instead of {wanted!r}"


def install(cmake: str, build: Path, prefix: Path) -> Path:
    """An installation of this build. The folder that find_package looks for."""
    succeed(cmake, "--install", build, "--prefix", prefix, "--component", "Unspecified")
    return prefix / "share" / "cmake" / "Kestrolin"


def command_of(build: Path) -> list[str]:
    """The words that begin a run of kestrolin-cli. That of Windows runs by Wine."""
    windows = build / "bin" / "kestrolin-cli.exe"
    wine = str(ROOT / "tests" / "steun" / "wijn")
    return [wine, str(windows)] if windows.is_file() else [str(build / "bin" / "kestrolin-cli")]


class Tool:
    """Stands in for kestrolin-cli, tells what it was asked, and asks the real one."""

    def __init__(self, build: Path, folder: Path) -> None:
        self.path = folder / "kestrolin-cli"
        self.log = folder / "asked"
        self.path.write_text("#!/bin/sh\n[ \"$1\" = --version ] || printf '%s\\n' \"$@\" >>'"
                             f"{self.log}'\nexec {shlex.join(command_of(build))} \"$@\"\n", encoding="utf-8")
        self.path.chmod(0o755)

    def asked(self) -> list[str]:
        """The words that it was given since the last time."""
        words = self.log.read_text(encoding="utf-8").splitlines() if self.log.exists() else []
        self.log.unlink(missing_ok=True)
        return words


class Project:
    """A folder with a CMakeLists.txt, and one that it is built in."""

    def __init__(self, cmake: str, folder: Path, package: Path, *settings: str) -> None:
        self.cmake, self.folder, self.build_folder = cmake, folder, folder / "build"
        self.settings = [f"-DKestrolin_DIR={package}", *settings]
        folder.mkdir(parents=True, exist_ok=True)

    def write(self, name: str, text: str) -> None:
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")

    def edit(self, name: str, old: str, new: str) -> None:
        text = (self.folder / name).read_text(encoding="utf-8")
        assert text.count(old) == 1, f"{name} holds {old!r} {text.count(old)} times"
        self.write(name, text.replace(old, new))

    def record(self, name: str, fragment: str = "ready") -> Path:
        """Makes a recording there, of one of the sample fragments."""
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        shutil.copyfile(RECORDINGS / f"{fragment}.wav", path)
        return path

    def configure(self) -> Done:
        return run(self.cmake, "-S", self.folder, "-B", self.build_folder, *self.settings)

    def build(self, *words: str) -> Done:
        return run(self.cmake, "--build", self.build_folder, *words)

    def changed_by_build(self) -> set[str]:
        """The files that a build, which has to succeed, makes or makes anew."""
        before = self._moments()
        done = self.build()
        assert done.status == 0, done.said
        after = self._moments()
        return {path.name for path, moment in after.items() if before.get(path) != moment}

    def _moments(self) -> dict[Path, int]:
        """When each result of the build was written."""
        results = (path for path in self.build_folder.rglob("*") if path.is_file()
                   and (path.suffix in (".c", ".cpp", ".h", ".o", ".obj", ".a", ".wav")
                        or os.access(path, os.X_OK))
                   and "CMakeFiles/3" not in str(path))
        return {path: path.stat().st_mtime_ns for path in results}


class Place:
    """Where a test works, and the build that it tests."""

    def __init__(self, cmake: str, build: str, folder: str) -> None:
        self.cmake, self.build, self.folder = cmake, Path(build), Path(folder)
        self.package = self.build / "share" / "cmake" / "Kestrolin"

    def project(self, text: str, *settings: str, name: str = "project") -> Project:
        made = Project(self.cmake, self.folder / name, self.package, *settings)
        made.write("CMakeLists.txt", text)
        return made


def configure(project: Project) -> None:
    done = project.configure()
    assert done.status == 0, done.said
    assert "warning" not in done.said.lower(), done.said
