/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
#include "arena.h"

#include <stddef.h>
#include <stdint.h>
#include <string.h>

/* Enough for one decoder of the widest band: 2752 bytes of it where pointers have four. The others
 * take less; docs/firmware.md tells how much. */
enum { ARENA_SIZE = sizeof(void*) * 1024, ALIGNMENT = 8 };

static union {
  uint64_t alignment;
  unsigned char bytes[ARENA_SIZE];
} arena;

static size_t taken;
static size_t pieces;
static size_t peak;

void* arena_take(int size) {
  const size_t rounded = ((size_t)size + ALIGNMENT - 1) / ALIGNMENT * ALIGNMENT;
  if (size < 0 || rounded > ARENA_SIZE - taken) {
    return NULL;
  }
  void* block = arena.bytes + taken;
  taken += rounded;
  peak = taken > peak ? taken : peak;
  ++pieces;
  return memset(block, 0, rounded);
}

void arena_give_back(void* block) {
  if (block != NULL && --pieces == 0) {
    taken = 0;
  }
}

unsigned arena_take_peak(void) {
  const size_t most = peak;
  peak = taken;
  return (unsigned)most;
}
