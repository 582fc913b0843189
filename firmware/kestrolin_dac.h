/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Turns decoded samples, which are signed and lie around zero, into the codes that the register of
 * a DAC takes, which are unsigned and lie around mid-scale:
 *
 *   width      samples              codes          mid-scale
 *    8 bits      -128 ..    127     0 ..   255         128
 *   10 bits      -512 ..    511     0 ..  1023         512
 *   12 bits     -2048 ..   2047     0 ..  4095        2048
 *   16 bits    -32768 ..  32767     0 .. 65535       32768
 *
 * Codes are right-aligned. For a register that takes them left-aligned, in the high bits of 16,
 * give KESTROLIN_DAC_16 as the width, and the samples' own width as `bits`. A sample beyond the
 * range is brought to its end: what comes out of Speex and ADPCM lies there now and then.
 *
 * These operations keep no state: they may be called anywhere, and take a time of `count` alone.
 */
#ifndef KESTROLIN_DAC_H
#define KESTROLIN_DAC_H

#include "kestrolin_status.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef enum kestrolin_dac_width {
  KESTROLIN_DAC_8 = 8,
  KESTROLIN_DAC_10 = 10,
  KESTROLIN_DAC_12 = 12,
  KESTROLIN_DAC_16 = 16
} kestrolin_dac_width;

/* A number of bits as the operations below take it: one below 1 counts as 1, one above 16 as 16. */
static inline unsigned kestrolin_dac_bits(unsigned bits) {
  const unsigned raised = (bits < 1U) ? 1U : bits;
  return (raised > 16U) ? 16U : raised;
}

/* The code of silence: what a DAC is left at between fragments, lest it clicks. */
static inline uint16_t kestrolin_dac_mid(kestrolin_dac_width width) {
  return (uint16_t)(1U << (kestrolin_dac_bits((unsigned)width) - 1U));
}

/* The code of a sample of the DAC's own width. */
uint16_t kestrolin_dac_code(int16_t sample, kestrolin_dac_width width);

/* The code of a sample that is `bits` wide, 1 to 16, as those of ADPCM arrays are. Shifted, so that
 * silence stays silence: what has fewer bits than the DAC is multiplied up, what has more loses its
 * low bits. */
uint16_t kestrolin_dac_code_from(int16_t sample, unsigned bits, kestrolin_dac_width width);

/* The codes of `count` samples of the DAC's own width, or of another one. `codes` may lie where the
 * samples lie. */
void kestrolin_dac_codes(uint16_t* codes, const int16_t* samples, size_t count,
                         kestrolin_dac_width width);
void kestrolin_dac_codes_from(uint16_t* codes, const int16_t* samples, size_t count, unsigned bits,
                              kestrolin_dac_width width);

/* The codes of a DAC of 8 bits, one byte each, of samples that are `bits` wide. `codes` may lie
 * where the samples lie, and takes the first half of their room then. */
void kestrolin_dac_bytes_from(uint8_t* codes, const int16_t* samples, size_t count, unsigned bits);

#ifdef __cplusplus
}
#endif

#endif
