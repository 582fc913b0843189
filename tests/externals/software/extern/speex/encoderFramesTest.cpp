// The frames in the text against those of a loop over the Speex library: every band, bit rate kind,
// quality and DAC width, the last block of a file, the scaling, and the state that runs on.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>

#include "tests/audio/codec/codecHulp.h"
#include "tests/externals/software/extern/speex/encoderTekstHulp.h"

namespace {

class EncoderFrames : public EncoderProef {
 protected:
  Frames gevonden(Instelling const& instelling, std::vector<int> const& samples) {
    return framesIn(codeer(instelling, wav("toon.wav", samples, instelling.rate())).tekst);
  }
};

// Band, kind of bit rate, voice activity detection.
class EncoderMatrix : public EncoderFrames,
                      public testing::WithParamInterface<std::tuple<int, int, bool>> {
 protected:
  Instelling basis() const {
    Instelling instelling;
    std::tie(instelling.band, instelling.soort, instelling.vad) = GetParam();
    return instelling;
  }
};

TEST_P(EncoderMatrix, EveryQualityAndDacWidthGivesTheFramesOfTheLibrary) {
  Instelling instelling = basis();
  std::vector<int> const samples = spraak(5 * instelling.frame() + 37, instelling.rate());
  for (unsigned int const kwaliteit : {0U, 4U, 8U, 10U}) {
    for (unsigned int const gainBits : {8U, 6U, 4U, 0U}) {
      instelling.kwaliteit = kwaliteit;
      instelling.gainBits = gainBits;
      Frames const verwacht = LosseEncoder(instelling).bestand(samples);
      ASSERT_EQ(verwacht.size(), 6U);
      EXPECT_EQ(gevonden(instelling, samples), verwacht)
          << "quality " << kwaliteit << ", gain bits " << gainBits;
    }
  }
}

TEST_P(EncoderMatrix, ASecondOfSpeechWithPausesGivesTheFramesOfTheLibrary) {
  Instelling instelling = basis();
  instelling.complexiteit = 2;
  std::vector<int> const samples =
      spraak(static_cast<std::size_t>(instelling.rate()), instelling.rate());
  Frames const verwacht = LosseEncoder(instelling).bestand(samples);
  ASSERT_EQ(verwacht.size(), 50U);
  EXPECT_EQ(gevonden(instelling, samples), verwacht);
}

TEST_P(EncoderMatrix, StateRunsOnIntoTheNextFile) {
  Instelling const instelling = basis();
  std::vector<int> const eerste = spraak(4 * instelling.frame(), instelling.rate());
  std::vector<int> const tweede = golf(3 * instelling.frame() + 1);
  SpeexDesktopEncoder encoder(instelling.config(), SpeexEncoderOpties());
  LosseEncoder los(instelling);
  EXPECT_EQ(framesIn(codeer(encoder, wav("een.wav", eerste, instelling.rate())).tekst),
            los.bestand(eerste));
  Frames const gevolgd =
      framesIn(codeer(encoder, wav("twee.wav", tweede, instelling.rate())).tekst);
  EXPECT_EQ(gevolgd, los.bestand(tweede));
  EXPECT_NE(gevolgd, LosseEncoder(instelling).bestand(tweede));
}

INSTANTIATE_TEST_SUITE_P(Alle, EncoderMatrix,
                         testing::Combine(testing::Values(0, 1, 2), testing::Values(0, 1, 2),
                                          testing::Bool()));

TEST_F(EncoderFrames, MaxBitrateCountsForTheVariableBitrateAlone) {
  for (int const soort : {0, 1, 2}) {
    Instelling laag;
    laag.soort = soort;
    laag.maxBitrate = 3000;
    Instelling hoog = laag;
    hoog.maxBitrate = 4294967295U;
    std::vector<int> const samples = spraak(8000, 8000);
    EXPECT_EQ(gevonden(laag, samples), LosseEncoder(laag).bestand(samples)) << soort;
    EXPECT_EQ(gevonden(hoog, samples), LosseEncoder(hoog).bestand(samples)) << soort;
    EXPECT_EQ(gevonden(laag, samples) != gevonden(hoog, samples), soort == 1) << soort;
  }
}

TEST_F(EncoderFrames, ExactlyOneFrameOfSamplesGivesOneFrame) {
  for (int const band : {0, 1, 2}) {
    Instelling instelling;
    instelling.band = band;
    std::vector<int> const samples = golf(instelling.frame());
    EXPECT_EQ(gevonden(instelling, samples), Frames{LosseEncoder(instelling).encode(samples)});
  }
}

TEST_F(EncoderFrames, OneSampleMoreGivesASecondFrameThatEndsInSamplesOfTheFirst) {
  for (int const band : {0, 1, 2}) {
    Instelling instelling;
    instelling.band = band;
    std::size_t const n = instelling.frame();
    std::vector<int> const samples = golf(n + 1);
    std::vector<int> const eerste(samples.begin(), samples.end() - 1);
    std::vector<int> tweede = eerste;
    tweede.front() = samples.back();
    std::vector<int> stil(n, 0);
    stil.front() = samples.back();

    LosseEncoder los(instelling);
    Frames const verwacht{los.encode(eerste), los.encode(tweede)};
    LosseEncoder metStilte(instelling);
    Frames const anders{metStilte.encode(eerste), metStilte.encode(stil)};
    ASSERT_NE(verwacht, anders);
    EXPECT_EQ(gevonden(instelling, samples), verwacht) << band;
  }
}

TEST_F(EncoderFrames, OldSamplesInTheLastBlockAreScaledOnceOnly) {
  Instelling instelling;
  instelling.gainBits = 4;
  std::vector<int> const samples = golf(161);
  auto const gedeeldDoor16 = [](int sample) { return geschaald(sample, 4); };
  std::vector<int> eerste(160);
  std::transform(samples.begin(), samples.end() - 1, eerste.begin(), gedeeldDoor16);
  std::vector<int> tweede = eerste;
  tweede.front() = geschaald(samples.back(), 4);
  LosseEncoder los(Instelling{});
  Frames const verwacht{los.encode(eerste), los.encode(tweede)};
  EXPECT_EQ(gevonden(instelling, samples), verwacht);
}

TEST_F(EncoderFrames, FileShorterThanAFrameEndsInSilence) {
  for (std::size_t const lengte : {1U, 100U, 159U}) {
    std::vector<int> samples = golf(lengte);
    Frames const gevondenFrames = gevonden(Instelling(), samples);
    samples.resize(160, 0);
    EXPECT_EQ(gevondenFrames, Frames{LosseEncoder(Instelling()).encode(samples)}) << lengte;
  }
}

TEST_F(EncoderFrames, SecondShortFileEndsInSilenceToo) {
  std::vector<int> kort{20000, -20000, 12345};
  SpeexDesktopEncoder encoder(Instelling().config(), SpeexEncoderOpties());
  codeer(encoder, wav("lang.wav", golf(320)));
  Frames const gevolgd = framesIn(codeer(encoder, wav("kort.wav", kort)).tekst);
  LosseEncoder los{Instelling()};
  los.bestand(golf(320));
  kort.resize(160, 0);
  EXPECT_EQ(gevolgd, Frames{los.encode(kort)});
}

TEST_F(EncoderFrames, FrameNumbersStartAgainInEachFile) {
  SpeexDesktopEncoder encoder(Instelling().config(), SpeexEncoderOpties());
  LosseEncoder los{Instelling()};
  std::string const pad = wav("toon.wav", golf(320));
  for (int keer = 0; keer < 2; ++keer) {
    EXPECT_TRUE(zelfdeTekst(zonderMoment(codeer(encoder, pad).tekst),
                            fragmentTekst("toon", 320, los.bestand(golf(320)))));
  }
}

// A sample, its scaled value, and the one that other arithmetic would give: division toward zero,
// rounding, or a shift without the sign.
struct Schaal {
  int sample;
  unsigned int gainBits;
  int geschaald;
  int anders;
};

// The frame of a block that holds one value.
Frames frameVan(int waarde) {
  return {LosseEncoder(Instelling{}).encode(std::vector<int>(160, waarde))};
}

TEST_F(EncoderFrames, SamplesAreDividedTowardMinusInfinity) {
  for (Schaal const& geval : {Schaal{-1, 8, -1, 0},
                              {255, 8, 0, 1},
                              {256, 8, 1, 0},
                              {-256, 8, -1, -2},
                              {-257, 8, -2, -1},
                              {-32768, 8, -128, 128},
                              {-1, 6, -1, 0},
                              {63, 6, 0, 1},
                              {64, 6, 1, 0},
                              {-32768, 6, -512, 512},
                              {-1, 4, -1, 0},
                              {15, 4, 0, 1},
                              {16, 4, 1, 0},
                              {-32768, 4, -2048, 2048},
                              {-1, 0, -1, 65535},
                              {-1, 16, -1, 0},
                              {32767, 16, 0, 1},
                              {-32768, 15, -1, 0},
                              // More than any width asks for, and as good as none.
                              {1234, 64, 1234, 0},
                              {-32768, 0, -32768, 32767},
                              {32767, 0, 32767, 0}}) {
    Instelling instelling;
    instelling.gainBits = geval.gainBits;
    Frames const verwacht = frameVan(geval.geschaald);
    EXPECT_EQ(gevonden(instelling, std::vector<int>(160, geval.sample)), verwacht)
        << geval.sample << " with " << geval.gainBits;
    // Or the frames would not tell the two apart.
    EXPECT_NE(frameVan(geval.anders), verwacht) << geval.sample << " with " << geval.gainBits;
  }
}

}  // namespace
