"""Tests of the program's logo: an XPM picture in C text, and the script that draws it.

    logoTest.py FOLDER
"""

from __future__ import annotations

import re
import subprocess
import sys
import unittest
from pathlib import Path

MAP = Path(sys.argv[1])
BEELD = MAP / "parrot.xpm"
BREEDTE, HOOGTE, KLEUREN = 181, 80, 256


def tekenreeksen() -> list[str]:
    """The strings between the first and the last line of the array."""
    kop, opening, *regels, slot = BEELD.read_text(encoding="ascii").splitlines()
    assert kop == "/* XPM */" and slot == "};", "neither head nor end of an XPM picture"
    assert opening == "static char const* const parrot[] = {", opening
    vorm = re.compile(r'"([^"\\?]*)"(,?)')
    treffers = [vorm.fullmatch(regel) for regel in regels]
    assert all(treffers), "a line is not one plain string"
    assert [t[2] for t in treffers] == [","] * (len(regels) - 1) + [""], "commas"
    return [t[1] for t in treffers]


class Bestand(unittest.TestCase):
    def test_is_what_the_script_draws(self) -> None:
        uitvoer = subprocess.run(
            [sys.executable, "-B", str(MAP / "maakParrot.py")], stdout=subprocess.PIPE, check=True
        ).stdout
        self.assertTrue(uitvoer == BEELD.read_bytes(), "draw it anew: maakParrot.py > parrot.xpm")

    def test_compiles_as_c_and_as_cpp(self) -> None:
        for taal in (("gcc", "-std=c99", "-xc"), ("g++", "-std=c++17", "-xc++")):
            uitkomst = subprocess.run(
                [*taal, "-pedantic", "-Wall", "-Wextra", "-Werror", "-Wno-unused-variable",
                 "-fsyntax-only", str(BEELD)],
                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False,
            )
            self.assertEqual(uitkomst.returncode, 0, uitkomst.stdout)


class Beeld(unittest.TestCase):
    def setUp(self) -> None:
        self.maten, *rest = tekenreeksen()
        self.kleuren, self.rijen = rest[:KLEUREN], rest[KLEUREN:]

    def test_tells_its_size(self) -> None:
        self.assertEqual(self.maten, "181 80 256 2")
        self.assertEqual(len(self.rijen), HOOGTE)
        self.assertEqual({len(rij) for rij in self.rijen}, {2 * BREEDTE})

    def test_has_256_different_opaque_colours(self) -> None:
        for regel in self.kleuren:
            self.assertRegex(regel, r"^[!-~]{2} c #[0-9A-F]{6}$")
        self.assertEqual(len({regel[:2] for regel in self.kleuren}), KLEUREN)
        self.assertEqual(len({regel[-6:] for regel in self.kleuren}), KLEUREN)

    def test_uses_each_colour_and_no_other(self) -> None:
        gebruikt = {rij[i : i + 2] for rij in self.rijen for i in range(0, len(rij), 2)}
        self.assertEqual(gebruikt, {regel[:2] for regel in self.kleuren})


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
