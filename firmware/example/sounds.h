/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* The arrays of the example, as the comments at the head of their texts declare them, each with its
 * size: that is what the readers hold every step against.
 */
#ifndef KESTROLIN_EXAMPLE_SOUNDS_H
#define KESTROLIN_EXAMPLE_SOUNDS_H

#include "../kestrolin_status.h"

#ifdef __cplusplus
extern "C" {
#endif

extern const unsigned char ready_pcm[] KESTROLIN_FLASH, chime_pcm[] KESTROLIN_FLASH;
extern const size_t ready_pcm_size, chime_pcm_size;

extern const unsigned char ready_adpcm[] KESTROLIN_FLASH, warning_adpcm[] KESTROLIN_FLASH;
extern const size_t ready_adpcm_size, warning_adpcm_size;

extern const unsigned char chime_wav[] KESTROLIN_FLASH, alarm_wav[] KESTROLIN_FLASH;
extern const size_t chime_wav_size, alarm_wav_size;

extern const signed char ready_speex[] KESTROLIN_FLASH, warning_speex[] KESTROLIN_FLASH,
    chime_speex[] KESTROLIN_FLASH, alarm_speex[] KESTROLIN_FLASH;
extern const size_t ready_speex_size, warning_speex_size, chime_speex_size, alarm_speex_size;

#ifdef __cplusplus
}
#endif

#endif
