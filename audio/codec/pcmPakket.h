// A block of signed 16-bit PCM samples with its sampling frequency, and the serial image of such a
// block, which is what firmware finds in a generated PCM array.
//
// The serial image with header, all numbers little-endian:
//
//   byte  0     1     2     3     4     5     6     7     8     9    ...
//       +-----+-----+-----+-----+-----+-----+-----+-----+-----+-----+--
//       | number of samples     | frequency | sample 0  | sample 1  |
//       | unsigned              | in Hz     | signed    | signed    |
//       +-----+-----+-----+-----+-----+-----+-----+-----+-----+-----+--
//
// docs/manual.md defines this layout ("The arrays, byte by byte").
//
// Without header the samples start at byte 0.
#pragma once

#include "audio/codec/array.h"
#include "audio/codec/dataPakket.h"
#include "numeriek/breuk.h"

class VelmoraPCMPakket : public VelmoraDataPakket<short> {
 public:
  // The size of the serial header in bytes.
  static constexpr unsigned long long SerieeleOverhead = 6;

  // No samples, element size 0, frequency 0/1.
  VelmoraPCMPakket();
  // A new block of `aantal` samples, all zero, that the packet owns. Passes std::bad_alloc on.
  VelmoraPCMPakket(unsigned long long aantal, Breuk const& freq);
  // Lies over `aantal` samples of the caller. The samples are taken as they are; only vlakAf and
  // leesInSerieel write to them.
  VelmoraPCMPakket(short const* samples, unsigned long long aantal, Breuk const& freq);
  // Lies over a raw block of the caller: the number of samples in bytes 0 to 3, the frequency in
  // bytes 4 and 5, the samples from byte 12 as they lie in memory. That is not the serial image
  // above, whose samples start at byte 6; blocks of this kind carry six bytes of their own in
  // between. A `vorige` that is not null gets this packet as its next, so that packets in a row
  // form a chain.
  VelmoraPCMPakket(unsigned char const* ruw, VelmoraPCMPakket* vorige);

  // The sampling frequency in Hz.
  Breuk geefSampFreq() const { return sampFreq; }
  // The number of samples in the block.
  unsigned long long geefAantalSamples() const;
  // The size of the serial image in bytes, its header always counted in, also where the caller is
  // going to leave the header out: the arrays in generated text have this size either way.
  unsigned long long serieelGeefAantalBytes() const;

  // Scales all samples down in place to the width of a DAC: each is divided by 2 to the power
  // `bitShift` (modulo 32) with truncation toward zero, so that -1 becomes 0 where an arithmetic
  // shift would leave -1. An empty packet stays as it is.
  void vlakAf(unsigned long long bitShift);

  // Writes the serial image into `doel`, which must hold serieelGeefAantalBytes() elements, or the
  // payload alone where `metHeader` is false; the last six elements are then left as they are. The
  // count is cut to 32 bits, the frequency's numerator to 16; its denominator is not stored.
  void maakSerieel(VelmoraArray<unsigned char>& doel, bool metHeader) const;

  // Reads a serial image back, on purpose not as the mirror of maakSerieel: byte 5 of the frequency
  // lands at bit 16 and not at bit 8 (8000 Hz reads back as 2031680), and the count of samples is
  // taken as a count of bytes, so that half of the payload is copied. The packet keeps its size:
  // what the image has beyond it, or lacks, is left alone.
  void leesInSerieel(VelmoraArray<unsigned char> const& bron);

 private:
  Breuk sampFreq;
};
