// The texts of bytes in generated arrays: lower-case hexadecimal without leading zeros, with a
// comma behind it. "0x0," for 0, "0xab," for 171.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

struct ByteTekst {
  std::array<wchar_t, 5> tekens;  // at most "0xff,"
  std::size_t lengte;

  constexpr std::wstring_view zicht() const { return {tekens.data(), lengte}; }
};

constexpr ByteTekst maakByteTekst(std::size_t waarde) {
  constexpr std::wstring_view cijfers = L"0123456789abcdef";
  constexpr std::size_t basis = 16;
  if (waarde < basis) {
    return {{L'0', L'x', cijfers[waarde], L',', L'\0'}, 4};
  }
  return {{L'0', L'x', cijfers[waarde / basis], cijfers[waarde % basis], L','}, 5};
}

constexpr std::array<ByteTekst, 256> maakByteTeksten() {
  std::array<ByteTekst, 256> teksten{};
  for (std::size_t waarde = 0; waarde < teksten.size(); ++waarde) {
    teksten[waarde] = maakByteTekst(waarde);
  }
  return teksten;
}

// Every byte's text, worked out by the compiler: a call to a formatter for each byte would take ten
// times as long as all the rest of an encoding.
inline constexpr std::array<ByteTekst, 256> byteTeksten = maakByteTeksten();

// An array has this many bytes on a line.
constexpr std::size_t bytesPerRij = 8;
