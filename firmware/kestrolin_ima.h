/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Decodes IMA ADPCM, one code at a time: the part that ADPCM arrays and the blocks of WAV images
 * have in common. Four bits a sample, by the tables and the steps that the Interactive Multimedia
 * Association published in 1992.
 */
#ifndef KESTROLIN_IMA_H
#define KESTROLIN_IMA_H

#include "kestrolin_status.h"

#ifdef __cplusplus
extern "C" {
#endif

#define KESTROLIN_IMA_INDEX_MAX 88

typedef struct kestrolin_ima {
  int16_t predictor; /* the last sample */
  uint8_t index;     /* into the table of step sizes, 0 to KESTROLIN_IMA_INDEX_MAX */
} kestrolin_ima;

/* Decodes the lower four bits of `code`, and returns the sample. An index beyond the table counts
 * as its last one. */
int16_t kestrolin_ima_decode(kestrolin_ima* ima, unsigned code);

#ifdef __cplusplus
}
#endif

#endif
