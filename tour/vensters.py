"""The windows of a process as the window manager has them: which there are, and how large."""

from __future__ import annotations

import re
import subprocess

from schermwerk import opdracht, wacht


def titels(proces: int) -> list[str]:
    """Titles of a process's windows, as the window manager lists them."""
    lijst = opdracht("xprop", "-root", "_NET_CLIENT_LIST").decode()
    gevonden = []
    for nummer in re.findall(r"0x[0-9a-f]+", lijst):
        gegevens = subprocess.run(
            ["xprop", "-id", nummer, "_NET_WM_PID", "_NET_WM_NAME"],
            stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False,
        ).stdout
        if re.search(rf"_NET_WM_PID.* = {proces}\b", gegevens):
            naam = re.search(r'_NET_WM_NAME.* = "(.*)"', gegevens)
            gevonden.append(naam.group(1) if naam else "")
    return gevonden


def _nummer(proces: int, titel: str) -> str:
    wacht(lambda: titel in titels(proces), f'a window named "{titel}"')
    return opdracht(
        "xdotool", "search", "--all", "--onlyvisible", "--pid", str(proces),
        "--name", f"^{re.escape(titel)}$",
    ).decode().split()[0]


def naar_voren(proces: int, titel: str) -> None:
    opdracht("xdotool", "windowactivate", _nummer(proces, titel))


def wijst_op_tip() -> bool:
    """Whether the mouse is on a tooltip."""
    nummer = re.findall(
        r"WINDOW=(\d+)", opdracht("xdotool", "getmouselocation", "--shell").decode()
    )
    soort = subprocess.run(
        ["xprop", "-id", *nummer, "_NET_WM_WINDOW_TYPE"],
        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False,
    ).stdout
    return "_NET_WM_WINDOW_TYPE_TOOLTIP" in soort


def geef_maat(proces: int, titel: str, maat: tuple[int, int]) -> None:
    """Makes a window so large, and puts it in the middle of the screen."""
    nummer = _nummer(proces, titel)
    scherm = map(int, opdracht("xdotool", "getdisplaygeometry").split())
    plaats = [str((ruimte - eigen) // 2) for ruimte, eigen in zip(scherm, maat)]
    opdracht(
        "xdotool", "windowsize", nummer, *map(str, maat), "windowmove", nummer, *plaats
    )
    maten = {f"WIDTH={maat[0]}", f"HEIGHT={maat[1]}"}

    def heeft_maat() -> bool:
        regels = opdracht("xdotool", "getwindowgeometry", "--shell", nummer).decode()
        return maten <= set(regels.split())

    wacht(heeft_maat, f'"{titel}" is {maat[0]} by {maat[1]} pixels')
