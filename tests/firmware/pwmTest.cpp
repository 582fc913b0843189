#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <vector>

#include "kestrolin_pwm.h"
#include "tests/firmware/outputModel.h"

namespace {

int compareOf(int sample, unsigned bits, unsigned top) {
  return kestrolin_pwm_compare(static_cast<std::int16_t>(sample), bits,
                               static_cast<std::uint16_t>(top));
}

}  // namespace

TEST(Pwm, SilenceIsHalfOfThePeriodRoundedDown) {
  for (unsigned bits = 0; bits <= 20; ++bits) {
    EXPECT_EQ(compareOf(0, bits, 255), 128) << bits;
    EXPECT_EQ(compareOf(0, bits, 1023), 512) << bits;
    EXPECT_EQ(compareOf(0, bits, 65535), 32768) << bits;
    EXPECT_EQ(compareOf(0, bits, 999), 500) << bits;
    EXPECT_EQ(compareOf(0, bits, 1000), 500) << bits;
    EXPECT_EQ(compareOf(0, bits, 1), 1) << bits;
    EXPECT_EQ(compareOf(0, bits, 0), 0) << bits;
  }
}

TEST(Pwm, LoudestIsTopWhereThePeriodHasNoMoreStepsThanTheSamples) {
  EXPECT_EQ(compareOf(127, 8, 255), 255);
  EXPECT_EQ(compareOf(127, 8, 199), 199);
  EXPECT_EQ(compareOf(2047, 12, 255), 255);
  EXPECT_EQ(compareOf(2047, 12, 1023), 1023);
  EXPECT_EQ(compareOf(2047, 12, 4095), 4095);
  EXPECT_EQ(compareOf(2047, 12, 2999), 2999);
  EXPECT_EQ(compareOf(32767, 16, 65535), 65535);
  EXPECT_EQ(compareOf(32767, 16, 12345), 12345);
}

// By hand: 255 / 256 of 1024 and of 65536, 4095 / 4096 of 65536, 1 / 2 of 100.
TEST(Pwm, LoudestIsLessWhereThePeriodHasMoreSteps) {
  EXPECT_EQ(compareOf(127, 8, 1023), 1020);
  EXPECT_EQ(compareOf(127, 8, 65535), 65280);
  EXPECT_EQ(compareOf(2047, 12, 65535), 65520);
  EXPECT_EQ(compareOf(0, 1, 99), 50);
  EXPECT_EQ(compareOf(32767, 1, 99), 50);
}

TEST(Pwm, QuietestIsZero) {
  for (unsigned const top : {0U, 1U, 255U, 999U, 1023U, 65535U}) {
    EXPECT_EQ(compareOf(-128, 8, top), 0);
    EXPECT_EQ(compareOf(-2048, 12, top), 0);
    EXPECT_EQ(compareOf(-32768, 16, top), 0);
  }
}

// By hand: (sample + 128) x 1000 / 256, and (sample + 2048) x 400 / 4096.
TEST(Pwm, ScalesToAPeriodThatIsNoPowerOfTwo) {
  EXPECT_EQ(compareOf(-1, 8, 999), 496);   // 496.1
  EXPECT_EQ(compareOf(1, 8, 999), 503);    // 503.9
  EXPECT_EQ(compareOf(64, 8, 999), 750);   // 750
  EXPECT_EQ(compareOf(127, 8, 999), 996);  // 996.1
  EXPECT_EQ(compareOf(-1, 12, 399), 199);  // 199.9
  EXPECT_EQ(compareOf(11, 12, 399), 201);  // 201.07
}

TEST(Pwm, BringsASampleBeyondItsWidthToTheEndOfTheRange) {
  EXPECT_EQ(compareOf(128, 8, 255), 255);
  EXPECT_EQ(compareOf(32767, 8, 255), 255);
  EXPECT_EQ(compareOf(-129, 8, 255), 0);
  EXPECT_EQ(compareOf(-32768, 12, 1023), 0);
  EXPECT_EQ(compareOf(5000, 12, 1023), 1023);
}

TEST(Pwm, OfEverySampleIsThatOfTheModel) {
  for (unsigned bits = 1; bits <= 16; ++bits) {
    for (int const top : {0, 1, 2, 99, 255, 256, 1000, 1023, 4799, 32768, 65534, 65535}) {
      auto const others =
          std::count_if(allSamples().begin(), allSamples().end(), [&](std::int16_t sample) {
            return kestrolin_pwm_compare(sample, bits, static_cast<std::uint16_t>(top)) !=
                   modelPwm(sample, bits, top);
          });
      EXPECT_EQ(others, 0) << bits << ", " << top;
    }
  }
}

TEST(Pwm, GivesTheValuesOfARow) {
  std::vector<std::int16_t> const samples{0, -128, 127, 64, 300};
  std::vector<std::uint16_t> compares(samples.size() + 1, 7);
  kestrolin_pwm_compares(compares.data(), samples.data(), samples.size(), 8, 1023);
  EXPECT_EQ(compares, (std::vector<std::uint16_t>{512, 0, 1020, 768, 1020, 7}));
}

TEST(Pwm, PutsTheValuesWhereTheSamplesLie) {
  std::vector<std::int16_t> row{0, -128, 127, 64, 99};
  kestrolin_pwm_compares(reinterpret_cast<std::uint16_t*>(row.data()), row.data(), row.size() - 1,
                         8, 255);
  EXPECT_EQ(row, (std::vector<std::int16_t>{128, 0, 255, 192, 99}));
}

TEST(Pwm, WritesNothingForNoSamples) {
  std::uint16_t compare = 7;
  std::int16_t const sample = 1;
  kestrolin_pwm_compares(&compare, &sample, 0, 8, 255);
  EXPECT_EQ(compare, 7);
}
