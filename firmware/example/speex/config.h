/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* How libspeex is built for a processor without floating point, as a decoder alone. */
#ifndef KESTROLIN_EXAMPLE_SPEEX_CONFIG_H
#define KESTROLIN_EXAMPLE_SPEEX_CONFIG_H

#define FIXED_POINT
#define DISABLE_ENCODER
#define DISABLE_FLOAT_API
#define RELEASE
#define VAR_ARRAYS
#define EXPORT

#define SPEEX_VERSION "1.2.1"
#define SPEEX_MAJOR_VERSION 1
#define SPEEX_MINOR_VERSION 2
#define SPEEX_MICRO_VERSION 1
#define SPEEX_EXTRA_VERSION ""

#define OS_SUPPORT_CUSTOM

#endif
