"""Uses the window under Wine from outside, by the program beside this one."""

from __future__ import annotations

import json
import subprocess
import time
from pathlib import Path, PureWindowsPath
from types import TracebackType
from typing import Any, Callable, NamedTuple, TypeVar

WIJN = Path(__file__).resolve().parents[1] / "steun" / "wijn"
# Only what hangs takes longer.
GEDULD = 900  # s
STIJL_KIND = 0x40000000
DIALOOG = "#32770"

T = TypeVar("T")


def wacht(vraag: Callable[[], T], wat: str) -> T:
    """What the question answers as soon as that is something."""
    einde = time.monotonic() + GEDULD
    while True:
        antwoord = vraag()
        if antwoord:
            return antwoord
        assert time.monotonic() < einde, f"waited in vain: {wat}"
        time.sleep(0.1)


def windows_pad(pad: Path) -> PureWindowsPath:
    """The drive Z: is this machine's disk."""
    return PureWindowsPath("Z:" + str(pad))


class Venster(NamedTuple):
    hwnd: int
    id: int
    soort: str
    bruikbaar: bool
    aan: bool
    tekst: str
    vak: tuple[int, int, int, int]


class Groep(NamedTuple):
    """What stands on the screen by itself, and what is in it."""

    top: Venster
    delen: list[Venster]

    def zoek(self, soort: str, tekst: str | None = None, nummer: int | None = None) -> Venster | None:
        for deel in self.delen:
            if (deel.soort == soort and tekst in (None, deel.tekst)
                    and nummer in (None, deel.id)):
                return deel
        return None

    def teksten(self) -> list[str]:
        return [deel.tekst for deel in self.delen if deel.soort == "Static" and deel.tekst]


def als_venster(rij: dict[str, Any]) -> Venster:
    # An ampersand marks the letter of a key.
    return Venster(rij["hwnd"], rij["id"], rij["soort"], rij["bruikbaar"], rij["aan"],
                   rij["tekst"].replace("&", ""), tuple(rij["vak"]))


class Programma:
    """The program, from its start to its end."""

    def __init__(self, programma: Path, bediener: Path, titel: str) -> None:
        self.titel = titel
        # pylint: disable-next=consider-using-with
        self.bediener = subprocess.Popen(
            [WIJN, bediener], stdin=subprocess.PIPE, stdout=subprocess.PIPE, encoding="utf-8")
        self.vraag("start", windows_pad(programma))
        wacht(self.is_in_rust, "the window has come to rest")

    def __enter__(self) -> "Programma":
        return self

    def __exit__(self, _soort: type[BaseException] | None, _fout: BaseException | None,
                 _spoor: TracebackType | None) -> None:
        # Its end ends the program too.
        self.bediener.communicate()

    def vraag(self, *woorden: object) -> Any:
        assert self.bediener.stdin and self.bediener.stdout
        self.bediener.stdin.write(" ".join(str(woord) for woord in woorden) + "\n")
        self.bediener.stdin.flush()
        antwoord = json.loads(self.bediener.stdout.readline())
        assert not isinstance(antwoord, dict), f"{woorden}: {antwoord['fout']}"
        return antwoord

    def groepen(self) -> list[Groep]:
        uit: list[Groep] = []
        for rij in self.vraag("vensters"):
            if not rij["stijl"] & STIJL_KIND:
                uit.append(Groep(als_venster(rij), []))
            elif uit:
                uit[-1].delen.append(als_venster(rij))
        return uit

    def groep(self, titel: str) -> Groep | None:
        return next((groep for groep in self.groepen() if groep.top.tekst == titel), None)

    def titels(self) -> list[str]:
        return [groep.top.tekst for groep in self.groepen()]

    def hoofd(self) -> Groep:
        return wacht(lambda: self.groep(self.titel), "the main window")

    def dialoog(self, titel: str) -> Groep:
        """With its buttons, which come after it."""
        def gevonden() -> Groep | None:
            groep = self.groep(titel)
            return groep if groep and groep.zoek("Button") else None
        return wacht(gevonden, f"the dialog {titel}")

    def is_in_rust(self) -> bool:
        """The window is up and has been idle: only then is Encode grey without audio."""
        hoofd = self.groep(self.titel)
        knop = hoofd.zoek("Button", "Encode") if hoofd else None
        return knop is not None and not knop.bruikbaar

    def deel(self, soort: str, tekst: str | None = None, nummer: int | None = None) -> Venster:
        """A part of the main window, once it can be used."""
        def gevonden() -> Venster | None:
            hoofd = self.groep(self.titel)
            een = hoofd.zoek(soort, tekst, nummer) if hoofd and hoofd.top.bruikbaar else None
            return een if een and een.bruikbaar else None
        return wacht(gevonden, f"{soort} {tekst} {nummer} can be used")

    def knop(self, tekst: str) -> None:
        self.vraag("klik", self.deel("Button", tekst).hwnd)

    def kies(self, lijst: Venster, rij: str) -> None:
        self.vraag("kies", lijst.hwnd, self.vraag("rijen", lijst.hwnd).index(rij))

    def menu(self, nummer: int) -> None:
        """An entry of the main window's menus."""
        wacht(lambda: self.hoofd().top.bruikbaar, "the main window can be used")
        self.vraag("menu", self.hoofd().top.hwnd, nummer)

    def toets(self, toets: str) -> None:
        """Presses a key of the keyboard, with the main window in front."""
        subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name", f"^{self.titel}$",
                        "windowactivate", "--sync", "key", "--clearmodifiers", toets], check=True)

    def antwoord(self, titel: str, knop: str) -> list[str]:
        """Presses a button of a dialog, and gives what the dialog said."""
        groep = self.dialoog(titel)
        gekozen = wacht(lambda: self.dialoog(titel).zoek("Button", knop), f"{knop} in {titel}")
        self.vraag("klik", gekozen.hwnd)
        wacht(lambda: self.groep(titel) is None, f"{titel} is gone")
        return groep.teksten()

    def noem_bestand(self, titel: str, naam: str) -> None:
        """Types a name into a dialog for files, and confirms it."""
        dialoog = self.dialoog(titel)
        veld = dialoog.zoek("Edit")
        knop = dialoog.zoek("Button", nummer=1)
        assert veld and knop, f"{titel}: {dialoog.delen}"
        self.vraag("typ", veld.hwnd, naam)
        self.vraag("klik", knop.hwnd)
        wacht(lambda: self.groep(titel) is None, f"{titel} is gone")

    def status(self) -> str:
        balk = self.hoofd().zoek("msctls_statusbar32")
        return balk.tekst if balk else ""

    def tekstveld(self, nummer: int) -> str:
        return str(self.vraag("tekst", self.deel("Edit", nummer=nummer).hwnd))

    def wacht_op_einde(self) -> int:
        wacht(lambda: self.vraag("einde") is not None, "the program has ended")
        return int(self.vraag("einde"))
