#include "audio/codec/pcmPakket.h"

#include <algorithm>
#include <cstring>

#include "audio/codec/dacDeler.h"
#include "audio/codec/serieleKop.h"
#include "numeriek/byteGereedschap.h"

namespace {

constexpr unsigned long long sampleBytes = 2;
// Where the low byte of a sample lies in memory: byte i of the image is byte i ^ laagsteByte there.
constexpr unsigned long long laagsteByte = __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__ ? 1 : 0;
// Where a raw block keeps its samples.
constexpr unsigned long long ruwePayload = 12;

// The address may be odd: the samples are only ever copied from it byte by byte.
short* alsSamples(unsigned char const* bytes) {
  return reinterpret_cast<short*>(const_cast<unsigned char*>(bytes));
}

}  // namespace

VelmoraPCMPakket::VelmoraPCMPakket() : sampFreq(0, 1) {}

VelmoraPCMPakket::VelmoraPCMPakket(unsigned long long aantal, Breuk const& freq)
    : VelmoraDataPakket(new short[aantal](), sampleBytes* aantal, sampleBytes, true),
      sampFreq(freq) {}

VelmoraPCMPakket::VelmoraPCMPakket(short const* samples, unsigned long long aantal,
                                   Breuk const& freq)
    : VelmoraDataPakket(zonderConst(samples), sampleBytes * aantal, sampleBytes, false),
      sampFreq(freq) {}

VelmoraPCMPakket::VelmoraPCMPakket(unsigned char const* ruw, VelmoraPCMPakket* vorige)
    : VelmoraDataPakket(alsSamples(ruw + ruwePayload), sampleBytes * leesSerieelAantal(ruw),
                        sampleBytes, false),
      sampFreq(MaakShort(ruw[5], ruw[4]), 1) {
  if (vorige != nullptr) {
    vorige->zetVolgende(this);
  }
}

unsigned long long VelmoraPCMPakket::geefAantalSamples() const {
  return geefAantalElementen();
}

unsigned long long VelmoraPCMPakket::serieelGeefAantalBytes() const {
  return geefAantalBytes() + SerieeleOverhead;
}

void VelmoraPCMPakket::vlakAf(unsigned long long bitShift) {
  DacDeler const deler(bitShift);
  unsigned char* plaats = bytes();
  unsigned char const* const einde = plaats + geefAantalBytes();
  // Bytes, since the block may lie at an odd address.
  for (short sample = 0; plaats != einde; plaats += sizeof sample) {
    std::memcpy(&sample, plaats, sizeof sample);
    sample = static_cast<short>(deler.deel(sample));
    std::memcpy(plaats, &sample, sizeof sample);
  }
}

void VelmoraPCMPakket::maakSerieel(VelmoraArray<unsigned char>& doel, bool metHeader) const {
  unsigned char* uit = doel.geefElementen();
  if (metHeader) {
    uit = schrijfSerieleKop(uit, geefAantalSamples(), sampFreq);
  }
  for (unsigned long long i = 0; i < geefAantalBytes(); ++i) {
    uit[i] = bytes()[i ^ laagsteByte];
  }
}

void VelmoraPCMPakket::leesInSerieel(VelmoraArray<unsigned char> const& bron) {
  if (bron.geefAantal() < SerieeleOverhead) {
    return;
  }
  sampFreq = leesSerieleFreq(bron.geefElementen());
  unsigned long long const aantal =
      std::min({static_cast<unsigned long long>(leesSerieelAantal(bron.geefElementen())),
                bron.geefAantal() - SerieeleOverhead, geefAantalBytes()});
  for (unsigned long long i = 0; i < aantal; ++i) {
    bytes()[i ^ laagsteByte] = bron.geefElementen()[SerieeleOverhead + i];
  }
}
