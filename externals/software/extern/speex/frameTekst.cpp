#include "externals/software/extern/speex/frameTekst.h"

#include <array>
#include <charconv>
#include <string>

#include "audio/codec/rijSchrijver.h"

namespace {

constexpr int decimaal = 10;
constexpr int hexadecimaal = 16;

// Without the toolkit's formatter: a call to it for each frame would show beside the encoding.
void voegGetalToe(std::string& tekst, int getal, int basis) {
  // The longest is "-2147483648".
  std::array<char, 11> cijfers{};
  auto const einde = std::to_chars(cijfers.begin(), cijfers.end(), getal, basis);
  tekst.append(cijfers.begin(), einde.ptr);
}

}  // namespace

void schrijfFrame(RijSchrijver& rijen, unsigned long long nummer, unsigned char const* bytes,
                  std::size_t aantal) {
  std::string regel = "\t0x";
  voegGetalToe(regel, static_cast<int>(aantal), hexadecimaal);
  regel += ",  /* Encoded Frame [";
  voegGetalToe(regel, static_cast<int>(nummer), decimaal);
  regel += "] Size */\n\t";
  rijen.schrijfTekst(regel);
  rijen.schrijfBytes(bytes, aantal);
  rijen.breekVolleRij();
  rijen.schrijfTekst("\n");
}
