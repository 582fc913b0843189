/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* The memory of libspeex's decoders: a static block, of which pieces are taken from the start. It
 * is free again as a whole when all pieces have been given back.
 */
#ifndef KESTROLIN_EXAMPLE_SPEEX_ARENA_H
#define KESTROLIN_EXAMPLE_SPEEX_ARENA_H

#ifdef __cplusplus
extern "C" {
#endif

/* A cleared piece of memory, or a null pointer where there is not enough. */
void* arena_take(int size);
void arena_give_back(void* block);

/* The most bytes that were taken at a time since this was last asked. */
unsigned arena_take_peak(void);

#ifdef __cplusplus
}
#endif

#endif
