/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* The sounds of the sketch. They lie in flash: an Uno has 32 KiB of that, and 2 KiB of RAM. */
#ifndef SOUNDS_H
#define SOUNDS_H

#include <Kestrolin.h>

extern const unsigned char ready[] KESTROLIN_FLASH;
extern const size_t ready_size;

#endif
