#include "tests/steun/wavLezer.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace {

// A number of two or four bytes, low byte first.
int getal(Bytes const& bytes, std::size_t plaats, unsigned int aantal) {
  unsigned int waarde = 0;
  for (unsigned int i = 0; i < aantal; ++i) {
    waarde += static_cast<unsigned int>(bytes.at(plaats + i)) << (8 * i);
  }
  return static_cast<int>(waarde);
}

bool staatOp(Bytes const& bytes, std::size_t plaats, std::string_view tekst) {
  return bytes.size() >= plaats + tekst.size() &&
         std::equal(tekst.begin(), tekst.end(),
                    bytes.begin() + static_cast<std::ptrdiff_t>(plaats));
}

}  // namespace

std::optional<GelezenWav> ontleedWav(Bytes const& bytes) {
  constexpr std::size_t kop = 8;  // the name and the size of a chunk
  if (bytes.size() < kop + 4 || !staatOp(bytes, 0, "RIFF") || !staatOp(bytes, kop, "WAVE") ||
      static_cast<std::size_t>(getal(bytes, 4, 4)) + kop != bytes.size()) {
    return std::nullopt;
  }
  GelezenWav wav;
  wav.soort.bits = 0;
  std::size_t begin = kop + 4 + kop;
  while (begin <= bytes.size()) {
    auto const lengte = static_cast<std::size_t>(getal(bytes, begin - 4, 4));
    if (lengte > bytes.size() - begin) {
      return std::nullopt;
    }
    if (staatOp(bytes, begin - kop, "fmt ") && lengte >= 16) {
      wav.soort.formaatCode = getal(bytes, begin, 2);
      wav.soort.kanalen = getal(bytes, begin + 2, 2);
      wav.soort.rate = getal(bytes, begin + 4, 4);
      wav.soort.bits = getal(bytes, begin + 14, 2);
    } else if (staatOp(bytes, begin - kop, "data") && wav.soort.bits == 16 && lengte % 2 == 0) {
      wav.waarden.resize(lengte / 2);
      unsigned char const* plaats = bytes.data() + begin;
      for (int& waarde : wav.waarden) {
        waarde = plaats[0] | plaats[1] << 8;
        waarde -= waarde < 32768 ? 0 : 65536;
        plaats += 2;
      }
      return wav;
    }
    begin += lengte + lengte % 2 + kop;
  }
  return std::nullopt;
}
