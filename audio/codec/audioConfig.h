// What any audio stream is described by: its sampling frequency and the width of its samples.
#pragma once

#include "numeriek/breuk.h"

struct VelmoraAudioConfig {
  VelmoraAudioConfig(Breuk const& frequentie, unsigned long long bits)
      : sampFreq(frequentie), aantalBits(bits) {}

  Breuk sampFreq;                 // Hz, a whole number over 1
  unsigned long long aantalBits;  // the sample width in bits
};
