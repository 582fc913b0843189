// The frequency-weighted measure, and the frames and bands that it is made of.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

#include "audio/weergave/kwaliteit.h"
#include "tests/audio/weergave/proefGeluid.h"

namespace {

double bands(Reeks const& original, Reeks const& heard, int rate) {
  return meetKwaliteit(original, heard, rate)->banden;
}

// One second of noise, and of it with other noise so many dB below.
double bandsOfNoise(int rate, double level) {
  auto const count = static_cast<std::size_t>(rate);
  Reeks const sound = ruis(count, 3000);
  return bands(sound, plus(sound, ruis(count, 3000 * std::pow(10, -level / 20), 2)), rate);
}

}  // namespace

TEST(BandMeter, CutsFramesOf30MsThatBegin7AndAHalfMsApart) {
  BandMeter const meter(8000);
  EXPECT_EQ(meter.aantalFrames(239), 0U);
  EXPECT_EQ(meter.aantalFrames(240), 1U);
  EXPECT_EQ(meter.aantalFrames(299), 1U);
  EXPECT_EQ(meter.aantalFrames(8000), 130U);  // (8000 - 240) / 60 + 1
  // The window rises from nothing to the middle and falls to nothing again.
  Reeks const window = meter.frame(Reeks(8000, 1), 129);
  ASSERT_EQ(window.size(), 240U);
  EXPECT_NEAR(window[0], 0, 1e-9);
  EXPECT_NEAR(window[60], 0.5, 0.01);
  EXPECT_NEAR(window[120], 1, 0.001);
  EXPECT_NEAR(window[239], 0, 1e-9);
}

TEST(BandMeter, TellsTheRootMeanSquareAsIfThereWereNoWindow) {
  BandMeter const meter(16000);
  EXPECT_NEAR(meter.niveau(meter.frame(Reeks(480, -7), 0)), 7, 1e-9);
}

TEST(BandMeter, GivesAFullSine1InItsBand) {
  struct Row {
    int rate;
    double frequency;
    std::ptrdiff_t band;
    std::size_t count;
  };
  // The middles of the tenth and the 20th band of Zwicker's table.
  for (Row const& row : {Row{8000, 1170, 9, 18}, Row{16000, 1170, 9, 22}, Row{32000, 1170, 9, 25},
                         Row{32000, 5800, 19, 25}}) {
    BandMeter const meter(row.rate);
    Reeks const sound = sinus(row.rate, row.frequency, 1);
    double sum = 0;
    std::size_t const frames = meter.aantalFrames(sound.size());
    for (std::size_t number = 0; number < frames; ++number) {
      Reeks const found = meter.grootten(meter.frame(sound, number));
      ASSERT_EQ(found.size(), row.count);
      EXPECT_EQ(std::max_element(found.begin(), found.end()) - found.begin(), row.band);
      sum += found[static_cast<std::size_t>(row.band)];
    }
    EXPECT_NEAR(sum / static_cast<double>(frames), 1, 0.05);
  }
}

TEST(Banden, CountNoiseFiveDbDownAsMuchMore) {
  // The figure itself lies above the level of the noise: 6 dB for a lone magnitude, of which the
  // noise turns the phase as well (the mean of 1 / cos^2 is 4 in dB), and more for a band, over
  // which the rest evens out.
  for (int const rate : proefRates) {
    double const ten = bandsOfNoise(rate, 10);
    double const fifteen = bandsOfNoise(rate, 15);
    EXPECT_GT(ten, 16) << rate;
    EXPECT_LT(ten, 26) << rate;
    EXPECT_NEAR(fifteen - ten, 5, 1) << rate;
  }
}

TEST(Banden, NeverCountMoreNoiseAsBetter) {
  for (int const rate : proefRates) {
    Reeks found;
    for (int level = -20; level < 50; level += 5) {
      found.push_back(bandsOfNoise(rate, level));
    }
    EXPECT_TRUE(std::is_sorted(found.begin(), found.end())) << rate;
  }
}

TEST(Banden, DoNotSeeAShiftInPhase) {
  for (int const rate : proefRates) {
    EXPECT_GT(bands(sinus(rate, 990, 0.5), sinus(rate, 990, 0.5, std::acos(0.0)), rate), 30)
        << rate;
  }
}

TEST(Banden, CountByTheFifthRootOfTheirMagnitude) {
  // The first band lies 30 dB above the second, and counts 10 ** (30 / 20 / 5) times.
  constexpr double weight = 1.99526;
  constexpr double soft = 0.0316228;
  EXPECT_NEAR(gewogenVerhouding({1, soft}, {1.1, soft}), (weight * 20 + 35) / (weight + 1), 1e-3);
  EXPECT_NEAR(gewogenVerhouding({1, soft}, {1, 1.1 * soft}), (weight * 35 + 20) / (weight + 1),
              1e-3);
}

TEST(Banden, LeaveOutWhatNeitherSoundLetsHear) {
  EXPECT_NEAR(gewogenVerhouding({0.5, 0.5e-4, 0.5e-4}, {0.55, 0.95e-4, 0}), 20, 1e-6);
  // Hiss in a band that the original leaves empty: at the threshold, with an error of half of it.
  double const weight = std::pow(0.0001 / 0.5, 0.2);
  EXPECT_NEAR(gewogenVerhouding({0.0001, 0.5}, {0.00015, 0.5}),
              (weight * 20 * std::log10(2.0) + 35) / (weight + 1), 1e-6);
}

TEST(Banden, HearAToneAboveTheThresholdAlone) {
  for (int const rate : proefRates) {
    Reeks const sound = sinus(rate, 340, 0.5);
    EXPECT_NEAR(bands(sound, plus(sound, sinus(rate, 2500, 0.8e-4)), rate), 35, 0.05) << rate;
    EXPECT_LT(bands(sound, plus(sound, sinus(rate, 2500, 10e-4)), rate), 33) << rate;
  }
}

TEST(Banden, HearUpToHalfTheSamplingFrequency) {
  for (int const rate : proefRates) {
    Reeks const sound = sinus(rate, 340, 0.5);
    EXPECT_LT(bands(sound, plus(sound, sinus(rate, 0.48 * rate, 0.01)), rate), 33) << rate;
  }
}
