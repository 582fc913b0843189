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

SpeexMode const* SpeexBasis::modusVan(SpeexBandFormaat band) {
  auto const modus = static_cast<int>(plaatsVan(band));
  // The library's own macro of this name would do the same for the modes of which it knows.
  return modus == SpeexNarrowband ? &speex_nb_mode : (speex_lib_get_mode)(modus);
}
