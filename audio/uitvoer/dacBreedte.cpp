#include "audio/uitvoer/dacBreedte.h"

#include <algorithm>
#include <iterator>

#include "audio/codec/audioConfig.h"
#include "audio/uitvoer/kestrolinConfig.h"

int dacIndexVan(long long bits) {
  return static_cast<int>(
      std::distance(dacBreedten.begin(), std::find(dacBreedten.begin(), dacBreedten.end(), bits)));
}

int dacBitsVan(KestrolinConfig const& instellingen) {
  auto const index = static_cast<std::size_t>(instellingen.dacNumberOfBits);
  return index < dacBreedten.size() ? static_cast<int>(dacBreedten[index]) : sampleBits;
}

unsigned int bitShiftVan(KestrolinConfig const& instellingen) {
  return static_cast<unsigned int>(sampleBits - dacBitsVan(instellingen));
}
