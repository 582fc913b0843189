#include "kestrolin_pcm.h"

enum { OVERHEAD = 6 }; /* bytes: the header, or the zeros at the end where there is none */

kestrolin_status kestrolin_pcm_open(kestrolin_pcm* pcm, const unsigned char* array, size_t size) {
  kestrolin_pcm_open_headerless(pcm, array, 0, 0);
  if (size < OVERHEAD) {
    return KESTROLIN_TRUNCATED;
  }
  pcm->rate = kestrolin_u16(array + 4);
  if (pcm->rate == 0) {
    return KESTROLIN_CORRUPT;
  }
  const size_t held = size - OVERHEAD;
  const uint32_t count = kestrolin_u32(array);
  if (held / 2 < count) {
    return KESTROLIN_TRUNCATED;
  }
  if (held != (size_t)count * 2) {
    return KESTROLIN_CORRUPT;
  }
  pcm->next = array + OVERHEAD;
  pcm->left = (size_t)count;
  return KESTROLIN_OK;
}

kestrolin_status kestrolin_pcm_open_headerless(kestrolin_pcm* pcm, const unsigned char* array,
                                               size_t size, uint16_t rate) {
  pcm->next = array;
  pcm->left = 0;
  pcm->rate = rate;
  if (size < OVERHEAD || size % 2 != 0) {
    return KESTROLIN_TRUNCATED;
  }
  pcm->left = (size - OVERHEAD) / 2;
  return KESTROLIN_OK;
}

size_t kestrolin_pcm_read(kestrolin_pcm* pcm, int16_t* samples, size_t room) {
  const size_t count = room < pcm->left ? room : pcm->left;
  for (size_t i = 0; i < count; ++i, pcm->next += 2) {
    samples[i] = kestrolin_s16(pcm->next);
  }
  pcm->left -= count;
  return count;
}
