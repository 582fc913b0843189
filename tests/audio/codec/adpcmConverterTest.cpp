// The ADPCM coder: codes worked out by hand, and long runs against the model.
#include "audio/codec/adpcmConverter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "audio/codec/dacDeler.h"
#include "tests/audio/codec/adpcmHulp.h"
#include "tests/audio/codec/adpcmModel.h"

namespace {

using Samples = std::vector<int>;

static_assert(!std::is_polymorphic_v<ADPCMConverter>);
// At compile time, where a shift that is not defined is an error.
static_assert(DacDeler(0).deel(-32768) == -32768 && DacDeler(8).deel(-256) == -1 &&
              DacDeler(8).deel(-255) == 0 && DacDeler(8).deel(32767) == 127);
static_assert(DacDeler(15).deel(-32768) == -1 && DacDeler(15).deel(-32767) == 0 &&
              DacDeler(31).deel(-32768) == 0 && DacDeler(31).deel(32767) == 0);
static_assert(DacDeler(32).deel(7) == 7 && DacDeler(33).deel(-7) == -3 &&
              DacDeler(64).deel(-1) == -1 && DacDeler(~0ULL).deel(-1) == 0);

static_assert(std::is_same_v<decltype(ADPCMConverter::stepSizeTable)::value_type, unsigned short>);
static_assert(std::is_same_v<decltype(ADPCMConverter::indexTable)::value_type, signed char>);

// The codes of a new converter.
Bytes nieuweCodes(Samples const& samples, unsigned long long bitShift) {
  ADPCMConverter converter;
  converter.zetBitShift(bitShift);
  return codes(converter, samples);
}

// The code that a new converter gives to a sample that comes first.
int eersteCode(int sample, unsigned long long bitShift) {
  return nieuweCodes({sample, 0}, bitShift).front() % 16;
}

// What a shift divides by.
using Deler = std::pair<unsigned long long, int>;
std::vector<Deler> const delers{{0, 1},      {4, 16},       {6, 64},       {8, 256},
                                {1, 2},      {5, 32},       {7, 128},      {32, 1},
                                {33, 2},     {31, INT_MIN}, {63, INT_MIN}, {64, 1},
                                {16, 65536}, {20, 1048576}, {48, 65536},   {1ULL << 40U, 1}};

TEST(AdpcmConverter, tabellenHebbenDeGepubliceerdeGroottenEnEinden) {
  EXPECT_EQ(ADPCMConverter::stepSizeTable.size(), 89U);
  EXPECT_EQ(ADPCMConverter::stepSizeTable.front(), 7);
  EXPECT_EQ(ADPCMConverter::stepSizeTable.back(), 32767);
  EXPECT_EQ(ADPCMConverter::indexTable,
            (std::array<signed char, 16>{-1, -1, -1, -1, 2, 4, 6, 8, -1, -1, -1, -1, 2, 4, 6, 8}));
}

// From prediction 0 with a step of 7, whose half is 3 and quarter 1.
TEST(AdpcmConverter, eersteCodeNaarDrempelsUitDeHand) {
  std::vector<std::pair<int, int>> const verwacht{{0, 0},  {1, 1},  {2, 1},  {3, 2}, {4, 3},
                                                  {6, 3},  {7, 4},  {8, 5},  {9, 5}, {10, 6},
                                                  {11, 7}, {12, 7}, {127, 7}};
  for (auto const& [sample, code] : verwacht) {
    EXPECT_EQ(eersteCode(sample, 0), code) << sample;
    EXPECT_EQ(eersteCode(-sample, 0), sample == 0 ? 0 : code + 8) << -sample;
  }
  EXPECT_EQ(eersteCode(-128, 0), 15);
}

// Steps 7, 16, 34 and 73; predictions 11, 41, 104 and 95.
TEST(AdpcmConverter, vierSamplesUitDeHandMetDeEersteInHetLageNibble) {
  EXPECT_EQ(nieuweCodes({100, 100, 100, 100}, 0), (Bytes{0x77, 0x87}));
  ADPCMConverter converter;
  EXPECT_EQ(gedecodeerd(converter, {0x77, 0x87}, 0, 0), (Samples{11, 41, 104, 95}));
}

TEST(AdpcmConverter, alleenDeLageByteMetTekenGaatDeCoderIn) {
  EXPECT_EQ(eersteCode(0x0101, 0), 1);
  EXPECT_EQ(eersteCode(256, 0), 0);
  EXPECT_EQ(eersteCode(-32768, 0), 0);
  EXPECT_EQ(eersteCode(0x7F07, 0), 4);
  EXPECT_EQ(eersteCode(255, 0), 9);    // -1
  EXPECT_EQ(eersteCode(32767, 0), 9);  // -1
  EXPECT_EQ(eersteCode(-255, 0), 1);
  EXPECT_EQ(eersteCode(128, 0), 15);  // -128
  EXPECT_EQ(eersteCode(-129, 0), 7);  // 127
}

TEST(AdpcmConverter, schuifAchtIsStilteVoorElkeSample) {
  EXPECT_EQ(nieuweCodes(alleWaarden(), 8), Bytes(32768, 0));
}

TEST(AdpcmConverter, schuifZesZietMinTweeTotEen) {
  // The codes of -2 and -1, of 0 and of 1.
  for (int const sample : {-128, -127, -64}) {
    EXPECT_EQ(eersteCode(sample, 6), 9) << sample;
  }
  for (int const sample : {-63, -1, 0, 63}) {
    EXPECT_EQ(eersteCode(sample, 6), 0) << sample;
  }
  for (int const sample : {64, 127}) {
    EXPECT_EQ(eersteCode(sample, 6), 1) << sample;
  }
  // From a prediction of -1, as -65 leaves it, to -2 is one more and to -1 is none.
  EXPECT_EQ(nieuweCodes({-65, -128}, 6), (Bytes{0x99}));
  EXPECT_EQ(nieuweCodes({-65, -127}, 6), (Bytes{0x09}));
}

TEST(AdpcmConverter, schuifVierZietMinAchtTotZeven) {
  std::vector<std::pair<int, int>> const verwacht{{-128, 13}, {-127, 12}, {-112, 12}, {-111, 11},
                                                  {-16, 9},   {-15, 0},   {15, 0},    {16, 1},
                                                  {111, 3},   {112, 4},   {127, 4}};
  for (auto const& [sample, code] : verwacht) {
    EXPECT_EQ(eersteCode(sample, 4), code) << sample;
  }
}

TEST(AdpcmConverter, schuifNulZietMin128Tot127) {
  // A prediction that climbs to the sample and stays by it tells what the coder saw.
  for (int sample = -128; sample < 128; ++sample) {
    ADPCMConverter converter;
    Bytes const bytes = codes(converter, Samples(200, sample));
    EXPECT_NEAR(gedecodeerd(converter, bytes, 0, 0).back(), sample, 1) << sample;
  }
}

TEST(AdpcmConverter, nullenGevenCodeNulEnDeStaatBlijftNul) {
  ADPCMConverter converter;
  EXPECT_EQ(codes(converter, Samples(1000, 0)), Bytes(500, 0));
  EXPECT_EQ(gedecodeerd(converter, Bytes(500, 0), 0, 0), Samples(1000, 0));
  EXPECT_EQ(codes(converter, {100, 100, 100, 100}), (Bytes{0x77, 0x87}));
}

TEST(AdpcmConverter, elkeSchuifGeeftDeCodesVanHetModel) {
  std::vector<Signaal> const proeven = signalen();
  for (auto const& [schuif, deler] : delers) {
    ADPCMConverter converter;
    converter.zetBitShift(schuif);
    AdpcmStand stand;
    for (Signaal const& signaal : proeven) {
      EXPECT_EQ(codes(converter, signaal.samples), modelBytes(stand, signaal.samples, deler))
          << signaal.naam << ", " << schuif;
    }
  }
}

TEST(AdpcmConverter, losseCodesZijnZonderVersmallingEnSchaal) {
  std::set<std::pair<int, int>> bezocht;
  ADPCMConverter converter;
  converter.zetBitShift(8);
  AdpcmStand stand;
  std::vector<Signaal> proeven = signalen();
  // Noise of every loudness keeps the step at every size.
  for (int deler = 2; deler <= 16384; deler *= 2) {
    Samples samples = alleWaarden();
    std::transform(samples.begin(), samples.end(), samples.begin(),
                   [deler](int sample) { return sample / deler; });
    proeven.push_back({"noise over " + std::to_string(deler), samples});
  }
  for (Signaal const& signaal : proeven) {
    for (int const sample : signaal.samples) {
      int const index = stand.index;
      int const code = modelCode(stand, sample);
      bezocht.emplace(index, code);
      ASSERT_EQ(converter.ADPCM_Encode(static_cast<short>(sample)), code) << signaal.naam;
    }
  }
  // Every code at every step, so that no entry of the tables goes without; but for the 8 at a step
  // of 7, whose quarter is 1: the least negative difference there already is a 9.
  EXPECT_EQ(bezocht.count({0, 8}), 0U);
  EXPECT_EQ(bezocht.size(), 89U * 16U - 1U);
}

TEST(AdpcmConverter, decoderGeeftNaCoderenDeVoorspellingenVanDeCoder) {
  for (Signaal const& signaal : signalen()) {
    ADPCMConverter converter;
    AdpcmStand stand;
    Samples voorspellingen;
    for (int const sample : signaal.samples) {
      static_cast<void>(modelCode(stand, sample));
      voorspellingen.push_back(stand.voorspelling);
    }
    Bytes const bytes = losseCodes(converter, signaal.samples);
    EXPECT_EQ(gedecodeerd(converter, bytes, 0, 0), voorspellingen) << signaal.naam;
    ADPCMConverter nieuw;
    EXPECT_EQ(losseSamples(nieuw, bytes), voorspellingen) << signaal.naam;
  }
}

TEST(AdpcmConverter, elkeByteVanafElkeIndexGeeftDeSamplesVanHetModel) {
  ADPCMConverter converter;
  for (int const predictor : {0, -32768, 32767, -1234}) {
    for (int index = 0; index <= 88; ++index) {
      for (int byte = 0; byte < 256; ++byte) {
        Bytes const bytes{static_cast<unsigned char>(byte)};
        AdpcmStand stand{index, predictor};
        ASSERT_EQ(gedecodeerd(converter, bytes, predictor, index), modelSamples(stand, bytes))
            << predictor << ", " << index << ", " << byte;
      }
    }
  }
}

TEST(AdpcmConverter, langeReeksCodesGeeftDeSamplesVanHetModel) {
  Bytes bytes;
  for (int const waarde : alleWaarden()) {
    bytes.push_back(static_cast<unsigned char>(waarde & 0xFF));
  }
  ADPCMConverter converter;
  AdpcmStand stand{31, -77};
  EXPECT_EQ(gedecodeerd(converter, bytes, -77, 31), modelSamples(stand, bytes));
}

TEST(AdpcmConverter, losTeDecoderenCodeTeltAlleenZijnLageVierBits) {
  for (int hoog = 0; hoog < 256; hoog += 16) {
    ADPCMConverter converter;
    for (auto const& [code, sample] :
         std::vector<std::pair<int, int>>{{7, 11}, {7, 41}, {7, 104}, {8, 95}}) {
      EXPECT_EQ(converter.ADPCM_Decode(static_cast<unsigned char>(hoog + code)), sample) << hoog;
    }
  }
}

TEST(AdpcmPakken, eersteCodeStaatInDeLageHelft) {
  ADPCMConverter const converter;
  std::array<unsigned char, 3> nibbles{0, 0, 0xEE};
  converter.pakUit(0x5A, nibbles.data());
  EXPECT_EQ(nibbles, (std::array<unsigned char, 3>{0xA, 0x5, 0xEE}));
  EXPECT_EQ(converter.pakIn(nibbles.data()), 0x5A);
  for (unsigned int byte = 0; byte < 256; ++byte) {
    converter.pakUit(static_cast<unsigned char>(byte), nibbles.data());
    EXPECT_EQ(nibbles[0], byte % 16);
    EXPECT_EQ(nibbles[1], byte / 16);
    EXPECT_EQ(converter.pakIn(nibbles.data()), byte);
  }
}

TEST(AdpcmPakken, bovenVijftienWordtDeTweedeAfgekaptEnDeEersteHeelGenomen) {
  ADPCMConverter const converter;
  using Paar = std::array<unsigned char, 2>;
  std::vector<std::pair<Paar, int>> const verwacht{{{0x05, 0x1F}, 0xF5}, {{0x05, 0xF0}, 0x05},
                                                   {{0x25, 0x01}, 0x35}, {{0xFF, 0x02}, 0xFF},
                                                   {{0x80, 0x37}, 0xF0}, {{0x25, 0x0A}, 0xA5}};
  for (auto const& [nibbles, byte] : verwacht) {
    EXPECT_EQ(converter.pakIn(nibbles.data()), byte);
  }
}

}  // namespace
