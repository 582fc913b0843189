/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* The registers are those of the Cortex-M system design kit's timer, which the MPS2 board has at
 * the addresses of its application note AN386, and of the Cortex-M4's interrupt controller.
 */
#include "board.h"

#include "semihosting.h"

enum { CLOCK = 25000000 }; /* Hz, of the timer */

typedef struct timer_registers {
  volatile uint32_t control;
  volatile uint32_t value;
  volatile uint32_t reload; /* the clocks between two interrupts, less one */
  volatile uint32_t interrupt;
} timer_registers;

enum { CONTROL_ENABLE = 1, CONTROL_INTERRUPT = 8 };

static timer_registers* const timer0 = (timer_registers*)0x40000000;
static volatile uint32_t* const interrupt_enable = (volatile uint32_t*)0xE000E100;
enum { TIMER0_BIT = 1 << 8 };

/* The exception PendSV, which a program raises itself. */
static volatile uint32_t* const interrupt_control = (volatile uint32_t*)0xE000ED04;
static volatile uint32_t* const pendsv_priority = (volatile uint32_t*)0xE000ED20;
enum { PENDSV_RAISE = 1 << 28, PENDSV_LOWEST = 0xFF << 16 };

/* What stands in for the DAC's register: the interrupt appends, the main program empties. The
 * emulated board stands still while the emulator writes to a file, so no interrupt is lost
 * meanwhile. */
enum { CAPTURE_SIZE = 4096 };
static uint16_t captured[CAPTURE_SIZE];
static volatile uint32_t captured_count;

static int file;
static int failed;
static void (*timer_function)(void);
static void (*deferred)(void);
static volatile uint32_t interrupts;
static volatile uint8_t running;

void timer0_handler(void);

void timer0_handler(void) {
  timer0->interrupt = 1; /* done with */
  interrupts = interrupts + 1U;
  timer_function();
}

void pendsv_handler(void);

void pendsv_handler(void) {
  deferred();
}

void board_defer(void (*function)(void)) {
  deferred = function;
  *pendsv_priority = PENDSV_LOWEST;
  *interrupt_control = PENDSV_RAISE;
}

/* On one core the compiler alone could put writes in another order. The instruction is for what
 * else reads the memory: a DMA controller, another core. */
void board_publish(void) {
  __asm__ volatile("dmb" ::: "memory");
}

static void disable_interrupts(void) {
  __asm__ volatile("cpsid i" ::: "memory");
}
static void enable_interrupts(void) {
  __asm__ volatile("cpsie i" ::: "memory");
}

static void empty_capture(void) {
  disable_interrupts();
  if (captured_count != 0) {
    failed |= semihosting_write(file, captured, captured_count * sizeof captured[0]) != 0;
    captured_count = 0;
  }
  enable_interrupts();
}

int board_open_dac(const char* name) {
  file = semihosting_open(name);
  failed = file < 0;
  return failed;
}

void board_start_timer(uint32_t rate, void (*handler)(void)) {
  const uint32_t period = rate == 0 ? CLOCK : (CLOCK + rate / 2) / rate;
  timer_function = handler;
  timer0->reload = period - 1;
  timer0->value = period - 1;
  *interrupt_enable = TIMER0_BIT;
  running = 1;
  timer0->control = CONTROL_ENABLE | CONTROL_INTERRUPT;
}

void board_stop_timer(void) {
  timer0->control = 0;
  running = 0;
}

void board_write_dac(uint16_t code) {
  const uint32_t count = captured_count;
  if (count < CAPTURE_SIZE) {
    captured[count] = code;
    captured_count = count + 1U;
  } else {
    failed = 1;
  }
}

/* A program for a real board sleeps here, with the instruction wfi. The emulator, when its clock
 * counts instructions, lets two periods of the timer pass at once then. */
void board_wait(void) {
  const uint32_t seen = interrupts;
  empty_capture();
  while (interrupts == seen && running) {
  }
}

int board_close_dac(void) {
  empty_capture();
  semihosting_close(file);
  return failed;
}

void board_print(const char* text) {
  semihosting_print(text);
}
