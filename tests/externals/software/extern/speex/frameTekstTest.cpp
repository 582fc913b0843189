// The text of one frame: its size line, its bytes as signed numbers, eight to the line, and how
// each length ends.
#include "externals/software/extern/speex/frameTekst.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "audio/codec/rijSchrijver.h"
#include "tests/audio/codec/codecHulp.h"

namespace {

std::string tekst(unsigned long long nummer, std::vector<signed char> const& bytes) {
  std::vector<unsigned char> const frame(bytes.begin(), bytes.end());
  wxMemoryOutputStream uit;
  RijSchrijver rijen(uit, decimaleBytes, frame.size());
  schrijfFrame(rijen, nummer, frame.data(), frame.size());
  rijen.rondAf();
  return tekstVan(uit);
}

TEST(FrameTekst, TenBytesTakeALineOfEightAndALineOfTwo) {
  EXPECT_EQ(tekst(0, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}),
            "\t0xa,  /* Encoded Frame [0] Size */\n"
            "\t1,2,3,4,5,6,7,8,\n"
            "\t9,10,\n");
}

TEST(FrameTekst, OneByte) {
  EXPECT_EQ(tekst(3, {-5}),
            "\t0x1,  /* Encoded Frame [3] Size */\n"
            "\t-5,\n");
}

TEST(FrameTekst, SevenBytesStayOnOneLine) {
  EXPECT_EQ(tekst(1, {1, 2, 3, 4, 5, 6, 7}),
            "\t0x7,  /* Encoded Frame [1] Size */\n"
            "\t1,2,3,4,5,6,7,\n");
}

TEST(FrameTekst, EightBytesEndInALineWithATabAlone) {
  EXPECT_EQ(tekst(1, {1, 2, 3, 4, 5, 6, 7, 8}),
            "\t0x8,  /* Encoded Frame [1] Size */\n"
            "\t1,2,3,4,5,6,7,8,\n"
            "\t\n");
}

TEST(FrameTekst, SixteenBytesEndInALineWithATabAlone) {
  EXPECT_EQ(tekst(2, {1, 2, 3, 4, 5, 6, 7, 8, -1, -2, -3, -4, -5, -6, -7, -8}),
            "\t0x10,  /* Encoded Frame [2] Size */\n"
            "\t1,2,3,4,5,6,7,8,\n"
            "\t-1,-2,-3,-4,-5,-6,-7,-8,\n"
            "\t\n");
}

TEST(FrameTekst, NineBytesHaveOneOnTheirLastLine) {
  EXPECT_EQ(tekst(0, {1, 2, 3, 4, 5, 6, 7, 8, 9}),
            "\t0x9,  /* Encoded Frame [0] Size */\n"
            "\t1,2,3,4,5,6,7,8,\n"
            "\t9,\n");
}

TEST(FrameTekst, FrameWithoutBytesHasItsSizeLineAndATab) {
  EXPECT_EQ(tekst(4, {}),
            "\t0x0,  /* Encoded Frame [4] Size */\n"
            "\t\n");
}

TEST(FrameTekst, BytesAreSignedFromMinus128To127) {
  EXPECT_EQ(tekst(0, {-128, -127, -100, -1, 0, 1, 126, 127}),
            "\t0x8,  /* Encoded Frame [0] Size */\n"
            "\t-128,-127,-100,-1,0,1,126,127,\n"
            "\t\n");
}

TEST(FrameTekst, EveryByteStandsInDecimal) {
  for (int byte = -128; byte <= 127; ++byte) {
    EXPECT_EQ(tekst(0, {static_cast<signed char>(byte)}),
              "\t0x1,  /* Encoded Frame [0] Size */\n\t" + std::to_string(byte) + ",\n");
  }
}

TEST(FrameTekst, LargestFrameOfTwoHundredBytes) {
  std::string verwacht = "\t0xc8,  /* Encoded Frame [12345] Size */\n\t";
  for (int regel = 0; regel < 25; ++regel) {
    verwacht += "-128,-128,-128,-128,-128,-128,-128,-128,\n\t";
  }
  EXPECT_EQ(tekst(12345, std::vector<signed char>(200, -128)), verwacht + "\n");
}

TEST(FrameTekst, SizeIsInLowerCaseWithoutPadding) {
  EXPECT_EQ(tekst(0, std::vector<signed char>(111, 0)).substr(0, 8), "\t0x6f,  ");
}

TEST(FrameTekst, NumberOfALateFrame) {
  EXPECT_EQ(tekst(2147483647, {0}),
            "\t0x1,  /* Encoded Frame [2147483647] Size */\n"
            "\t0,\n");
}

}  // namespace
