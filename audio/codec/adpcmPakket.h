// A block of 4-bit ADPCM codes, two samples to the byte, with the sampling frequency and the state
// that a decoder starts from, and the serial image of such a block, which is what firmware finds in
// a generated ADPCM array.
//
// The serial image with header, all numbers little-endian:
//
//   byte  0     1     2     3     4     5     6     7     8     9     10   ...
//       +-----+-----+-----+-----+-----+-----+-----+-----+-----+-----+-----+--
//       | number of code bytes  | frequency | predictor |index| code| code|
//       | unsigned              | in Hz     | signed    |     | 0, 1| 2, 3|
//       +-----+-----+-----+-----+-----+-----+-----+-----+-----+-----+-----+--
//
//   a byte of code:     bit 7       4 3       0
//                          +---------+---------+
//                          | sample  | sample  |
//                          | 2n + 1  | 2n      |
//                          +---------+---------+
//
// docs/manual.md defines this layout ("The arrays, byte by byte").
//
// Without header the codes start at byte 0.
#pragma once

#include "audio/codec/array.h"
#include "audio/codec/dataPakket.h"
#include "numeriek/breuk.h"

class VelmoraADPCMPakket : public VelmoraDataPakket<unsigned char> {
 public:
  // The size of the serial header in bytes.
  static constexpr unsigned long long SerieeleOverhead = 9;

  // No codes, element size 0, frequency 0/1.
  VelmoraADPCMPakket();
  // A new block of `grootte` bytes, all zero, that the packet owns. Passes std::bad_alloc on.
  VelmoraADPCMPakket(unsigned long long grootte, Breuk const& freq);
  // Takes the place, the size, the chain and the ownership of `d` as they are. Where `d` owns its
  // block the two share it from here on, and the last one to go releases it.
  VelmoraADPCMPakket(VelmoraDataPakket<unsigned char> const& d, Breuk const& freq,
                     short beginPredictor, unsigned char index);
  // Lies over `aantal` bytes of `bron` from element `begin` on, which must outlive it, with the
  // frequency and the start state of `bron`: those are right where `begin` is 0.
  VelmoraADPCMPakket(VelmoraADPCMPakket const& bron, unsigned long long begin,
                     unsigned long long aantal);
  // Lies over a serial image with header, which must outlive it. Byte 8 is not read: a packet over
  // an image starts from index 0, unlike one that leesInSerieel has read.
  explicit VelmoraADPCMPakket(unsigned char const* ruw);

  VelmoraADPCMPakket(VelmoraADPCMPakket const&) = delete;
  VelmoraADPCMPakket& operator=(VelmoraADPCMPakket const&) = delete;
  VelmoraADPCMPakket(VelmoraADPCMPakket&&) = delete;
  VelmoraADPCMPakket& operator=(VelmoraADPCMPakket&&) = delete;
  ~VelmoraADPCMPakket() = default;

  // The sampling frequency in Hz.
  Breuk geefSampFreq() const { return sampFreq; }
  // The sample that a decoder counts on from, and the index of its first step: 0 to 88 in what an
  // encoder made, any byte in what was read; above 88 it decodes as 88.
  int geefPredictor() const { return predictor; }
  unsigned char geefBeginIndex() const { return beginIndex; }
  // The number of samples in the block: two a byte, so always even.
  unsigned long long geefAantalSamples() const;
  // The size of the serial image in bytes, its header always counted in, also where the caller is
  // going to leave the header out: the arrays in generated text have this size either way.
  unsigned long long serieelGeefAantalBytes() const;

  // Writes the serial image into `doel`, which must hold serieelGeefAantalBytes() elements, or the
  // payload alone where `metHeader` is false; the last nine elements are then left as they are. The
  // count is cut to 32 bits, the frequency's numerator to 16; its denominator is not stored.
  void maakSerieel(VelmoraArray<unsigned char>& doel, bool metHeader) const;

  // Reads a serial image back, on purpose not as the mirror of maakSerieel: byte 5 of the frequency
  // lands at bit 16 and not at bit 8 (8000 Hz reads back as 2031680), and of the predictor byte 6
  // alone is kept, 0 to 255. As many bytes are copied as the image counts and the packet has room
  // for; the packet keeps its size. What lies behind the end of `bron` counts as zero.
  void leesInSerieel(VelmoraArray<unsigned char> const& bron);

 private:
  Breuk sampFreq;
  short predictor = 0;
  unsigned char beginIndex = 0;
};
