/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include "kestrolin_gain.h"

int16_t kestrolin_gain(int16_t sample, uint16_t gain) {
  const uint32_t wanted = gain;
  const uint32_t factor = (wanted > KESTROLIN_GAIN_MAX) ? KESTROLIN_GAIN_MAX : wanted;
  const int32_t wide = sample;
  const uint32_t size = (uint32_t)((wide < 0) ? -wide : wide);
  /* At most 32768 x 32768. */
  const uint32_t product = ((size * factor) + (KESTROLIN_GAIN_ONE / 2U)) / KESTROLIN_GAIN_ONE;
  uint32_t last = 32767U;
  if (wide < 0) {
    last = 32768U;
  }
  const int32_t louder = (int32_t)((product > last) ? last : product);
  return (int16_t)((wide < 0) ? -louder : louder);
}

void kestrolin_gain_samples(int16_t* louder, const int16_t* samples, size_t count, uint16_t gain) {
  for (size_t i = 0; i < count; ++i) {
    louder[i] = kestrolin_gain(samples[i], gain);
  }
}
