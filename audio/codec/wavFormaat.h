// The two formats of WAV files that the tool reads and writes, as libsndfile's format words. The
// whole word counts: a big-endian or an extensible file has another one.
#pragma once

#include <sndfile.h>

inline constexpr int wavPcm16 = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
inline constexpr int wavAdpcm = SF_FORMAT_WAV | SF_FORMAT_IMA_ADPCM;
