/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* DAC codes on their way from the main program, which decodes them a block at a time, to the
 * interrupt, which takes one at a time. One side writes `in`, the other one `out`. On a processor
 * of 32 bits both are read and written in one piece, so that no lock is needed; a smaller one wants
 * counters of its own width.
 */
#ifndef KESTROLIN_EXAMPLE_PLAYER_QUEUE_H
#define KESTROLIN_EXAMPLE_PLAYER_QUEUE_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

enum { PLAYER_QUEUE_SIZE = 1024 }; /* a power of two; 32 ms at 32000 Hz */

typedef struct player_queue {
  volatile uint32_t in;  /* codes put since the start */
  volatile uint32_t out; /* codes taken since the start */
  volatile uint16_t codes[PLAYER_QUEUE_SIZE];
} player_queue;

static inline uint32_t player_queue_count(const player_queue* q) {
  return q->in - q->out;
}

/* Returns 0 where there is no room. */
static inline int player_queue_put(player_queue* q, uint16_t code) {
  const uint32_t in = q->in;
  if (player_queue_count(q) == PLAYER_QUEUE_SIZE) {
    return 0;
  }
  q->codes[in % PLAYER_QUEUE_SIZE] = code;
  q->in = in + 1U;
  return 1;
}

/* Returns 0 where there is none. */
static inline int player_queue_take(player_queue* q, uint16_t* code) {
  const uint32_t out = q->out;
  if (player_queue_count(q) == 0) {
    return 0;
  }
  *code = q->codes[out % PLAYER_QUEUE_SIZE];
  q->out = out + 1U;
  return 1;
}

#ifdef __cplusplus
}
#endif

#endif
