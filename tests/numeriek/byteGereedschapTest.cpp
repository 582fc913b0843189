// The byte tools: each function, the joints between them, and round trips over random words.
#include "numeriek/byteGereedschap.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "tests/numeriek/toeval.h"

namespace {

// Usable in tables that the compiler makes.
static_assert(HoogHalfWoord(0x11223344U) == 0x1122);
static_assert(MaakWoord(0x11, 0x22, 0x33, 0x44) == 0x11223344U);
static_assert(MaakSignedShort(0xFF, 0xFE) == -2);
// A shift beyond the word would not compile here, while a processor may happen to mask it.
static_assert(byteInLong(0x11223344U, 4) == 0x44);

static_assert(std::is_same_v<decltype(HoogHalfWoord(0)), unsigned short>);
static_assert(std::is_same_v<decltype(LaagHalfWoord(0)), unsigned short>);
static_assert(std::is_same_v<decltype(HoogByte(0)), unsigned char>);
static_assert(std::is_same_v<decltype(LaagByte(0)), unsigned char>);
static_assert(std::is_same_v<decltype(byteInLong(0, 0)), unsigned char>);
static_assert(std::is_same_v<decltype(MaakShort(0, 0)), unsigned short>);
static_assert(std::is_same_v<decltype(MaakSignedShort(0, 0)), short>);
static_assert(std::is_same_v<decltype(MaakWoord(0, 0)), unsigned int>);
static_assert(std::is_same_v<decltype(MaakWoord(0, 0, 0, 0)), unsigned int>);
static_assert(std::is_same_v<decltype(MaakSignedWoord(0, 0, 0, 0)), int>);

// The same memory read as another type.
template <typename Doel, typename Bron>
Doel zelfdeBits(Bron bron) {
  static_assert(sizeof(Doel) == sizeof(Bron));
  Doel doel{};
  std::memcpy(&doel, &bron, sizeof doel);
  return doel;
}

TEST(ByteGereedschap, halveWoorden) {
  EXPECT_EQ(HoogHalfWoord(0x11223344U), 0x1122);
  EXPECT_EQ(LaagHalfWoord(0x11223344U), 0x3344);
  EXPECT_EQ(HoogHalfWoord(0xFFFF0000U), 0xFFFF);
  EXPECT_EQ(LaagHalfWoord(0xFFFF0000U), 0);
}

TEST(ByteGereedschap, bytesVanEenHalfWoord) {
  EXPECT_EQ(HoogByte(0x1122), 0x11);
  EXPECT_EQ(LaagByte(0x1122), 0x22);
  EXPECT_EQ(HoogByte(0xFF00), 0xFF);
  EXPECT_EQ(LaagByte(0xFF00), 0);
}

TEST(ByteGereedschap, byteInLongTeltVanafDeLaagste) {
  EXPECT_EQ(byteInLong(0x11223344U, 0), 0x44);
  EXPECT_EQ(byteInLong(0x11223344U, 1), 0x33);
  EXPECT_EQ(byteInLong(0x11223344U, 2), 0x22);
  EXPECT_EQ(byteInLong(0x11223344U, 3), 0x11);
}

TEST(ByteGereedschap, byteInLongGaatNaVierRond) {
  EXPECT_EQ(byteInLong(0x11223344U, 4), 0x44);
  EXPECT_EQ(byteInLong(0x11223344U, 7), 0x11);
  // 2^64 - 1 leaves 3 after division by 4.
  EXPECT_EQ(byteInLong(0x11223344U, std::numeric_limits<unsigned long long>::max()), 0x11);
}

TEST(ByteGereedschap, maakShortZetHoogBoven) {
  EXPECT_EQ(MaakShort(0x12, 0x34), 0x1234);
  EXPECT_EQ(MaakShort(0xFF, 0xFE), 0xFFFE);
}

TEST(ByteGereedschap, maakSignedShortIsTweeComplement) {
  EXPECT_EQ(MaakSignedShort(255, 254), -2);
  EXPECT_EQ(MaakSignedShort(0x80, 0), -32768);
  EXPECT_EQ(MaakSignedShort(0x7F, 0xFF), 32767);
  EXPECT_EQ(MaakSignedShort(0x12, 0x34), 0x1234);
}

TEST(ByteGereedschap, maakWoordVanVierBytesBegintMetDeHoogste) {
  EXPECT_EQ(MaakWoord(0x11, 0x22, 0x33, 0x44), 0x11223344U);
  EXPECT_EQ(MaakWoord(0xFF, 0, 0, 0), 0xFF000000U);
}

TEST(ByteGereedschap, maakSignedWoordIsTweeComplement) {
  EXPECT_EQ(MaakSignedWoord(0xFF, 0xFF, 0xFF, 0xFE), -2);
  EXPECT_EQ(MaakSignedWoord(0x80, 0, 0, 0), std::numeric_limits<int>::min());
  EXPECT_EQ(MaakSignedWoord(0x11, 0x22, 0x33, 0x44), 0x11223344);
}

TEST(ByteGereedschap, maakWoordVanTweeShorts) {
  EXPECT_EQ(MaakWoord(0x1122, 0x3344), 0x11223344U);
  EXPECT_EQ(MaakWoord(0xFFFF, 0), 0xFFFF0000U);
}

TEST(ByteGereedschap, maakWoordVanTweeLosseBytesZetDeEersteOpBitZestien) {
  const unsigned char hoog = 0x1F;
  const unsigned char laag = 0x40;
  EXPECT_EQ(MaakWoord(hoog, laag), 2031680U);
}

TEST(ByteGereedschap, uitElkaarEnWeerInElkaarIsHetzelfdeWoord) {
  Toeval toeval(12);
  for (int i = 0; i < 10000; ++i) {
    const auto w = static_cast<std::uint32_t>(toeval.bits());
    const unsigned short hoog = HoogHalfWoord(w);
    const unsigned short laag = LaagHalfWoord(w);
    ASSERT_EQ(MaakWoord(hoog, laag), w);
    ASSERT_EQ(MaakWoord(HoogByte(hoog), LaagByte(hoog), HoogByte(laag), LaagByte(laag)), w);
    ASSERT_EQ(MaakWoord(byteInLong(w, 3), byteInLong(w, 2), byteInLong(w, 1), byteInLong(w, 0)), w);
    ASSERT_EQ(MaakShort(HoogByte(hoog), LaagByte(hoog)), hoog);
  }
}

TEST(ByteGereedschap, metTekenZijnDeBitsDezelfde) {
  Toeval toeval(13);
  for (int i = 0; i < 10000; ++i) {
    const auto w = static_cast<std::uint32_t>(toeval.bits());
    const auto kort = static_cast<std::uint16_t>(w);
    ASSERT_EQ(MaakSignedShort(HoogByte(kort), LaagByte(kort)), zelfdeBits<std::int16_t>(kort));
    ASSERT_EQ(
        MaakSignedWoord(byteInLong(w, 3), byteInLong(w, 2), byteInLong(w, 1), byteInLong(w, 0)),
        zelfdeBits<std::int32_t>(w));
  }
}

}  // namespace
