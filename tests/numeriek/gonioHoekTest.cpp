// An angle with its sine and cosine. Expected values are those of bc -l, s(0.5) and c(0.5), or
// follow from the definition.
#include "numeriek/gonioHoek.h"

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

#include "tests/numeriek/hoekHulp.h"

namespace {

static_assert(!std::is_polymorphic_v<GonioHoek>);
static_assert(sizeof(GonioHoek) == 3 * sizeof(double));

TEST(GonioHoek, uitRadialen) {
  const GonioHoek h(0.5, Hoek::Radialen);
  EXPECT_EQ(h.geefHoek().rad(), 0.5);
  EXPECT_DOUBLE_EQ(h.S(), 0.479425538604203000273);
  EXPECT_DOUBLE_EQ(h.C(), 0.877582561890372716116);
}

TEST(GonioHoek, uitGraden) {
  const GonioHoek h(30.0, Hoek::Graden);
  EXPECT_DOUBLE_EQ(h.geefHoek().rad(), 0.52359877559829887308);
  EXPECT_DOUBLE_EQ(h.S(), 0.5);
  EXPECT_DOUBLE_EQ(h.C(), 0.866025403784438646764);
}

TEST(GonioHoek, onbekendeEenheidStoptHierEnIsDeHoekNul) {
  static_cast<void>(neemStops());
  const GonioHoek h(30.0, onbekendeEenheid);
  EXPECT_EQ(neemStops(), 1);
  EXPECT_EQ(h.geefHoek().rad(), 0.0);
  EXPECT_EQ(h.S(), 0.0);
  EXPECT_EQ(h.C(), 1.0);
}

TEST(GonioHoek, uitEenHoekIsDieHoek) {
  const GonioHoek h(radialen(-0.5));
  EXPECT_EQ(h.geefHoek().rad(), -0.5);
  EXPECT_DOUBLE_EQ(h.S(), -0.479425538604203000273);
  EXPECT_DOUBLE_EQ(h.C(), 0.877582561890372716116);
}

TEST(GonioHoek, houdtHoekSinusEnCosinusBijElkaar) {
  Toeval toeval(34);
  for (int i = 0; i < 10000; ++i) {
    const double x = willekeurig(toeval, -100.0, 100.0);
    const GonioHoek h(radialen(x));
    ASSERT_EQ(h.S(), std::sin(x));
    ASSERT_EQ(h.C(), std::cos(x));
    ASSERT_NEAR(h.S() * h.S() + h.C() * h.C(), 1.0, 1e-15);
  }
}

}  // namespace
