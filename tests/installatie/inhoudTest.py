"""Test of what an installation holds, or, of its files alone, the Debian package.

    inhoudTest.py CMAKE BUILD
    inhoudTest.py PACKAGE
"""

from __future__ import annotations

import configparser
import re
import struct
import subprocess
import sys
import tempfile
from pathlib import Path
from xml.etree import ElementTree

ROOT = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / "tests" / "vertalingen"), str(ROOT / "tests" / "documenten")]

# pylint: disable=wrong-import-position
from boom import Boom
from catalogi import TALEN

ID = "example.kestrolin.kestrolin"
METAINFO = f"share/metainfo/{ID}.metainfo.xml"
MENU = f"share/applications/{ID}.desktop"
# The names in small letters, and what they lead to.
KLEIN = {"bin/kestrolin": "Kestrolin", "share/man/man1/kestrolin.1.gz": "Kestrolin.1.gz"}
# The man pages, and what each says of its program.
MAN = {"share/man/man1/Kestrolin.1.gz": "Kestrolin - turn WAV fragments",
       "share/man/man1/kestrolin.1.gz": "kestrolin - turn WAV fragments",
       "share/man/man1/kestrolin-cli.1.gz": "kestrolin-cli - turn WAV fragments"}
# Where bash and fish look for completions; Debian's zsh looks elsewhere than in an installation.
AANVULLING = {"share/bash-completion/completions/kestrolin-cli",
              "share/fish/vendor_completions.d/kestrolin-cli.fish"}
ZSH = "share/zsh/site-functions/_kestrolin-cli"
# What plays, where it was built with sound.
MODULE = "lib/kestrolin/geluid.so"
DEBIAN_ZSH = "share/zsh/vendor-completions/_kestrolin-cli"
CMAKE = {f"share/cmake/{pakket}/{pakket}{deel}.cmake" for pakket in ("Kestrolin", "KestrolinReaders")
         for deel in ("Config", "ConfigVersion")} | {"share/cmake/Kestrolin/KestrolinSounds.cmake"}
MATEN = (16, 22, 24, 32, 48, 64, 96, 128, 256, 512)
# What appstreamcli may say. No domain ends in the one of the component, which is set apart for names that
# are nobody's. AppStream 0.16, of Debian 12, does not know the developer's tag that 1.0 asks for.
BEKEND = ("cid-maybe-not-rdns", "unknown-tag developer")
# What the example plays.
TEKSTEN = {f"share/kestrolin/firmware/example/texts/{naam}.c"
           for naam in ("adpcm", "pcm", "speex8", "speex16", "speex32", "wav")}
# The pages for browsers.
BLADZIJDEN = {f"share/doc/kestrolin/html/{naam}" for naam in ("manual.html", "firmware.html", "kestrolin.css")}
# What makes the example from the source tree is of no use without it, and the page about the source
# is none for users.
NIET_VOOR_GEBRUIKERS = {"firmware/example/run", "docs/architecture.md"}
# What makes the layouts of the readers, which are installed themselves.
INDELINGEN = "firmware/layouts/"


def gelijk(gevonden: object, verwacht: object, wat: str) -> None:
    assert gevonden == verwacht, f"{wat}: {gevonden!r} instead of {verwacht!r}"


def zeg(*woorden: str | Path) -> str:
    """What a command says; it has to succeed."""
    uitkomst = subprocess.run(
        [str(w) for w in woorden], capture_output=True, text=True, check=False,
        env={"PATH": "/usr/bin:/bin", "LC_ALL": "C.UTF-8"},
    )
    alles = (uitkomst.stdout + uitkomst.stderr).strip()
    assert uitkomst.returncode == 0, f"{woorden}: {alles}"
    return alles


def bestanden(map_: Path) -> set[str]:
    return {str(p.relative_to(map_)) for p in map_.rglob("*") if p.is_symlink() or not p.is_dir()}


def van_boom(naam: str) -> set[str]:
    """The files of a folder of the source tree."""
    return {pad for pad in Boom(ROOT).bestanden if pad.startswith(f"{naam}/")}


def deelbaar() -> set[str]:
    """What of the source tree is installed as it is."""
    fragmenten = {pad for pad in van_boom("fragmenten") if pad.endswith(".wav")}
    indelingen = van_boom(INDELINGEN.rstrip("/"))
    return (van_boom("firmware") | van_boom("docs") | fragmenten) - NIET_VOOR_GEBRUIKERS - indelingen


def ingedeeld() -> dict[str, str]:
    """What lies in the Arduino library as it is in the source tree, and where."""
    arduino = f"{INDELINGEN}arduino/"
    eigen = {pad.removeprefix(arduino): pad for pad in van_boom(arduino.rstrip("/"))}
    lezers = {f"src/{Path(pad).name}": pad for pad in van_boom("firmware")
              if re.fullmatch(r"firmware/kestrolin_\w+\.[ch]", pad)}
    alle = {**eigen, **lezers, "LICENSE": "firmware/LICENSE"}
    return {f"share/kestrolin/arduino/Kestrolin/{naam}": pad for naam, pad in alle.items()}


# What is made of the readers.
GEMAAKT = {"share/kestrolin/arduino/Kestrolin/src/Kestrolin.h",
           *(f"share/kestrolin/two-files/kestrolin_readers.{soort}" for soort in "ch")}


def keur_bytes(prefix: Path) -> None:
    """What is installed as it is."""
    for naam, pad in {**{f"share/kestrolin/{pad}": pad for pad in deelbaar()}, **ingedeeld()}.items():
        gelijk((prefix / naam).read_bytes(), (ROOT / pad).read_bytes(), naam)


def keur_namen(prefix: Path, andere: set[str]) -> None:
    """Everything lies in its place, these other files among it, and nothing else does."""
    verwacht = {"bin/Kestrolin", "bin/kestrolin-cli", MENU, METAINFO, *KLEIN, *TEKSTEN, *BLADZIJDEN,
                *MAN, *AANVULLING, *CMAKE, *GEMAAKT, *ingedeeld(),
                "share/icons/hicolor/scalable/apps/kestrolin.svg"}
    verwacht |= {f"share/icons/hicolor/{m}x{m}/apps/kestrolin.png" for m in MATEN}
    verwacht |= {f"share/locale/{t}/LC_MESSAGES/{d}.mo"
                 for t in TALEN for d in ("Kestrolin", "Velmoradesktop")}
    verwacht |= {"share/doc/kestrolin/manual"} | andere
    verwacht |= {f"share/kestrolin/{pad}" for pad in deelbaar()}
    gelijk(verwacht - bestanden(prefix), set(), "what is not installed")
    gelijk(bestanden(prefix) - verwacht, set(), "what is installed too")
    gelijk({naam: str((prefix / naam).readlink()) for naam in KLEIN}, KLEIN, "names in small letters")
    keur_bytes(prefix)
    handleiding = prefix / "share/doc/kestrolin/manual/manual.md"
    gelijk(handleiding.read_bytes(), (ROOT / "docs/manual.md").read_bytes(), "the manual by its link")


def keur_menu(prefix: Path) -> None:
    """The menu entry is sound, and speaks every language."""
    # It stands with what is for sound and with what is for developers, as its users would look for it.
    (hint,) = zeg("desktop-file-validate", prefix / MENU).splitlines()
    assert ': hint: value "AudioVideo;Audio;Development;"' in hint and "more than one main" in hint, hint
    ontleed = configparser.RawConfigParser(strict=True)
    ontleed.optionxform = str  # type: ignore[assignment]
    ontleed.read(prefix / MENU, encoding="utf-8")
    ingang = dict(ontleed["Desktop Entry"])
    vast = {"Type": "Application", "Name": "Kestrolin", "Exec": "Kestrolin", "Icon": "kestrolin",
            "Terminal": "false", "StartupNotify": "true", "StartupWMClass": "Kestrolin", "Categories": "AudioVideo;Audio;Development;"}
    gelijk({sleutel: ingang.get(sleutel) for sleutel in vast}, vast, "the menu entry")
    # The program takes no files.
    assert "MimeType" not in ingang and "%" not in ingang["Exec"], "files are given to the program"
    assert "NoDisplay" not in ingang and "Hidden" not in ingang, "no menu shows it"
    for sleutel in ("GenericName", "Comment", "Keywords"):
        teksten = [ingang[f"{sleutel}[{taal}]"] for taal in TALEN] + [ingang[sleutel]]
        gelijk(len(set(teksten)), len(TALEN) + 1, f"different texts of {sleutel}")
        gelijk([t.endswith(";") for t in teksten], [sleutel == "Keywords"] * 6, sleutel)


def keur_metainfo(prefix: Path) -> None:
    uitspraak = zeg("appstreamcli", "validate", "--no-net", "--pedantic", prefix / METAINFO)
    gelijk([r for r in uitspraak.splitlines() if r[:2] in ("E:", "W:", "I:", "P:")
            and not any(bekend in r for bekend in BEKEND)], [], "appstreamcli validate")
    component = ElementTree.parse(prefix / METAINFO).getroot()
    taal = "{http://www.w3.org/XML/1998/namespace}lang"
    for naam in ("summary", "description/p"):
        talen = {deel.get(taal, "en") for deel in component.findall(naam)}
        gelijk(talen, {"en", *TALEN}, f"languages of {naam}")
    gelijk(component.findtext("id"), ID, "its id")
    gelijk([deel.text for deel in component.findall("categories/category")],
           ["AudioVideo", "Audio", "Development"], "its categories")
    gelijk(component.findtext("launchable"), Path(MENU).name, "what it launches")
    gelijk(component.findtext("icon"), "kestrolin", "its icon")
    gelijk([deel.text for deel in component.findall("provides/binary")], ["Kestrolin", "kestrolin-cli"],
           "its programs")
    beelden = {Path(beeld.text or "").name for beeld in component.findall("screenshots//image")}
    gelijk(beelden - {p.name for p in (ROOT / "docs/pictures").iterdir()}, set(), "no such picture")
    nieuwste = component.find("releases/release")
    assert nieuwste is not None
    gelijk(nieuwste.get("version"), VERSIE, "the newest release")


def keur_handleiding_van_man(prefix: Path) -> None:
    for pagina, zegt in MAN.items():
        gelijk(zeg("man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z", prefix / pagina)
               .count("warning"), 0, f"warnings of {pagina}")
        assert f'"{zegt}' in zeg("lexgrog", prefix / pagina), pagina
        assert f"Kestrolin {VERSIE}" in zeg("man", "-l", prefix / pagina), pagina


def keur_icoon(prefix: Path) -> None:
    """Each PNG has the size that its folder tells."""
    for maat in MATEN:
        png = (prefix / f"share/icons/hicolor/{maat}x{maat}/apps/kestrolin.png").read_bytes()
        gelijk(png[:8], b"\x89PNG\r\n\x1a\n", "the mark of PNG")
        gelijk(struct.unpack(">II", png[16:24]), (maat, maat), f"the icon of {maat} pixels")


def keur_lezers(prefix: Path, cmake: str, werk: Path) -> None:
    """A project of anybody's takes the readers from there."""
    (werk / "CMakeLists.txt").write_text(
        "cmake_minimum_required(VERSION 3.13)\nproject(doorbell C)\n"
        f"add_subdirectory({prefix}/share/kestrolin/firmware readers)\n"
        "add_executable(doorbell main.c)\ntarget_link_libraries(doorbell kestrolin_readers)\n"
    )
    (werk / "main.c").write_text(
        '#include "kestrolin_pcm.h"\nint main(void) {\n  kestrolin_pcm pcm;\n'
        "  return kestrolin_pcm_open(&pcm, 0, 0) == KESTROLIN_TRUNCATED ? 0 : 1;\n}\n"
    )
    zeg(cmake, "-S", werk, "-B", werk / "bouw")
    zeg(cmake, "--build", werk / "bouw")
    zeg(werk / "bouw" / "doorbell")


def keur_veranderingen() -> None:
    """The newest version that is told of is this one."""
    koppen = re.findall(r"^## (\d\S*)", (ROOT / "CHANGELOG.md").read_text(encoding="utf-8"), re.M)
    gelijk(koppen[0], VERSIE, "the newest version in CHANGELOG.md")


def versie() -> str:
    for regel in (ROOT / "CMakeLists.txt").read_text(encoding="utf-8").splitlines():
        if regel.startswith("project("):
            return regel.split("VERSION ")[1].split()[0]
    raise AssertionError("no version")


VERSIE = versie()


def keur_pakket(pakket: str) -> None:
    """The package holds what is installed, with Debian's own documents."""
    with tempfile.TemporaryDirectory() as uitgepakt:
        zeg("dpkg-deb", "-x", pakket, uitgepakt)
        afwijkingen = Path(uitgepakt, "usr/share/lintian/overrides/kestrolin")
        gelijk(afwijkingen.read_bytes(), (ROOT / "packaging/debian/lintian-overrides").read_bytes(),
               "what lintian is told")
        afwijkingen.unlink()
        lijst = Path(uitgepakt, "usr/share/doc-base/kestrolin.kestrolin")
        gelijk(lijst.read_bytes(), (ROOT / "packaging/debian/doc-base").read_bytes(), "the list of documents")
        for pagina in re.findall(r"^(?:Index|Files): /(.*)", lijst.read_text(encoding="utf-8"), re.M):
            assert list(Path(uitgepakt).glob(pagina)), f"no {pagina}"
        lijst.unlink()
        eigen = {f"share/doc/kestrolin/{naam}"
                 for naam in ("changelog.gz", "changelog.Debian.gz", "copyright")}
        met_geluid = "libsdl2" in zeg("dpkg-deb", "-f", pakket, "Depends")
        keur_namen(Path(uitgepakt, "usr"), {DEBIAN_ZSH, *eigen} | ({MODULE} if met_geluid else set()))


def keur_installatie(cmake: str, bouw: str) -> None:
    keur_veranderingen()
    with tempfile.TemporaryDirectory() as tijdelijk:
        prefix, werk = Path(tijdelijk, "elsewhere"), Path(tijdelijk, "project")
        werk.mkdir()
        # A component: the list of files of a user's own installation is left alone so.
        zeg(cmake, "--install", bouw, "--prefix", prefix, "--component", "Unspecified")
        eigen = {f"share/doc/kestrolin/{naam}" for naam in ("CHANGELOG.md", "LICENSE")}
        met_geluid = Path(bouw, MODULE).exists()
        keur_namen(prefix, {ZSH, *eigen} | ({MODULE} if met_geluid else set()))
        keur_menu(prefix)
        keur_metainfo(prefix)
        keur_handleiding_van_man(prefix)
        keur_icoon(prefix)
        keur_lezers(prefix, cmake, werk)


if __name__ == "__main__":
    if len(sys.argv) == 2:
        keur_pakket(sys.argv[1])
    else:
        keur_installatie(*sys.argv[1:])
