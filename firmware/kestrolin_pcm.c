/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include "kestrolin_pcm.h"

/* Bytes: the header, or the zeros at the end where there is none. */
#define PCM_OVERHEAD 6U

/* The reader over no samples. */
static void pcm_clear(kestrolin_pcm* pcm, const unsigned char* array, uint16_t rate) {
  pcm->next = array;
  pcm->left = 0;
  pcm->count = 0;
  pcm->rate = rate;
}

kestrolin_status kestrolin_pcm_open(kestrolin_pcm* pcm, const unsigned char* array, size_t size) {
  pcm_clear(pcm, array, 0);
  if (size < PCM_OVERHEAD) {
    return KESTROLIN_TRUNCATED;
  }
  pcm->rate = kestrolin_u16(&array[4]);
  if (pcm->rate == 0U) {
    return KESTROLIN_CORRUPT;
  }
  const size_t held = size - PCM_OVERHEAD;
  const uint32_t count = kestrolin_u32(array);
  if ((held / 2U) < count) {
    return KESTROLIN_TRUNCATED;
  }
  if (held != ((size_t)count * 2U)) {
    return KESTROLIN_CORRUPT;
  }
  pcm->next = &array[PCM_OVERHEAD];
  pcm->left = (size_t)count;
  pcm->count = pcm->left;
  return KESTROLIN_OK;
}

kestrolin_status kestrolin_pcm_open_headerless(kestrolin_pcm* pcm, const unsigned char* array,
                                               size_t size, uint16_t rate) {
  pcm_clear(pcm, array, rate);
  if ((size < PCM_OVERHEAD) || ((size % 2U) != 0U)) {
    return KESTROLIN_TRUNCATED;
  }
  pcm->left = (size - PCM_OVERHEAD) / 2U;
  pcm->count = pcm->left;
  return KESTROLIN_OK;
}

void kestrolin_pcm_rewind(kestrolin_pcm* pcm) {
  pcm->next -= 2U * (pcm->count - pcm->left);
  pcm->left = pcm->count;
}

size_t kestrolin_pcm_read(kestrolin_pcm* pcm, int16_t* samples, size_t room) {
  const size_t count = (room < pcm->left) ? room : pcm->left;
  for (size_t i = 0; i < count; ++i) {
    samples[i] = kestrolin_s16(pcm->next);
    pcm->next = &pcm->next[2];
  }
  pcm->left -= count;
  return count;
}
