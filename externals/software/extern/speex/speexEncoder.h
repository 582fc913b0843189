// One stream of Speex frames to be encoded. The library's state runs on from frame to frame and
// from file to file: nothing resets it.
#pragma once

#include <speex/speex_preprocess.h>

#include <memory>

#include "externals/software/extern/speex/speexBasis.h"
#include "externals/software/extern/speex/speexEncodeConfig.h"

class SpeexEncoder : public SpeexBasis {
 public:
  // Sets the library up as `instellingen` say. No result of the library is looked at.
  explicit SpeexEncoder(SpeexEncodeConfig const& instellingen);

  unsigned short geefSampFreq() const override;
  // Copies the settings into `doel`.
  void geefConfig(SpeexEncodeConfig& doel) const;

 protected:
  struct EncoderEinde {
    void operator()(void* toestand) const { speex_encoder_destroy(toestand); }
  };
  struct PreprocessEinde {
    void operator()(SpeexPreprocessState* toestand) const {
      speex_preprocess_state_destroy(toestand);
    }
  };

  std::unique_ptr<void, EncoderEinde> encoderState;
  std::unique_ptr<SpeexPreprocessState, PreprocessEinde> preprocessState;
  SpeexEncodeConfig config;

 private:
  int preprocessFrequentie() const;
  void stelPreprocessorIn(spx_int32_t& waarde);
  void stelEncoderIn(spx_int32_t& waarde);
  void stelBitrateIn(spx_int32_t& waarde);
  void regelPreprocessor(int verzoek, spx_int32_t& waarde);
  void regelEncoder(int verzoek, spx_int32_t& waarde);
};
