// What is decoded of arrays that were put together by hand.
#include "audio/weergave/doelDecoder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <optional>

#include "tests/audio/codec/adpcmModel.h"
#include "tests/firmware/arrayHelp.h"
#include "tests/firmware/speexArray.h"
#include "tests/firmware/wavImage.h"

namespace {

Samples shorts(std::vector<int> const& numbers) {
  return {numbers.begin(), numbers.end()};
}

void expectSound(DoelGeluid const& sound, unsigned int rate, unsigned int channels,
                 Samples const& samples) {
  EXPECT_EQ(sound.status, KESTROLIN_OK);
  EXPECT_EQ(sound.rate, rate);
  EXPECT_EQ(sound.kanalen, channels);
  EXPECT_EQ(sound.samples, samples);
}

void expectRefused(DoelGeluid const& sound, kestrolin_status status) {
  EXPECT_EQ(sound.status, status);
  EXPECT_EQ(sound.samples, Samples());
}

}  // namespace

TEST(DoelDecoder, ReadsPcmWithItsHeader) {
  expectSound(DoelDecoder().decodeer(ArraySoort::pcm,
                                     {3, 0, 0, 0, 0x40, 0x1F, 1, 0, 0xFF, 0x7F, 0xFF, 0xFF}),
              8000, 1, {1, 32767, -1});
}

TEST(DoelDecoder, ReadsPcmWithoutHeaderAtTheRateOfTheCaller) {
  expectSound(DoelDecoder().decodeer(ArraySoort::pcm, {1, 0, 0x00, 0x80, 0, 0, 0, 0, 0, 0}, 32000),
              32000, 1, {1, -32768});
}

// The model is a coder of the tests' own.
TEST(DoelDecoder, GoesOnFromTheAdpcmFragmentBefore) {
  for (bool const withHeader : {true, false}) {
    std::optional<std::uint16_t> const headerless =
        withHeader ? std::nullopt : std::optional<std::uint16_t>(8000);
    DoelDecoder decoder;
    AdpcmStand model;
    for (std::size_t const count : std::initializer_list<std::size_t>{20, 31, 7}) {
      Bytes const codes = noise(count);
      expectSound(
          decoder.decodeer(ArraySoort::adpcm, modelBeeld(codes, 8000, withHeader), headerless),
          8000, 1, shorts(modelSamples(model, codes)));
    }
  }
}

TEST(DoelDecoder, GoesOnBehindOtherArraysAndBrokenOnes) {
  Bytes const codes = noise(20);
  Bytes const array = modelBeeld(codes, 8000, true);
  DoelDecoder decoder;
  AdpcmStand model;
  expectSound(decoder.decodeer(ArraySoort::adpcm, array), 8000, 1,
              shorts(modelSamples(model, codes)));
  decoder.decodeer(ArraySoort::pcm, {1, 0, 0, 0, 0x40, 0x1F, 1, 0});
  expectRefused(decoder.decodeer(ArraySoort::adpcm, cutAt(array, array.size() - 1)),
                KESTROLIN_TRUNCATED);
  expectSound(decoder.decodeer(ArraySoort::adpcm, array), 8000, 1,
              shorts(modelSamples(model, codes)));
}

TEST(DoelDecoder, KeepsTheChannelsOfAWavFile) {
  Bytes const sound{1, 0, 2, 0, 3, 0, 4, 0};
  expectSound(DoelDecoder().decodeer(ArraySoort::wav, wavImage(pcmFormat(2, 16000), sound)), 16000,
              2, {1, 2, 3, 4});
  // It has its header always.
  expectSound(DoelDecoder().decodeer(ArraySoort::wav, wavImage(pcmFormat(2, 16000), sound), 8000),
              16000, 2, {1, 2, 3, 4});
}

TEST(DoelDecoder, RefusesWhatTheReadersRefuse) {
  for (ArraySoort const kind :
       {ArraySoort::speex, ArraySoort::adpcm, ArraySoort::pcm, ArraySoort::wav}) {
    expectRefused(DoelDecoder().decodeer(kind, {}), KESTROLIN_TRUNCATED);
  }
  expectRefused(DoelDecoder().decodeer(ArraySoort::pcm, Bytes(8)), KESTROLIN_CORRUPT);
  expectRefused(DoelDecoder().decodeer(ArraySoort::speex, {}, 44100), KESTROLIN_CORRUPT);
}

class DoelDecoderSpeex : public testing::TestWithParam<int> {
 protected:
  static constexpr std::size_t frameCount = 12;

  int band() const { return GetParam(); }
  int rate() const { return bandRates.at(static_cast<std::size_t>(band())); }
  // All that libspeex makes of the frames, behind the delay of the codec, which docs/firmware.md
  // tells as the readers do.
  Samples heard(Frames const& frames) const {
    constexpr std::array<std::ptrdiff_t, 3> delays{80, 223, 509};
    DirecteDecoder decoder(band());
    Samples all;
    for (Bytes const& frame : frames) {
      std::vector<short> const block = decoder.decodeer(frame);
      all.insert(all.end(), block.begin(), block.end());
    }
    return {all.begin() + delays.at(static_cast<std::size_t>(band())), all.end()};
  }
};

INSTANTIATE_TEST_SUITE_P(Bands, DoelDecoderSpeex, testing::Range(0, 3));

TEST_P(DoelDecoderSpeex, EndsWhereTheFragmentDoes) {
  Frames const frames = directeFrames(band(), frameCount);
  std::size_t const samples = (frameCount - 1) * directeFrameSize(band()) + 1;
  Samples expected = heard(frames);
  expected.resize(std::min(samples, expected.size()));
  expectSound(DoelDecoder().decodeer(ArraySoort::speex, speexArray(rate(), samples, frames)),
              static_cast<unsigned int>(rate()), 1, expected);
}

TEST_P(DoelDecoderSpeex, EndsWithTheFramesWithoutHeader) {
  Frames const frames = directeFrames(band(), frameCount);
  expectSound(DoelDecoder().decodeer(ArraySoort::speex, speexFrames(frames),
                                     static_cast<std::uint16_t>(rate())),
              static_cast<unsigned int>(rate()), 1, heard(frames));
}
