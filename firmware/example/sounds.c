/* SPDX-FileCopyrightText: 2026 The Kestrolin team
 * SPDX-License-Identifier: MIT */
/* Takes in the texts as they were saved, so that each can be saved anew without a thought for this
 * file, and tells the sizes, which only the file that defines an array knows.
 */
#include "sounds.h"

#include "adpcm.c"
#include "pcm.c"
#include "speex16.c"
#include "speex32.c"
#include "speex8.c"
#include "wav.c"

#define TELL_SIZE(array) const size_t array##_size = sizeof array

TELL_SIZE(ready_pcm);
TELL_SIZE(chime_pcm);
TELL_SIZE(ready_adpcm);
TELL_SIZE(warning_adpcm);
TELL_SIZE(chime_wav);
TELL_SIZE(alarm_wav);
TELL_SIZE(ready_speex);
TELL_SIZE(warning_speex);
TELL_SIZE(chime_speex);
TELL_SIZE(alarm_speex);
