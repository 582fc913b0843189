/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* The integer types of libspeex, as its own configuration would write them. */
#ifndef KESTROLIN_EXAMPLE_SPEEX_CONFIG_TYPES_H
#define KESTROLIN_EXAMPLE_SPEEX_CONFIG_TYPES_H

#include <stdint.h>

typedef int16_t spx_int16_t;
typedef uint16_t spx_uint16_t;
typedef int32_t spx_int32_t;
typedef uint32_t spx_uint32_t;

#endif
