// The measures on sounds of which the answer is known beforehand: what holds of either of them, at
// every rate.
#include "audio/weergave/kwaliteit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>

#include "tests/audio/weergave/proefGeluid.h"

namespace {

constexpr double near = 1e-6;  // dB

// Noise of a second, and this done to it.
void expectBoth(std::function<Reeks(Reeks const&)> const& heard, double answer) {
  for (int const rate : proefRates) {
    Reeks const sound = ruis(static_cast<std::size_t>(rate), 3000);
    std::optional<Kwaliteit> const found = meetKwaliteit(sound, heard(sound), rate);
    ASSERT_TRUE(found);
    EXPECT_NEAR(found->banden, answer, near) << rate;
    EXPECT_NEAR(found->golven, answer, near) << rate;
  }
}

void expectBothOfTimes(double factor, double answer) {
  expectBoth([factor](Reeks const& sound) { return maal(sound, factor); }, answer);
}

// Integers that anyone can make again: loud and soft by turns of 2000.
Reeks integers(std::size_t count) {
  Reeks sound(count);
  std::generate(sound.begin(), sound.end(), [x = 1U, n = 0]() mutable {
    x = (x * 1103515245U + 12345U) % 0x80000000U;
    int const number = static_cast<int>(x >> 16U);
    return n++ / 2000 % 2 == 0 ? number % 8000 - 4000 : number % 160 - 80;
  });
  return sound;
}

Reeks coarse(Reeks sound) {
  std::transform(sound.begin(), sound.end(), sound.begin(),
                 [](double sample) { return std::floor(sample / 64) * 64; });
  return sound;
}

Reeks late(Reeks sound) {
  sound.insert(sound.begin(), {0, 0});
  sound.resize(sound.size() - 2);
  return sound;
}

}  // namespace

TEST(Kwaliteit, OfTheSameSoundIsTheMost) {
  expectBothOfTimes(1, 35);
}

TEST(Kwaliteit, OfATenthTooLoudIs20Db) {
  expectBothOfTimes(1.1, 20);
}

TEST(Kwaliteit, OfATenthTooSoftIs20Db) {
  expectBothOfTimes(0.9, 20);
}

TEST(Kwaliteit, OfAnErrorAsLargeAsTheSoundIs0Db) {
  expectBothOfTimes(2, 0);
}

TEST(Kwaliteit, IsLimited) {
  expectBothOfTimes(10, -10);
  expectBothOfTimes(1.001, 35);
}

TEST(Kwaliteit, IsThatOfTheShorterSound) {
  expectBoth(
      [](Reeks const& sound) {
        Reeks half = maal(sound, 1.1);
        half.resize(half.size() / 2);
        return half;
      },
      20);
  expectBoth([](Reeks const& sound) { return maal(achterElkaar(sound, ruis(4000, 99, 2)), 1.1); },
             20);
}

TEST(Kwaliteit, LeavesOutWhatIsSilentInTheOriginal) {
  for (int const rate : proefRates) {
    auto const count = static_cast<std::size_t>(rate);
    Reeks const sound = ruis(count, 3000);
    std::optional<Kwaliteit> const found =
        meetKwaliteit(achterElkaar(sound, Reeks(count)),
                      achterElkaar(maal(sound, 1.1), ruis(count, 3000, 2)), rate);
    ASSERT_TRUE(found);
    // The frames over the edge have a part of the pause.
    for (double const figure : {found->banden, found->golven}) {
      EXPECT_GT(figure, 18.5) << rate;
      EXPECT_LE(figure, 20 + near) << rate;
    }
  }
}

TEST(Kwaliteit, IsNothingWithoutAFrameThatSounds) {
  EXPECT_FALSE(meetKwaliteit({}, {}, 8000));
  EXPECT_FALSE(meetKwaliteit(ruis(239, 3000), ruis(239, 3000), 8000));
  EXPECT_TRUE(meetKwaliteit(ruis(240, 3000), ruis(240, 3000), 8000));
  EXPECT_FALSE(meetKwaliteit(ruis(8000, 3000), {}, 8000));
  // Silence ends at a thousandth of full scale, 32.768.
  EXPECT_FALSE(meetKwaliteit(Reeks(240, 32), Reeks(240, 32), 8000));
  EXPECT_TRUE(meetKwaliteit(Reeks(240, 33), Reeks(240, 33), 8000));
}

// Numpy's figures: frames by sliding_window_view times numpy.hanning, numpy.fft.rfft of 512, 1024
// and 2048 points, its magnitudes added up by band; 10 log10 of the square of a band's magnitude
// over that of the difference, clipped to -10 and 35, averaged with the weights magnitude ** 0.2;
// of the waves the same of a frame's energy over that of the difference.
TEST(Kwaliteit, IsThatOfNumpy) {
  struct Row {
    int rate;
    Kwaliteit coarse;
    Kwaliteit late;
  };
  for (Row const& row :
       {Row{8000, {26.296337803277204, 19.1691284571844}, {34.23657013349895, -2.9852930017672774}},
        Row{16000,
            {27.430116047640833, 20.287458669179742},
            {34.55551186691265, -2.9368909909529477}},
        Row{32000,
            {29.064243215128936, 22.371727630083548},
            {34.7563731399843, -3.01282353469879}}}) {
    Reeks const sound = integers(static_cast<std::size_t>(row.rate) / 2);
    for (auto const& [heard, expected] :
         {std::pair(coarse(sound), row.coarse), std::pair(late(sound), row.late)}) {
      std::optional<Kwaliteit> const found = meetKwaliteit(sound, heard, row.rate);
      ASSERT_TRUE(found);
      EXPECT_NEAR(found->banden, expected.banden, near) << row.rate;
      EXPECT_NEAR(found->golven, expected.golven, near) << row.rate;
    }
  }
}

TEST(Golven, OfNoiseAtALevelAreThatLevel) {
  for (int const rate : proefRates) {
    auto const count = 4 * static_cast<std::size_t>(rate);
    Reeks const sound = ruis(count, 3000);
    for (double const level : {0., 10., 20., 30.}) {
      Reeks const grain = ruis(count, 3000 * std::pow(10, -level / 20), 2);
      EXPECT_NEAR(meetKwaliteit(sound, plus(sound, grain), rate)->golven, level, 0.4) << rate;
    }
  }
}

TEST(Golven, SeeAShiftInPhase) {
  // The difference of a sine and a cosine is a sine 3 dB above either.
  EXPECT_NEAR(
      meetKwaliteit(sinus(8000, 1000, 0.5), sinus(8000, 1000, 0.5, std::acos(0.0)), 8000)->golven,
      -3.01, 0.05);
}
