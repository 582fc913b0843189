// The arithmetic of fractions, case by case. Expected values were worked out by hand, the wrapping
// ones with whole numbers of unlimited size.
#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>
#include <utility>

#include "numeriek/breuk.h"
#include "tests/numeriek/breukHulp.h"
#include "tests/numeriek/doubles.h"

namespace {

template <typename T, typename = void>
constexpr bool heeftDeelToekenning = false;
template <typename T>
constexpr bool heeftDeelToekenning<
    T, std::void_t<decltype(std::declval<Breuk&>() /= std::declval<const T&>())>> = true;
static_assert(heeftDeelToekenning<long long> && !heeftDeelToekenning<Breuk>);

TEST(BreukRekenen, plusBreuk) {
  EXPECT_EQ(paar(Breuk(3, 4) + Breuk(1, 4)), Paar(1, 1));
  EXPECT_EQ(paar(Breuk(1, 2) + Breuk(1, 3)), Paar(5, 6));
  EXPECT_EQ(paar(Breuk(1, 11) + Breuk(1, 11)), Paar(22, 121));
}

TEST(BreukRekenen, minBreuk) {
  EXPECT_EQ(paar(Breuk(1, 2) - Breuk(1, 3)), Paar(1, 6));
  EXPECT_EQ(paar(Breuk(1, 3) - Breuk(1, 2)), Paar(-1, 6));
  EXPECT_EQ(paar(Breuk(1, 3) - Breuk(1, 3)), Paar(0, 1));
}

TEST(BreukRekenen, maalBreuk) {
  EXPECT_EQ(paar(Breuk(2, 3) * Breuk(3, 4)), Paar(1, 2));
  EXPECT_EQ(paar(Breuk(-2, 11) * Breuk(11, 5)), Paar(-22, 55));
}

TEST(BreukRekenen, gedeeldDoorBreuk) {
  EXPECT_EQ(paar(Breuk(2, 3) / Breuk(4, 5)), Paar(5, 6));
  EXPECT_EQ(paar(Breuk(2, 3) / Breuk(0, 5)), Paar(1, 0));  // 10/0
}

TEST(BreukRekenen, eenObjectDoorZichzelfIsEenOokAlsHetNulIs) {
  const Breuk nul(0, 3);
  const Breuk& zelfde = nul;
  EXPECT_EQ(paar(nul / zelfde), Paar(1, 1));
  const Breuk negatief(-2, 11);
  const Breuk& ookZelfde = negatief;
  EXPECT_EQ(paar(negatief / ookZelfde), Paar(1, 1));
}

TEST(BreukRekenen, eenGelijkMaarAnderObjectNeemtDeKorteWegNiet) {
  const Breuk nul(0, 3);
  const Breuk kopie = nul;
  EXPECT_EQ(paar(nul / kopie), Paar(0, 0));
  EXPECT_EQ(paar(Breuk(-2, 11) / Breuk(-2, 11)), Paar(-11, -11));
}

TEST(BreukRekenen, plusGeheel) {
  EXPECT_EQ(paar(Breuk(1, 2) + 3LL), Paar(7, 2));
  EXPECT_EQ(paar(Breuk(4, 6) + 1LL), Paar(5, 3));
}

TEST(BreukRekenen, minGeheel) {
  EXPECT_EQ(paar(Breuk(1, 2) - 3LL), Paar(-5, 2));
  EXPECT_EQ(paar(Breuk(10, 4) - 1LL), Paar(3, 2));
}

TEST(BreukRekenen, maalGeheel) {
  EXPECT_EQ(paar(Breuk(2, 3) * 3LL), Paar(2, 1));
  EXPECT_EQ(paar(Breuk(2, 3) * -5LL), Paar(-10, 3));
}

TEST(BreukRekenen, gedeeldDoorGeheel) {
  EXPECT_EQ(paar(Breuk(2, 3) / 4LL), Paar(1, 6));
  EXPECT_EQ(paar(Breuk(2, 3) / -2LL), Paar(1, -3));
  EXPECT_EQ(paar(Breuk(2, 3) / 0LL), Paar(1, 0));
}

TEST(BreukRekenen, terPlaatseGeeftHetZelfdeObjectTerug) {
  Breuk b(1, 2);
  EXPECT_EQ(&(b += Breuk(1, 3)), &b);
  EXPECT_EQ(paar(b), Paar(5, 6));
  EXPECT_EQ(&(b -= Breuk(1, 3)), &b);
  EXPECT_EQ(paar(b), Paar(1, 2));
  EXPECT_EQ(&(b *= Breuk(2, 3)), &b);
  EXPECT_EQ(paar(b), Paar(1, 3));
  EXPECT_EQ(&(b *= 6LL), &b);
  EXPECT_EQ(paar(b), Paar(2, 1));
  EXPECT_EQ(&(b /= 8LL), &b);
  EXPECT_EQ(paar(b), Paar(1, 4));
}

TEST(BreukRekenen, terPlaatseMetZichzelfAlsRechterkant) {
  Breuk b(3, 4);
  const Breuk& zelfde = b;
  b += zelfde;
  EXPECT_EQ(paar(b), Paar(3, 2));  // 24/16
  b *= zelfde;
  EXPECT_EQ(paar(b), Paar(9, 4));
  b -= zelfde;
  EXPECT_EQ(paar(b), Paar(0, 1));
}

TEST(BreukRekenen, eenUitkomstNulDoorNulHangtNiet) {
  EXPECT_EQ(paar(Breuk(1, 0) + Breuk(1, 0)), Paar(0, 0));
  EXPECT_EQ(paar(Breuk(1, 0) - Breuk(1, 0)), Paar(0, 0));
  EXPECT_EQ(paar(Breuk(1, 0) * Breuk(0, 1)), Paar(0, 0));
  EXPECT_EQ(paar(Breuk(0, 1) / Breuk(0, 1)), Paar(0, 0));
  EXPECT_EQ(paar(Breuk(0, 0) + 5LL), Paar(0, 0));
  EXPECT_EQ(paar(Breuk(0, 0) - 5LL), Paar(0, 0));
  EXPECT_EQ(paar(Breuk(1, 0) * 0LL), Paar(0, 0));
  EXPECT_EQ(paar(Breuk(0, 1) / 0LL), Paar(0, 0));
  EXPECT_EQ(paar(Breuk(1LL << 32, 1LL << 32) * Breuk(1LL << 32, 1LL << 32)), Paar(0, 0));
}

TEST(BreukRekenen, terPlaatseHangtEvenminOpNulDoorNul) {
  Breuk som(1, 0);
  EXPECT_EQ(paar(som += Breuk(1, 0)), Paar(0, 0));
  Breuk verschil(1, 0);
  EXPECT_EQ(paar(verschil -= Breuk(1, 0)), Paar(0, 0));
  Breuk product(1, 0);
  EXPECT_EQ(paar(product *= Breuk(0, 1)), Paar(0, 0));
  Breuk veelvoud(1, 0);
  EXPECT_EQ(paar(veelvoud *= 0LL), Paar(0, 0));
  Breuk quotient(0, 1);
  EXPECT_EQ(paar(quotient /= 0LL), Paar(0, 0));
}

TEST(BreukRekenen, overloopLooptOm) {
  EXPECT_EQ(paar(Breuk(hoogste, 1) + 1LL), Paar(laagste, 1));
  EXPECT_EQ(paar(Breuk(laagste, 1) - 1LL), Paar(hoogste, 1));
  EXPECT_EQ(paar(Breuk(hoogste, 1) * hoogste), Paar(1, 1));
  EXPECT_EQ(paar(Breuk(laagste, 1) * -1LL), Paar(laagste, 1));
  EXPECT_EQ(paar(Breuk(1, laagste) / -1LL), Paar(1, laagste));
  EXPECT_EQ(paar(Breuk(hoogste, 3) + Breuk(2, hoogste)), Paar(7, hoogste - 2));
  EXPECT_EQ(paar(Breuk(1, 1LL << 62) * Breuk(1, 4)), Paar(1, 0));
}

TEST(BreukRekenen, doubleMaalBreukRondtDeBreukAfOpEnkelePrecisie) {
  EXPECT_EQ(1000.0 * Breuk(1, 3), 0x1.4d5555fcp+8);  // 1000 * 0x1.555556p-2
  EXPECT_EQ(3.0 * Breuk(-1, 2), -1.5);
}

TEST(BreukRekenen, doubleDoorBreukIsMaalHetOmgekeerde) {
  // 10 * 0x1.4e5e0ap-6, the single-precision value of 1/49; 10 / 49.0 has other digits.
  EXPECT_EQ(10.0 / Breuk(49, 1), 0x1.a1f58c8p-3);
  EXPECT_EQ(3.0 / Breuk(1, 2), 6.0);
}

TEST(BreukRekenen, doubleMetNoemerOfTellerNulVolgtDeDrijvendeKomma) {
  EXPECT_EQ(2.0 * Breuk(1, 0), oneindig);
  EXPECT_EQ(2.0 / Breuk(0, 1), oneindig);
  EXPECT_TRUE(std::isnan(0.0 * Breuk(1, 0)));
}

}  // namespace
