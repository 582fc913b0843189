// The serial image of a PCM packet: written byte for byte, and read back with the deviations that
// its readers count on, within the bounds of array and packet.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "audio/codec/pcmPakket.h"
#include "tests/steun/bytes.h"

namespace {

using Samples = std::vector<short>;

Bytes serieel(Samples const& samples, Breuk const& freq, bool metHeader,
              unsigned char vulling = 0xA5) {
  VelmoraPCMPakket const pakket(samples.data(), samples.size(), freq);
  VelmoraArray<unsigned char> doel(pakket.serieelGeefAantalBytes());
  std::fill_n(doel.geefElementen(), doel.geefAantal(), vulling);
  pakket.maakSerieel(doel, metHeader);
  return {doel.begin(), doel.end()};
}

// What a packet over `blok` holds after reading the image, with its frequency.
struct Gelezen {
  Samples samples;
  long long teller;
  long long noemer;
  unsigned long long aantalBytes;
  unsigned long long elementGrootte;
};

Gelezen lees(Bytes bron, Samples blok) {
  VelmoraPCMPakket pakket(blok.data(), blok.size(), Breuk(123, 4));
  // An array of exactly this size, so that a sanitizer sees every byte read beyond it.
  VelmoraArray<unsigned char> array(bron.size());
  std::copy(bron.begin(), bron.end(), array.geefElementen());
  pakket.leesInSerieel(array);
  return {blok, pakket.geefSampFreq().teller(), pakket.geefSampFreq().noemer(),
          pakket.geefAantalBytes(), pakket.geefElementGrootte()};
}

TEST(PcmPakketSerieel, metHeaderStaatElkeByteOpZijnPlaats) {
  EXPECT_EQ(serieel({1, -1}, Breuk(8000, 1), true),
            (Bytes{2, 0, 0, 0, 0x40, 0x1F, 0x01, 0x00, 0xFF, 0xFF}));
  EXPECT_EQ(serieel({0x1234, -32768, 32767}, Breuk(44100, 1), true),
            (Bytes{3, 0, 0, 0, 0x44, 0xAC, 0x34, 0x12, 0x00, 0x80, 0xFF, 0x7F}));
}

TEST(PcmPakketSerieel, tellingGaatLaagsteByteEerst) {
  Bytes const beeld = serieel(Samples(66051, 0), Breuk(8000, 1), true);
  EXPECT_EQ(Bytes(beeld.begin(), beeld.begin() + 4), (Bytes{3, 2, 1, 0}));
  EXPECT_EQ(beeld.size(), 66051U * 2 + 6);
}

TEST(PcmPakketSerieel, zonderHeaderBlijvenDeLaatsteZesBytesOngeschreven) {
  EXPECT_EQ(serieel({1, -1, 258}, Breuk(8000, 1), false, 0xA5),
            (Bytes{1, 0, 0xFF, 0xFF, 2, 1, 0xA5, 0xA5, 0xA5, 0xA5, 0xA5, 0xA5}));
}

TEST(PcmPakketSerieel, frequentieVanaf65536VerliestHaarHogeBits) {
  EXPECT_EQ(serieel({}, Breuk(65535, 1), true), (Bytes{0, 0, 0, 0, 0xFF, 0xFF}));
  EXPECT_EQ(serieel({}, Breuk(65536, 1), true), (Bytes{0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(serieel({}, Breuk(96000, 1), true), (Bytes{0, 0, 0, 0, 0x00, 0x77}));
  EXPECT_EQ(serieel({}, Breuk(-1, 1), true), (Bytes{0, 0, 0, 0, 0xFF, 0xFF}));
}

TEST(PcmPakketSerieel, noemerVanDeFrequentieWordtNietBewaard) {
  EXPECT_EQ(serieel({7}, Breuk(8000, 3), true), serieel({7}, Breuk(8000, 1), true));
}

TEST(PcmPakketSerieel, leegPakketIsAlleenDeHeader) {
  VelmoraPCMPakket const leeg;
  VelmoraArray<unsigned char> doel(6);
  std::fill_n(doel.geefElementen(), 6, static_cast<unsigned char>(0xA5));
  leeg.maakSerieel(doel, false);
  EXPECT_EQ(Bytes(doel.begin(), doel.end()), Bytes(6, 0xA5));
  leeg.maakSerieel(doel, true);
  EXPECT_EQ(Bytes(doel.begin(), doel.end()), Bytes(6, 0));
}

TEST(PcmPakketSerieel, schrijftNietVoorbijHetBeeld) {
  Samples const samples{1, 2};
  VelmoraPCMPakket const pakket(samples.data(), samples.size(), Breuk(8000, 1));
  VelmoraArray<unsigned char> doel(12);
  std::fill_n(doel.geefElementen(), 12, static_cast<unsigned char>(0xA5));
  pakket.maakSerieel(doel, true);
  EXPECT_EQ(Bytes(doel.begin(), doel.end()),
            (Bytes{2, 0, 0, 0, 0x40, 0x1F, 1, 0, 2, 0, 0xA5, 0xA5}));
}

TEST(PcmPakketLeesIn, achtduizendHertzKomtTerugAls2031680) {
  Gelezen const gelezen = lees(serieel({1, 2}, Breuk(8000, 1), true), {0, 0});
  EXPECT_EQ(gelezen.teller, 2031680);
  EXPECT_EQ(gelezen.noemer, 1);
}

TEST(PcmPakketLeesIn, hoogsteByteVanDeFrequentieLandtOpBitZestien) {
  EXPECT_EQ(lees({0, 0, 0, 0, 0xFF, 0x00}, {}).teller, 255);
  EXPECT_EQ(lees({0, 0, 0, 0, 0x00, 0xFF}, {}).teller, 16711680);
  EXPECT_EQ(lees({0, 0, 0, 0, 0xFF, 0xFF}, {}).teller, 16711935);
}

TEST(PcmPakketLeesIn, tellingVanSamplesGeldtAlsTellingVanBytes) {
  Gelezen const gelezen = lees(serieel({11, 12, 13, 14}, Breuk(8000, 1), true), {-1, -1, -1, -1});
  EXPECT_EQ(gelezen.samples, (Samples{11, 12, -1, -1}));
}

TEST(PcmPakketLeesIn, onevenTellingEindigtMiddenInEenSample) {
  Gelezen const gelezen = lees(serieel({0x0102, 0x0304, 0x0506}, Breuk(8000, 1), true), {0, 0, 0});
  EXPECT_EQ(gelezen.samples, (Samples{0x0102, 0x0004, 0}));
}

TEST(PcmPakketLeesIn, grootteVanHetPakketBlijft) {
  Gelezen const gelezen = lees(serieel({1, 2}, Breuk(8000, 1), true), {0, 0, 0, 0, 0});
  EXPECT_EQ(gelezen.aantalBytes, 10U);
  EXPECT_EQ(gelezen.elementGrootte, 2U);
}

TEST(PcmPakketLeesIn, leestNietVoorbijDeArray) {
  // The image counts more bytes than it holds.
  EXPECT_EQ(lees({10, 0, 0, 0, 0, 0, 0x21, 0x43, 0x65}, Samples(5, -1)).samples,
            (Samples{0x4321, static_cast<short>(0xFF65), -1, -1, -1}));
  EXPECT_EQ(lees({0xFF, 0xFF, 0xFF, 0xFF, 0, 0}, {-1}).samples, (Samples{-1}));
  EXPECT_EQ(lees({0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0x21}, {0}).samples, (Samples{0x21}));
}

TEST(PcmPakketLeesIn, schrijftNietVoorbijHetPakket) {
  Samples samples{0, 0, -1, -1};
  VelmoraPCMPakket pakket(samples.data(), 2, Breuk(8000, 1));
  VelmoraArray<unsigned char> bron(14);
  std::fill_n(bron.geefElementen(), 14, static_cast<unsigned char>(0x11));
  bron[0] = 8;
  bron[1] = bron[2] = bron[3] = 0;
  pakket.leesInSerieel(bron);
  EXPECT_EQ(samples, (Samples{0x1111, 0x1111, -1, -1}));
}

TEST(PcmPakketLeesIn, pakketZonderBlokNeemtAlleenDeFrequentie) {
  VelmoraPCMPakket pakket;
  VelmoraArray<unsigned char> bron(10);
  bron[0] = 4;
  bron[4] = 9;
  pakket.leesInSerieel(bron);
  EXPECT_EQ(pakket.geefSampFreq().teller(), 9);
  EXPECT_EQ(pakket.geefData(), nullptr);
}

TEST(PcmPakketLeesIn, arrayZonderHeleHeaderVerandertNiets) {
  for (Bytes const& kort : {Bytes{}, Bytes{4}, Bytes{4, 0, 0, 0}, Bytes{4, 0, 0, 0, 1}}) {
    Gelezen const gelezen = lees(kort, {-1, -2});
    EXPECT_EQ(gelezen.samples, (Samples{-1, -2})) << kort.size();
    EXPECT_EQ(gelezen.teller, 123) << kort.size();
    EXPECT_EQ(gelezen.noemer, 4) << kort.size();
  }
}

}  // namespace
