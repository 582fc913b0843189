// A read-only view of a Speex array with header in the memory of the firmware (its layout is drawn
// in speexHeader.h), with a cursor that walks its frames:
//
//   SpeexAudioPakket pakket(fragment);
//   while (more frames in the array) {
//     unsigned char const grootte = pakket.geefEncFrameSize();
//     decode(pakket.encFrameData(true), grootte);
//   }
#pragma once

#include "audio/codec/dataPakket.h"
#include "externals/software/extern/speex/speexHeader.h"
#include "numeriek/breuk.h"

class SpeexAudioPakket : public VelmoraDataPakket<signed char> {
 public:
  // Over nothing: all fields zero or null, the frequency 0/1. It has no header and no frames to ask
  // for.
  SpeexAudioPakket();
  // Lies over `array`, which has its header and must outlive this object. The payload begins behind
  // the header. Two fields do not say what the header says, and stay so: the second header field,
  // with its high byte at bit 16, less 4, passes for the size in bytes; sampFreq likewise has the
  // frequency's high byte at bit 16 (8000 Hz becomes 2031680). Bytes above 127 count as negative on
  // that way, and wrap.
  explicit SpeexAudioPakket(signed char const* array);

  // The payload lies in memory that is not to be written.
  signed char const* geefData() const { return VelmoraDataPakket::geefData(); }
  void zetElement(unsigned long long i, signed char waarde) = delete;

  // The header's fields as they stand: the frequency in Hz, and what is called the number of
  // frames.
  unsigned short geefSampFreq() const;
  unsigned short geefAantalFrames() const;

  // The size in bytes of the frame under the cursor. The end of the array is not checked, here nor
  // below.
  unsigned char geefEncFrameSize() const;
  // The first byte of the frame under the cursor; with `verder` the cursor then moves on to the
  // next frame.
  signed char const* encFrameData(bool verder);

 protected:
  Breuk sampFreq;
  signed char const* huidigFrame = nullptr;  // the size byte of the current frame
  // The bytes of the VelmoraSpeexHeader: the array may lie at an odd address.
  signed char const* header = nullptr;

 private:
  VelmoraSpeexHeader leesHeader() const;
};
