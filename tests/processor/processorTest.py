"""The same bytes on another processor: the unit tests of the core pass there, and the texts of
fragmentTeksten and of a table of runs of kestrolin-cli are those of this machine, bit by bit.

    processorTest.py PROCESSOR BUILD_OF_THIS_MACHINE

Ends with status 77 where the compiler or QEMU is missing, or fails where KESTROLIN_PROCESSORS says
"required".
"""

from __future__ import annotations

import os
import random
import shutil
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

from vreemd import WORTEL, bouw, programma

sys.path.insert(0, str(WORTEL / "tests" / "windows"))

# pylint: disable=wrong-import-position
from opdrachtHulp import FRAGMENTEN, Einde, draai, maak_wav, ruis
from tekstenTest import ANDERE, GEMAAKT, vul

# The test programs, and what of each does not run in the emulator. What makes whole texts is held by the
# table below, in a fraction of the time.
PROEVEN = {
    "numeriekTests": "",
    "memBufferTests": "",
    "hoekTests": "",
    "audiocodecTests": "",
    # All bytes from all states, minutes long.
    "adpcmCoderTests": "AdpcmStilte.*:AdpcmConverter.losseCodes*:AdpcmConverter.elkeSchuif*:"
                       "AdpcmCoderStaat.langeReeks*",
    "adpcmConverterTests": "",
    "inbeddingTests": "",
    # The record as it lies in the memory of a target, which is none of these.
    "speexKernTests": "SpeexHeader.LiesInAnArrayLowByteFirst",
    "firmwareReaderTests": "",
}
BANDEN = {"8": ["ready.wav", "warning.wav"], "16": ["chime.wav"], "32": ["alarm.wav"]}
SOORTEN = ("fixed", "variable", "average")
INSPANNINGEN = ("0", "1", "3", "5", "10")


def speex_rijen() -> list[list[str]]:
    """Each band with each quality, kind of bit rate, effort and detection of voices."""
    rijen = []
    for band, opnamen in BANDEN.items():
        for nummer in range(33):
            rijen.append(["encode", *opnamen, *(f"{soort}{band}.wav" for soort in GELUIDEN),
                          "--encoder", "speex", "-o", "uit/tekst.c", "--quality", str(nummer % 11),
                          "--bitrate", SOORTEN[nummer // 11], "--max-bitrate", str(4000 + 900 * nummer),
                          "--complexity", INSPANNINGEN[nummer % 5], ("--vad", "--no-vad")[nummer % 2]])
    return rijen


def stem(aantal: int) -> list[int]:
    """Bursts of coloured noise over a hum, as a voice has them."""
    bron, vorige, samples = random.Random(7), 0.0, []
    for i in range(aantal):
        vorige = 0.9 * vorige + bron.uniform(-2500, 2500) * (1 if i // 2000 % 3 else 0.01)
        samples.append(int(vorige + ((i * 97) % 400 - 200) * (i // 3000 % 2)))
    return samples


GELUIDEN = {
    "ruis": lambda: ruis(3333, 1),
    "blok": lambda: [32767 if i // 37 % 2 else -32768 for i in range(4000)],
    "zacht": lambda: [i * i % 5 - 2 for i in range(4000)],
    "stil": lambda: [0] * 2000,
    "stem": lambda: stem(12000),
}


def vul_alles(map_: Path, ima: bytes) -> None:
    vul(map_, ima)
    for band in BANDEN:
        for naam, maak in GELUIDEN.items():
            maak_wav(map_ / f"{naam}{band}.wav", int(band) * 1000, maak())


def verschil(daar: Einde, hier: Einde) -> str:
    if daar == hier:
        return ""
    if (daar.status, daar.uit, daar.fout) != (hier.status, hier.uit, hier.fout):
        return f"{daar.status} {daar.uit[:600]!r} {daar.fout[:600]!r} instead of " \
               f"{hier.status} {hier.uit[:600]!r} {hier.fout[:600]!r}"
    return " ".join(f"{naam} differs" for naam in {*daar.bestanden, *hier.bestanden}
                    if daar.bestanden.get(naam) != hier.bestanden.get(naam))


def keur_rij(nummer: int, woorden: list[str], commandos: dict[str, list[str]], map_: Path) -> str:
    """Runs the command there and here, each in a copy of the folder. Empty where both do the same."""
    einden = []
    for naam, command in commandos.items():
        werk = map_ / naam / str(nummer)
        shutil.copytree(map_ / "opnamen", werk)
        invoer = (werk / "oud.c").read_bytes() if "-" in woorden else b""
        einden.append(draai(command, woorden, werk, invoer))
        shutil.rmtree(werk)
    gebrek = verschil(*einden)
    return f"{' '.join(woorden)}: {gebrek}" if gebrek else ""


def keur_teksten(vreemd: Path, eigen: Path, map_: Path) -> list[str]:
    """What is wrong with the texts."""
    einden = []
    for naam, command in (("daar", programma(vreemd, "bin/fragmentTeksten")),
                          ("hier", [str(eigen / "bin/fragmentTeksten")])):
        (map_ / naam).mkdir()
        einden.append(draai(command, [str(FRAGMENTEN), "teksten"], map_ / naam))
    assert einden[1].status == 0 and len(einden[1].bestanden) > 6, einden[1].fout
    gebreken = [f"fragmentTeksten: {verschil(*einden)}"] if einden[0] != einden[1] else []
    commandos = {"daar": programma(vreemd, "bin/kestrolin-cli"), "hier": [str(eigen / "bin/kestrolin-cli")]}
    vul_alles(map_ / "opnamen", einden[1].bestanden["teksten/alarm_wav.wav"])
    assert draai(commandos["hier"], ["encode", "chime.wav", "-o", "oud.c"], map_ / "opnamen").status == 0
    rijen = GEMAAKT + speex_rijen() + ANDERE
    with ThreadPoolExecutor(os.cpu_count()) as werkers:
        gebreken += filter(None, werkers.map(lambda rij: keur_rij(*rij, commandos, map_), enumerate(rijen)))
    print(f"{len(rijen)} runs, {len(gebreken)} differ", flush=True)
    return gebreken


def keur_proef(vreemd: Path, naam: str, map_: Path) -> str:
    """What a test program says against the core, empty where it passes."""
    thuis = map_ / naam
    thuis.mkdir()
    klaar = subprocess.run([*programma(vreemd, f"proeven/{naam}"), f"--gtest_filter=-{PROEVEN[naam]}"],
                           env=os.environ | {"HOME": str(thuis), "TMPDIR": str(thuis)}, cwd=thuis,
                           capture_output=True, text=True, errors="replace", check=False)
    einde = klaar.stdout.splitlines()[-1:] or ["nothing said"]
    print(f"{naam}: {einde[0]}", flush=True)
    return "" if klaar.returncode == 0 and "PASSED" in einde[0] else klaar.stdout[-6000:] + klaar.stderr[-2000:]


def main() -> int:
    processor, eigen = sys.argv[1], Path(sys.argv[2]).resolve()
    vreemd = bouw(processor, "kestrolin-cli", "fragmentTeksten", *PROEVEN)
    with tempfile.TemporaryDirectory(prefix="kestrolin") as tijdelijk:
        map_ = Path(tijdelijk)
        gebreken = keur_teksten(vreemd, eigen, map_)
        with ThreadPoolExecutor(os.cpu_count()) as werkers:
            gebreken += filter(None, werkers.map(lambda naam: keur_proef(vreemd, naam, map_), PROEVEN))
    print("\n".join(gebreken))
    return 1 if gebreken else 0


if __name__ == "__main__":
    sys.exit(main())
