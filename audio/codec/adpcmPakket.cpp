#include "audio/codec/adpcmPakket.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "audio/codec/serieleKop.h"
#include "numeriek/byteGereedschap.h"

namespace {

constexpr unsigned long long samplesPerByte = 2;
// Where the start state stands in the serial header.
constexpr std::size_t predictorLaag = 6;
constexpr std::size_t predictorHoog = 7;
constexpr std::size_t indexPlaats = 8;

}  // namespace

VelmoraADPCMPakket::VelmoraADPCMPakket() : sampFreq(0, 1) {}

VelmoraADPCMPakket::VelmoraADPCMPakket(unsigned long long grootte, Breuk const& freq)
    : VelmoraDataPakket(new unsigned char[grootte](), grootte, 1, true), sampFreq(freq) {}

VelmoraADPCMPakket::VelmoraADPCMPakket(VelmoraDataPakket<unsigned char> const& d, Breuk const& freq,
                                       short beginPredictor, unsigned char index)
    : VelmoraDataPakket(OverHetzelfdeBlok{}, d),
      sampFreq(freq),
      predictor(beginPredictor),
      beginIndex(index) {}

VelmoraADPCMPakket::VelmoraADPCMPakket(VelmoraADPCMPakket const& bron, unsigned long long begin,
                                       unsigned long long aantal)
    : VelmoraDataPakket(bron.geefData() + begin * bron.geefElementGrootte(), aantal, 1, false),
      sampFreq(bron.sampFreq),
      predictor(bron.predictor),
      beginIndex(bron.beginIndex) {}

VelmoraADPCMPakket::VelmoraADPCMPakket(unsigned char const* ruw)
    : VelmoraDataPakket(zonderConst(ruw + SerieeleOverhead), leesSerieelAantal(ruw), 1, false),
      sampFreq(MaakShort(ruw[5], ruw[4]), 1),
      predictor(MaakSignedShort(ruw[predictorHoog], ruw[predictorLaag])) {}

unsigned long long VelmoraADPCMPakket::geefAantalSamples() const {
  return geefAantalElementen() * samplesPerByte;
}

unsigned long long VelmoraADPCMPakket::serieelGeefAantalBytes() const {
  return geefAantalBytes() + SerieeleOverhead;
}

void VelmoraADPCMPakket::maakSerieel(VelmoraArray<unsigned char>& doel, bool metHeader) const {
  unsigned char* uit = doel.geefElementen();
  if (metHeader) {
    uit = schrijfSerieleKop(uit, geefAantalElementen(), sampFreq);
    auto const begin = static_cast<unsigned short>(predictor);
    *uit++ = LaagByte(begin);
    *uit++ = HoogByte(begin);
    *uit++ = beginIndex;
  }
  std::copy_n(bytes(), geefAantalBytes(), uit);
}

void VelmoraADPCMPakket::leesInSerieel(VelmoraArray<unsigned char> const& bron) {
  std::array<unsigned char, SerieeleOverhead> kop{};
  unsigned long long const kopBytes = std::min<unsigned long long>(bron.geefAantal(), kop.size());
  std::copy_n(bron.begin(), kopBytes, kop.begin());

  sampFreq = leesSerieleFreq(kop.data());
  unsigned short const hoog = kop[predictorHoog];
  predictor = static_cast<short>(LaagHalfWoord(MaakWoord(hoog, kop[predictorLaag])));
  beginIndex = kop[indexPlaats];
  unsigned long long const aantal =
      std::min<unsigned long long>(leesSerieelAantal(kop.data()), geefAantalBytes());
  unsigned long long const aanwezig = std::min(aantal, bron.geefAantal() - kopBytes);
  std::copy_n(bron.begin() + kopBytes, aanwezig, bytes());
  std::fill_n(bytes() + aanwezig, aantal - aanwezig, static_cast<unsigned char>(0));
}
