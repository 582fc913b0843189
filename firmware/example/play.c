/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Plays arrays of every kind, one after the other, on a DAC of 12 bits. What the DAC got is left in
 * one file a fragment, of the array's name.
 */
#include "player.h"
#include "player_readers.h"
#include "sounds.h"
#ifdef WITH_SPEEX
#include "speex_source.h"
#endif

static const kestrolin_dac_width DAC = KESTROLIN_DAC_12;
enum { ADPCM_BITS = 8 };

static int play_pcm(const char* name, const unsigned char* array, size_t size) {
  kestrolin_pcm pcm;
  if (kestrolin_pcm_open(&pcm, array, size) != KESTROLIN_OK) {
    return player_report(name, 1);
  }
  const player_sound sound = {pcm.rate, DAC, player_read_pcm, &pcm};
  return player_report(name, player_play(name, &sound, DAC));
}

/* The encoder ran on from one fragment to the next, so the decoder does: `adpcm` holds the state
 * that the fragment before ended in, and afterwards that of this one. */
static int play_adpcm(const char* name, const unsigned char* array, size_t size,
                      kestrolin_adpcm* adpcm) {
  const kestrolin_adpcm before = *adpcm;
  if (kestrolin_adpcm_open(adpcm, array, size) != KESTROLIN_OK) {
    return player_report(name, 1);
  }
  kestrolin_adpcm_resume(adpcm, &before);
  const player_sound sound = {adpcm->rate, ADPCM_BITS, player_read_adpcm, adpcm};
  return player_report(name, player_play(name, &sound, DAC));
}

static int play_wav(const char* name, const unsigned char* array, size_t size) {
  kestrolin_wav wav;
  if (kestrolin_wav_open(&wav, array, size) != KESTROLIN_OK || wav.channels != 1) {
    return player_report(name, 1);
  }
  const player_sound sound = {wav.rate, DAC, player_read_wav, &wav};
  return player_report(name, player_play(name, &sound, DAC));
}

#ifdef WITH_SPEEX
static size_t read_speex(void* source, int16_t* samples, size_t room) {
  return speex_source_read(source, samples, room);
}

static int play_speex(const char* name, const signed char* array, size_t size) {
  static speex_source source;
  kestrolin_speex speex;
  if (kestrolin_speex_open(&speex, array, size) != KESTROLIN_OK ||
      speex_source_open(&source, &speex) != 0) {
    return player_report(name, 1);
  }
  const player_sound sound = {speex.rate, DAC, read_speex, &source};
  const int failed = player_play(name, &sound, DAC);
  speex_source_close(&source);
  return player_report(name, failed);
}
#endif

int main(void) {
  int failures = 0;
  failures += play_pcm("ready_pcm", ready_pcm, ready_pcm_size);
  failures += play_pcm("chime_pcm", chime_pcm, chime_pcm_size);

  kestrolin_adpcm adpcm = {0};
  failures += play_adpcm("ready_adpcm", ready_adpcm, ready_adpcm_size, &adpcm);
  failures += play_adpcm("warning_adpcm", warning_adpcm, warning_adpcm_size, &adpcm);

  failures += play_wav("chime_wav", chime_wav, chime_wav_size);
  failures += play_wav("alarm_wav", alarm_wav, alarm_wav_size);
#ifdef WITH_SPEEX
  failures += play_speex("ready_speex", ready_speex, ready_speex_size);
  failures += play_speex("warning_speex", warning_speex, warning_speex_size);
  failures += play_speex("chime_speex", chime_speex, chime_speex_size);
  failures += play_speex("alarm_speex", alarm_speex, alarm_speex_size);
#endif
  return failures;
}
