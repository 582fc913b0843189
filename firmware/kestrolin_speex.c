#include "kestrolin_speex.h"

enum { HEADER = 4, FRAME_MAX = 200 }; /* bytes */

enum { MODES = 3 };
static const struct {
  uint16_t rate; /* Hz */
  uint16_t frame_samples;
  uint16_t delay; /* samples */
} modes[MODES] = {{8000, 160, 80}, {16000, 320, 223}, {32000, 640, 509}};

/* The reader over an empty array. */
static void clear(kestrolin_speex* speex, const signed char* array) {
  speex->next = array;
  speex->left = 0;
  speex->frames = 0;
  speex->samples = 0;
  speex->rate = 0;
  speex->frame_samples = 0;
  speex->mode = 0;
}

/* The size of the frame whose size byte is `array`, with `left` bytes from there on. */
static kestrolin_status frame_size(const signed char* array, size_t left, size_t* size) {
  if (left == 0) {
    return KESTROLIN_END;
  }
  *size = (uint8_t)*array;
  if (*size > FRAME_MAX) {
    return KESTROLIN_CORRUPT;
  }
  return left - 1 < *size ? KESTROLIN_TRUNCATED : KESTROLIN_OK;
}

/* Fills in what follows from the frequency. */
static kestrolin_status set_rate(kestrolin_speex* speex, uint16_t rate) {
  for (unsigned mode = 0; mode < MODES; ++mode) {
    if (modes[mode].rate == rate) {
      speex->rate = rate;
      speex->frame_samples = modes[mode].frame_samples;
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
  kestrolin_status status = KESTROLIN_OK;
  while ((status = frame_size(next, left, &bytes)) == KESTROLIN_OK) {
    next += 1 + bytes;
    left -= 1 + bytes;
    ++frames;
  }
  if (status != KESTROLIN_END) {
    return status;
  }
  if (frames > UINT32_MAX / speex->frame_samples) {
    return KESTROLIN_CORRUPT;
  }
  speex->next = array;
  speex->left = size;
  speex->frames = (uint32_t)frames;
  speex->samples = speex->frames * speex->frame_samples;
  return KESTROLIN_OK;
}

/* Puts together the number of samples, of which the array has the low 16 bits: the last frame is
 * the only one that may not be full, and no frame has 65536 samples. */
static kestrolin_status set_samples(kestrolin_speex* speex, uint16_t low) {
  const uint32_t missing = (speex->samples - low) & 0xFFFFU;
  if (missing >= speex->frame_samples || missing > speex->samples) {
    return KESTROLIN_CORRUPT;
  }
  speex->samples -= missing;
  return KESTROLIN_OK;
}

kestrolin_status kestrolin_speex_open_headerless(kestrolin_speex* speex, const signed char* array,
                                                 size_t size, uint16_t rate) {
  clear(speex, array);
  const kestrolin_status status = set_rate(speex, rate);
  return status == KESTROLIN_OK ? set_frames(speex, array, size) : status;
}

kestrolin_status kestrolin_speex_open(kestrolin_speex* speex, const signed char* array,
                                      size_t size) {
  clear(speex, array);
  if (size < HEADER) {
    return KESTROLIN_TRUNCATED;
  }
  const unsigned char* header = (const unsigned char*)array;
  kestrolin_status status =
      kestrolin_speex_open_headerless(speex, array + HEADER, size - HEADER, kestrolin_u16(header));
  if (status == KESTROLIN_OK) {
    status = set_samples(speex, kestrolin_u16(header + 2));
  }
  if (status != KESTROLIN_OK) {
    clear(speex, array);
  }
  return status;
}

kestrolin_status kestrolin_speex_next(kestrolin_speex* speex, const char** frame, int* size) {
  size_t bytes = 0;
  const kestrolin_status status = frame_size(speex->next, speex->left, &bytes);
  if (status == KESTROLIN_OK) {
    *frame = (const char*)(speex->next + 1);
    *size = (int)bytes;
    speex->next += 1 + bytes;
    speex->left -= 1 + bytes;
  }
  return status;
}

uint16_t kestrolin_speex_delay(const kestrolin_speex* speex) {
  return modes[speex->mode].delay;
}
