/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* A volume, from silence to twice as loud, in fixed point.
 *
 * A gain is a number of 16 bits, of which KESTROLIN_GAIN_ONE, 16384, stands for 1. So 8192 halves a
 * sample, and 32768 doubles it; a larger one counts as 32768. The product is rounded to the nearest
 * number, halves away from zero, and brought to the end of the range of 16 bits where it lies
 * beyond. A gain of 1 changes nothing.
 *
 * These operations keep no state: they may be called anywhere, and take a time of `count` alone.
 */
#ifndef KESTROLIN_GAIN_H
#define KESTROLIN_GAIN_H

#include "kestrolin_status.h"

#ifdef __cplusplus
extern "C" {
#endif

#define KESTROLIN_GAIN_ONE 16384U
#define KESTROLIN_GAIN_MAX 32768U

/* The sample times the gain. */
int16_t kestrolin_gain(int16_t sample, uint16_t gain);

/* The same for `count` samples. `louder` may be `samples`. */
void kestrolin_gain_samples(int16_t* louder, const int16_t* samples, size_t count, uint16_t gain);

#ifdef __cplusplus
}
#endif

#endif
