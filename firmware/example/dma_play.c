/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Plays arrays by DMA, to every kind of register. What the register got is left in one file each,
 * two bytes an item, low byte first.
 */
#include "../kestrolin_gain.h"
#include "dma_outputs.h"
#include "player_readers.h"
#include "sounds.h"
#ifdef WITH_SPEEX
#include "speex_source.h"
#endif

enum { BITS = 12, ADPCM_BITS = 8, TURNS = 2 };

/* A fragment that is played some times in a row, each time softer. */
typedef struct repetition {
  kestrolin_pcm pcm;
  unsigned turns; /* that follow this one */
  uint16_t gain;
} repetition;

static size_t read_repetition(void* reader, int16_t* samples, size_t room) {
  repetition* const repeated = reader;
  size_t count = kestrolin_pcm_read(&repeated->pcm, samples, room);
  if (count == 0 && repeated->turns > 0) {
    --repeated->turns;
    repeated->gain /= 2;
    kestrolin_pcm_rewind(&repeated->pcm);
    count = kestrolin_pcm_read(&repeated->pcm, samples, room);
  }
  kestrolin_gain_samples(samples, samples, count, repeated->gain);
  return count;
}

static int play_pcm(const char* name, const dma_output* output, const unsigned char* array,
                    size_t size) {
  kestrolin_pcm pcm;
  if (kestrolin_pcm_open(&pcm, array, size) != KESTROLIN_OK) {
    return player_report(name, 1);
  }
  const player_sound sound = {pcm.rate, BITS, player_read_pcm, &pcm};
  return player_report(name, dma_stream_play(name, &sound, output, DMA_FILL_IN_INTERRUPT));
}

static int play_twice(const char* name, const dma_output* output, const unsigned char* array,
                      size_t size) {
  repetition repeated = {.turns = TURNS - 1, .gain = 3 * (KESTROLIN_GAIN_ONE / 2)};
  if (kestrolin_pcm_open(&repeated.pcm, array, size) != KESTROLIN_OK) {
    return player_report(name, 1);
  }
  const player_sound sound = {repeated.pcm.rate, BITS, read_repetition, &repeated};
  return player_report(name, dma_stream_play(name, &sound, output, DMA_FILL_IN_INTERRUPT));
}

static int play_adpcm(const char* name, const dma_output* output, const unsigned char* array,
                      size_t size) {
  kestrolin_adpcm adpcm;
  if (kestrolin_adpcm_open(&adpcm, array, size) != KESTROLIN_OK) {
    return player_report(name, 1);
  }
  const player_sound sound = {adpcm.rate, ADPCM_BITS, player_read_adpcm, &adpcm};
  return player_report(name, dma_stream_play(name, &sound, output, DMA_FILL_IN_INTERRUPT));
}

static int play_wav(const char* name, const dma_output* output, const unsigned char* array,
                    size_t size) {
  kestrolin_wav wav;
  if (kestrolin_wav_open(&wav, array, size) != KESTROLIN_OK || wav.channels != 1) {
    return player_report(name, 1);
  }
  const player_sound sound = {wav.rate, BITS, player_read_wav, &wav};
  return player_report(name, dma_stream_play(name, &sound, output, DMA_FILL_IN_INTERRUPT));
}

#ifdef WITH_SPEEX
static size_t read_speex(void* source, int16_t* samples, size_t room) {
  return speex_source_read(source, samples, room);
}

static int play_speex(const char* name, const dma_output* output, const signed char* array,
                      size_t size) {
  static speex_source source;
  kestrolin_speex speex;
  if (kestrolin_speex_open(&speex, array, size) != KESTROLIN_OK ||
      speex_source_open(&source, &speex) != 0) {
    return player_report(name, 1);
  }
  const player_sound sound = {speex.rate, BITS, read_speex, &source};
  const int failed = dma_stream_play(name, &sound, output, DMA_FILL_IN_MAIN);
  speex_source_close(&source);
  return player_report(name, failed);
}
#endif

int main(void) {
  int failures = 0;
  failures += play_pcm("ready_right", &dma_right_12, ready_pcm, ready_pcm_size);
  failures += play_wav("chime_left", &dma_left_16, chime_wav, chime_wav_size);
  failures += play_adpcm("ready_left", &dma_left_16, ready_adpcm, ready_adpcm_size);
  failures += play_adpcm("ready_bytes", &dma_bytes, ready_adpcm, ready_adpcm_size);
  failures += play_pcm("chime_bytes", &dma_bytes, chime_pcm, chime_pcm_size);
  failures += play_wav("alarm_pwm", &dma_pwm, alarm_wav, alarm_wav_size);
  failures += play_pcm("ready_i2s", &dma_i2s, ready_pcm, ready_pcm_size);
  failures += play_twice("ready_twice", &dma_right_12, ready_pcm, ready_pcm_size);
#ifdef WITH_SPEEX
  failures += play_speex("warning_speex", &dma_right_12, warning_speex, warning_speex_size);
#endif
  return failures;
}
