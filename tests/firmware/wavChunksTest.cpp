// Where in an image format and sound are found, and in what images they are not.
#include <gtest/gtest.h>

#include <vector>

#include "tests/firmware/arrayHelp.h"
#include "tests/firmware/wavImage.h"

namespace {

Bytes const sound{1, 0, 2, 0, 0xFD, 0xFF};
std::vector<int> const samples{1, 2, -3};

Bytes format() {
  return pcmFormat(1).chunk();
}
Bytes data() {
  return chunk("data", sound);
}

}  // namespace

TEST(WavChunks, OthersMayStandAnywhere) {
  Bytes const even = chunk("LIST", {'a', 'b', 'c', 'd'});
  Bytes const odd = chunk("LIST", {'a', 'b', 'c'});
  Bytes const empty = chunk("fact", {});
  for (Bytes const& other : {even, odd, empty}) {
    EXPECT_EQ(wavSamples(riff({other, format(), data()})), samples);
    EXPECT_EQ(wavSamples(riff({format(), other, data()})), samples);
    EXPECT_EQ(wavSamples(riff({format(), data(), other})), samples);
    EXPECT_EQ(wavSamples(riff({other, odd, format(), odd, other, data(), other, odd})), samples);
  }
}

TEST(WavChunks, HaveNamesOfFourLetters) {
  for (std::string const name : {"Data", "datb", "dat ", "xata"}) {
    EXPECT_EQ(wavSamples(riff({format(), chunk(name, {9, 9}), data()})), samples) << name;
  }
  for (std::string const name : {"Fmt ", "fmtx", "fm  "}) {
    EXPECT_EQ(wavSamples(riff({chunk(name, Bytes(16)), format(), data()})), samples) << name;
  }
}

TEST(WavChunks, WhatLiesBehindTheSoundIsPassedOver) {
  Bytes const image = riff({format(), data()});
  for (std::size_t const size : {1U, 7U, 8U, 9U, 100U}) {
    EXPECT_EQ(wavSamples(joined({image, Bytes(size, 0xFF)})), samples) << size;
  }
}

TEST(WavChunks, TheSizeOfTheWholeIsNotReliedOn) {
  for (unsigned const value : {0U, 1U, 0xFFU}) {
    Bytes image = riff({format(), data()});
    for (std::size_t const at : {4U, 5U, 6U, 7U}) {
      image = withByte(image, at, value);
    }
    EXPECT_EQ(wavSamples(image), samples) << value;
  }
}

TEST(WavChunks, AFormatMayBeLongerThanItHasToBe) {
  WavFormat pcm = pcmFormat(1);
  WavFormat ima = imaFormat(1, 1);
  Bytes const block = imaBlocks(ima, 1);
  auto const expected = wavSamples(wavImage(ima, block));
  ASSERT_TRUE(expected);
  for (std::size_t const more : {1U, 2U, 24U}) {
    pcm.extra = Bytes(more, 0xFF);
    EXPECT_EQ(wavSamples(wavImage(pcm, sound)), samples) << more;
    ima.extra = joined({imaFormat(1, 1).extra, Bytes(more, 0xFF)});
    EXPECT_EQ(wavSamples(wavImage(ima, block)), expected) << more;
  }
}

TEST(WavChunks, SaysCorruptOfWhatIsNoWavFile) {
  Bytes const image = riff({format(), data()});
  for (std::size_t const at : {0U, 1U, 2U, 3U, 8U, 9U, 10U, 11U}) {
    EXPECT_EQ(wavOpening(withByte(image, at, image[at] ^ 0x20U)), KESTROLIN_CORRUPT) << at;
  }
  EXPECT_EQ(wavOpening(Bytes(12)), KESTROLIN_CORRUPT);
}

TEST(WavChunks, SaysTruncatedOfEveryShorterImage) {
  WavFormat const ima = imaFormat(2, 2);
  for (Bytes const& image :
       {riff({chunk("LIST", {1, 2, 3}), format(), data()}),
        riff({ima.chunk(), chunk("fact", {1, 2, 3, 4}), chunk("data", imaBlocks(ima, 2))})}) {
    for (std::size_t size = 0; size < image.size(); ++size) {
      EXPECT_EQ(wavOpening(cutAt(image, size)), KESTROLIN_TRUNCATED) << size;
    }
    EXPECT_EQ(wavOpening(image), KESTROLIN_OK);
  }
}

TEST(WavChunks, SaysTruncatedWithoutSound) {
  EXPECT_EQ(wavOpening(riff({})), KESTROLIN_TRUNCATED);
  EXPECT_EQ(wavOpening(riff({format()})), KESTROLIN_TRUNCATED);
  EXPECT_EQ(wavOpening(riff({format(), chunk("LIST", {1, 2})})), KESTROLIN_TRUNCATED);
}

// The byte behind a content of odd size is not there where the image ends.
TEST(WavChunks, SaysTruncatedOfAnImageThatEndsInAnOddChunk) {
  for (Bytes const& content : {Bytes{1}, Bytes{1, 2, 3}}) {
    Bytes const image = riff({format(), chunk("LIST", content)});
    EXPECT_EQ(wavOpening(image), KESTROLIN_TRUNCATED);
    EXPECT_EQ(wavOpening(cutAt(image, image.size() - 1)), KESTROLIN_TRUNCATED);
  }
}

TEST(WavChunks, SaysTruncatedOfAChunkThatIsLongerThanTheImage) {
  constexpr std::size_t sizeAt = 16;  // of the first chunk
  for (std::string const name : {"LIST", "fmt ", "data"}) {
    Bytes const image = riff({chunk(name, Bytes(20))});
    EXPECT_EQ(wavOpening(withByte(image, sizeAt, 21)), KESTROLIN_TRUNCATED) << name;
    EXPECT_EQ(wavOpening(withByte(image, sizeAt + 1, 1)), KESTROLIN_TRUNCATED) << name;
    EXPECT_EQ(wavOpening(withByte(image, sizeAt + 2, 1)), KESTROLIN_TRUNCATED) << name;
    EXPECT_EQ(wavOpening(withByte(image, sizeAt + 3, 0xFF)), KESTROLIN_TRUNCATED) << name;
  }
}

TEST(WavChunks, SaysCorruptWithoutFormatBeforeTheSound) {
  EXPECT_EQ(wavOpening(riff({data()})), KESTROLIN_CORRUPT);
  EXPECT_EQ(wavOpening(riff({chunk("LIST", {1, 2}), data()})), KESTROLIN_CORRUPT);
  EXPECT_EQ(wavOpening(riff({data(), format()})), KESTROLIN_CORRUPT);
  EXPECT_EQ(wavOpening(riff({chunk("data", {})})), KESTROLIN_CORRUPT);
}
