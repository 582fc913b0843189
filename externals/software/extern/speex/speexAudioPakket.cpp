#include "externals/software/extern/speex/speexAudioPakket.h"

#include "numeriek/byteGereedschap.h"

namespace {

// A signed byte, widened with its sign.
unsigned short halfWoord(signed char byte) {
  return static_cast<unsigned short>(static_cast<short>(byte));
}

unsigned short leesVeld(signed char const* bytes) {
  return MaakShort(static_cast<unsigned char>(bytes[1]), static_cast<unsigned char>(bytes[0]));
}

}  // namespace

SpeexAudioPakket::SpeexAudioPakket() : sampFreq(0, 1) {}

SpeexAudioPakket::SpeexAudioPakket(signed char const* array)
    : VelmoraDataPakket(
          zonderConst(array + sizeof(VelmoraSpeexHeader)),
          static_cast<unsigned long long>(MaakWoord(halfWoord(array[3]), halfWoord(array[2]))) -
              sizeof(VelmoraSpeexHeader),
          1, false),
      sampFreq(MaakWoord(halfWoord(array[1]), halfWoord(array[0])), 1),
      huidigFrame(array + sizeof(VelmoraSpeexHeader)),
      header(array) {}

unsigned short SpeexAudioPakket::geefSampFreq() const {
  return leesHeader().sampFreq;
}

unsigned short SpeexAudioPakket::geefAantalFrames() const {
  return leesHeader().aantalFrames;
}

unsigned char SpeexAudioPakket::geefEncFrameSize() const {
  return static_cast<unsigned char>(*huidigFrame);
}

signed char const* SpeexAudioPakket::encFrameData(bool verder) {
  signed char const* const frame = huidigFrame + 1;
  if (verder) {
    huidigFrame = frame + geefEncFrameSize();
  }
  return frame;
}

VelmoraSpeexHeader SpeexAudioPakket::leesHeader() const {
  return {leesVeld(header), leesVeld(header + 2)};
}
