// The sound of WAV images, against libsndfile, the model of the coder, and by hand.
#include <gtest/gtest.h>

#include <tuple>
#include <vector>

#include "tests/audio/codec/inbedHulp.h"
#include "tests/firmware/arrayHelp.h"
#include "tests/firmware/readerHelp.h"
#include "tests/firmware/readerRules.h"
#include "tests/firmware/wavImage.h"

namespace {

kestrolin_wav opened(Bytes const& image) {
  kestrolin_wav wav;
  EXPECT_EQ(kestrolin_wav_open(&wav, image.data(), image.size()), KESTROLIN_OK);
  return wav;
}

// Format, channels and frequency.
using Kind = std::tuple<int, int, int>;
class WavOfSndfile : public testing::TestWithParam<Kind> {
 protected:
  TijdelijkeMap const folder;
  std::string const path = folder.pad("sound.wav");
};

INSTANTIATE_TEST_SUITE_P(Kinds, WavOfSndfile,
                         testing::Combine(testing::Values(wavPcm16, wavAdpcm),
                                          testing::Values(1, 2),
                                          testing::Values(8000, 16000, 32000)));
INSTANTIATE_TEST_SUITE_P(MoreChannels, WavOfSndfile,
                         testing::Values(Kind{wavPcm16, 3, 8000}, Kind{wavPcm16, 6, 48000}));

}  // namespace

TEST_P(WavOfSndfile, SoundsAsLibsndfileReadsIt) {
  auto const [format, channels, rate] = GetParam();
  WavSoort kind;
  kind.rate = rate;
  kind.kanalen = channels;
  // Two blocks of IMA ADPCM and a part.
  ASSERT_NO_FATAL_FAILURE(
      schrijfSnd(path, golf(2500 * static_cast<std::size_t>(channels)), kind, format));
  std::vector<int> const expected = leesSnd(path).waarden;
  Bytes const image = leesBytes(path);
  ASSERT_GE(expected.size(), 2500U);
  for (std::size_t const room : rooms) {
    EXPECT_EQ(wavSamples(image, room), expected) << room;
  }
  kestrolin_wav const wav = opened(image);
  EXPECT_EQ(wav.rate, static_cast<unsigned>(rate));
  EXPECT_EQ(wav.channels, channels);
  EXPECT_EQ(wav.left, expected.size());
}

TEST(WavReader, StandsAtTheFirstSampleOfPcmAfterOpening) {
  Bytes const image = wavImage(pcmFormat(2, 0x01020304), {1, 0, 2, 0, 3, 0, 0xFE, 0xFF});
  kestrolin_wav wav = opened(image);
  EXPECT_EQ(wav.next, image.data() + 44);
  EXPECT_EQ(wav.left, 4U);
  EXPECT_EQ(wav.rate, 0x01020304U);
  EXPECT_EQ(wav.channels, 2);
  EXPECT_EQ(wav.format, KESTROLIN_WAV_PCM);
  EXPECT_EQ(wav.block_size, 4);
  EXPECT_EQ(wav.block_frames, 1);
  EXPECT_EQ(readAll(wav, kestrolin_wav_read, 3), (std::vector<int>{1, 2, 3, -2}));
  EXPECT_EQ(wav.next, image.data() + image.size());
}

TEST(WavReader, StandsAtTheFirstBlockOfImaAdpcmAfterOpening) {
  WavFormat const format = imaFormat(2, 3, 44100);
  Bytes const image = wavImage(format, imaBlocks(format, 2));
  kestrolin_wav const wav = opened(image);
  EXPECT_EQ(wav.next, image.data() + 48);
  EXPECT_EQ(wav.left, 2U * 2 * 25);
  EXPECT_EQ(wav.rate, 44100U);
  EXPECT_EQ(wav.channels, 2);
  EXPECT_EQ(wav.format, KESTROLIN_WAV_IMA_ADPCM);
  EXPECT_EQ(wav.block_size, 32);
  EXPECT_EQ(wav.block_frames, 25);
  EXPECT_EQ(wav.frame, 0);
  EXPECT_EQ(wav.channel, 0);
}

// By hand: from index 0, code 7 gives 11 and leads to index 8, where code 15 gives -30 and leads to
// index 16. Codes 0 and 8 give an eighth of the step, 34, 31, 28 and so on with falling indexes.
TEST(WavReader, DecodesABlockOfOneChannel) {
  Bytes const block{0xF0, 0xFF, 0, 0, 0xF7, 0x80, 0x00, 0x00};
  EXPECT_EQ(wavSamples(wavImage(imaFormat(1, 1), block)),
            (std::vector<int>{-16, -5, -35, -31, -34, -31, -28, -26, -24}));
}

// By hand: one channel begins at 100 with code 7, the other at -100 with code 15; from index 8 on,
// eighths of the steps 16, 14, 13, 12 and so on follow.
TEST(WavReader, DecodesABlockOfTwoChannelsInTurn) {
  Bytes const block{100,  0,    0, 0, 0x9C, 0xFF, 0, 0,  // headers
                    0x07, 0x00, 0, 0, 0x0F, 0x00, 0, 0};
  EXPECT_EQ(wavSamples(wavImage(imaFormat(2, 1), block), 5),
            (std::vector<int>{100, -100, 111, -111, 113, -109, 114, -108, 115, -107, 116, -106, 117,
                              -105, 118, -104, 119, -103}));
}

TEST(WavReader, DecodesBlocksAsTheModelDoes) {
  for (unsigned const channels : {1U, 2U}) {
    for (unsigned const groups : {0U, 1U, 2U, 5U}) {
      WavFormat const format = imaFormat(channels, groups);
      Bytes const blocks = imaBlocks(format, 3);
      std::vector<int> const expected = imaSamples(blocks, {channels, format.blockSize});
      ASSERT_EQ(expected.size(), 3 * channels * (1 + 8 * groups));
      for (std::size_t const room : rooms) {
        EXPECT_EQ(wavSamples(wavImage(format, blocks), room), expected) << channels << groups;
      }
    }
  }
}

TEST(WavReader, StandsWithinABlock) {
  WavFormat const format = imaFormat(2, 1);
  Bytes const image = wavImage(format, imaBlocks(format, 2));
  kestrolin_wav wav = opened(image);
  std::vector<std::int16_t> samples(18);
  EXPECT_EQ(kestrolin_wav_read(&wav, samples.data(), 5), 5U);
  EXPECT_EQ(wav.next, image.data() + 48);
  EXPECT_EQ(wav.frame, 2);
  EXPECT_EQ(wav.channel, 1);
  EXPECT_EQ(wav.left, 31U);
  EXPECT_EQ(kestrolin_wav_read(&wav, samples.data(), 13), 13U);
  EXPECT_EQ(wav.next, image.data() + 48 + 16);
  EXPECT_EQ(wav.frame, 0);
  EXPECT_EQ(wav.channel, 0);
}

TEST(WavReader, GivesNothingWithoutRoom) {
  Bytes const image = wavImage(pcmFormat(1), {1, 0, 2, 0});
  kestrolin_wav wav = opened(image);
  EXPECT_EQ(kestrolin_wav_read(&wav, nullptr, 0), 0U);
  EXPECT_EQ(wav.left, 2U);
  EXPECT_EQ(readAll(wav, kestrolin_wav_read, 1), (std::vector<int>{1, 2}));
}

TEST(WavReader, GivesNothingAgainAtTheEnd) {
  for (WavFormat const& format : {pcmFormat(1), imaFormat(1, 0)}) {
    Bytes const image = wavImage(format, Bytes(4));
    kestrolin_wav wav = opened(image);
    ASSERT_TRUE(readAll(wav, kestrolin_wav_read, 3));
    EXPECT_TRUE(isEmpty(wav, kestrolin_wav_read));
  }
}

TEST(WavReader, TakesAnImageWithoutSamples) {
  EXPECT_EQ(wavSamples(wavImage(pcmFormat(1), {})), std::vector<int>{});
  EXPECT_EQ(wavSamples(wavImage(imaFormat(2, 4), {})), std::vector<int>{});
}

TEST(WavReader, TakesManyChannelsOfPcm) {
  Bytes const sound = noise(std::size_t{2} * 32767 * 2);
  EXPECT_EQ(wavSamples(wavImage(pcmFormat(32767), sound), 1000),
            samplesAt(sound, 0, sound.size() / 2));
}
