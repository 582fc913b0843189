// Numbers with two decimals. Expected texts are those of printf in the locale "C", run by hand:
// printf '%.2f\n' 0.5 0.125 ... in the shell, and worked out for the signs of NaN.
#include "numeriek/getalTekst.h"

#include <gtest/gtest.h>

#include <array>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <limits>

#include "tests/numeriek/doubles.h"
#include "tests/steun/omgeving.h"

namespace {

TEST(GetalTekst, tweeDecimalen) {
  EXPECT_EQ(tweeDecimalen(0.0), "0.00");
  EXPECT_EQ(tweeDecimalen(0.5), "0.50");
  EXPECT_EQ(tweeDecimalen(-1.005), "-1.00");
  EXPECT_EQ(tweeDecimalen(12345.678), "12345.68");
}

TEST(GetalTekst, precieseHelftenGaanNaarHetEvenCijfer) {
  EXPECT_EQ(tweeDecimalen(0.125), "0.12");
  EXPECT_EQ(tweeDecimalen(0.375), "0.38");
}

TEST(GetalTekst, hetTekenBlijftOokVoorNul) {
  EXPECT_EQ(tweeDecimalen(-0.0), "-0.00");
  EXPECT_EQ(tweeDecimalen(-0.001), "-0.00");
}

TEST(GetalTekst, oneindigHoudtZijnTekenEnGeenGetalNiet) {
  EXPECT_EQ(tweeDecimalen(oneindig), "inf");
  EXPECT_EQ(tweeDecimalen(-oneindig), "-inf");
  EXPECT_EQ(tweeDecimalen(geenGetal), "nan");
  EXPECT_EQ(tweeDecimalen(std::copysign(geenGetal, -1.0)), "nan");
}

TEST(GetalTekst, hetGrootsteGetalPastErIn) {
  // All 309 digits, from the C library.
  constexpr double grootste = std::numeric_limits<double>::max();
  std::array<char, 400> tekens{};
  ASSERT_EQ(std::snprintf(tekens.data(), tekens.size(), "%.2f", -grootste), 313);
  EXPECT_EQ(tweeDecimalen(-grootste), tekens.data());
}

TEST(GetalTekst, dePuntBlijftEenPuntInElkeTaal) {
  const TijdelijkeLocale duits(LC_NUMERIC, "de_DE.UTF-8");
  ASSERT_TRUE(duits.isGelukt());
  std::array<char, 8> komma{};
  ASSERT_EQ(std::snprintf(komma.data(), komma.size(), "%.2f", 1.5), 4);
  ASSERT_STREQ(komma.data(), "1,50");
  EXPECT_EQ(tweeDecimalen(1.5), "1.50");
}

}  // namespace
