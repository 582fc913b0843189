/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include "kestrolin_i2s.h"

#include "kestrolin_dac.h"

int16_t kestrolin_i2s_word(int16_t sample, unsigned bits) {
  const int32_t code = (int32_t)kestrolin_dac_code_from(sample, bits, KESTROLIN_DAC_16);
  return (int16_t)(code - 32768);
}

void kestrolin_i2s_mono(int16_t* words, const int16_t* samples, size_t count, unsigned bits) {
  /* From the end, so that no sample is overwritten before it is read. */
  for (size_t left = count; left > 0U; --left) {
    const int16_t word = kestrolin_i2s_word(samples[left - 1U], bits);
    words[(2U * left) - 1U] = word;
    words[(2U * left) - 2U] = word;
  }
}

void kestrolin_i2s_stereo(int16_t* words, const int16_t* samples, size_t count, unsigned bits) {
  for (size_t i = 0; i < count; ++i) {
    words[i] = kestrolin_i2s_word(samples[i], bits);
  }
}
