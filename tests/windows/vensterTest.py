"""The window for Windows as its user meets it, under Wine.

    vensterTest.py CASE PROGRAM DRIVER COMMAND PICTURE

DRIVER uses the window (bediener.cpp). COMMAND is kestrolin-cli of this machine, whose texts the window's
are held against; PICTURE is the icon of 32 pixels. WINEPREFIX says the home under Wine.
"""

from __future__ import annotations

import configparser
import gettext
import os
import re
import shutil
import struct
import subprocess
import sys
import tempfile
from pathlib import Path
from typing import Callable, NamedTuple

from bediening import Groep, Programma, wacht, windows_pad

WORTEL = Path(__file__).resolve().parents[2]
TITEL = "Kestrolin Encoder for embedded applications"
OPENEN = "Open an Audio file"
BEWAREN = "Save the embedded speex file"
INBEDDEN = "Save the WAV files as embedded data"
# The numbers of the menu entries, and of controls without a label.
MENU_OPEN, MENU_TAAL, MENU_OVER = 5000, 22, 5014
KLASSE, DAC, TEKST = 14, 17, 20
# No code page holds both of its scripts. The command takes no such name, and gets the other.
VREEMD, GEWOON = "звук 音", "zvuk"
# What the catalogs have of a text.
VERTAALD = ("/* Put these declarations in a header file :*/\n",
            "\n/* Bytes 0..3: Number of samples (Little Endian)\n    Bytes 4..5: Sampling frequency\n"
            "    Bytes 6..End:Data  */\n\n")


class Proef(NamedTuple):
    programma: Path
    bediener: Path
    opdracht: Path
    plaatje: Path
    map: Path

    def start(self, titel: str = TITEL) -> Programma:
        return Programma(self.programma, self.bediener, titel)


def gelijk(gevonden: object, verwacht: object, wat: str) -> None:
    assert gevonden == verwacht, f"{wat}: {gevonden!r}, expected {verwacht!r}"


def instellingen_pad() -> Path:
    (thuis,) = (pad for pad in (Path(os.environ["WINEPREFIX"]) / "drive_c" / "users").iterdir()
                if pad.name != "Public")
    return thuis / "AppData" / "Roaming" / "Kestrolin.ini"


def lees_instellingen() -> dict[str, dict[str, str]]:
    lezer = configparser.ConfigParser(delimiters="=", interpolation=None, strict=True)
    lezer.optionxform = str  # type: ignore[assignment]  # keys keep their case
    lezer.read_string(instellingen_pad().read_text(encoding="utf-8"))
    return {groep: dict(lezer[groep]) for groep in lezer.sections()}


def keur_sneltoetsen(p: Programma) -> None:
    """Without a result Ctrl+S does nothing; and Ctrl+O opens."""
    p.toets("ctrl+s")
    p.toets("ctrl+o")
    p.dialoog(OPENEN)
    gelijk(sorted(p.titels()), sorted([OPENEN, TITEL]), "windows")
    p.antwoord(OPENEN, "Cancel")


def maak_opnamen(proef: Proef) -> list[Path]:
    wavs = [proef.map / naam for naam in ("ready.wav", "warning.wav", f"{VREEMD}.wav")]
    for wav, bron in zip(wavs, ("ready", "warning", "ready")):
        shutil.copy(WORTEL / "fragmenten" / f"{bron}.wav", wav)
    return wavs


def laad(p: Programma, wavs: list[Path], gereed: str = "Audio files loaded",
         titel: str = OPENEN) -> None:
    p.menu(MENU_OPEN)
    p.noem_bestand(titel, " ".join(f'"{windows_pad(wav)}"' for wav in wavs))
    wacht(lambda: p.status() == gereed, gereed)


def codeer(p: Programma, soort: str, staart: str, map_: Path) -> None:
    p.knop("Encode")
    (tekst,) = p.antwoord(f"{soort} encoding succeeded", "OK")
    gelijk(tekst, f"Audio data in\n{windows_pad(map_)}\n{staart}", "the message")
    wacht(lambda: p.status() == f"Audio encoded in {soort} embedded format", "the status")


def bewaar(p: Programma, doel: Path, aanvullen: bool = False) -> None:
    if aanvullen:
        p.knop("Save")
    else:
        p.deel("Button", "Save")
        p.toets("ctrl+s")
    p.noem_bestand(BEWAREN, str(windows_pad(doel)))
    if aanvullen:
        p.antwoord("File exists", "Yes")
    wacht(lambda: p.status() == f"Speex embedded data saved in {doel.name}", "the status")


def van_hier(proef: Proef, wavs: list[Path], *woorden: str) -> str:
    """The text that the command of this machine makes of the recordings."""
    doel, hier = proef.map / "van hier", proef.map / "hier"
    hier.mkdir(exist_ok=True)
    paden = [shutil.copy(wav, hier / wav.name.replace(VREEMD, GEWOON)) for wav in wavs]
    subprocess.run([proef.opdracht, "encode", *woorden, "-o", doel, *paden], check=True)
    return doel.read_text(encoding="utf-8").replace(GEWOON, VREEMD)


def zonder_herkomst(tekst: str) -> str:
    """Without the system and the moment."""
    tekst = re.sub(r"(?m)^(/\* (?:Encoded|Embedded)) on (?:Linux|Microsoft Windows NT) \(64 bit\)",
                   r"\1 here", tekst)
    return re.sub(r"(?m)^/\* Date : \d{4}-\d\d-\d\d : \d\d:\d\d:\d\d", "/* Date", tekst)


def keur_tekst(doel: Path, verwacht: str, aantal: int) -> None:
    tekst = doel.read_bytes().decode("utf-8")
    gelijk(tekst.count(" on Microsoft Windows NT (64 bit)\t\t*/\n"), aantal, f"systems in {doel.name}")
    gevonden, verwacht = zonder_herkomst(tekst), zonder_herkomst(verwacht)
    for nummer, (een, ander) in enumerate(zip(gevonden.splitlines(), verwacht.splitlines()), 1):
        gelijk(een, ander, f"{doel.name}, line {nummer}")
    assert gevonden == verwacht, f"{doel.name} ends differently"


def keur_pictogram(plaatje: Path) -> None:
    """The window's, as the display has it."""
    ruw = subprocess.run(["convert", plaatje, "-depth", "8", "bgra:-"], check=True,
                         capture_output=True).stdout
    verwacht = struct.unpack(f"<{len(ruw) // 4}I", ruw)
    uit = subprocess.run(["xprop", "-notype", "-name", TITEL, "-f", "_NET_WM_ICON", "32c",
                          "_NET_WM_ICON"], check=True, capture_output=True, text=True).stdout
    getallen = [int(getal) for getal in re.findall(r"\d+", uit.partition("=")[2])]
    begin = next((i + 2 for i in range(len(getallen)) if getallen[i:i + 2] == [32, 32]), None)
    assert begin is not None, f"no icon of 32 pixels: {uit[:200]}"
    gelijk(tuple(getallen[begin:begin + len(verwacht)]), verwacht, "the icon")


def keur_over(p: Programma) -> None:
    p.menu(MENU_OVER)
    groep = p.dialoog("About Kestrolin")
    assert (360, 160) in [(d.vak[2] - d.vak[0], d.vak[3] - d.vak[1]) for d in groep.delen], "no picture"
    gelijk([tekst for tekst in p.antwoord("About Kestrolin", "OK") if tekst], [
        "Kestrolin 1.1",
        "Speex codec © Xiph.Org Foundation\nKestrolin © 2026 The Kestrolin team",
        "wxMSW Microsoft Windows NT(64 bit)\nThis program converts audio fragments\n"
        "from WAV format into speex arrays\nfor use in embedded applications.",
    ], "the About box")


def weg(proef: Proef) -> None:
    """Each encoder, played, saved, appended and embedded, with a name that no code page holds."""
    wavs = maak_opnamen(proef)
    doelen = {naam: proef.map / naam for naam in
              (f"{VREEMD}.cpp", "adpcm.c", "pcm.c", "wav.c", "twee.c")}
    with proef.start() as p:
        keur_pictogram(proef.plaatje)
        keur_sneltoetsen(p)
        laad(p, wavs)
        p.knop("Play WAV Files")
        p.vraag("typ", p.deel("Edit", nummer=KLASSE).hwnd, "Geluid")
        speex = van_hier(proef, wavs, "--encoder", "speex", "--language", "c++", "--class", "Geluid")
        p.knop("Encode")
        p.antwoord("Speex encoding succeeded", "OK")
        bewaar(p, doelen[f"{VREEMD}.cpp"])
        keur_tekst(doelen[f"{VREEMD}.cpp"], speex, len(wavs))
        p.knop("Play Encoded")
        gelijk(p.antwoord("Kestrolin Information", "OK"),
               ["Fragment 1: sampling frequency 8000 Hz, number of frames 5005"], "what is played")
        wacht(lambda: p.status() == "Finished playing decoded audio fragments.", "the status")

        p.knop("ADPCM")
        p.knop("C ")
        adpcm = van_hier(proef, wavs, "--encoder", "adpcm")
        codeer(p, "ADPCM", "was successfully encoded to ADPCM.", proef.map)
        # The decoder takes the text for an image, and has no room for its size. The result stays.
        p.knop("Play Encoded")
        p.antwoord("Unhandled exception", "Ignore")
        bewaar(p, doelen["adpcm.c"])
        keur_tekst(doelen["adpcm.c"], adpcm, len(wavs))

        p.knop("PCM")
        p.kies(p.deel("ComboBox", nummer=DAC), "12 Bit DAC")
        pcm = van_hier(proef, wavs, "--encoder", "pcm", "--dac", "12")
        codeer(p, "PCM", "was successfully encoded to PCM.", proef.map)
        for naam in ("pcm.c", "twee.c"):
            bewaar(p, doelen[naam])
            keur_tekst(doelen[naam], pcm, len(wavs))
        gelijk(p.tekstveld(TEKST).replace("\r\n", "\n"),
               doelen["pcm.c"].read_text(encoding="utf-8"), "the text field")
        bewaar(p, doelen["twee.c"], aanvullen=True)
        gelijk(doelen["twee.c"].read_bytes(), doelen["pcm.c"].read_bytes() * 2, "the appended text")

        p.knop("Save As...")
        p.noem_bestand(INBEDDEN, str(windows_pad(doelen["wav.c"])))
        wacht(lambda: p.status() == "WAV embedded data saved in wav.c", "the status")
        keur_tekst(doelen["wav.c"], van_hier(proef, wavs, "--encoder", "wav", "--dac", "12"), len(wavs))
        keur_over(p)
        assert not instellingen_pad().exists(), "the settings are written before the end"
        p.toets("ctrl+q")
        gelijk(p.wacht_op_einde(), 0, "exit status")
    keur_instellingen(proef.map, wavs)
    with proef.start() as p:
        hoofd = p.hoofd()
        assert all((knop := hoofd.zoek("Button", naam)) and knop.aan for naam in ("PCM", "C ")), hoofd
        gelijk(p.deel("ComboBox", nummer=DAC).tekst, "12 Bit DAC", "the DAC's width")
        gelijk(veld.tekst if (veld := hoofd.zoek("Edit", nummer=KLASSE)) else None, "Geluid", "class")
        p.vraag("sluit", hoofd.top.hwnd)
        gelijk(p.wacht_op_einde(), 0, "exit status")


def keur_instellingen(map_: Path, wavs: list[Path]) -> None:
    gevonden = lees_instellingen()
    gelijk(gevonden["Statistiek"].pop("OS"), "8", "the system")
    gelijk(sorted(gevonden.pop("Statistiek")), ["StartDatum", "StartTijd", "StopDatum", "StopTijd"],
           "the statistics")
    gelijk(sorted(gevonden["Configuratie"].pop(f"file{n}") for n in range(1, 10)),
           [""] * 6 + sorted(str(windows_pad(wav)).replace("\\", "\\\\") for wav in wavs), "history")
    pad = str(windows_pad(map_)).replace("\\", "\\\\")
    gelijk(gevonden, {
        "Gebruikersinstellingen": {"Taal": "175"},
        "Gebruikersinstellingen/Speex": {
            "speexFormat": "0", "speexQuality": "8", "speexComplexity": "3",
            "speexBitRateChoice": "0", "speexBitRate": "5000", "speexOutputLanguage": "0",
            "speexVAC": "1", "speexDenoise": "1", "speexAGC": "1", "IncludeHeader": "1",
            "dacNumberOfBits": "2"},
        "Configuratie": {
            "wavDirectory": pad, "speexDirectory": pad, "wavFile": "", "speexFile": "",
            "klasseNaam": "Geluid", "Convertertype": "2"},
    }, "the settings")


def kies_taal(p: Programma, titel: str, taal: str, vraag: str, knoppen: tuple[str, str]) -> None:
    p.menu(MENU_TAAL)
    lijst = p.dialoog(titel).zoek("ListBox")
    assert lijst
    p.kies(lijst, taal)
    p.antwoord(titel, knoppen[0])
    p.antwoord(vraag, knoppen[1])
    gelijk(p.wacht_op_einde(), 0, "exit status")


def knopteksten(groep: Groep) -> set[str]:
    return {deel.tekst for deel in groep.delen if deel.soort == "Button"}


def codeer_vertaald(proef: Proef, p: Programma, wavs: list[Path], ons: Callable[[str], str]) -> None:
    """The text has the catalog's comments, and is the English one otherwise."""
    verwacht = van_hier(proef, wavs, "--encoder", "pcm", "--dac", "16")
    for commentaar in VERTAALD:
        assert commentaar in verwacht and ons(commentaar) != commentaar, commentaar
        verwacht = verwacht.replace(commentaar, ons(commentaar))
    p.knop("PCM")
    p.knop("C ")
    p.knop("Encode")
    p.antwoord("PCM encoding succeeded", "OK")
    wacht(lambda: p.status() == ons("Audio encoded in PCM embedded format"), "the status")
    doel = proef.map / "vertaald.c"
    p.toets("ctrl+s")
    p.noem_bestand(ons(BEWAREN), str(windows_pad(doel)))
    wacht(lambda: p.status() == ons("Speex embedded data saved in ") + doel.name, "the status")
    keur_tekst(doel, verwacht, len(wavs))


def taal(proef: Proef) -> None:
    """The next start is Dutch, with the toolkit's own words, and the one after that English."""
    catalogi = proef.programma.parents[1] / "share" / "locale"
    ons = gettext.translation("Kestrolin", catalogi, ["nl"]).gettext
    frame = gettext.translation("Velmoradesktop", catalogi, ["nl"]).gettext
    hun = gettext.translation("wxstd", catalogi, ["nl"]).gettext
    eigen = {hun(tekst).replace("&", "") for tekst in ("&Open...", "&Save", "Save &As...", "&Quit")}
    assert "Quit" not in eigen, eigen
    wavs = maak_opnamen(proef)
    with proef.start() as p:
        kies_taal(p, "Kies een taal", "Nederlands", "Restart the application", ("OK", "Yes"))
    gelijk(lees_instellingen()["Gebruikersinstellingen"]["Taal"], "161", "Taal")
    with proef.start() as p:
        assert eigen <= knopteksten(p.hoofd()), f"{eigen}: {knopteksten(p.hoofd())}"
        laad(p, wavs, ons("Audio files loaded"), ons(OPENEN))
        codeer_vertaald(proef, p, wavs, ons)
        kies_taal(p, ons("Kies een taal"), frame("English"), frame("Restart the application"),
                  (hun("&OK").replace("&", ""), "Yes"))
    gelijk(lees_instellingen()["Gebruikersinstellingen"]["Taal"], "175", "Taal")
    with proef.start() as p:
        assert {"Open...", "Save", "Save As...", "Quit"} <= knopteksten(p.hoofd())
        p.knop("Quit")
        gelijk(p.wacht_op_einde(), 0, "exit status")


GEVALLEN: dict[str, Callable[[Proef], None]] = {"weg": weg, "taal": taal}


def main() -> None:
    # Names of files are UTF-8 to Wine whatever the machine speaks.
    os.environ["LC_ALL"] = "C.UTF-8"
    geval, *paden = sys.argv[1:]
    programma, bediener, opdracht, plaatje = (Path(pad).resolve() for pad in paden)
    with tempfile.TemporaryDirectory() as map_:
        proef = Proef(programma, bediener, opdracht, plaatje, Path(map_))
        if Path(os.environ["WINEPREFIX"], "klaar").exists():
            instellingen_pad().unlink(missing_ok=True)
        try:
            GEVALLEN[geval](proef)
        finally:
            subprocess.run(["wineserver", "--kill"], check=False)


if __name__ == "__main__":
    main()
