/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* What measure.c needs of a target: a counter, the stack, and somebody who reads lines. Each target
 * has a source with these operations.
 */
#ifndef KESTROLIN_EXAMPLE_MEASURE_TARGET_H
#define KESTROLIN_EXAMPLE_MEASURE_TARGET_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Starts the counter. Returns 0 where it counts as it should. */
int target_start(void);

/* Instructions since then, or cycles of the processor where the emulator knows them. */
uint32_t target_count(void);

void target_print(const char* text);

/* Ends the program; what main returns. */
int target_end(int failed);

/* The bytes of stack that are looked at, and where the stack ends. */
#ifdef __AVR__
enum { TARGET_STACK = 1024 };
#else
enum { TARGET_STACK = 8192 };
#endif

static inline __attribute__((always_inline)) volatile unsigned char* target_stack_pointer(void) {
  volatile unsigned char* pointer = NULL;
#ifdef __AVR__
  __asm__ volatile("in %A0, __SP_L__\n\tin %B0, __SP_H__" : "=r"(pointer));
#elif defined(__riscv)
  __asm__ volatile("mv %0, sp" : "=r"(pointer));
#else
  __asm__ volatile("mov %0, sp" : "=r"(pointer));
#endif
  return pointer;
}

#ifdef __cplusplus
}
#endif

#endif
