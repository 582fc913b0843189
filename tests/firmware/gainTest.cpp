#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <vector>

#include "kestrolin_gain.h"
#include "tests/firmware/outputModel.h"

namespace {

struct Case {
  int sample;
  unsigned gain;
  int louder;
};

void expectAll(std::vector<Case> const& cases) {
  for (Case const& one : cases) {
    EXPECT_EQ(
        kestrolin_gain(static_cast<std::int16_t>(one.sample), static_cast<std::uint16_t>(one.gain)),
        one.louder)
        << one.sample << " x " << one.gain;
  }
}

}  // namespace

TEST(Gain, OneIsHalfOfTheMost) {
  EXPECT_EQ(KESTROLIN_GAIN_ONE, 16384U);
  EXPECT_EQ(KESTROLIN_GAIN_MAX, 32768U);
}

TEST(Gain, OfZeroIsSilence) {
  expectAll({{0, 0, 0}, {1, 0, 0}, {-1, 0, 0}, {32767, 0, 0}, {-32768, 0, 0}});
}

TEST(Gain, OfOneChangesNothing) {
  for (std::int16_t const sample : allSamples()) {
    ASSERT_EQ(kestrolin_gain(sample, KESTROLIN_GAIN_ONE), sample);
  }
}

TEST(Gain, RoundsHalvesAwayFromZero) {
  expectAll({{1, 8192, 1},
             {-1, 8192, -1},
             {3, 8192, 2},
             {-3, 8192, -2},
             {2, 8192, 1},
             {-2, 8192, -1},
             {1, 8191, 0},
             {-1, 8191, 0},
             {1, 24576, 2},
             {-1, 24576, -2},
             {1, 24575, 1},
             {-1, 24575, -1},
             {2, 4096, 1},
             {-32768, 1, -2},
             {32767, 1, 2}});
}

TEST(Gain, DoublesAtMost) {
  expectAll({{1000, 32768, 2000},
             {-1000, 32768, -2000},
             {1000, 32769, 2000},
             {1000, 65535, 2000},
             {-1000, 65535, -2000},
             {1000, 32767, 2000},
             {9000, 32767, 17999}});
}

TEST(Gain, BringsWhatLiesBeyondToTheEndOfTheRange) {
  expectAll({{16383, 32768, 32766},
             {16384, 32768, 32767},
             {-16384, 32768, -32768},
             {-16385, 32768, -32768},
             {32767, 32768, 32767},
             {-32768, 32768, -32768},
             {-32768, 65535, -32768},
             {32767, 16385, 32767},
             {-32768, 16385, -32768},
             {-32768, 16384, -32768},
             {-32768, 8192, -16384},
             {-32768, 16383, -32766}});
}

TEST(Gain, OfEverySampleIsThatOfTheModel) {
  for (int const gain : {0, 1, 2, 3, 5000, 8191, 8192, 8193, 11585, 16383, 16385, 23170, 24576,
                         32767, 32768, 32769, 50000, 65535}) {
    auto const others =
        std::count_if(allSamples().begin(), allSamples().end(), [gain](std::int16_t sample) {
          return kestrolin_gain(sample, static_cast<std::uint16_t>(gain)) !=
                 modelGain(sample, gain);
        });
    EXPECT_EQ(others, 0) << gain;
  }
}

TEST(Gain, OfARowLeavesWhatLiesBehindIt) {
  std::vector<std::int16_t> const samples{0, 1, -1, 1000, -1001, 32767, -32768};
  std::vector<std::int16_t> louder(samples.size() + 1, 7);
  kestrolin_gain_samples(louder.data(), samples.data(), samples.size(), 8192);
  EXPECT_EQ(louder, (std::vector<std::int16_t>{0, 1, -1, 500, -501, 16384, -16384, 7}));
}

TEST(Gain, OfARowMayLieWhereTheSamplesLie) {
  std::vector<std::int16_t> row{0, 1, -1, 20000, -20000, 99};
  kestrolin_gain_samples(row.data(), row.data(), row.size() - 1, 32768);
  EXPECT_EQ(row, (std::vector<std::int16_t>{0, 2, -2, 32767, -32768, 99}));
}

TEST(Gain, WritesNothingForNoSamples) {
  std::int16_t sample = 7;
  kestrolin_gain_samples(&sample, &sample, 0, 0);
  EXPECT_EQ(sample, 7);
}
