// What libspeex makes of the frames that the reader points it to, and how late it comes.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <numeric>
#include <vector>

#include "tests/firmware/speexArray.h"

namespace {

struct DecoderEnd {
  void operator()(void* decoder) const { speex_decoder_destroy(decoder); }
};

constexpr std::size_t frameCount = 24;

// Decodes an array as the header of the reader shows it.
std::vector<short> played(Bytes const& array) {
  kestrolin_speex speex;
  EXPECT_EQ(kestrolin_speex_open(&speex, asSigned(array), array.size()), KESTROLIN_OK);
  std::unique_ptr<void, DecoderEnd> const decoder(
      speex_decoder_init(speex_lib_get_mode(speex.mode)));
  spx_int32_t on = 1;
  speex_decoder_ctl(decoder.get(), SPEEX_SET_ENH, &on);
  DirecteBits bits;
  std::vector<short> sound;
  char const* frame = nullptr;
  int size = 0;
  while (kestrolin_speex_next(&speex, &frame, &size) == KESTROLIN_OK) {
    std::vector<short> samples(speex.frame_samples);
    speex_bits_read_from(&bits.geef(), frame, size);
    EXPECT_EQ(speex_decode_int(decoder.get(), size > 0 ? &bits.geef() : nullptr, samples.data()),
              0);
    sound.insert(sound.end(), samples.begin(), samples.end());
  }
  return sound;
}

Bytes arrayOf(int band, Frames const& frames) {
  return speexArray(bandRates.at(static_cast<std::size_t>(band)),
                    frames.size() * directeFrameSize(band), frames);
}

Bytes arrayOf(int band) {
  return arrayOf(band, directeFrames(band, frameCount));
}

// How much alike two sounds are where the second one comes `late` samples later.
double likeness(std::vector<std::int16_t> const& first, std::vector<short> const& second,
                std::ptrdiff_t late) {
  return std::inner_product(second.begin() + late, second.end(), first.begin(), 0.0);
}

std::ptrdiff_t lateness(std::vector<std::int16_t> const& first, std::vector<short> const& second) {
  constexpr std::size_t most = 700;
  std::vector<double> all(most);
  std::generate(all.begin(), all.end(), [&, late = std::ptrdiff_t{0}]() mutable {
    return likeness(first, second, late++);
  });
  return std::distance(all.begin(), std::max_element(all.begin(), all.end()));
}

class SpeexSound : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(Bands, SpeexSound, testing::Range(0, 3));

}  // namespace

TEST_P(SpeexSound, IsThatOfTheFramesThemselves) {
  DirecteDecoder decoder(GetParam());
  std::vector<short> expected;
  for (Bytes const& frame : directeFrames(GetParam(), frameCount)) {
    std::vector<short> const samples = decoder.decodeer(frame);
    expected.insert(expected.end(), samples.begin(), samples.end());
  }
  EXPECT_EQ(played(arrayOf(GetParam())), expected);
}

TEST_P(SpeexSound, IsMadeUpWhereAFrameIsEmpty) {
  constexpr std::size_t empty = frameCount / 2;
  Frames frames = directeFrames(GetParam(), frameCount);
  frames[empty].clear();
  std::vector<short> const sound = played(arrayOf(GetParam(), frames));
  std::vector<short> const whole = played(arrayOf(GetParam()));
  ASSERT_EQ(sound.size(), whole.size());
  auto const size = static_cast<std::ptrdiff_t>(directeFrameSize(GetParam()));
  auto const begin = sound.begin() + size * static_cast<std::ptrdiff_t>(empty);
  EXPECT_TRUE(std::equal(sound.begin(), begin, whole.begin()));
  EXPECT_GT(std::inner_product(begin, begin + size, begin, 0.0), 0.0);
}

TEST_P(SpeexSound, ComesLateByTheDelay) {
  Bytes const array = arrayOf(GetParam());
  kestrolin_speex speex;
  ASSERT_EQ(kestrolin_speex_open(&speex, asSigned(array), array.size()), KESTROLIN_OK);
  EXPECT_EQ(kestrolin_speex_delay(&speex),
            lateness(directeSamples(GetParam(), frameCount), played(array)));
}
