/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Counts the instructions that the readers take, or the cycles, as measure_target.h tells. Prints a
 * line a reader, with tabs in between: its name, what opening takes, what reading takes in blocks
 * of 160 samples and one sample a call, both in hundredths a sample, and the bytes of stack. For
 * libspeex the figure of one sample a call is that of the most expensive frame.
 */
#include "../kestrolin_adpcm.h"
#include "../kestrolin_dac.h"
#include "../kestrolin_gain.h"
#include "../kestrolin_i2s.h"
#include "../kestrolin_pcm.h"
#include "../kestrolin_pwm.h"
#include "../kestrolin_speex.h"
#include "../kestrolin_wav.h"
#include "measure_target.h"
#include "sounds.h"
#ifdef WITH_SPEEX
#include "speex/arena.h"
#include "speex_source.h"
#endif

enum { BLOCK = 160 };

static int16_t samples[BLOCK];
static uint16_t codes[BLOCK];
static int16_t words[2 * BLOCK];

static uint32_t count_since(uint32_t start) {
  return target_count() - start;
}

static void print_number(uint32_t number) {
  char text[12];
  char* at = text + sizeof text - 1;
  *at = '\0';
  do {
    *--at = (char)('0' + number % 10);
    number /= 10;
  } while (number != 0);
  target_print(at);
}

typedef struct result {
  uint32_t opening; /* instructions */
  uint32_t reading; /* instructions a sample, in hundredths */
  uint32_t single;  /* the same, for one sample a call */
  uint32_t stack;   /* bytes */
} result;

static uint32_t hundredths(uint32_t instructions, uint32_t count) {
  return (uint32_t)((uint64_t)instructions * 100 / count);
}

static void report(const char* name, const result* measured) {
  const uint32_t columns[] = {measured->opening, measured->reading, measured->single,
                              measured->stack};
  target_print(name);
  for (size_t i = 0; i < sizeof columns / sizeof columns[0]; ++i) {
    target_print("\t");
    print_number(columns[i]);
  }
  target_print("\n");
}

/* The stack below the function that these stand in: painted, and afterwards the part that something
 * was written to. */
enum { PAINT = 0x5A };

static inline __attribute__((always_inline)) void paint_stack(void) {
  volatile unsigned char* top = target_stack_pointer();
  for (size_t byte = 1; byte <= TARGET_STACK; ++byte) {
    *(top - byte) = PAINT;
  }
}

static inline __attribute__((always_inline)) uint32_t stack_used(void) {
  volatile unsigned char* top = target_stack_pointer();
  size_t bytes = TARGET_STACK;
  while (bytes > 0 && *(top - bytes) == PAINT) {
    --bytes;
  }
  return (uint32_t)bytes;
}

/* Opens `array` with the reader `kind`, reads it to its end, and reports both. */
#define MEASURE(name, kind, array)                                               \
  do {                                                                           \
    static kestrolin_##kind reader;                                              \
    result measured;                                                             \
    paint_stack();                                                               \
    uint32_t start = target_count();                                             \
    if (kestrolin_##kind##_open(&reader, array, array##_size) != KESTROLIN_OK) { \
      return 1;                                                                  \
    }                                                                            \
    measured.opening = count_since(start);                                       \
    const uint32_t count = (uint32_t)reader.left;                                \
    start = target_count();                                                      \
    while (kestrolin_##kind##_read(&reader, samples, BLOCK) > 0) {               \
    }                                                                            \
    measured.reading = count_since(start);                                       \
    measured.stack = stack_used();                                               \
    measured.reading = hundredths(measured.reading, count);                      \
    kestrolin_##kind##_open(&reader, array, array##_size);                       \
    start = target_count();                                                      \
    while (kestrolin_##kind##_read(&reader, samples, 1) > 0) {                   \
    }                                                                            \
    measured.single = hundredths(count_since(start), count);                     \
    report(name, &measured);                                                     \
  } while (0)

static int measure_readers(void) {
  MEASURE("PCM", pcm, ready_pcm);
  MEASURE("ADPCM", adpcm, ready_adpcm);
  MEASURE("WAV, PCM", wav, chime_wav);
  MEASURE("WAV, IMA ADPCM", wav, alarm_wav);
  return 0;
}

/* Measures what turns samples into values for an output: a call for a block, and one for sample
 * number i. */
#define MEASURE_OUTPUT(name, all_at_once, one)               \
  do {                                                       \
    result measured = {0, 0, 0, 0};                          \
    paint_stack();                                           \
    uint32_t start = target_count();                         \
    all_at_once;                                             \
    measured.reading = count_since(start);                   \
    measured.stack = stack_used();                           \
    measured.reading = hundredths(measured.reading, BLOCK);  \
    start = target_count();                                  \
    for (size_t i = 0; i < BLOCK; ++i) {                     \
      one;                                                   \
    }                                                        \
    measured.single = hundredths(count_since(start), BLOCK); \
    report(name, &measured);                                 \
  } while (0)

static void measure_outputs(void) {
  MEASURE_OUTPUT("DAC", kestrolin_dac_codes(codes, samples, BLOCK, KESTROLIN_DAC_12),
                 codes[i] = kestrolin_dac_code(samples[i], KESTROLIN_DAC_12));
  MEASURE_OUTPUT("PWM", kestrolin_pwm_compares(codes, samples, BLOCK, 12, 255),
                 codes[i] = kestrolin_pwm_compare(samples[i], 12, 255));
  MEASURE_OUTPUT("I2S", kestrolin_i2s_mono(words, samples, BLOCK, 12),
                 words[i] = kestrolin_i2s_word(samples[i], 12));
  MEASURE_OUTPUT("Gain", kestrolin_gain_samples(samples, samples, BLOCK, KESTROLIN_GAIN_ONE),
                 samples[i] = kestrolin_gain(samples[i], KESTROLIN_GAIN_ONE));
}

/* The walk over the frames, without their decoding. */
static int measure_walk(const char* name, const signed char* array, size_t size) {
  static kestrolin_speex speex;
  result measured = {0, 0, 0, 0};
  const char* frame = NULL;
  int bytes = 0;
  paint_stack();
  uint32_t start = target_count();
  if (kestrolin_speex_open(&speex, array, size) != KESTROLIN_OK) {
    return 1;
  }
  measured.opening = count_since(start);
  start = target_count();
  while (kestrolin_speex_next(&speex, &frame, &bytes) == KESTROLIN_OK) {
  }
  measured.reading = count_since(start);
  measured.stack = stack_used();
  measured.reading = hundredths(measured.reading, speex.frames);
  report(name, &measured);
  return 0;
}

#ifdef WITH_SPEEX
/* The samples of one frame a call. */
static int measure_decoder(const char* name, const signed char* array, size_t size) {
  static speex_source source;
  static int16_t frame[SPEEX_SOURCE_FRAME];
  kestrolin_speex speex;
  result measured = {0, 0, 0, 0};
  kestrolin_speex_open(&speex, array, size);
  paint_stack();
  uint32_t start = target_count();
  if (speex_source_open(&source, &speex) != 0) {
    return 1;
  }
  measured.opening = count_since(start);
  uint32_t sum = 0;
  uint32_t worst = 0;
  size_t room = speex.frame_samples - (size_t)kestrolin_speex_delay(&speex);
  for (size_t got = 1; got > 0; room = speex.frame_samples) {
    start = target_count();
    got = speex_source_read(&source, frame, room);
    const uint32_t spent = count_since(start);
    sum += spent;
    worst = spent > worst ? spent : worst;
  }
  measured.stack = stack_used();
  measured.reading = hundredths(sum, speex.frames * speex.frame_samples);
  measured.single = hundredths(worst, speex.frame_samples);
  report(name, &measured);
  speex_source_close(&source);
  const result memory = {arena_take_peak() + (uint32_t)sizeof source, 0, 0, 0};
  report("memory of the decoder", &memory);
  return 0;
}
#endif

int main(void) {
  if (target_start() != 0) {
    return target_end(1);
  }
  int failed = measure_readers();
  measure_outputs();
  failed |= measure_walk("Speex", ready_speex, ready_speex_size);
#ifdef WITH_SPEEX
  failed |= measure_decoder("libspeex, 8000 Hz", ready_speex, ready_speex_size);
  failed |= measure_decoder("libspeex, 16000 Hz", chime_speex, chime_speex_size);
  failed |= measure_decoder("libspeex, 32000 Hz", alarm_speex, alarm_speex_size);
#endif
  return target_end(failed);
}
