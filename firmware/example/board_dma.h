/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* A model of a DMA controller in circular mode, for a board that has none: each period of a timer
 * it takes one item of a buffer to the register of a DAC, a timer or an I2S port, and starts again
 * at the end. It calls back when it has played the first half, and when it has played the second
 * one, as the half-transfer and the transfer-complete interrupt of usual controllers do.
 *
 * On a real board this is replaced by the controller's own set-up.
 */
#ifndef KESTROLIN_EXAMPLE_BOARD_DMA_H
#define KESTROLIN_EXAMPLE_BOARD_DMA_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

enum { BOARD_DMA_HALVES = 2 };

typedef struct board_dma_transfer {
  const void* buffer;
  uint16_t half_items; /* items in each of its halves */
  uint8_t item_size;   /* bytes: 1 or 2 */
  /* The half, 0 or 1, that was just played. Comes from an interrupt of lower priority than the
   * timer's; the transfer goes on meanwhile, with the other half. */
  void (*half_played)(uint8_t half);
} board_dma_transfer;

/* Takes `rate` items a second from here on. Both halves are filled. */
void board_start_dma(uint32_t rate, const board_dma_transfer* transfer);

/* Tells that this half, which was played, holds new items. */
void board_dma_filled(uint8_t which);

void board_stop_dma(void);

/* Whether the transfer came to a half before board_dma_filled told of it: old items were played
 * again. */
int board_dma_was_late(void);

#ifdef __cplusplus
}
#endif

#endif
