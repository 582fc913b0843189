// The settings of an output. The initial values are the defaults of a first start.
#pragma once

#include "audio/codec/uitvoerTaal.h"

// The fields bear the names of their configuration keys, and hold whatever the file says.
struct KestrolinConfig {
  int speexFormat = 0;               // index of the band choice: 0 narrow, 1 wide, 2 ultra wide
  unsigned int speexQuality = 8;     // 0 to 10
  unsigned int speexComplexity = 3;  // 0 to 10
  int speexBitRateChoice = 0;        // index of the bit rate kind: 0 fixed, 1 variable, 2 average
  unsigned int speexBitRate = 5000;  // the maximum or average bit rate
  int speexOutputLanguage = UitvoerTaalCPP;  // index of the implementation language
  bool speexVAC = true;                      // voice activity detection
  bool speexDenoise = true;                  // denoise the input
  bool speexAGC = true;                      // adaptive gain control
  bool IncludeHeader = true;                 // put the header into the generated array
  int dacNumberOfBits = 3;                   // index into dacBreedten
};
