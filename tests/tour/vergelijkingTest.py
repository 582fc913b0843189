"""Tests of what keeps the pictures of the manual fresh: what of a picture may differ, what may not,
and which pictures there have to be.

The pictures are drawn here, in the colours and the font of the window.
"""

from __future__ import annotations

import contextlib
import functools
import io
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tour"))

# pylint: disable=wrong-import-position
import beelden

GROND, INKT, GRIJS, LIJN = "#f6f5f4", "#2e3436", "#929595", "#cdc7c2"
TEKST = ("-font", "DejaVu-Sans", "-pointsize", "13.33")
KNOP = ("-fill", "none", "-stroke", LIJN, "-draw", "roundrectangle 8,8 320,40 3,3", "-stroke", "none")


@functools.lru_cache(maxsize=None)
def _getekend(opdrachten: tuple[str, ...]) -> bytes:
    return subprocess.run(["convert", "-size", "330x50", f"xc:{GROND}", *opdrachten, "png:-"],
                          check=True, stdout=subprocess.PIPE).stdout


def teken(pad: Path, *opdrachten: str) -> None:
    pad.parent.mkdir(parents=True, exist_ok=True)
    pad.write_bytes(_getekend(opdrachten))


def tekst(woorden: str, kleur: str = INKT, plaats: str = "+20+28") -> tuple[str, ...]:
    return (*TEKST, "-fill", kleur, "-annotate", plaats, woorden)


class Verschil(unittest.TestCase):
    def setUp(self) -> None:
        map_ = tempfile.TemporaryDirectory()
        self.addCleanup(map_.cleanup)
        self.map = Path(map_.name)

    def verschilt(self, een: tuple[str, ...], ander: tuple[str, ...]) -> bool:
        for naam, opdrachten in (("een", een), ("ander", ander)):
            teken(self.map / f"{naam}.png", *opdrachten)
        een_, ander_ = (beelden.lees(self.map / f"{n}.png") for n in ("een", "ander"))
        heen, terug = beelden.verschil(een_, ander_), beelden.verschil(ander_, een_)
        self.assertEqual(heen.any(), terug.any())
        return bool(heen.any())

    def test_a_letter_of_a_text(self) -> None:
        paren = [("Encode", "Encoded"), ("PCM", "PGM"), ("5000", "6000"), ("5005", "5006"),
                 ("Save", "Save."), ("1.1", "1.7")]
        gevallen = [(oud, nieuw, kleur) for oud, nieuw in paren for kleur in (INKT, GRIJS)]
        # What is as small as this can be told in black alone.
        for oud, nieuw, kleur in [*gevallen, ("here", "hare", INKT)]:
            with self.subTest(oud=oud, nieuw=nieuw, kleur=kleur):
                self.assertTrue(self.verschilt(tekst(oud, kleur), tekst(nieuw, kleur)))

    def test_a_label_that_turns_grey(self) -> None:
        self.assertTrue(self.verschilt(tekst("Encode"), tekst("Encode", GRIJS)))

    def test_a_label_in_another_place(self) -> None:
        self.assertTrue(self.verschilt(tekst("Encode"), tekst("Encode", plaats="+20+31")))

    def test_the_line_around_a_button(self) -> None:
        self.assertTrue(self.verschilt((*KNOP, *tekst("Encode")), tekst("Encode")))

    def test_a_tick(self) -> None:
        vak = ("-fill", "#3584e4", "-draw", "rectangle 5,5 20,20")
        vinkje = ("-stroke", "white", "-draw", "line 8,12 11,16", "-draw", "line 11,16 17,8")
        self.assertTrue(self.verschilt((*vak, *vinkje), vak))

    def test_another_size(self) -> None:
        self.assertTrue(self.verschilt(tekst("Encode"), (*tekst("Encode"), "-crop", "329x50+0+0")))

    def test_shades_at_the_edges_are_forgiven(self) -> None:
        gewoon = (*KNOP, *tekst("Encode the sound, 5000 Hz"))
        for anders in (("-define", "type:hinting=off", *gewoon), (*gewoon, "-gamma", "1.15"),
                       (*KNOP, *tekst("Encode the sound, 5000 Hz", plaats="+20.3+28")),
                       (*gewoon, "-dither", "None", "-colors", "16")):
            with self.subTest(anders=anders):
                self.assertFalse(self.verschilt(gewoon, anders))


class Boom(unittest.TestCase):
    """A tree with a manual that shows two pictures, and a tour of the same."""

    def setUp(self) -> None:
        map_ = tempfile.TemporaryDirectory()
        self.addCleanup(map_.cleanup)
        self.boom = Path(map_.name)
        self.tour = self.boom / "tour"
        self.beelden = self.boom / "docs" / "pictures"
        teken(self.tour / "1-start.png", *tekst("Open"))
        teken(self.tour / "2-play.png", *tekst("Play WAV Files"))
        teken(self.tour / "11-c.png", *tekst("Save"))
        self.schrijf("docs/manual.md", "![It](pictures/start.png)\n")
        self.schrijf("README.md", "![It](docs/pictures/c.png)\n")

    def schrijf(self, naam: str, tekst_: str) -> None:
        (self.boom / naam).parent.mkdir(exist_ok=True)
        (self.boom / naam).write_text(tekst_, encoding="utf-8")

    def voer_uit(self, taak: str) -> tuple[int, str]:
        with contextlib.redirect_stderr(io.StringIO()) as fouten, \
                contextlib.redirect_stdout(io.StringIO()):
            status = beelden.main(taak, self.tour, self.boom)
        return status, fouten.getvalue()

    def namen(self) -> set[str]:
        return {p.name for p in self.beelden.iterdir()}

    def keurt_af(self, wat: str) -> None:
        status, klachten = self.voer_uit("keur")
        self.assertEqual(status, 1)
        self.assertEqual(klachten.count("\n"), 1, klachten)
        self.assertIn(wat, klachten)

    def test_what_was_renewed_is_fresh(self) -> None:
        self.assertEqual(self.voer_uit("neem"), (0, ""))
        self.assertEqual(self.namen(), {"start.png", "c.png"})
        self.assertEqual(self.voer_uit("keur"), (0, ""))

    def test_another_label_is_told_of_and_shown(self) -> None:
        self.voer_uit("neem")
        teken(self.tour / "1-start.png", *tekst("Oper"))
        self.keurt_af("start.png is not what the tour shows")
        self.assertEqual(
            beelden.lees(self.tour / "differs-start.png").shape,
            beelden.lees(self.tour / "1-start.png").shape,
        )
        self.voer_uit("neem")
        self.assertEqual(self.voer_uit("keur"), (0, ""))

    def test_what_is_forgiven_is_not_written_again(self) -> None:
        self.voer_uit("neem")
        voor = (self.beelden / "start.png").read_bytes()
        teken(self.tour / "1-start.png", *tekst("Open"), "-gamma", "1.1")
        self.voer_uit("neem")
        self.assertEqual((self.beelden / "start.png").read_bytes(), voor)

    def test_a_picture_too_many(self) -> None:
        self.voer_uit("neem")
        self.schrijf("README.md", "No picture.\n")
        self.keurt_af("c.png is shown by no document")
        self.voer_uit("neem")
        self.assertEqual(self.namen(), {"start.png"})

    def test_a_picture_that_is_missing(self) -> None:
        self.voer_uit("neem")
        (self.beelden / "c.png").unlink()
        self.keurt_af("README.md shows c.png, which is not there")

    def test_a_picture_that_the_tour_cannot_give(self) -> None:
        self.schrijf("README.md", "![It](docs/pictures/play.png)\n")
        status, klachten = self.voer_uit("neem")
        self.assertEqual(status, 1)
        self.assertIn("README.md shows play.png, which is no screenshot of the tour", klachten)

    def test_the_window_of_windows_is_left_alone(self) -> None:
        self.schrijf("docs/firmware.md", "![It](pictures/windows.png)\n")
        teken(self.beelden / "windows.png", *tekst("Quit"))
        self.assertEqual(self.voer_uit("neem"), (0, ""))
        self.assertEqual(self.namen(), {"start.png", "c.png", "windows.png"})
        self.assertEqual(self.voer_uit("keur"), (0, ""))

    def test_all_takes_also_what_nothing_shows(self) -> None:
        self.schrijf("README.md", "No picture.\n")
        self.assertEqual(self.voer_uit("neem-alle"), (0, ""))
        self.assertEqual(self.namen(), {"start.png", "c.png"})

    def test_no_tour_is_no_reason_to_be_content(self) -> None:
        self.tour = self.boom / "elsewhere"
        self.assertEqual(self.voer_uit("keur")[0], 1)


if __name__ == "__main__":
    unittest.main()
