"""Test of what a warning of the compiler does: ./test stops at it, and ./start builds past it, in a tree
that holds the scripts, the presets and the options of the build, and a program that is warned of.

    waarschuwingTest.py

No screen is needed: the program opens no window.
"""

from __future__ import annotations

import os
import shutil
import socket
import subprocess
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
VAN_BOOM = ("start", "test", "hulp/bouw", "CMakePresets.json", "cmake/bouwOpties.cmake")
BESTANDEN = {
    # Nothing is installed here.
    "hulp/voorzieningen": "#!/bin/sh\n",
    "hulp/speexBron": "#!/bin/sh\n",
    "tests/steun/scherm": '#!/bin/sh\nexec "$@"\n',
    "CMakeLists.txt": "cmake_minimum_required(VERSION 3.25)\nproject(Kestrolin C CXX)\n"
                      "include(cmake/bouwOpties.cmake)\n"
                      'set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")\n'
                      "add_executable(Kestrolin main.cpp)\n"
                      "target_link_libraries(Kestrolin PRIVATE bouwOpties)\n"
                      "enable_testing()\nadd_test(NAME runs COMMAND Kestrolin)\n",
    "main.cpp": '#include <cstdio>\n\nint main() {\n  int unused;\n  std::puts("started");\n}\n',
}
GOED = '#include <cstdio>\n\nint main() {\n  std::puts("started");\n}\n'
FOUT = "int main() {\n  int unused;\n  return undeclared;\n}\n"


class Boompje:
    """The small tree."""

    def __init__(self, wortel: Path) -> None:
        self.wortel = wortel
        for naam in VAN_BOOM:
            (wortel / naam).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(ROOT / naam, wortel / naam)
        for naam, inhoud in BESTANDEN.items():
            (wortel / naam).parent.mkdir(parents=True, exist_ok=True)
            (wortel / naam).write_text(inhoud, encoding="utf-8")
            (wortel / naam).chmod(0o755)
        # ./start looks whether there is a display, and no further.
        self._scherm = socket.socket(socket.AF_UNIX)
        self._scherm.bind(str(wortel / "wayland"))

    def zeg(self, script: str, status: int, *woorden: str) -> None:
        """Runs one of the two; what it says has these words."""
        klaar = subprocess.run(
            [f"./{script}"], cwd=self.wortel, check=False, text=True, stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
            env={**os.environ, "WAYLAND_DISPLAY": str(self.wortel / "wayland"), "LC_ALL": "C.UTF-8"},
        )
        assert (klaar.returncode != 0) == (status != 0), f"{script}: {klaar.returncode}\n{klaar.stdout}"
        for woord in woorden:
            assert woord in klaar.stdout, f"{script}: no {woord!r} in\n{klaar.stdout}"

    def schrijf(self, bron: str) -> None:
        (self.wortel / "main.cpp").write_text(bron, encoding="utf-8")


def main() -> None:
    with tempfile.TemporaryDirectory() as map_:
        boompje = Boompje(Path(map_))
        # The first one, on a tree that nobody built.
        boompje.zeg("start", 0, "The compiler has warnings", "started\n")
        boompje.zeg("test", 1, "[-Werror", "Kestrolin: the build failed")
        # On a build that a test had stopped.
        boompje.zeg("start", 0, "The compiler has warnings", "started\n")
        boompje.schrijf(FOUT)
        boompje.zeg("start", 1, "undeclared", "Kestrolin: the build failed")
        boompje.schrijf(GOED)
        boompje.zeg("test", 0, "100% tests passed")


if __name__ == "__main__":
    main()
