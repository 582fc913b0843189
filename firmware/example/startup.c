/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* What runs before main, for the MPS2 board with a Cortex-M4 (FPGA image AN386): the table of
 * vectors, and the reset handler that the processor starts with. The linker script
 * mps2-an386.ld gives the addresses.
 */
#include <stdint.h>
#include <string.h>

#include "semihosting.h"

extern unsigned char stack_top[];
extern unsigned char data_source[];
extern unsigned char data_start[];
extern unsigned char data_end[];
extern unsigned char bss_start[];
extern unsigned char bss_end[];

/* The constructors of C++ objects outside functions. */
extern void (*init_array_start[])(void);
extern void (*init_array_end[])(void);

int main(void);

void reset_handler(void);

void reset_handler(void) {
  memcpy(data_start, data_source, (size_t)(data_end - data_start));
  memset(bss_start, 0, (size_t)(bss_end - bss_start));
  for (void (**constructor)(void) = init_array_start; constructor != init_array_end;
       ++constructor) {
    (*constructor)();
  }
  semihosting_exit(main());
}

/* A fault, or an interrupt that nobody asked for: says so instead of hanging. */
static void unexpected_handler(void) {
  enum { FAULT_STATUS = 99 };
  semihosting_print("unexpected exception\n");
  semihosting_exit(FAULT_STATUS);
}

/* A program that starts the timer brings handlers of its own. */
void pendsv_handler(void) __attribute__((weak, alias("unexpected_handler")));
void timer0_handler(void) __attribute__((weak, alias("unexpected_handler")));

typedef union vector {
  void (*handler)(void);
  const void* stack;
} vector;

enum { PENDSV = 14, EXCEPTIONS = 16, TIMER0_INTERRUPT = 8 };

/* The first word is where the stack starts, the second one where the processor does. Exceptions 2
 * to 15 follow, and the interrupts up to that of timer 0, the one that is ever switched on. */
#define UNEXPECTED \
  { unexpected_handler }
#define UNEXPECTED_8 \
  UNEXPECTED, UNEXPECTED, UNEXPECTED, UNEXPECTED, UNEXPECTED, UNEXPECTED, UNEXPECTED, UNEXPECTED
/* clang-format off */
__attribute__((section(".vectors"), used))
static const vector vectors[EXCEPTIONS + TIMER0_INTERRUPT + 1] = {
    {.stack = stack_top}, {reset_handler},
    UNEXPECTED, UNEXPECTED, UNEXPECTED, UNEXPECTED, UNEXPECTED, UNEXPECTED,
    UNEXPECTED, UNEXPECTED, UNEXPECTED, UNEXPECTED, UNEXPECTED, UNEXPECTED,
    [PENDSV] = {pendsv_handler}, UNEXPECTED, UNEXPECTED_8,
    [EXCEPTIONS + TIMER0_INTERRUPT] = {timer0_handler}};
/* clang-format on */
