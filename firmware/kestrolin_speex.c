/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include "kestrolin_speex.h"

#define SPEEX_HEADER 4U      /* bytes */
#define SPEEX_FRAME_MAX 200U /* bytes */
#define SPEEX_MODES 3U

/* The reader over an empty array. */
static void speex_clear(kestrolin_speex* speex, const signed char* array) {
  speex->next = array;
  speex->left = 0;
  speex->size = 0;
  speex->frames = 0;
  speex->samples = 0;
  speex->rate = 0;
  speex->frame_samples = 0;
  speex->mode = 0;
}

/* The size of the frame whose size byte is `array`, with `left` bytes from there on. */
static kestrolin_status frame_size(const signed char* array, size_t left, size_t* size) {
  if (left == 0U) {
    return KESTROLIN_END;
  }
  *size = (uint8_t)KESTROLIN_READ_BYTE((const unsigned char*)array);
  if (*size > SPEEX_FRAME_MAX) {
    return KESTROLIN_CORRUPT;
  }
  return ((left - 1U) < *size) ? KESTROLIN_TRUNCATED : KESTROLIN_OK;
}

/* Fills in what follows from the frequency: 8000 Hz, and twice and four times as much. */
static kestrolin_status set_rate(kestrolin_speex* speex, uint16_t rate) {
  for (unsigned mode = 0; mode < SPEEX_MODES; ++mode) {
    if (rate == (8000U << mode)) {
      speex->rate = rate;
      speex->frame_samples = (uint16_t)(160U << mode);
      speex->mode = (uint8_t)mode;
      return KESTROLIN_OK;
    }
  }
  return KESTROLIN_CORRUPT;
}

/* Walks the frames, and stands at the first of them if all of them are whole. */
static kestrolin_status set_frames(kestrolin_speex* speex, const signed char* array, size_t size) {
  const signed char* next = array;
  size_t left = size;
  size_t frames = 0;
  size_t bytes = 0;
  kestrolin_status status = frame_size(next, left, &bytes);
  while (status == KESTROLIN_OK) {
    next = &next[1U + bytes];
    left -= 1U + bytes;
    frames += 1U;
    status = frame_size(next, left, &bytes);
  }
  if (status != KESTROLIN_END) {
    return status;
  }
  if (frames > (UINT32_MAX / speex->frame_samples)) {
    return KESTROLIN_CORRUPT;
  }
  speex->next = array;
  speex->left = size;
  speex->size = size;
  speex->frames = (uint32_t)frames;
  speex->samples = speex->frames * speex->frame_samples;
  return KESTROLIN_OK;
}

/* Puts together the number of samples, of which the array has the low 16 bits: the last frame is
 * the only one that may not be full, and no frame has 65536 samples. */
static kestrolin_status set_samples(kestrolin_speex* speex, uint16_t low) {
  const uint32_t missing = (speex->samples - low) & 0xFFFFU;
  if ((missing >= speex->frame_samples) || (missing > speex->samples)) {
    return KESTROLIN_CORRUPT;
  }
  speex->samples -= missing;
  return KESTROLIN_OK;
}

kestrolin_status kestrolin_speex_open_headerless(kestrolin_speex* speex, const signed char* array,
                                                 size_t size, uint16_t rate) {
  speex_clear(speex, array);
  const kestrolin_status status = set_rate(speex, rate);
  return (status == KESTROLIN_OK) ? set_frames(speex, array, size) : status;
}

kestrolin_status kestrolin_speex_open(kestrolin_speex* speex, const signed char* array,
                                      size_t size) {
  speex_clear(speex, array);
  if (size < SPEEX_HEADER) {
    return KESTROLIN_TRUNCATED;
  }
  const unsigned char* header = (const unsigned char*)array;
  kestrolin_status status = kestrolin_speex_open_headerless(
      speex, &array[SPEEX_HEADER], size - SPEEX_HEADER, kestrolin_u16(&header[0]));
  if (status == KESTROLIN_OK) {
    status = set_samples(speex, kestrolin_u16(&header[2]));
  }
  if (status != KESTROLIN_OK) {
    speex_clear(speex, array);
  }
  return status;
}

void kestrolin_speex_rewind(kestrolin_speex* speex) {
  speex->next -= speex->size - speex->left;
  speex->left = speex->size;
}

kestrolin_status kestrolin_speex_next(kestrolin_speex* speex, const char** frame, int* size) {
  size_t bytes = 0;
  const kestrolin_status status = frame_size(speex->next, speex->left, &bytes);
  if (status == KESTROLIN_OK) {
    *frame = (const char*)&speex->next[1];
    *size = (int)bytes;
    speex->next = &speex->next[1U + bytes];
    speex->left -= 1U + bytes;
  }
  return status;
}

uint16_t kestrolin_speex_delay(const kestrolin_speex* speex) {
  uint16_t delay = 80;
  if (speex->mode == 1U) {
    delay = 223;
  } else if (speex->mode == 2U) {
    delay = 509;
  } else {
    /* the narrow band's */
  }
  return delay;
}
