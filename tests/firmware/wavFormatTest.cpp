// Formats, and what contradicts them.
#include <gtest/gtest.h>

#include <vector>

#include "tests/firmware/arrayHelp.h"
#include "tests/firmware/wavImage.h"

namespace {

// The answer to an image of this format without any sound.
kestrolin_status answerTo(WavFormat const& format) {
  return wavOpening(wavImage(format, {}));
}

WavFormat with(WavFormat format, unsigned int WavFormat::*field, unsigned int value) {
  format.*field = value;
  return format;
}

WavFormat withBlockFrames(WavFormat format, unsigned int frames) {
  format.extra = joined({{2, 0}, laagEerst(frames, 2)});
  return format;
}

// So many bytes of a chunk "fmt ".
kestrolin_status answerToCut(WavFormat const& format, std::size_t size) {
  Bytes const whole = format.chunk();
  Bytes const content(whole.begin() + 8, whole.begin() + 8 + static_cast<std::ptrdiff_t>(size));
  return wavOpening(riff({chunk("fmt ", content), chunk("data", {})}));
}

}  // namespace

TEST(WavFormat, SaysUnsupportedOfOtherFormats) {
  // None, one of four bits by another maker, float, laws of eight bits, GSM, the extensible one.
  for (unsigned const format : {0U, 2U, 3U, 6U, 7U, 16U, 18U, 49U, 257U, 273U, 0xFFFEU, 0xFFFFU}) {
    EXPECT_EQ(answerTo(with(pcmFormat(1), &WavFormat::format, format)), KESTROLIN_UNSUPPORTED)
        << format;
  }
}

TEST(WavFormat, SaysUnsupportedOfOtherWidths) {
  for (unsigned const bits : {0U, 4U, 8U, 12U, 15U, 17U, 24U, 32U, 256U + 16U}) {
    WavFormat const pcm = with(pcmFormat(1), &WavFormat::bits, bits);
    EXPECT_EQ(answerTo(pcm), KESTROLIN_UNSUPPORTED) << bits;
    // Nor with the size of block that goes with it.
    EXPECT_EQ(answerTo(with(pcm, &WavFormat::blockSize, bits / 8)), KESTROLIN_UNSUPPORTED) << bits;
  }
  for (unsigned const bits : {0U, 2U, 3U, 5U, 8U, 16U, 256U + 4U}) {
    EXPECT_EQ(answerTo(with(imaFormat(1, 3), &WavFormat::bits, bits)), KESTROLIN_UNSUPPORTED)
        << bits;
  }
}

TEST(WavFormat, SaysUnsupportedOfImaAdpcmOfMoreThanTwoChannels) {
  EXPECT_EQ(answerTo(imaFormat(1, 3)), KESTROLIN_OK);
  EXPECT_EQ(answerTo(imaFormat(2, 3)), KESTROLIN_OK);
  EXPECT_EQ(answerTo(imaFormat(3, 3)), KESTROLIN_UNSUPPORTED);
  EXPECT_EQ(answerTo(imaFormat(256, 3)), KESTROLIN_UNSUPPORTED);
  EXPECT_EQ(answerTo(imaFormat(257, 3)), KESTROLIN_UNSUPPORTED);
}

TEST(WavFormat, SaysCorruptWithoutChannelsOrFrequency) {
  for (WavFormat const& format : {pcmFormat(1), imaFormat(1, 3)}) {
    EXPECT_EQ(answerTo(with(format, &WavFormat::channels, 0)), KESTROLIN_CORRUPT);
    EXPECT_EQ(answerTo(with(format, &WavFormat::rate, 0)), KESTROLIN_CORRUPT);
    EXPECT_EQ(answerTo(with(format, &WavFormat::rate, 0x10000)), KESTROLIN_OK);
  }
  EXPECT_EQ(answerTo({KESTROLIN_WAV_PCM, 0, 8000, 0, 16, {}}), KESTROLIN_CORRUPT);
}

TEST(WavFormat, SaysCorruptOfPcmWithAnotherSizeOfBlock) {
  for (unsigned const size : {0U, 1U, 3U, 4U, 258U}) {
    EXPECT_EQ(answerTo(with(pcmFormat(1), &WavFormat::blockSize, size)), KESTROLIN_CORRUPT) << size;
  }
  EXPECT_EQ(answerTo(with(pcmFormat(2), &WavFormat::blockSize, 2)), KESTROLIN_CORRUPT);
  // Twice the channels is 65536, of which a block size of 16 bits has nothing.
  EXPECT_EQ(answerTo(with(pcmFormat(32768), &WavFormat::blockSize, 0)), KESTROLIN_CORRUPT);
}

TEST(WavFormat, SaysCorruptOfImaAdpcmWithBlocksThatAreNoneOfItsOwn) {
  for (unsigned const size : {0U, 1U, 3U, 5U, 6U, 15U, 17U, 18U}) {
    EXPECT_EQ(answerTo(with(imaFormat(1, 3), &WavFormat::blockSize, size)), KESTROLIN_CORRUPT)
        << size;
  }
  // The one that four bytes a channel do not add up to for two, with the samples of the rest.
  for (unsigned const size : {0U, 4U, 20U}) {
    WavFormat const format = withBlockFrames(imaFormat(2, 1), 1 + 8 * (size / 8));
    EXPECT_EQ(answerTo(with(format, &WavFormat::blockSize, size)), KESTROLIN_CORRUPT) << size;
  }
}

TEST(WavFormat, SaysCorruptOfImaAdpcmWithAnotherNumberOfSamplesABlock) {
  for (unsigned const channels : {1U, 2U}) {
    WavFormat const format = imaFormat(channels, 3);
    EXPECT_EQ(answerTo(withBlockFrames(format, 25)), KESTROLIN_OK);
    for (unsigned const frames : {0U, 1U, 17U, 24U, 26U, 33U, 256U + 25U}) {
      EXPECT_EQ(answerTo(withBlockFrames(format, frames)), KESTROLIN_CORRUPT) << frames;
    }
  }
}

// 8 x 8191 + 1 samples are the most that 16 bits count, though blocks may have more bytes.
TEST(WavFormat, TakesTheLargestBlocksThatCanBeCounted) {
  EXPECT_EQ(answerTo(imaFormat(1, 8191)), KESTROLIN_OK);
  EXPECT_EQ(answerTo(imaFormat(2, 8190)), KESTROLIN_OK);
  EXPECT_EQ(answerTo(imaFormat(1, 8192)), KESTROLIN_CORRUPT);
  EXPECT_EQ(answerTo(imaFormat(1, 16382)), KESTROLIN_CORRUPT);
}

TEST(WavFormat, SaysCorruptOfAFormatThatIsTooShort) {
  for (std::size_t size = 0; size < 16; ++size) {
    EXPECT_EQ(answerToCut(pcmFormat(1), size), KESTROLIN_CORRUPT) << size;
  }
  EXPECT_EQ(answerToCut(pcmFormat(1), 16), KESTROLIN_OK);
  for (std::size_t size = 0; size < 20; ++size) {
    EXPECT_EQ(answerToCut(imaFormat(1, 3), size), KESTROLIN_CORRUPT) << size;
  }
  EXPECT_EQ(answerToCut(imaFormat(1, 3), 20), KESTROLIN_OK);
  // Nor does a good one before it help.
  EXPECT_EQ(wavOpening(riff({pcmFormat(1).chunk(), chunk("fmt ", Bytes(14)), chunk("data", {})})),
            KESTROLIN_CORRUPT);
}

TEST(WavFormat, SaysCorruptOfABlockOrASampleThatIsNotWhole) {
  EXPECT_EQ(wavOpening(wavImage(pcmFormat(1), Bytes(3))), KESTROLIN_CORRUPT);
  for (std::size_t const size : {1U, 2U, 3U, 5U, 6U, 7U}) {
    EXPECT_EQ(wavOpening(wavImage(pcmFormat(2), Bytes(size))), KESTROLIN_CORRUPT) << size;
  }
  EXPECT_EQ(wavOpening(wavImage(pcmFormat(2), Bytes(8))), KESTROLIN_OK);
  WavFormat const ima = imaFormat(1, 1);
  for (std::size_t size = 0; size <= 24; ++size) {
    EXPECT_EQ(wavOpening(wavImage(ima, Bytes(size))),
              size % 8 == 0 ? KESTROLIN_OK : KESTROLIN_CORRUPT)
        << size;
  }
}

TEST(WavFormat, SaysCorruptOfAnIndexBeyondTheTableAtTheStartOfAnyBlock) {
  for (unsigned const channels : {1U, 2U}) {
    WavFormat const format = imaFormat(channels, 2);
    Bytes const blocks = imaBlocks(format, 3);
    EXPECT_EQ(wavOpening(wavImage(format, blocks)), KESTROLIN_OK);
    for (std::size_t block = 0; block < blocks.size(); block += format.blockSize) {
      for (std::size_t channel = 0; channel < channels; ++channel) {
        for (unsigned const index : {89U, 128U, 255U}) {
          Bytes const changed = withByte(blocks, block + 4 * channel + 2, index);
          EXPECT_EQ(wavOpening(wavImage(format, changed)), KESTROLIN_CORRUPT) << block;
        }
      }
    }
    // All other bytes of a block may have any value.
    for (std::size_t at = 0; at < format.blockSize; ++at) {
      if (at % 4 != 2 || at >= std::size_t{4} * channels) {
        EXPECT_EQ(wavOpening(wavImage(format, withByte(blocks, at, 255))), KESTROLIN_OK) << at;
      }
    }
  }
}
