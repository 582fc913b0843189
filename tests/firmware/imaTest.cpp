#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "kestrolin_ima.h"
#include "tests/audio/codec/adpcmModel.h"

namespace {

kestrolin_ima stateOf(int index, int predictor) {
  return {static_cast<std::int16_t>(predictor), static_cast<std::uint8_t>(index)};
}

}  // namespace

// By hand, from index 0 with step 7: each bit of a code gives a part of the step that is rounded
// down on its own, and so does the eighth that every code gives.
TEST(Ima, DecodesEveryCodeOfTheSmallestStep) {
  std::vector<int> const sums{0, 1, 3, 4, 7, 8, 10, 11};
  std::vector<int> const indexes{0, 0, 0, 0, 2, 4, 6, 8};
  for (std::size_t code = 0; code < sums.size(); ++code) {
    kestrolin_ima up = stateOf(0, 0);
    EXPECT_EQ(kestrolin_ima_decode(&up, static_cast<unsigned>(code)), sums[code]);
    EXPECT_EQ(up.index, indexes[code]);
    kestrolin_ima down = stateOf(0, 0);
    EXPECT_EQ(kestrolin_ima_decode(&down, static_cast<unsigned>(code) + 8), -sums[code]);
    EXPECT_EQ(down.index, indexes[code]);
  }
}

TEST(Ima, DecodesEveryCodeFromEveryIndexAsTheModelDoes) {
  for (int index = 0; index <= KESTROLIN_IMA_INDEX_MAX; ++index) {
    for (int const predictor : {0, 1, -1, 1000, -1000, 32766, 32767, -32767, -32768}) {
      for (int code = 0; code < 16; ++code) {
        AdpcmStand model{index, predictor};
        int const expected = modelSample(model, code);
        kestrolin_ima ima = stateOf(index, predictor);
        ASSERT_EQ(kestrolin_ima_decode(&ima, static_cast<unsigned>(code)), expected)
            << index << ", " << predictor << ", " << code;
        ASSERT_EQ(ima.predictor, expected);
        ASSERT_EQ(ima.index, model.index) << index << ", " << code;
      }
    }
  }
}

TEST(Ima, TakesAnIndexBeyondTheTableForItsLastOne) {
  for (int const index : {89, 90, 127, 128, 255}) {
    for (unsigned code = 0; code < 16; ++code) {
      kestrolin_ima last = stateOf(KESTROLIN_IMA_INDEX_MAX, 5);
      kestrolin_ima beyond = stateOf(index, 5);
      EXPECT_EQ(kestrolin_ima_decode(&beyond, code), kestrolin_ima_decode(&last, code));
      EXPECT_EQ(beyond.index, last.index) << index << ", " << code;
    }
  }
}

TEST(Ima, DecodesTheLowerFourBitsAlone) {
  for (unsigned const above : {0x10U, 0x80U, 0xF0U, 0x100U, 0xFFFFFFF0U}) {
    for (unsigned code = 0; code < 16; ++code) {
      kestrolin_ima plain = stateOf(30, 5);
      kestrolin_ima more = stateOf(30, 5);
      EXPECT_EQ(kestrolin_ima_decode(&more, above + code), kestrolin_ima_decode(&plain, code));
      EXPECT_EQ(more.index, plain.index) << above << ", " << code;
    }
  }
}
