// Byte tools: taking words apart into bytes and putting bytes together into words, for the serial
// images of packets. All are by value and do not depend on the byte order of the machine: `hoog` is
// always the part with the higher weight.
//
// A byte has 8 bits, a short 16 ("half word") and a word 32. Every argument is allowed; nothing
// here can fail.
#pragma once

#include <climits>

static_assert(CHAR_BIT == 8 && sizeof(short) == 2 && sizeof(int) == 4,
              "the byte tools count on shorts of 16 and words of 32 bits");

// Bits 16 to 31 of w.
constexpr unsigned short HoogHalfWoord(unsigned int w) {
  return static_cast<unsigned short>(w >> 16U);
}

// Bits 0 to 15 of w.
constexpr unsigned short LaagHalfWoord(unsigned int w) {
  return static_cast<unsigned short>(w & 0xFFFFU);
}

// Bits 8 to 15 of w.
constexpr unsigned char HoogByte(unsigned short w) {
  return static_cast<unsigned char>((w >> 8U) & 0xFFU);
}

// Bits 0 to 7 of w.
constexpr unsigned char LaagByte(unsigned short w) {
  return static_cast<unsigned char>(w & 0xFFU);
}

// Byte number i of w, number 0 being the lowest. The shift count is taken modulo the 32 bits of a
// word, so the numbers go round: 4 is byte 0 again.
constexpr unsigned char byteInLong(unsigned int w, unsigned long long i) {
  return static_cast<unsigned char>((w >> ((8U * i) % 32U)) & 0xFFU);
}

// hoog * 256 + laag.
constexpr unsigned short MaakShort(unsigned char hoog, unsigned char laag) {
  return static_cast<unsigned short>((static_cast<unsigned int>(hoog) << 8U) | laag);
}

// The bits of MaakShort in two's complement: from -32768 to 32767.
constexpr short MaakSignedShort(unsigned char hoog, unsigned char laag) {
  return static_cast<short>(MaakShort(hoog, laag));
}

// hoog * 65536 + laag. Beside the four-byte function of this name the number of arguments decides,
// so two single bytes also land on bits 16 and 0.
constexpr unsigned int MaakWoord(unsigned short hoog, unsigned short laag) {
  return (static_cast<unsigned int>(hoog) << 16U) | laag;
}

// Four bytes to a word, from the highest (bits 24 to 31) to the lowest (bits 0 to 7).
constexpr unsigned int MaakWoord(unsigned char byte3, unsigned char byte2, unsigned char byte1,
                                 unsigned char byte0) {
  return MaakWoord(MaakShort(byte3, byte2), MaakShort(byte1, byte0));
}

// The bits of the four-byte MaakWoord in two's complement.
constexpr int MaakSignedWoord(unsigned char byte3, unsigned char byte2, unsigned char byte1,
                              unsigned char byte0) {
  return static_cast<int>(MaakWoord(byte3, byte2, byte1, byte0));
}
