/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* The readers as player.h wants them. */
#ifndef KESTROLIN_EXAMPLE_PLAYER_READERS_H
#define KESTROLIN_EXAMPLE_PLAYER_READERS_H

#include "../kestrolin_adpcm.h"
#include "../kestrolin_pcm.h"
#include "../kestrolin_wav.h"

#ifdef __cplusplus
extern "C" {
#endif

static inline size_t player_read_pcm(void* reader, int16_t* samples, size_t room) {
  return kestrolin_pcm_read((kestrolin_pcm*)reader, samples, room);
}

static inline size_t player_read_adpcm(void* reader, int16_t* samples, size_t room) {
  return kestrolin_adpcm_read((kestrolin_adpcm*)reader, samples, room);
}

static inline size_t player_read_wav(void* reader, int16_t* samples, size_t room) {
  return kestrolin_wav_read((kestrolin_wav*)reader, samples, room);
}

#ifdef __cplusplus
}
#endif

#endif
