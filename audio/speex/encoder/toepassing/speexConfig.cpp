#include "audio/speex/encoder/toepassing/speexConfig.h"

#include <speex/speex_types.h>

#include <algorithm>
#include <limits>

#include "audio/speex/encoder/toepassing/kestrolinConfig.h"

namespace {

// A spin control gets the number as a signed one, so that one of more than 31 bits shows as 0.
unsigned int begrensNiveau(unsigned int niveau) {
  constexpr int hoogste = 10;
  return static_cast<unsigned int>(std::clamp(static_cast<int>(niveau), 0, hoogste));
}

SpeexBitrateType bitrateSoortVan(KestrolinConfig const& instellingen) {
  switch (instellingen.speexBitRateChoice) {
    case SpeexVariableBitrate:
      return SpeexVariableBitrate;
    case SpeexAveragedBitrate:
      return SpeexAveragedBitrate;
    default:
      return SpeexFixedBitrate;
  }
}

// To the library a negative ceiling is no ceiling. The largest one comes to the same.
unsigned int begrensBitrate(unsigned int bitrate) {
  constexpr unsigned int hoogste = std::numeric_limits<spx_int32_t>::max();
  return std::min(bitrate, hoogste);
}

}  // namespace

SpeexBandFormaat speexBandVan(KestrolinConfig const& instellingen) {
  switch (instellingen.speexFormat) {
    case SpeexWideband:
      return SpeexWideband;
    case SpeexUltraWideband:
      return SpeexUltraWideband;
    default:
      return SpeexNarrowband;
  }
}

SpeexEncodeConfig maakSpeexConfig(KestrolinConfig const& instellingen, unsigned int gainBits) {
  return {speexBandVan(instellingen),
          begrensNiveau(instellingen.speexQuality),
          begrensNiveau(instellingen.speexComplexity),
          bitrateSoortVan(instellingen),
          begrensBitrate(instellingen.speexBitRate),
          gainBits,
          instellingen.speexVAC,
          instellingen.speexDenoise,
          instellingen.speexAGC};
}
