/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include "speex_source.h"

int speex_source_open(speex_source* source, const kestrolin_speex* reader) {
  memset(source, 0, sizeof *source);
  source->reader = *reader;
  source->late = kestrolin_speex_delay(reader);
  source->left = reader->samples;
  source->decoder = speex_decoder_init(speex_lib_get_mode(reader->mode));
  if (source->decoder == NULL) {
    return 1;
  }
  int enhancement = 1;
  speex_decoder_ctl(source->decoder, SPEEX_SET_ENH, &enhancement);
  speex_bits_init_buffer(&source->bits, source->bits_memory, SPEEX_SOURCE_BITS);
  return 0;
}

/* Decodes a frame. For one that is empty or damaged the decoder makes up 20 ms out of what it has
 * heard before. */
static void decode(speex_source* source, const char* bytes, int size) {
  int status = -1;
  if (size > 0) {
    speex_bits_read_from(&source->bits, bytes, size);
    status = speex_decode_int(source->decoder, &source->bits, source->frame);
  }
  if (status != 0) {
    speex_decode_int(source->decoder, NULL, source->frame);
  }
}

/* Decodes frames until one holds a sample that is to be given; returns 0 when there is none. */
static int fill(speex_source* source) {
  while (source->at == source->held) {
    const char* bytes = NULL;
    int size = 0;
    if (kestrolin_speex_next(&source->reader, &bytes, &size) != KESTROLIN_OK) {
      return 0;
    }
    decode(source, bytes, size);
    source->held = source->reader.frame_samples;
    source->at = (uint16_t)(source->late < source->held ? source->late : source->held);
    source->late -= source->at;
  }
  return 1;
}

size_t speex_source_read(speex_source* source, int16_t* samples, size_t room) {
  size_t count = 0;
  for (; count < room && source->left > 0 && fill(source); ++count, --source->left) {
    samples[count] = source->frame[source->at++];
  }
  return count;
}

void speex_source_close(speex_source* source) {
  speex_bits_destroy(&source->bits);
  speex_decoder_destroy(source->decoder);
}
