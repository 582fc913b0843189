// Complex numbers. Expected values are worked out by hand, with bc -l (2*c(1), a(4/3),
// 20*l(5)/l(10), ...) or, over random values, by the standard library's own complex numbers.
#include "numeriek/complex.h"

#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <type_traits>
#include <utility>

#include "tests/numeriek/hoekHulp.h"

namespace {

static_assert(!std::is_polymorphic_v<Complex>);
static_assert(sizeof(Complex) == 2 * sizeof(double));

template <typename Links, typename = void>
struct Telbaar : std::false_type {};
template <typename Links>
struct Telbaar<Links, std::void_t<decltype(std::declval<Links>() + std::declval<Complex>()),
                                  decltype(std::declval<Links>() - std::declval<Complex>())>>
    : std::true_type {};

// Neither is const: that is their type.
static_assert(std::is_same_v<decltype(&Complex::operator+), Complex (Complex::*)(Complex const&)>);
static_assert(std::is_same_v<decltype(&Complex::operator-), Complex (Complex::*)(Complex const&)>);
static_assert(Telbaar<Complex&>::value && !Telbaar<Complex const&>::value);

using Delen = std::pair<double, double>;

Delen delen(Complex const& c) {
  return {c.geefRe(), c.geefIm()};
}

TEST(Complex, uitTweeDelen) {
  EXPECT_EQ(delen(Complex(3.5, -4.25)), Delen(3.5, -4.25));
}

TEST(Complex, uitGrootteEnRichting) {
  const Complex c(2.0, radialen(1.0));
  EXPECT_EQ(c.geefRe(), 2.0 * std::cos(1.0));
  EXPECT_EQ(c.geefIm(), 2.0 * std::sin(1.0));
  EXPECT_DOUBLE_EQ(c.geefRe(), 1.080604611736279434802);
  EXPECT_DOUBLE_EQ(c.geefIm(), 1.682941969615793013305);
  EXPECT_EQ(delen(Complex(5.0, radialen(0.0))), Delen(5.0, 0.0));
}

TEST(Complex, negatieveGrootteWijstDeAndereKantOp) {
  EXPECT_EQ(delen(Complex(-5.0, radialen(0.0))), Delen(-5.0, 0.0));
}

TEST(Complex, somEnVerschilZijnPerDeelEnNieuw) {
  Complex a(1.0, 2.0);
  const Complex b(10.0, -20.5);
  EXPECT_EQ(delen(a + b), Delen(11.0, -18.5));
  EXPECT_EQ(delen(a - b), Delen(-9.0, 22.5));
  EXPECT_EQ(delen(a), Delen(1.0, 2.0));
}

TEST(Complex, terPlaatseGeeftHetObject) {
  Complex a(1.0, 2.0);
  EXPECT_EQ(&(a += Complex(10.0, -20.5)), &a);
  EXPECT_EQ(delen(a), Delen(11.0, -18.5));
  EXPECT_EQ(&(a -= Complex(1.0, 1.0)), &a);
  EXPECT_EQ(delen(a), Delen(10.0, -19.5));
}

TEST(Complex, terPlaatseMetZichzelf) {
  Complex a(1.0, 2.0);
  a += a;
  EXPECT_EQ(delen(a), Delen(2.0, 4.0));
  const Complex& zelfde = a;
  a -= zelfde;
  EXPECT_EQ(delen(a), Delen(0.0, 0.0));
}

TEST(Complex, argIsDeRichtingInRadialen) {
  EXPECT_DOUBLE_EQ(Complex(3.0, 4.0).Arg(), 0.92729521800161223243);
  EXPECT_DOUBLE_EQ(Complex(-1.0, 2.0).Arg(), 2.03444393579570273545);
  EXPECT_EQ(Complex(-1.0, 0.0).Arg(), Hoek::pi);
  EXPECT_EQ(Complex(-1.0, -0.0).Arg(), Hoek::minpi);
  EXPECT_EQ(Complex(-0.0, 0.0).Arg(), Hoek::pi);
  EXPECT_EQ(Complex(0.0, -1.0).Arg(), -Hoek::halfpi);
  EXPECT_EQ(Complex(0.0, 0.0).Arg(), 0.0);
}

TEST(Complex, magIsDeWortelUitDeKwadraten) {
  EXPECT_EQ(Complex(3.0, 4.0).Mag(), 5.0);
  EXPECT_EQ(Complex(-3.0, -4.0).Mag(), 5.0);
  EXPECT_DOUBLE_EQ(Complex(1.0, -1.0).Mag(), 1.414213562373095048802);
  // Each square rounded by itself.
  EXPECT_EQ(Complex(0.2, 0.5).Mag(), 0x1.13b86ea20ae5dp-1);
  EXPECT_EQ(Complex(0.0, 0.0).Mag(), 0.0);
}

TEST(Complex, magVanHeelGroteEnHeelKleineDelen) {
  EXPECT_EQ(Complex(1e200, 1.0).Mag(), oneindig);
  EXPECT_EQ(Complex(1e-200, 0.0).Mag(), 0.0);
  EXPECT_EQ(Complex(-oneindig, 0.0).Mag(), oneindig);
}

TEST(Complex, magdBVanNulIsDeVloer) {
  EXPECT_EQ(Complex(0.0, 0.0).MagdB(-120.0), -120.0);
}

TEST(Complex, magdBVanEenIsNul) {
  EXPECT_EQ(Complex(1.0, 0.0).MagdB(-120.0), 0.0);
}

TEST(Complex, magdBIsTwintigMaalDeLogaritmeOfDeVloer) {
  EXPECT_EQ(Complex(0.0, -10.0).MagdB(-120.0), 20.0);
  EXPECT_DOUBLE_EQ(Complex(3.0, 4.0).MagdB(-120.0), 13.979400086720376096);
  EXPECT_DOUBLE_EQ(Complex(0.5, 0.0).MagdB(-120.0), -6.020599913279623904);
  EXPECT_EQ(Complex(0.5, 0.0).MagdB(-6.0), -6.0);
  EXPECT_EQ(Complex(10.0, 0.0).MagdB(30.0), 30.0);
  EXPECT_EQ(Complex(geenGetal, 0.0).MagdB(-120.0), -120.0);
  EXPECT_TRUE(std::isnan(Complex(1.0, 0.0).MagdB(geenGetal)));
  EXPECT_EQ(Complex(oneindig, 0.0).MagdB(-120.0), oneindig);
  EXPECT_EQ(Complex(0.0, 0.0).MagdB(-oneindig), -oneindig);
}

TEST(Complex, volgtDeComplexeGetallenVanDeBibliotheek) {
  Toeval toeval(36);
  for (int i = 0; i < 10000; ++i) {
    const std::complex<double> x(willekeurig(toeval, -9.0, 9.0), willekeurig(toeval, -9.0, 9.0));
    const std::complex<double> y(willekeurig(toeval, -9.0, 9.0), willekeurig(toeval, -9.0, 9.0));
    Complex a(x.real(), x.imag());
    const Complex b(y.real(), y.imag());
    ASSERT_EQ(delen(a + b), Delen((x + y).real(), (x + y).imag()));
    ASSERT_EQ(delen(a - b), Delen((x - y).real(), (x - y).imag()));
    ASSERT_DOUBLE_EQ(a.Mag(), std::abs(x));
    ASSERT_EQ(a.Arg(), std::arg(x));
    ASSERT_NEAR(a.MagdB(-400.0), 10.0 * std::log10(std::norm(x)), 1e-12);
    ASSERT_EQ(a.MagdB(-400.0), 20.0 * std::log10(a.Mag()));
  }
}

TEST(Complex, grootteEnRichtingLeidenTerug) {
  Toeval toeval(37);
  for (int i = 0; i < 10000; ++i) {
    const double grootte = willekeurig(toeval, 0.001, 1000.0);
    const double richting = willekeurig(toeval, -3.14, 3.14);
    const Complex c(grootte, radialen(richting));
    ASSERT_EQ(delen(c), Delen(grootte * std::cos(richting), grootte * std::sin(richting)));
    ASSERT_DOUBLE_EQ(c.Mag(), grootte);
    ASSERT_NEAR(c.Arg(), richting, 1e-15);
  }
}

}  // namespace
