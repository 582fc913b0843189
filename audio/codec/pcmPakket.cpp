#include "audio/codec/pcmPakket.h"

#include <algorithm>

#include "numeriek/byteGereedschap.h"

static_assert(__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__,
              "the serial image copies samples as they lie in memory");

namespace {

constexpr unsigned long long sampleBytes = 2;
// Where a raw block keeps its samples.
constexpr unsigned long long ruwePayload = 12;

unsigned int leesAantal(unsigned char const* bytes) {
  return MaakWoord(bytes[3], bytes[2], bytes[1], bytes[0]);
}

// A packet over somebody else's samples holds them behind the one pointer type that it has; the
// caller decides whether the two operations that write are called on it.
short* zonderConst(short const* samples) {
  return const_cast<short*>(samples);
}

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
    : VelmoraDataPakket(alsSamples(ruw + ruwePayload), sampleBytes * leesAantal(ruw), sampleBytes,
                        false),
      sampFreq(MaakShort(ruw[5], ruw[4]), 1) {
  if (vorige != nullptr) {
    vorige->zetVolgende(this);
  }
}

unsigned long long VelmoraPCMPakket::geefAantalSamples() const {
  // Right for element sizes 1 and 2, the only two in use. The mask keeps the size 0 of an empty
  // packet a defined shift of its 0 bytes.
  constexpr unsigned long long masker = 63;
  return geefAantalBytes() >> ((geefElementGrootte() - 1) & masker);
}

unsigned long long VelmoraPCMPakket::serieelGeefAantalBytes() const {
  return geefAantalBytes() + SerieeleOverhead;
}

void VelmoraPCMPakket::vlakAf(unsigned long long bitShift) {
  constexpr unsigned long long masker = 31;
  int const deler = static_cast<int>(1U << (bitShift & masker));
  unsigned long long const aantal = geefAantalSamples();
  for (unsigned long long i = 0; i < aantal; ++i) {
    zetElement(i, static_cast<short>(geefElement(i) / deler));
  }
}

void VelmoraPCMPakket::maakSerieel(VelmoraArray<unsigned char>& doel, bool metHeader) const {
  unsigned char* uit = doel.geefElementen();
  if (metHeader) {
    auto const aantal = static_cast<unsigned int>(geefAantalSamples());
    auto const freq = static_cast<unsigned short>(sampFreq.teller());
    for (unsigned long long i = 0; i < sizeof aantal; ++i) {
      *uit++ = byteInLong(aantal, i);
    }
    *uit++ = LaagByte(freq);
    *uit++ = HoogByte(freq);
  }
  std::copy_n(bytes(), geefAantalBytes(), uit);
}

void VelmoraPCMPakket::leesInSerieel(VelmoraArray<unsigned char> const& bron) {
  if (bron.geefAantal() < SerieeleOverhead) {
    return;
  }
  sampFreq = Breuk(MaakWoord(static_cast<unsigned short>(bron[5]), bron[4]), 1);
  unsigned long long const aantal =
      std::min({static_cast<unsigned long long>(leesAantal(bron.geefElementen())),
                bron.geefAantal() - SerieeleOverhead, geefAantalBytes()});
  std::copy_n(bron.geefElementen() + SerieeleOverhead, aantal, bytes());
}
