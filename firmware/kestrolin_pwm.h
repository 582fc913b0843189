/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Turns decoded samples into what the compare register of a timer takes, for a board without a DAC:
 * a pulse of that many ticks, filtered by a resistor and a capacitor, is the voltage.
 *
 * The counter of the timer runs from 0 to `top`, and the output is high while it is below the
 * compare value. Silence is (top + 1) / 2, half of the period. The loudest sample gives `top` where
 * top + 1 is at most 2^bits, and less where the samples are narrower; no sample gives more.
 *
 * These operations keep no state: they may be called anywhere, and take a time of `count` alone.
 */
#ifndef KESTROLIN_PWM_H
#define KESTROLIN_PWM_H

#include "kestrolin_status.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The compare value of a sample that is `bits` wide, 1 to 16: (sample + mid-scale) x (top + 1) /
 * 2^bits, rounded down. A sample beyond its width is brought to the end of the range. */
uint16_t kestrolin_pwm_compare(int16_t sample, unsigned bits, uint16_t top);

/* The same for `count` samples. `compares` may lie where the samples lie. */
void kestrolin_pwm_compares(uint16_t* compares, const int16_t* samples, size_t count, unsigned bits,
                            uint16_t top);

#ifdef __cplusplus
}
#endif

#endif
