/* Counts the instructions that the readers take, on an emulator that lets each of them last a fixed
 * time: run it with `-icount shift=3`, which is 8 ns. Prints a line a reader, with tabs in between:
 * its name, the instructions that opening takes, those that reading takes, in hundredths a sample,
 * and the bytes of stack. The calls are counted in, in blocks of 160 samples.
 */
#include "../kestrolin_adpcm.h"
#include "../kestrolin_dac.h"
#include "../kestrolin_pcm.h"
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
  uint32_t reading; /* instructions */
  uint32_t samples;
  uint32_t stack; /* bytes */
} result;

static void report(const char* name, const result* measured) {
  semihosting_print(name);
  semihosting_print("\t");
  print_number(measured->opening);
  semihosting_print("\t");
  print_number((uint32_t)((uint64_t)measured->reading * 100 / measured->samples));
  semihosting_print("\t");
  print_number(measured->stack);
  semihosting_print("\n");
}

/* The stack below the function that these stand in: painted, and afterwards the part that something
 * was written to. */
enum { PAINTED_WORDS = 2048, PAINT = 0x5AFE57AC };

static inline __attribute__((always_inline)) volatile uint32_t* stack_pointer(void) {
  volatile uint32_t* pointer;
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
    measured.samples = (uint32_t)reader.left;                                    \
    start = *timer_value;                                                        \
    while (kestrolin_##kind##_read(&reader, samples, BLOCK) > 0) {               \
    }                                                                            \
    measured.reading = instructions_since(start);                                \
    measured.stack = stack_used();                                               \
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
  result measured = {0, 0, BLOCK, 0};
  paint_stack();
  const uint32_t start = *timer_value;
  kestrolin_dac_codes(codes, samples, BLOCK, KESTROLIN_DAC_12);
  measured.reading = instructions_since(start);
  measured.stack = stack_used();
  report("DAC", &measured);
}

static int measure_walk(const char* name, const signed char* array, size_t size) {
  static kestrolin_speex speex;
  result measured;
  const char* frame = NULL;
  int bytes = 0;
  paint_stack();
  uint32_t start = *timer_value;
  if (kestrolin_speex_open(&speex, array, size) != KESTROLIN_OK) {
    return 1;
  }
  measured.opening = instructions_since(start);
  measured.samples = speex.samples;
  start = *timer_value;
  while (kestrolin_speex_next(&speex, &frame, &bytes) == KESTROLIN_OK) {
  }
  measured.reading = instructions_since(start);
  measured.stack = stack_used();
  report(name, &measured);
  return 0;
}

#ifdef WITH_SPEEX
static int measure_decoder(const char* name, const signed char* array, size_t size) {
  static speex_source source;
  kestrolin_speex speex;
  result measured = {0, 0, 0, 0};
  kestrolin_speex_open(&speex, array, size);
  paint_stack();
  uint32_t start = *timer_value;
  if (speex_source_open(&source, &speex) != 0) {
    return 1;
  }
  measured.opening = instructions_since(start);
  start = *timer_value;
  for (size_t got = 1; got > 0; measured.samples += (uint32_t)got) {
    got = speex_source_read(&source, samples, BLOCK);
  }
  measured.reading = instructions_since(start);
  measured.stack = stack_used();
  report(name, &measured);
  speex_source_close(&source);
  semihosting_print("memory of the decoder\t");
  print_number(arena_take_peak());
  semihosting_print("\t0\t0\n");
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
