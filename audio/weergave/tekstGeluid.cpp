#include "audio/weergave/tekstGeluid.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <numeric>

#include "audio/codec/audioConfig.h"

namespace {

DoelGeluid decodeerDoor(DoelDecoder& decoder, TekstArray const& array) {
  auto const frequentie = static_cast<std::uint16_t>(array.frequentie);
  return decoder.decodeer(array.soort, array.bytes,
                          array.metHeader ? std::nullopt : std::optional(frequentie));
}

double energie(Samples const& samples) {
  return std::accumulate(samples.begin(), samples.end(), 0.0, [](double som, short sample) {
    return som + static_cast<double>(sample) * sample;
  });
}

void hefOp(Samples& samples, unsigned int bits) {
  using Grens = std::numeric_limits<short>;
  int const factor = 1 << (sampleBits - bits);
  std::transform(samples.begin(), samples.end(), samples.begin(), [factor](short sample) {
    return static_cast<short>(std::clamp<int>(sample * factor, Grens::min(), Grens::max()));
  });
}

}  // namespace

DoelGeluid TekstDecoder::decodeer(TekstArray const& array) {
  DoelGeluid geluid = decodeerKaal(array);
  if (array.soort == ArraySoort::speex) {
    // Without header its own frames alone tell where it ends.
    geluid.samples.resize(std::min<std::size_t>(geluid.samples.size(), array.aantalSamples));
  }
  hefOp(geluid.samples, bitsVan(array));
  return geluid;
}

DoelGeluid TekstDecoder::decodeerKaal(TekstArray const& array) {
  if (array.soort != ArraySoort::adpcm) {
    return decodeerDoor(decoder, array);
  }
  bool const isNieuweRun = adpcmRun && *adpcmRun != array.run;
  adpcmRun = array.run;
  DoelDecoder vers;
  DoelGeluid geluid = decodeerDoor(decoder, array);
  if (isNieuweRun) {
    DoelGeluid afzonderlijk = decodeerDoor(vers, array);
    if (energie(afzonderlijk.samples) <= energie(geluid.samples)) {
      decoder = vers;
      return afzonderlijk;
    }
  }
  return geluid;
}

// How many bits the samples of the array have.
unsigned int TekstDecoder::bitsVan(TekstArray const& array) const {
  constexpr unsigned int adpcmSmaller = 8;
  constexpr unsigned int alle = sampleBits;
  unsigned int const dac = breedte.value_or(array.dacBits);
  if (dac == 0) {
    return alle;
  }
  // At 8 bits nothing but silence is left of ADPCM.
  return array.soort == ArraySoort::adpcm ? std::max(dac, adpcmSmaller + 1) - adpcmSmaller : dac;
}
