// Arrays decoded as a target would: by the readers for firmware and libspeex.
#pragma once

#include <vector>

#include "bench/firmware/encode.h"

using Samples = std::vector<short>;

// Each is empty where the reader turns the array away.
Samples pcmSamples(ArrayBytes const& array);
Samples adpcmSamples(ArrayBytes const& array);
Samples embeddedSamples(ArrayBytes const& array);
// Without those that the codec's own delay puts before the first one.
Samples speexSamples(ArrayBytes const& array);
