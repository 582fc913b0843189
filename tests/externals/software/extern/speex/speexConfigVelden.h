// All that an encoder's settings hold, to be compared as a whole.
#pragma once

#include <tuple>

#include "externals/software/extern/speex/speexEncodeConfig.h"

inline auto velden(SpeexEncodeConfig const& config) {
  return std::make_tuple(config.sampFreq.teller(), config.sampFreq.noemer(), config.aantalBits,
                         config.formaat, config.kwaliteit, config.complexiteit, config.bitrateType,
                         config.maxBitrate, config.gainBits, config.vad, config.denoise,
                         config.agc);
}
