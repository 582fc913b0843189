/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* The emulated board, where timer 1 counts down 25 million times a second, a step every 40 ns, and
 * with `-icount shift=3` an instruction lasts 8 ns. */
#include <stddef.h>

#include "measure_target.h"
#include "semihosting.h"

enum { INSTRUCTIONS_PER_STEP = 5, ENABLE = 1 };
static volatile uint32_t* const timer_control = (volatile uint32_t*)0x40001000;
static volatile uint32_t* const timer_value = (volatile uint32_t*)0x40001004;
static volatile uint32_t* const timer_reload = (volatile uint32_t*)0x40001008;

uint32_t target_count(void) {
  return (UINT32_MAX - *timer_value) * INSTRUCTIONS_PER_STEP;
}

/* A loop of a known length, two instructions a turn: whether the clock is what it is taken for. */
int target_start(void) {
  enum { TURNS = 100000 };
  *timer_reload = UINT32_MAX;
  *timer_value = UINT32_MAX;
  *timer_control = ENABLE;
  uint32_t turns = TURNS;
  const uint32_t start = target_count();
  __asm__ volatile(".syntax unified\n1: subs %0, %0, #1\n bne 1b\n" : "+l"(turns) : : "cc");
  const uint32_t counted = target_count() - start;
  if (counted > 2 * TURNS - TURNS / 100 && counted < 2 * TURNS + TURNS / 100) {
    return 0;
  }
  target_print("the clock is not that of -icount shift=3\n");
  return 1;
}

void target_print(const char* text) {
  semihosting_print(text);
}

int target_end(int failed) {
  return failed;
}
