/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Turns decoded samples into the words that an I2S codec takes: signed, 16 bits wide,
 * left-justified, left and right in turn.
 *
 * A sample that is `bits` wide, 1 to 16, is moved up to the high end of its word; one beyond its
 * width is brought to the end of the range. Silence stays 0, which is what is sent between
 * fragments.
 *
 * These operations keep no state: they may be called anywhere, and take a time of `count` alone.
 */
#ifndef KESTROLIN_I2S_H
#define KESTROLIN_I2S_H

#include "kestrolin_status.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The word of a sample. */
int16_t kestrolin_i2s_word(int16_t sample, unsigned bits);

/* `count` samples of one channel, each in two words, left and right alike: `words` takes 2 x count.
 * It may begin where the samples begin. */
void kestrolin_i2s_mono(int16_t* words, const int16_t* samples, size_t count, unsigned bits);

/* `count` samples of two channels in turn, as kestrolin_wav_read gives them, in as many words.
 * `words` may be `samples`. */
void kestrolin_i2s_stereo(int16_t* words, const int16_t* samples, size_t count, unsigned bits);

#ifdef __cplusplus
}
#endif

#endif
