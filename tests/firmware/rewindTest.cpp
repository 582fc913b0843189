// Going back to the start, from anywhere.
#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <vector>

#include "kestrolin_adpcm.h"
#include "kestrolin_pcm.h"
#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/firmware/arrayHelp.h"
#include "tests/firmware/readerHelp.h"
#include "tests/firmware/readerRules.h"
#include "tests/firmware/speexArray.h"
#include "tests/firmware/wavImage.h"

namespace {

template <typename Reader>
using Read = std::size_t (*)(Reader*, std::int16_t*, std::size_t);

// Goes back after every number of samples, and once more right after that.
template <typename Reader>
void expectRewound(Reader reader, Read<Reader> read, void (*rewind)(Reader*),
                   std::vector<int> const& expected) {
  unsigned char const* const begin = reader.next;
  ASSERT_EQ(reader.left, expected.size());
  ASSERT_EQ(reader.count, expected.size());
  for (std::size_t given = 0; given <= expected.size(); ++given) {
    std::vector<std::int16_t> samples(given + 1);
    ASSERT_EQ(read(&reader, samples.data(), given), given);
    EXPECT_EQ(reader.count, expected.size());
    for (int again = 0; again < 2; ++again) {
      rewind(&reader);
      EXPECT_EQ(reader.next, begin) << given;
      EXPECT_EQ(reader.left, expected.size()) << given;
      EXPECT_EQ(reader.count, expected.size()) << given;
    }
    EXPECT_EQ(readAll(reader, read, 3), expected) << given;
    rewind(&reader);
  }
}

// What was refused stays empty, however often it goes back.
template <typename Reader>
void expectEmpty(Bytes const& array,
                 kestrolin_status (*open)(Reader*, unsigned char const*, std::size_t),
                 Read<Reader> read, void (*rewind)(Reader*)) {
  Reader reader;
  std::memset(&reader, 0xA5, sizeof reader);
  EXPECT_NE(open(&reader, array.data(), array.size()), KESTROLIN_OK);
  EXPECT_EQ(reader.count, 0U);
  rewind(&reader);
  EXPECT_EQ(reader.next, array.data());
  EXPECT_EQ(reader.count, 0U);
  EXPECT_TRUE(isEmpty(reader, read));
}

void expectWavRewound(Bytes const& image, std::vector<int> const& expected) {
  kestrolin_wav wav;
  ASSERT_EQ(kestrolin_wav_open(&wav, image.data(), image.size()), KESTROLIN_OK);
  expectRewound(wav, kestrolin_wav_read, kestrolin_wav_rewind, expected);
}

void expectWavEmpty(Bytes const& image) {
  expectEmpty(image, kestrolin_wav_open, kestrolin_wav_read, kestrolin_wav_rewind);
}

}  // namespace

TEST(Rewind, Pcm) {
  std::vector<int> const samples = golf(7);
  Bytes array = verwachtBeeld(samples, 8000, true);
  kestrolin_pcm pcm;
  ASSERT_EQ(kestrolin_pcm_open(&pcm, array.data(), array.size()), KESTROLIN_OK);
  expectRewound(pcm, kestrolin_pcm_read, kestrolin_pcm_rewind, samples);
  array = verwachtBeeld(samples, 8000, false);
  ASSERT_EQ(kestrolin_pcm_open_headerless(&pcm, array.data(), array.size(), 8000), KESTROLIN_OK);
  expectRewound(pcm, kestrolin_pcm_read, kestrolin_pcm_rewind, samples);
}

TEST(Rewind, PcmWithoutSamples) {
  Bytes const array = verwachtBeeld({}, 8000, true);
  kestrolin_pcm pcm;
  ASSERT_EQ(kestrolin_pcm_open(&pcm, array.data(), array.size()), KESTROLIN_OK);
  expectRewound(pcm, kestrolin_pcm_read, kestrolin_pcm_rewind, {});
}

// Every other number of samples stands in the middle of a byte.
TEST(Rewind, Adpcm) {
  Bytes const codes = noise(9);
  AdpcmStand model;
  std::vector<int> const samples = modelSamples(model, codes);
  Bytes array = modelBeeld(codes, 8000, true);
  kestrolin_adpcm adpcm;
  ASSERT_EQ(kestrolin_adpcm_open(&adpcm, array.data(), array.size()), KESTROLIN_OK);
  expectRewound(adpcm, kestrolin_adpcm_read, kestrolin_adpcm_rewind, samples);
  array = modelBeeld(codes, 8000, false);
  ASSERT_EQ(kestrolin_adpcm_open_headerless(&adpcm, array.data(), array.size(), 8000),
            KESTROLIN_OK);
  expectRewound(adpcm, kestrolin_adpcm_read, kestrolin_adpcm_rewind, samples);
}

TEST(Rewind, AdpcmToTheStartThatTheHeaderTells) {
  Bytes const codes = noise(5);
  Bytes array = modelBeeld(codes, 8000, true);
  array.at(6) = 0x34;
  array.at(7) = 0xF2;
  array.at(8) = 61;
  AdpcmStand model{61, 0xF234 - 65536};
  kestrolin_adpcm adpcm;
  ASSERT_EQ(kestrolin_adpcm_open(&adpcm, array.data(), array.size()), KESTROLIN_OK);
  expectRewound(adpcm, kestrolin_adpcm_read, kestrolin_adpcm_rewind, modelSamples(model, codes));
}

// Whether the sample is the first, the middle or the last of a frame of all channels.
TEST(Rewind, WavOfPcm) {
  for (unsigned const channels : {1U, 2U, 3U}) {
    Bytes const sound = noise(std::size_t{2} * channels * 4);
    expectWavRewound(wavImage(pcmFormat(channels), sound), samplesAt(sound, 0, sound.size() / 2));
  }
}

// Blocks of their header alone, and others, with every place within them.
TEST(Rewind, WavOfImaAdpcm) {
  for (unsigned const channels : {1U, 2U}) {
    for (unsigned const groups : {0U, 1U, 2U}) {
      WavFormat const format = imaFormat(channels, groups);
      Bytes const blocks = imaBlocks(format, 3);
      expectWavRewound(wavImage(format, blocks), imaSamples(blocks, {channels, format.blockSize}));
    }
  }
}

TEST(Rewind, WavWithoutSamples) {
  expectWavRewound(wavImage(pcmFormat(1), {}), {});
  expectWavRewound(wavImage(imaFormat(2, 4), {}), {});
}

TEST(Rewind, WavGoesBackToTheFirstSampleOfItsBlock) {
  WavFormat const format = imaFormat(2, 1);
  Bytes const image = wavImage(format, imaBlocks(format, 2));
  kestrolin_wav wav;
  ASSERT_EQ(kestrolin_wav_open(&wav, image.data(), image.size()), KESTROLIN_OK);
  std::vector<std::int16_t> samples(23);
  ASSERT_EQ(kestrolin_wav_read(&wav, samples.data(), 23), 23U);
  EXPECT_EQ(wav.frame, 2);
  EXPECT_EQ(wav.channel, 1);
  kestrolin_wav_rewind(&wav);
  EXPECT_EQ(wav.frame, 0);
  EXPECT_EQ(wav.channel, 0);
}

TEST(Rewind, StaysEmptyAfterAnErrorOfOpening) {
  Bytes const pcm = verwachtBeeld(golf(4), 8000, true);
  Bytes const adpcm = modelBeeld(noise(4), 8000, true);
  for (std::size_t size = 0; size < pcm.size(); ++size) {
    expectEmpty(cutAt(pcm, size), kestrolin_pcm_open, kestrolin_pcm_read, kestrolin_pcm_rewind);
  }
  for (std::size_t size = 0; size < adpcm.size(); ++size) {
    expectEmpty(cutAt(adpcm, size), kestrolin_adpcm_open, kestrolin_adpcm_read,
                kestrolin_adpcm_rewind);
  }
  expectEmpty(withByte(adpcm, 8, 89), kestrolin_adpcm_open, kestrolin_adpcm_read,
              kestrolin_adpcm_rewind);
}

// A format that is refused leaves fields that contradict each other.
TEST(Rewind, WavStaysEmptyAfterAnErrorOfOpening) {
  for (WavFormat const& format : {pcmFormat(2), imaFormat(2, 1)}) {
    Bytes const image = wavImage(format, noise(32));
    for (std::size_t size = 0; size < image.size(); ++size) {
      expectWavEmpty(cutAt(image, size));
    }
    WavFormat other = format;
    other.bits = 8;
    expectWavEmpty(wavImage(other, {}));
    other = format;
    other.blockSize = 0;
    expectWavEmpty(wavImage(other, {}));
    other.channels = 0;
    expectWavEmpty(wavImage(other, {}));
  }
  expectWavEmpty(wavImage(imaFormat(3, 1), {}));
  WavFormat const ima = imaFormat(1, 1);
  expectWavEmpty(wavImage(ima, withByte(imaBlocks(ima, 1), 2, 89)));
}

TEST(Rewind, Speex) {
  Frames const frames{noise(38), {}, noise(200), noise(1)};
  Bytes const withHeader = speexArray(8000, 500, frames);
  Bytes const without = speexFrames(frames);
  for (bool const headerless : {false, true}) {
    Bytes const& array = headerless ? without : withHeader;
    kestrolin_speex speex;
    ASSERT_EQ(headerless
                  ? kestrolin_speex_open_headerless(&speex, asSigned(array), array.size(), 8000)
                  : kestrolin_speex_open(&speex, asSigned(array), array.size()),
              KESTROLIN_OK);
    EXPECT_EQ(speex.size, 4U + 38 + 200 + 1);
    signed char const* const begin = speex.next;
    for (std::size_t given = 0; given <= frames.size(); ++given) {
      for (std::size_t i = 0; i < given; ++i) {
        char const* frame = nullptr;
        int size = 0;
        ASSERT_EQ(kestrolin_speex_next(&speex, &frame, &size), KESTROLIN_OK);
      }
      kestrolin_speex_rewind(&speex);
      EXPECT_EQ(speex.next, begin);
      EXPECT_EQ(speex.left, speex.size);
      EXPECT_EQ(speex.frames, 4U);
      EXPECT_EQ(speex.samples, headerless ? 640U : 500U);
      EXPECT_EQ(framesOf(speex), frames) << given;
      kestrolin_speex_rewind(&speex);
    }
  }
}

TEST(Rewind, SpeexStaysEmptyAfterAnErrorOfOpening) {
  Bytes const array = speexArray(8000, 320, {noise(3), noise(5)});
  for (std::size_t size = 0; size < array.size(); ++size) {
    kestrolin_speex speex;
    std::memset(&speex, 0xA5, sizeof speex);
    EXPECT_NE(kestrolin_speex_open(&speex, asSigned(array), size), KESTROLIN_OK);
    EXPECT_EQ(speex.size, 0U);
    kestrolin_speex_rewind(&speex);
    EXPECT_EQ(speex.next, asSigned(array));
    EXPECT_EQ(framesOf(speex), Frames{});
  }
}
