// The bounded number on a grid. Expected values are worked out by hand; where a step is no sum of
// powers of two, with Python's fractions, rounding after each operation.
#include "numeriek/begrensdStapFloatGetal.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>

#include "tests/numeriek/doubles.h"
#include "tests/numeriek/toeval.h"

namespace {

static_assert(!std::is_polymorphic_v<BegrensdStapFloatGetal>);
static_assert(sizeof(BegrensdStapFloatGetal) == 4 * sizeof(double));

// The value that x gives between bounds that do not matter, unless others are given.
double afgerond(double x, double stap, double onder = -1000.0, double boven = 1000.0) {
  BegrensdStapFloatGetal getal(onder, boven, stap, 0.0);
  getal.rondAf(x);
  return getal.geefWaarde();
}

TEST(BegrensdStapFloatGetal, bewaartGrenzenEnStap) {
  const BegrensdStapFloatGetal getal(-1.5, 2.5, 0.25, 1.1);
  EXPECT_EQ(getal.geefOndergrens(), -1.5);
  EXPECT_EQ(getal.geefBovengrens(), 2.5);
  EXPECT_EQ(getal.geefStap(), 0.25);
}

TEST(BegrensdStapFloatGetal, beginwaardeWordtBegrensdEnNietAfgerond) {
  EXPECT_EQ(BegrensdStapFloatGetal(-1.5, 2.5, 0.25, 1.1).geefWaarde(), 1.1);
  EXPECT_EQ(BegrensdStapFloatGetal(-1.5, 2.5, 0.25, -1.6).geefWaarde(), -1.5);
  EXPECT_EQ(BegrensdStapFloatGetal(-1.5, 2.5, 0.25, 2.6).geefWaarde(), 2.5);
  EXPECT_EQ(BegrensdStapFloatGetal(-1.5, 2.5, 0.25, geenGetal).geefWaarde(), 2.5);
}

TEST(BegrensdStapFloatGetal, rondFunktieRondtHelftenVanNulAf) {
  const BegrensdStapFloatGetal getal(0.0, 1.0, 0.25, 0.0);
  EXPECT_EQ(getal.rondFunktie(2.5), 3.0);
  EXPECT_EQ(getal.rondFunktie(-2.5), -3.0);
  EXPECT_EQ(getal.rondFunktie(2.4999), 2.0);
  EXPECT_EQ(getal.rondFunktie(0.49999999999999994), 0.0);
}

TEST(BegrensdStapFloatGetal, stap03Geeft29Voor295) {
  EXPECT_EQ(afgerond(2.95, 0.3), 0x1.7333333333333p+1);  // 2.9
}

TEST(BegrensdStapFloatGetal, stap03Geeft30Voor31WantHetRasterBegintOpnieuw) {
  EXPECT_EQ(afgerond(3.1, 0.3), 3.0);
  EXPECT_EQ(afgerond(3.2, 0.3), 0x1.a666666666666p+1);  // 3.3
}

TEST(BegrensdStapFloatGetal, helftenVanEenStapGaanOmhoog) {
  EXPECT_EQ(afgerond(2.125, 0.25), 2.25);
  EXPECT_EQ(afgerond(2.375, 0.25), 2.5);
  EXPECT_EQ(afgerond(2.124, 0.25), 2.0);
}

// Just under half a step; and quotients whose last bit decides whether there is one.
TEST(BegrensdStapFloatGetal, eenLaatsteBitBeslist) {
  EXPECT_EQ(afgerond(0x1.fffffffffffffp-4, 0.25), 0.0);
  EXPECT_EQ(afgerond(0x1.eb851eb851eb8p-8, 0.003), 0x1.26e978d4fdf3cp-7);
  EXPECT_EQ(afgerond(1.025, 0.002), 0x1.0624dd2f1a9fcp+0);
}

TEST(BegrensdStapFloatGetal, onderNulTeltHetRasterVanafHetGeheleGetalEronder) {
  // -2.95 is 0.05 above -3, no half step; -0.1 is 0.9 above -1, three steps.
  EXPECT_EQ(afgerond(-2.95, 0.3), -3.0);
  EXPECT_EQ(afgerond(-0.1, 0.3), -0x1.99999999999a0p-4);
  EXPECT_EQ(afgerond(-1.25, 0.5), -1.0);
}

TEST(BegrensdStapFloatGetal, hetVolgendeGeheleGetalDoetNietMee) {
  EXPECT_EQ(afgerond(2.99, 0.7), 0x1.599999999999ap+1);  // 2.7
  EXPECT_EQ(afgerond(2.99, 0.6), 0x1.999999999999ap+1);  // 3.2
}

TEST(BegrensdStapFloatGetal, stappenBovenTweeLatenGeheleGetallenOver) {
  EXPECT_EQ(afgerond(2.999, 2.5), 2.0);
  EXPECT_EQ(afgerond(-2.001, 2.5), -3.0);
  // Up to 2 the rest can still be half a step.
  EXPECT_EQ(afgerond(2.999, 1.9), 0x1.f333333333333p+1);  // 3.9
}

TEST(BegrensdStapFloatGetal, afgerondeWaardeWordtBegrensd) {
  EXPECT_EQ(afgerond(2.95, 0.25, 0.0, 2.5), 2.5);
  EXPECT_EQ(afgerond(-0.3, 0.25, 0.0, 2.5), 0.0);
  // The point of the grid decides, not x: this x lies within the bounds.
  EXPECT_EQ(afgerond(2.2, 0.25, 0.0, 2.24), 2.24);
}

TEST(BegrensdStapFloatGetal, verwisseldeGrenzenGevenEenVanBeide) {
  EXPECT_EQ(BegrensdStapFloatGetal(5.0, 2.0, 1.0, 3.0).geefWaarde(), 5.0);
  EXPECT_EQ(afgerond(7.0, 1.0, 5.0, 2.0), 2.0);
}

TEST(BegrensdStapFloatGetal, stapVanNulOfMinderHoudtHetGeheleGetal) {
  EXPECT_EQ(afgerond(2.95, 0.0), 2.0);
  EXPECT_EQ(afgerond(3.0, 0.0), 3.0);
  EXPECT_EQ(afgerond(2.95, -0.3), 2.0);
  EXPECT_EQ(afgerond(-2.95, -0.3), -3.0);
}

TEST(BegrensdStapFloatGetal, meerDanTweeTotDe64eStappenTellenNiet) {
  // 2^64 steps of 2^-66 are a quarter; half of 2^-65 is still counted in full.
  EXPECT_EQ(afgerond(2.5, 0x1p-65), 2.5);
  EXPECT_EQ(afgerond(2.5, 0x1p-66), 2.25);
  EXPECT_EQ(afgerond(2.5, std::numeric_limits<double>::denorm_min()), 2.0);
}

TEST(BegrensdStapFloatGetal, oneindigGeeftDeGrensDaar) {
  EXPECT_EQ(afgerond(oneindig, 0.3), 1000.0);
  EXPECT_EQ(afgerond(-oneindig, 0.3), -1000.0);
}

TEST(BegrensdStapFloatGetal, geenGetalGeeftDeBovengrens) {
  EXPECT_EQ(afgerond(geenGetal, 0.3), 1000.0);
  EXPECT_EQ(afgerond(2.5, geenGetal), 1000.0);
  EXPECT_EQ(afgerond(2.5, oneindig), 1000.0);
  EXPECT_EQ(afgerond(2.5, -oneindig), 1000.0);
  EXPECT_EQ(afgerond(-oneindig, oneindig), 1000.0);
}

// Thousandths as integers are the model: no rounding but the one of the grid.
TEST(BegrensdStapFloatGetal, ligtAltijdOpHetRaster) {
  Toeval toeval(20);
  for (int i = 0; i < 20000; ++i) {
    const long long duizendsten = toeval.tussen(-900000, 900000);
    const long long stap = toeval.tussen(1, 2000);
    const long long rest = ((duizendsten % 1000) + 1000) % 1000;
    if (2 * (rest % stap) == stap) {
      continue;  // halves fall either way in double
    }
    const long long stappen = (2 * rest + stap) / (2 * stap);
    const auto verwacht = static_cast<double>(duizendsten - rest + stap * stappen) / 1000.0;
    ASSERT_NEAR(
        afgerond(static_cast<double>(duizendsten) / 1000.0, static_cast<double>(stap) / 1000.0),
        verwacht, 1e-9)
        << duizendsten << ' ' << stap;
  }
}

TEST(BegrensdStapFloatGetal, blijftBinnenDeGrenzen) {
  Toeval toeval(21);
  for (int i = 0; i < 20000; ++i) {
    const auto onder = static_cast<double>(toeval.tussen(-5000, 5000)) / 256.0;
    const auto boven = onder + static_cast<double>(toeval.tussen(0, 5000)) / 256.0;
    const auto x = static_cast<double>(toeval.tussen(-50000, 50000)) / 1024.0;
    const auto stap = static_cast<double>(toeval.tussen(-10, 2000)) / 512.0;
    const double waarde = afgerond(x, stap, onder, boven);
    ASSERT_GE(waarde, onder);
    ASSERT_LE(waarde, boven);
  }
}

}  // namespace
