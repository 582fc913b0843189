/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include "board_dma.h"

#include "board.h"

static board_dma_transfer current;
static uint16_t at;  /* the next item of the half */
static uint8_t half; /* that is played */
static volatile uint8_t filled[BOARD_DMA_HALVES];
static volatile uint8_t played; /* the half that the program is to be told of */
static volatile uint8_t late;

static void tell(void) {
  current.half_played(played);
}

static uint16_t next_item(void) {
  const uint32_t index = (uint32_t)half * current.half_items + at;
  return current.item_size == 1 ? ((const uint8_t*)current.buffer)[index]
                                : ((const uint16_t*)current.buffer)[index];
}

/* The timer's interrupt. */
static void transfer_item(void) {
  if (at == 0 && !filled[half]) {
    late = 1;
  }
  board_write_dac(next_item());
  ++at;
  if (at == current.half_items) {
    filled[half] = 0;
    played = half;
    at = 0;
    half = (uint8_t)(1 - half);
    board_defer(tell);
  }
}

void board_start_dma(uint32_t rate, const board_dma_transfer* transfer) {
  current = *transfer;
  at = 0;
  half = 0;
  late = 0;
  board_dma_filled(0);
  board_dma_filled(1);
  board_start_timer(rate, transfer_item);
}

void board_dma_filled(uint8_t which) {
  board_publish();
  filled[which] = 1;
}

void board_stop_dma(void) {
  board_stop_timer();
}

int board_dma_was_late(void) {
  return late;
}
