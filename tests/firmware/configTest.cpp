// KESTROLIN_CONFIG: the readers take all bytes of arrays by the macro that it defines, and nothing
// else. So they give the same whatever a plain read of the arrays would tell.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "kestrolin_adpcm.h"
#include "kestrolin_pcm.h"
#include "kestrolin_speex.h"
#include "kestrolin_wav.h"
#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/firmware/arrayHelp.h"
#include "tests/firmware/readerHelp.h"
#include "tests/firmware/wavImage.h"

namespace {

// One array, of which each byte differs from what it stands for in the bits of a mask.
class Disguise {
 public:
  Disguise(Bytes const& array, unsigned mask) : bits(mask), stored(array), reads(array.size()) {
    std::transform(stored.begin(), stored.end(), stored.begin(),
                   [mask](unsigned char byte) { return static_cast<unsigned char>(byte ^ mask); });
    current = this;
  }
  Disguise(Disguise const&) = delete;
  Disguise(Disguise&&) = delete;
  Disguise& operator=(Disguise const&) = delete;
  Disguise& operator=(Disguise&&) = delete;
  ~Disguise() {
    EXPECT_FALSE(strayed) << "something else than the array was read";
    current = nullptr;
  }

  unsigned char const* data() const { return stored.data(); }
  signed char const* signedData() const {
    return reinterpret_cast<signed char const*>(stored.data());
  }
  std::size_t size() const { return stored.size(); }

  unsigned char take(unsigned char const* address) {
    std::less<> const before;
    if (before(address, data()) || !before(address, data() + size())) {
      strayed = true;
      return 0;
    }
    auto const place = static_cast<std::size_t>(address - data());
    ++reads.at(place);
    return static_cast<unsigned char>(stored.at(place) ^ bits);
  }

  // The bytes that nobody took, of those from one place to another.
  std::ptrdiff_t untaken(std::size_t from, std::size_t to) const {
    return std::count(reads.begin() + static_cast<std::ptrdiff_t>(from),
                      reads.begin() + static_cast<std::ptrdiff_t>(to), 0);
  }

  static Disguise* current;

 private:
  unsigned const bits;
  Bytes stored;
  std::vector<int> reads;
  bool strayed = false;
};

Disguise* Disguise::current = nullptr;

// With a mask of 0 a plain read tells the same: what is taken is counted there too.
class Config : public testing::TestWithParam<unsigned> {};

INSTANTIATE_TEST_SUITE_P(Masks, Config, testing::Values(0x00U, 0x5AU, 0x80U, 0xFFU),
                         [](auto const& mask) { return std::to_string(mask.param); });

}  // namespace

unsigned char disguised_byte(unsigned char const* address) {
  return Disguise::current->take(address);
}

TEST_P(Config, PcmIsTakenByTheMacro) {
  std::vector<int> const samples = golf(40);
  Disguise array(verwachtBeeld(samples, 8000, true), GetParam());
  kestrolin_pcm pcm;
  ASSERT_EQ(kestrolin_pcm_open(&pcm, array.data(), array.size()), KESTROLIN_OK);
  EXPECT_EQ(pcm.rate, 8000);
  EXPECT_EQ(readAll(pcm, kestrolin_pcm_read, 7), samples);
  EXPECT_EQ(array.untaken(0, array.size()), 0);
}

TEST_P(Config, PcmWithoutHeaderIsTakenByTheMacro) {
  std::vector<int> const samples = golf(40);
  Disguise array(verwachtBeeld(samples, 8000, false), GetParam());
  kestrolin_pcm pcm;
  ASSERT_EQ(kestrolin_pcm_open_headerless(&pcm, array.data(), array.size(), 8000), KESTROLIN_OK);
  EXPECT_EQ(readAll(pcm, kestrolin_pcm_read, 7), samples);
  EXPECT_EQ(array.untaken(0, array.size() - 6), 0);
}

TEST_P(Config, AdpcmIsTakenByTheMacro) {
  Bytes const codes = noise(40);
  Bytes bytes = modelBeeld(codes, 8000, true);
  bytes.at(6) = 0x12;
  bytes.at(7) = 0xF0;
  bytes.at(8) = 33;
  AdpcmStand model{33, 0xF012 - 65536};
  std::vector<int> const expected = modelSamples(model, codes);
  Disguise array(bytes, GetParam());
  kestrolin_adpcm adpcm;
  ASSERT_EQ(kestrolin_adpcm_open(&adpcm, array.data(), array.size()), KESTROLIN_OK);
  EXPECT_EQ(adpcm.rate, 8000);
  EXPECT_EQ(readAll(adpcm, kestrolin_adpcm_read, 7), expected);
  kestrolin_adpcm_rewind(&adpcm);
  EXPECT_EQ(readAll(adpcm, kestrolin_adpcm_read, 100), expected);
  EXPECT_EQ(array.untaken(0, array.size()), 0);
}

// The state lies where arrays lie: here behind the array.
TEST_P(Config, StartOfAdpcmIsTakenByTheMacro) {
  Bytes const codes = noise(40);
  Bytes const bytes = modelBeeld(codes, 8000, false);
  AdpcmStand model{88, -2};
  std::vector<int> const expected = modelSamples(model, codes);
  Disguise array(joined({bytes, {0xFE, 0xFF, 88, 0, 0, 89}}), GetParam());
  kestrolin_adpcm adpcm;
  ASSERT_EQ(kestrolin_adpcm_open_headerless(&adpcm, array.data(), bytes.size(), 8000),
            KESTROLIN_OK);
  EXPECT_EQ(kestrolin_adpcm_start(&adpcm, array.data() + bytes.size()), KESTROLIN_OK);
  EXPECT_EQ(kestrolin_adpcm_start(&adpcm, array.data() + bytes.size() + 3), KESTROLIN_CORRUPT);
  EXPECT_EQ(readAll(adpcm, kestrolin_adpcm_read, 7), expected);
  EXPECT_EQ(array.untaken(0, codes.size()), 0);
  EXPECT_EQ(array.untaken(bytes.size(), bytes.size() + 3), 0);
}

// Of a frame, the reader takes the size alone: its bytes are for whoever decodes them.
TEST_P(Config, SizesOfSpeexAreTakenByTheMacro) {
  Disguise array({0x80, 0x3E, 0x80, 0x02, 2, 10, 20, 0}, GetParam());
  kestrolin_speex speex;
  ASSERT_EQ(kestrolin_speex_open(&speex, array.signedData(), array.size()), KESTROLIN_OK);
  EXPECT_EQ(speex.rate, 16000);
  EXPECT_EQ(speex.samples, 640U);
  EXPECT_EQ(speex.frames, 2U);
  char const* frame = nullptr;
  int size = 0;
  EXPECT_EQ(kestrolin_speex_next(&speex, &frame, &size), KESTROLIN_OK);
  EXPECT_EQ(frame, static_cast<void const*>(array.data() + 5));
  EXPECT_EQ(size, 2);
  EXPECT_EQ(kestrolin_speex_next(&speex, &frame, &size), KESTROLIN_OK);
  EXPECT_EQ(size, 0);
  EXPECT_EQ(kestrolin_speex_next(&speex, &frame, &size), KESTROLIN_END);
  EXPECT_EQ(array.untaken(0, 5), 0);
  EXPECT_EQ(array.untaken(5, 7), 2);
  EXPECT_EQ(array.untaken(7, 8), 0);
}

TEST_P(Config, WavOfPcmIsTakenByTheMacro) {
  Bytes const sound = noise(40);
  Bytes const image = riff({chunk("LIST", {1, 2, 3}), pcmFormat(2).chunk(), chunk("data", sound)});
  Disguise array(image, GetParam());
  kestrolin_wav wav;
  ASSERT_EQ(kestrolin_wav_open(&wav, array.data(), array.size()), KESTROLIN_OK);
  EXPECT_EQ(wav.channels, 2);
  EXPECT_EQ(readAll(wav, kestrolin_wav_read, 7), samplesAt(sound, 0, sound.size() / 2));
  EXPECT_EQ(array.untaken(array.size() - sound.size(), array.size()), 0);
}

// By hand: index 0 gives steps 7 and less; code 7 leads to index 8, and zeros give eighths of its
// steps 16, 14, 13, 12 and so on.
TEST_P(Config, WavOfImaAdpcmIsTakenByTheMacro) {
  Bytes const block{100, 0, 0, 0, 0x07, 0x00, 0x00, 0x00};
  Disguise array(wavImage(imaFormat(1, 1), joined({block, block})), GetParam());
  kestrolin_wav wav;
  ASSERT_EQ(kestrolin_wav_open(&wav, array.data(), array.size()), KESTROLIN_OK);
  std::vector<int> const once{100, 111, 113, 114, 115, 116, 117, 118, 119};
  std::vector<int> expected(once);
  expected.insert(expected.end(), once.begin(), once.end());
  EXPECT_EQ(readAll(wav, kestrolin_wav_read, 7), expected);
  // But for byte 3 of each block, which holds nothing.
  EXPECT_EQ(array.untaken(array.size() - 16, array.size()), 2);
}
