// Angular velocity and acceleration. Expected values are worked out by hand; those over a third of
// a second with Python's fractions, from the single-precision third 0x1.555556p-2.
#include "numeriek/hoekSnelheid.h"

#include <gtest/gtest.h>

#include <cmath>
#include <type_traits>

#include "numeriek/breuk.h"
#include "numeriek/frequentieTijd.h"
#include "tests/numeriek/breukHulp.h"
#include "tests/numeriek/hoekHulp.h"

namespace {

static_assert(!std::is_polymorphic_v<HoekSnelheid>);
static_assert(sizeof(HoekSnelheid) == sizeof(Hoek) + sizeof(Tijd));
static_assert(sizeof(HoekVersnelling) == sizeof(HoekSnelheid));

constexpr double eenDerde = 0x1.555556p-2;

Tijd tijd(long long teller, long long noemer) {
  return {Breuk(teller, noemer)};
}

TEST(HoekSnelheid, bewaartHoekEnTijdZoals) {
  const HoekSnelheid v(radialen(1.5), tijd(2, 4));
  EXPECT_EQ(v.geefHoek().rad(), 1.5);
  EXPECT_EQ(paar(v.tijdBasis()), Paar(2, 4));
}

TEST(HoekSnelheid, uitEenGetalIsPerSeconde) {
  const HoekSnelheid v(1.5, Hoek::Radialen);
  EXPECT_EQ(v.geefHoek().rad(), 1.5);
  EXPECT_EQ(paar(v.tijdBasis()), Paar(1, 1));
  EXPECT_EQ(v.rads(), 1.5);
}

TEST(HoekSnelheid, negentigGradenPerSecondeIsWeerNegentig) {
  const HoekSnelheid v(90.0, Hoek::Graden);
  EXPECT_DOUBLE_EQ(v.grads(), 90.0);
  EXPECT_DOUBLE_EQ(v.rads(), 1.570796326794896619);
}

TEST(HoekSnelheid, onbekendeEenheidStoptHierEnStaatStil) {
  static_cast<void>(neemStops());
  const HoekSnelheid v(90.0, onbekendeEenheid);
  EXPECT_EQ(neemStops(), 1);
  EXPECT_EQ(v.rads(), 0.0);
}

TEST(HoekSnelheid, deeltDoorDeTijd) {
  const HoekSnelheid v(radialen(3.0), tijd(1, 4));
  EXPECT_EQ(v.rads(), 12.0);
  EXPECT_DOUBLE_EQ(v.grads(), 687.5493541569878505);
}

TEST(HoekSnelheid, deTijdIsInEnkelePrecisie) {
  const HoekSnelheid v(radialen(1.0), tijd(1, 3));
  EXPECT_EQ(v.rads(), 0x1.7fffff4000006p+1);
  EXPECT_EQ(v.tijd(radialen(2.0)), 2 * eenDerde);
  // To degrees first, then divided: the other order ends in another bit.
  EXPECT_EQ(HoekSnelheid(radialen(5.0), tijd(1, 3)).grads(), 0x1.adb7e4b4fc6b3p+9);
}

TEST(HoekSnelheid, tijdIsWatEenHoekKost) {
  const HoekSnelheid v(radialen(3.0), tijd(1, 4));
  EXPECT_EQ(v.tijd(radialen(6.0)), 0.5);
  EXPECT_EQ(v.tijd(radialen(-6.0)), -0.5);
  EXPECT_EQ(v.tijd(radialen(0.0)), 0.0);
}

TEST(HoekSnelheid, tijdVermenigvuldigtEerst) {
  // A third times 1, divided by 3; a third times a third ends in ...aap-4.
  const HoekSnelheid v(radialen(3.0), tijd(1, 3));
  EXPECT_EQ(v.tijd(radialen(1.0)), 0x1.c71c72aaaaaabp-4);
  // Divided by the angle, not by the velocity.
  EXPECT_EQ(HoekSnelheid(radialen(9.0), tijd(1, 3)).tijd(radialen(3.0)), 0x1.c71c72aaaaaabp-4);
}

TEST(HoekSnelheid, hoekNulOfTijdNulVolgtDeDoubles) {
  EXPECT_EQ(HoekSnelheid(0.0, Hoek::Radialen).tijd(radialen(1.0)), oneindig);
  EXPECT_TRUE(std::isnan(HoekSnelheid(0.0, Hoek::Radialen).tijd(radialen(0.0))));
  EXPECT_EQ(HoekSnelheid(radialen(1.0), tijd(0, 1)).rads(), oneindig);
  EXPECT_EQ(HoekSnelheid(radialen(-1.0), tijd(0, 1)).grads(), -oneindig);
  EXPECT_EQ(HoekSnelheid(radialen(1.0), tijd(1, 0)).rads(), 0.0);
  EXPECT_TRUE(std::isnan(HoekSnelheid(radialen(1.0), tijd(0, 0)).rads()));
}

TEST(HoekSnelheid, deTijdVanEenHoekIsDieHoekDoorDeSnelheid) {
  Toeval toeval(35);
  for (int i = 0; i < 10000; ++i) {
    const HoekSnelheid v(radialen(willekeurig(toeval, 0.1, 100.0)),
                         tijd(toeval.tussen(1, 1000), toeval.tussen(1, 1000)));
    const Hoek h = radialen(willekeurig(toeval, -100.0, 100.0));
    ASSERT_NEAR(v.tijd(h) * v.rads(), h.rad(), 1e-12);
    ASSERT_NEAR(v.grads() * 3.14159265358979323846, v.rads() * 180.0, 1e-15 * v.rads() * 1000.0);
  }
}

TEST(HoekVersnelling, uitEenGetalIsPerSeconde) {
  const HoekVersnelling a(1.5, Hoek::Radialen);
  EXPECT_EQ(a.geefToename().geefHoek().rad(), 1.5);
  EXPECT_EQ(paar(a.geefToename().tijdBasis()), Paar(1, 1));
  EXPECT_DOUBLE_EQ(HoekVersnelling(90.0, Hoek::Graden).geefToename().grads(), 90.0);
}

TEST(HoekVersnelling, onbekendeEenheidStoptHierEnIsNul) {
  static_cast<void>(neemStops());
  const HoekVersnelling a(90.0, onbekendeEenheid);
  EXPECT_EQ(neemStops(), 1);
  EXPECT_EQ(a.geefToename().rads(), 0.0);
}

TEST(HoekVersnelling, uitEenSnelheidNeemtDeDrieWaardenOverWatHetGetalOokIs) {
  const HoekSnelheid v(radialen(2.5), tijd(6, 8));
  for (const double getal : {1.0, 0.0, -3.0, 1e300, geenGetal}) {
    const HoekVersnelling a(v, getal);
    EXPECT_EQ(a.geefToename().geefHoek().rad(), 2.5);
    EXPECT_EQ(paar(a.geefToename().tijdBasis()), Paar(6, 8));
  }
}

}  // namespace
