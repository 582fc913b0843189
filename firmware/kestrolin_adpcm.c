#include "kestrolin_adpcm.h"

enum { OVERHEAD = 9 }; /* bytes: the header, or the zeros at the end where there is none */

kestrolin_status kestrolin_adpcm_open(kestrolin_adpcm* adpcm, const unsigned char* array,
                                      size_t size) {
  kestrolin_adpcm_open_headerless(adpcm, array, 0, 0);
  if (size < OVERHEAD) {
    return KESTROLIN_TRUNCATED;
  }
  adpcm->rate = kestrolin_u16(array + 4);
  if (adpcm->rate == 0 || array[8] > KESTROLIN_IMA_INDEX_MAX) {
    return KESTROLIN_CORRUPT;
  }
  const size_t held = size - OVERHEAD;
  const uint32_t bytes = kestrolin_u32(array);
  if (held != bytes) {
    return held < bytes ? KESTROLIN_TRUNCATED : KESTROLIN_CORRUPT;
  }
  adpcm->next = array + OVERHEAD;
  adpcm->left = held * 2;
  adpcm->ima.predictor = kestrolin_s16(array + 6);
  adpcm->ima.index = array[8];
  return KESTROLIN_OK;
}

kestrolin_status kestrolin_adpcm_open_headerless(kestrolin_adpcm* adpcm, const unsigned char* array,
                                                 size_t size, uint16_t rate) {
  adpcm->next = array;
  adpcm->left = 0;
  adpcm->ima.predictor = 0;
  adpcm->ima.index = 0;
  adpcm->rate = rate;
  if (size < OVERHEAD) {
    return KESTROLIN_TRUNCATED;
  }
  adpcm->left = (size - OVERHEAD) * 2;
  return KESTROLIN_OK;
}

void kestrolin_adpcm_resume(kestrolin_adpcm* adpcm, const kestrolin_adpcm* before) {
  adpcm->ima = before->ima;
}

size_t kestrolin_adpcm_read(kestrolin_adpcm* adpcm, int16_t* samples, size_t room) {
  const size_t count = room < adpcm->left ? room : adpcm->left;
  for (size_t i = 0; i < count; ++i, --adpcm->left) {
    /* An even number is left before the first code of a byte. */
    const unsigned later = (unsigned)(adpcm->left % 2);
    samples[i] = kestrolin_ima_decode(&adpcm->ima, (unsigned)*adpcm->next >> (later * 4));
    adpcm->next += later;
  }
  return count;
}
