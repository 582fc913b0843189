"""A newcomer with docs/manual.md alone, an installed kestrolin-cli and an empty folder: every file and
command of the chapter on builds is taken as it stands there, and says what stands there. What comes out
of the board follows the recordings, and nothing is built without need. The chapter on the command has
every command and option that the program has, and no other, and its rule for Make is one.

    opdrachtregelTest.py CMAKE BUILD

Ends with status 77 where the tools of the board are not installed, or fails where KESTROLIN_TARGET says
"required". No screen is needed.
"""

from __future__ import annotations

import os
import re
import shutil
import sys
import tempfile
from array import array
from pathlib import Path

WORTEL = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(WORTEL / "tests" / "firmware" / "example"))

# pylint: disable=wrong-import-position
import exampleTest
from pagina import blokken, installeer, samples_in, stappen, voer_uit

LES, NASLAG = "Sounds in the build", "The command"
GEDEELD = "/usr/share/kestrolin"
PAD = 'export PATH="PREFIX/bin:$PATH"'
PAKKETTEN = f"gcc make cmake sox {exampleTest.PACKAGES}"
# What the user writes, and what the command does.
GESCHREVEN = {"main.c", "Makefile", "CMakeLists.txt"}
GEMAAKT = {"build/words.h", "build/words.c"}
# What an environment would change of the page's commands.
ZONDER = ("CC", "CFLAGS", "LDFLAGS", "MAKEFLAGS", "CMAKE_GENERATOR", "CMAKE_TOOLCHAIN_FILE",
          "CMAKE_PREFIX_PATH", "SOURCE_DATE_EPOCH")
FIGUUR = re.compile(r"-?\d+\.\d(?= |$)", re.M)


def codes_van(*wavs: Path) -> list[int]:
    """What a DAC of 12 bits gets for these recordings."""
    return [int(sample / 16) + 2048 for wav in wavs for sample in [*samples_in(wav)[0], 0]]


def keur_afdruk(gezegd: str, afdruk: str) -> None:
    """The page shows all that is said, or its beginning. Figures of quality may be a little off."""
    begin = gezegd[: len(afdruk)]
    if "fwSNRseg" not in afdruk:
        assert gezegd == afdruk, f"it says\n{gezegd}instead of\n{afdruk}"
        return
    assert FIGUUR.sub("", begin) == FIGUUR.sub("", afdruk), f"it says\n{begin}instead of\n{afdruk}"
    for een, ander in zip(FIGUUR.findall(begin), FIGUUR.findall(afdruk)):
        assert abs(float(een) - float(ander)) < 0.35, f"{een} instead of {ander} in\n{begin}"


def keur_make(gezegd: str) -> None:
    """The two times that Make ran: all, then what follows from one recording."""
    aantallen = {woord: gezegd.count(woord) for woord in (
        "encode --dac 12 recordings/words/*.wav", "-o build/main.o", "-o build/words.o",
        "-o build/kestrolin_pcm.o", "-o build/kestrolin_dac.o", "-o build/board_host.o", "-o build/bell ")}
    assert list(aantallen.values()) == [2, 2, 2, 1, 1, 1, 2], f"{aantallen}:\n{gezegd}"


class Les:
    """The folder of the newcomer, and where the page is."""

    def __init__(self, leeg: Path, pad: str) -> None:
        self.leeg, self.bell = leeg, leeg / "bell"
        self.variabelen = {"PATH": f"{pad}:{os.environ['PATH']}"}
        self.gezegd = ""
        self.gehoord: list[list[int]] = []

    def neem(self, taal: str, blok: str, naam: str) -> None:
        if taal == "sh":
            self.gezegd = voer_uit(blok, self.bell if self.bell.is_dir() else self.leeg, **self.variabelen)
            self.onthoud(blok)
        elif taal == "text":
            keur_afdruk(self.gezegd, blok)
        elif naam in GEMAAKT:
            assert (self.bell / naam).read_text(encoding="utf-8") == blok, f"{naam} is another one"
        else:
            assert naam in GESCHREVEN, f"nobody knows what to do with {naam}"
            (self.bell / naam).write_text(blok, encoding="utf-8")

    def onthoud(self, blok: str) -> None:
        """Holds what the DAC got against the recordings as they are."""
        if "\nmake\n" in blok:
            keur_make(self.gezegd)
        if "build/bell\n" in blok or "board/bell\n" in blok:
            codes = list(array("H", (self.bell / "bell.dac").read_bytes()))
            wavs = (self.bell / "recordings" / "words" / naam for naam in ("ready.wav", "warning.wav"))
            assert codes == codes_van(*wavs), f"the DAC got something else after\n{blok}"
            self.gehoord.append(codes)


def keur_pakketten(tekst: str) -> None:
    """What the page has installed is what the tests here run with."""
    genoemd = re.search(r"^ {4}apt install (.*)", tekst, re.M)
    assert genoemd and genoemd[1] == PAKKETTEN, "packages"


def keur_decode(heard: Path, fragmenten: Path) -> None:
    """What decode wrote is what 12 bits leave of the recordings."""
    for naam in ("ready.wav", "warning.wav"):
        samples, frequentie = samples_in(fragmenten / naam)
        verwacht = [int(sample / 16) * 16 for sample in samples], frequentie
        assert samples_in(heard / naam) == verwacht, f"{naam} is decoded to something else"


def opties_van(programma: Path) -> set[tuple[str, str]]:
    """The commands of the program, each with the options of its help; "" has those of all."""
    hulp = voer_uit(f"'{programma}' --help", Path("/"))
    opdrachten = re.findall(r"^  (\w+) ", hulp[hulp.index("\nCommands:\n"):], re.M)
    assert len(opdrachten) >= 4, hulp
    gevonden = {("", optie) for optie in re.findall(r"^  (?:-\w, )?(--[\w-]+)", hulp, re.M)}
    for opdracht in opdrachten:
        for regel in re.findall(r"^  (-.*)", voer_uit(f"'{programma}' {opdracht} --help", Path("/")), re.M):
            namen = re.match(r"(?:-[-\w]+(?:, )?)+", regel)
            gevonden |= {(opdracht, optie) for optie in re.findall(r"-[-\w]+", namen[0] if namen else "")}
    algemeen = {("", "--help"), ("", "-h"), ("", "--version")}
    return {rij for rij in gevonden if ("", rij[1]) not in algemeen} | algemeen


def keur_naslag(tekst: str, programma: Path) -> None:
    """The options that rows and paragraphs of the chapter begin with are those of the help."""
    bekend = opties_van(programma)
    delen = re.split(r"^### (\w+)\n", tekst, flags=re.M)
    opdrachten = set(re.findall(r"^\| `kestrolin-cli (\w+) ", delen[0], re.M))
    assert opdrachten == {opdracht for opdracht, _ in bekend} - {""}, f"the manual has {opdrachten}"
    algemeen = re.search(r"^`--help`.*?\n\n", delen[0], re.M | re.S)
    genoemd = {("", optie) for optie in re.findall(r"`(--?[a-z]+)`", algemeen[0] if algemeen else "")}
    for kop, deel in zip(delen[1::2], delen[2::2]):
        if kop not in {opdracht for opdracht, _ in bekend}:
            continue
        eerste = "".join(re.findall(r"^\| (`-[^|]*)\|", deel, re.M))
        genoemd |= {(kop, optie) for optie in re.findall(r"`(--?[a-z][a-z-]*)[ `]", eerste)}
        genoemd |= {(kop, optie) for optie in re.findall(r"^`(--[a-z-]+)` ", deel, re.M)}
    assert genoemd == bekend, f"only in the manual {genoemd - bekend}, only in the help {bekend - genoemd}"


def keur_regel(tekst: str, map_: Path, pad: str) -> None:
    """The rule of the chapter that makes a text of each recording does so, and keeps it."""
    (regel,) = [blok for taal, blok, _ in blokken(tekst) if taal == "make"]
    (map_ / "recordings").mkdir(parents=True)
    (map_ / "build").mkdir()
    for naam in ("ready.wav", "warning.wav"):
        shutil.copy(WORTEL / "fragmenten" / naam, map_ / "recordings")
    (map_ / "Makefile").write_text(f"all: build/ready.o build/warning.o\n{regel}", encoding="utf-8")
    variabelen = {"PATH": f"{pad}:{os.environ['PATH']}"}
    gezegd = voer_uit("make\ntouch recordings/ready.wav\nmake\nmake", map_, **variabelen)
    aantallen = [gezegd.count(f"--encoder adpcm recordings/{naam}.wav") for naam in ("ready", "warning")]
    assert aantallen == [2, 1] and gezegd.endswith("Nothing to be done for 'all'.\n"), gezegd
    lijst = voer_uit("kestrolin-cli list build/*_data.c", map_, **variabelen)
    assert lijst.count(" ADPCM ") == 2, lijst


def volg(tekst: str, leeg: Path, pad: str) -> None:
    les = Les(leeg, pad)
    alle = blokken(tekst)
    soorten = [taal for taal, _, _ in alle]
    assert {naam for taal, _, naam in alle if taal not in ("sh", "text")} == GESCHREVEN | GEMAAKT, soorten
    for taal, blok, naam in alle:
        les.neem(taal, blok, naam)
    keur_decode(les.bell / "heard", WORTEL / "fragmenten")
    eerste, achterstevoren, op_bord, weer = les.gehoord
    assert eerste == weer and achterstevoren == op_bord and eerste != achterstevoren


def main() -> None:
    exampleTest.need_tools()
    cmake, bouw = sys.argv[1:3]
    for naam in ZONDER:
        os.environ.pop(naam, None)
    os.environ["LC_ALL"] = "C.UTF-8"
    tekst = stappen("manual.md", LES)
    assert f"    {PAD}\n" in tekst, "the page has another path"
    keur_pakketten(tekst)
    with tempfile.TemporaryDirectory(prefix="kestrolinManual") as map_:
        prefix, leeg = Path(map_, "prefix"), Path(map_, "leeg")
        leeg.mkdir()
        installeer(cmake, bouw, prefix)
        keur_naslag(stappen("manual.md", NASLAG), prefix / "bin" / "kestrolin-cli")
        keur_regel(stappen("manual.md", NASLAG), Path(map_, "regel"), f"{prefix}/bin")
        volg(tekst.replace(GEDEELD, f"{prefix}/share/kestrolin"), leeg, f"{prefix}/bin")


if __name__ == "__main__":
    main()
