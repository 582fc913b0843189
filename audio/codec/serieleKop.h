// The six bytes that the serial images of all packets begin with, little-endian:
//
//   byte  0     1     2     3     4     5
//       +-----+-----+-----+-----+-----+-----+
//       |         count         | frequency |
//       |    unsigned 32-bit    | 16-bit Hz |
//       +-----+-----+-----+-----+-----+-----+
//
// docs/manual.md defines the whole layouts ("The arrays, byte by byte").
#pragma once

#include "numeriek/breuk.h"
#include "numeriek/byteGereedschap.h"

// Writes the six bytes, and returns the place behind them. The count is cut to 32 bits, the
// frequency's numerator to 16; its denominator is not stored.
inline unsigned char* schrijfSerieleKop(unsigned char* uit, unsigned long long aantal,
                                        Breuk const& freq) {
  auto const woord = static_cast<unsigned int>(aantal);
  auto const hertz = static_cast<unsigned short>(freq.teller());
  for (unsigned long long i = 0; i < sizeof woord; ++i) {
    *uit++ = byteInLong(woord, i);
  }
  *uit++ = LaagByte(hertz);
  *uit++ = HoogByte(hertz);
  return uit;
}

// The count of the image at `beeld`, of which it reads the first four bytes.
constexpr unsigned int leesSerieelAantal(unsigned char const* beeld) {
  return MaakWoord(beeld[3], beeld[2], beeld[1], beeld[0]);
}

// The frequency of the image at `beeld`, of which it reads the first six bytes, as a packet that is
// read back has it: on purpose with the high byte at bit 16 and not at bit 8, so that 8000 Hz
// becomes 2031680.
inline Breuk leesSerieleFreq(unsigned char const* beeld) {
  return {MaakWoord(static_cast<unsigned short>(beeld[5]), beeld[4]), 1};
}
