/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* What a program needs of a board to play: a timer interrupt at the sampling frequency, and a DAC.
 * For events and DMA, also an interrupt of lower priority.
 *
 * board_mps2.c is an emulated MPS2 board with a Cortex-M4, board_host.c any computer with a C
 * library. Neither has a DAC, so what is written to it goes into a file, two bytes a code, low byte
 * first.
 */
#ifndef KESTROLIN_EXAMPLE_BOARD_H
#define KESTROLIN_EXAMPLE_BOARD_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Names the file that takes the codes from here on. Returns 0 when it is open. */
int board_open_dac(const char* name);

/* Calls `handler` so many times a second, from the timer's interrupt, until board_stop_timer. A
 * rate of 0 is taken for 1. */
void board_start_timer(uint32_t rate, void (*handler)(void));
void board_stop_timer(void);

/* For the handler: the next output of the DAC. */
void board_write_dac(uint16_t code);

/* For the main program when it has nothing to do: returns after the timer's next interrupt, or when
 * the timer stands still. */
void board_wait(void);

/* For a handler: calls `function` from an interrupt of lower priority than the timer's, as soon as
 * that one has returned. The timer's interrupt may come in between at any place; the main program
 * waits. A call that has not come yet is replaced by a second one. */
void board_defer(void (*function)(void));

/* What was written before this call is in memory before anything that is written after it. Hands
 * something over to an interrupt: fill it, publish, then store the byte that tells of it. */
void board_publish(void);

/* Completes the file. Returns 0 when all codes are in it. */
int board_close_dac(void);

/* A line for whoever watches. */
void board_print(const char* text);

#ifdef __cplusplus
}
#endif

#endif
