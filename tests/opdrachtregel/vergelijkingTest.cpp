// What is measured of ADPCM and of files with several channels, held against the model of the
// coder.
#include "opdrachtregel/vergelijking.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "tests/audio/codec/adpcmModel.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavMaker.h"

namespace {

constexpr double dichtbij = 1e-9;  // dB

std::optional<Vergelijking> vergelijkBestand(std::string const& pad) {
  auto const opnamen = leesOpnamen({pad});
  return opnamen ? vergelijk(opnamen->front()) : std::nullopt;
}

Encodering const& zoek(Vergelijking const& vergelijking, std::string const& instelling,
                       ArraySoort soort) {
  return *std::find_if(vergelijking.encoderingen.begin(), vergelijking.encoderingen.end(),
                       [&](Encodering const& een) {
                         return een.instelling.soort == soort &&
                                beschrijf(een.instelling) == instelling;
                       });
}

// Of these samples, times `schaalBron`, against what the model makes of `gecodeerd`, times
// `schaal`.
Kwaliteit doorModel(std::vector<int> const& samples, double schaalBron,
                    std::vector<int> const& gecodeerd, double schaal) {
  AdpcmStand heen;
  AdpcmStand terug;
  std::vector<int> const gehoord = modelSamples(terug, modelBytes(heen, gecodeerd, 1));
  return *meetKwaliteit(opSchaal({samples.begin(), samples.end()}, schaalBron),
                        opSchaal({gehoord.begin(), gehoord.end()}, schaal), 8000);
}

void verwacht(Encodering const& encodering, Kwaliteit const& kwaliteit) {
  ASSERT_TRUE(encodering.kwaliteit);
  EXPECT_NEAR(encodering.kwaliteit->banden, kwaliteit.banden, dichtbij);
  EXPECT_NEAR(encodering.kwaliteit->golven, kwaliteit.golven, dichtbij);
}

std::vector<int> luid() {
  std::vector<std::int16_t> const samples = proefSamples(2000);
  return {samples.begin(), samples.end()};
}

// The same within 8 bits.
std::vector<int> zacht() {
  std::vector<int> samples = luid();
  std::transform(samples.begin(), samples.end(), samples.begin(),
                 [](int sample) { return static_cast<int>(std::lround(sample * 0.00387)); });
  return samples;
}

}  // namespace

TEST(Vergelijking, MeasuresAdpcmOfALoudRecordingAsItIsAndBroughtDown) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), luid());
  std::optional<Vergelijking> const gevonden = vergelijkBestand(map.pad("a.wav"));
  ASSERT_TRUE(gevonden);
  EXPECT_FALSE(gevonden->pastInByte);
  verwacht(zoek(*gevonden, "as it is", ArraySoort::adpcm), doorModel(luid(), 1, luid(), 256));
  verwacht(zoek(*gevonden, "brought down to 8 bits", ArraySoort::adpcm),
           doorModel(luid(), 1, zacht(), 1 / 0.00387));
}

TEST(Vergelijking, MeasuresAdpcmOfARecordingThatFitsAtTheLevelOfADacOf8Bits) {
  TijdelijkeMap const map;
  std::vector<int> samples = zacht();
  samples.back() = -128;
  samples.front() = 127;
  schrijfWav(map.pad("a.wav"), samples);
  std::optional<Vergelijking> const gevonden = vergelijkBestand(map.pad("a.wav"));
  ASSERT_TRUE(gevonden);
  EXPECT_TRUE(gevonden->pastInByte);
  EXPECT_EQ(gevonden->encoderingen.size(), 14U);
  verwacht(zoek(*gevonden, "as it is", ArraySoort::adpcm), doorModel(samples, 256, samples, 256));
  // One more is too much.
  for (int const teveel : {128, -129}) {
    samples.back() = teveel;
    schrijfWav(map.pad("a.wav"), samples);
    EXPECT_FALSE(vergelijkBestand(map.pad("a.wav"))->pastInByte);
  }
}

// As many interleaved values as the file has frames, by each encoder: they are held against these.
TEST(Vergelijking, MeasuresTheValuesThatEncodersTakeOfAFileOfTwoChannels) {
  TijdelijkeMap const map;
  std::vector<int> samples = luid();
  std::vector<int> helft(samples.begin(), samples.begin() + 1000);
  schrijfWav(map.pad("a.wav"), samples, {8000, 2});
  std::optional<Vergelijking> const gevonden = vergelijkBestand(map.pad("a.wav"));
  ASSERT_TRUE(gevonden);
  EXPECT_DOUBLE_EQ(gevonden->duur(), 0.125);
  for (ArraySoort const soort : {ArraySoort::pcm, ArraySoort::wav}) {
    Encodering const heel = zoek(*gevonden, "16-bit DAC", soort);
    EXPECT_EQ(heel.bytes, (soort == ArraySoort::pcm ? 6U : 44U) + 2000U);
    EXPECT_EQ(gevonden->bytesPerSeconde(heel), soort == ArraySoort::pcm ? 16048 : 16352);
    verwacht(heel, {35, 35});
  }
  verwacht(zoek(*gevonden, "as it is", ArraySoort::adpcm), doorModel(helft, 1, helft, 256));
}
