#include "externals/software/extern/speex/speexBasis.h"

SpeexBasis::SpeexBasis() {
  speex_bits_init(&bits);
}

SpeexBasis::~SpeexBasis() {
  speex_bits_destroy(&bits);
}

unsigned short SpeexBasis::geefFrameSize(SpeexBandFormaat band) const {
  return frameSize[plaatsVan(band)];
}

void SpeexBasis::evalueerSpeexCtrlFunktie(unsigned long long /*resultaat*/) const {}

std::size_t SpeexBasis::plaatsVan(SpeexBandFormaat band) {
  auto const plaats = static_cast<std::size_t>(band);
  return plaats < frameSize.size() ? plaats : std::size_t{0};
}

unsigned long long SpeexBasis::metTeken(int resultaat) {
  return static_cast<unsigned long long>(static_cast<long long>(resultaat));
}

SpeexMode const* SpeexBasis::modusVan(SpeexBandFormaat band) {
  auto const modus = static_cast<int>(plaatsVan(band));
  return modus == SpeexNarrowband ? &speex_nb_mode : speex_lib_get_mode(modus);
}
