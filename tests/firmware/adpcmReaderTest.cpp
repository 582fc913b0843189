#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <vector>

#include "kestrolin_adpcm.h"
#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/firmware/arrayHelp.h"
#include "tests/firmware/readerHelp.h"

namespace {

constexpr std::size_t headerSize = 9;

// An array whose header has another start than 0 and 0.
Bytes arrayFrom(AdpcmStand const& start, Bytes const& codes) {
  Bytes const array = modelBeeld(codes, 8000, true);
  auto const predictor = static_cast<unsigned long long>(start.voorspelling);
  Bytes const state =
      joined({laagEerst(predictor, 2), Bytes(1, static_cast<unsigned char>(start.index))});
  return joined({cutAt(array, 6), state, codes});
}

kestrolin_adpcm opened(Bytes const& array) {
  kestrolin_adpcm adpcm;
  EXPECT_EQ(kestrolin_adpcm_open(&adpcm, array.data(), array.size()), KESTROLIN_OK);
  return adpcm;
}

kestrolin_status openingOf(Bytes const& array) {
  return answerOf(array, kestrolin_adpcm_open, kestrolin_adpcm_read);
}

kestrolin_status openHeaderless(kestrolin_adpcm* adpcm, unsigned char const* array,
                                std::size_t size) {
  return kestrolin_adpcm_open_headerless(adpcm, array, size, 8000);
}

kestrolin_status headerlessOpeningOf(Bytes const& array) {
  return answerOf(array, openHeaderless, kestrolin_adpcm_read);
}

std::optional<std::vector<int>> samplesOf(Bytes const& array, std::size_t room) {
  return samplesOf(array, kestrolin_adpcm_open, kestrolin_adpcm_read, room);
}

}  // namespace

TEST(AdpcmReader, StandsAtTheFirstCodeAfterOpening) {
  Bytes const array{3, 0, 0, 0, 0x80, 0x3E, 0xFE, 0xFF, 88, 1, 2, 3};
  kestrolin_adpcm const adpcm = opened(array);
  EXPECT_EQ(adpcm.next, array.data() + headerSize);
  EXPECT_EQ(adpcm.left, 6U);
  EXPECT_EQ(adpcm.rate, 16000);
  EXPECT_EQ(adpcm.ima.predictor, -2);
  EXPECT_EQ(adpcm.ima.index, 88);
}

// By hand: step 7 gives 7 + 3 + 1 + 0 for code 7 and leads to index 8, whose step 16 gives
// 16 + 8 + 4 + 2 for code 15, downwards.
TEST(AdpcmReader, DecodesTheLowHalfOfAByteFirst) {
  EXPECT_EQ(samplesOf(modelBeeld({0xF7}, 8000, true), 2), (std::vector<int>{11, -19}));
  EXPECT_EQ(samplesOf(modelBeeld({0x7F}, 8000, true), 2), (std::vector<int>{-11, 19}));
}

// By hand: index 10 has step 19, of which code 0 gives the eighth, 2.
TEST(AdpcmReader, StartsFromThePredictorAndTheIndexInTheHeader) {
  EXPECT_EQ(samplesOf(arrayFrom({10, -1000}, {0x00}), 1), (std::vector<int>{-998, -996}));
  EXPECT_EQ(samplesOf(arrayFrom({10, 0x1234}, {0x88}), 1), (std::vector<int>{0x1232, 0x1230}));
}

TEST(AdpcmReader, DecodesAsTheModelDoes) {
  Bytes const codes = noise(300);
  for (AdpcmStand const start : {AdpcmStand{0, 0}, AdpcmStand{0, -32768}, AdpcmStand{88, 32767},
                                 AdpcmStand{40, -1234}, AdpcmStand{87, 1}}) {
    AdpcmStand model = start;
    std::vector<int> const expected = modelSamples(model, codes);
    Bytes const array = arrayFrom(start, codes);
    kestrolin_adpcm adpcm = opened(array);
    EXPECT_EQ(readAll(adpcm, kestrolin_adpcm_read, 13), expected) << start.voorspelling;
    EXPECT_EQ(adpcm.ima.predictor, model.voorspelling);
    EXPECT_EQ(adpcm.ima.index, model.index);
    EXPECT_EQ(adpcm.next, array.data() + array.size());
  }
}

TEST(AdpcmReader, GivesTheSameInPiecesOfAnySize) {
  Bytes const codes = noise(51);
  AdpcmStand model;
  std::vector<int> const expected = modelSamples(model, codes);
  for (std::size_t const room : rooms) {
    EXPECT_EQ(samplesOf(modelBeeld(codes, 8000, true), room), expected) << room;
  }
}

TEST(AdpcmReader, StandsInTheMiddleOfAByte) {
  Bytes const array = modelBeeld({0x21, 0x43}, 8000, true);
  kestrolin_adpcm adpcm = opened(array);
  std::int16_t sample = 0;
  EXPECT_EQ(kestrolin_adpcm_read(&adpcm, &sample, 1), 1U);
  EXPECT_EQ(adpcm.left, 3U);
  EXPECT_EQ(adpcm.next, array.data() + headerSize);
  EXPECT_EQ(kestrolin_adpcm_read(&adpcm, &sample, 1), 1U);
  EXPECT_EQ(adpcm.left, 2U);
  EXPECT_EQ(adpcm.next, array.data() + headerSize + 1);
}

// The state after the first code of a byte is at the end of its range already. By hand: index 86
// has step 27086, of which code 5 gives 27086 + 6771 + 3385.
TEST(AdpcmReader, StaysWithinTheRangeOfSamplesAndOfTheTable) {
  struct Case {
    AdpcmStand start;
    unsigned char codes;
    AdpcmStand then;
  };
  std::vector<Case> const cases{{{88, 32760}, 0x77, {88, 32767}},
                                {{88, -32760}, 0xFF, {88, -32768}},
                                {{0, 0}, 0x00, {0, 0}},
                                {{1, 100}, 0x00, {0, 101}},
                                {{86, -30000}, 0x05, {88, 7242}}};
  for (Case const& one : cases) {
    Bytes const array = arrayFrom(one.start, {one.codes});
    kestrolin_adpcm adpcm = opened(array);
    std::int16_t sample = 0;
    EXPECT_EQ(kestrolin_adpcm_read(&adpcm, &sample, 1), 1U);
    EXPECT_EQ(sample, one.then.voorspelling);
    EXPECT_EQ(adpcm.ima.predictor, one.then.voorspelling);
    EXPECT_EQ(adpcm.ima.index, one.then.index);
  }
}

TEST(AdpcmReader, GivesNothingWithoutRoom) {
  Bytes const array = modelBeeld({0xF7}, 8000, true);
  kestrolin_adpcm adpcm = opened(array);
  EXPECT_EQ(kestrolin_adpcm_read(&adpcm, nullptr, 0), 0U);
  EXPECT_EQ(adpcm.left, 2U);
  EXPECT_EQ(readAll(adpcm, kestrolin_adpcm_read, 1), (std::vector<int>{11, -19}));
}

TEST(AdpcmReader, GivesNothingAgainAtTheEnd) {
  Bytes const array = modelBeeld({0xF7}, 8000, true);
  kestrolin_adpcm adpcm = opened(array);
  ASSERT_TRUE(readAll(adpcm, kestrolin_adpcm_read, 4));
  EXPECT_TRUE(isEmpty(adpcm, kestrolin_adpcm_read));
  EXPECT_EQ(adpcm.ima.predictor, -19);
}

TEST(AdpcmReader, TakesAnArrayWithoutCodes) {
  EXPECT_EQ(samplesOf(modelBeeld({}, 8000, true), 4), std::vector<int>{});
}

TEST(AdpcmReader, TakesTheWholeRangeOfFrequencies) {
  for (int const rate : {1, 255, 256, 44100, 65535}) {
    EXPECT_EQ(opened(modelBeeld({1}, rate, true)).rate, rate);
  }
}

TEST(AdpcmReader, TakesAllFourBytesOfTheCount) {
  EXPECT_EQ(opened(modelBeeld(Bytes(0x010203), 8000, true)).left, 2U * 0x010203);
  EXPECT_EQ(openingOf({0, 0, 0, 1, 0x40, 0x1F, 0, 0, 0, 0}), KESTROLIN_TRUNCATED);
  EXPECT_EQ(openingOf({0xFF, 0xFF, 0xFF, 0xFF, 0x40, 0x1F, 0, 0, 0, 0}), KESTROLIN_TRUNCATED);
}

TEST(AdpcmReader, SaysCorruptOfALongerArray) {
  for (std::size_t const behind : {1U, 3U}) {
    Bytes const array = joined({modelBeeld({0xF7}, 8000, true), Bytes(behind, 0x55)});
    EXPECT_EQ(openingOf(array), KESTROLIN_CORRUPT) << behind;
  }
}

TEST(AdpcmReader, DoesNotTakeAnArrayOfPcm) {
  EXPECT_EQ(openingOf(verwachtBeeld(std::vector<int>(100, 0), 8000, true)), KESTROLIN_CORRUPT);
}

TEST(AdpcmReader, SaysTruncatedOfEveryShorterArray) {
  Bytes const array = modelBeeld(noise(12), 8000, true);
  for (std::size_t size = 0; size < array.size(); ++size) {
    EXPECT_EQ(openingOf(cutAt(array, size)), KESTROLIN_TRUNCATED) << size;
  }
  EXPECT_EQ(openingOf(array), KESTROLIN_OK);
}

TEST(AdpcmReader, SaysCorruptOfFrequencyZeroAndOfAnIndexBeyondTheTable) {
  EXPECT_EQ(openingOf(modelBeeld({1, 2}, 0, true)), KESTROLIN_CORRUPT);
  EXPECT_EQ(openingOf(Bytes(headerSize)), KESTROLIN_CORRUPT);
  EXPECT_EQ(openingOf(arrayFrom({88, 0}, {1})), KESTROLIN_OK);
  EXPECT_EQ(openingOf(arrayFrom({89, 0}, {1})), KESTROLIN_CORRUPT);
  EXPECT_EQ(openingOf(arrayFrom({255, 0}, {1})), KESTROLIN_CORRUPT);
}

TEST(AdpcmReader, ReadsAnArrayWithoutHeader) {
  Bytes const codes = noise(33);
  AdpcmStand model;
  std::vector<int> const expected = modelSamples(model, codes);
  for (std::size_t const room : rooms) {
    ExactCopy const array(modelBeeld(codes, 0, false));
    kestrolin_adpcm adpcm;
    ASSERT_EQ(kestrolin_adpcm_open_headerless(&adpcm, array.data(), array.size(), 32000),
              KESTROLIN_OK);
    EXPECT_EQ(adpcm.next, array.data());
    EXPECT_EQ(adpcm.left, expected.size());
    EXPECT_EQ(adpcm.rate, 32000);
    EXPECT_EQ(adpcm.ima.predictor, 0);
    EXPECT_EQ(adpcm.ima.index, 0);
    EXPECT_EQ(readAll(adpcm, kestrolin_adpcm_read, room), expected) << room;
  }
}

TEST(AdpcmReader, PassesOnAnyFrequencyWithoutHeader) {
  Bytes const array = modelBeeld({1}, 0, false);
  for (int const rate : {0, 1, 44100, 65535}) {
    kestrolin_adpcm adpcm;
    EXPECT_EQ(kestrolin_adpcm_open_headerless(&adpcm, array.data(), array.size(),
                                              static_cast<std::uint16_t>(rate)),
              KESTROLIN_OK);
    EXPECT_EQ(adpcm.rate, rate);
  }
}

TEST(AdpcmReader, SaysTruncatedOfAHeaderlessArrayThatIsTooShort) {
  for (std::size_t size = 0; size < headerSize; ++size) {
    EXPECT_EQ(headerlessOpeningOf(Bytes(size)), KESTROLIN_TRUNCATED) << size;
  }
  EXPECT_EQ(headerlessOpeningOf(Bytes(headerSize)), KESTROLIN_OK);
}
