// What any audio stream is described by: its sampling frequency and the width of its samples.
#pragma once

#include "numeriek/breuk.h"

// The width of every sample that the tool reads, in bits. A DAC has at most as many.
inline constexpr int sampleBits = 16;

struct VelmoraAudioConfig {
  VelmoraAudioConfig(Breuk const& frequentie, unsigned long long bits)
      : sampFreq(frequentie), aantalBits(bits) {}

  Breuk sampFreq;                 // Hz, a whole number over 1
  unsigned long long aantalBits;  // the sample width in bits
};
