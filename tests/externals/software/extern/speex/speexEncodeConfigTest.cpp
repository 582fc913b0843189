// The settings of the encoder: a record that holds what it is handed.
#include "externals/software/extern/speex/speexEncodeConfig.h"

#include <gtest/gtest.h>

#include <type_traits>
#include <vector>

#include "tests/externals/software/extern/speex/speexConfigVelden.h"

namespace {

static_assert(std::is_base_of_v<VelmoraAudioConfig, SpeexEncodeConfig>);
static_assert(std::is_trivially_copyable_v<SpeexEncodeConfig>);
static_assert(!std::is_default_constructible_v<SpeexEncodeConfig>);
static_assert(std::is_same_v<decltype(SpeexEncodeConfig::kwaliteit), unsigned int>);
static_assert(std::is_same_v<decltype(SpeexEncodeConfig::complexiteit), unsigned int>);
static_assert(std::is_same_v<decltype(SpeexEncodeConfig::maxBitrate), unsigned int>);
static_assert(std::is_same_v<decltype(SpeexEncodeConfig::gainBits), unsigned long long>);

SpeexBandFormaat band(int waarde) {
  return static_cast<SpeexBandFormaat>(waarde);
}

SpeexBitrateType soort(int waarde) {
  return static_cast<SpeexBitrateType>(waarde);
}

void verwachtFrequentie(SpeexEncodeConfig const& config, long long teller) {
  EXPECT_EQ(config.sampFreq.teller(), teller);
  EXPECT_EQ(config.sampFreq.noemer(), 1);
  EXPECT_EQ(config.aantalBits, 16U);
}

TEST(SpeexFormaten, ValuesAreIndicesOfTheChoices) {
  EXPECT_EQ(static_cast<int>(SpeexNarrowband), 0);
  EXPECT_EQ(static_cast<int>(SpeexWideband), 1);
  EXPECT_EQ(static_cast<int>(SpeexUltraWideband), 2);
  EXPECT_EQ(static_cast<int>(SpeexFixedBitrate), 0);
  EXPECT_EQ(static_cast<int>(SpeexVariableBitrate), 1);
  EXPECT_EQ(static_cast<int>(SpeexAveragedBitrate), 2);
}

TEST(SpeexEncodeConfig, WidebandIs16000Over1And16BitsWhateverTheOtherArguments) {
  verwachtFrequentie({band(1), 0, 0, soort(0), 0, 0, false, false, false}, 16000);
  verwachtFrequentie({band(1), 10, 10, soort(1), 8000, 8, true, true, true}, 16000);
  verwachtFrequentie({band(1), ~0U, ~0U, soort(7), ~0U, ~0U, true, false, true}, 16000);
}

TEST(SpeexEncodeConfig, FrequencyFollowsTheBand) {
  verwachtFrequentie({band(0), 8, 3, soort(0), 0, 8, false, false, false}, 8000);
  verwachtFrequentie({band(2), 8, 3, soort(0), 0, 8, false, false, false}, 32000);
}

TEST(SpeexEncodeConfig, BandThatDoesNotExistIsKeptWithFrequency0Over1) {
  for (int const waarde : {3, 7, -1, 2147483647, -2147483647 - 1}) {
    SpeexEncodeConfig const config(band(waarde), 8, 3, soort(0), 0, 8, false, false, false);
    verwachtFrequentie(config, 0);
    EXPECT_EQ(static_cast<int>(config.formaat), waarde);
  }
}

TEST(SpeexEncodeConfig, EveryArgumentIsInItsOwnField) {
  SpeexEncodeConfig const config(SpeexUltraWideband, 1, 2, SpeexVariableBitrate, 3, 4, false, false,
                                 false);
  EXPECT_EQ(config.formaat, SpeexUltraWideband);
  EXPECT_EQ(config.kwaliteit, 1U);
  EXPECT_EQ(config.complexiteit, 2U);
  EXPECT_EQ(config.bitrateType, SpeexVariableBitrate);
  EXPECT_EQ(config.maxBitrate, 3U);
  EXPECT_EQ(config.gainBits, 4U);
}

TEST(SpeexEncodeConfig, EverySwitchIsItsOwn) {
  auto const met = [](bool vad, bool denoise, bool agc) {
    SpeexEncodeConfig const config(SpeexNarrowband, 8, 3, SpeexFixedBitrate, 0, 8, vad, denoise,
                                   agc);
    return std::vector<bool>{config.vad, config.denoise, config.agc};
  };
  EXPECT_EQ(met(false, false, false), (std::vector<bool>{false, false, false}));
  EXPECT_EQ(met(true, false, false), (std::vector<bool>{true, false, false}));
  EXPECT_EQ(met(false, true, false), (std::vector<bool>{false, true, false}));
  EXPECT_EQ(met(false, false, true), (std::vector<bool>{false, false, true}));
}

TEST(SpeexEncodeConfig, NothingIsBroughtWithinARange) {
  SpeexEncodeConfig const config(SpeexNarrowband, 4294967295U, 4000000000U, soort(-5), 3000000000U,
                                 2147483648U, false, false, false);
  EXPECT_EQ(config.kwaliteit, 4294967295U);
  EXPECT_EQ(config.complexiteit, 4000000000U);
  EXPECT_EQ(static_cast<int>(config.bitrateType), -5);
  EXPECT_EQ(config.maxBitrate, 3000000000U);
}

TEST(SpeexEncodeConfig, GainBitsWidenWithoutSign) {
  SpeexEncodeConfig const config(SpeexNarrowband, 8, 3, SpeexFixedBitrate, 0, 4294967295U, false,
                                 false, false);
  EXPECT_EQ(config.gainBits, 4294967295ULL);
}

TEST(SpeexEncodeConfig, AssignmentCopiesEveryField) {
  SpeexEncodeConfig const bron(SpeexUltraWideband, 9, 7, SpeexAveragedBitrate, 24000, 4, true,
                               false, true);
  SpeexEncodeConfig doel(SpeexNarrowband, 1, 2, SpeexFixedBitrate, 3, 8, false, true, false);
  doel.aantalBits = 24;
  doel = bron;
  EXPECT_EQ(velden(doel), velden(bron));
  verwachtFrequentie(doel, 32000);
}

TEST(SpeexEncodeConfig, AssignmentCopiesAFrequencyThatWasChangedAfterwards) {
  SpeexEncodeConfig bron(SpeexWideband, 9, 7, SpeexFixedBitrate, 0, 4, false, false, false);
  bron.sampFreq = Breuk(88200, 2);
  SpeexEncodeConfig doel(SpeexNarrowband, 1, 2, SpeexFixedBitrate, 3, 8, false, true, false);
  doel = bron;
  EXPECT_EQ(doel.sampFreq.teller(), 88200);
  EXPECT_EQ(doel.sampFreq.noemer(), 2);
}

TEST(SpeexEncodeConfig, SelfAssignmentChangesNothing) {
  SpeexEncodeConfig config(SpeexWideband, 9, 7, SpeexAveragedBitrate, 24000, 4, true, false, true);
  SpeexEncodeConfig const voor(config);
  SpeexEncodeConfig const& zelf = config;
  config = zelf;
  EXPECT_EQ(velden(config), velden(voor));
  verwachtFrequentie(config, 16000);
}

}  // namespace
