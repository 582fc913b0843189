#include "tests/steun/wavMaker.h"

#include <filesystem>
#include <fstream>

namespace {

// Appends the low `bytes` bytes of a number, lowest first.
void voegGetalToe(std::string& doel, std::uint32_t waarde, int bytes) {
  constexpr unsigned bitsPerByte = 8;
  constexpr std::uint32_t masker = 0xFF;
  for (int i = 0; i < bytes; ++i) {
    doel += static_cast<char>(waarde & masker);
    waarde >>= bitsPerByte;
  }
}

}  // namespace

std::string wavBytes(WavSoort const& soort, std::string const& data) {
  constexpr std::uint32_t fmtBytes = 16;
  constexpr std::uint32_t kopBytes = 36;
  auto const kanalen = static_cast<std::uint32_t>(soort.kanalen);
  auto const rate = static_cast<std::uint32_t>(soort.rate);
  auto const bits = static_cast<std::uint32_t>(soort.bits);
  auto const lengte = static_cast<std::uint32_t>(data.size());
  std::uint32_t const frameBytes = kanalen * bits / 8;

  std::string wav = "RIFF";
  voegGetalToe(wav, kopBytes + lengte, 4);
  wav += "WAVEfmt ";
  voegGetalToe(wav, fmtBytes, 4);
  voegGetalToe(wav, static_cast<std::uint32_t>(soort.formaatCode), 2);
  voegGetalToe(wav, kanalen, 2);
  voegGetalToe(wav, rate, 4);
  voegGetalToe(wav, rate * frameBytes, 4);
  voegGetalToe(wav, frameBytes, 2);
  voegGetalToe(wav, bits, 2);
  wav += "data";
  voegGetalToe(wav, lengte, 4);
  return wav + data;
}

std::string wavBytes(WavSoort const& soort, std::vector<int> const& waarden) {
  constexpr int midden = 128;
  std::string data;
  for (int const waarde : waarden) {
    int const opgeslagen = soort.bits == 8 ? waarde + midden : waarde;  // 8 bits stand unsigned
    voegGetalToe(data, static_cast<std::uint32_t>(opgeslagen), soort.bits / 8);
  }
  return wavBytes(soort, data);
}

void schrijfWav(std::string const& pad, std::vector<int> const& waarden, WavSoort const& soort) {
  maakBestand(pad, wavBytes(soort, waarden));
}

void maakWav(std::string const& pad, std::vector<std::int16_t> const& samples,
             WavSoort const& soort) {
  schrijfWav(pad, {samples.begin(), samples.end()}, soort);
}

void maakBestand(std::string const& pad, std::string const& inhoud) {
  std::ofstream(std::filesystem::u8path(pad), std::ios::binary) << inhoud;
}

std::vector<std::int16_t> proefSamples(std::size_t aantal) {
  // A linear congruential run: full range, no pattern of a period that matters here.
  std::vector<std::int16_t> samples(aantal);
  std::uint32_t stand = 1;
  for (std::int16_t& sample : samples) {
    stand = stand * 1664525U + 1013904223U;
    sample = static_cast<std::int16_t>(stand >> 16U);
  }
  return samples;
}
