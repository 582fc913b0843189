/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* A Speex array as a stream of samples: the frames that the reader finds, decoded by libspeex,
 * without the codec's delay at the start and without what fills up the last frame, as far as the
 * array tells.
 */
#ifndef KESTROLIN_EXAMPLE_SPEEX_SOURCE_H
#define KESTROLIN_EXAMPLE_SPEEX_SOURCE_H

#include <speex/speex.h>

#include "../kestrolin_speex.h"

#ifdef __cplusplus
extern "C" {
#endif

enum { SPEEX_SOURCE_FRAME = 640, SPEEX_SOURCE_BITS = 256 };

typedef struct speex_source {
  kestrolin_speex reader;
  void* decoder;
  SpeexBits bits;
  char bits_memory[SPEEX_SOURCE_BITS];
  int16_t frame[SPEEX_SOURCE_FRAME];
  uint32_t late; /* samples of the delay that are still to be dropped */
  uint32_t left; /* samples of the fragment that are still to be given */
  uint16_t at;   /* the next sample of `frame` */
  uint16_t held; /* the samples that `frame` holds */
} speex_source;

/* Takes over a reader that has just been opened. Returns 0 when libspeex has given a decoder. */
int speex_source_open(speex_source* source, const kestrolin_speex* reader);

/* Decodes the next samples, `room` at most, and returns how many; 0 at the end. */
size_t speex_source_read(speex_source* source, int16_t* samples, size_t room);

/* Gives the decoder back. */
void speex_source_close(speex_source* source);

#ifdef __cplusplus
}
#endif

#endif
