// Silence at the end of a fragment, which users are told to leave there: it brings the coder back
// to the start that every header declares, so that a decoder may believe the header of the next
// one.
#include <gtest/gtest.h>

#include <cstddef>
#include <vector>

#include "audio/codec/adpcmConverter.h"
#include "tests/audio/codec/adpcmHulp.h"
#include "tests/audio/codec/adpcmModel.h"

namespace {

constexpr std::size_t genoegStilte = 96;

// The codes that come behind a fragment with this much silence at its end.
Bytes codesAchter(std::vector<int> fragment, std::size_t stilte) {
  fragment.insert(fragment.end(), stilte, 0);
  ADPCMConverter converter;
  losseCodes(converter, fragment);
  return codes(converter, smalleSignalen().front().samples);
}

TEST(AdpcmStilte, brengtDeCoderOveralVandaanTerugBijHetBegin) {
  ADPCMConverter vers;
  Bytes const verwacht = codes(vers, smalleSignalen().front().samples);
  for (Signaal const& signaal : signalen()) {
    for (std::size_t const lengte : {2U, 10U, 100U, 1000U, 5000U}) {
      std::vector<int> begin = signaal.samples;
      begin.resize(lengte);
      EXPECT_EQ(codesAchter(begin, genoegStilte), verwacht) << signaal.naam << ", " << lengte;
    }
  }
}

TEST(AdpcmStilte, teWeinigErvanLaatDeCoderOnderweg) {
  ADPCMConverter vers;
  Bytes const verwacht = codes(vers, smalleSignalen().front().samples);
  EXPECT_NE(codesAchter({32767, -32768, 32767, -32768}, 16), verwacht);
}

// From all over what the state can be, in the model.
TEST(AdpcmStilte, isGenoegVoorElkeVoorspellingEnElkeIndex) {
  for (int index = 0; index <= 88; ++index) {
    for (int voorspelling = -32768; voorspelling <= 32767; voorspelling += 61) {
      AdpcmStand stand{index, voorspelling};
      for (std::size_t i = 0; i < genoegStilte; ++i) {
        modelCode(stand, 0);
      }
      ASSERT_EQ(stand.index, 0) << index << ", " << voorspelling;
      ASSERT_EQ(stand.voorspelling, 0) << index << ", " << voorspelling;
    }
  }
}

}  // namespace
