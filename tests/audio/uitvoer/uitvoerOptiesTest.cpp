// The options of the encoders, also of settings that lie outside every range.
#include "audio/uitvoer/uitvoerOpties.h"

#include <gtest/gtest.h>

#include <array>

#include "audio/uitvoer/dacBreedte.h"
#include "audio/uitvoer/kestrolinConfig.h"
#include "tests/externals/software/extern/speex/encoderTekstHulp.h"

namespace {

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
    KestrolinConfig record;
    record.speexQuality = grens.getal;
    SpeexEncodeConfig const config = maakSpeexConfig(record);
    EXPECT_EQ(config.kwaliteit, grens.gebruikt) << grens.getal;
    EXPECT_EQ(config.complexiteit, 3U);
  }
}

TEST(SpeexConfig, ComplexityIsWhatTheWindowShows) {
  for (auto const& grens : niveaus) {
    KestrolinConfig record;
    record.speexComplexity = grens.getal;
    SpeexEncodeConfig const config = maakSpeexConfig(record);
    EXPECT_EQ(config.complexiteit, grens.gebruikt) << grens.getal;
    EXPECT_EQ(config.kwaliteit, 8U);
  }
}

constexpr std::array<Grens<int>, 8> rijen{
    {{0, 0}, {1, 1}, {2, 2}, {3, 0}, {99, 0}, {2147483647, 0}, {-1, 0}, {-2147483647 - 1, 0}}};

TEST(SpeexConfig, BandThatDoesNotExistIsNarrowband) {
  for (auto const& grens : rijen) {
    KestrolinConfig record;
    record.speexFormat = grens.getal;
    SpeexEncodeConfig const config = maakSpeexConfig(record);
    EXPECT_EQ(config.formaat, grens.gebruikt) << grens.getal;
    EXPECT_EQ(config.bitrateType, SpeexFixedBitrate);
    EXPECT_EQ(config.sampFreq, Breuk(bandRates[static_cast<std::size_t>(grens.gebruikt)], 1));
    EXPECT_EQ(speexBandVan(record), config.formaat);
  }
}

TEST(SpeexConfig, KindOfBitRateThatDoesNotExistIsFixed) {
  for (auto const& grens : rijen) {
    KestrolinConfig record;
    record.speexBitRateChoice = grens.getal;
    SpeexEncodeConfig const config = maakSpeexConfig(record);
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
    KestrolinConfig record;
    record.speexBitRate = grens.getal;
    EXPECT_EQ(maakSpeexConfig(record).maxBitrate, grens.gebruikt);
  }
}

TEST(SpeexConfig, FlagsAndBitsArePassedOnEachByItself) {
  for (int vlag = 0; vlag < 3; ++vlag) {
    KestrolinConfig record;
    record.speexVAC = vlag == 0;
    record.speexDenoise = vlag == 1;
    record.speexAGC = vlag == 2;
    record.dacNumberOfBits = 1;
    SpeexEncodeConfig const config = maakSpeexConfig(record);
    EXPECT_EQ(config.vad, vlag == 0);
    EXPECT_EQ(config.denoise, vlag == 1);
    EXPECT_EQ(config.agc, vlag == 2);
    EXPECT_EQ(config.gainBits, 6U);
  }
}

constexpr std::array<Grens<int>, 7> breedten{
    {{0, 8}, {1, 10}, {2, 12}, {3, 16}, {4, 16}, {-1, 16}, {2147483647, 16}}};

TEST(DacBreedte, IndexOutsideTheTableIsTheFullWidth) {
  for (auto const& grens : breedten) {
    KestrolinConfig record;
    record.dacNumberOfBits = grens.getal;
    EXPECT_EQ(dacBitsVan(record), grens.gebruikt) << grens.getal;
    EXPECT_EQ(bitShiftVan(record), 16U - static_cast<unsigned>(grens.gebruikt));
    EXPECT_EQ(maakInbedOpties(record, "").dacBits, grens.gebruikt);
    EXPECT_EQ(maakPcmOpties(record, "").bitShift, bitShiftVan(record));
    EXPECT_EQ(maakAdpcmOpties(record, "").bitShift, bitShiftVan(record));
    EXPECT_EQ(maakSpeexConfig(record).gainBits, bitShiftVan(record));
  }
}

TEST(UitvoerOpties, OptionsForCHaveNoClassAndAllOthersHave) {
  for (int const taal : {0, 1, 2, 99, -1}) {
    SCOPED_TRACE(taal);
    KestrolinConfig record;
    record.speexOutputLanguage = taal;
    wxString const klasse = taal == 0 ? "" : "Geluid";
    EXPECT_EQ(maakPcmOpties(record, "Geluid").taal, taal);
    EXPECT_EQ(maakPcmOpties(record, "Geluid").klasseNaam, klasse);
    EXPECT_EQ(maakAdpcmOpties(record, "Geluid").taal, taal);
    EXPECT_EQ(maakAdpcmOpties(record, "Geluid").klasseNaam, klasse);
    EXPECT_EQ(maakSpeexOpties(record, "Geluid").klasseNaam, klasse);
    EXPECT_EQ(maakSpeexOpties(record, "Geluid").taal, taal == 0 ? 0 : 1);
    EXPECT_EQ(maakInbedOpties(record, "Geluid").taal, taal);
    EXPECT_EQ(maakInbedOpties(record, "Geluid").klasse, "Geluid");
  }
}

TEST(KestrolinConfig, BeginsAsAFirstStartHasIt) {
  KestrolinConfig const record;
  EXPECT_EQ(record.speexFormat, 0);
  EXPECT_EQ(record.speexQuality, 8U);
  EXPECT_EQ(record.speexComplexity, 3U);
  EXPECT_EQ(record.speexBitRateChoice, 0);
  EXPECT_EQ(record.speexBitRate, 5000U);
  EXPECT_EQ(record.speexOutputLanguage, 1);
  EXPECT_TRUE(record.speexVAC && record.speexDenoise && record.speexAGC && record.IncludeHeader);
  EXPECT_EQ(record.dacNumberOfBits, 3);
}

}  // namespace
