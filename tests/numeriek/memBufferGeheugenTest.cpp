// What the block in slots asks of the memory, and what it does without. The program's memory is
// that of tests/steun/krapGeheugen.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <new>

#include "numeriek/memBuffer.h"
#include "tests/steun/krapGeheugen.h"

namespace {

// The block, seen from outside: one that nobody sees may be left out by the compiler.
unsigned char* zichtbaar(VelmoraMemBuffer const& buffer) {
  unsigned char* volatile const blok = buffer.adres();
  return blok;
}

TEST(MemBufferGeheugen, eigenGeheugenIsEenBlokVanPreciesDieGrootte) {
  const KrapGeheugen telling(0);
  const VelmoraMemBuffer buffer(1000, 3);
  ASSERT_NE(zichtbaar(buffer), nullptr);
  EXPECT_EQ(KrapGeheugen::geteld(), 1);
  EXPECT_EQ(KrapGeheugen::grootste(), 3000U);
}

TEST(MemBufferGeheugen, eigenGeheugenGaatAlsRijTerug) {
  const int voor = KrapGeheugen::openRijen();
  {
    const VelmoraMemBuffer buffer(10, 3);
    const VelmoraMemBuffer leeg(0, 3);
    ASSERT_NE(zichtbaar(buffer), zichtbaar(leeg));
    EXPECT_EQ(KrapGeheugen::openRijen(), voor + 2);
  }
  EXPECT_EQ(KrapGeheugen::openRijen(), voor);
}

TEST(MemBufferGeheugen, meerDan4GiBWordtGevraagdZoalsHetIs) {
  const KrapGeheugen krap(1);
  EXPECT_THROW(zichtbaar(VelmoraMemBuffer(1ULL << 33U, 2)), std::bad_alloc);
  EXPECT_EQ(KrapGeheugen::grootste(), 1ULL << 34U);
}

TEST(MemBufferGeheugen, vreemdGeheugenVraagtGeenEigen) {
  std::array<unsigned char, 4> blok{};
  const KrapGeheugen telling(0);
  const VelmoraMemBuffer buffer(blok.data(), 2, 2);
  ASSERT_EQ(zichtbaar(buffer), blok.data());
  EXPECT_EQ(KrapGeheugen::geteld(), 0);
}

// Clearing it would be for nothing: a buffer is written before it is read.
TEST(MemBufferGeheugen, eigenGeheugenWordtNietGewist) {
  const VelmoraMemBuffer buffer(vuilBytes / 2, 2);
  EXPECT_TRUE(std::all_of(buffer.adres(), buffer.adres() + buffer.grootte(),
                          [](unsigned char byte) { return byte == vuil; }));
}

TEST(MemBufferGeheugen, zonderGeheugenKomtDeUitzonderingDoor) {
  const KrapGeheugen krap(1);
  EXPECT_THROW(zichtbaar(VelmoraMemBuffer(16, 4)), std::bad_alloc);
}

}  // namespace
