"""Makes an installer of any tree, as the build does of its own."""

from __future__ import annotations

import subprocess
import sys
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "packaging/windows/maakInstaller.cmake"


def maak_installer(cmake: str, boom: Path, versie: str, bouw: Path, uit: Path) -> None:
    waarden = {"MAP": boom, "VERSIE": versie, "ICOON": bouw / "kestrolin.ico", "RAND": bouw / "kestrolin.bmp",
               "UIT": uit, "MAKENSIS": "makensis"}
    subprocess.run([cmake, *(f"-D{naam}={waarde}" for naam, waarde in waarden.items()), "-P", SCRIPT], check=True,
                   stdout=sys.stderr)
