"""The source tree: which files belong to it, and what stands in them."""

from __future__ import annotations

import os
import subprocess
from dataclasses import dataclass
from fnmatch import fnmatchcase
from functools import cached_property
from pathlib import Path
from typing import Iterator

# What is no part of the tree where there is no git to tell so.
OVERGESLAGEN = {".git", ".cache", "__pycache__", "build"}


def _volgens_git(wortel: Path) -> list[str]:
    """Known to git, or new and not ignored."""
    uitkomst = subprocess.run(
        ["git", "-c", f"safe.directory={wortel}", "-C", str(wortel), "ls-files", "-coz",
         "--exclude-standard"],
        capture_output=True, check=True,
    )
    return [naam for naam in uitkomst.stdout.decode().split("\0") if naam]


def _volgens_schijf(wortel: Path) -> Iterator[str]:
    for folder, mappen, bestanden in os.walk(wortel):
        mappen[:] = [naam for naam in mappen if naam not in OVERGESLAGEN]
        for naam in bestanden:
            yield str((Path(folder) / naam).relative_to(wortel))


@dataclass(frozen=True)
class Boom:
    """A source tree. Names are relative to its root."""

    wortel: Path

    @cached_property
    def bestanden(self) -> frozenset[str]:
        """Its files. One that was deleted and not committed yet counts no more."""
        try:
            namen: Iterator[str] = iter(_volgens_git(self.wortel))
        except (OSError, subprocess.CalledProcessError):
            namen = _volgens_schijf(self.wortel)
        return frozenset(naam for naam in namen if (self.wortel / naam).is_file())

    @cached_property
    def mappen(self) -> frozenset[str]:
        """Its folders, "." among them."""
        return frozenset(str(map_) for naam in self.bestanden for map_ in Path(naam).parents)

    @cached_property
    def bovenste(self) -> frozenset[str]:
        """The folders right below the root."""
        return frozenset(map_ for map_ in self.mappen if map_ != "." and "/" not in map_)

    def kent(self, naam: str) -> bool:
        """Whether there is such a file or folder, or, of a pattern, at least one."""
        if not set(naam) & set("*?["):
            return naam in self.bestanden or naam in self.mappen
        return any(fnmatchcase(pad, naam) and pad.count("/") == naam.count("/")
                   for pad in self.bestanden | self.mappen)

    def met(self, *vormen: str) -> list[str]:
        """The files of these forms, `*` matching slashes too, in order."""
        return sorted(naam for naam in self.bestanden
                      if any(fnmatchcase(naam, vorm) for vorm in vormen))

    def lees(self, naam: str) -> str:
        return (self.wortel / naam).read_text(encoding="utf-8")

    def uitvoerbaar(self, naam: str) -> bool:
        return naam in self.bestanden and os.access(self.wortel / naam, os.X_OK)

    def is_script(self, naam: str) -> bool:
        """A file that names its own interpreter."""
        if naam not in self.bestanden:
            return False
        with (self.wortel / naam).open("rb") as bestand:
            return bestand.read(2) == b"#!"
