// The PCM packet: its four constructors, its counts, and the scaling to the width of a DAC.
#include "audio/codec/pcmPakket.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <memory>
#include <new>
#include <numeric>
#include <type_traits>
#include <vector>

#include "tests/steun/bytes.h"

namespace {

using Samples = std::vector<short>;

static_assert(VelmoraPCMPakket::SerieeleOverhead == 6);
static_assert(
    std::is_same_v<decltype(VelmoraPCMPakket::SerieeleOverhead), unsigned long long const>);
static_assert(!std::is_polymorphic_v<VelmoraPCMPakket>);

Samples vlakAfgevlakt(Samples samples, unsigned long long bitShift) {
  VelmoraPCMPakket pakket(samples.data(), samples.size(), Breuk(8000, 1));
  pakket.vlakAf(bitShift);
  return samples;
}

// A raw block: count, frequency, six bytes that nobody reads, samples as they lie in memory.
Bytes ruwBlok(unsigned int aantal, unsigned int freq, std::vector<int> const& samples) {
  Bytes ruw = laagEerst(aantal, 4);
  for (unsigned char const b : laagEerst(freq, 2)) {
    ruw.push_back(b);
  }
  ruw.insert(ruw.end(), 6, 0xEE);
  for (int const sample : samples) {
    auto const waarde = static_cast<short>(sample);
    std::array<unsigned char, sizeof waarde> bytes{};
    std::memcpy(bytes.data(), &waarde, sizeof waarde);
    ruw.insert(ruw.end(), bytes.begin(), bytes.end());
  }
  return ruw;
}

TEST(PcmPakket, zonderArgumentenElementgrootteNulEnNulSamples) {
  VelmoraPCMPakket pakket;
  EXPECT_EQ(pakket.geefData(), nullptr);
  EXPECT_EQ(pakket.geefAantalBytes(), 0U);
  EXPECT_EQ(pakket.geefElementGrootte(), 0U);
  EXPECT_FALSE(pakket.isEigenaar());
  EXPECT_EQ(pakket.geefSampFreq().teller(), 0);
  EXPECT_EQ(pakket.geefSampFreq().noemer(), 1);
  EXPECT_EQ(pakket.geefVolgende(), nullptr);
  EXPECT_EQ(pakket.geefAantalSamples(), 0U);
  EXPECT_EQ(pakket.serieelGeefAantalBytes(), 6U);
}

TEST(PcmPakket, nieuwBlokIsVanHetPakketEnStaatOpNul) {
  // Memory that was written to goes back first, so that zeros are not there by chance.
  {
    VelmoraPCMPakket vuil(100, Breuk(1, 1));
    for (unsigned long long i = 0; i < 100; ++i) {
      vuil.zetElement(i, 0x5A5A);
    }
  }
  VelmoraPCMPakket pakket(100, Breuk(44100, 3));
  ASSERT_NE(pakket.geefData(), nullptr);
  EXPECT_EQ(pakket.geefAantalBytes(), 200U);
  EXPECT_EQ(pakket.geefElementGrootte(), 2U);
  EXPECT_TRUE(pakket.isEigenaar());
  EXPECT_EQ(pakket.geefSampFreq().teller(), 44100);
  EXPECT_EQ(pakket.geefSampFreq().noemer(), 3);
  EXPECT_EQ(pakket.geefVolgende(), nullptr);
  EXPECT_EQ(pakket.geefAantalSamples(), 100U);
  EXPECT_EQ(Samples(pakket.geefData(), pakket.geefData() + 100), Samples(100, 0));
}

TEST(PcmPakket, overSamplesVanDeAanroeper) {
  std::array<short, 3> const samples{1, -2, 3};
  VelmoraPCMPakket const pakket(samples.data(), samples.size(), Breuk(8000, 1));
  EXPECT_EQ(pakket.geefData(), samples.data());
  EXPECT_EQ(pakket.geefAantalBytes(), 6U);
  EXPECT_EQ(pakket.geefElementGrootte(), 2U);
  EXPECT_FALSE(pakket.isEigenaar());
  EXPECT_EQ(pakket.geefSampFreq().teller(), 8000);
  EXPECT_EQ(pakket.geefVolgende(), nullptr);
  EXPECT_EQ(pakket.geefAantalSamples(), 3U);
  EXPECT_EQ(pakket.geefElement(1), -2);
}

TEST(PcmPakket, overEenRuwBlokMetDeSamplesVanafByteTwaalf) {
  Bytes const ruw = ruwBlok(3, 40000, {258, -1, -32768});
  VelmoraPCMPakket const pakket(ruw.data(), nullptr);
  EXPECT_EQ(static_cast<void const*>(pakket.geefData()), ruw.data() + 12);
  EXPECT_EQ(pakket.geefAantalBytes(), 6U);
  EXPECT_EQ(pakket.geefElementGrootte(), 2U);
  EXPECT_FALSE(pakket.isEigenaar());
  EXPECT_EQ(pakket.geefSampFreq().teller(), 40000);
  EXPECT_EQ(pakket.geefSampFreq().noemer(), 1);
  EXPECT_EQ(pakket.geefVolgende(), nullptr);
  EXPECT_EQ(pakket.geefElement(0), 258);
  EXPECT_EQ(pakket.geefElement(1), -1);
  EXPECT_EQ(pakket.geefElement(2), -32768);
}

TEST(PcmPakket, ruwBlokMagOpEenOnevenAdresLiggen) {
  Bytes blok{0};
  Bytes const ruw = ruwBlok(2, 8000, {-256, 511});
  blok.insert(blok.end(), ruw.begin(), ruw.end());
  VelmoraPCMPakket pakket(blok.data() + 1, nullptr);
  pakket.vlakAf(8);
  EXPECT_EQ(pakket.geefElement(0), -1);
  EXPECT_EQ(pakket.geefElement(1), 1);
  VelmoraArray<unsigned char> doel(10);
  pakket.maakSerieel(doel, true);
  EXPECT_EQ(Bytes(doel.begin(), doel.end()), (Bytes{2, 0, 0, 0, 0x40, 0x1F, 0xFF, 0xFF, 1, 0}));
}

TEST(PcmPakket, tellingVanEenRuwBlokLooptNietOver) {
  Bytes const ruw = ruwBlok(0xFFFFFFFFU, 0xFFFF, {});
  VelmoraPCMPakket const pakket(ruw.data(), nullptr);
  EXPECT_EQ(pakket.geefAantalBytes(), 8589934590ULL);
  EXPECT_EQ(pakket.geefAantalSamples(), 4294967295ULL);
  EXPECT_EQ(pakket.serieelGeefAantalBytes(), 8589934596ULL);
  EXPECT_EQ(pakket.geefSampFreq().teller(), 65535);
}

TEST(PcmPakket, ruweBlokkenVormenEenKeten) {
  Bytes const ruw = ruwBlok(1, 8000, {1});
  VelmoraPCMPakket eerste(ruw.data(), nullptr);
  VelmoraPCMPakket tweede(ruw.data(), &eerste);
  VelmoraPCMPakket const derde(ruw.data(), &tweede);
  EXPECT_EQ(eerste.geefVolgende(), &tweede);
  EXPECT_EQ(tweede.geefVolgende(), &derde);
  EXPECT_EQ(derde.geefVolgende(), nullptr);
}

TEST(PcmPakket, serieleGrootteTeltAltijdZesVoorDeHeader) {
  EXPECT_EQ(VelmoraPCMPakket(3, Breuk(8000, 1)).serieelGeefAantalBytes(), 12U);
  EXPECT_EQ(VelmoraPCMPakket(0, Breuk(8000, 1)).serieelGeefAantalBytes(), 6U);
}

TEST(PcmPakketVlakAf, nulVerandertNiets) {
  Samples const samples{-32768, -255, -1, 0, 1, 255, 32767};
  EXPECT_EQ(vlakAfgevlakt(samples, 0), samples);
}

TEST(PcmPakketVlakAf, achtBitsDeeltAfgekaptNaarNul) {
  EXPECT_EQ(vlakAfgevlakt({-32768, -257, -256, -255, -1, 0, 1, 255, 256, 511, 32767}, 8),
            (Samples{-128, -1, -1, 0, 0, 0, 0, 0, 1, 1, 127}));
}

TEST(PcmPakketVlakAf, tienBitsDeeltDoorVierenzestig) {
  EXPECT_EQ(vlakAfgevlakt({-32768, -64, -63, 63, 64, 32767}, 6), (Samples{-512, -1, 0, 0, 1, 511}));
}

TEST(PcmPakketVlakAf, twaalfBitsDeeltDoorZestien) {
  EXPECT_EQ(vlakAfgevlakt({-32768, -16, -15, 15, 16, 32767}, 4),
            (Samples{-2048, -1, 0, 0, 1, 2047}));
}

TEST(PcmPakketVlakAf, schuifTeltModuloTweeendertig) {
  Samples const samples{-32768, -256, 1, 32767};
  EXPECT_EQ(vlakAfgevlakt(samples, 32), samples);
  EXPECT_EQ(vlakAfgevlakt(samples, 40), (Samples{-128, -1, 0, 127}));
  EXPECT_EQ(vlakAfgevlakt(samples, 1ULL << 40U), samples);
  EXPECT_EQ(vlakAfgevlakt(samples, 15), (Samples{-1, 0, 0, 0}));
  EXPECT_EQ(vlakAfgevlakt(samples, 30), Samples(4, 0));
}

TEST(PcmPakketVlakAf, eenendertigDeeltDoorHetLaagsteGetal) {
  EXPECT_EQ(vlakAfgevlakt({-32768, -1, 1, 32767}, 31), Samples(4, 0));
}

TEST(PcmPakketVlakAf, elkeSampleBijElkeSchuifAlsEenDeling) {
  Samples alle(65536);
  std::iota(alle.begin(), alle.end(), std::numeric_limits<short>::min());
  for (unsigned long long schuif = 0; schuif < 33; ++schuif) {
    // In a type that holds every divisor.
    long long const deler = 1LL << (schuif % 32);
    Samples verwacht(alle.size());
    std::transform(alle.begin(), alle.end(), verwacht.begin(),
                   [deler](short sample) { return static_cast<short>(sample / deler); });
    EXPECT_EQ(vlakAfgevlakt(alle, schuif), verwacht) << schuif;
  }
}

TEST(PcmPakketVlakAf, leegPakketBlijftZoalsHetIs) {
  VelmoraPCMPakket zonderBlok;
  zonderBlok.vlakAf(8);
  EXPECT_EQ(zonderBlok.geefData(), nullptr);

  std::array<short, 1> samples{-256};
  VelmoraPCMPakket zonderSamples(samples.data(), 0, Breuk(8000, 1));
  zonderSamples.vlakAf(8);
  EXPECT_EQ(samples[0], -256);
}

TEST(PcmPakketVlakAf, schrijftNietVoorbijHetPakket) {
  Samples samples{256, 256, 256};
  VelmoraPCMPakket pakket(samples.data(), 2, Breuk(8000, 1));
  pakket.vlakAf(8);
  EXPECT_EQ(samples, (Samples{1, 1, 256}));
}

}  // namespace
