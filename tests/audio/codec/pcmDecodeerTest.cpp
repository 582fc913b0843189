// The way back: a binary serial image becomes a WAV file, which is read here byte by byte.
#include <gtest/gtest.h>

#include "audio/codec/pcmDesktopConverter.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavLezer.h"
#include "tests/steun/wxMain.h"

namespace {

// An image of a count and a frequency, with these bytes of payload.
Bytes beeldVan(unsigned int aantal, unsigned int freq, Bytes const& data) {
  Bytes beeld = laagEerst(aantal, 4);
  Bytes const frequentie = laagEerst(freq, 2);
  beeld.insert(beeld.end(), frequentie.begin(), frequentie.end());
  beeld.insert(beeld.end(), data.begin(), data.end());
  return beeld;
}

class PcmDecodeer : public testing::Test {
 protected:
  void decodeer(std::string const& bronPad, std::string const& doelPad) {
    // Neither the language nor the shift has a say in it.
    PCMDesktopConverter(PCMEncoderOpties(PCMTaalCPP, "K", 8))
        .decodeerBestand(bestandsnaam(bronPad), bestandsnaam(doelPad));
  }

  // The WAV file that an image with these bytes becomes.
  std::optional<GelezenWav> wavVan(Bytes const& beeld) {
    maakBestand(bron, std::string(beeld.begin(), beeld.end()));
    decodeer(bron, doel);
    return ontleedWav(leesBytes(doel));
  }

  // The image of so many samples at 8000 Hz, with these bytes behind its header, becomes these.
  void verwacht(unsigned int aantal, Bytes const& data, std::vector<int> const& samples) {
    std::optional<GelezenWav> const wav = wavVan(beeldVan(aantal, 8000, data));
    ASSERT_TRUE(wav);
    EXPECT_EQ(wav->soort.rate, 8000);
    EXPECT_EQ(wav->waarden, samples);
  }

  TijdelijkeMap map;
  std::string bron = map.pad("beeld.bin");
  std::string doel = map.pad("uit.wav");
};

TEST_F(PcmDecodeer, beeldWordtMonoWavVanZestienBits) {
  std::optional<GelezenWav> const wav =
      wavVan({3, 0, 0, 0, 0x40, 0x1F, 0x01, 0x00, 0xFF, 0xFF, 0x00, 0x80});
  ASSERT_TRUE(wav);
  EXPECT_EQ(wav->soort.formaatCode, 1);
  EXPECT_EQ(wav->soort.kanalen, 1);
  EXPECT_EQ(wav->soort.bits, 16);
  EXPECT_EQ(wav->soort.rate, 8000);
  EXPECT_EQ(wav->waarden, (std::vector<int>{1, -1, -32768}));
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST_F(PcmDecodeer, langBeeldBlijftHeel) {
  std::vector<int> const samples = golf(100003);
  std::optional<GelezenWav> const wav = wavVan(verwachtBeeld(samples, 44100, true));
  ASSERT_TRUE(wav);
  EXPECT_EQ(wav->soort.rate, 44100);
  EXPECT_EQ(wav->waarden, samples);
}

TEST_F(PcmDecodeer, frequentieIsDeGewoneWaardeVanZestienBits) {
  for (int const freq : {1, 255, 256, 8000, 16000, 32768, 48000, 65535}) {
    std::optional<GelezenWav> const wav =
        wavVan(beeldVan(1, static_cast<unsigned int>(freq), {5, 0}));
    ASSERT_TRUE(wav) << freq;
    EXPECT_EQ(wav->soort.rate, freq);
  }
}

TEST_F(PcmDecodeer, samplesWordenNietTeruggeschaald) {
  verwacht(2, {0x80, 0xFF, 0x7F, 0x00}, {-128, 127});
}

TEST_F(PcmDecodeer, afgekaptBeeldWordtAangevuldMetNullen) {
  verwacht(5, {1, 0, 2, 0}, {1, 2, 0, 0, 0});
}

TEST_F(PcmDecodeer, halfSampleAanHetEindeMaaktNietsStuk) {
  std::optional<GelezenWav> const wav = wavVan(beeldVan(3, 8000, {1, 0, 0x7F}));
  ASSERT_TRUE(wav);
  ASSERT_EQ(wav->waarden.size(), 3U);
  EXPECT_EQ(wav->waarden[0], 1);
  EXPECT_EQ(wav->waarden[2], 0);
}

TEST_F(PcmDecodeer, beeldZonderEenEnkelSampleGeeftNullen) {
  verwacht(4, {}, {0, 0, 0, 0});
}

TEST_F(PcmDecodeer, meerDataDanGeteldBlijftLiggen) {
  verwacht(2, {1, 0, 2, 0, 3, 0, 4, 0}, {1, 2});
}

TEST_F(PcmDecodeer, nulSamplesGeeftEenLegeWav) {
  verwacht(0, {}, {});
}

TEST_F(PcmDecodeer, doelWordtOverschreven) {
  maakBestand(doel, std::string(50000, 'x'));
  verwacht(1, {9, 0}, {9});
}

TEST_F(PcmDecodeer, namenMetAccentenEnProcenten) {
  Bytes const beeld = beeldVan(1, 8000, {9, 0});
  maakBestand(map.pad("b\xC3\xA9 100%s.bin"), std::string(beeld.begin(), beeld.end()));
  decodeer(map.pad("b\xC3\xA9 100%s.bin"), map.pad("d\xC3\xA9 %n.wav"));
  EXPECT_TRUE(ontleedWav(leesBytes(map.pad("d\xC3\xA9 %n.wav"))));
}

TEST_F(PcmDecodeer, frequentieNulGeeftGeenSamples) {
  std::optional<GelezenWav> const wav = wavVan(beeldVan(2, 0, {1, 0, 2, 0}));
  EXPECT_TRUE(!wav || wav->waarden.empty());
}

TEST_F(PcmDecodeer, legeBronEnHalveHeaderGevenGeenSamples) {
  for (Bytes const& beeld : {Bytes{}, Bytes{1}, Bytes{1, 0, 0}, Bytes{1, 0, 0, 0}}) {
    std::optional<GelezenWav> const wav = wavVan(beeld);
    EXPECT_TRUE(!wav || wav->waarden.empty()) << beeld.size();
  }
}

TEST_F(PcmDecodeer, halveFrequentieLeestHaarLageByte) {
  std::optional<GelezenWav> const wav = wavVan({2, 0, 0, 0, 100});
  ASSERT_TRUE(wav);
  EXPECT_EQ(wav->soort.rate, 100);
  EXPECT_EQ(wav->waarden, (std::vector<int>{0, 0}));
}

}  // namespace
