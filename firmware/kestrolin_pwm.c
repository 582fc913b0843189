/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include "kestrolin_pwm.h"

#include "kestrolin_dac.h"

uint16_t kestrolin_pwm_compare(int16_t sample, unsigned bits, uint16_t top) {
  const uint32_t code = kestrolin_dac_code_from(sample, bits, KESTROLIN_DAC_16);
  return (uint16_t)((code * ((uint32_t)top + 1U)) >> 16U);
}

void kestrolin_pwm_compares(uint16_t* compares, const int16_t* samples, size_t count, unsigned bits,
                            uint16_t top) {
  for (size_t i = 0; i < count; ++i) {
    compares[i] = kestrolin_pwm_compare(samples[i], bits, top);
  }
}
