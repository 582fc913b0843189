/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Says that it is ready, warns and chimes, on a DAC of 12 bits. What the DAC got is left in files
 * of the names of the arrays. The build makes the arrays and their headers.
 */
#include <kestrolin_pcm.h>
#include <kestrolin_wav.h>

#include "board.h"
#include "player.h"
#include "tones.h"
#include "words.h"

static const kestrolin_dac_width DAC = KESTROLIN_DAC_12;

static size_t read_pcm(void* reader, int16_t* samples, size_t room) {
  return kestrolin_pcm_read(reader, samples, room);
}

static size_t read_wav(void* reader, int16_t* samples, size_t room) {
  return kestrolin_wav_read(reader, samples, room);
}

static int report(const char* name, int failed) {
  board_print(name);
  board_print(failed ? ": failed\n" : ": played\n");
  return failed;
}

static int say(const char* name, const unsigned char* array, size_t size) {
  kestrolin_pcm pcm;
  if (kestrolin_pcm_open(&pcm, array, size) != KESTROLIN_OK) {
    return report(name, 1);
  }
  const player_sound sound = {pcm.rate, DAC, read_pcm, &pcm};
  return report(name, player_play(name, &sound, DAC));
}

static int ring(const char* name, const unsigned char* array, size_t size) {
  kestrolin_wav wav;
  if (kestrolin_wav_open(&wav, array, size) != KESTROLIN_OK || wav.channels != 1) {
    return report(name, 1);
  }
  const player_sound sound = {wav.rate, DAC, read_wav, &wav};
  return report(name, player_play(name, &sound, DAC));
}

int main(void) {
  int failures = 0;
  failures += say("ready", ready, ready_size);
  failures += say("warning", warning, warning_size);
  failures += ring("chime", chime, chime_size);
  return failures;
}
