#include "audio/weergave/wavSchrijver.h"

#include <wx/stream.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>

#include "numeriek/byteGereedschap.h"

namespace {

constexpr std::uint32_t kopBytes = 44;
constexpr unsigned int sampleBytes = 2;

// Low byte first.
void voegToe(std::string& bytes, std::uint32_t getal, unsigned long long aantal) {
  for (unsigned long long i = 0; i < aantal; ++i) {
    bytes += static_cast<char>(byteInLong(getal, i));
  }
}

std::string kop(DoelGeluid const& geluid) {
  constexpr std::uint32_t riffKop = 8;
  constexpr std::uint32_t fmtBytes = 16;
  constexpr std::uint32_t pcm = 1;
  auto const data = static_cast<std::uint32_t>(geluid.samples.size() * sampleBytes);
  std::uint32_t const frame = geluid.kanalen * sampleBytes;
  std::string bytes = "RIFF";
  voegToe(bytes, kopBytes - riffKop + data, 4);
  bytes += "WAVEfmt ";
  voegToe(bytes, fmtBytes, 4);
  voegToe(bytes, pcm, 2);
  voegToe(bytes, geluid.kanalen, 2);
  voegToe(bytes, geluid.rate, 4);
  voegToe(bytes, geluid.rate * frame, 4);
  voegToe(bytes, frame, 2);
  voegToe(bytes, sampleBytes * 8, 2);
  bytes += "data";
  voegToe(bytes, data, 4);
  return bytes;
}

}  // namespace

bool pastInWav(DoelGeluid const& geluid) {
  return geluid.samples.size() <=
         (std::numeric_limits<std::uint32_t>::max() - kopBytes) / sampleBytes;
}

void schrijfWav(DoelGeluid const& geluid, wxOutputStream& uit) {
  constexpr std::ptrdiff_t blokSamples = 32768;
  std::string bytes = kop(geluid);
  auto sample = geluid.samples.begin();
  do {
    auto const einde = sample + std::min(blokSamples, geluid.samples.end() - sample);
    for (; sample != einde; ++sample) {
      voegToe(bytes, static_cast<std::uint16_t>(*sample), sampleBytes);
    }
    uit.Write(bytes.data(), bytes.size());
    bytes.clear();
  } while (sample != geluid.samples.end());
}
