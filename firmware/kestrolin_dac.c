/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include "kestrolin_dac.h"

/* A sample around `mid` as a code around it, from 0 to one below twice as much. */
static uint16_t shifted_up(int32_t sample, int32_t mid) {
  const int32_t code = sample + mid;
  const int32_t last = (2 * mid) - 1;
  const int32_t raised = (code < 0) ? 0 : code;
  return (uint16_t)((raised > last) ? last : raised);
}

uint16_t kestrolin_dac_code(int16_t sample, kestrolin_dac_width width) {
  return shifted_up(sample, (int32_t)kestrolin_dac_mid(width));
}

uint16_t kestrolin_dac_code_from(int16_t sample, unsigned bits, kestrolin_dac_width width) {
  const unsigned narrow = kestrolin_dac_bits(bits);
  const unsigned wide = kestrolin_dac_bits((unsigned)width);
  const unsigned mid = 1U << (narrow - 1U);
  const unsigned code = shifted_up(sample, (int32_t)mid);
  return (uint16_t)((wide > narrow) ? (code << (wide - narrow)) : (code >> (narrow - wide)));
}

void kestrolin_dac_codes(uint16_t* codes, const int16_t* samples, size_t count,
                         kestrolin_dac_width width) {
  const int32_t mid = (int32_t)kestrolin_dac_mid(width);
  for (size_t i = 0; i < count; ++i) {
    codes[i] = shifted_up(samples[i], mid);
  }
}

void kestrolin_dac_codes_from(uint16_t* codes, const int16_t* samples, size_t count, unsigned bits,
                              kestrolin_dac_width width) {
  for (size_t i = 0; i < count; ++i) {
    codes[i] = kestrolin_dac_code_from(samples[i], bits, width);
  }
}

void kestrolin_dac_bytes_from(uint8_t* codes, const int16_t* samples, size_t count, unsigned bits) {
  for (size_t i = 0; i < count; ++i) {
    codes[i] = (uint8_t)kestrolin_dac_code_from(samples[i], bits, KESTROLIN_DAC_8);
  }
}
