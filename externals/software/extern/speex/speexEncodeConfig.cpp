#include "externals/software/extern/speex/speexEncodeConfig.h"

namespace {

constexpr unsigned long long sampleBits = 16;

Breuk frequentieVan(SpeexBandFormaat band) {
  switch (band) {
    case SpeexNarrowband:
      return {8000, 1};
    case SpeexWideband:
      return {16000, 1};
    case SpeexUltraWideband:
      return {32000, 1};
    default:
      return {0, 1};
  }
}

}  // namespace

SpeexEncodeConfig::SpeexEncodeConfig(SpeexBandFormaat band, unsigned int niveau,
                                     unsigned int moeite, SpeexBitrateType soort,
                                     unsigned int bitrateGrens, unsigned int schaalBits,
                                     bool spraakDetectie, bool ruisFilter, bool versterking)
    : VelmoraAudioConfig(frequentieVan(band), sampleBits),
      formaat(band),
      kwaliteit(niveau),
      complexiteit(moeite),
      bitrateType(soort),
      maxBitrate(bitrateGrens),
      gainBits(schaalBits),
      vad(spraakDetectie),
      denoise(ruisFilter),
      agc(versterking) {}
