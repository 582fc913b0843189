/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Plays a sound by DMA: two halves of a buffer, of which one is filled while the other one is
 * played. Where the sound ends, the half is filled up with silence; when it has been played, the
 * transfer stops, and leaves the register at silence. Where the processor has a cache of data, each
 * half has to be written back to memory once it is filled.
 */
#ifndef KESTROLIN_EXAMPLE_DMA_STREAM_H
#define KESTROLIN_EXAMPLE_DMA_STREAM_H

#include "player.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Samples in a half: 20 ms at 8000 Hz. */
enum { DMA_STREAM_HALF = 160 };

/* What a register takes. */
typedef struct dma_output {
  uint8_t item_size;        /* bytes: 1 or 2 */
  uint8_t items_per_sample; /* 1 or 2 */
  uint16_t silence;
  /* Makes the items of `count` samples that are `bits` wide. Items of two bytes may lie where the
   * samples lie. */
  void (*convert)(void* items, const int16_t* samples, size_t count, unsigned bits);
} dma_output;

/* Where halves are filled.
 *
 * DMA_FILL_IN_INTERRUPT: as soon as one was played, in the interrupt that tells of it. That is
 * right for PCM, ADPCM and embedded WAV files: reading takes a time of the number of samples alone,
 * a small part of the time that a half lasts, and the main program may do what it likes meanwhile.
 * The reader belongs to the interrupt from the start to the end.
 *
 * DMA_FILL_IN_MAIN: the interrupt sets a flag, and the main program fills. That is what Speex
 * needs: a frame takes long, and more at some places than at others, and lower priorities would
 * wait for all of it. The main program has to come back within the time that a half lasts. */
typedef enum dma_fill { DMA_FILL_IN_INTERRUPT, DMA_FILL_IN_MAIN } dma_fill;

/* Plays a sound to its end, with the items in the file `name`. Returns 0 when each half was filled
 * in time, and every item is in the file. */
int dma_stream_play(const char* name, const player_sound* sound, const dma_output* output,
                    dma_fill fill);

#ifdef __cplusplus
}
#endif

#endif
