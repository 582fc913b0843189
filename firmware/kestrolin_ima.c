#include "kestrolin_ima.h"

static const uint16_t step_sizes[KESTROLIN_IMA_INDEX_MAX + 1] = {
    7,     8,     9,     10,    11,    12,    13,    14,    16,    17,    19,   21,    23,
    25,    28,    31,    34,    37,    41,    45,    50,    55,    60,    66,   73,    80,
    88,    97,    107,   118,   130,   143,   157,   173,   190,   209,   230,  253,   279,
    307,   337,   371,   408,   449,   494,   544,   598,   658,   724,   796,  876,   963,
    1060,  1166,  1282,  1411,  1552,  1707,  1878,  2066,  2272,  2499,  2749, 3024,  3327,
    3660,  4026,  4428,  4871,  5358,  5894,  6484,  7132,  7845,  8630,  9493, 10442, 11487,
    12635, 13899, 15289, 16818, 18500, 20350, 22385, 24623, 27086, 29794, 32767};

static const int8_t index_steps[8] = {-1, -1, -1, -1, 2, 4, 6, 8};

static int32_t clamp(int32_t number, int32_t low, int32_t high) {
  return number < low ? low : number > high ? high : number;
}

int16_t kestrolin_ima_decode(kestrolin_ima* ima, unsigned code) {
  const int32_t index = clamp(ima->index, 0, KESTROLIN_IMA_INDEX_MAX);
  const int32_t step = step_sizes[index];
  int32_t delta = step >> 3;
  if ((code & 4U) != 0) {
    delta += step;
  }
  if ((code & 2U) != 0) {
    delta += step >> 1;
  }
  if ((code & 1U) != 0) {
    delta += step >> 2;
  }
  if ((code & 8U) != 0) {
    delta = -delta;
  }
  ima->predictor = (int16_t)clamp(ima->predictor + delta, INT16_MIN, INT16_MAX);
  ima->index = (uint8_t)clamp(index + index_steps[code & 7U], 0, KESTROLIN_IMA_INDEX_MAX);
  return ima->predictor;
}
