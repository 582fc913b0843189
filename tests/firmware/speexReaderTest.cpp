#include <gtest/gtest.h>

#include <vector>

#include "tests/firmware/arrayHelp.h"
#include "tests/firmware/speexArray.h"

namespace {

constexpr std::size_t headerSize = 4;
constexpr std::size_t narrow = 160;

Frames framesOfSizes(std::vector<std::size_t> const& sizes) {
  Frames frames;
  for (std::size_t const size : sizes) {
    frames.push_back(noise(size));
  }
  return frames;
}

kestrolin_speex opened(Bytes const& array) {
  kestrolin_speex speex;
  EXPECT_EQ(kestrolin_speex_open(&speex, asSigned(array), array.size()), KESTROLIN_OK);
  return speex;
}

// The number of samples that is put together of a header's 16 bits and so many empty frames.
std::uint32_t samplesOf(int rate, std::size_t low, std::size_t frames) {
  Bytes const array = speexArray(rate, low, Frames(frames));
  return opened(array).samples;
}

}  // namespace

TEST(SpeexReader, StandsAtTheFirstFrameAfterOpening) {
  Bytes const array{0x40, 0x1F, 0x3F, 0x01, 2, 10, 20, 1, 30};
  kestrolin_speex const speex = opened(array);
  EXPECT_EQ(speex.next, asSigned(array) + headerSize);
  EXPECT_EQ(speex.left, 5U);
  EXPECT_EQ(speex.frames, 2U);
  EXPECT_EQ(speex.samples, 0x013FU);
  EXPECT_EQ(speex.rate, 8000);
  EXPECT_EQ(speex.frame_samples, 160);
  EXPECT_EQ(speex.mode, 0);
}

TEST(SpeexReader, KnowsTheThreeBandsOfTheLibrary) {
  std::vector<int> const modes{SPEEX_MODEID_NB, SPEEX_MODEID_WB, SPEEX_MODEID_UWB};
  for (int band = 0; band < 3; ++band) {
    auto const rate = bandRates.at(static_cast<std::size_t>(band));
    kestrolin_speex const speex = opened(speexArray(rate, 0, {}));
    EXPECT_EQ(speex.rate, rate);
    EXPECT_EQ(speex.mode, modes.at(static_cast<std::size_t>(band)));
    EXPECT_EQ(speex.frame_samples, directeFrameSize(band));
  }
}

TEST(SpeexReader, SaysCorruptOfAnotherFrequency) {
  for (int const rate : {0, 1, 7999, 8001, 11025, 15999, 16001, 31999, 32001, 44100, 65535}) {
    EXPECT_EQ(speexOpening(speexArray(rate, narrow, framesOfSizes({38}))), KESTROLIN_CORRUPT);
    EXPECT_EQ(speexOpening({38}, static_cast<std::uint16_t>(rate)), KESTROLIN_CORRUPT) << rate;
  }
}

// Sizes above 127 are negative in an array of signed characters.
TEST(SpeexReader, WalksFramesOfEverySize) {
  Frames const frames = framesOfSizes({0, 1, 127, 128, 129, 199, 200, 0});
  Bytes const array = speexArray(16000, frames.size() * 320, frames);
  kestrolin_speex speex = opened(array);
  EXPECT_EQ(speex.frames, frames.size());
  EXPECT_EQ(framesOf(speex), frames);
  EXPECT_EQ(speex.left, 0U);
  EXPECT_EQ(speex.next, asSigned(array) + array.size());
}

TEST(SpeexReader, PointsIntoTheArray) {
  Bytes const array = speexArray(8000, 2 * narrow, {{10, 20}, {30}});
  kestrolin_speex speex = opened(array);
  char const* frame = nullptr;
  int size = -1;
  ASSERT_EQ(kestrolin_speex_next(&speex, &frame, &size), KESTROLIN_OK);
  EXPECT_EQ(static_cast<void const*>(frame), array.data() + headerSize + 1);
  EXPECT_EQ(size, 2);
  EXPECT_EQ(speex.next, asSigned(array) + headerSize + 3);
  EXPECT_EQ(speex.left, 2U);
  EXPECT_EQ(speex.frames, 2U);
}

TEST(SpeexReader, LeavesFrameAndSizeAsTheyAreAtTheEnd) {
  Bytes const array = speexArray(8000, narrow, {{10, 20}});
  kestrolin_speex speex = opened(array);
  ASSERT_EQ(framesOf(speex).size(), 1U);
  char const here = 0;
  char const* frame = &here;
  int size = -1;
  EXPECT_EQ(kestrolin_speex_next(&speex, &frame, &size), KESTROLIN_END);
  EXPECT_EQ(kestrolin_speex_next(&speex, &frame, &size), KESTROLIN_END);
  EXPECT_EQ(frame, &here);
  EXPECT_EQ(size, -1);
}

TEST(SpeexReader, SaysCorruptOfAFrameOfMoreThanTwoHundredBytes) {
  EXPECT_EQ(speexOpening(speexArray(8000, narrow, framesOfSizes({200}))), KESTROLIN_OK);
  for (std::size_t const size : {201U, 202U, 255U}) {
    EXPECT_EQ(speexOpening(speexArray(8000, narrow, framesOfSizes({size}))), KESTROLIN_CORRUPT);
    Frames const second = framesOfSizes({38, size});
    EXPECT_EQ(speexOpening(speexArray(8000, 2 * narrow, second)), KESTROLIN_CORRUPT);
    EXPECT_EQ(speexOpening(speexFrames(second), 8000), KESTROLIN_CORRUPT);
  }
}

TEST(SpeexReader, SaysTruncatedOfAnArrayShorterThanItsHeader) {
  Bytes const array = speexArray(8000, 0, {});
  for (std::size_t size = 0; size < headerSize; ++size) {
    EXPECT_EQ(speexOpening(cutAt(array, size)), KESTROLIN_TRUNCATED) << size;
  }
  EXPECT_EQ(speexOpening(array), KESTROLIN_OK);
}

TEST(SpeexReader, SaysTruncatedOfAnArrayThatEndsWithinAFrame) {
  Bytes const array = speexArray(8000, 2 * narrow, framesOfSizes({3, 5}));
  std::size_t const second = headerSize + 4;
  for (std::size_t size = headerSize; size < array.size(); ++size) {
    // Where a frame ends, its samples are missing.
    bool const between = size == headerSize || size == second;
    EXPECT_EQ(speexOpening(cutAt(array, size)), between ? KESTROLIN_CORRUPT : KESTROLIN_TRUNCATED)
        << size;
    EXPECT_EQ(speexOpening(cutAt(speexFrames(framesOfSizes({3, 5})), size - headerSize), 8000),
              between ? KESTROLIN_OK : KESTROLIN_TRUNCATED)
        << size;
  }
}

TEST(SpeexReader, TakesALastFrameThatIsNotFull) {
  for (int const rate : bandRates) {
    auto const frame = static_cast<std::size_t>(rate) / 50;
    for (std::size_t const samples : {2 * frame + 1U, 2 * frame + 2U, 3 * frame - 1U, 3 * frame}) {
      EXPECT_EQ(samplesOf(rate, samples, 3), samples) << rate;
    }
    EXPECT_EQ(speexOpening(speexArray(rate, 2 * frame, Frames(3))), KESTROLIN_CORRUPT) << rate;
    EXPECT_EQ(speexOpening(speexArray(rate, 3 * frame + 1, Frames(3))), KESTROLIN_CORRUPT) << rate;
  }
}

TEST(SpeexReader, PutsTheNumberOfSamplesTogetherBeyondSixteenBits) {
  // 410 frames hold 65441 to 65600 samples.
  EXPECT_EQ(samplesOf(8000, 65441, 410), 65441U);
  EXPECT_EQ(samplesOf(8000, 65535, 410), 65535U);
  EXPECT_EQ(samplesOf(8000, 0, 410), 65536U);
  EXPECT_EQ(samplesOf(8000, 1, 410), 65537U);
  EXPECT_EQ(samplesOf(8000, 64, 410), 65600U);
  EXPECT_EQ(speexOpening(speexArray(8000, 65440, Frames(410))), KESTROLIN_CORRUPT);
  EXPECT_EQ(speexOpening(speexArray(8000, 65, Frames(410))), KESTROLIN_CORRUPT);
  // 1000 frames at 32000 Hz hold 639361 to 640000, and 9 x 65536 is 589824.
  EXPECT_EQ(samplesOf(32000, 639361 - 589824, 1000), 639361U);
  EXPECT_EQ(samplesOf(32000, 640000 - 589824, 1000), 640000U);
  EXPECT_EQ(speexOpening(speexArray(32000, 639360 - 589824, Frames(1000))), KESTROLIN_CORRUPT);
}

TEST(SpeexReader, TakesNoSamplesWithNoFramesAlone) {
  EXPECT_EQ(samplesOf(8000, 0, 0), 0U);
  for (std::size_t const samples : {1U, 159U, 160U, 65377U, 65530U, 65535U}) {
    EXPECT_EQ(speexOpening(speexArray(8000, samples, {})), KESTROLIN_CORRUPT) << samples;
  }
  EXPECT_EQ(speexOpening(speexArray(8000, 0, Frames(1))), KESTROLIN_CORRUPT);
}

TEST(SpeexReader, WalksAnArrayWithoutHeader) {
  for (int const rate : bandRates) {
    Frames const frames = framesOfSizes({38, 0, 200});
    Bytes const array = speexFrames(frames);
    kestrolin_speex speex;
    ASSERT_EQ(kestrolin_speex_open_headerless(&speex, asSigned(array), array.size(),
                                              static_cast<std::uint16_t>(rate)),
              KESTROLIN_OK);
    EXPECT_EQ(speex.next, asSigned(array));
    EXPECT_EQ(speex.left, array.size());
    EXPECT_EQ(speex.frames, 3U);
    EXPECT_EQ(speex.samples, 3U * static_cast<unsigned>(rate) / 50);
    EXPECT_EQ(speex.rate, rate);
    EXPECT_EQ(framesOf(speex), frames);
  }
  EXPECT_EQ(speexOpening({}, 8000), KESTROLIN_OK);
}

// As many samples as 32 bits hold, and a frame more.
TEST(SpeexReader, SaysCorruptOfMoreFramesThanTheirSamplesCanBeCounted) {
  Bytes array(6710886);
  kestrolin_speex speex;
  EXPECT_EQ(kestrolin_speex_open_headerless(&speex, asSigned(array), array.size(), 32000),
            KESTROLIN_OK);
  EXPECT_EQ(speex.frames, 6710886U);
  EXPECT_EQ(speex.samples, 4294967040U);
  array.push_back(0);
  EXPECT_EQ(speexOpening(array, 32000), KESTROLIN_CORRUPT);
}

TEST(SpeexReader, TwoReadersStandOverOneArray) {
  Frames const frames{{10, 20}, {30}};
  Bytes const array = speexArray(8000, 2 * narrow, frames);
  kestrolin_speex one = opened(array);
  kestrolin_speex other = opened(array);
  EXPECT_EQ(framesOf(one), frames);
  EXPECT_EQ(framesOf(other), frames);
}

// The fields are for reading; whoever writes them still gets no byte from outside.
TEST(SpeexReader, AnswersTheErrorsOfOpeningWhereTheFieldsWereChanged) {
  Bytes array = speexArray(8000, narrow, {{10, 20, 30}});
  kestrolin_speex speex = opened(array);
  char const* frame = nullptr;
  int size = -1;
  speex.left = 3;
  EXPECT_EQ(kestrolin_speex_next(&speex, &frame, &size), KESTROLIN_TRUNCATED);
  array = withByte(array, headerSize, 201);
  speex.next = asSigned(array) + headerSize;
  EXPECT_EQ(kestrolin_speex_next(&speex, &frame, &size), KESTROLIN_CORRUPT);
  EXPECT_EQ(frame, nullptr);
  EXPECT_EQ(size, -1);
  EXPECT_EQ(speex.next, asSigned(array) + headerSize);
  EXPECT_EQ(speex.left, 3U);
}
