/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* The arrays of the example, as the comments at the head of their texts declare them, each with its
 * size: that is what the readers hold every step against.
 */
#ifndef KESTROLIN_EXAMPLE_SOUNDS_H
#define KESTROLIN_EXAMPLE_SOUNDS_H

#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

extern const unsigned char ready_pcm[], chime_pcm[];
extern const size_t ready_pcm_size, chime_pcm_size;

extern const unsigned char ready_adpcm[], warning_adpcm[];
extern const size_t ready_adpcm_size, warning_adpcm_size;

extern const unsigned char chime_wav[], alarm_wav[];
extern const size_t chime_wav_size, alarm_wav_size;

extern const signed char ready_speex[], warning_speex[], chime_speex[], alarm_speex[];
extern const size_t ready_speex_size, warning_speex_size, chime_speex_size, alarm_speex_size;

#ifdef __cplusplus
}
#endif

#endif
