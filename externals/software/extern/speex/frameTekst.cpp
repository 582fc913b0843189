#include "externals/software/extern/speex/frameTekst.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

constexpr std::size_t bytesPerRegel = 8;
constexpr int decimaal = 10;
constexpr int hexadecimaal = 16;

// Without the toolkit's formatter: a call to it for each number would cost as much as a tenth of
// the encoding.
void voegGetalToe(std::string& tekst, int getal, int basis) {
  // The longest is "-2147483648".
  std::array<char, 11> cijfers{};
  auto const einde = std::to_chars(cijfers.begin(), cijfers.end(), getal, basis);
  tekst.append(cijfers.begin(), einde.ptr);
}

}  // namespace

std::string frameTekst(unsigned long long nummer, char const* bytes, std::size_t aantal) {
  std::string tekst = "\t0x";
  // The size line, and a byte's "-128,".
  constexpr std::size_t kopTekens = 64;
  constexpr std::size_t byteTekens = 5;
  tekst.reserve(kopTekens + aantal * byteTekens + 2 * (aantal / bytesPerRegel));
  voegGetalToe(tekst, static_cast<int>(aantal), hexadecimaal);
  tekst += ",  /* Encoded Frame [";
  voegGetalToe(tekst, static_cast<int>(nummer), decimaal);
  tekst += "] Size */\n\t";

  std::size_t plaats = 0;
  std::for_each(bytes, bytes + aantal, [&](char byte) {
    voegGetalToe(tekst, static_cast<signed char>(byte), decimaal);
    tekst += ',';
    if (++plaats % bytesPerRegel == 0) {
      tekst += "\n\t";
    }
  });
  tekst += '\n';
  return tekst;
}
