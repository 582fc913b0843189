/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include "semihosting.h"

#include <stdint.h>
#include <string.h>

enum {
  SYS_OPEN = 0x01,
  SYS_CLOSE = 0x02,
  SYS_WRITE0 = 0x04,
  SYS_WRITE = 0x05,
  SYS_EXIT_EXTENDED = 0x20
};
enum { MODE_WRITE_BINARY = 5 };
enum { ADP_STOPPED_APPLICATION_EXIT = 0x20026 };

static int call(int operation, const void* parameters) {
  register int r0 __asm__("r0") = operation;
  register const void* r1 __asm__("r1") = parameters;
  __asm__ volatile("bkpt 0xAB" : "+r"(r0) : "r"(r1) : "memory");
  return r0;
}

int semihosting_open(const char* name) {
  const uintptr_t block[] = {(uintptr_t)name, MODE_WRITE_BINARY, strlen(name)};
  return call(SYS_OPEN, block);
}

int semihosting_write(int handle, const void* bytes, size_t count) {
  const uintptr_t block[] = {(uintptr_t)handle, (uintptr_t)bytes, count};
  return call(SYS_WRITE, block);
}

void semihosting_close(int handle) {
  const uintptr_t block[] = {(uintptr_t)handle};
  call(SYS_CLOSE, block);
}

void semihosting_print(const char* text) {
  call(SYS_WRITE0, text);
}

void semihosting_exit(int status) {
  const uintptr_t block[] = {ADP_STOPPED_APPLICATION_EXIT, (uintptr_t)status};
  for (;;) {
    call(SYS_EXIT_EXTENDED, block);
  }
}
