"""Tests of the built program as its user meets it: its window, its files, its exit status.

    zwarteDoosTest.py CASE PROGRAM

Run inside `tour/sessie`, which gives each case a screen and an empty home of its own.
"""

from __future__ import annotations

import configparser
import os
import re
import shutil
import sys
from pathlib import Path
from typing import Callable

# The first of these finds the others, which are the tour's.
from vensterHulp import FRAGMENTEN, gelijk, keur_einde, laad, laad_en_codeer, wacht_op_rust

# pylint: disable=wrong-import-order
import nakijken
import uiterlijk
from bediening import Programma
from schermwerk import toets
from teksten import MELDING_ADPCM, MELDING_SPEEX, OPEN_TITEL, TITEL

# What the configuration file holds after a first start, apart from dates, times and directories.
INSTELLINGEN = {
    "Gebruikersinstellingen": {"Taal": "175"},
    "Gebruikersinstellingen/Speex": {
        "speexFormat": "0",
        "speexQuality": "8",
        "speexComplexity": "3",
        "speexBitRateChoice": "0",
        "speexBitRate": "5000",
        "speexOutputLanguage": "1",
        "speexVAC": "1",
        "speexDenoise": "1",
        "speexAGC": "1",
        "IncludeHeader": "1",
        "dacNumberOfBits": "3",
    },
}
DATUM = r"\d{4}-\d\d-\d\d"
TIJD = r"\d\d:\d\d:\d\d"
STATISTIEK = {
    "StartDatum": DATUM, "StartTijd": TIJD, "StopDatum": DATUM, "StopTijd": TIJD, "OS": "64",
}


def lees_instellingen(thuis: Path) -> dict[str, dict[str, str]]:
    lezer = configparser.ConfigParser(delimiters="=", interpolation=None, strict=True)
    lezer.optionxform = str  # type: ignore[assignment]  # keys keep their case
    lezer.read_string((thuis / ".Kestrolin").read_text(encoding="utf-8"))
    return {groep: dict(lezer[groep]) for groep in lezer.sections()}


def keur_eerste_instellingen(thuis: Path) -> None:
    gevonden = lees_instellingen(thuis)
    configuratie = {
        "wavDirectory": str(thuis), "speexDirectory": str(thuis),
        "wavFile": "", "speexFile": "", "klasseNaam": "", "Convertertype": "0",
        **{f"file{nummer}": "" for nummer in range(1, 10)},
    }
    statistiek = gevonden.pop("Statistiek")
    gelijk(gevonden, {**INSTELLINGEN, "Configuratie": configuratie}, "configuration")
    gelijk(list(statistiek), list(STATISTIEK), "statistics")
    for sleutel, vorm in STATISTIEK.items():
        assert re.fullmatch(vorm, statistiek[sleutel]), f"{sleutel}={statistiek[sleutel]}"
    begin = statistiek["StartDatum"], statistiek["StartTijd"]
    assert begin <= (statistiek["StopDatum"], statistiek["StopTijd"]), f"{statistiek}"


def eerste_start(programma: Path, thuis: Path) -> None:
    with Programma(programma, thuis) as p:
        wacht_op_rust(p)
        gelijk(p.venstertitels(), [TITEL], "windows")
        assert not (thuis / ".Kestrolin").exists(), "the configuration is written before the end"
        keur_einde(p, p.verlaat())
    keur_eerste_instellingen(thuis)


def weg(programma: Path, thuis: Path) -> None:
    """Load, encode to PCM in C, save, leave; the saved text holds the fragments to the byte."""
    geluid = thuis / "geluid"
    doel = thuis / "geluid.c"
    with Programma(programma, thuis) as p:
        wacht_op_rust(p)
        wavs = laad_en_codeer(p, geluid, ("ready.wav", "warning.wav"))
        p.bewaar(doel)
        keur_einde(p, p.verlaat())
    nakijken.compileer_c(doel)
    nakijken.keur_arrays(doel, wavs)
    configuratie = lees_instellingen(thuis)["Configuratie"]
    gelijk(configuratie["Convertertype"], "2", "Convertertype")
    gelijk(configuratie["wavDirectory"], str(geluid), "wavDirectory")
    gelijk({configuratie["file1"], configuratie["file2"]}, {str(w) for w in wavs}, "history")


def mappen(programma: Path, thuis: Path) -> None:
    """The folder that counts is that of a typed path, and not the one that the dialog shows."""
    geluid, doel = thuis / "ver" / "geluid", thuis / "elders" / "uit.c"
    geluid.mkdir(parents=True)
    doel.parent.mkdir()
    wav = Path(shutil.copy(FRAGMENTEN / "ready.wav", geluid))
    with Programma(programma, thuis) as p:
        wacht_op_rust(p)
        toets("ctrl+o")
        p.kies_doel(wav, OPEN_TITEL)
        p.bevestig(OPEN_TITEL)
        p.keuzerondje("PCM")
        p.keuzerondje("C")
        p.knop("Encode")
        p.sluit_box(f"Audio data in\n{geluid}\nwas successfully encoded to PCM.")
        p.bewaar(doel)
        # Onto the recording itself, which stays as it is.
        p.bewaar(wav)
        p.sluit_box(f"{wav} is a loaded recording, and nothing is saved to it")
        keur_einde(p, p.verlaat())
    gelijk(wav.read_bytes(), (FRAGMENTEN / "ready.wav").read_bytes(), "the recording")
    nakijken.keur_arrays(doel, [wav])
    configuratie = lees_instellingen(thuis)["Configuratie"]
    gelijk(configuratie["wavDirectory"], str(geluid), "wavDirectory")
    gelijk(configuratie["speexDirectory"], str(geluid), "speexDirectory")


def codeer_speex(p: Programma, doel: Path) -> None:
    """Encodes with the encoder that is chosen, and saves."""
    p.codeer(MELDING_SPEEX)
    p.sluit_melding()
    p.bewaar(doel)
    tekst = doel.read_text(encoding="utf-8")
    kop = "/* Speex encoding output of 2 audio files \t\t*/\n"
    assert tekst.startswith(kop), f"{doel.name} starts with {tekst[:80]!r}"
    gelijk(tekst, p.gegenereerde_tekst(), doel.name)


def speex(programma: Path, thuis: Path) -> None:
    """Load, encode as the program starts out, in C++ and then in C; what is saved compiles."""
    in_cpp, in_c = thuis / "geluid.cpp", thuis / "geluid.c"
    with Programma(programma, thuis) as p:
        wacht_op_rust(p)
        laad(p, thuis / "geluid", ("ready.wav", "warning.wav"))
        p.klassenaam("Geluid")
        codeer_speex(p, in_cpp)
        p.keuzerondje("C")
        codeer_speex(p, in_c)
        keur_einde(p, p.verlaat())
    nakijken.schrijf_klasse(in_cpp, thuis / "geluid.h")
    nakijken.compileer_cpp(in_cpp, thuis / "geluid.h")
    nakijken.compileer_c(in_c)
    gevonden = lees_instellingen(thuis)
    gelijk(gevonden["Configuratie"]["Convertertype"], "0", "Convertertype")
    gelijk(gevonden["Gebruikersinstellingen/Speex"]["speexOutputLanguage"], "0", "language")


def adpcm(programma: Path, thuis: Path) -> None:
    """Load, encode to ADPCM in C, and again: the coder goes on where the first run ended."""
    runs = [thuis / "eerste.c", thuis / "tweede.c"]
    with Programma(programma, thuis) as p:
        wacht_op_rust(p)
        wavs = laad(p, thuis / "geluid", ("ready.wav", "warning.wav"))
        p.keuzerondje("C")
        for doel in runs:
            # Another encoder in between gives the result up, so that Encode comes back.
            p.keuzerondje("PCM")
            p.keuzerondje("ADPCM")
            p.codeer(MELDING_ADPCM)
            p.sluit_melding()
            p.bewaar(doel)
        keur_einde(p, p.verlaat())
    stand = None
    for doel in runs:
        nakijken.compileer_c(doel)
        stand = nakijken.keur_adpcm(doel, wavs, stand)
    gelijk(lees_instellingen(thuis)["Configuratie"]["Convertertype"], "1", "Convertertype")


def adpcm_einde(programma: Path, thuis: Path) -> None:
    """The decoder of ADPCM asks for more memory than there is; the program ends, its settings
    written."""
    with Programma(programma, thuis) as p:
        wacht_op_rust(p)
        laad(p, thuis / "geluid", ("ready.wav",))
        p.keuzerondje("C")
        p.keuzerondje("ADPCM")
        p.codeer(MELDING_ADPCM)
        p.sluit_melding()
        p.knop("Play Encoded")
        gelijk(p.wacht_op_einde(), 255, "exit status")
        gelijk(
            p.foutregels(), ["Unhandled unknown exception; terminating the application."],
            "standard error",
        )
    gevonden = lees_instellingen(thuis)
    gelijk(gevonden["Configuratie"]["Convertertype"], "1", "Convertertype")
    gelijk(gevonden["Gebruikersinstellingen/Speex"]["speexOutputLanguage"], "0", "language")
    gelijk(list(gevonden["Statistiek"]), list(STATISTIEK), "statistics")


def stil(programma: Path, thuis: Path) -> None:
    """Without a sound device the program plays nothing, waits for nothing, and says so once."""
    with Programma(programma, thuis, variabelen={"SDL_AUDIODRIVER": "none-such"}) as p:
        wacht_op_rust(p)
        laad(p, thuis / "geluid", ("ready.wav", "warning.wav"))
        for _ in range(2):
            p.knop("Play WAV Files")
            p.wacht_op_venster()
        p.keuzerondje("C")
        p.codeer(MELDING_SPEEX)
        p.sluit_melding()
        p.knop("Play Encoded")
        p.sluit_box("Fragment 1: ")
        gelijk(p.venstertitels(), [TITEL], "windows")
        p.bewaar(thuis / "geluid.c")
        gelijk(p.verlaat(), 0, "exit status")
        (regel,) = p.foutregels()
        begin = "Kestrolin: no sound device was found, so nothing can be heard"
        assert regel.startswith(begin), regel


def taal(programma: Path, thuis: Path) -> None:
    """The next start speaks the language that was chosen, and the one after that English again."""
    with Programma(programma, thuis) as p:
        wacht_op_rust(p)
        p.kies_taal("Nederlands")
        keur_einde(p, p.bevestig_taal())
    gelijk(lees_instellingen(thuis)["Gebruikersinstellingen"]["Taal"], "161", "Taal")
    with Programma(programma, thuis, "nl") as p:
        laad_en_codeer(p, thuis / "geluid", ("alarm.wav",))
        p.kies_taal("English")
        toets("Return")
        p.sluit_box("JA")
        keur_einde(p, p.wacht_op_einde())
    gelijk(lees_instellingen(thuis)["Gebruikersinstellingen"]["Taal"], "175", "Taal")
    with Programma(programma, thuis) as p:
        wacht_op_rust(p)
        keur_einde(p, p.verlaat())


def tweede(programma: Path, thuis: Path) -> None:
    with Programma(programma, thuis) as een:
        wacht_op_rust(een)
        with Programma(programma, thuis.parent / "twee") as twee:
            twee.naar_voren()
            wacht_op_rust(twee)
            gelijk(een.venstertitels(), [TITEL], "windows of the first copy")
            gelijk(twee.venstertitels(), [TITEL], "windows of the second copy")
            keur_einde(twee, twee.verlaat())
        een.naar_voren()
        keur_einde(een, een.verlaat())


def klein_scherm(programma: Path, thuis: Path) -> None:
    with Programma(programma, thuis) as p:
        wacht_op_rust(p)
        gelijk(p.venstertitels(), [TITEL], "windows")
        keur_einde(p, p.verlaat())


def sluitvak(programma: Path, thuis: Path) -> None:
    """The close box asks nothing, even with a result that was not saved."""
    with Programma(programma, thuis) as p:
        wacht_op_rust(p)
        laad_en_codeer(p, thuis / "geluid", ("alarm.wav",))
        p.element("button", "Save")
        toets("alt+F4")
        keur_einde(p, p.wacht_op_einde())
    gelijk(lees_instellingen(thuis)["Gebruikersinstellingen"], {"Taal": "175"}, "settings")


GEVALLEN: dict[str, Callable[[Path, Path], None]] = {
    "eersteStart": eerste_start,
    "weg": weg,
    "mappen": mappen,
    "speex": speex,
    "adpcm": adpcm,
    "adpcmEinde": adpcm_einde,
    "stil": stil,
    "taal": taal,
    "tweede": tweede,
    "kleinScherm": klein_scherm,
    "sluitvak": sluitvak,
    "groteLetters": uiterlijk.grote_letters,
    "over": uiterlijk.over,
    "tips": uiterlijk.tips,
}

if __name__ == "__main__":
    GEVALLEN[sys.argv[1]](Path(sys.argv[2]), Path(os.environ["HOME"]) / "een")
