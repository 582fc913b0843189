#include "audio/speex/encoder/toepassing/wavKeuring.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

constexpr std::array<int, 3> frequenties{8000, 16000, 32000};

// The whole format word counts, so that big-endian and extensible files are turned away.
constexpr int wavPcm16 = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
constexpr int wavAdpcm = SF_FORMAT_WAV | SF_FORMAT_IMA_ADPCM;

}  // namespace

bool isBruikbaar(SF_INFO const& info) {
  bool const goedeFrequentie =
      std::find(frequenties.begin(), frequenties.end(), info.samplerate) != frequenties.end();
  return goedeFrequentie && (info.format == wavPcm16 || info.format == wavAdpcm);
}

bool isAdpcm(SF_INFO const& info) {
  return info.format == wavAdpcm;
}

int bandVoorFrequentie(int samplerate) {
  return static_cast<int>(std::distance(
      frequenties.begin(), std::find(frequenties.begin(), frequenties.end(), samplerate)));
}
