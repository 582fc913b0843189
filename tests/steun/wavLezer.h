// A WAV file taken apart byte by byte from the definition of the format, and not through the
// library that the tool writes it with.
#pragma once

#include <optional>
#include <vector>

#include "tests/steun/bytes.h"
#include "tests/steun/wavMaker.h"

struct GelezenWav {
  WavSoort soort;
  std::vector<int> waarden;  // interleaved
};

// Nothing where the bytes are no WAV file of 16-bit values, or the sizes in it do not add up.
std::optional<GelezenWav> ontleedWav(Bytes const& bytes);
