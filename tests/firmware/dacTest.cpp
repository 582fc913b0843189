#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <vector>

#include "kestrolin_dac.h"
#include "tests/firmware/outputModel.h"
#include "tests/steun/bytes.h"

namespace {

constexpr std::initializer_list<kestrolin_dac_width> widths{KESTROLIN_DAC_8, KESTROLIN_DAC_10,
                                                            KESTROLIN_DAC_12, KESTROLIN_DAC_16};

// The number of samples that have another code than the model.
template <typename Code>
std::ptrdiff_t others(Code code, unsigned bits, unsigned width) {
  return std::count_if(allSamples().begin(), allSamples().end(), [&](std::int16_t sample) {
    return code(sample) != modelDac(sample, bits, width);
  });
}

// A number that is no width, and which the type can hold.
kestrolin_dac_width oddWidth(int bits) {
  return static_cast<kestrolin_dac_width>(bits);
}

}  // namespace

TEST(Dac, MidIsHalfOfFullScale) {
  EXPECT_EQ(kestrolin_dac_mid(KESTROLIN_DAC_8), 128);
  EXPECT_EQ(kestrolin_dac_mid(KESTROLIN_DAC_10), 512);
  EXPECT_EQ(kestrolin_dac_mid(KESTROLIN_DAC_12), 2048);
  EXPECT_EQ(kestrolin_dac_mid(KESTROLIN_DAC_16), 32768);
}

TEST(Dac, EndsOfTheRangesAreThoseOfTheRegister) {
  EXPECT_EQ(kestrolin_dac_code(-128, KESTROLIN_DAC_8), 0);
  EXPECT_EQ(kestrolin_dac_code(127, KESTROLIN_DAC_8), 255);
  EXPECT_EQ(kestrolin_dac_code(-512, KESTROLIN_DAC_10), 0);
  EXPECT_EQ(kestrolin_dac_code(511, KESTROLIN_DAC_10), 1023);
  EXPECT_EQ(kestrolin_dac_code(-2048, KESTROLIN_DAC_12), 0);
  EXPECT_EQ(kestrolin_dac_code(2047, KESTROLIN_DAC_12), 4095);
  EXPECT_EQ(kestrolin_dac_code(-32768, KESTROLIN_DAC_16), 0);
  EXPECT_EQ(kestrolin_dac_code(32767, KESTROLIN_DAC_16), 65535);
}

TEST(Dac, BringsASampleBeyondTheRangeToItsEnd) {
  EXPECT_EQ(kestrolin_dac_code(128, KESTROLIN_DAC_8), 255);
  EXPECT_EQ(kestrolin_dac_code(32767, KESTROLIN_DAC_8), 255);
  EXPECT_EQ(kestrolin_dac_code(-129, KESTROLIN_DAC_8), 0);
  EXPECT_EQ(kestrolin_dac_code(-32768, KESTROLIN_DAC_12), 0);
}

TEST(Dac, GivesTheCodeOfEverySampleAtEveryWidth) {
  for (kestrolin_dac_width const width : widths) {
    auto const code = [width](std::int16_t sample) { return kestrolin_dac_code(sample, width); };
    EXPECT_EQ(others(code, width, width), 0) << width;
  }
}

TEST(Dac, ShiftsEverySampleFromAnyNumberOfBitsToEveryWidth) {
  for (unsigned bits = 1; bits <= 16; ++bits) {
    for (kestrolin_dac_width const width : widths) {
      auto const code = [bits, width](std::int16_t sample) {
        return kestrolin_dac_code_from(sample, bits, width);
      };
      EXPECT_EQ(others(code, bits, width), 0) << bits << ", " << width;
    }
  }
}

TEST(Dac, SilenceStaysSilenceFromAnyNumberOfBits) {
  for (unsigned bits = 0; bits <= 20; ++bits) {
    for (kestrolin_dac_width const width : widths) {
      EXPECT_EQ(kestrolin_dac_code_from(0, bits, width), kestrolin_dac_mid(width)) << bits;
    }
  }
}

TEST(Dac, CountsAnotherNumberOfBitsAsTheNearest) {
  EXPECT_EQ(kestrolin_dac_bits(0), 1U);
  EXPECT_EQ(kestrolin_dac_bits(1), 1U);
  EXPECT_EQ(kestrolin_dac_bits(2), 2U);
  EXPECT_EQ(kestrolin_dac_bits(15), 15U);
  EXPECT_EQ(kestrolin_dac_bits(16), 16U);
  EXPECT_EQ(kestrolin_dac_bits(17), 16U);
  EXPECT_EQ(kestrolin_dac_bits(40), 16U);
  EXPECT_EQ(kestrolin_dac_bits(0xFFFFFFFFU), 16U);
}

TEST(Dac, TakesAWidthThatThereIsNotForTheNearest) {
  struct Case {
    int width;
    unsigned nearest;
  };
  for (Case const& one : {Case{0, 1}, Case{1, 1}, Case{9, 9}, Case{17, 16}, Case{31, 16}}) {
    kestrolin_dac_width const width = oddWidth(one.width);
    EXPECT_EQ(kestrolin_dac_mid(width), power(one.nearest) / 2) << one.width;
    auto const code = [width](std::int16_t sample) { return kestrolin_dac_code(sample, width); };
    EXPECT_EQ(others(code, one.nearest, one.nearest), 0) << one.width;
  }
}

TEST(Dac, TakesANumberOfBitsThatThereIsNotForTheNearest) {
  for (unsigned const bits : {0U, 1U, 17U, 40U, 0xFFFFFFFFU}) {
    auto const code = [bits](std::int16_t sample) {
      return kestrolin_dac_code_from(sample, bits, KESTROLIN_DAC_12);
    };
    EXPECT_EQ(others(code, bits < 2 ? 1 : 16, 12), 0) << bits;
  }
}

TEST(Dac, GivesTheCodesOfARow) {
  std::vector<std::int16_t> const samples{0, -1, 2047, -2048, 3000, -3000, 1};
  std::vector<std::uint16_t> codes(samples.size() + 1, 7);
  kestrolin_dac_codes(codes.data(), samples.data(), samples.size(), KESTROLIN_DAC_12);
  EXPECT_EQ(codes, (std::vector<std::uint16_t>{2048, 2047, 4095, 0, 4095, 0, 2049, 7}));
}

// By hand: 4 bits around 8, times 256; from 16 bits around 32768, divided by 16 and rounded down.
TEST(Dac, GivesTheCodesOfARowOfAnotherWidth) {
  std::vector<std::int16_t> const samples{0, -1, 7, -8, 9, -9};
  std::vector<std::uint16_t> codes(samples.size() + 1, 7);
  kestrolin_dac_codes_from(codes.data(), samples.data(), samples.size(), 4, KESTROLIN_DAC_12);
  EXPECT_EQ(codes, (std::vector<std::uint16_t>{2048, 1792, 3840, 0, 3840, 0, 7}));
  kestrolin_dac_codes_from(codes.data(), samples.data(), 2, 16, KESTROLIN_DAC_12);
  EXPECT_EQ(codes, (std::vector<std::uint16_t>{2048, 2047, 3840, 0, 3840, 0, 7}));
}

TEST(Dac, PutsTheCodesWhereTheSamplesLie) {
  std::vector<std::int16_t> row{0, -1, 127, -128, 300, 99};
  kestrolin_dac_codes(reinterpret_cast<std::uint16_t*>(row.data()), row.data(), row.size() - 1,
                      KESTROLIN_DAC_8);
  EXPECT_EQ(row, (std::vector<std::int16_t>{128, 127, 255, 0, 255, 99}));
  row = {0, -1, 1, 99};
  kestrolin_dac_codes_from(reinterpret_cast<std::uint16_t*>(row.data()), row.data(), row.size() - 1,
                           2, KESTROLIN_DAC_8);
  EXPECT_EQ(row, (std::vector<std::int16_t>{128, 64, 192, 99}));
}

// By hand: the high ends of 16 bits, with zeros below.
TEST(Dac, AlignsCodesToTheLeftAtSixteenBits) {
  std::vector<std::int16_t> const samples{0, -1, 1, 2047, -2048, 5000, -5000};
  std::vector<std::uint16_t> codes(samples.size() + 1, 7);
  kestrolin_dac_codes_from(codes.data(), samples.data(), samples.size(), 12, KESTROLIN_DAC_16);
  EXPECT_EQ(codes, (std::vector<std::uint16_t>{0x8000, 0x7FF0, 0x8010, 0xFFF0, 0, 0xFFF0, 0, 7}));
  kestrolin_dac_codes_from(codes.data(), samples.data(), 3, 10, KESTROLIN_DAC_16);
  EXPECT_EQ(codes.at(0), 0x8000);
  EXPECT_EQ(codes.at(1), 0x7FC0);
  EXPECT_EQ(codes.at(2), 0x8040);
}

// By hand: 4 bits around 8, times 16; from 16 bits around 32768, divided by 256 and rounded down.
TEST(Dac, GivesTheBytesOfARow) {
  std::vector<std::int16_t> const samples{0, -1, 7, -8, 9, -9};
  Bytes bytes(samples.size() + 1, 7);
  kestrolin_dac_bytes_from(bytes.data(), samples.data(), samples.size(), 4);
  EXPECT_EQ(bytes, (Bytes{128, 112, 240, 0, 240, 0, 7}));
  std::vector<std::int16_t> const wide{0, -1, 255, 256, 32767, -32768};
  kestrolin_dac_bytes_from(bytes.data(), wide.data(), wide.size(), 16);
  EXPECT_EQ(bytes, (Bytes{128, 127, 128, 129, 255, 0, 7}));
}

TEST(Dac, GivesTheByteOfEverySampleFromAnyNumberOfBits) {
  for (unsigned bits = 1; bits <= 16; ++bits) {
    Bytes bytes(allSamples().size());
    kestrolin_dac_bytes_from(bytes.data(), allSamples().data(), bytes.size(), bits);
    Bytes expected(bytes.size());
    std::transform(allSamples().begin(), allSamples().end(), expected.begin(), [bits](int sample) {
      return static_cast<unsigned char>(modelDac(sample, bits, 8));
    });
    EXPECT_EQ(bytes, expected) << bits;
  }
}

TEST(Dac, PutsTheBytesWhereTheSamplesLieInTheFirstHalfOfTheirRoom) {
  std::vector<std::int16_t> row{0, -1, 127, -128, 300, 0x6363};
  auto* const bytes = reinterpret_cast<std::uint8_t*>(row.data());
  kestrolin_dac_bytes_from(bytes, row.data(), row.size() - 1, 8);
  EXPECT_EQ(Bytes(bytes, bytes + 5), (Bytes{128, 127, 255, 0, 255}));
  EXPECT_EQ(row.at(3), -128);
  EXPECT_EQ(row.at(4), 300);
  EXPECT_EQ(row.at(5), 0x6363);
}

TEST(Dac, WritesNothingForNoSamples) {
  std::uint16_t code = 7;
  std::int16_t const sample = 1;
  kestrolin_dac_codes(&code, &sample, 0, KESTROLIN_DAC_8);
  kestrolin_dac_codes_from(&code, &sample, 0, 4, KESTROLIN_DAC_8);
  EXPECT_EQ(code, 7);
  std::uint8_t byte = 7;
  kestrolin_dac_bytes_from(&byte, &sample, 0, 4);
  EXPECT_EQ(byte, 7);
}
