#include "tests/audio/codec/adpcmHulp.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "audio/codec/pcmPakket.h"

namespace {

constexpr int hoogsteSample = 32767;
constexpr int laagsteSample = -32768;
constexpr double tweePi = 6.283185307179586;

// What of a signal fits in a byte with a sign.
std::vector<int> laagste8(std::vector<int> samples) {
  std::transform(samples.begin(), samples.end(), samples.begin(), [](int sample) {
    return sample < 0 ? -(-sample % 129) : sample % 128;  // -128 to 127
  });
  return samples;
}

}  // namespace

std::vector<int> alleWaarden() {
  // A shift register whose 65535 states go round, and the 0 that it never has.
  std::vector<int> samples{0};
  unsigned int register16 = 1;
  do {
    samples.push_back(static_cast<short>(register16));
    register16 ^= (register16 << 7U) & 0xFFFFU;
    register16 ^= register16 >> 9U;
    register16 ^= (register16 << 8U) & 0xFFFFU;
  } while (register16 != 1);
  return samples;
}

std::vector<int> sinus(std::size_t aantal, double periode, int top) {
  std::vector<int> samples;
  for (std::size_t i = 0; i < aantal; ++i) {
    samples.push_back(
        static_cast<int>(std::lround(top * std::sin(tweePi * static_cast<double>(i) / periode))));
  }
  return samples;
}

std::vector<int> blokgolf(std::size_t aantal, std::size_t lengte, int laag, int hoog) {
  std::vector<int> samples;
  for (std::size_t i = 0; i < aantal; ++i) {
    samples.push_back(i / lengte % 2 == 0 ? laag : hoog);
  }
  return samples;
}

std::vector<Signaal> signalen() {
  std::vector<Signaal> rij{
      {"noise", alleWaarden()},
      {"slow sine", sinus(6000, 1234.5, hoogsteSample)},
      {"fast sine", sinus(6000, 7.3, 20000)},
      {"soft sine", sinus(6000, 51.7, 9)},
      {"steps", blokgolf(6000, 97, -11111, 4321)},
      {"extremes in turn", blokgolf(6000, 1, laagsteSample, hoogsteSample)},
      {"extremes for long", blokgolf(6000, 300, laagsteSample, hoogsteSample)},
      {"silence", std::vector<int>(6000, 0)},
  };
  for (Signaal& signaal : rij) {
    signaal.samples.front() = 0;
  }
  return rij;
}

std::vector<Signaal> smalleSignalen() {
  std::vector<Signaal> rij{
      {"noise", laagste8(alleWaarden())},
      {"slow sine", sinus(6000, 1234.5, 127)},
      {"fast sine", sinus(6000, 7.3, 100)},
      {"steps", blokgolf(6000, 97, -77, 31)},
      {"extremes in turn", blokgolf(6000, 1, -128, 127)},
      {"extremes for long", blokgolf(6000, 300, -128, 127)},
      {"silence", std::vector<int>(6000, 0)},
  };
  for (Signaal& signaal : rij) {
    signaal.samples.front() = 0;
  }
  return rij;
}

Bytes codes(ADPCMConverter& converter, std::vector<int> const& samples) {
  std::vector<short> blok(samples.size());
  std::transform(samples.begin(), samples.end(), blok.begin(),
                 [](int sample) { return static_cast<short>(sample); });
  VelmoraPCMPakket const bron(blok.data(), blok.size(), Breuk(8000, 1));
  VelmoraADPCMPakket const doel(blok.size() / 2, Breuk(8000, 1));
  converter.encodeer(bron, doel);
  return inhoud(doel);
}

Bytes losseCodes(ADPCMConverter& converter, std::vector<int> const& samples) {
  Bytes bytes;
  for (std::size_t i = 1; i < samples.size(); i += 2) {
    unsigned char const eerste = converter.ADPCM_Encode(static_cast<short>(samples[i - 1]));
    unsigned char const tweede = converter.ADPCM_Encode(static_cast<short>(samples[i]));
    bytes.push_back(static_cast<unsigned char>(16 * tweede + eerste));
  }
  return bytes;
}

std::vector<int> gedecodeerd(ADPCMConverter& converter, Bytes const& bytes, int predictor,
                             int index) {
  VelmoraADPCMPakket const blok(bytes.size(), Breuk(8000, 1));
  vul(blok, bytes);
  VelmoraADPCMPakket const bron(blok, Breuk(8000, 1), static_cast<short>(predictor),
                                static_cast<unsigned char>(index));
  VelmoraPCMPakket const doel(2 * bytes.size(), Breuk(8000, 1));
  converter.decodeer(bron, doel);
  return {doel.geefData(), doel.geefData() + doel.geefAantalSamples()};
}

std::vector<int> losseSamples(ADPCMConverter& converter, Bytes const& bytes) {
  std::vector<int> samples;
  for (unsigned char const byte : bytes) {
    samples.push_back(converter.ADPCM_Decode(byte % 16));
    samples.push_back(converter.ADPCM_Decode(byte / 16));
  }
  return samples;
}

Bytes inhoud(VelmoraADPCMPakket const& pakket) {
  return {pakket.geefData(), pakket.geefData() + pakket.geefAantalBytes()};
}

void vul(VelmoraADPCMPakket const& pakket, Bytes const& bytes) {
  std::copy(bytes.begin(), bytes.end(), pakket.geefData());
}
