#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <vector>

#include "kestrolin_pcm.h"
#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/firmware/arrayHelp.h"
#include "tests/firmware/readerHelp.h"

namespace {

constexpr std::size_t headerSize = 6;

kestrolin_status openingOf(Bytes const& array) {
  return answerOf(array, kestrolin_pcm_open, kestrolin_pcm_read);
}

kestrolin_status openHeaderless(kestrolin_pcm* pcm, unsigned char const* array, std::size_t size) {
  return kestrolin_pcm_open_headerless(pcm, array, size, 8000);
}

kestrolin_status headerlessOpeningOf(Bytes const& array) {
  return answerOf(array, openHeaderless, kestrolin_pcm_read);
}

std::optional<std::vector<int>> samplesOf(Bytes const& array, std::size_t room) {
  return samplesOf(array, kestrolin_pcm_open, kestrolin_pcm_read, room);
}

}  // namespace

TEST(PcmReader, StandsAtTheFirstSampleAfterOpening) {
  Bytes const array{3, 0, 0, 0, 0x40, 0x1F, 0x34, 0x12, 0xFE, 0xFF, 0x00, 0x80};
  kestrolin_pcm pcm;
  ASSERT_EQ(kestrolin_pcm_open(&pcm, array.data(), array.size()), KESTROLIN_OK);
  EXPECT_EQ(pcm.next, array.data() + headerSize);
  EXPECT_EQ(pcm.left, 3U);
  EXPECT_EQ(pcm.rate, 8000);
  EXPECT_EQ(readAll(pcm, kestrolin_pcm_read, 1), (std::vector<int>{0x1234, -2, -32768}));
  EXPECT_EQ(pcm.next, array.data() + array.size());
}

TEST(PcmReader, TakesSamplesWithTheirSign) {
  std::vector<int> const samples{0, 1, -1, 127, 128, -128, -129, 255, 256, -256, 32767, -32768};
  EXPECT_EQ(samplesOf(verwachtBeeld(samples, 8000, true), 5), samples);
}

TEST(PcmReader, TakesTheWholeRangeOfFrequencies) {
  for (int const rate : {1, 255, 256, 44100, 48000, 65535}) {
    Bytes const array = verwachtBeeld({1, 2}, rate, true);
    kestrolin_pcm pcm;
    ASSERT_EQ(kestrolin_pcm_open(&pcm, array.data(), array.size()), KESTROLIN_OK);
    EXPECT_EQ(pcm.rate, rate);
  }
}

TEST(PcmReader, TakesAllFourBytesOfTheCount) {
  std::vector<int> samples(0x010203);
  samples.back() = -7;
  EXPECT_EQ(samplesOf(verwachtBeeld(samples, 8000, true), 4096), samples);
  // What the highest byte asks for is not there.
  EXPECT_EQ(openingOf({0, 0, 0, 1, 0x40, 0x1F, 0, 0}), KESTROLIN_TRUNCATED);
  EXPECT_EQ(openingOf({0, 0, 0, 0x80, 0x40, 0x1F, 0, 0}), KESTROLIN_TRUNCATED);
  EXPECT_EQ(openingOf({0xFF, 0xFF, 0xFF, 0xFF, 0x40, 0x1F, 0, 0}), KESTROLIN_TRUNCATED);
}

TEST(PcmReader, GivesTheSameInPiecesOfAnySize) {
  std::vector<int> const samples = golf(101);
  for (std::size_t const room : rooms) {
    EXPECT_EQ(samplesOf(verwachtBeeld(samples, 8000, true), room), samples) << room;
  }
}

TEST(PcmReader, StandsBetweenTwoPieces) {
  Bytes const array = verwachtBeeld({10, 20, 30}, 8000, true);
  kestrolin_pcm pcm;
  ASSERT_EQ(kestrolin_pcm_open(&pcm, array.data(), array.size()), KESTROLIN_OK);
  std::vector<std::int16_t> samples(2);
  EXPECT_EQ(kestrolin_pcm_read(&pcm, samples.data(), 2), 2U);
  EXPECT_EQ(pcm.left, 1U);
  EXPECT_EQ(pcm.next, array.data() + headerSize + 4);
  EXPECT_EQ(samples, (std::vector<std::int16_t>{10, 20}));
}

TEST(PcmReader, GivesNothingWithoutRoom) {
  Bytes const array = verwachtBeeld({10, 20}, 8000, true);
  kestrolin_pcm pcm;
  ASSERT_EQ(kestrolin_pcm_open(&pcm, array.data(), array.size()), KESTROLIN_OK);
  EXPECT_EQ(kestrolin_pcm_read(&pcm, nullptr, 0), 0U);
  EXPECT_EQ(pcm.left, 2U);
  EXPECT_EQ(readAll(pcm, kestrolin_pcm_read, 1), (std::vector<int>{10, 20}));
}

TEST(PcmReader, GivesNothingAgainAtTheEnd) {
  Bytes const array = verwachtBeeld({10}, 8000, true);
  kestrolin_pcm pcm;
  ASSERT_EQ(kestrolin_pcm_open(&pcm, array.data(), array.size()), KESTROLIN_OK);
  ASSERT_TRUE(readAll(pcm, kestrolin_pcm_read, 4));
  EXPECT_TRUE(isEmpty(pcm, kestrolin_pcm_read));
}

TEST(PcmReader, TakesAnArrayWithoutSamples) {
  EXPECT_EQ(samplesOf(verwachtBeeld({}, 8000, true), 4), std::vector<int>{});
}

TEST(PcmReader, SaysCorruptOfALongerArray) {
  for (std::size_t const behind : {1U, 2U, 3U, 20U}) {
    Bytes const array = joined({verwachtBeeld({10, 20}, 8000, true), Bytes(behind, 0x55)});
    EXPECT_EQ(openingOf(array), KESTROLIN_CORRUPT) << behind;
  }
}

TEST(PcmReader, DoesNotTakeAnArrayOfAdpcm) {
  EXPECT_EQ(openingOf(modelBeeld(Bytes(100, 0x12), 8000, true)), KESTROLIN_TRUNCATED);
}

TEST(PcmReader, TwoReadersStandOverOneArray) {
  Bytes const array = verwachtBeeld({10, 20}, 8000, true);
  kestrolin_pcm one;
  kestrolin_pcm other;
  ASSERT_EQ(kestrolin_pcm_open(&one, array.data(), array.size()), KESTROLIN_OK);
  ASSERT_EQ(kestrolin_pcm_open(&other, array.data(), array.size()), KESTROLIN_OK);
  std::int16_t sample = 0;
  EXPECT_EQ(kestrolin_pcm_read(&one, &sample, 1), 1U);
  EXPECT_EQ(readAll(other, kestrolin_pcm_read, 1), (std::vector<int>{10, 20}));
  EXPECT_EQ(readAll(one, kestrolin_pcm_read, 1), (std::vector<int>{20}));
}

TEST(PcmReader, SaysTruncatedOfEveryShorterArray) {
  Bytes const array = verwachtBeeld(golf(9), 8000, true);
  for (std::size_t size = 0; size < array.size(); ++size) {
    EXPECT_EQ(openingOf(cutAt(array, size)), KESTROLIN_TRUNCATED) << size;
  }
  EXPECT_EQ(openingOf(array), KESTROLIN_OK);
}

TEST(PcmReader, SaysCorruptOfFrequencyZero) {
  EXPECT_EQ(openingOf(verwachtBeeld({10, 20}, 0, true)), KESTROLIN_CORRUPT);
  // As the tool writes it for a file that it could not read.
  EXPECT_EQ(openingOf({0, 0, 0, 0, 0, 0}), KESTROLIN_CORRUPT);
}

TEST(PcmReader, ReadsAnArrayWithoutHeader) {
  std::vector<int> const samples = golf(33);
  for (std::size_t const room : rooms) {
    ExactCopy const array(verwachtBeeld(samples, 0, false));
    kestrolin_pcm pcm;
    ASSERT_EQ(kestrolin_pcm_open_headerless(&pcm, array.data(), array.size(), 32000), KESTROLIN_OK);
    EXPECT_EQ(pcm.next, array.data());
    EXPECT_EQ(pcm.left, samples.size());
    EXPECT_EQ(pcm.rate, 32000);
    EXPECT_EQ(readAll(pcm, kestrolin_pcm_read, room), samples) << room;
  }
}

TEST(PcmReader, PassesOnAnyFrequencyWithoutHeader) {
  Bytes const array = verwachtBeeld({1}, 0, false);
  for (int const rate : {0, 1, 44100, 65535}) {
    kestrolin_pcm pcm;
    EXPECT_EQ(kestrolin_pcm_open_headerless(&pcm, array.data(), array.size(),
                                            static_cast<std::uint16_t>(rate)),
              KESTROLIN_OK);
    EXPECT_EQ(pcm.rate, rate);
  }
}

TEST(PcmReader, SaysTruncatedOfASizeThatNoHeaderlessArrayHas) {
  for (std::size_t const size : {0U, 1U, 2U, 3U, 4U, 5U, 7U, 9U, 11U}) {
    EXPECT_EQ(headerlessOpeningOf(Bytes(size)), KESTROLIN_TRUNCATED) << size;
  }
  for (std::size_t const size : {6U, 8U, 10U}) {
    EXPECT_EQ(headerlessOpeningOf(Bytes(size)), KESTROLIN_OK) << size;
  }
}
