// Fragments that one encoder wrote one after the other: each header says that it starts from 0 and
// 0, and from the second fragment on none does.
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "kestrolin_adpcm.h"
#include "tests/audio/codec/adpcmModel.h"
#include "tests/firmware/arrayHelp.h"
#include "tests/firmware/readerHelp.h"

namespace {

std::vector<Bytes> const& fragments() {
  static std::vector<Bytes> const all{noise(20), noise(31), noise(7)};
  return all;
}

// What a decoder that runs on makes of all of them.
std::vector<std::vector<int>> const& expected() {
  static std::vector<std::vector<int>> const all = [] {
    std::vector<std::vector<int>> samples;
    AdpcmStand model;
    std::transform(fragments().begin(), fragments().end(), std::back_inserter(samples),
                   [&model](Bytes const& codes) { return modelSamples(model, codes); });
    return samples;
  }();
  return all;
}

}  // namespace

TEST(AdpcmResume, GoesOnFromTheStateAtTheEndOfTheFragmentBefore) {
  kestrolin_adpcm before{};
  for (std::size_t i = 0; i < fragments().size(); ++i) {
    ExactCopy const array(modelBeeld(fragments()[i], 8000, true));
    kestrolin_adpcm adpcm;
    ASSERT_EQ(kestrolin_adpcm_open(&adpcm, array.data(), array.size()), KESTROLIN_OK);
    if (i > 0) {
      kestrolin_adpcm_resume(&adpcm, &before);
    }
    EXPECT_EQ(readAll(adpcm, kestrolin_adpcm_read, 5), expected()[i]) << i;
    before = adpcm;
  }
}

TEST(AdpcmResume, GoesOnAlikeWithoutHeaders) {
  kestrolin_adpcm before{};
  for (std::size_t i = 0; i < fragments().size(); ++i) {
    ExactCopy const array(modelBeeld(fragments()[i], 8000, false));
    kestrolin_adpcm adpcm;
    ASSERT_EQ(kestrolin_adpcm_open_headerless(&adpcm, array.data(), array.size(), 8000),
              KESTROLIN_OK);
    kestrolin_adpcm_resume(&adpcm, &before);  // for the first one from 0 and 0
    EXPECT_EQ(readAll(adpcm, kestrolin_adpcm_read, 5), expected()[i]) << i;
    before = adpcm;
  }
}

TEST(AdpcmResume, TakesNothingElseFromTheOtherReader) {
  Bytes const array = modelBeeld(fragments()[0], 8000, true);
  Bytes const other = modelBeeld(fragments()[1], 16000, true);
  kestrolin_adpcm adpcm;
  kestrolin_adpcm before;
  ASSERT_EQ(kestrolin_adpcm_open(&adpcm, array.data(), array.size()), KESTROLIN_OK);
  ASSERT_EQ(kestrolin_adpcm_open(&before, other.data(), other.size()), KESTROLIN_OK);
  ASSERT_TRUE(readAll(before, kestrolin_adpcm_read, 100));
  kestrolin_ima const end = before.ima;
  ASSERT_NE(end.predictor, 0);
  kestrolin_adpcm_resume(&adpcm, &before);
  EXPECT_EQ(adpcm.next, array.data() + 9);
  EXPECT_EQ(adpcm.left, 2 * fragments()[0].size());
  EXPECT_EQ(adpcm.rate, 8000);
  EXPECT_EQ(adpcm.ima.predictor, end.predictor);
  EXPECT_EQ(adpcm.ima.index, end.index);
  EXPECT_EQ(before.ima.predictor, end.predictor);
  EXPECT_EQ(before.left, 0U);
}
