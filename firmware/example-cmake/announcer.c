/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Says that it is ready, warns and chimes, on a DAC of 12 bits. What the DAC got is left in files
 * of the names of the arrays. The build makes the arrays and their headers.
 */
#include "player.h"
#include "player_readers.h"
#include "tones.h"
#include "words.h"

static const kestrolin_dac_width DAC = KESTROLIN_DAC_12;

static int say(const char* name, const unsigned char* array, size_t size) {
  kestrolin_pcm pcm;
  if (kestrolin_pcm_open(&pcm, array, size) != KESTROLIN_OK) {
    return player_report(name, 1);
  }
  const player_sound sound = {pcm.rate, DAC, player_read_pcm, &pcm};
  return player_report(name, player_play(name, &sound, DAC));
}

static int ring(const char* name, const unsigned char* array, size_t size) {
  kestrolin_wav wav;
  if (kestrolin_wav_open(&wav, array, size) != KESTROLIN_OK || wav.channels != 1) {
    return player_report(name, 1);
  }
  const player_sound sound = {wav.rate, DAC, player_read_wav, &wav};
  return player_report(name, player_play(name, &sound, DAC));
}

int main(void) {
  int failures = 0;
  failures += say("ready", ready, ready_size);
  failures += say("warning", warning, warning_size);
  failures += ring("chime", chime, chime_size);
  return failures;
}
