// One stream of Speex frames to be decoded, with perceptual enhancement on. The library's state
// runs on from frame to frame: nothing resets it.
#pragma once

#include <memory>

#include "externals/software/extern/speex/speexBasis.h"

class SpeexDecoder : public SpeexBasis {
 public:
  // No result of the library is looked at.
  explicit SpeexDecoder(SpeexBandFormaat band);

  unsigned short geefSampFreq() const override;

  // For firmware that plays from blocks of one size, on a narrowband decoder. Takes the frames at
  // `data`, each of `frameBytes` bytes and one right behind the other, and writes 160 samples to
  // `uitvoer`: 160 times the first sample of the first frame, also where `aantal` is below 160. Of
  // the rest, `aantal` - 161 frames where that is above 0, nothing is written; they bring the
  // decoder forward. With an `aantal` of 0 nothing happens. It is no general loop over frames.
  void decodeerFixedFrames(char const* data, unsigned long long frameBytes, short* uitvoer,
                           unsigned long long aantal);

 protected:
  struct DecoderEinde {
    void operator()(void* toestand) const { speex_decoder_destroy(toestand); }
  };

  SpeexBandFormaat formaat;
  unsigned short frameSize;  // samples in a frame of this band
  std::unique_ptr<void, DecoderEinde> decoderState;

 private:
  void regelDecoder(int verzoek, spx_int32_t& waarde);
};
