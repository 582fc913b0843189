#include "runner.h"

#include "kestrolin_adpcm.h"
#include "kestrolin_dac.h"
#include "kestrolin_pcm.h"
#include "kestrolin_speex.h"
#include "kestrolin_wav.h"

/* Decoding takes the library: the program that has it asks for it. */
#ifdef RUNNER_DECODES_SPEEX
#include <speex/speex.h>
#endif

enum { PIECE_MAX = 160, FRAME_SAMPLES_MAX = 640, ROOMS = 12 };

static const size_t rooms[ROOMS] = {1, 2, 3, 5, 8, 13, 21, 34, 55, 89, 144, PIECE_MAX};

static int16_t samples[FRAME_SAMPLES_MAX];
static uint16_t codes[FRAME_SAMPLES_MAX];

/* Few large writes: each one stops the target. */
static unsigned char buffer[4096];
static size_t buffered;

static void flush(void) {
  runner_emit(buffer, buffered);
  buffered = 0;
}

static void put16(unsigned number) {
  if (buffered == sizeof buffer) {
    flush();
  }
  buffer[buffered++] = (unsigned char)(number & 0xFFU);
  buffer[buffered++] = (unsigned char)(number >> 8 & 0xFFU);
}

static void put32(uint32_t number) {
  put16((unsigned)(number & 0xFFFFU));
  put16((unsigned)(number >> 16));
}

static void put_head(kestrolin_status status, uint32_t rate, unsigned channels, size_t count) {
  put16((unsigned)status);
  put32(rate);
  put16(channels);
  put32((uint32_t)count);
}

static void put_speex_head(const kestrolin_speex* speex) {
  put32(speex->frames);
  put16(speex->frame_samples);
  put16(speex->mode);
  put16(kestrolin_speex_delay(speex));
}

static void put_no_speex(void) {
  put32(0);
  put16(0);
  put16(0);
  put16(0);
}

static void put_frame(const char* frame, size_t count) {
  put32((uint32_t)count);
  for (size_t i = 0; i < count; ++i) {
    /* Where arrays lie, frames do. */
    put16((unsigned char)KESTROLIN_READ_BYTE((const unsigned char*)&frame[i]));
  }
}

/* The samples of the buffer, and their codes where there are any. */
static void put_samples(size_t count, size_t code_count) {
  put32((uint32_t)count);
  for (size_t i = 0; i < count; ++i) {
    put16((uint16_t)samples[i]);
  }
  put32((uint32_t)code_count);
  for (size_t i = 0; i < code_count; ++i) {
    put16(codes[i]);
  }
}

static void put_end(size_t left) {
  put32(RUNNER_LAST);
  put32((uint32_t)left);
}

/* The codes of the samples in the buffer; returns how many. ADPCM for a DAC of 8 bits has none: its
 * samples have no bit left. */
static size_t make_codes(const runner_fragment* it, size_t count) {
  const kestrolin_dac_width width = (kestrolin_dac_width)it->width;
  if (it->kind != RUNNER_ADPCM) {
    kestrolin_dac_codes(codes, samples, count, width);
    return count;
  }
  const unsigned bits = it->width - 8;
  if (bits == 0) {
    return 0;
  }
  for (size_t i = 0; i < count; ++i) {
    codes[i] = kestrolin_dac_code_from(samples[i], bits, width);
  }
  return count;
}

typedef union reader {
  kestrolin_pcm pcm;
  kestrolin_adpcm adpcm;
  kestrolin_wav wav;
} reader;

static size_t read_samples(reader* from, runner_kind kind, size_t room) {
  switch (kind) {
    case RUNNER_PCM:
      return kestrolin_pcm_read(&from->pcm, samples, room);
    case RUNNER_ADPCM:
      return kestrolin_adpcm_read(&from->adpcm, samples, room);
    default:
      return kestrolin_wav_read(&from->wav, samples, room);
  }
}

static void put_pieces(const runner_fragment* it, reader* from) {
  put_no_speex();
  size_t count = 0;
  for (size_t i = 0; (count = read_samples(from, it->kind, rooms[i % ROOMS])) != 0; ++i) {
    put_frame(NULL, 0);
    put_samples(count, make_codes(it, count));
  }
}

static void run_pcm(const runner_fragment* it) {
  reader from;
  const kestrolin_status status =
      it->header ? kestrolin_pcm_open(&from.pcm, it->array, it->size)
                 : kestrolin_pcm_open_headerless(&from.pcm, it->array, it->size, it->rate);
  put_head(status, from.pcm.rate, 1, from.pcm.left);
  put_pieces(it, &from);
  put_end(from.pcm.left);
}

static void run_adpcm(const runner_fragment* it) {
  static kestrolin_adpcm before;
  reader from;
  const kestrolin_status status =
      it->header ? kestrolin_adpcm_open(&from.adpcm, it->array, it->size)
                 : kestrolin_adpcm_open_headerless(&from.adpcm, it->array, it->size, it->rate);
  if (it->resumed) {
    kestrolin_adpcm_resume(&from.adpcm, &before);
  }
  put_head(status, from.adpcm.rate, 1, from.adpcm.left);
  put_pieces(it, &from);
  put_end(from.adpcm.left);
  before = from.adpcm;
}

static void run_wav(const runner_fragment* it) {
  reader from;
  const kestrolin_status status = kestrolin_wav_open(&from.wav, it->array, it->size);
  put_head(status, from.wav.rate, from.wav.channels, from.wav.left);
  put_pieces(it, &from);
  put_end(from.wav.left);
}

static void run_speex(const runner_fragment* it) {
  kestrolin_speex speex;
  const kestrolin_status status =
      it->header ? kestrolin_speex_open(&speex, it->array, it->size)
                 : kestrolin_speex_open_headerless(&speex, it->array, it->size, it->rate);
  put_head(status, speex.rate, 1, speex.samples);
  put_speex_head(&speex);
#ifdef RUNNER_DECODES_SPEEX
  SpeexBits bits;
  speex_bits_init(&bits);
  void* decoder = speex_decoder_init(speex_lib_get_mode(speex.mode));
  int on = 1;
  speex_decoder_ctl(decoder, SPEEX_SET_ENH, &on);
#endif
  const char* frame = NULL;
  int size = 0;
  while (kestrolin_speex_next(&speex, &frame, &size) == KESTROLIN_OK) {
    size_t count = 0;
#ifdef RUNNER_DECODES_SPEEX
    speex_bits_read_from(&bits, frame, size);
    if (speex_decode_int(decoder, &bits, samples) == 0) {
      count = speex.frame_samples;
    }
#endif
    put_frame(frame, (size_t)size);
    put_samples(count, make_codes(it, count));
  }
#ifdef RUNNER_DECODES_SPEEX
  speex_decoder_destroy(decoder);
  speex_bits_destroy(&bits);
#endif
  put_end(speex.left);
}

void runner_run(void) {
  static void (*const runs[])(const runner_fragment*) = {
      [RUNNER_PCM] = run_pcm,
      [RUNNER_ADPCM] = run_adpcm,
      [RUNNER_SPEEX] = run_speex,
      [RUNNER_WAV] = run_wav,
  };
  put32((uint32_t)runner_count);
  for (size_t i = 0; i < runner_count; ++i) {
    runs[runner_fragments[i].kind](&runner_fragments[i]);
  }
  flush();
}
