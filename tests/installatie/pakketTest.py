"""Test of the Debian package on a machine that has nothing yet: it installs, its menu entry starts the
program, in English until the manual's command has made the locales and in all languages then, the command
does without a display, and removing it leaves nothing but the user's own settings.

    pakketTest.py PACKAGE RESULTS

Run inside `tour/sessie` and `schoneWortel`, which give it a screen and a fresh Debian. A screenshot in
each language goes to RESULTS.
"""

from __future__ import annotations

import gettext
import os
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / "tour"), str(ROOT / "tests" / "zwart")]

# pylint: disable=wrong-import-position
from schermwerk import opdracht, schermafdruk, toets, wacht
from teksten import OPEN_TITEL, TITEL
from zwarteDoosTest import gelijk

# The toolkit's numbers of the languages.
TALEN = {"en": 175, "nl": 161, "de": 373, "fr": 301, "it": 423, "es": 735}
GEBRUIKER = "engineer"
MENU = "usr/share/applications/example.kestrolin.kestrolin.desktop"


def omgeving(gebruiker: str) -> dict[str, str]:
    return {
        "PATH": "/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin",
        "HOME": "/root" if gebruiker == "root" else f"/home/{gebruiker}",
        "DISPLAY": os.environ["DISPLAY"], "GDK_BACKEND": "x11",
        "DEBIAN_FRONTEND": "noninteractive",
    }


class Machine:
    """The fresh Debian."""

    def __init__(self, wortel: Path) -> None:
        self.wortel = wortel
        self.thuis = wortel / "home" / GEBRUIKER

    def doe(self, *woorden: str, als: str = "root") -> str:
        """What a command there says. It has to succeed."""
        with tempfile.TemporaryFile("w+") as gezegd:
            # Not a pipe, which whatever the command starts would keep open.
            gedaan = subprocess.run(
                ["chroot", f"--userspec={als}:{als}", str(self.wortel), *woorden],
                env=omgeving(als), stdin=subprocess.DEVNULL, stdout=gezegd,
                stderr=subprocess.STDOUT, check=False,
            )
            gezegd.seek(0)
            tekst = gezegd.read()
        assert gedaan.returncode == 0, f"{woorden}: status {gedaan.returncode}\n{tekst}"
        return tekst

    def bestanden(self) -> set[str]:
        """Every file and folder, but what the system writes about itself."""
        eigen = ("proc", "dev", "var/lib/dpkg", "var/lib/apt", "var/cache/apt", "tmp")
        gevonden = set()
        for map_, mappen, namen in os.walk(self.wortel):
            plaats = os.path.relpath(map_, self.wortel)
            mappen[:] = [m for m in mappen if os.path.normpath(f"{plaats}/{m}") not in eigen]
            gevonden |= {os.path.normpath(f"{plaats}/{naam}") for naam in [*mappen, *namen]}
        return gevonden


def installeer(machine: Machine, pakket: Path) -> set[str]:
    """Installs the package with all that comes along by itself. What was there before it."""
    machine.doe("useradd", "--create-home", GEBRUIKER)
    shutil.copy(pakket, machine.wortel / "root")
    machine.doe("apt-get", "update", "-q")
    plan = machine.doe("apt-get", "install", "-s", f"/root/{pakket.name}")
    anderen = [naam for naam in re.findall(r"^Inst (\S+)", plan, re.M) if naam != "kestrolin"]
    assert {"locales", "wx3.2-i18n"} < set(anderen), "what is recommended does not come along"
    assert "locales-all" not in anderen, "the locales of the whole world come along"
    machine.doe("apt-get", "install", "-q", "-y", *anderen)
    vooraf = machine.bestanden()
    machine.doe("apt-get", "install", "-q", "-y", f"/root/{pakket.name}")
    return vooraf


def venster(titel: str) -> str:
    """The number of the window of this title, once it stands there."""

    def gezocht() -> str:
        return subprocess.run(
            ["xdotool", "search", "--onlyvisible", "--name", f"^{titel}$"],
            # A window that goes while it is looked at is told of there.
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False,
        ).stdout.split("\n", maxsplit=1)[0]

    return wacht(gezocht, f'a window named "{titel}"')


def weg(titel: str) -> bool:
    return subprocess.run(
        ["xdotool", "search", "--name", f"^{titel}$"], stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL, check=False,
    ).returncode != 0


def kies(machine: Machine, taal: str) -> None:
    """As if the user had chosen the language the last time."""
    instellingen = machine.thuis / ".Kestrolin"
    instellingen.write_text(f"[Gebruikersinstellingen]\nTaal={TALEN[taal]}\n")
    shutil.chown(instellingen, *eigenaar(machine.thuis))


def werk_in(machine: Machine, taal: str, resultaten: Path) -> None:
    """Starts the program by its menu entry, has it speak, and leaves it."""
    kies(machine, taal)
    gezegd = machine.doe("gtk-launch", Path(MENU).name, als=GEBRUIKER)
    assert "Error" not in gezegd, gezegd
    hoofd = venster(TITEL)
    icoon = opdracht("xprop", "-id", hoofd, "_NET_WM_ICON").decode()
    assert "Icon (48 x 48)" in icoon, "the window bears no icon"
    # By this a desktop knows that the window is that of the menu entry.
    klasse = opdracht("xprop", "-id", hoofd, "WM_CLASS").decode()
    verwacht = re.search(r"^StartupWMClass=(.*)", (machine.wortel / MENU).read_text(), re.M)
    assert verwacht and klasse.endswith(f'"{verwacht[1]}"\n'), klasse
    catalogus = gettext.translation(
        "Kestrolin", machine.wortel / "usr/share/locale", [taal], fallback=taal == "en"
    )
    titel = catalogus.gettext(OPEN_TITEL)
    gelijk(titel == OPEN_TITEL, taal == "en", f"the open dialog speaks {taal}")
    kijk(machine, titel, resultaten / f"{taal}.png")


def kijk(machine: Machine, titel: str, beeld: Path) -> None:
    """Opens the dialog of this title in the window that stands there, and leaves both."""
    opdracht("xdotool", "windowactivate", "--sync", venster(TITEL))
    toets("ctrl+o")
    venster(titel)
    schermafdruk(beeld)
    toets("Escape")
    wacht(lambda: weg(titel), "the dialog closes")
    toets("ctrl+q")
    wacht(lambda: weg(TITEL), "the window closes")
    # The settings are written after that.
    instellingen = machine.thuis / ".Kestrolin"
    wacht(lambda: "StopTijd" in instellingen.read_text(), "the settings are written")


def werk_zonder_locale(machine: Machine, resultaten: Path) -> None:
    """A language that the machine has no locale for: the program speaks English, and is content. It is
    started by the name that is easiest to type."""
    kies(machine, "nl")
    machine.doe("sh", "-c", 'kestrolin >"$HOME/said" 2>&1 &', als=GEBRUIKER)
    kijk(machine, OPEN_TITEL, resultaten / "no-locale.png")
    gezegd = (machine.thuis / "said").read_text()
    gelijk(gezegd.count("Could not initialise the Locale for Dutch"), 1, gezegd)


def maak_locales(machine: Machine) -> set[str]:
    """Gives the command of the manual that makes the locales. What it made."""
    handleiding = (machine.wortel / "usr/share/kestrolin/docs/manual.md").read_text(encoding="utf-8")
    (opdrachten,) = re.findall(r"^ {4}(.*locale-gen)$", handleiding, re.M)
    daarvoor = machine.bestanden()
    machine.doe("sh", "-euc", opdrachten)
    return machine.bestanden() - daarvoor


def eigenaar(pad: Path) -> tuple[int, int]:
    return pad.stat().st_uid, pad.stat().st_gid


def werk_zonder_scherm(machine: Machine) -> None:
    """The command goes from recordings to a text and back, with no display to be had and no library of
    windows, which are all there, since the window came along."""
    kaal = ("env", "-i", "PATH=/usr/bin:/bin", "HOME=/nonexistent")
    map_ = machine.doe("mktemp", "-d", als=GEBRUIKER).strip()
    wavs = [f"/usr/share/kestrolin/fragmenten/{naam}.wav" for naam in ("ready", "warning")]
    for encoder in ("speex", "adpcm", "pcm", "wav"):
        tekst = f"{map_}/{encoder}.c"
        gelijk(machine.doe(*kaal, "kestrolin-cli", "encode", "--encoder", encoder, "-o", tekst, *wavs,
                           als=GEBRUIKER), "", f"what encode says of {encoder}")
        assert "ready" in machine.doe(*kaal, "kestrolin-cli", "list", tekst, als=GEBRUIKER)
        machine.doe(*kaal, "kestrolin-cli", "decode", "--to", f"{map_}/{encoder}", tekst, als=GEBRUIKER)
        gelijk({pad.name for pad in (machine.wortel / map_[1:] / encoder).iterdir()},
               {"ready.wav", "warning.wav"}, f"what is decoded of {encoder}")
    # Into a device of SDL that is always there.
    gelijk(machine.doe(*kaal, "SDL_AUDIODRIVER=dummy", "kestrolin-cli", "play", f"{map_}/pcm.c", "ready",
                       als=GEBRUIKER), "", "what play says")
    shutil.rmtree(machine.wortel / map_[1:])
    nodig = machine.doe("ldd", "/usr/bin/kestrolin-cli")
    gelijk(re.findall(r"lib(?:gtk|gdk|X|xcb|wayland|wx_gtk|SDL)\S*", nodig), [], "libraries of windows")
    assert "libwx_baseu" in nodig and "libwx_gtk3u_core" in machine.doe("ldd", "/usr/bin/Kestrolin"), nodig


def verwijder(machine: Machine, vooraf: set[str]) -> None:
    machine.doe("apt-get", "purge", "-q", "-y", "kestrolin")
    over = machine.bestanden() - vooraf
    # The user's folders are the toolkit's below it.
    van_gebruiker = {pad for pad in over if pad.startswith(f"home/{GEBRUIKER}/")}
    gelijk(over - van_gebruiker, set(), "left behind")
    gelijk({pad for pad in van_gebruiker if "estrolin" in pad},
           {f"home/{GEBRUIKER}/.Kestrolin"}, "the user's own")
    gelijk(list((machine.wortel / "tmp").glob("*estrolin*")), [], "lock files")


def main() -> None:
    pakket, resultaten = Path(sys.argv[1]), Path(sys.argv[2])
    resultaten.mkdir(parents=True, exist_ok=True)
    machine = Machine(Path(os.environ["WORTEL"]))
    vooraf = installeer(machine, pakket)
    werk_zonder_scherm(machine)
    werk_zonder_locale(machine, resultaten)
    vooraf |= maak_locales(machine)
    for taal in TALEN:
        werk_in(machine, taal, resultaten)
    verwijder(machine, vooraf)


if __name__ == "__main__":
    main()
