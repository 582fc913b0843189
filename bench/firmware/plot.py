"""The picture of flash against quality, by gnuplot."""

from __future__ import annotations

import re
import subprocess
from typing import Callable, NamedTuple


class Case(NamedTuple):
    fragment: str
    encoder: str
    setting: str
    rate: int  # bytes a second of sound
    quality: float  # dB, by the bands of hearing
    wave: float  # dB, by the waves


class Series(NamedTuple):
    """Cases under one sign. Colours are told apart by all eyes, and no two signs are alike."""

    title: str
    holds: Callable[[Case], bool]
    style: str
    place: str  # of the labels, from the sign


SERIES = [
    Series("PCM, by bits of the DAC", lambda case: case.encoder == "PCM",
           "points pt 7 ps 0.9 lc rgb '#0072b2'", "left offset 1.5,0"),
    Series("Embedded WAV, PCM or IMA ADPCM", lambda case: case.encoder == "Embedded WAV",
           "points pt 12 ps 1.5 lw 1.6 lc rgb '#009e73'", "center offset 0,0.9"),
    Series("ADPCM, of a fragment brought down", lambda case: case.setting == "brought down",
           "points pt 5 ps 1.0 lc rgb '#d55e00'", "center offset 0,-0.9"),
    Series("Speex, by quality", lambda case: case.encoder == "Speex" and "," not in case.setting,
           "linespoints pt 9 ps 1.1 lw 1.5 lc rgb '#000000'", "right offset -0.6,0.5"),
    Series("Speex, quality 8, for a DAC of 8 bits",
           lambda case: case.encoder == "Speex" and "8-bit DAC" in case.setting,
           "points pt 8 ps 1.2 lw 1.6 lc rgb '#cc3399'", "center offset 0,-0.9"),
]

TITLE = "Flash against quality, by fragment and encoder"

HEAD = """
set terminal svg size 860,800 font "Helvetica,Arial,sans-serif,13" background "#ffffff"
set encoding utf8
set logscale x 2
set xrange [250:120000]
set yrange [-5:40]
set xtics ("250" 250, "500" 500, "1000" 1000, "2000" 2000, "4000" 4000, "8000" 8000, \\
  "16 k" 16000, "32 k" 32000, "64 k" 64000)
set ytics 0,5,35
set grid xtics ytics lc rgb "#dddddd" lw 1 lt 1
set border 3 lc rgb "#555555"
set tics nomirror
set key at screen 0.5,0.012 center bottom vertical maxrows 3 Left reverse width -2 \
  samplen 2
set multiplot layout 2,2 margins 0.075,0.985,0.175,0.955 spacing 0.075,0.105
"""


def _label(case: Case) -> str:
    """What tells a case apart within its series."""
    if case.encoder == "PCM":
        return case.setting.partition("-")[0]
    if case.encoder == "Embedded WAV":
        return "" if case.setting == "PCM" else "IMA"
    if case.encoder == "Speex" and "," not in case.setting:
        return case.setting.rpartition(" ")[2]
    return ""


def _panel(cases: list[Case], title: str, at_left: bool, at_bottom: bool) -> str:
    data = ""
    curves = []
    labels = []
    for number, series in enumerate(SERIES):
        rows = "".join(f'{case.rate} {case.quality:.2f} "{_label(case)}"\n'
                       for case in cases if series.holds(case))
        data += f"$series{number} << END\n{rows}END\n"
        curves.append(f'$series{number} using 1:2 with {series.style} title "{series.title}"')
        labels.append(f"$series{number} using 1:2:3 with labels {series.place} "
                      'font ",11" tc rgb "#333333" notitle')
    return (f'{data}set title "{title}" offset 0,-0.4\n'
            f'set xlabel "{"bytes of flash a second of sound" if at_bottom else ""}"\n'
            f'set ylabel "{"quality (fwSNRseg), dB" if at_left else ""}" offset 1\n'
            f"plot {', '.join(curves + labels)}\nunset key\n")


def draw(cases: list[Case], titles: dict[str, str], path: str) -> None:
    """Four panels, one a fragment, in the order of `titles`."""
    panels = [_panel([case for case in cases if case.fragment == fragment], title,
                     place % 2 == 0, place >= 2)
              for place, (fragment, title) in enumerate(titles.items())]
    script = HEAD + "".join(panels) + "unset multiplot\n"
    svg = subprocess.run(["gnuplot"], input=script, capture_output=True, check=True,
                         text=True).stdout
    named = re.sub("<title>.*</title>\\n<desc>.*</desc>", f"<title>{TITLE}</title>", svg)
    with open(path, "w", encoding="utf-8") as picture:
        picture.write(named)
