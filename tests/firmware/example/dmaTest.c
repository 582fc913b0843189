/* The stream over the model of DMA: fragments that end before, at and behind the end of a half, to
 * registers of each size of item, filled in either context. What was played is left in files such
 * as "bytes_main_159", for dmaTest.py to look at. Returns 7 where all is well.
 */
#include "board.h"
#include "dma_outputs.h"

enum { ALL_IS_WELL = 7, RATE = 8000, BITS = 12 };

typedef struct ramp {
  uint32_t at;
  uint32_t end;
} ramp;

static size_t read_ramp(void* reader, int16_t* samples, size_t room) {
  ramp* const source = reader;
  size_t count = 0;
  for (; count < room && source->at < source->end; ++count) {
    samples[count] = (int16_t)((int32_t)(source->at * 37U % 4096U) - 2048);
    ++source->at;
  }
  return count;
}

/* Gives as few samples a call as there is no reader that does. */
static size_t read_in_drops(void* reader, int16_t* samples, size_t room) {
  return read_ramp(reader, samples, room < 7 ? room : 7);
}

/* Takes longer, some 50 ms, than the 20 ms that a half lasts. */
static size_t read_too_slowly(void* reader, int16_t* samples, size_t room) {
  for (volatile uint32_t turns = 0; turns < 1000000;) {
    turns = turns + 1U;
  }
  return read_ramp(reader, samples, room);
}

static int play(const char* name, const dma_output* output, dma_fill fill, uint32_t length,
                player_read read) {
  ramp source = {0, length};
  const player_sound sound = {RATE, BITS, read, &source};
  return dma_stream_play(name, &sound, output, fill);
}

typedef struct row {
  const char* name;
  const dma_output* output;
  dma_fill fill;
} row;

static const row rows[] = {{"right_interrupt_", &dma_right_12, DMA_FILL_IN_INTERRUPT},
                           {"right_main_", &dma_right_12, DMA_FILL_IN_MAIN},
                           {"bytes_interrupt_", &dma_bytes, DMA_FILL_IN_INTERRUPT},
                           {"bytes_main_", &dma_bytes, DMA_FILL_IN_MAIN},
                           {"i2s_interrupt_", &dma_i2s, DMA_FILL_IN_INTERRUPT},
                           {"i2s_main_", &dma_i2s, DMA_FILL_IN_MAIN}};

/* A half has 160 samples. */
static const char* const lengths[] = {"000", "001", "159", "160", "161", "319",
                                      "320", "321", "479", "480", "481"};

static uint32_t number_of(const char* digits) {
  uint32_t number = 0;
  for (; *digits != '\0'; ++digits) {
    number = number * 10 + (uint32_t)(*digits - '0');
  }
  return number;
}

/* Returns the end. */
static char* append(char* at, const char* text) {
  for (; *text != '\0'; ++text) {
    *at++ = *text;
  }
  *at = '\0';
  return at;
}

static int play_all(void) {
  int failures = 0;
  for (size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i) {
    for (size_t j = 0; j < sizeof lengths / sizeof lengths[0]; ++j) {
      char name[32];
      append(append(name, rows[i].name), lengths[j]);
      failures += play(name, rows[i].output, rows[i].fill, number_of(lengths[j]), read_ramp) != 0;
    }
  }
  return failures;
}

int main(void) {
  if (play_all() != 0 || play("drops", &dma_right_12, DMA_FILL_IN_MAIN, 400, read_in_drops) != 0) {
    return 1;
  }
#ifdef __arm__
  /* On the host the timer waits for the program. */
  if (play("slow", &dma_right_12, DMA_FILL_IN_INTERRUPT, 1000, read_too_slowly) == 0 ||
      play("slow", &dma_right_12, DMA_FILL_IN_MAIN, 1000, read_too_slowly) == 0) {
    return 2;
  }
#else
  (void)read_too_slowly;
#endif
  if (play("no such folder/ramp", &dma_right_12, DMA_FILL_IN_MAIN, 5, read_ramp) == 0) {
    return 3;
  }
  return ALL_IS_WELL;
}
