#include "audio/uitvoer/wavKeuring.h"

#include <algorithm>
#include <iterator>

#include "audio/codec/wavFormaat.h"
#include "externals/software/extern/speex/speexFormaten.h"

bool isBruikbaar(SF_INFO const& info) {
  bool const goedeFrequentie = std::find(speexFrequenties.begin(), speexFrequenties.end(),
                                         info.samplerate) != speexFrequenties.end();
  return goedeFrequentie && (info.format == wavPcm16 || info.format == wavAdpcm);
}

bool isAdpcm(SF_INFO const& info) {
  return info.format == wavAdpcm;
}

int bandVoorFrequentie(int samplerate) {
  return static_cast<int>(
      std::distance(speexFrequenties.begin(),
                    std::find(speexFrequenties.begin(), speexFrequenties.end(), samplerate)));
}

BandOordeel keurBand(int samplerate, int band) {
  int const eigen = bandVoorFrequentie(samplerate);
  if (eigen == band) {
    return BandOordeel::past;
  }
  return eigen == SpeexNarrowband ? BandOordeel::wijktStilAf : BandOordeel::wijktAf;
}
