// The 4-bit ADPCM coder: PCM packets to ADPCM packets and back. The quantiser is that of IMA ADPCM
// (Interactive Multimedia Association, Recommended Practices for Enhancing Digital Audio
// Compatibility in Multimedia Systems, 1992), with its two tables. What differs, and stays, because
// the decoders in firmware count on it:
//
// - there are no blocks: a fragment is one run of codes;
// - encodeer takes only the low byte of each sample, with its sign, and divides it by a power of
// two;
// - the encoder's state is never reset, while every image declares a start from prediction 0 and
//   index 0;
// - an odd last sample is not coded.
#pragma once

#include <array>

class VelmoraADPCMPakket;
class VelmoraPCMPakket;

// Encoder and decoder have states of their own. Nothing reports an error, and every input is
// allowed.
class ADPCMConverter {
 public:
  // The quantiser's step sizes by index.
  static constexpr std::array<unsigned short, 89> stepSizeTable{
      7,     8,     9,     10,    11,    12,    13,    14,    16,    17,    19,   21,    23,
      25,    28,    31,    34,    37,    41,    45,    50,    55,    60,    66,   73,    80,
      88,    97,    107,   118,   130,   143,   157,   173,   190,   209,   230,  253,   279,
      307,   337,   371,   408,   449,   494,   544,   598,   658,   724,   796,  876,   963,
      1060,  1166,  1282,  1411,  1552,  1707,  1878,  2066,  2272,  2499,  2749, 3024,  3327,
      3660,  4026,  4428,  4871,  5358,  5894,  6484,  7132,  7845,  8630,  9493, 10442, 11487,
      12635, 13899, 15289, 16818, 18500, 20350, 22385, 24623, 27086, 29794, 32767};
  // What a code adds to the index.
  static constexpr std::array<signed char, 16> indexTable{-1, -1, -1, -1, 2, 4, 6, 8,
                                                          -1, -1, -1, -1, 2, 4, 6, 8};

  // Encodes one sample as it is, without narrowing or scaling, to a code of 0 to 15.
  unsigned char ADPCM_Encode(short sample);
  // Decodes one code; of its bits the low four count.
  short ADPCM_Decode(unsigned char code);

  // Two codes, the earlier one first, to a byte with the earlier one in its low half, and back.
  // `nibbles` points at two elements. What the second has above its low four bits is cut off; the
  // first is or-ed in whole.
  unsigned char pakIn(unsigned char const* nibbles) const;
  void pakUit(unsigned char byte, unsigned char* nibbles) const;

  // The bits that encodeer scales away from the next sample on: 16 minus the width of the DAC,
  // modulo 32.
  void zetBitShift(unsigned long long schuif) { bitShift = schuif; }

  // Encodes the whole packet into the block of `doel`, which must have at least half of
  // bron.geefAantalSamples() bytes; its header fields stay as they are. The encoder goes on from
  // where the last packet left it.
  void encodeer(VelmoraPCMPakket const& bron, VelmoraADPCMPakket const& doel);

  // Where the encoder stands, and so what a decoder of the next packet has to start from: the
  // prediction, -32768 to 32767, and the index, 0 to 88.
  int geefEncVoorspelling() const { return encVoorspelling; }
  short geefEncIndex() const { return encIndex; }

  // Decodes the whole packet, from the start state in its header, into the block of `doel`, which
  // must have at least bron.geefAantalSamples() samples. The samples keep the scale that the
  // encoder worked in. A start index above 88 counts as 88.
  void decodeer(VelmoraADPCMPakket const& bron, VelmoraPCMPakket const& doel);

 private:
  short encIndex = 0;       // 0 to 88
  int encVoorspelling = 0;  // -32768 to 32767
  short decIndex = 0;       // 0 to 88
  int decVoorspelling = 0;  // -32768 to 32767
  unsigned long long bitShift = 0;
};
