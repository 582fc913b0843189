// A start from a known state, so that a fragment sounds alone as it does after those before it.
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "kestrolin_adpcm.h"
#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/firmware/arrayHelp.h"
#include "tests/firmware/readerHelp.h"

namespace {

kestrolin_adpcm opened(Bytes const& array) {
  kestrolin_adpcm adpcm;
  EXPECT_EQ(kestrolin_adpcm_open(&adpcm, array.data(), array.size()), KESTROLIN_OK);
  return adpcm;
}

// From an exact copy of the three bytes.
kestrolin_status started(kestrolin_adpcm& adpcm, Bytes const& state) {
  ExactCopy const copy(state);
  return kestrolin_adpcm_start(&adpcm, copy.data());
}

// As the bytes of an array's header.
Bytes bytesOf(AdpcmStand const& state) {
  return joined({laagEerst(static_cast<unsigned long long>(state.voorspelling), 2),
                 laagEerst(static_cast<unsigned long long>(state.index), 1)});
}

void expectState(kestrolin_ima const& ima, int predictor, int index) {
  EXPECT_EQ(ima.predictor, predictor);
  EXPECT_EQ(ima.index, index);
}

// Fragments that one encoder wrote, one after the other, of a sound that does not end in silence,
// and where its decoder stood before each of them.
struct Run {
  std::vector<Bytes> fragments;
  std::vector<AdpcmStand> states;
};

Run const& run() {
  static Run const all = [] {
    Run made;
    AdpcmStand encoder;
    AdpcmStand decoder;
    for (std::size_t const count : {40U, 62U, 14U, 100U}) {
      Bytes const codes = modelBytes(encoder, golf(count), 1);
      made.fragments.push_back(codes);
      made.states.push_back(decoder);
      modelSamples(decoder, codes);
    }
    return made;
  }();
  return all;
}

}  // namespace

TEST(AdpcmStart, TakesPredictorAndIndexAsAHeaderHasThem) {
  Bytes const array = modelBeeld({0x21, 0x43}, 8000, true);
  kestrolin_adpcm adpcm = opened(array);
  EXPECT_EQ(started(adpcm, {0x34, 0x12, 10}), KESTROLIN_OK);
  expectState(adpcm.ima, 0x1234, 10);
  expectState(adpcm.start, 0x1234, 10);
  EXPECT_EQ(adpcm.next, array.data() + 9);
  EXPECT_EQ(adpcm.left, 4U);
  EXPECT_EQ(adpcm.count, 4U);
  EXPECT_EQ(adpcm.rate, 8000);
}

TEST(AdpcmStart, TakesANegativePredictor) {
  kestrolin_adpcm adpcm = opened(modelBeeld({0x21}, 8000, true));
  EXPECT_EQ(started(adpcm, {0xFF, 0xFF, 0}), KESTROLIN_OK);
  expectState(adpcm.ima, -1, 0);
  EXPECT_EQ(started(adpcm, {0x00, 0x80, 1}), KESTROLIN_OK);
  expectState(adpcm.ima, -32768, 1);
  EXPECT_EQ(started(adpcm, {0x18, 0xFC, 2}), KESTROLIN_OK);
  expectState(adpcm.ima, -1000, 2);
}

TEST(AdpcmStart, TakesTheLastIndexAndNoneBeyondIt) {
  Bytes const codes{0x77, 0x12};
  AdpcmStand model{88, -5};
  std::vector<int> const expected = modelSamples(model, codes);
  Bytes const array = modelBeeld(codes, 8000, true);
  kestrolin_adpcm adpcm = opened(array);
  EXPECT_EQ(started(adpcm, {0xFB, 0xFF, 88}), KESTROLIN_OK);
  for (unsigned const index : {89U, 128U, 255U}) {
    EXPECT_EQ(started(adpcm, withByte({1, 2, 0}, 2, index)), KESTROLIN_CORRUPT) << index;
    expectState(adpcm.ima, -5, 88);
    expectState(adpcm.start, -5, 88);
    EXPECT_EQ(adpcm.next, array.data() + 9);
    EXPECT_EQ(adpcm.left, 4U);
    EXPECT_EQ(adpcm.count, 4U);
    EXPECT_EQ(adpcm.rate, 8000);
  }
  EXPECT_EQ(readAll(adpcm, kestrolin_adpcm_read, 3), expected);
}

TEST(AdpcmStart, PlaysAFragmentAloneAsItSoundsAfterThoseBeforeIt) {
  for (bool const header : {true, false}) {
    kestrolin_adpcm before{};
    for (std::size_t i = 0; i < run().fragments.size(); ++i) {
      ExactCopy const array(modelBeeld(run().fragments[i], 8000, header));
      auto const open = [&array, header](kestrolin_adpcm& adpcm) {
        return header ? kestrolin_adpcm_open(&adpcm, array.data(), array.size())
                      : kestrolin_adpcm_open_headerless(&adpcm, array.data(), array.size(), 8000);
      };
      AdpcmStand state = run().states[i];
      ASSERT_EQ(i == 0, state.index == 0 && state.voorspelling == 0);
      kestrolin_adpcm alone;
      ASSERT_EQ(open(alone), KESTROLIN_OK);
      EXPECT_EQ(started(alone, bytesOf(state)), KESTROLIN_OK);
      kestrolin_adpcm resumed;
      ASSERT_EQ(open(resumed), KESTROLIN_OK);
      kestrolin_adpcm_resume(&resumed, &before);
      std::vector<int> const expected = modelSamples(state, run().fragments[i]);
      EXPECT_EQ(readAll(alone, kestrolin_adpcm_read, 7), expected) << i;
      EXPECT_EQ(readAll(resumed, kestrolin_adpcm_read, 5), expected) << i;
      before = resumed;
    }
  }
}

TEST(AdpcmStart, IsWhereTheReaderGoesBackTo) {
  Bytes const codes = noise(6);
  AdpcmStand model{40, -321};
  std::vector<int> const expected = modelSamples(model, codes);
  Bytes const array = modelBeeld(codes, 8000, true);
  kestrolin_adpcm adpcm = opened(array);
  ASSERT_EQ(started(adpcm, bytesOf({40, -321})), KESTROLIN_OK);
  for (std::size_t const given : {0U, 1U, 5U, 12U}) {
    std::vector<std::int16_t> samples(13);
    ASSERT_EQ(kestrolin_adpcm_read(&adpcm, samples.data(), given), given);
    kestrolin_adpcm_rewind(&adpcm);
    expectState(adpcm.ima, -321, 40);
    EXPECT_EQ(readAll(adpcm, kestrolin_adpcm_read, 4), expected) << given;
    kestrolin_adpcm_rewind(&adpcm);
  }
}

TEST(AdpcmStart, OfAResumedReaderIsTheStateOfTheOtherOne) {
  Bytes const codes = noise(6);
  AdpcmStand model;
  modelSamples(model, codes);
  AdpcmStand end = model;
  std::vector<int> const expected = modelSamples(model, codes);
  Bytes const array = modelBeeld(codes, 8000, true);
  kestrolin_adpcm before = opened(array);
  ASSERT_TRUE(readAll(before, kestrolin_adpcm_read, 100));
  kestrolin_adpcm adpcm = opened(array);
  kestrolin_adpcm_resume(&adpcm, &before);
  expectState(adpcm.start, end.voorspelling, end.index);
  for (int again = 0; again < 3; ++again) {
    EXPECT_EQ(readAll(adpcm, kestrolin_adpcm_read, 4), expected) << again;
    kestrolin_adpcm_rewind(&adpcm);
  }
}

TEST(AdpcmStart, IsZeroAndZeroAfterAnErrorOfOpening) {
  Bytes array = modelBeeld({0x21}, 8000, true);
  array.at(6) = 5;
  array.at(8) = 89;
  kestrolin_adpcm adpcm;
  EXPECT_EQ(kestrolin_adpcm_open(&adpcm, array.data(), array.size()), KESTROLIN_CORRUPT);
  expectState(adpcm.ima, 0, 0);
  expectState(adpcm.start, 0, 0);
}
