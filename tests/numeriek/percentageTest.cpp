// Percentage: clamping at construction, and what assignment and copying carry over.
#include "numeriek/percentage.h"

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

#include "tests/numeriek/doubles.h"
#include "tests/numeriek/toeval.h"

namespace {

static_assert(!std::is_polymorphic_v<Percentage>);
static_assert(sizeof(Percentage) == 3 * sizeof(double));
static_assert(!std::is_trivially_copy_assignable_v<Percentage>);

TEST(Percentage, zonderWaardeIsNulTussenNulEnHonderd) {
  const Percentage p;
  EXPECT_EQ(p.geefWaarde(), 0.0);
  EXPECT_EQ(p.geefOndergrens(), 0.0);
  EXPECT_EQ(p.geefBovengrens(), 100.0);
}

TEST(Percentage, metWaardeHoudtDezelfdeGrenzen) {
  const Percentage p(37.5);
  EXPECT_EQ(p.geefOndergrens(), 0.0);
  EXPECT_EQ(p.geefBovengrens(), 100.0);
}

TEST(Percentage, binnenDeGrenzenBlijftDeWaarde) {
  EXPECT_EQ(Percentage(37.5).geefWaarde(), 37.5);
  EXPECT_EQ(Percentage(0.0).geefWaarde(), 0.0);
  EXPECT_EQ(Percentage(100.0).geefWaarde(), 100.0);
}

TEST(Percentage, onderNulWordtNul) {
  EXPECT_EQ(Percentage(-3.0).geefWaarde(), 0.0);
  EXPECT_EQ(Percentage(-oneindig).geefWaarde(), 0.0);
}

TEST(Percentage, bovenHonderdWordtHonderd) {
  EXPECT_EQ(Percentage(250.0).geefWaarde(), 100.0);
  EXPECT_EQ(Percentage(std::nextafter(100.0, 101.0)).geefWaarde(), 100.0);
  EXPECT_EQ(Percentage(oneindig).geefWaarde(), 100.0);
}

TEST(Percentage, geenGetalWordtDeBovengrens) {
  EXPECT_EQ(Percentage(geenGetal).geefWaarde(), 100.0);
}

TEST(Percentage, toekennenNeemtWaardeEnGrenzenOver) {
  const Percentage bron(42.25);
  Percentage doel(7.0);
  EXPECT_EQ(&(doel = bron), &doel);
  EXPECT_EQ(doel.geefWaarde(), 42.25);
  EXPECT_EQ(doel.geefOndergrens(), 0.0);
  EXPECT_EQ(doel.geefBovengrens(), 100.0);
  EXPECT_EQ(bron.geefWaarde(), 42.25);
}

TEST(Percentage, toekennenVanEenGetalBegrenst) {
  Percentage doel(7.0);
  doel = 250.0;
  EXPECT_EQ(doel.geefWaarde(), 100.0);
  doel = -1.0;
  EXPECT_EQ(doel.geefWaarde(), 0.0);
}

TEST(Percentage, toekennenAanZichzelfVerandertNiets) {
  Percentage p(12.5);
  const Percentage& zelfde = p;
  p = zelfde;
  EXPECT_EQ(p.geefWaarde(), 12.5);
}

TEST(Percentage, kopieHeeftDezelfdeWaarde) {
  const Percentage p(12.5);
  Percentage kopie(p);
  EXPECT_EQ(kopie.geefWaarde(), 12.5);
  kopie = Percentage(50.0);
  EXPECT_EQ(p.geefWaarde(), 12.5);
}

TEST(Percentage, ligtAltijdTussenDeGrenzenEnKiestHetDichtstbijzijnde) {
  Toeval toeval(11);
  for (int i = 0; i < 10000; ++i) {
    const double x = static_cast<double>(toeval.tussen(-300000, 300000)) / 1000.0;
    const double waarde = Percentage(x).geefWaarde();
    // The middle one of 0, x and 100.
    ASSERT_EQ(waarde, std::fmax(0.0, std::fmin(100.0, x)));
  }
}

}  // namespace
