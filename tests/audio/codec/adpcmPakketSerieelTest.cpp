// The serial image of an ADPCM packet: written byte for byte, and read back with the deviations
// that its readers count on, within the bounds of array and packet.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "audio/codec/adpcmPakket.h"
#include "audio/codec/pcmPakket.h"
#include "tests/audio/codec/adpcmHulp.h"

namespace {

Bytes serieel(VelmoraADPCMPakket const& pakket, bool metHeader, unsigned char vulling = 0xA5) {
  VelmoraArray<unsigned char> doel(pakket.serieelGeefAantalBytes());
  std::fill_n(doel.geefElementen(), doel.geefAantal(), vulling);
  pakket.maakSerieel(doel, metHeader);
  return {doel.begin(), doel.end()};
}

// The image of these codes with this start, with header.
Bytes beeld(Bytes const& bytes, Breuk const& freq, short predictor, unsigned char index) {
  VelmoraADPCMPakket const blok(bytes.size(), freq);
  vul(blok, bytes);
  return serieel(VelmoraADPCMPakket(blok, freq, predictor, index), true);
}

// The two bytes of the frequency in the image.
Bytes freqBytes(Breuk const& freq) {
  Bytes const heel = beeld({}, freq, 0, 0);
  return {heel.begin() + 4, heel.begin() + 6};
}

// What a packet holds after reading an image.
struct Gelezen {
  Bytes bytes;
  long long teller;
  long long noemer;
  int predictor;
  int beginIndex;
  unsigned long long aantalBytes;
  unsigned long long elementGrootte;
};

// Reads into a packet that held `blok` and a start of -5 and 6.
Gelezen lees(Bytes const& bron, Bytes const& blok) {
  VelmoraADPCMPakket const eigenaar(blok.size(), Breuk(1, 1));
  vul(eigenaar, blok);
  VelmoraADPCMPakket pakket(eigenaar, Breuk(123, 4), -5, 6);
  // An array of exactly this size, so that a sanitizer sees every byte read beyond it.
  VelmoraArray<unsigned char> array(bron.size());
  std::copy(bron.begin(), bron.end(), array.geefElementen());
  pakket.leesInSerieel(array);
  return {inhoud(pakket),
          pakket.geefSampFreq().teller(),
          pakket.geefSampFreq().noemer(),
          pakket.geefPredictor(),
          pakket.geefBeginIndex(),
          pakket.geefAantalBytes(),
          pakket.geefElementGrootte()};
}

TEST(AdpcmPakketSerieel, metHeaderStaatElkeByteOpZijnPlaats) {
  EXPECT_EQ(beeld({0xAB, 0xCD}, Breuk(8000, 1), 0x1234, 56),
            (Bytes{2, 0, 0, 0, 0x40, 0x1F, 0x34, 0x12, 56, 0xAB, 0xCD}));
  EXPECT_EQ(beeld({1, 2, 3}, Breuk(44100, 1), 0, 0),
            (Bytes{3, 0, 0, 0, 0x44, 0xAC, 0, 0, 0, 1, 2, 3}));
}

TEST(AdpcmPakketSerieel, negatievePredictorStaatInTweecomplement) {
  EXPECT_EQ(beeld({}, Breuk(1, 1), -2, 88), (Bytes{0, 0, 0, 0, 1, 0, 0xFE, 0xFF, 88}));
  EXPECT_EQ(beeld({}, Breuk(1, 1), -32768, 255), (Bytes{0, 0, 0, 0, 1, 0, 0x00, 0x80, 255}));
}

TEST(AdpcmPakketSerieel, tellingIsVanBytesEnGaatLaagsteByteEerst) {
  Bytes const heel = serieel(VelmoraADPCMPakket(66051, Breuk(8000, 1)), true);
  EXPECT_EQ(Bytes(heel.begin(), heel.begin() + 4), (Bytes{3, 2, 1, 0}));
  EXPECT_EQ(heel.size(), 66051U + 9);
}

TEST(AdpcmPakketSerieel, zonderHeaderBlijvenDeLaatsteNegenBytesOngeschreven) {
  VelmoraADPCMPakket const pakket(3, Breuk(8000, 1));
  vul(pakket, {1, 2, 3});
  EXPECT_EQ(serieel(pakket, false),
            (Bytes{1, 2, 3, 0xA5, 0xA5, 0xA5, 0xA5, 0xA5, 0xA5, 0xA5, 0xA5, 0xA5}));
}

TEST(AdpcmPakketSerieel, frequentieVanaf65536VerliestHaarHogeBits) {
  EXPECT_EQ(freqBytes(Breuk(65535, 1)), (Bytes{0xFF, 0xFF}));
  EXPECT_EQ(freqBytes(Breuk(65536, 1)), (Bytes{0, 0}));
  EXPECT_EQ(freqBytes(Breuk(96000, 1)), (Bytes{0x00, 0x77}));
  EXPECT_EQ(freqBytes(Breuk(-1, 1)), (Bytes{0xFF, 0xFF}));
}

TEST(AdpcmPakketSerieel, noemerVanDeFrequentieWordtNietBewaard) {
  EXPECT_EQ(freqBytes(Breuk(8000, 3)), (Bytes{0x40, 0x1F}));
}

TEST(AdpcmPakketSerieel, teltElementenEnBewaartAlleBytes) {
  Bytes blok{1, 2, 3, 4};
  BasisPakket const basis(blok.data(), 4, 2, false);
  EXPECT_EQ(serieel(VelmoraADPCMPakket(basis, Breuk(8000, 1), 0, 0), true),
            (Bytes{2, 0, 0, 0, 0x40, 0x1F, 0, 0, 0, 1, 2, 3, 4}));
}

TEST(AdpcmPakketSerieel, leegPakketIsAlleenDeHeader) {
  VelmoraADPCMPakket const leeg;
  EXPECT_EQ(serieel(leeg, false), Bytes(9, 0xA5));
  EXPECT_EQ(serieel(leeg, true), Bytes(9, 0));
}

TEST(AdpcmPakketSerieel, schrijftNietVoorbijHetBeeld) {
  VelmoraADPCMPakket const pakket(1, Breuk(8000, 1));
  VelmoraArray<unsigned char> doel(12);
  std::fill_n(doel.geefElementen(), 12, static_cast<unsigned char>(0xA5));
  pakket.maakSerieel(doel, true);
  EXPECT_EQ(Bytes(doel.begin(), doel.end()),
            (Bytes{1, 0, 0, 0, 0x40, 0x1F, 0, 0, 0, 0, 0xA5, 0xA5}));
}

TEST(AdpcmPakketSerieel, pakketOverHetBeeldHeeftDezelfdeCodes) {
  Bytes const heel = beeld({7, 8, 9}, Breuk(8000, 1), -1234, 0);
  EXPECT_EQ(serieel(VelmoraADPCMPakket(heel.data()), true), heel);
}

TEST(AdpcmPakketLeesIn, achtduizendHertzKomtTerugAls2031680) {
  Gelezen const gelezen = lees(beeld({1, 2}, Breuk(8000, 1), 0, 0), {0, 0});
  EXPECT_EQ(gelezen.teller, 2031680);
  EXPECT_EQ(gelezen.noemer, 1);
}

TEST(AdpcmPakketLeesIn, hoogsteByteVanDeFrequentieLandtOpBitZestien) {
  EXPECT_EQ(lees({0, 0, 0, 0, 0xFF, 0, 0, 0, 0}, {}).teller, 255);
  EXPECT_EQ(lees({0, 0, 0, 0, 0, 0xFF, 0, 0, 0}, {}).teller, 16711680);
  EXPECT_EQ(lees({0, 0, 0, 0, 0xFF, 0xFF, 0, 0, 0}, {}).teller, 16711935);
}

TEST(AdpcmPakketLeesIn, vanDePredictorBlijftAlleenByteZes) {
  EXPECT_EQ(lees(beeld({}, Breuk(1, 1), 200, 0), {}).predictor, 200);
  EXPECT_EQ(lees(beeld({}, Breuk(1, 1), -1, 0), {}).predictor, 255);
  EXPECT_EQ(lees(beeld({}, Breuk(1, 1), -32768, 0), {}).predictor, 0);
  EXPECT_EQ(lees(beeld({}, Breuk(1, 1), 0x1234, 0), {}).predictor, 0x34);
}

TEST(AdpcmPakketLeesIn, byteAchtIsDeBeginindexOokBoven88) {
  for (int const index : {0, 1, 88, 89, 255}) {
    EXPECT_EQ(lees(beeld({}, Breuk(1, 1), 0, static_cast<unsigned char>(index)), {}).beginIndex,
              index);
  }
}

TEST(AdpcmPakketLeesIn, codesKomenVanafByteNegen) {
  Gelezen const gelezen = lees(beeld({7, 8, 9}, Breuk(1, 1), 0, 0), {0, 0, 0});
  EXPECT_EQ(gelezen.bytes, (Bytes{7, 8, 9}));
}

TEST(AdpcmPakketLeesIn, kleinereTellingLaatDeRestStaanEnDeGrootteBlijft) {
  Gelezen const gelezen = lees(beeld({7, 8}, Breuk(1, 1), 0, 0), {1, 2, 3, 4, 5});
  EXPECT_EQ(gelezen.bytes, (Bytes{7, 8, 3, 4, 5}));
  EXPECT_EQ(gelezen.aantalBytes, 5U);
  EXPECT_EQ(gelezen.elementGrootte, 1U);
  // What the image has beyond its count is not read.
  EXPECT_EQ(lees({1, 0, 0, 0, 0, 0, 0, 0, 0, 7, 8}, {1, 2}).bytes, (Bytes{7, 2}));
}

TEST(AdpcmPakketLeesIn, bytesVoorbijDeArrayTellenAlsNul) {
  EXPECT_EQ(lees({4, 0, 0, 0, 0, 0, 0, 0, 0, 7}, {1, 2, 3, 4, 5}).bytes, (Bytes{7, 0, 0, 0, 5}));
  EXPECT_EQ(lees({3, 0, 0, 0, 0, 0, 0, 0, 0}, {1, 2, 3, 4}).bytes, (Bytes{0, 0, 0, 4}));
  EXPECT_EQ(lees({0xFF, 0xFF, 0xFF, 0xFF, 0, 0, 0, 0, 0, 7, 8}, {1, 2, 3}).bytes, (Bytes{7, 8, 0}));
  EXPECT_EQ(lees({0, 0, 0, 1, 0, 0, 0, 0, 0, 7}, {1, 2}).bytes, (Bytes{7, 0}));
}

TEST(AdpcmPakketLeesIn, arrayKorterDanDeHeaderTeltVerderAlsNul) {
  Bytes const volledig{3, 0, 0, 0, 0x40, 0x1F, 0x21, 0x43, 0x11};
  for (std::size_t lengte = 0; lengte <= volledig.size(); ++lengte) {
    Gelezen const gelezen =
        lees(Bytes(volledig.begin(), volledig.begin() + static_cast<std::ptrdiff_t>(lengte)),
             {1, 2, 3, 4});
    EXPECT_EQ(gelezen.bytes, lengte == 0 ? (Bytes{1, 2, 3, 4}) : (Bytes{0, 0, 0, 4})) << lengte;
    EXPECT_EQ(gelezen.teller, (lengte > 4 ? 64 : 0) + (lengte > 5 ? 2031616 : 0)) << lengte;
    EXPECT_EQ(gelezen.noemer, 1) << lengte;
    EXPECT_EQ(gelezen.predictor, lengte > 6 ? 0x21 : 0) << lengte;
    EXPECT_EQ(gelezen.beginIndex, lengte > 8 ? 0x11 : 0) << lengte;
    EXPECT_EQ(gelezen.aantalBytes, 4U) << lengte;
  }
}

TEST(AdpcmPakketLeesIn, schrijftNietVoorbijHetPakket) {
  VelmoraADPCMPakket const heel(5, Breuk(1, 1));
  vul(heel, {1, 2, 3, 4, 5});
  VelmoraADPCMPakket midden(heel, 1, 2);
  VelmoraArray<unsigned char> bron(13);
  std::fill_n(bron.geefElementen(), 13, static_cast<unsigned char>(0x11));
  std::fill_n(bron.geefElementen(), 9, static_cast<unsigned char>(0));
  bron[0] = 4;
  midden.leesInSerieel(bron);
  EXPECT_EQ(inhoud(heel), (Bytes{1, 0x11, 0x11, 4, 5}));
  VelmoraArray<unsigned char> leeg(9);
  leeg[0] = 4;
  midden.leesInSerieel(leeg);
  EXPECT_EQ(inhoud(heel), (Bytes{1, 0, 0, 4, 5}));
}

TEST(AdpcmPakketLeesIn, pakketZonderBlokNeemtAlleenDeKop) {
  VelmoraADPCMPakket pakket;
  VelmoraArray<unsigned char> bron(11);
  bron[0] = 2;
  bron[4] = 9;
  bron[6] = 8;
  bron[8] = 7;
  pakket.leesInSerieel(bron);
  EXPECT_EQ(pakket.geefSampFreq().teller(), 9);
  EXPECT_EQ(pakket.geefPredictor(), 8);
  EXPECT_EQ(pakket.geefBeginIndex(), 7);
  EXPECT_EQ(pakket.geefData(), nullptr);
  EXPECT_EQ(pakket.geefAantalBytes(), 0U);
}

// One image, two readers: a step of 34 at index 16, of 7 at 0; 255 and -1.
TEST(AdpcmPakketLeesIn, gelezenBeeldEnPakketErOverDecoderenVanafEenAnderBegin) {
  VelmoraArray<unsigned char> bron(10);
  Bytes const heel = beeld({0xF7}, Breuk(8000, 1), -1, 16);
  std::copy(heel.begin(), heel.end(), bron.geefElementen());
  VelmoraADPCMPakket gelezen(1, Breuk(1, 1));
  gelezen.leesInSerieel(bron);
  VelmoraPCMPakket const doel(2, Breuk(1, 1));
  ADPCMConverter converter;
  converter.decodeer(gelezen, doel);
  EXPECT_EQ(doel.geefElement(0), 255 + 63);
  converter.decodeer(VelmoraADPCMPakket(heel.data()), doel);
  EXPECT_EQ(doel.geefElement(0), -1 + 11);
}

}  // namespace
