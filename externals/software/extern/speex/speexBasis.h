// What the Speex encoder and decoder have in common: the tables of the bands, the bits of one
// frame, and the one place where the result of a control call of the library ends up.
#pragma once

#include <speex/speex.h>

#include <array>

#include "externals/software/extern/speex/speexFormaten.h"

class SpeexBasis {
 public:
  // By band: the sampling frequency in Hz, and the samples in a frame.
  static constexpr std::array<unsigned short, 3> standaardSampFreqs = speexFrequenties;
  static constexpr std::array<unsigned short, 3> frameSize = speexFrameSizes;
  // The most bytes that an encoded frame has.
  static constexpr int maxFrameBytes = 200;

  SpeexBasis();
  virtual ~SpeexBasis();
  // The sampling frequency in Hz.
  virtual unsigned short geefSampFreq() const = 0;

  SpeexBasis(SpeexBasis const&) = delete;
  SpeexBasis& operator=(SpeexBasis const&) = delete;
  SpeexBasis(SpeexBasis&&) = delete;
  SpeexBasis& operator=(SpeexBasis&&) = delete;

  // The samples in a frame of the band. A band that does not exist, which only an edited
  // configuration holds, counts as narrowband here and in all that follows from it.
  unsigned short geefFrameSize(SpeexBandFormaat band) const;

  // Takes the return value of a control call, sign-extended, and does nothing with it: no setting
  // that the library turns away stops an encoding. The one place where that could be judged.
  void evalueerSpeexCtrlFunktie(unsigned long long resultaat) const;

 protected:
  // The place of the band in tables by band.
  static std::size_t plaatsVan(SpeexBandFormaat band);
  // The return value of a control call as evalueerSpeexCtrlFunktie takes it.
  static unsigned long long metTeken(int resultaat);
  // The library's mode of the band. It belongs to the library and lives for ever.
  static SpeexMode const* modusVan(SpeexBandFormaat band);

  unsigned long long telling = 0;  // nothing counts with it
  SpeexBits bits{};
};
