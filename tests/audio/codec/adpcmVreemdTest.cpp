// The ADPCM coder against those of other programs, libsndfile and sox.
//
// Both keep IMA ADPCM in blocks that begin with a prediction and an index; imaWav.h takes those
// off. An encoder like ours that starts from prediction 0 and index 0 has to give the codes of a
// first block whose own first sample, which has no code, is 0. From the second block on the
// prediction starts from a sample and not from what was predicted, so there the model is compared,
// which can start anywhere; the decoder can too, and is compared over all blocks.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

#include "audio/codec/adpcmConverter.h"
#include "tests/audio/codec/adpcmHulp.h"
#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/imaWav.h"
#include "tests/audio/codec/inbedHulp.h"
#include "tests/steun/tijdelijkeMap.h"

namespace {

using Samples = std::vector<int>;

class AdpcmVreemd : public testing::Test {
 protected:
  // The blocks that libsndfile makes of these samples.
  std::vector<ImaBlok> blokkenVan(Samples const& samples) {
    // The higher the frequency, the longer the blocks. The last one is filled up.
    schrijfSnd(pad, samples, {44100}, wavAdpcm);
    std::vector<ImaBlok> blokken = leesImaBlokken(pad);
    EXPECT_FALSE(blokken.empty());
    return blokken;
  }

  // What libsndfile and sox, who have to agree, hear in these blocks.
  Samples gehoord(std::vector<ImaBlok> const& blokken) {
    schrijfImaBlokken(pad, blokken);
    Samples samples = leesSnd(pad).waarden;
    EXPECT_EQ(leesMetSox(pad, map.pad("ruw")), samples);
    EXPECT_EQ(samples.size(), blokken.size() * (2 * blokken.front().codes.size() + 1));
    return samples;
  }

  TijdelijkeMap map;
  std::string pad = map.pad("vreemd.wav");
};

// The samples that have a code in block `nummer`; zeros behind the last one.
Samples gecodeerdIn(ImaBlok const& blok, std::size_t nummer, Samples const& samples) {
  std::size_t const aantal = 2 * blok.codes.size();
  std::size_t const begin = nummer * (aantal + 1) + 1;
  Samples deel(aantal, 0);
  if (begin < samples.size()) {
    std::copy_n(samples.begin() + static_cast<std::ptrdiff_t>(begin),
                std::min(aantal, samples.size() - begin), deel.begin());
  }
  return deel;
}

// Two samples of what is heard in each block: the first two that have a code.
struct Paar {
  int eerste;
  int tweede;
};

std::vector<Paar> paren(Samples const& samples, std::size_t perBlok) {
  std::vector<Paar> rij;
  for (std::size_t i = 0; i + 2 < samples.size(); i += perBlok) {
    rij.push_back({samples[i + 1], samples[i + 2]});
  }
  return rij;
}

// A block of four bytes of code that begins with this one.
ImaBlok kortBlok(int predictor, int index, int eersteByte) {
  return {predictor, index, {static_cast<unsigned char>(eersteByte), 0, 0, 0}};
}

TEST_F(AdpcmVreemd, codesVanSmalleSamplesZijnDieVanLibsndfile) {
  for (Signaal const& signaal : smalleSignalen()) {
    ImaBlok const eerste = blokkenVan(signaal.samples).front();
    ASSERT_EQ(eerste.predictor, 0);
    ASSERT_EQ(eerste.index, 0);
    ASSERT_GT(eerste.codes.size(), 2000U);
    ADPCMConverter converter;
    EXPECT_EQ(codes(converter, gecodeerdIn(eerste, 0, signaal.samples)), eerste.codes)
        << signaal.naam;
  }
}

TEST_F(AdpcmVreemd, losseCodesVanZestienBitsZijnDieVanLibsndfile) {
  for (Signaal const& signaal : signalen()) {
    ImaBlok const eerste = blokkenVan(signaal.samples).front();
    ASSERT_EQ(eerste.predictor, 0);
    ASSERT_EQ(eerste.index, 0);
    ADPCMConverter converter;
    EXPECT_EQ(losseCodes(converter, gecodeerdIn(eerste, 0, signaal.samples)), eerste.codes)
        << signaal.naam;
  }
}

TEST_F(AdpcmVreemd, modelGeeftDeCodesVanAlleBlokken) {
  for (Signaal const& signaal : signalen()) {
    std::vector<ImaBlok> const blokken = blokkenVan(signaal.samples);
    ASSERT_GT(blokken.size(), 1U);
    for (std::size_t nummer = 0; nummer < blokken.size(); ++nummer) {
      ImaBlok const& blok = blokken[nummer];
      AdpcmStand stand{blok.index, blok.predictor};
      Bytes bytes;
      Samples const samples = gecodeerdIn(blok, nummer, signaal.samples);
      for (std::size_t i = 0; i < samples.size(); i += 2) {
        int const laag = modelCode(stand, samples[i]);
        bytes.push_back(static_cast<unsigned char>(laag + 16 * modelCode(stand, samples[i + 1])));
      }
      EXPECT_EQ(bytes, blok.codes) << signaal.naam << ", " << nummer;
    }
  }
}

TEST_F(AdpcmVreemd, decoderHoortInAlleBlokkenWatLibsndfileHoort) {
  ADPCMConverter converter;
  for (Signaal const& signaal : signalen()) {
    Samples verwacht;
    for (ImaBlok const& blok : blokkenVan(signaal.samples)) {
      verwacht.push_back(blok.predictor);
      Samples const deel = gedecodeerd(converter, blok.codes, blok.predictor, blok.index);
      verwacht.insert(verwacht.end(), deel.begin(), deel.end());
    }
    EXPECT_EQ(leesSnd(pad).waarden, verwacht) << signaal.naam;
  }
}

TEST_F(AdpcmVreemd, decoderHoortVanafElkeIndexWatLibsndfileEnSoxHoren) {
  Samples const ruis = alleWaarden();
  std::vector<ImaBlok> blokken;
  ADPCMConverter converter;
  Samples verwacht;
  for (std::size_t i = 0; i < std::size_t{3} * 89; ++i) {
    std::array<int, 3> const predictors{-32768, ruis[i], 32767};
    ImaBlok blok{predictors[i % 3], static_cast<int>(i % 89), {}};
    for (std::size_t j = 0; j < 64; ++j) {
      blok.codes.push_back(static_cast<unsigned char>(ruis[64 * i + j] & 0xFF));
    }
    verwacht.push_back(blok.predictor);
    Samples const deel = gedecodeerd(converter, blok.codes, blok.predictor, blok.index);
    verwacht.insert(verwacht.end(), deel.begin(), deel.end());
    blokken.push_back(blok);
  }
  EXPECT_EQ(gehoord(blokken), verwacht);
}

// Code 4 adds the step and an eighth of it, code 0 the eighth alone.
TEST_F(AdpcmVreemd, stapgroottenZijnDieVanLibsndfileEnSox) {
  std::vector<ImaBlok> blokken;
  for (int index = 0; index < 89; ++index) {
    blokken.push_back(kortBlok(-32768, index, 4));
    blokken.push_back(kortBlok(-32768, index, 0));
  }
  std::vector<Paar> const rij = paren(gehoord(blokken), 9);
  ASSERT_EQ(rij.size(), 2U * 89U);
  for (std::size_t i = 0; i < 89; ++i) {
    EXPECT_EQ(ADPCMConverter::stepSizeTable.at(i), rij[2 * i].eerste - rij[2 * i + 1].eerste) << i;
  }
}

// The step that stands behind a code, found in the same way, stands in the table above it.
TEST_F(AdpcmVreemd, indexstappenZijnDieVanLibsndfileEnSox) {
  std::vector<ImaBlok> blokken;
  constexpr int begin = 40;
  for (int code = 0; code < 16; ++code) {
    blokken.push_back(kortBlok(0, begin, 4 * 16 + code));
    blokken.push_back(kortBlok(0, begin, code));
  }
  std::vector<Paar> const rij = paren(gehoord(blokken), 9);
  ASSERT_EQ(rij.size(), 2U * 16U);
  for (std::size_t code = 0; code < 16; ++code) {
    int const index = begin + ADPCMConverter::indexTable.at(code);
    EXPECT_EQ(ADPCMConverter::stepSizeTable.at(static_cast<std::size_t>(index)),
              rij[2 * code].tweede - rij[2 * code + 1].tweede)
        << code;
  }
}

}  // namespace
