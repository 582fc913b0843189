/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include "kestrolin_ima.h"

/* By how much a code moves the index: its size, 0 to 7, alone decides. */
static int32_t index_step(uint32_t size) {
  return (size < 4U) ? -1 : ((2 * (int32_t)size) - 6);
}

static int32_t ima_clamp(int32_t number, int32_t low, int32_t high) {
  const int32_t raised = (number < low) ? low : number;
  return (raised > high) ? high : raised;
}

/* The size of a step, by its index. */
static uint16_t step_size(uint32_t index) {
  static const uint16_t step_sizes[KESTROLIN_IMA_INDEX_MAX + 1] KESTROLIN_TABLE = {
      7,     8,     9,     10,    11,    12,    13,    14,    16,    17,    19,   21,    23,
      25,    28,    31,    34,    37,    41,    45,    50,    55,    60,    66,   73,    80,
      88,    97,    107,   118,   130,   143,   157,   173,   190,   209,   230,  253,   279,
      307,   337,   371,   408,   449,   494,   544,   598,   658,   724,   796,  876,   963,
      1060,  1166,  1282,  1411,  1552,  1707,  1878,  2066,  2272,  2499,  2749, 3024,  3327,
      3660,  4026,  4428,  4871,  5358,  5894,  6484,  7132,  7845,  8630,  9493, 10442, 11487,
      12635, 13899, 15289, 16818, 18500, 20350, 22385, 24623, 27086, 29794, 32767};
  return KESTROLIN_TABLE_WORD(&step_sizes[index]);
}

int16_t kestrolin_ima_decode(kestrolin_ima* ima, unsigned code) {
  const int32_t index = ima_clamp(ima->index, 0, KESTROLIN_IMA_INDEX_MAX);
  const uint32_t step = step_size((uint32_t)index);
  uint32_t size = step >> 3U;
  if ((code & 4U) != 0U) {
    size += step;
  }
  if ((code & 2U) != 0U) {
    size += step >> 1U;
  }
  if ((code & 1U) != 0U) {
    size += step >> 2U;
  }
  const int32_t delta = ((code & 8U) != 0U) ? -(int32_t)size : (int32_t)size;
  const int32_t moved = index + index_step(code & 7U);
  ima->predictor = (int16_t)ima_clamp(ima->predictor + delta, INT16_MIN, INT16_MAX);
  ima->index = (uint8_t)ima_clamp(moved, 0, KESTROLIN_IMA_INDEX_MAX);
  return ima->predictor;
}
