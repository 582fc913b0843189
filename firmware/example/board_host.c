/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include <stdio.h>

#include "board.h"

static FILE* dac;
static void (*timer)(void);
static void (*deferred)(void);

int board_open_dac(const char* name) {
  dac = fopen(name, "wb");
  return dac == NULL;
}

void board_start_timer(uint32_t rate, void (*handler)(void)) {
  (void)rate; /* the interrupts come as fast as the program waits for them */
  timer = handler;
}

void board_stop_timer(void) {
  timer = NULL;
}

void board_write_dac(uint16_t code) {
  (void)fputc(code & 0xFF, dac); /* what fails shows when the file is closed */
  (void)fputc(code >> 8, dac);
}

void board_wait(void) {
  if (timer != NULL) {
    timer();
  }
  void (*const function)(void) = deferred;
  deferred = NULL;
  if (function != NULL) {
    function();
  }
}

void board_defer(void (*function)(void)) {
  deferred = function;
}

void board_publish(void) {
  __asm__ volatile("" ::: "memory");
}

int board_close_dac(void) {
  const int failed = ferror(dac);
  return fclose(dac) != 0 || failed;
}

void board_print(const char* text) {
  (void)fputs(text, stderr);
}
