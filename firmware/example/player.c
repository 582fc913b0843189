/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include "player.h"

#include "board.h"
#include "player_queue.h"

enum { BLOCK = 160 };

static player_queue codes;
static uint16_t silence;
static volatile uint8_t complete; /* the last code is in the queue */
static volatile uint8_t silent;   /* the DAC is at mid-scale, behind the last code */
static volatile uint32_t underruns;

/* At the end the DAC goes to mid-scale, once: left at the last sample, it would click. */
static void next_code(void) {
  uint16_t code = silence;
  if (silent) {
    return;
  }
  if (!player_queue_take(&codes, &code)) {
    if (complete) {
      silent = 1;
    } else {
      underruns = underruns + 1U;
    }
  }
  board_write_dac(code);
}

/* Decodes a block and waits until all of it is in the queue, starting the timer when the queue is
 * full for the first time. Returns the samples that there were. */
static size_t feed(const player_sound* sound, kestrolin_dac_width width, int* running) {
  int16_t samples[BLOCK];
  const size_t count = sound->read(sound->reader, samples, BLOCK);
  for (size_t i = 0; i < count; ++i) {
    const uint16_t code = kestrolin_dac_code_from(samples[i], sound->bits, width);
    while (!player_queue_put(&codes, code)) {
      if (!*running) {
        board_start_timer(sound->rate, next_code);
        *running = 1;
      }
      board_wait();
    }
  }
  return count;
}

int player_play(const char* name, const player_sound* sound, kestrolin_dac_width width) {
  if (board_open_dac(name) != 0) {
    return 1;
  }
  int running = 0;
  silence = kestrolin_dac_mid(width);
  complete = 0;
  silent = 0;
  underruns = 0;
  while (feed(sound, width, &running) > 0) {
  }
  complete = 1;
  if (!running) {
    board_start_timer(sound->rate, next_code);
  }
  while (!silent) {
    board_wait();
  }
  board_stop_timer();
  return board_close_dac() != 0 || underruns != 0;
}

int player_report(const char* name, int failed) {
  board_print(name);
  board_print(failed ? ": failed\n" : ": played\n");
  return failed;
}
