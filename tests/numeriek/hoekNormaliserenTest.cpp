// Turns: normalising, the opposite direction, the difference of two directions. Expected values
// come from bc -l with 60 digits, and to the bit, where given so, from Python's fractions, rounding
// after each operation. The laws over random angles are told by sines and cosines, which know of
// turns.
#include <gtest/gtest.h>

#include <cmath>

#include "numeriek/hoek.h"
#include "tests/numeriek/hoekHulp.h"

namespace {

double genormaliseerd(double v) {
  return radialen(v).normaliseer().rad();
}

double verschilInGraden(double van, double naar) {
  return graden(van).verschilHoek(graden(naar)).grad();
}

// 2^64 turns.
constexpr double reusachtig = 0x1.921fb54442d18p+66;

TEST(HoekNormaliseren, binnenEenOmwentelingBlijftZoals) {
  EXPECT_EQ(genormaliseerd(0.0), 0.0);
  EXPECT_EQ(genormaliseerd(-0.0), 0.0);
  EXPECT_EQ(genormaliseerd(3.0), 3.0);
  EXPECT_EQ(genormaliseerd(0x1.921fb54442d17p+2), 0x1.921fb54442d17p+2);
}

TEST(HoekNormaliseren, zevenIsZevenMinTweePi) {
  EXPECT_EQ(genormaliseerd(7.0), 0x1.6f0255dde974p-1);
  EXPECT_NEAR(genormaliseerd(7.0), 0.716814692820413523, 1e-15);
}

TEST(HoekNormaliseren, heleOmwentelingenGaanEraf) {
  EXPECT_EQ(genormaliseerd(Hoek::tweepi), 0.0);
  EXPECT_EQ(genormaliseerd(10 * Hoek::tweepi), 0.0);
  EXPECT_NEAR(genormaliseerd(100.0), 5.752220392306202846, 1e-13);
  EXPECT_EQ(genormaliseerd(100.0), 0x1.7024610015ba0p+2);
}

TEST(HoekNormaliseren, omwentelingenTellenGaatMetEenDeling) {
  // Eleven turns, less a last bit: times 1/(2*pi) it would be eleven.
  EXPECT_EQ(genormaliseerd(0x1.1475cc9eedf00p+6), 0x1.921fb54442d10p+2);
}

TEST(HoekNormaliseren, minEenIsTweePiMinEen) {
  EXPECT_EQ(genormaliseerd(-1.0), 0x1.521fb54442d18p+2);
  EXPECT_DOUBLE_EQ(genormaliseerd(-1.0), 5.283185307179586477);
}

TEST(HoekNormaliseren, ietsOnderNulIsTweePi) {
  EXPECT_EQ(genormaliseerd(-1e-300), Hoek::tweepi);
}

TEST(HoekNormaliseren, vanMinTweePiTotMinVierPiBlijftNegatief) {
  EXPECT_EQ(genormaliseerd(-7.0), -7.0);
  EXPECT_EQ(genormaliseerd(-Hoek::tweepi), -Hoek::tweepi);
  EXPECT_EQ(genormaliseerd(-0x1.921fb54442d17p+3), -0x1.921fb54442d17p+3);
}

TEST(HoekNormaliseren, vanafMinVierPiIsReusachtig) {
  EXPECT_EQ(genormaliseerd(-14.0), reusachtig);
  EXPECT_NEAR(genormaliseerd(-14.0), 1.16e20, 0.01e20);
  EXPECT_EQ(genormaliseerd(-2 * Hoek::tweepi), reusachtig);
  EXPECT_EQ(genormaliseerd(-1e6), 0x1.921fb54442c9ep+66);
}

TEST(HoekNormaliseren, productWordtAfgerondVoorHetOpgeteldWordt) {
  EXPECT_EQ(genormaliseerd(-0x1.871aadf39a334p+62), 0x1.613c5f85cf8b2p+66);
}

// Beyond 2^63 turns their number stands still there: v - 2^63 turns, and v + (2^63 + 1) turns.
TEST(HoekNormaliseren, meerOmwentelingenDanGeteldWordenGeeftEenEindigeHoek) {
  EXPECT_EQ(genormaliseerd(1e20), 0x1.23c3f9d26eb68p+65);
  EXPECT_EQ(genormaliseerd(-1e20), -0x1.23c3f9d26eb68p+65);
  EXPECT_EQ(genormaliseerd(1e300), 1e300);
  EXPECT_EQ(genormaliseerd(-1e300), -1e300);
}

TEST(HoekNormaliseren, oneindigEnGeenGetalBlijven) {
  EXPECT_EQ(genormaliseerd(oneindig), oneindig);
  EXPECT_EQ(genormaliseerd(-oneindig), -oneindig);
  EXPECT_TRUE(std::isnan(genormaliseerd(geenGetal)));
}

TEST(HoekNormaliseren, terPlaatseIsHetzelfdeEnGeeftHetObject) {
  for (const double v : {7.0, -1.0, -7.0, -14.0, 1e20, 3.0}) {
    Hoek h = radialen(v);
    EXPECT_EQ(&h.zelfNormaliseer(), &h);
    EXPECT_EQ(h.rad(), genormaliseerd(v));
    const Hoek vast = radialen(v);
    static_cast<void>(vast.normaliseer());
    EXPECT_EQ(vast.rad(), v);
  }
}

TEST(HoekNormaliseren, isDezelfdeRichtingBinnenEenOmwenteling) {
  Toeval toeval(31);
  for (int i = 0; i < 20000; ++i) {
    const double v = willekeurig(toeval, -6.28, 10000.0);
    const double w = genormaliseerd(v);
    ASSERT_GE(w, -1e-11) << v;
    ASSERT_LE(w, Hoek::tweepi) << v;
    ASSERT_NEAR(std::sin(w), std::sin(v), 1e-11) << v;
    ASSERT_NEAR(std::cos(w), std::cos(v), 1e-11) << v;
  }
}

TEST(TegenHoek, ligtEenHalveOmwentelingVerder) {
  EXPECT_DOUBLE_EQ(radialen(1.0).tegenHoek().rad(), 4.141592653589793238);
  EXPECT_DOUBLE_EQ(radialen(4.0).tegenHoek().rad(), 0.858407346410206762);
  EXPECT_DOUBLE_EQ(radialen(-1.0).tegenHoek().rad(), 2.141592653589793238);
  EXPECT_DOUBLE_EQ(radialen(-4.0).tegenHoek().rad(), 5.424777960769379715);
}

TEST(TegenHoek, wordtMetDezelfdeStappenGenormaliseerd) {
  // -10 + pi is -6.858, between one turn and two below zero; -17 + pi is beyond two.
  EXPECT_DOUBLE_EQ(radialen(-10.0).tegenHoek().rad(), -6.858407346410206762);
  EXPECT_EQ(radialen(-17.0).tegenHoek().rad(), reusachtig);
}

TEST(TegenHoek, isDeTegengesteldeRichtingEnTweemaalDezelfde) {
  Toeval toeval(32);
  for (int i = 0; i < 20000; ++i) {
    const Hoek h = radialen(willekeurig(toeval, -9.0, 1000.0));
    const Hoek tegen = h.tegenHoek();
    ASSERT_EQ(tegen.rad(), genormaliseerd(h.rad() + Hoek::pi));
    ASSERT_NEAR(tegen.sinus(), -h.sinus(), 1e-12) << h.rad();
    ASSERT_NEAR(tegen.cosinus(), -h.cosinus(), 1e-12) << h.rad();
    ASSERT_NEAR(tegen.tegenHoek().sinus(), h.sinus(), 1e-12) << h.rad();
    ASSERT_NEAR(tegen.tegenHoek().cosinus(), h.cosinus(), 1e-12) << h.rad();
  }
}

TEST(VerschilHoek, van350Naar10GradenIs20Graden) {
  EXPECT_NEAR(verschilInGraden(350.0, 10.0), 20.0, 1e-12);
}

TEST(VerschilHoek, van10Naar350GradenIsMin20Graden) {
  EXPECT_NEAR(verschilInGraden(10.0, 350.0), -20.0, 1e-12);
}

TEST(VerschilHoek, isDeAnderMinZichzelf) {
  EXPECT_EQ(radialen(1.0).verschilHoek(radialen(3.0)).rad(), 2.0);
  EXPECT_EQ(radialen(3.0).verschilHoek(radialen(1.0)).rad(), -2.0);
  EXPECT_EQ(radialen(2.0).verschilHoek(radialen(2.0)).rad(), 0.0);
}

TEST(VerschilHoek, eenHalveOmwentelingBlijftZoals) {
  EXPECT_EQ(radialen(0.0).verschilHoek(radialen(Hoek::pi)).rad(), Hoek::pi);
  EXPECT_EQ(radialen(Hoek::pi).verschilHoek(radialen(0.0)).rad(), Hoek::minpi);
  // The next double beyond goes the other way round.
  EXPECT_LT(radialen(0.0).verschilHoek(radialen(0x1.921fb54442d19p+1)).rad(), 0.0);
  EXPECT_GT(radialen(0x1.921fb54442d19p+1).verschilHoek(radialen(0.0)).rad(), 0.0);
}

TEST(VerschilHoek, meerDanEenOmwentelingGaatErMaarEenAf) {
  // 13.71681469282041...
  EXPECT_EQ(radialen(0.0).verschilHoek(radialen(20.0)).rad(), 0x1.b6f0255dde974p+3);
  EXPECT_EQ(radialen(20.0).verschilHoek(radialen(0.0)).rad(), -0x1.b6f0255dde974p+3);
}

TEST(VerschilHoek, geenGetalBlijftGeenGetal) {
  EXPECT_TRUE(std::isnan(radialen(geenGetal).verschilHoek(radialen(1.0)).rad()));
}

TEST(VerschilHoek, ligtBinnenEenHalveOmwentelingEnLeidtNaarDeAnder) {
  Toeval toeval(33);
  for (int i = 0; i < 20000; ++i) {
    const Hoek a = radialen(willekeurig(toeval, 0.0, 6.28318));
    const Hoek b = radialen(willekeurig(toeval, 0.0, 6.28318));
    const Hoek d = a.verschilHoek(b);
    ASSERT_LE(d.absHoek().rad(), Hoek::pi);
    ASSERT_NEAR((a + d).sinus(), b.sinus(), 1e-14);
    ASSERT_NEAR((a + d).cosinus(), b.cosinus(), 1e-14);
    ASSERT_EQ(b.verschilHoek(a).rad(), -d.rad());
  }
}

}  // namespace
