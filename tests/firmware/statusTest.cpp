// The numbers that all readers take out of arrays, and the version of the readers.
#include <gtest/gtest.h>

#include <string>

#include "kestrolin_status.h"
#include "tests/steun/bytes.h"

TEST(Status, OkIsZero) {
  EXPECT_EQ(KESTROLIN_OK, 0);
}

// What the project's own CMakeLists.txt says, as KESTROLIN_PROJECT_VERSION.
TEST(Status, ReadersHaveTheVersionOfTheProject) {
  EXPECT_EQ(std::to_string(KESTROLIN_READERS_MAJOR) + '.' +
                std::to_string(KESTROLIN_READERS_MINOR) + '.' +
                std::to_string(KESTROLIN_READERS_PATCH),
            KESTROLIN_PROJECT_VERSION);
}

// Two figures each for the minor number and for the patch.
TEST(Status, VersionCanBeCompared) {
  EXPECT_EQ(KESTROLIN_READERS_VERSION / 10000, KESTROLIN_READERS_MAJOR);
  EXPECT_EQ(KESTROLIN_READERS_VERSION / 100 % 100, KESTROLIN_READERS_MINOR);
  EXPECT_EQ(KESTROLIN_READERS_VERSION % 100, KESTROLIN_READERS_PATCH);
#if KESTROLIN_READERS_VERSION < 10100
  FAIL() << "the preprocessor compares otherwise";
#endif
}

TEST(Status, NumbersHaveTheirLowByteFirst) {
  Bytes const bytes{0x01, 0x02, 0x03, 0x04, 0xFC, 0xFD, 0xFE, 0xFF};
  EXPECT_EQ(kestrolin_u16(bytes.data()), 0x0201);
  EXPECT_EQ(kestrolin_u16(bytes.data() + 6), 0xFFFE);
  EXPECT_EQ(kestrolin_u32(bytes.data()), 0x04030201U);
  EXPECT_EQ(kestrolin_u32(bytes.data() + 4), 0xFFFEFDFCU);
  EXPECT_EQ(kestrolin_s16(bytes.data()), 0x0201);
  EXPECT_EQ(kestrolin_s16(bytes.data() + 6), -2);
}

TEST(Status, NumbersMayStandAtAnyAddress) {
  Bytes const bytes{0x00, 0x00, 0x80, 0xFF, 0x7F, 0x00};
  EXPECT_EQ(kestrolin_s16(bytes.data() + 1), -32768);
  EXPECT_EQ(kestrolin_s16(bytes.data() + 3), 32767);
  EXPECT_EQ(kestrolin_u32(bytes.data() + 1), 0x7FFF8000U);
}
