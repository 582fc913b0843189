// Any 32 bits as settings of Speex, encoded with: a number without sense would end the program in
// the library. What is to come is worked out here by hand, from the table of the ranges, and the
// frames come straight out of the library.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

#include "audio/uitvoer/kestrolinConfig.h"
#include "audio/uitvoer/uitvoerOpties.h"
#include "tests/externals/software/extern/speex/encoderTekstHulp.h"

namespace {

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
    KestrolinConfig record;
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
    SpeexDesktopEncoder encoder(maakSpeexConfig(vreemd), SpeexEncoderOpties());
    Codering const codering = codeer(encoder, pad);
    ASSERT_EQ(codering.resultaat, SpeexDesktopEncoder::gelukt);
    EXPECT_NE(codering.tekst.find(instelRegels(instelling)), std::string::npos) << codering.tekst;
    EXPECT_EQ(framesIn(codering.tekst), LosseEncoder(instelling).bestand(samples));
    ASSERT_FALSE(HasFailure()) << "round " << ronde << ": " << vreemd.speexFormat << " "
                               << vreemd.speexQuality << " " << vreemd.speexComplexity << " "
                               << vreemd.speexBitRateChoice << " " << vreemd.speexBitRate;
  }
}

INSTANTIATE_TEST_SUITE_P(, SpeexConfigFuzz, testing::Values(1U, 2U, 3U, 4U));

}  // namespace
