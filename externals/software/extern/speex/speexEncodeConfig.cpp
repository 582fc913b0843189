#include "externals/software/extern/speex/speexEncodeConfig.h"

namespace {

Breuk frequentieVan(SpeexBandFormaat band) {
  auto const plaats = static_cast<std::size_t>(band);
  return {plaats < speexFrequenties.size() ? speexFrequenties[plaats] : 0, 1};
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
