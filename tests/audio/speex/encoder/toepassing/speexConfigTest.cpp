// The Speex options of settings that lie outside every range: limited one by one, and encoded with,
// since a number without sense ends the program in the library.
#include "audio/speex/encoder/toepassing/speexConfig.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

#include "audio/speex/encoder/toepassing/kestrolinConfig.h"
#include "tests/externals/software/extern/speex/encoderTekstHulp.h"

namespace {

KestrolinConfig eersteKeer() {
  KestrolinConfig record{};
  record.speexQuality = 8;
  record.speexComplexity = 3;
  record.speexBitRate = 5000;
  return record;
}

template <typename Soort>
struct Grens {
  Soort getal;
  Soort gebruikt;
};

// A spin control with these bounds shows `gebruikt`.
constexpr std::array<Grens<unsigned int>, 9> niveaus{{{0, 0},
                                                      {1, 1},
                                                      {10, 10},
                                                      {11, 10},
                                                      {1300000000, 10},
                                                      {2147483647, 10},
                                                      {2147483648, 0},
                                                      {4294967289, 0},
                                                      {4294967295, 0}}};

TEST(SpeexConfig, QualityIsWhatTheWindowShows) {
  for (auto const& grens : niveaus) {
    KestrolinConfig record = eersteKeer();
    record.speexQuality = grens.getal;
    SpeexEncodeConfig const config = maakSpeexConfig(record, 0);
    EXPECT_EQ(config.kwaliteit, grens.gebruikt) << grens.getal;
    EXPECT_EQ(config.complexiteit, 3U);
  }
}

TEST(SpeexConfig, ComplexityIsWhatTheWindowShows) {
  for (auto const& grens : niveaus) {
    KestrolinConfig record = eersteKeer();
    record.speexComplexity = grens.getal;
    SpeexEncodeConfig const config = maakSpeexConfig(record, 0);
    EXPECT_EQ(config.complexiteit, grens.gebruikt) << grens.getal;
    EXPECT_EQ(config.kwaliteit, 8U);
  }
}

constexpr std::array<Grens<int>, 8> rijen{
    {{0, 0}, {1, 1}, {2, 2}, {3, 0}, {99, 0}, {2147483647, 0}, {-1, 0}, {-2147483647 - 1, 0}}};

TEST(SpeexConfig, BandThatDoesNotExistIsNarrowband) {
  for (auto const& grens : rijen) {
    KestrolinConfig record = eersteKeer();
    record.speexFormat = grens.getal;
    SpeexEncodeConfig const config = maakSpeexConfig(record, 0);
    EXPECT_EQ(config.formaat, grens.gebruikt) << grens.getal;
    EXPECT_EQ(config.bitrateType, SpeexFixedBitrate);
    EXPECT_EQ(config.sampFreq, Breuk(bandRates[static_cast<std::size_t>(grens.gebruikt)], 1));
    EXPECT_EQ(speexBandVan(record), config.formaat);
  }
}

TEST(SpeexConfig, KindOfBitRateThatDoesNotExistIsFixed) {
  for (auto const& grens : rijen) {
    KestrolinConfig record = eersteKeer();
    record.speexBitRateChoice = grens.getal;
    SpeexEncodeConfig const config = maakSpeexConfig(record, 0);
    EXPECT_EQ(config.bitrateType, grens.gebruikt) << grens.getal;
    EXPECT_EQ(config.formaat, SpeexNarrowband);
  }
}

TEST(SpeexConfig, BitRateFitsTheLibrarysNumbers) {
  constexpr std::array<Grens<unsigned int>, 6> rates{{{0, 0},
                                                      {5000, 5000},
                                                      {2147483646, 2147483646},
                                                      {2147483647, 2147483647},
                                                      {2147483648, 2147483647},
                                                      {4294967295, 2147483647}}};
  for (auto const& grens : rates) {
    KestrolinConfig record = eersteKeer();
    record.speexBitRate = grens.getal;
    EXPECT_EQ(maakSpeexConfig(record, 0).maxBitrate, grens.gebruikt);
  }
}

TEST(SpeexConfig, FlagsAndBitsArePassedOnEachByItself) {
  for (int vlag = 0; vlag < 3; ++vlag) {
    KestrolinConfig record = eersteKeer();
    record.speexVAC = vlag == 0;
    record.speexDenoise = vlag == 1;
    record.speexAGC = vlag == 2;
    SpeexEncodeConfig const config = maakSpeexConfig(record, 6);
    EXPECT_EQ(config.vad, vlag == 0);
    EXPECT_EQ(config.denoise, vlag == 1);
    EXPECT_EQ(config.agc, vlag == 2);
    EXPECT_EQ(config.gainBits, 6U);
  }
}

// Any 32 bits as settings, encoded. What is to come is worked out here by hand, from the table of
// the ranges, and the frames come straight out of the library.
class SpeexConfigFuzz : public EncoderProef, public testing::WithParamInterface<unsigned int> {
 protected:
  using Bron = std::mt19937;

  // A number in range, one beside a bound, a float without sense, or any at all.
  static unsigned int getal(Bron& bron) {
    constexpr std::array<unsigned int, 14> bijzonder{
        3,          11,         255,        1300000000,  // 264 million as a float
        2139095039, 2139095040,                          // the largest float, and infinity
        2143289344, 2147483647, 2147483648, 2147483649,  // NaN, NaN, -0
        3447483648, 4286578688, 4290772992, 4294967295};
    switch (bron() % 4) {
      case 0:
        return static_cast<unsigned int>(bron() % 11);
      case 1:
      case 2:
        return bijzonder[bron() % bijzonder.size()];
      default:
        return static_cast<unsigned int>(bron());
    }
  }

  static KestrolinConfig record(Bron& bron) {
    KestrolinConfig record{};
    record.speexFormat = static_cast<int>(getal(bron));
    record.speexQuality = getal(bron);
    record.speexComplexity = getal(bron);
    record.speexBitRateChoice = static_cast<int>(bron() % 3 == 0 ? getal(bron) : bron() % 3);
    record.speexBitRate = bron() % 2 == 0 ? getal(bron) : static_cast<unsigned int>(bron() % 60000);
    record.speexVAC = bron() % 2 == 0;
    record.speexDenoise = bron() % 2 == 0;
    record.speexAGC = bron() % 2 == 0;
    return record;
  }

  static unsigned int getoond(unsigned int niveau) {
    return niveau > 2147483647 ? 0 : std::min(niveau, 10U);
  }
  static int rij(int keuze) { return keuze == 1 || keuze == 2 ? keuze : 0; }

  static Instelling verwacht(KestrolinConfig const& record) {
    Instelling instelling;
    instelling.band = rij(record.speexFormat);
    instelling.kwaliteit = getoond(record.speexQuality);
    instelling.complexiteit = getoond(record.speexComplexity);
    instelling.soort = rij(record.speexBitRateChoice);
    instelling.maxBitrate = std::min(record.speexBitRate, 2147483647U);
    instelling.vad = record.speexVAC;
    instelling.denoise = record.speexDenoise;
    instelling.agc = record.speexAGC;
    return instelling;
  }

  static std::string regels(Instelling const& instelling) {
    auto const janee = [](bool vlag) { return vlag ? "true" : "false"; };
    auto const band = static_cast<std::size_t>(instelling.band);
    auto const soort = static_cast<std::size_t>(instelling.soort);
    InstelRegels regels;
    regels.frame = std::array{"160", "320", "640"}[band];
    regels.band = std::array{"Narrowband", "Wideband", "Ultra Wideband"}[band];
    regels.soort = std::array{"Fixed Bitrate", "Variable Bitrate", "Averaged Bitrate"}[soort];
    regels.max = std::to_string(instelling.maxBitrate);
    regels.agc = janee(instelling.agc);
    regels.denoise = janee(instelling.denoise);
    regels.vad = janee(instelling.vad);
    regels.kwaliteit = std::to_string(instelling.kwaliteit);
    regels.complexiteit = std::to_string(instelling.complexiteit);
    return regels.tekst();
  }
};

TEST_P(SpeexConfigFuzz, EveryRecordEncodesAndTheTextTellsWhatWasUsed) {
  constexpr int aantal = 100;
  Bron bron(GetParam());
  for (int ronde = 0; ronde < aantal; ++ronde) {
    KestrolinConfig const vreemd = record(bron);
    Instelling const instelling = verwacht(vreemd);
    // Every band at its rate, so that every record gets to its frames.
    std::vector<int> const samples = spraak(3 * instelling.frame(), instelling.rate());
    std::string const pad = wav("toon.wav", samples, instelling.rate());
    SpeexDesktopEncoder encoder(maakSpeexConfig(vreemd, 0), SpeexEncoderOpties());
    Codering const codering = codeer(encoder, pad);
    ASSERT_EQ(codering.resultaat, SpeexDesktopEncoder::gelukt);
    EXPECT_NE(codering.tekst.find(regels(instelling)), std::string::npos) << codering.tekst;
    EXPECT_EQ(framesIn(codering.tekst), LosseEncoder(instelling).bestand(samples));
    ASSERT_FALSE(HasFailure()) << "round " << ronde << ": " << vreemd.speexFormat << " "
                               << vreemd.speexQuality << " " << vreemd.speexComplexity << " "
                               << vreemd.speexBitRateChoice << " " << vreemd.speexBitRate;
  }
}

INSTANTIATE_TEST_SUITE_P(, SpeexConfigFuzz, testing::Values(1U, 2U, 3U, 4U));

}  // namespace
