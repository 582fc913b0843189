#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <vector>

#include "kestrolin_i2s.h"
#include "tests/firmware/outputModel.h"

using Samples = std::vector<std::int16_t>;

TEST(I2s, MovesASampleToTheHighEndOfItsWord) {
  EXPECT_EQ(kestrolin_i2s_word(1, 8), 256);
  EXPECT_EQ(kestrolin_i2s_word(-1, 8), -256);
  EXPECT_EQ(kestrolin_i2s_word(127, 8), 32512);
  EXPECT_EQ(kestrolin_i2s_word(-128, 8), -32768);
  EXPECT_EQ(kestrolin_i2s_word(1, 10), 64);
  EXPECT_EQ(kestrolin_i2s_word(-3, 12), -48);
  EXPECT_EQ(kestrolin_i2s_word(7, 4), 28672);
}

TEST(I2s, LeavesASampleOfSixteenBitsAsItIs) {
  for (std::int16_t const sample : allSamples()) {
    ASSERT_EQ(kestrolin_i2s_word(sample, 16), sample);
  }
}

TEST(I2s, LeavesSilenceAtZero) {
  for (unsigned bits = 0; bits <= 20; ++bits) {
    EXPECT_EQ(kestrolin_i2s_word(0, bits), 0) << bits;
  }
}

TEST(I2s, BringsASampleBeyondItsWidthToTheEndOfTheRange) {
  EXPECT_EQ(kestrolin_i2s_word(128, 8), 32512);
  EXPECT_EQ(kestrolin_i2s_word(32767, 8), 32512);
  EXPECT_EQ(kestrolin_i2s_word(-129, 8), -32768);
  EXPECT_EQ(kestrolin_i2s_word(-32768, 12), -32768);
  EXPECT_EQ(kestrolin_i2s_word(2048, 12), 32752);
}

TEST(I2s, WordOfEverySampleIsThatOfTheModel) {
  for (unsigned const bits : {0U, 1U, 2U, 4U, 8U, 10U, 12U, 15U, 16U, 17U, 40U}) {
    auto const others =
        std::count_if(allSamples().begin(), allSamples().end(), [bits](std::int16_t sample) {
          return kestrolin_i2s_word(sample, bits) != modelI2s(sample, takenBits(bits));
        });
    EXPECT_EQ(others, 0) << bits;
  }
}

TEST(I2s, GivesEachSampleOfOneChannelTwice) {
  Samples const samples{1, -1, 127, -200};
  Samples words(2 * samples.size() + 1, 7);
  kestrolin_i2s_mono(words.data(), samples.data(), samples.size(), 8);
  EXPECT_EQ(words, (Samples{256, 256, -256, -256, 32512, 32512, -32768, -32768, 7}));
}

TEST(I2s, PutsTheWordsOfOneChannelWhereItsSamplesBegin) {
  for (std::size_t count = 1; count <= 9; ++count) {
    Samples row(2 * count + 1, 99);
    Samples expected(row);
    for (std::size_t i = 0; i < count; ++i) {
      row[i] = static_cast<std::int16_t>(i + 1);
      expected[2 * i] = expected[2 * i + 1] = static_cast<std::int16_t>(16 * (i + 1));
    }
    kestrolin_i2s_mono(row.data(), row.data(), count, 12);
    EXPECT_EQ(row, expected) << count;
  }
}

TEST(I2s, LeavesTwoChannelsInTurn) {
  Samples const samples{1, -1, 127, -200, 3};
  Samples words(samples.size() + 1, 7);
  kestrolin_i2s_stereo(words.data(), samples.data(), 4, 8);
  EXPECT_EQ(words, (Samples{256, -256, 32512, -32768, 7, 7}));
}

TEST(I2s, PutsTheWordsOfTwoChannelsWhereTheSamplesLie) {
  Samples row{1, -1, 127, -200, 99};
  kestrolin_i2s_stereo(row.data(), row.data(), row.size() - 1, 8);
  EXPECT_EQ(row, (Samples{256, -256, 32512, -32768, 99}));
}

TEST(I2s, WritesNothingForNoSamples) {
  std::int16_t sample = 7;
  kestrolin_i2s_mono(&sample, &sample, 0, 8);
  kestrolin_i2s_stereo(&sample, &sample, 0, 8);
  EXPECT_EQ(sample, 7);
}
