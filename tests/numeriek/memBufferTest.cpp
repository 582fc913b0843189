// The block in slots: what it says of itself, and whose memory it is. Expected values are worked
// out by hand.
#include "numeriek/memBuffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <type_traits>
#include <utility>

namespace {

static_assert(!std::is_polymorphic_v<VelmoraMemBuffer>);
// Two buffers over one block would release it twice.
static_assert(!std::is_copy_constructible_v<VelmoraMemBuffer>);
static_assert(!std::is_copy_assignable_v<VelmoraMemBuffer>);
static_assert(!std::is_move_constructible_v<VelmoraMemBuffer>);
static_assert(!std::is_move_assignable_v<VelmoraMemBuffer>);
// The bytes can be written through a constant buffer: it is constant itself, its block is not.
static_assert(
    std::is_same_v<decltype(std::declval<VelmoraMemBuffer const&>().adres()), unsigned char*>);

TEST(MemBuffer, overVreemdGeheugenZegtHetWatHetGekregenHeeft) {
  std::array<unsigned char, 12> blok{};
  const VelmoraMemBuffer buffer(blok.data(), 4, 3);
  EXPECT_EQ(buffer.adres(), blok.data());
  EXPECT_EQ(buffer.sloten(), 3U);
  EXPECT_EQ(buffer.grootte(), 12U);
  EXPECT_EQ(buffer.slotGrootte(), 4U);
}

TEST(MemBuffer, vreemdGeheugenBlijftVanDeEigenaar) {
  // On the stack: releasing it would end the test program.
  std::array<unsigned char, 4> blok{1, 2, 3, 4};
  {
    const VelmoraMemBuffer buffer(blok.data(), 2, 2);
    buffer.adres()[3] = 9;
  }
  EXPECT_EQ(blok, (std::array<unsigned char, 4>{1, 2, 3, 9}));
}

TEST(MemBuffer, overEenNulAdres) {
  const VelmoraMemBuffer buffer(nullptr, 4, 0);
  EXPECT_EQ(buffer.adres(), nullptr);
  EXPECT_EQ(buffer.grootte(), 0U);
}

TEST(MemBuffer, eigenGeheugenIsInZijnGeheelTeBeschrijven) {
  const VelmoraMemBuffer buffer(7, 5);
  EXPECT_EQ(buffer.sloten(), 5U);
  EXPECT_EQ(buffer.grootte(), 35U);
  EXPECT_EQ(buffer.slotGrootte(), 7U);
  // A sanitizer sees a byte too many, and a block that is not released.
  std::fill_n(buffer.adres(), buffer.grootte(), static_cast<unsigned char>(0xA5));
  EXPECT_EQ(std::count(buffer.adres(), buffer.adres() + buffer.grootte(), 0xA5), 35);
}

TEST(MemBuffer, zonderSlotenIsDeSlotgrootteNul) {
  const VelmoraMemBuffer buffer(8, 0);
  EXPECT_EQ(buffer.grootte(), 0U);
  EXPECT_EQ(buffer.sloten(), 0U);
  EXPECT_EQ(buffer.slotGrootte(), 0U);
  std::array<unsigned char, 4> blok{};
  EXPECT_EQ(VelmoraMemBuffer(blok.data(), 8, 0).slotGrootte(), 0U);
}

TEST(MemBuffer, slotenVanNulBytes) {
  const VelmoraMemBuffer buffer(0, 8);
  EXPECT_EQ(buffer.grootte(), 0U);
  EXPECT_EQ(buffer.slotGrootte(), 0U);
}

TEST(MemBuffer, groottenTellenIn64Bits) {
  unsigned char byte = 0;
  const VelmoraMemBuffer groot(&byte, 1ULL << 33U, 2);
  EXPECT_EQ(groot.grootte(), 1ULL << 34U);
  EXPECT_EQ(groot.slotGrootte(), 1ULL << 33U);
  const VelmoraMemBuffer vele(&byte, 1, 1ULL << 33U);
  EXPECT_EQ(vele.sloten(), 1ULL << 33U);
}

TEST(MemBuffer, eenProductBoven64BitsGaatRondEnDeSlotgrootteMee) {
  // 2^63 * 2 is 2^64, so 0; (2^62 + 5) * 4 is 2^64 + 20.
  std::array<unsigned char, 20> blok{};
  const VelmoraMemBuffer niets(blok.data(), 1ULL << 63U, 2);
  EXPECT_EQ(niets.grootte(), 0U);
  EXPECT_EQ(niets.slotGrootte(), 0U);
  const VelmoraMemBuffer iets(blok.data(), (1ULL << 62U) + 5, 4);
  EXPECT_EQ(iets.grootte(), 20U);
  EXPECT_EQ(iets.slotGrootte(), 5U);
  // 3 * 0xAAAAAAAAAAAAAAAD is 2 * 2^64 + 7, and 7 bytes make three slots of 2.
  const VelmoraMemBuffer rest(blok.data(), 0xAAAAAAAAAAAAAAADU, 3);
  EXPECT_EQ(rest.grootte(), 7U);
  EXPECT_EQ(rest.slotGrootte(), 2U);
  const VelmoraMemBuffer eigen(1ULL << 63U, 2);
  EXPECT_EQ(eigen.grootte(), 0U);
}

}  // namespace
