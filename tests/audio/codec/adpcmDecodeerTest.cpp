// The way back. A binary image counts all of its first eight bytes as its size, so that only one
// with frequency 0 and predictor 0 can be decoded: of its n bytes nine are the header, and what of
// n codes the last nine would be is lost and counts as zero. The images of real recordings are
// refused for lack of memory (see adpcmGeheugenTest.cpp).
#include <gtest/gtest.h>

#include "audio/codec/pcmPakket.h"
#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/adpcmTekstHulp.h"
#include "tests/steun/pijp.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavLezer.h"
#include "tests/steun/wxMain.h"

namespace {

// An image of this size, with what stands behind the header.
Bytes beeldVan(unsigned long long grootte, unsigned char index, Bytes const& rest) {
  Bytes beeld = laagEerst(grootte, 8);
  beeld.push_back(index);
  beeld.insert(beeld.end(), rest.begin(), rest.end());
  return beeld;
}

// Codes of all kinds: the low bytes of a pseudo-random run.
Bytes codes(std::size_t aantal) {
  Bytes bytes;
  for (int const waarde : golf(aantal)) {
    bytes.push_back(static_cast<unsigned char>(waarde & 0xFF));
  }
  return bytes;
}

// The samples of the first `heel` codes, and of zeros up to `aantal`.
std::vector<int> verwacht(Bytes beeldCodes, std::size_t heel, std::size_t aantal, int index = 0) {
  beeldCodes.resize(heel);
  beeldCodes.resize(aantal, 0);
  AdpcmStand stand;
  stand.index = index;
  return modelSamples(stand, beeldCodes);
}

class AdpcmDecodeer : public testing::Test {
 protected:
  std::unique_ptr<VelmoraPCMPakket> pakketVan(std::string const& pad) {
    return std::unique_ptr<VelmoraPCMPakket>(converter.decodeerBestand(bestandsnaam(pad)));
  }

  std::vector<int> samplesVan(Bytes const& beeld) {
    schrijf(beeld);
    std::unique_ptr<VelmoraPCMPakket> const pcm = pakketVan(bron);
    EXPECT_TRUE(pcm->isEigenaar());
    EXPECT_EQ(pcm->geefSampFreq().teller(), 0);
    EXPECT_EQ(pcm->geefSampFreq().noemer(), 1);
    return {pcm->geefData(), pcm->geefData() + pcm->geefAantalSamples()};
  }

  void schrijf(Bytes const& beeld) const {
    maakBestand(bron, std::string(beeld.begin(), beeld.end()));
  }

  void naarWav(std::string const& bronPad, std::string const& doelPad) {
    converter.decodeerBestand(bestandsnaam(bronPad), bestandsnaam(doelPad));
  }

  TijdelijkeMap map;
  std::string bron = map.pad("beeld.bin");
  std::string doel = map.pad("uit.wav");
  // Neither the language nor the shift has a say in it.
  ADPCMDesktopConverter converter = converterMet({ADPCMTaalCPP, "K", 8});
};

TEST_F(AdpcmDecodeer, grootteTeltDeHeaderMeeEnGeeftTweeSamplesPerByte) {
  // Two codes and nine zeros. 7 and 15 give 11 and -19, 2 and 8 give 2 and -1. From step 28 on the
  // zeros add an eighth of each step: 3, 3, 2, 2, 2, 2, 2, seven times 1, and nothing at step 7.
  EXPECT_EQ(samplesVan(beeldVan(11, 0, {0xF7, 0x82})),
            (std::vector<int>{11, -19, 2,  -1, 2,  5,  7,  9,  11, 13, 15,
                              16, 17,  18, 19, 20, 21, 22, 22, 22, 22, 22}));
}

TEST_F(AdpcmDecodeer, elkeGrootte) {
  for (std::size_t const grootte : {9U, 10U, 17U, 18U, 19U, 64U, 4096U, 100003U}) {
    Bytes const data = codes(grootte - 9);
    EXPECT_EQ(samplesVan(beeldVan(grootte, 0, data)), verwacht(data, grootte - 9, grootte))
        << grootte;
  }
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST_F(AdpcmDecodeer, laatsteNegenBytesVanDeCodesGaanVerloren) {
  // As a converter writes it: as many codes as the count says, behind the header.
  Bytes const data = codes(40);
  EXPECT_EQ(samplesVan(beeldVan(40, 0, data)), verwacht(data, 31, 40));
}

TEST_F(AdpcmDecodeer, geschrevenBeeldZonderFrequentieKomtTerugOpDeLaatsteNegenBytesNa) {
  std::vector<int> const samples = golf(2000);
  schrijfWav(map.pad("toon.wav"), samples);
  ADPCMDesktopConverter schrijver(ADPCMEncoderOpties(ADPCMTaalC, 0));
  Bytes beeld = adpcmBeeld(schrijver, map.pad("toon.wav"), true, bron);
  beeld.at(4) = 0;
  beeld.at(5) = 0;
  AdpcmStand stand;
  EXPECT_EQ(samplesVan(beeld), verwacht(modelBytes(stand, samples, 1), 991, 1000));
}

TEST_F(AdpcmDecodeer, beginIndexTelt) {
  Bytes const data = codes(21);
  for (int const index : {1, 40, 87, 88}) {
    EXPECT_EQ(samplesVan(beeldVan(30, static_cast<unsigned char>(index), data)),
              verwacht(data, 21, 30, index))
        << index;
  }
}

TEST_F(AdpcmDecodeer, beginIndexBoven88TeltAls88) {
  Bytes const data = codes(21);
  for (int const index : {89, 128, 255}) {
    EXPECT_EQ(samplesVan(beeldVan(30, static_cast<unsigned char>(index), data)),
              verwacht(data, 21, 30, 88))
        << index;
  }
}

TEST_F(AdpcmDecodeer, afgekaptBeeldWordtAangevuldMetNullen) {
  EXPECT_EQ(samplesVan(beeldVan(100, 20, {0x7F, 0xF3})), verwacht({0x7F, 0xF3}, 2, 100, 20));
}

TEST_F(AdpcmDecodeer, meerDataDanGeteldBlijftLiggen) {
  Bytes const data = codes(200);
  EXPECT_EQ(samplesVan(beeldVan(50, 0, data)), verwacht(data, 41, 50));
}

TEST_F(AdpcmDecodeer, grootteOnderDeHeaderLaatOokDeIndexLiggen) {
  // With the index the zeros would add up.
  for (std::size_t const grootte : {1U, 5U, 8U}) {
    EXPECT_EQ(samplesVan(beeldVan(grootte, 40, {0x77, 0x77})), std::vector<int>(2 * grootte, 0));
  }
  EXPECT_EQ(samplesVan(beeldVan(9, 40, {0x77, 0x77})), verwacht({}, 0, 9, 40));
}

TEST_F(AdpcmDecodeer, bestandKorterDanAchtBytesTeltVerderAlsNul) {
  EXPECT_EQ(samplesVan({3}), std::vector<int>(6, 0));
  EXPECT_EQ(samplesVan({1, 1}), std::vector<int>(514, 0));
  EXPECT_EQ(samplesVan({2, 0, 0, 0, 0, 0, 0}), std::vector<int>(4, 0));
  EXPECT_EQ(samplesVan({0, 0, 0}), std::vector<int>{});
}

TEST_F(AdpcmDecodeer, leegBestandEnBeeldVanGrootteNulGevenGeenSamples) {
  EXPECT_EQ(samplesVan({}), std::vector<int>{});
  EXPECT_EQ(samplesVan(Bytes(9, 0)), std::vector<int>{});
  EXPECT_EQ(samplesVan(beeldVan(0, 40, {0x77})), std::vector<int>{});
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST_F(AdpcmDecodeer, ontbrekendBestandGeeftGeenSamples) {
  EXPECT_EQ(pakketVan(map.pad("nergens.bin"))->geefAantalSamples(), 0U);
  EXPECT_EQ(neemLog().size(), 1U);
}

TEST_F(AdpcmDecodeer, mapPijpEnLeesfoutGevenGeenSamples) {
  if (!maakPijp(bron)) {
    GTEST_SKIP() << "no pipes lie in folders here";
  }
  for (std::string const& pad : {map.pad(), bron, std::string("/proc/self/mem")}) {
    EXPECT_EQ(pakketVan(pad)->geefAantalSamples(), 0U) << pad;
  }
}

TEST_F(AdpcmDecodeer, vorigeBeeldLaatNietsAchter) {
  Bytes const data = codes(21);
  samplesVan(beeldVan(300, 88, codes(291)));
  EXPECT_EQ(samplesVan(beeldVan(30, 0, data)), verwacht(data, 21, 30));
}

// The library creates the file with its header, and turns the frequency away after that.
TEST_F(AdpcmDecodeer, frequentieNulLaatEenWavVanAlleenDeHeaderAchter) {
  schrijf(beeldVan(30, 0, codes(21)));
  maakBestand(doel, std::string(5000, 'x'));
  for (std::string const& pad : {doel, map.pad("n\xC3\xA9ieuw %s.wav")}) {
    naarWav(bron, pad);
    EXPECT_EQ(leesTekst(pad), wavBytes({0, 1, 16, 1}, "")) << pad;
  }
}

TEST_F(AdpcmDecodeer, beeldVanGrootteNulLaatOokAlleenDeHeaderAchter) {
  schrijf(Bytes(9, 0));
  naarWav(bron, doel);
  EXPECT_EQ(leesTekst(doel), wavBytes({0, 1, 16, 1}, ""));
}

}  // namespace
