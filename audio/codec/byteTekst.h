// The texts of bytes in generated arrays, each with a comma behind it: in lower-case hexadecimal
// without leading zeros, as "0x0," and "0xab,", or as signed decimal numbers, as "-128," and "7,".
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

// Eight bytes, so that one store prints a text: those behind `lengte` are overwritten by what
// comes next.
struct ByteTekst {
  std::array<char, 7> tekens;
  unsigned char lengte;

  constexpr std::string_view zicht() const { return {tekens.data(), lengte}; }
};

using ByteTeksten = std::array<ByteTekst, 256>;

// The longest of them: "0xff," and "-128,".
inline constexpr std::size_t langsteByteTekst = 5;

namespace byteTekst {

constexpr std::string_view cijfers = "0123456789abcdef";

constexpr void voegToe(ByteTekst& tekst, char teken) {
  tekst.tekens[tekst.lengte++] = teken;
}

// Without leading zeros.
constexpr void voegGetalToe(ByteTekst& tekst, std::size_t getal, std::size_t grondtal) {
  std::size_t deler = 1;
  while (getal / deler >= grondtal) {
    deler *= grondtal;
  }
  for (; deler > 0; deler /= grondtal) {
    voegToe(tekst, cijfers[getal / deler % grondtal]);
  }
}

constexpr ByteTekst maakHexadecimaal(std::size_t byte) {
  constexpr std::size_t zestien = 16;
  ByteTekst tekst{};
  voegToe(tekst, '0');
  voegToe(tekst, 'x');
  voegGetalToe(tekst, byte, zestien);
  voegToe(tekst, ',');
  return tekst;
}

// The byte as a signed one.
constexpr ByteTekst maakDecimaal(std::size_t byte) {
  constexpr std::size_t tien = 10;
  constexpr std::size_t eersteNegatieve = 128;
  constexpr std::size_t bytes = 256;
  ByteTekst tekst{};
  if (byte >= eersteNegatieve) {
    voegToe(tekst, '-');
  }
  voegGetalToe(tekst, byte >= eersteNegatieve ? bytes - byte : byte, tien);
  voegToe(tekst, ',');
  return tekst;
}

template <typename Maken>
constexpr ByteTeksten maakAlle(Maken maak) {
  ByteTeksten teksten{};
  for (std::size_t byte = 0; byte < teksten.size(); ++byte) {
    teksten[byte] = maak(byte);
  }
  return teksten;
}

}  // namespace byteTekst

// Worked out by the compiler: a formatter for each byte would take ten times as long as all the
// rest of an encoding.
inline constexpr ByteTeksten hexadecimaleBytes = byteTekst::maakAlle(byteTekst::maakHexadecimaal);
inline constexpr ByteTeksten decimaleBytes = byteTekst::maakAlle(byteTekst::maakDecimaal);
