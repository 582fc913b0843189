// The decoder, against the library driven by the test itself.
#include "externals/software/extern/speex/speexDecoder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "tests/externals/software/extern/speex/speexRechtstreeks.h"

namespace {

constexpr std::size_t blokGrootte = 160;
constexpr std::size_t aantalFrames = 12;
constexpr short onaangeroerd = 12345;

class ProefDecoder : public SpeexDecoder {
 public:
  using SpeexDecoder::formaat;
  using SpeexDecoder::frameSize;
  explicit ProefDecoder(int band) : SpeexDecoder(static_cast<SpeexBandFormaat>(band)) {}

  std::vector<short> decodeer(Bytes const& frame) {
    return decodeerFrame(decoderState.get(), bits, frame);
  }
  // A block of exactly the 160 samples that are written.
  std::vector<short> vast(std::vector<Bytes> const& frames, unsigned long long aantal) {
    std::vector<char> alles;
    for (Bytes const& frame : frames) {
      alles.insert(alles.end(), frame.begin(), frame.end());
    }
    std::vector<short> uitvoer(blokGrootte, onaangeroerd);
    decodeerFixedFrames(alles.data(), frames.at(0).size(), uitvoer.data(), aantal);
    return uitvoer;
  }
};

std::vector<std::vector<short>> decodeerAlle(DirecteDecoder decoder,
                                             std::vector<Bytes> const& frames) {
  std::vector<std::vector<short>> blokken;
  std::transform(frames.begin(), frames.end(), std::back_inserter(blokken),
                 [&](Bytes const& frame) { return decoder.decodeer(frame); });
  return blokken;
}

std::vector<short> herhaald(short sample) {
  std::vector<short> blok(blokGrootte, sample);
  return blok;
}

class SpeexDecoderBand : public testing::TestWithParam<int> {
 protected:
  int band = GetParam();
  std::vector<Bytes> frames = directeFrames(band, aantalFrames);
  // What the library makes of the frames one after the other.
  std::vector<std::vector<short>> blokken = decodeerAlle(DirecteDecoder(band), frames);

  std::vector<Bytes> vanaf(std::size_t eerste) const {
    return {frames.begin() + static_cast<std::ptrdiff_t>(eerste), frames.end()};
  }
};

INSTANTIATE_TEST_SUITE_P(Banden, SpeexDecoderBand, testing::Values(0, 1, 2));

TEST_P(SpeexDecoderBand, DecodesWithPerceptualEnhancement) {
  ProefDecoder decoder(band);
  std::vector<std::vector<short>> gevonden;
  std::transform(frames.begin(), frames.end(), std::back_inserter(gevonden),
                 [&](Bytes const& frame) { return decoder.decodeer(frame); });
  EXPECT_EQ(gevonden, blokken);
  EXPECT_NE(gevonden, decodeerAlle(DirecteDecoder(band, false), frames));
}

TEST_P(SpeexDecoderBand, KnowsFrequencyAndFrameOfItsBand) {
  ProefDecoder const decoder(band);
  SpeexBasis const& basis = decoder;
  EXPECT_EQ(basis.geefSampFreq(), 8000 << band);
  EXPECT_EQ(decoder.frameSize, 160 << band);
  EXPECT_EQ(static_cast<int>(decoder.formaat), band);
}

TEST_P(SpeexDecoderBand, FixedFramesWithACountOf0LeavesOutputAndStateUntouched) {
  ProefDecoder decoder(band);
  EXPECT_EQ(decoder.vast(frames, 0), herhaald(onaangeroerd));
  EXPECT_EQ(decoder.decodeer(frames[0]), blokken[0]);
}

TEST_P(SpeexDecoderBand, FixedFramesWithACountOf1Writes160SamplesAndDecodesOneFrame) {
  ProefDecoder decoder(band);
  EXPECT_EQ(decoder.vast(frames, 1), herhaald(blokken[0][0]));
  EXPECT_EQ(decoder.decodeer(frames[1]), blokken[1]);
}

TEST_P(SpeexDecoderBand, FixedFramesWritesTheFirstSampleOfEachCallsFirstFrame) {
  ProefDecoder decoder(band);
  std::vector<short> eerste;
  for (std::size_t frame = 0; frame < aantalFrames; ++frame) {
    EXPECT_EQ(decoder.vast({frames[frame]}, 1), herhaald(blokken[frame][0])) << frame;
    eerste.push_back(blokken[frame][0]);
  }
  // Samples that are all alike would show nothing.
  std::sort(eerste.begin(), eerste.end());
  EXPECT_GT(std::distance(eerste.begin(), std::unique(eerste.begin(), eerste.end())), 4);
}

TEST_P(SpeexDecoderBand, FixedFramesUpToACountOf161DecodesOneFrame) {
  for (unsigned long long const aantal : {1ULL, 2ULL, 159ULL, 160ULL, 161ULL}) {
    ProefDecoder decoder(band);
    for (std::size_t frame = 0; frame < 5; ++frame) {
      decoder.decodeer(frames[frame]);
    }
    EXPECT_EQ(decoder.vast(vanaf(5), aantal), herhaald(blokken[5][0])) << aantal;
    EXPECT_EQ(decoder.decodeer(frames[6]), blokken[6]) << aantal;
  }
}

TEST_P(SpeexDecoderBand, FixedFramesAbove161OnlyBringsTheDecoderForward) {
  struct Geval {
    unsigned long long aantal;
    std::size_t gedecodeerd;  // 1 and what the count is above 161
  };
  for (Geval const& geval : {Geval{162, 2}, Geval{163, 3}, Geval{165, 5}, Geval{168, 8}}) {
    ProefDecoder decoder(band);
    decoder.decodeer(frames[0]);
    decoder.decodeer(frames[1]);
    EXPECT_EQ(decoder.vast(vanaf(2), geval.aantal), herhaald(blokken[2][0])) << geval.aantal;
    std::size_t const volgende = 2 + geval.gedecodeerd;
    EXPECT_EQ(decoder.decodeer(frames[volgende]), blokken[volgende]) << geval.aantal;
  }
}

TEST_P(SpeexDecoderBand, FixedFramesWrites160SamplesAndNoMore) {
  ProefDecoder decoder(band);
  std::vector<char> const frame(frames[5].begin(), frames[5].end());
  std::vector<short> uitvoer(1000, onaangeroerd);
  decoder.decodeerFixedFrames(frame.data(), frame.size(), uitvoer.data() + 1, 1);
  EXPECT_EQ(uitvoer[0], onaangeroerd);
  EXPECT_NE(uitvoer[1], onaangeroerd);
  EXPECT_NE(uitvoer[160], onaangeroerd);
  EXPECT_EQ(std::count(uitvoer.begin() + 161, uitvoer.end(), onaangeroerd), 839);
}

TEST(SpeexDecoder, BandThatDoesNotExistDecodesAsNarrowband) {
  std::vector<Bytes> const frames = directeFrames(0, aantalFrames);
  std::vector<std::vector<short>> const blokken = decodeerAlle(DirecteDecoder(0), frames);
  for (int const band : {3, 7, -1, 2147483647, -2147483647 - 1}) {
    ProefDecoder decoder(band);
    EXPECT_EQ(decoder.geefSampFreq(), 8000) << band;
    EXPECT_EQ(decoder.frameSize, 160) << band;
    EXPECT_EQ(static_cast<int>(decoder.formaat), band);
    EXPECT_EQ(decoder.vast(frames, 165), herhaald(blokken[0][0])) << band;
    EXPECT_EQ(decoder.decodeer(frames[5]), blokken[5]) << band;
  }
}

}  // namespace
