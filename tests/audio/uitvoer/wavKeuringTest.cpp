// Which sound files are taken, by what libsndfile tells of them.
#include "audio/uitvoer/wavKeuring.h"

#include <gtest/gtest.h>

namespace {

constexpr int pcm16 = 0x10002;
constexpr int imaAdpcm = 0x10012;

SF_INFO info(int samplerate, int formaat, int kanalen = 1) {
  SF_INFO uit{};
  uit.samplerate = samplerate;
  uit.format = formaat;
  uit.channels = kanalen;
  return uit;
}

TEST(WavKeuring, PcmAndAdpcmWavAreUsableAtTheThreeFrequencies) {
  for (int const rate : {8000, 16000, 32000}) {
    EXPECT_TRUE(isBruikbaar(info(rate, pcm16))) << rate;
    EXPECT_TRUE(isBruikbaar(info(rate, imaAdpcm))) << rate;
  }
}

TEST(WavKeuring, NoOtherFrequencyIsUsable) {
  for (int const rate : {0, -8000, 1, 7999, 8001, 11025, 12000, 15999, 16001, 22050, 24000, 31999,
                         32001, 44100, 48000, 64000, 96000}) {
    EXPECT_FALSE(isBruikbaar(info(rate, pcm16))) << rate;
    EXPECT_FALSE(isBruikbaar(info(rate, imaAdpcm))) << rate;
  }
}

TEST(WavKeuring, NoOtherSampleFormatIsUsable) {
  // In order: none, signed 8, 24 and 32 bits, unsigned 8, float, double, u-law, A-law, Microsoft
  // ADPCM, GSM 6.10, G.721.
  for (int const soort : {0x0, 0x1, 0x3, 0x4, 0x5, 0x6, 0x7, 0x10, 0x11, 0x13, 0x20, 0x30}) {
    EXPECT_FALSE(isBruikbaar(info(8000, 0x10000 | soort))) << soort;
  }
}

TEST(WavKeuring, NoOtherContainerIsUsable) {
  // In order: none, AIFF, AU, raw, W64, extensible WAV, FLAC, RF64, MPEG.
  for (int const soort :
       {0x0, 0x20000, 0x30000, 0x40000, 0xB0000, 0x130000, 0x170000, 0x220000, 0x230000}) {
    EXPECT_FALSE(isBruikbaar(info(16000, soort | 0x2))) << soort;
    EXPECT_FALSE(isBruikbaar(info(16000, soort | 0x12))) << soort;
  }
}

TEST(WavKeuring, TheByteOrderBelongsToTheFormat) {
  EXPECT_FALSE(isBruikbaar(info(8000, pcm16 | 0x10000000)));
  EXPECT_FALSE(isBruikbaar(info(8000, pcm16 | 0x20000000)));
  EXPECT_FALSE(isBruikbaar(info(8000, imaAdpcm | 0x20000000)));
}

TEST(WavKeuring, TheNumberOfChannelsDoesNotMatter) {
  for (int const kanalen : {1, 2, 3, 6, 1024}) {
    EXPECT_TRUE(isBruikbaar(info(32000, pcm16, kanalen))) << kanalen;
  }
}

TEST(WavKeuring, AFileThatCouldNotBeOpenedIsNotUsable) {
  EXPECT_FALSE(isBruikbaar(SF_INFO{}));
}

TEST(WavKeuring, OnlyTheAdpcmFormatWordIsAdpcm) {
  EXPECT_TRUE(isAdpcm(info(8000, imaAdpcm)));
  EXPECT_FALSE(isAdpcm(info(8000, pcm16)));
}

TEST(WavKeuring, EachFrequencyHasItsBand) {
  EXPECT_EQ(bandVoorFrequentie(8000), 0);
  EXPECT_EQ(bandVoorFrequentie(16000), 1);
  EXPECT_EQ(bandVoorFrequentie(32000), 2);
}

TEST(WavKeuring, FileGoesWithAnotherOfItsBand) {
  EXPECT_EQ(keurBand(8000, 0), BandOordeel::past);
  EXPECT_EQ(keurBand(16000, 1), BandOordeel::past);
  EXPECT_EQ(keurBand(32000, 2), BandOordeel::past);
}

TEST(WavKeuring, FileOfAnotherBandIsToldButForOneAt8000Hz) {
  EXPECT_EQ(keurBand(16000, 0), BandOordeel::wijktAf);
  EXPECT_EQ(keurBand(32000, 0), BandOordeel::wijktAf);
  EXPECT_EQ(keurBand(32000, 1), BandOordeel::wijktAf);
  EXPECT_EQ(keurBand(16000, 2), BandOordeel::wijktAf);
  EXPECT_EQ(keurBand(8000, 1), BandOordeel::wijktStilAf);
  EXPECT_EQ(keurBand(8000, 2), BandOordeel::wijktStilAf);
  // A band that an edited configuration made up.
  EXPECT_EQ(keurBand(8000, 7), BandOordeel::wijktStilAf);
}

}  // namespace
