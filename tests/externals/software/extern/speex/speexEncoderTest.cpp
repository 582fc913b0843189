// The encoder's frames, against those of the library set up by the test itself.
#include "externals/software/extern/speex/speexEncoder.h"

#include <gtest/gtest.h>

#include <cstring>

#include "tests/externals/software/extern/speex/speexConfigVelden.h"
#include "tests/externals/software/extern/speex/speexRechtstreeks.h"

namespace {

constexpr std::size_t frames = 12;

class ProefEncoder : public SpeexEncoder {
 public:
  using SpeexEncoder::config;
  using SpeexEncoder::SpeexEncoder;

  std::vector<Bytes> codeer(std::vector<std::int16_t> const& samples) {
    return codeerFrames(encoderState.get(), bits, samples);
  }
};

// Settings at which nothing is a default of the library: its quality is 8, its complexity 2.
SpeexEncodeConfig instellingen(int band, int soort = SpeexFixedBitrate, bool vad = true) {
  return {static_cast<SpeexBandFormaat>(band),
          5,
          4,
          static_cast<SpeexBitrateType>(soort),
          9000,
          8,
          vad,
          false,
          false};
}

// The library with what all three kinds of bit rate have in common.
DirecteEncoder gewoon(int band, bool vad = true) {
  DirecteEncoder encoder(band);
  encoder.regel(SPEEX_SET_QUALITY, spx_int32_t{5});
  encoder.regel(SPEEX_SET_COMPLEXITY, spx_int32_t{4});
  encoder.regel(SPEEX_SET_VAD, spx_int32_t{vad ? 1 : 0});
  return encoder;
}

template <typename Soort>
DirecteEncoder variabel(int band, Soort kwaliteit) {
  DirecteEncoder encoder = gewoon(band);
  encoder.regel(SPEEX_SET_VBR, spx_int32_t{1});
  encoder.regel(SPEEX_SET_VBR_QUALITY, kwaliteit);
  encoder.regel(SPEEX_SET_VBR_MAX_BITRATE, spx_int32_t{9000});
  return encoder;
}

DirecteEncoder gemiddeld(int band, spx_int32_t doel) {
  DirecteEncoder encoder = gewoon(band);
  encoder.regel(SPEEX_SET_ABR, doel);
  return encoder;
}

float alsFloat(spx_int32_t geheel) {
  float waarde = 0;
  static_assert(sizeof waarde == sizeof geheel);
  std::memcpy(&waarde, &geheel, sizeof waarde);
  return waarde;
}

class SpeexEncoderBand : public testing::TestWithParam<int> {
 protected:
  int band = GetParam();
  std::vector<std::int16_t> samples = directeSamples(band, frames);
};

INSTANTIATE_TEST_SUITE_P(Banden, SpeexEncoderBand, testing::Values(0, 1, 2));

TEST_P(SpeexEncoderBand, UnknownBitrateKindEncodesAsFixed) {
  for (int const soort : {3, 7, -1}) {
    EXPECT_EQ(ProefEncoder(instellingen(band, soort)).codeer(samples), gewoon(band).codeer(samples))
        << soort;
  }
}

TEST_P(SpeexEncoderBand, VariableBitrateTakesTheBitsOfTheIntegerQualityForAFloat) {
  std::vector<Bytes> const gevonden =
      ProefEncoder(instellingen(band, SpeexVariableBitrate)).codeer(samples);
  ASSERT_EQ(gevonden.size(), frames);
  EXPECT_EQ(gevonden, variabel(band, spx_int32_t{5}).codeer(samples));
  EXPECT_EQ(gevonden, variabel(band, alsFloat(5)).codeer(samples));
  EXPECT_NE(gevonden, variabel(band, 5.0F).codeer(samples));
  EXPECT_NE(gevonden, gewoon(band).codeer(samples));
}

TEST_P(SpeexEncoderBand, AveragedBitrateAimsFor1BitASecond) {
  std::vector<Bytes> const gevonden =
      ProefEncoder(instellingen(band, SpeexAveragedBitrate)).codeer(samples);
  ASSERT_EQ(gevonden.size(), frames);
  EXPECT_EQ(gevonden, gemiddeld(band, 1).codeer(samples));
  EXPECT_NE(gevonden, gemiddeld(band, 9000).codeer(samples));
  EXPECT_NE(gevonden, gewoon(band).codeer(samples));
}

TEST_P(SpeexEncoderBand, VoiceActivityDetectionReachesTheLibrary) {
  std::vector<Bytes> const zonder =
      ProefEncoder(instellingen(band, SpeexFixedBitrate, false)).codeer(samples);
  EXPECT_EQ(zonder, gewoon(band, false).codeer(samples));
  EXPECT_NE(zonder, gewoon(band, true).codeer(samples));
}

TEST_P(SpeexEncoderBand, DenoiseAndGainControlChangeNoAudio) {
  for (int const soort : {0, 1, 2}) {
    SpeexEncodeConfig met = instellingen(band, soort);
    met.denoise = true;
    met.agc = true;
    EXPECT_EQ(ProefEncoder(met).codeer(samples),
              ProefEncoder(instellingen(band, soort)).codeer(samples));
  }
}

TEST_P(SpeexEncoderBand, FrequencyIsTheOneOfTheBand) {
  SpeexEncoder const encoder(instellingen(band));
  SpeexBasis const& basis = encoder;
  EXPECT_EQ(basis.geefSampFreq(), 8000 << band);
}

TEST(SpeexEncoder, FrequencyComesFromTheBandAndNotFromTheSettings) {
  SpeexEncodeConfig vreemd = instellingen(1);
  vreemd.sampFreq = Breuk(44100, 1);
  EXPECT_EQ(SpeexEncoder(vreemd).geefSampFreq(), 16000);
}

TEST(SpeexEncoder, BandThatDoesNotExistEncodesAsNarrowband) {
  std::vector<std::int16_t> const samples = directeSamples(0, frames);
  for (int const band : {3, 7, -1, 2147483647, -2147483647 - 1}) {
    ProefEncoder encoder(instellingen(band));
    EXPECT_EQ(encoder.geefSampFreq(), 8000) << band;
    EXPECT_EQ(encoder.codeer(samples), gewoon(0).codeer(samples)) << band;
    EXPECT_EQ(static_cast<int>(encoder.config.formaat), band);
    EXPECT_EQ(encoder.config.sampFreq.teller(), 0) << band;
    EXPECT_EQ(encoder.config.sampFreq.noemer(), 1) << band;
  }
}

TEST(SpeexEncoder, GivesACopyOfItsSettings) {
  SpeexEncodeConfig const bron = instellingen(2, SpeexAveragedBitrate);
  SpeexEncoder const encoder(bron);
  SpeexEncodeConfig doel(SpeexNarrowband, 1, 2, SpeexFixedBitrate, 3, 4, false, true, true);
  encoder.geefConfig(doel);
  EXPECT_EQ(velden(doel), velden(bron));
}

TEST(SpeexEncoder, KeepsItsOwnCopyOfTheSettings) {
  SpeexEncodeConfig bron = instellingen(1);
  SpeexEncoder const encoder(bron);
  bron = instellingen(2, SpeexVariableBitrate, false);
  SpeexEncodeConfig doel = bron;
  encoder.geefConfig(doel);
  EXPECT_EQ(velden(doel), velden(instellingen(1)));
  doel.kwaliteit = 0;
  encoder.geefConfig(doel);
  EXPECT_EQ(doel.kwaliteit, 5U);
}

TEST(SpeexEncoder, GivingItsSettingsToItsOwnSettingsChangesNothing) {
  SpeexEncodeConfig const bron = instellingen(2, SpeexVariableBitrate);
  ProefEncoder encoder(bron);
  encoder.geefConfig(encoder.config);
  EXPECT_EQ(velden(encoder.config), velden(bron));
}

}  // namespace
