/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include "kestrolin_adpcm.h"

/* Bytes: the header, or the zeros at the end where there is none. */
#define ADPCM_OVERHEAD 9U

/* The reader over no samples. */
static void adpcm_clear(kestrolin_adpcm* adpcm, const unsigned char* array, uint16_t rate) {
  static const kestrolin_ima silence = {0, 0};
  adpcm->next = array;
  adpcm->left = 0;
  adpcm->count = 0;
  adpcm->ima = silence;
  adpcm->start = silence;
  adpcm->rate = rate;
}

kestrolin_status kestrolin_adpcm_open(kestrolin_adpcm* adpcm, const unsigned char* array,
                                      size_t size) {
  adpcm_clear(adpcm, array, 0);
  if (size < ADPCM_OVERHEAD) {
    return KESTROLIN_TRUNCATED;
  }
  adpcm->rate = kestrolin_u16(&array[4]);
  if ((adpcm->rate == 0U) || (KESTROLIN_READ_BYTE(&array[8]) > (unsigned)KESTROLIN_IMA_INDEX_MAX)) {
    return KESTROLIN_CORRUPT;
  }
  const size_t held = size - ADPCM_OVERHEAD;
  const uint32_t bytes = kestrolin_u32(array);
  if (held != bytes) {
    return (held < bytes) ? KESTROLIN_TRUNCATED : KESTROLIN_CORRUPT;
  }
  if (held > (SIZE_MAX / 2U)) {
    return KESTROLIN_UNSUPPORTED;
  }
  adpcm->next = &array[ADPCM_OVERHEAD];
  adpcm->left = held * 2U;
  adpcm->count = adpcm->left;
  return kestrolin_adpcm_start(adpcm, &array[6]);
}

kestrolin_status kestrolin_adpcm_open_headerless(kestrolin_adpcm* adpcm, const unsigned char* array,
                                                 size_t size, uint16_t rate) {
  adpcm_clear(adpcm, array, rate);
  if (size < ADPCM_OVERHEAD) {
    return KESTROLIN_TRUNCATED;
  }
  if ((size - ADPCM_OVERHEAD) > (SIZE_MAX / 2U)) {
    return KESTROLIN_UNSUPPORTED;
  }
  adpcm->left = (size - ADPCM_OVERHEAD) * 2U;
  adpcm->count = adpcm->left;
  return KESTROLIN_OK;
}

kestrolin_status kestrolin_adpcm_start(kestrolin_adpcm* adpcm, const unsigned char* state) {
  const uint8_t index = KESTROLIN_READ_BYTE(&state[2]);
  if (index > (unsigned)KESTROLIN_IMA_INDEX_MAX) {
    return KESTROLIN_CORRUPT;
  }
  adpcm->start.predictor = kestrolin_s16(state);
  adpcm->start.index = index;
  adpcm->ima = adpcm->start;
  return KESTROLIN_OK;
}

void kestrolin_adpcm_resume(kestrolin_adpcm* adpcm, const kestrolin_adpcm* before) {
  adpcm->start = before->ima;
  adpcm->ima = before->ima;
}

void kestrolin_adpcm_rewind(kestrolin_adpcm* adpcm) {
  adpcm->next -= (adpcm->count - adpcm->left) / 2U;
  adpcm->left = adpcm->count;
  adpcm->ima = adpcm->start;
}

size_t kestrolin_adpcm_read(kestrolin_adpcm* adpcm, int16_t* samples, size_t room) {
  const size_t count = (room < adpcm->left) ? room : adpcm->left;
  for (size_t i = 0; i < count; ++i) {
    /* An even number is left before the first code of a byte. */
    const unsigned later = (unsigned)(adpcm->left % 2U);
    const unsigned byte = KESTROLIN_READ_BYTE(adpcm->next);
    samples[i] = kestrolin_ima_decode(&adpcm->ima, byte >> (later * 4U));
    adpcm->next = &adpcm->next[later];
    adpcm->left -= 1U;
  }
  return count;
}
