// Angles: construction, units, functions and text. Expected values are those of bc -l with 60
// digits (4*a(1), s(0.5), c(0.5), a(4/3), ...), or follow from the definition.
#include "numeriek/hoek.h"

#include <gtest/gtest.h>
#include <wx/string.h>

#include <clocale>
#include <cmath>
#include <string>
#include <type_traits>

#include "tests/numeriek/hoekHulp.h"
#include "tests/steun/omgeving.h"

namespace {

static_assert(!std::is_polymorphic_v<Hoek>);
static_assert(sizeof(Hoek) == sizeof(double));
static_assert(Hoek::Radialen == 0 && Hoek::Graden == 1);
// No bare number is taken for an angle.
static_assert(!std::is_constructible_v<Hoek, double>);

std::string tekst(Hoek const& h, Hoek::HoekSoort s) {
  return h.print(s).ToStdString();
}

// The nearest doubles, bit by bit.
TEST(Hoek, constantenZijnVolledigVanPrecisie) {
  EXPECT_EQ(Hoek::kwartpi, 0x1.921fb54442d18p-1);
  EXPECT_EQ(Hoek::halfpi, 0x1.921fb54442d18p+0);
  EXPECT_EQ(Hoek::pi, 0x1.921fb54442d18p+1);
  EXPECT_EQ(Hoek::minpi, -0x1.921fb54442d18p+1);
  EXPECT_EQ(Hoek::anderhalfpi, 0x1.2d97c7f3321d2p+2);
  EXPECT_EQ(Hoek::tweepi, 0x1.921fb54442d18p+2);
}

TEST(Hoek, uitRadialenBlijftZoals) {
  EXPECT_EQ(radialen(1.25).rad(), 1.25);
  EXPECT_EQ(radialen(-100.0).rad(), -100.0);
  EXPECT_EQ(radialen(oneindig).rad(), oneindig);
}

TEST(Hoek, uitGradenIsMaalDeFactor) {
  EXPECT_EQ(graden(1.0).rad(), 0x1.1df46a2529d39p-6);
  EXPECT_DOUBLE_EQ(graden(90.0).rad(), 1.570796326794896619);
  EXPECT_DOUBLE_EQ(graden(-720.0).rad(), -12.56637061435917295);
}

TEST(Hoek, honderdtachtigGradenZijnWeerHonderdtachtigGraden) {
  EXPECT_DOUBLE_EQ(graden(180.0).grad(), 180.0);
  EXPECT_DOUBLE_EQ(graden(180.0).rad(), 3.14159265358979323846);
}

TEST(Hoek, eenRadiaalInGradenIsDeFactor) {
  EXPECT_EQ(radialen(1.0).grad(), 0x1.ca5dc1a63c1f8p+5);
  EXPECT_EQ(radialen(-2.0).grad(), -0x1.ca5dc1a63c1f8p+6);
}

TEST(Hoek, onbekendeEenheidStoptHierEnIsNul) {
  static_cast<void>(neemStops());
  EXPECT_EQ(Hoek(1.5, onbekendeEenheid).rad(), 0.0);
  EXPECT_EQ(neemStops(), 1);
  EXPECT_EQ(Hoek(1.5, static_cast<Hoek::HoekSoort>(0xFFFFFFFFU)).rad(), 0.0);
  EXPECT_EQ(neemStops(), 1);
}

TEST(Hoek, bekendeEenhedenStoppenNergens) {
  static_cast<void>(neemStops());
  EXPECT_EQ(radialen(1.5).zetOm(1.0, Hoek::Graden), 0x1.1df46a2529d39p-6);
  EXPECT_EQ(graden(0.0).rad(), 0.0);
  EXPECT_EQ(neemStops(), 0);
}

TEST(Hoek, uitEenPuntIsEerstXDanY) {
  EXPECT_EQ(Hoek(0.0, 1.0).rad(), Hoek::halfpi);
  EXPECT_EQ(Hoek(1.0, 0.0).rad(), 0.0);
  EXPECT_DOUBLE_EQ(Hoek(3.0, 4.0).rad(), 0.92729521800161223243);
  EXPECT_DOUBLE_EQ(Hoek(-1.0, 2.0).rad(), 2.03444393579570273545);
}

TEST(Hoek, uitEenPuntLooptVanMinPiTotPi) {
  EXPECT_EQ(Hoek(-1.0, 0.0).rad(), Hoek::pi);
  EXPECT_EQ(Hoek(-1.0, -0.0).rad(), Hoek::minpi);
  EXPECT_EQ(Hoek(0.0, -2.0).rad(), -Hoek::halfpi);
  EXPECT_EQ(Hoek(0.0, 0.0).rad(), 0.0);
}

TEST(Hoek, eenKaalGetalOpDeTweedePlaatsIsEenY) {
  EXPECT_EQ(Hoek(0.0, 1).rad(), Hoek::halfpi);
  EXPECT_EQ(Hoek(0, Hoek::Graden).rad(), 0.0);
}

TEST(Hoek, zetOmIsWatDeConstructorBewaart) {
  const Hoek h = radialen(5.0);
  static_cast<void>(neemStops());
  EXPECT_EQ(h.zetOm(1.25, Hoek::Radialen), 1.25);
  EXPECT_EQ(h.zetOm(1.0, Hoek::Graden), 0x1.1df46a2529d39p-6);
  EXPECT_EQ(neemStops(), 0);
  EXPECT_EQ(h.zetOm(1.25, onbekendeEenheid), 0.0);
  EXPECT_EQ(neemStops(), 1);
  EXPECT_EQ(h.rad(), 5.0);
}

TEST(Hoek, gradNaarRadEnTerugZonderHoek) {
  EXPECT_EQ(Hoek::gradNaarRad(1.0), 0x1.1df46a2529d39p-6);
  EXPECT_EQ(Hoek::radNaarGrad(1.0), 0x1.ca5dc1a63c1f8p+5);
  // Times the factor in one go: by way of pi and 180 the last bits differ.
  EXPECT_EQ(Hoek::gradNaarRad(3.0), 0x1.acee9f37bebd6p-5);
  EXPECT_EQ(Hoek::radNaarGrad(9.0), 0x1.01d4bced81d1cp+9);
  EXPECT_EQ(Hoek::radNaarGrad(11.0), 0x1.3b2075224955ap+9);
  EXPECT_DOUBLE_EQ(Hoek::gradNaarRad(45.0), 0.785398163397448309616);
  EXPECT_DOUBLE_EQ(Hoek::radNaarGrad(-0.5), -28.6478897565411604384);
}

TEST(Hoek, sinusCosinusEnTangens) {
  EXPECT_DOUBLE_EQ(radialen(0.5).sinus(), 0.479425538604203000273);
  EXPECT_DOUBLE_EQ(radialen(0.5).cosinus(), 0.877582561890372716116);
  EXPECT_EQ(radialen(1.0).tangens(), 0x1.8eb245cbee3a6p+0);  // 1.5574077246549022...
  EXPECT_EQ(radialen(-0.0).cosinus(), 1.0);
  EXPECT_DOUBLE_EQ(graden(30.0).sinus(), 0.5);
}

TEST(Hoek, absHoekHaaltHetTekenWeg) {
  EXPECT_EQ(radialen(-1.5).absHoek().rad(), 1.5);
  EXPECT_EQ(radialen(1.5).absHoek().rad(), 1.5);
  EXPECT_FALSE(std::signbit(radialen(-0.0).absHoek().rad()));
  EXPECT_FALSE(std::signbit(radialen(std::copysign(geenGetal, -1.0)).absHoek().rad()));
}

TEST(Hoek, ngHoekKeertHetTekenOm) {
  EXPECT_EQ(radialen(1.5).ngHoek().rad(), -1.5);
  EXPECT_EQ(radialen(-1.5).ngHoek().rad(), 1.5);
  EXPECT_TRUE(std::signbit(radialen(0.0).ngHoek().rad()));
  EXPECT_FALSE(std::signbit(radialen(-0.0).ngHoek().rad()));
  EXPECT_TRUE(std::signbit(radialen(std::copysign(geenGetal, 1.0)).ngHoek().rad()));
  EXPECT_FALSE(std::signbit(radialen(std::copysign(geenGetal, -1.0)).ngHoek().rad()));
}

TEST(Hoek, printInRadialen) {
  EXPECT_EQ(tekst(radialen(0.5), Hoek::Radialen), "Hoek=0.50 rad");
  EXPECT_EQ(tekst(radialen(-12.346), Hoek::Radialen), "Hoek=-12.35 rad");
  EXPECT_EQ(tekst(graden(180.0), Hoek::Radialen), "Hoek=3.14 rad");
}

TEST(Hoek, printInGraden) {
  EXPECT_EQ(tekst(radialen(0.5), Hoek::Graden), "Hoek=28.65 grad");
  EXPECT_EQ(tekst(graden(-45.0), Hoek::Graden), "Hoek=-45.00 grad");
}

TEST(Hoek, printInElkeAndereEenheidIsInGradenEnStoptNergens) {
  static_cast<void>(neemStops());
  EXPECT_EQ(tekst(radialen(0.5), onbekendeEenheid), "Hoek=28.65 grad");
  EXPECT_EQ(tekst(radialen(0.5), static_cast<Hoek::HoekSoort>(0x80000000U)), "Hoek=28.65 grad");
  EXPECT_EQ(neemStops(), 0);
}

TEST(Hoek, printVanWatGeenGetalIs) {
  EXPECT_EQ(tekst(radialen(geenGetal), Hoek::Radialen), "Hoek=nan rad");
  EXPECT_EQ(tekst(radialen(-oneindig), Hoek::Graden), "Hoek=-inf grad");
}

TEST(Hoek, printHoudtDePuntInElkeTaal) {
  const TijdelijkeLocale duits(LC_ALL, "de_DE.UTF-8");
  ASSERT_TRUE(duits.isGelukt());
  EXPECT_EQ(tekst(radialen(0.5), Hoek::Radialen), "Hoek=0.50 rad");
}

TEST(Hoek, heenEnTerugDoorDeGradenIsDezelfdeHoek) {
  Toeval toeval(30);
  for (int i = 0; i < 10000; ++i) {
    const double x = willekeurig(toeval, -1000.0, 1000.0);
    ASSERT_DOUBLE_EQ(graden(x).grad(), x);
    ASSERT_DOUBLE_EQ(graden(radialen(x).grad()).rad(), x);
    ASSERT_EQ(radialen(x).ngHoek().ngHoek().rad(), x);
    ASSERT_EQ(radialen(x).absHoek().rad(), std::fmax(x, -x));
  }
}

}  // namespace
