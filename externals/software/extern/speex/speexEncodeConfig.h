// All settings of a Speex encoder, as a plain record that holds what it is handed: no range is
// checked here, nor by the encoder, and the Speex library gets the values as they stand. Values
// beyond the ranges below can end the program in the library.
#pragma once

#include "audio/codec/audioConfig.h"
#include "externals/software/extern/speex/speexFormaten.h"

struct SpeexEncodeConfig : VelmoraAudioConfig {
  // sampFreq follows from the band, and is 0/1 for a band that does not exist; aantalBits is 16.
  SpeexEncodeConfig(SpeexBandFormaat band, unsigned int niveau, unsigned int moeite,
                    SpeexBitrateType soort, unsigned int bitrateGrens, unsigned int schaalBits,
                    bool spraakDetectie, bool ruisFilter, bool versterking);

  SpeexBandFormaat formaat;
  unsigned int kwaliteit;     // Speex quality, 0 to 10
  unsigned int complexiteit;  // Speex complexity, 0 to 10
  SpeexBitrateType bitrateType;
  unsigned int maxBitrate;      // ceiling in bits a second, for the variable bit rate alone
  unsigned long long gainBits;  // bits to scale every sample down by: 16 minus the DAC's width
  bool vad;                     // voice activity detection
  bool denoise;                 // setting of the preprocessor, which no audio passes through
  bool agc;                     // likewise: automatic gain control
};
