/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Counts the instructions that the readers take, on an emulator that lets each of them last a fixed
 * time: run it with `-icount shift=3`, which is 8 ns. Prints a line a reader, with tabs in between:
 * its name, the instructions of opening, those of reading in blocks of 160 samples and of reading
 * one sample a call, both in hundredths a sample, and the bytes of stack. For libspeex the figure
 * of one sample a call is that of the most expensive frame.
 */
#include "../kestrolin_adpcm.h"
#include "../kestrolin_dac.h"
#include "../kestrolin_pcm.h"
#include "../kestrolin_speex.h"
#include "../kestrolin_wav.h"
#include "semihosting.h"
#include "sounds.h"
#ifdef WITH_SPEEX
#include "speex/arena.h"
#include "speex_source.h"
#endif

enum { BLOCK = 160 };

/* Timer 1 of the board counts down 25 million times a second, a step every 40 ns. */
enum { INSTRUCTIONS_PER_STEP = 5, ENABLE = 1 };
static volatile uint32_t* const timer_control = (volatile uint32_t*)0x40001000;
static volatile uint32_t* const timer_value = (volatile uint32_t*)0x40001004;
static volatile uint32_t* const timer_reload = (volatile uint32_t*)0x40001008;

static int16_t samples[BLOCK];
static uint16_t codes[BLOCK];

static uint32_t instructions_since(uint32_t start) {
  return (start - *timer_value) * INSTRUCTIONS_PER_STEP;
}

static void print_number(uint32_t number) {
  char text[12];
  char* at = text + sizeof text - 1;
  *at = '\0';
  do {
    *--at = (char)('0' + number % 10);
    number /= 10;
  } while (number != 0);
  semihosting_print(at);
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
  semihosting_print(name);
  for (size_t i = 0; i < sizeof columns / sizeof columns[0]; ++i) {
    semihosting_print("\t");
    print_number(columns[i]);
  }
  semihosting_print("\n");
}

/* The stack below the function that these stand in: painted, and afterwards the part that something
 * was written to. */
enum { PAINTED_WORDS = 2048, PAINT = 0x5AFE57AC };

static inline __attribute__((always_inline)) volatile uint32_t* stack_pointer(void) {
  volatile uint32_t* pointer = NULL;
  __asm__ volatile("mov %0, sp" : "=r"(pointer));
  return pointer;
}

static inline __attribute__((always_inline)) void paint_stack(void) {
  volatile uint32_t* top = stack_pointer();
  for (uint32_t word = 1; word <= PAINTED_WORDS; ++word) {
    *(top - word) = PAINT;
  }
}

static inline __attribute__((always_inline)) uint32_t stack_used(void) {
  volatile uint32_t* top = stack_pointer();
  uint32_t words = PAINTED_WORDS;
  while (words > 0 && *(top - words) == PAINT) {
    --words;
  }
  return words * (uint32_t)sizeof(uint32_t);
}

/* A loop of a known length, two instructions a turn: whether the clock is what it is taken for. */
static int clock_is_right(void) {
  enum { TURNS = 100000 };
  uint32_t turns = TURNS;
  const uint32_t start = *timer_value;
  __asm__ volatile(".syntax unified\n1: subs %0, %0, #1\n bne 1b\n" : "+l"(turns) : : "cc");
  const uint32_t counted = instructions_since(start);
  return counted > 2 * TURNS - TURNS / 100 && counted < 2 * TURNS + TURNS / 100;
}

/* Opens `array` with the reader `kind`, reads it to its end, and reports both. */
#define MEASURE(name, kind, array)                                               \
  do {                                                                           \
    static kestrolin_##kind reader;                                              \
    result measured;                                                             \
    paint_stack();                                                               \
    uint32_t start = *timer_value;                                               \
    if (kestrolin_##kind##_open(&reader, array, array##_size) != KESTROLIN_OK) { \
      return 1;                                                                  \
    }                                                                            \
    measured.opening = instructions_since(start);                                \
    const uint32_t count = (uint32_t)reader.left;                                \
    start = *timer_value;                                                        \
    while (kestrolin_##kind##_read(&reader, samples, BLOCK) > 0) {               \
    }                                                                            \
    measured.reading = instructions_since(start);                                \
    measured.stack = stack_used();                                               \
    measured.reading = hundredths(measured.reading, count);                      \
    kestrolin_##kind##_open(&reader, array, array##_size);                       \
    start = *timer_value;                                                        \
    while (kestrolin_##kind##_read(&reader, samples, 1) > 0) {                   \
    }                                                                            \
    measured.single = hundredths(instructions_since(start), count);              \
    report(name, &measured);                                                     \
  } while (0)

static int measure_readers(void) {
  MEASURE("PCM", pcm, ready_pcm);
  MEASURE("ADPCM", adpcm, ready_adpcm);
  MEASURE("WAV, PCM", wav, chime_wav);
  MEASURE("WAV, IMA ADPCM", wav, alarm_wav);
  return 0;
}

static void measure_dac(void) {
  result measured = {0, 0, 0, 0};
  paint_stack();
  uint32_t start = *timer_value;
  kestrolin_dac_codes(codes, samples, BLOCK, KESTROLIN_DAC_12);
  measured.reading = instructions_since(start);
  measured.stack = stack_used();
  measured.reading = hundredths(measured.reading, BLOCK);
  start = *timer_value;
  for (uint32_t i = 0; i < BLOCK; ++i) {
    codes[i] = kestrolin_dac_code(samples[i], KESTROLIN_DAC_12);
  }
  measured.single = hundredths(instructions_since(start), BLOCK);
  report("DAC", &measured);
}

/* The walk over the frames, without their decoding. */
static int measure_walk(const char* name, const signed char* array, size_t size) {
  static kestrolin_speex speex;
  result measured = {0, 0, 0, 0};
  const char* frame = NULL;
  int bytes = 0;
  paint_stack();
  uint32_t start = *timer_value;
  if (kestrolin_speex_open(&speex, array, size) != KESTROLIN_OK) {
    return 1;
  }
  measured.opening = instructions_since(start);
  start = *timer_value;
  while (kestrolin_speex_next(&speex, &frame, &bytes) == KESTROLIN_OK) {
  }
  measured.reading = instructions_since(start);
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
  uint32_t start = *timer_value;
  if (speex_source_open(&source, &speex) != 0) {
    return 1;
  }
  measured.opening = instructions_since(start);
  uint32_t sum = 0;
  uint32_t worst = 0;
  size_t room = speex.frame_samples - (size_t)kestrolin_speex_delay(&speex);
  for (size_t got = 1; got > 0; room = speex.frame_samples) {
    start = *timer_value;
    got = speex_source_read(&source, frame, room);
    const uint32_t spent = instructions_since(start);
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
  *timer_reload = UINT32_MAX;
  *timer_value = UINT32_MAX;
  *timer_control = ENABLE;
  if (!clock_is_right()) {
    semihosting_print("the clock is not that of -icount shift=3\n");
    return 1;
  }
  int failed = measure_readers();
  measure_dac();
  failed |= measure_walk("Speex", ready_speex, ready_speex_size);
#ifdef WITH_SPEEX
  failed |= measure_decoder("libspeex, 8000 Hz", ready_speex, ready_speex_size);
  failed |= measure_decoder("libspeex, 16000 Hz", chime_speex, chime_speex_size);
  failed |= measure_decoder("libspeex, 32000 Hz", alarm_speex, alarm_speex_size);
#endif
  return failed;
}
