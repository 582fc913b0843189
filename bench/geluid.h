// The sound that is measured with.
#pragma once

#include <string>

#include "externals/software/extern/speex/speexFormaten.h"

// The highest rate that the tool takes, in Hz: the longest text for a second of sound.
inline constexpr int hoogsteRate = speexFrequenties.back();

// Writes a mono WAV file of 16-bit noise of full scale, the same at every run.
void maakRuis(std::string const& pad, int samplerate, int seconden);
