// What a program tells of one fragment, taken out of the stream that runner.h draws.
#pragma once

#include <optional>
#include <vector>

#include "tests/externals/software/extern/speex/speexRechtstreeks.h"
#include "tests/steun/bytes.h"

// What a fragment does not have is 0, or empty.
struct Record {
  unsigned status = 0;  // a kestrolin_status
  unsigned rate = 0;    // Hz
  unsigned channels = 1;
  unsigned count = 0;  // samples, as the reader tells before it has read any
  unsigned speexFrames = 0;
  unsigned frameSamples = 0;
  unsigned mode = 0;
  unsigned delay = 0;  // samples
  Frames frames;
  std::vector<int> samples;
  std::vector<int> codes;  // for the DAC
  unsigned left = 0;       // once all is read
};

// Nothing where the stream ends too soon, or holds more than its fragments.
std::optional<std::vector<Record>> readRecords(Bytes const& bytes);
