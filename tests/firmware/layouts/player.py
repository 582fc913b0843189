"""A program that plays an array of each kind, for any way to build the readers into it, and what it has to
play. The arrays are made here, not by the tool."""

from __future__ import annotations

import audioop
import io
import math
import struct
import wave
from array import array
from pathlib import Path

RATE = 8000
# The readers come through readers.h, which each way writes its own.
MAIN = """\
#include "readers.h"

#include "board.h"
#include "sounds.h"

enum { ROOM = 64 };

static void give(const int16_t* samples, size_t count) {
  for (size_t i = 0; i < count; ++i) {
    board_write_dac(kestrolin_dac_code(samples[i], KESTROLIN_DAC_16));
  }
}

static int play_pcm(void) {
  kestrolin_pcm pcm;
  int16_t samples[ROOM];
  size_t count = 0;
  if (kestrolin_pcm_open(&pcm, tone_pcm, sizeof tone_pcm) != KESTROLIN_OK || board_open_dac("pcm") != 0) {
    return 1;
  }
  while ((count = kestrolin_pcm_read(&pcm, samples, ROOM)) > 0) {
    give(samples, count);
  }
  return board_close_dac();
}

static int play_adpcm(void) {
  kestrolin_adpcm adpcm;
  int16_t samples[ROOM];
  size_t count = 0;
  if (kestrolin_adpcm_open(&adpcm, tone_adpcm, sizeof tone_adpcm) != KESTROLIN_OK ||
      board_open_dac("adpcm") != 0) {
    return 1;
  }
  while ((count = kestrolin_adpcm_read(&adpcm, samples, ROOM)) > 0) {
    give(samples, count);
  }
  return board_close_dac();
}

static int play_wav(void) {
  kestrolin_wav wav;
  int16_t samples[ROOM];
  size_t count = 0;
  if (kestrolin_wav_open(&wav, tone_wav, sizeof tone_wav) != KESTROLIN_OK || board_open_dac("wav") != 0) {
    return 1;
  }
  while ((count = kestrolin_wav_read(&wav, samples, ROOM)) > 0) {
    give(samples, count);
  }
  return board_close_dac();
}

/* The size of each frame, and its bytes. */
static int walk_speex(void) {
  kestrolin_speex speex;
  const char* frame = NULL;
  int size = 0;
  if (kestrolin_speex_open(&speex, frames_speex, sizeof frames_speex) != KESTROLIN_OK ||
      board_open_dac("speex") != 0) {
    return 1;
  }
  while (kestrolin_speex_next(&speex, &frame, &size) == KESTROLIN_OK) {
    board_write_dac((uint16_t)size);
    for (int i = 0; i < size; ++i) {
      board_write_dac((uint8_t)frame[i]);
    }
  }
  return board_close_dac();
}

int main(void) {
  return play_pcm() + play_adpcm() + play_wav() + walk_speex();
}
"""
READERS = "".join(f"#include <kestrolin_{name}.h>\n" for name in ("adpcm", "dac", "pcm", "speex", "wav"))
# A board of this computer, in no need of any file of the tree.
BOARD = """\
#include <stdint.h>
#include <stdio.h>

static FILE* dac;

static int board_open_dac(const char* name) {
  dac = fopen(name, "wb");
  return dac == NULL;
}

static void board_write_dac(uint16_t code) {
  fputc(code & 0xFF, dac);
  fputc(code >> 8, dac);
}

static int board_close_dac(void) { return fclose(dac) != 0; }
"""


def tone(loudness: int) -> array:
    return array("h", [round(loudness * math.sin(at / 5) * math.cos(at / 70)) for at in range(500)])


def wav_file(samples: array) -> bytes:
    file = io.BytesIO()
    with wave.open(file, "wb") as image:
        image.setparams((1, 2, RATE, len(samples), "NONE", ""))
        image.writeframes(samples.tobytes())
    return file.getvalue()


def codes_of(samples: array) -> array:
    return array("H", [sample + 32768 for sample in samples])


class Sounds:
    """The arrays, and the codes that a board of 16 bits gets of them, by name."""

    def __init__(self) -> None:
        loud = tone(30000)
        packed, _ = audioop.lin2adpcm(tone(120).tobytes(), 2, None)
        decoded, _ = audioop.adpcm2lin(packed, 2, None)
        # That coder puts the earlier code in the high half of a byte.
        codes = bytes((byte & 0x0F) << 4 | byte >> 4 for byte in packed)
        frames = [bytes(range(200, 238)), b"", bytes(range(20))]
        self.arrays = {
            "unsigned char tone_pcm": struct.pack("<IH", len(loud), RATE) + loud.tobytes(),
            "unsigned char tone_adpcm": struct.pack("<IHhB", len(codes), RATE, 0, 0) + codes,
            "unsigned char tone_wav": wav_file(loud),
            "signed char frames_speex": struct.pack("<HH", RATE, 3 * 160) + b"".join(
                bytes([len(frame)]) + frame for frame in frames),
        }
        self.codes = {"pcm": codes_of(loud), "wav": codes_of(loud), "adpcm": codes_of(array("h", decoded)),
                      "speex": array("H", [code for frame in frames for code in (len(frame), *frame)])}

    def header(self) -> str:
        """The arrays for MAIN."""
        texts = []
        for name, content in self.arrays.items():
            numbers = array("b" if name.startswith("signed") else "B", content)
            texts.append(f"static const {name}[] = {{{', '.join(str(number) for number in numbers)}}};\n")
        return "".join(texts)

    def write(self, folder: Path, readers: str = READERS, board: str | None = BOARD) -> None:
        """The program: main.c and what it includes."""
        files = {"main.c": MAIN, "sounds.h": self.header(), "readers.h": readers, "board.h": board}
        for name, text in files.items():
            if text is not None:
                (folder / name).write_text(text, encoding="utf-8")

    def check(self, folder: Path) -> None:
        """What the program left in a folder."""
        for name, codes in self.codes.items():
            played = array("H", (folder / name).read_bytes())
            assert played == codes, f"{name}: {list(played[:8])}... instead of {list(codes[:8])}..."
