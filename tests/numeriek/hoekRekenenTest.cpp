// The arithmetic and the comparison of angles: plain doubles, no turns. Expected values are worked
// out by hand, with numbers that doubles hold exactly.
#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <utility>

#include "numeriek/hoek.h"
#include "tests/numeriek/hoekHulp.h"

namespace {

const Hoek drie = radialen(3.0);
const Hoek vijf = radialen(5.0);
const Hoek geenHoek = radialen(geenGetal);

static_assert(std::is_same_v<decltype(std::declval<Hoek const&>() + 1.0), Hoek>);
static_assert(std::is_same_v<decltype(2.0 * std::declval<Hoek const&>()), Hoek>);

TEST(HoekRekenen, metEenGetalInRadialen) {
  EXPECT_EQ((drie + 0.5).rad(), 3.5);
  EXPECT_EQ((drie - 0.5).rad(), 2.5);
  EXPECT_EQ((drie * 4.0).rad(), 12.0);
  EXPECT_EQ((drie / 4.0).rad(), 0.75);
  // Three fifths: times a fifth it would be one bit more.
  EXPECT_EQ((drie / 5.0).rad(), 0x1.3333333333333p-1);
  EXPECT_EQ((4.0 * drie).rad(), 12.0);
  EXPECT_EQ(drie.rad(), 3.0);
}

TEST(HoekRekenen, metEenHoek) {
  EXPECT_EQ((drie + vijf).rad(), 8.0);
  EXPECT_EQ((drie - vijf).rad(), -2.0);
}

TEST(HoekRekenen, gaatNietRond) {
  EXPECT_EQ((radialen(6.0) + 6.0).rad(), 12.0);
  EXPECT_EQ((radialen(1.0) - 100.0).rad(), -99.0);
}

TEST(HoekRekenen, delenDoorNulVolgtDeDoubles) {
  EXPECT_EQ((drie / 0.0).rad(), oneindig);
  EXPECT_TRUE((radialen(0.0) / 0.0) != 0.0);
}

TEST(HoekRekenen, terPlaatseMetEenGetalGeeftHetObject) {
  Hoek h = drie;
  EXPECT_EQ(&(h += 0.5), &h);
  EXPECT_EQ(h.rad(), 3.5);
  EXPECT_EQ(&(h -= 1.0), &h);
  EXPECT_EQ(h.rad(), 2.5);
  EXPECT_EQ(&(h *= 4.0), &h);
  EXPECT_EQ(h.rad(), 10.0);
  EXPECT_EQ(&(h /= 8.0), &h);
  EXPECT_EQ(h.rad(), 1.25);
}

TEST(HoekRekenen, terPlaatseMetEenHoekGeeftHetObject) {
  Hoek h = drie;
  EXPECT_EQ(&(h += vijf), &h);
  EXPECT_EQ(h.rad(), 8.0);
  EXPECT_EQ(&(h -= drie), &h);
  EXPECT_EQ(h.rad(), 5.0);
}

TEST(HoekRekenen, terPlaatseMetZichzelf) {
  Hoek h = drie;
  h += h;
  EXPECT_EQ(h.rad(), 6.0);
  const Hoek& zelfde = h;
  h -= zelfde;
  EXPECT_EQ(h.rad(), 0.0);
}

TEST(HoekRekenen, toekennenVanEenHoekOfVanRadialen) {
  Hoek h = drie;
  EXPECT_EQ(&(h = vijf), &h);
  EXPECT_EQ(h.rad(), 5.0);
  EXPECT_EQ(&(h = 7.25), &h);
  EXPECT_EQ(h.rad(), 7.25);
}

// The six answers of x beside y, in the order ==, !=, <, >, <=, >=.
template <typename Ander>
std::string antwoorden(Hoek const& x, Ander const& y) {
  std::string gegeven;
  for (const bool antwoord : {x == y, x != y, x<y, x> y, x <= y, x >= y}) {
    gegeven += antwoord ? 'j' : 'n';
  }
  return gegeven;
}

TEST(HoekRekenen, vergelijkenMetEenHoek) {
  EXPECT_EQ(antwoorden(drie, vijf), "njjnjn");
  EXPECT_EQ(antwoorden(vijf, drie), "njnjnj");
  EXPECT_EQ(antwoorden(drie, radialen(3.0)), "jnnnjj");
}

TEST(HoekRekenen, vergelijkenMetEenGetal) {
  EXPECT_EQ(antwoorden(drie, 5.0), "njjnjn");
  EXPECT_EQ(antwoorden(drie, 1.0), "njnjnj");
  EXPECT_EQ(antwoorden(drie, 3.0), "jnnnjj");
}

TEST(HoekRekenen, geenGetalIsOngelijkAanAllesOokAanZichzelf) {
  EXPECT_EQ(antwoorden(geenHoek, drie), "njnnnn");
  EXPECT_EQ(antwoorden(drie, geenHoek), "njnnnn");
  EXPECT_EQ(antwoorden(geenHoek, geenHoek), "njnnnn");
  EXPECT_EQ(antwoorden(geenHoek, 3.0), "njnnnn");
  EXPECT_EQ(antwoorden(drie, geenGetal), "njnnnn");
}

TEST(HoekRekenen, vergelijktPreciesEnZonderOmwentelingen) {
  EXPECT_EQ(antwoorden(radialen(0.0), radialen(Hoek::tweepi)), "njjnjn");
  EXPECT_EQ(antwoorden(radialen(1.0), 0x1.0000000000001p0), "njjnjn");
  EXPECT_EQ(antwoorden(radialen(-0.0), 0.0), "jnnnjj");
}

}  // namespace
