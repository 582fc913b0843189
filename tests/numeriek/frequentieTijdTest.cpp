// Frequency and time: construction, turning one into the other, and reading in a unit.
#include "numeriek/frequentieTijd.h"

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

#include "numeriek/breuk.h"
#include "tests/numeriek/breukHulp.h"
#include "tests/numeriek/doubles.h"
#include "tests/numeriek/toeval.h"

namespace {

static_assert(std::is_convertible_v<Frequentie*, Breuk*> && sizeof(Frequentie) == sizeof(Breuk));
static_assert(std::is_convertible_v<Tijd*, Breuk*> && sizeof(Tijd) == sizeof(Breuk));

TEST(Frequentie, uitBreukNeemtDeVeldenOver) {
  EXPECT_EQ(paar(Frequentie(Breuk(16000, 2))), Paar(16000, 2));
}

TEST(Frequentie, uitDoubleIsOpSchaalTien) {
  EXPECT_EQ(paar(Frequentie(8000.0)), Paar(80000, 10));
  EXPECT_EQ(paar(Frequentie(11025.5)), Paar(22051, 2));
  EXPECT_EQ(paar(Frequentie(0.8)), Paar(1, 1));
}

TEST(Frequentie, uitTijdWisseltDeVelden) {
  EXPECT_EQ(paar(Frequentie(Tijd(Breuk(2, 16000)))), Paar(16000, 2));
}

TEST(Frequentie, periodeWisseltDeVelden) {
  const Tijd periode = Frequentie(Breuk(16000, 2)).periode();
  EXPECT_EQ(paar(periode), Paar(2, 16000));
}

TEST(Frequentie, hzIsHetQuotientInEnkelePrecisie) {
  EXPECT_EQ(Frequentie(Breuk(1, 3)).hz(), 0x1.555556p-2);
  EXPECT_EQ(Frequentie(Breuk(16777217, 1)).hz(), 16777216.0);
  EXPECT_EQ(Frequentie(8000.0).hz(), 8000.0);
}

TEST(Frequentie, periodeVan8000HzInSecondenIsInEnkelePrecisie) {
  // 1/8000 lies nearest to 0x1.0624dep-13 among the single-precision numbers.
  EXPECT_EQ(Frequentie(Breuk(8000, 1)).periode().s(), 0x1.0624dep-13);
}

TEST(Tijd, uitBreukNeemtDeVeldenOver) {
  EXPECT_EQ(paar(Tijd(Breuk(4, 8))), Paar(4, 8));
}

TEST(Tijd, uitDoubleIsOpSchaalTien) {
  EXPECT_EQ(paar(Tijd(2.5)), Paar(5, 2));
  EXPECT_EQ(paar(Tijd(0.02)), Paar(0, 10));
}

TEST(Tijd, uitFrequentieWisseltDeVelden) {
  EXPECT_EQ(paar(Tijd(Frequentie(Breuk(44100, 1)))), Paar(1, 44100));
}

TEST(Tijd, freqWisseltDeVelden) {
  const Frequentie frequentie = Tijd(Breuk(3, 6)).freq();
  EXPECT_EQ(paar(frequentie), Paar(6, 3));
}

TEST(Tijd, sIsHetQuotientInEnkelePrecisie) {
  EXPECT_EQ(Tijd(Breuk(1, 3)).s(), 0x1.555556p-2);
  EXPECT_EQ(Tijd(Breuk(-5, 2)).s(), -2.5);
}

TEST(Tijd, vanFrequentieNulIsOneindigEnFaaltNergens) {
  const Tijd tijd(Frequentie(Breuk(0, 1)));
  EXPECT_EQ(paar(tijd), Paar(1, 0));
  EXPECT_EQ(tijd.s(), oneindig);
  EXPECT_EQ(tijd.rondAf(false), 0);
}

TEST(FrequentieTijd, nulDoorNulIsGeenGetal) {
  EXPECT_TRUE(std::isnan(Tijd(Breuk(0, 0)).s()));
  EXPECT_TRUE(std::isnan(Frequentie(Breuk(0, 0)).hz()));
}

TEST(FrequentieTijd, toekennenAanElkaarKeertOm) {
  Frequentie frequentie(Breuk(1, 1));
  frequentie = Tijd(Breuk(1, 50));
  EXPECT_EQ(paar(frequentie), Paar(50, 1));
  Tijd tijd(Breuk(1, 1));
  tijd = Frequentie(Breuk(60, 1));
  EXPECT_EQ(paar(tijd), Paar(1, 60));
}

TEST(FrequentieTijd, heenEnTerugIsHetzelfdePaar) {
  Toeval toeval(10);
  for (int i = 0; i < 10000; ++i) {
    const Breuk b{toeval.geheel(), toeval.geheel()};  // braces: in this order
    ASSERT_EQ(paar(Frequentie(b).periode().freq()), paar(b));
    ASSERT_EQ(paar(Tijd(b).freq().periode()), paar(b));
    ASSERT_EQ(paar(Frequentie(Tijd(b))), paar(b.omgekeerd()));
    ASSERT_EQ(paar(Tijd(Frequentie(b))), paar(b.omgekeerd()));
  }
}

}  // namespace
