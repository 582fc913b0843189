/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* What libspeex asks of the system it runs on: memory from one static block (arena.c), and nothing
 * to print on.
 */
#ifndef KESTROLIN_EXAMPLE_SPEEX_OS_SUPPORT_CUSTOM_H
#define KESTROLIN_EXAMPLE_SPEEX_OS_SUPPORT_CUSTOM_H

#include "arena.h"

#ifdef __cplusplus
extern "C" {
#endif

#define OVERRIDE_SPEEX_ALLOC
static inline void* speex_alloc(int size) {
  return arena_take(size);
}
#define OVERRIDE_SPEEX_ALLOC_SCRATCH
static inline void* speex_alloc_scratch(int size) {
  return arena_take(size);
}
#define OVERRIDE_SPEEX_FREE
static inline void speex_free(void* block) {
  arena_give_back(block);
}
#define OVERRIDE_SPEEX_FREE_SCRATCH
static inline void speex_free_scratch(void* block) {
  arena_give_back(block);
}
/* Only for packing bits, which the decoder does not do. */
#define OVERRIDE_SPEEX_REALLOC
static inline void* speex_realloc(void* block, int size) {
  (void)block;
  (void)size;
  return 0;
}

#define OVERRIDE_SPEEX_FATAL
static inline void _speex_fatal(const char* text, const char* file, int line) {
  (void)text;
  (void)file;
  (void)line;
  for (;;) {
  }
}
#define OVERRIDE_SPEEX_WARNING
static inline void speex_warning(const char* text) {
  (void)text;
}
#define OVERRIDE_SPEEX_WARNING_INT
static inline void speex_warning_int(const char* text, int number) {
  (void)text;
  (void)number;
}
#define OVERRIDE_SPEEX_NOTIFY
static inline void speex_notify(const char* text) {
  (void)text;
}
#define OVERRIDE_SPEEX_PUTC
static inline void _speex_putc(int character, void* file) {
  (void)character;
  (void)file;
}

#ifdef __cplusplus
}
#endif

#endif
