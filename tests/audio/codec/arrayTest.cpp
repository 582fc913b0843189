// The bounded array: its bounds, its block, and who releases it.
#include "audio/codec/array.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <limits>
#include <new>
#include <numeric>
#include <type_traits>

#include "tests/audio/codec/teldeOp.h"

namespace {

static_assert(!std::is_copy_constructible_v<VelmoraArray<unsigned char>>);
static_assert(!std::is_copy_assignable_v<VelmoraArray<unsigned char>>);
static_assert(!std::is_move_constructible_v<VelmoraArray<unsigned char>>);
static_assert(!std::is_polymorphic_v<VelmoraArray<unsigned char>>);

TEST(Array, grenzenLopenVanNulTotEnMetDeLaatste) {
  VelmoraArray<unsigned char> const array(12);
  EXPECT_EQ(array.geefOndergrens(), 0U);
  EXPECT_EQ(array.geefBovengrens(), 11U);
  EXPECT_EQ(array.geefAantal(), 12U);
  EXPECT_EQ(array.end() - array.begin(), 12);
}

TEST(Array, legeArrayHeeftAlsBovengrensAlleBits) {
  VelmoraArray<unsigned char> const array(0);
  EXPECT_EQ(array.geefOndergrens(), 0U);
  EXPECT_EQ(array.geefBovengrens(), std::numeric_limits<unsigned long long>::max());
  EXPECT_EQ(array.geefAantal(), 0U);
  EXPECT_EQ(array.begin(), array.end());
}

TEST(Array, nieuwBlokIsVanDeArrayEnStaatOpNul) {
  // Memory that was written to goes back first, so that zeros are not there by chance.
  constexpr unsigned long long aantal = 200;
  {
    VelmoraArray<unsigned char> vuil(aantal);
    std::fill_n(vuil.geefElementen(), aantal, static_cast<unsigned char>(0xA5));
  }
  VelmoraArray<unsigned char> const array(aantal);
  EXPECT_TRUE(array.isEigenaar());
  EXPECT_EQ(std::count(array.begin(), array.end(), 0), 200);
}

TEST(Array, indexWijstInHetBlok) {
  VelmoraArray<short> array(3);
  array[0] = 7;
  array[2] = -9;
  EXPECT_EQ(array.geefElementen()[0], 7);
  EXPECT_EQ(array.geefElementen()[2], -9);
  VelmoraArray<short> const& vast = array;
  EXPECT_EQ(vast[1], 0);
  EXPECT_EQ(vast[2], -9);
  EXPECT_EQ(vast.geefElementen(), array.geefElementen());
  EXPECT_EQ(std::accumulate(vast.begin(), vast.end(), 0), -2);
}

TEST(Array, ligtOverGeleendBlokZonderHetVrijTeGeven) {
  int vernietigd = 0;
  std::array<TeldeOp, 3> blok{TeldeOp(vernietigd), TeldeOp(vernietigd), TeldeOp(vernietigd)};
  {
    VelmoraArray<TeldeOp> const array(blok.data(), blok.size(), false);
    EXPECT_FALSE(array.isEigenaar());
    EXPECT_EQ(array.geefElementen(), blok.data());
    EXPECT_EQ(array.geefBovengrens(), 2U);
  }
  EXPECT_EQ(vernietigd, 0);
}

TEST(Array, geeftOvergenomenBlokVrij) {
  int vernietigd = 0;
  {
    VelmoraArray<TeldeOp> const array(
        new TeldeOp[3]{TeldeOp(vernietigd), TeldeOp(vernietigd), TeldeOp(vernietigd)}, 3, true);
    EXPECT_TRUE(array.isEigenaar());
    EXPECT_EQ(vernietigd, 0);
  }
  EXPECT_EQ(vernietigd, 3);
}

TEST(Array, eigenaarVanNietsGeeftNietsVrij) {
  VelmoraArray<unsigned char> const array(nullptr, 0, true);
  EXPECT_TRUE(array.isEigenaar());
  EXPECT_EQ(array.geefAantal(), 0U);
}

}  // namespace
