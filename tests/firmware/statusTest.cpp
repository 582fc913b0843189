// The numbers that all readers take out of arrays.
#include <gtest/gtest.h>

#include "kestrolin_status.h"
#include "tests/steun/bytes.h"

TEST(Status, OkIsZero) {
  EXPECT_EQ(KESTROLIN_OK, 0);
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
