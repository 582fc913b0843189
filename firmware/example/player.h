/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Plays what any of the readers gives: decodes in the main program, a block ahead of the timer's
 * interrupt, which takes one code at a time to the DAC.
 */
#ifndef KESTROLIN_EXAMPLE_PLAYER_H
#define KESTROLIN_EXAMPLE_PLAYER_H

#include "../kestrolin_dac.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Decodes the next samples of a reader, `room` at most, and returns how many; 0 at the end. */
typedef size_t (*player_read)(void* reader, int16_t* samples, size_t room);

typedef struct player_sound {
  uint32_t rate; /* samples a second */
  unsigned bits; /* the width of the samples */
  player_read read;
  void* reader;
} player_sound;

/* Plays a sound to its end on a DAC of `width`, and leaves the DAC at mid-scale. The codes go into
 * the file `name`. Returns 0 when all of it was heard in time: no interrupt found the queue empty,
 * and every code is in the file. */
int player_play(const char* name, const player_sound* sound, kestrolin_dac_width width);

/* Tells on a line whether the fragment was played. Returns `failed`. */
int player_report(const char* name, int failed);

#ifdef __cplusplus
}
#endif

#endif
