"""A newcomer with README.md, an installed program and an empty folder: every name, file and command of the
steps from a WAV file to firmware is taken as it stands there. What the program of the last step prints is
the recording.

    readmeTest.py CMAKE BUILD

Run inside `tour/sessie`.
"""

from __future__ import annotations

import os
import re
import subprocess
import sys
from pathlib import Path

from pagina import blokken, installeer, samples_in, stappen, voer_uit
from vensterStappen import Keuzes, maak_tekst

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "tour"))

# pylint: disable=wrong-import-position
from bediening import Programma
from teksten import INBED_TITEL

BESTANDEN = ("sounds.h", "sounds.cpp", "main.cpp")
VLAGGEN = "-Wall -Wextra -Wpedantic -Werror"


def stap(tekst: str, kop: str) -> str:
    """A step, or another paragraph, by how it begins."""
    alinea = re.search(rf"^(?:- )?\*\*{re.escape(kop)}(.*?)\n(?:\n|- )", tekst, re.M | re.S)
    assert alinea, f"the page has no step {kop}"
    return alinea[1].replace("\n", " ")


def neem_op(tekst: str, map_: Path, fragment: Path, cli: Path) -> Path:
    """Step 1: the recording, and names that no array can have."""
    zin = stap(tekst, "1. The recording.**")
    opdracht, *namen = re.findall(r"`(sox [^`]+|[\w-]+\.wav)`", zin)
    bron, doel = re.findall(r"\S+\.wav", opdracht)
    assert "stereo file at 44.1 kHz" in zin, zin
    voer_uit(f"sox {fragment} -r 44100 -c 2 {bron}\n{opdracht}", map_)
    assert len(namen) == 2, namen
    for naam in namen:
        (map_ / naam).write_bytes((map_ / doel).read_bytes())
        weigering = subprocess.run([cli, "encode", naam, "-o", "text.c"], cwd=map_, check=False,
                                   capture_output=True, text=True)
        assert "which is no name in C;" in weigering.stderr, f"{naam}: {weigering}"
    return map_ / doel


def kies(tekst: str, opname: Path) -> tuple[Keuzes, str]:
    """Step 2, and the name of the text."""
    zin = stap(tekst, "2. The text.**")
    open_, encoder, taal, dac, veld, wacht, codeer, bewaar = re.findall(r"\*\*([^*]+)\*\*", zin)
    assert (open_, veld, wacht, codeer, bewaar) == ("Open", "Class :", "Encode", "Encode", "Save"), zin
    bestand, klasse, doel = re.findall(r"`([^`]+)`", zin)
    assert bestand == opname.name, bestand
    return Keuzes([opname], encoder, taal, dac, "Include header in array", klasse), doel


def bouw_programma(map_: Path, opname: Path) -> None:
    """Step 5: the codes of a DAC are those of the recording."""
    assert "with `kestrolin_pcm.c` and `kestrolin_dac.c` as C" in stappen(
        "../README.md", "From WAV file to firmware").replace("\n", " ")
    voer_uit(f"gcc -std=c99 {VLAGGEN} -c firmware/kestrolin_pcm.c firmware/kestrolin_dac.c\n"
             f"g++ -std=c++17 {VLAGGEN} -o sounds main.cpp sounds.cpp kestrolin_pcm.o kestrolin_dac.o",
             map_)
    codes = [int(woord) for woord in voer_uit("./sounds", map_).split()]
    assert codes == [sample + 32768 for sample in samples_in(opname)[0]], "the DAC gets something else"


def bed_in(tekst: str, map_: Path, prefix: Path, thuis: Path) -> None:
    """What the page has instead of ADPCM: one more text, by the window as it was left."""
    zin = stap(tekst, "ADPCM keeps only")
    (opdracht,) = re.findall(r"`(sox [^`]+)`", zin)
    assert re.findall(r"\*\*(\w[\w ]+)\*\*", zin)[-2:] == ["Open", "Save As"], zin
    voer_uit(opdracht, map_)
    klein, doel = thuis / "klein", map_ / "bell.inc"
    klein.mkdir()
    (map_ / opdracht.split()[-1]).rename(klein / opdracht.split()[-1])
    with Programma(prefix / "bin/Kestrolin", thuis) as p:
        p.open_map(klein)
        p.knop("Save As")
        p.kies_doel(doel, INBED_TITEL)
        p.bevestig_doel(doel, INBED_TITEL)
        p.knop("Quit")
        assert p.wacht_op_einde() == 0
    assert "WAV 4 Bit IMA ADPCM" in doel.read_text(encoding="utf-8")
    gezegd = voer_uit(f"{prefix}/bin/kestrolin-cli list {doel}", map_)
    assert " WAV " in gezegd and " 16000 " in gezegd, gezegd


def laat_opdracht_schrijven(map_: Path, opname: Path, cli: Path, klasse: str) -> None:
    """The command's header and source take the place of those of the page."""
    voer_uit(f"{cli} encode --language c++ --class {klasse} {opname} -o sounds_data.inc"
             " --declarations sounds.h --source sounds.cpp", map_)
    bouw_programma(map_, opname)


def main() -> None:
    thuis = Path(os.environ["HOME"])
    prefix, map_ = thuis / "prefix", thuis / "leeg"
    installeer(*sys.argv[1:], prefix)
    map_.mkdir()
    gedeeld, cli = prefix / "share/kestrolin", prefix / "bin/kestrolin-cli"
    tekst = stappen("../README.md", "From WAV file to firmware")
    bestanden = {naam: blok for taal, blok, naam in blokken(tekst) if taal == "cpp"}
    assert tuple(bestanden) == BESTANDEN, f"the page has the files {list(bestanden)}"

    opname = neem_op(tekst, map_, gedeeld / "fragmenten/ready.wav", cli)
    keuzes, doel = kies(tekst, opname)
    maak_tekst(prefix / "bin/Kestrolin", thuis / "een", keuzes, map_ / doel)
    for naam, blok in bestanden.items():
        (map_ / naam).write_text(blok, encoding="utf-8")
    assert "`firmware/`" in stap(tekst, "5. The program.**")
    voer_uit(f"cp -r {gedeeld}/firmware .", map_)
    bouw_programma(map_, opname)
    bed_in(tekst, map_, prefix, thuis / "een")
    laat_opdracht_schrijven(map_, opname, cli, keuzes.klasse)


if __name__ == "__main__":
    main()
