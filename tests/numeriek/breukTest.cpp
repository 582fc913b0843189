// Fractions: construction, reading, comparison and normalising. Expected values were worked out by
// hand, the larger ones with whole numbers of unlimited size.
#include "numeriek/breuk.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "tests/numeriek/breukHulp.h"
#include "tests/numeriek/doubles.h"

namespace {

static_assert(std::is_trivially_copyable_v<Breuk> && !std::is_polymorphic_v<Breuk>);
static_assert(std::is_same_v<std::underlying_type_t<BreukRelAantalRelevanteNummers>, unsigned int>);

Paar uitDouble(double x, unsigned int k) {
  return paar(Breuk(x, relatief(k)));
}

TEST(BreukMaken, bewaartBeideGetallenOngewijzigd) {
  EXPECT_EQ(paar(Breuk(0, 1)), Paar(0, 1));
  EXPECT_EQ(paar(Breuk(-4, -2)), Paar(-4, -2));
  EXPECT_EQ(paar(Breuk(5, 0)), Paar(5, 0));
  EXPECT_EQ(paar(Breuk(laagste, hoogste)), Paar(laagste, hoogste));
}

TEST(BreukMaken, nulWerkersZijnDeMachtenVanTien) {
  const std::array<std::int32_t, 8> machten{1, 10, 100, 1000, 10000, 100000, 1000000, 10000000};
  EXPECT_EQ(Breuk::nulWerkers, machten);
}

TEST(BreukMaken, deNamenVanDeSchalenTellenVanNulTotAcht) {
  using Schaal = BreukRelAantalRelevanteNummers;
  EXPECT_EQ(Schaal::geheel, relatief(0));
  EXPECT_EQ(Schaal::schaal1, relatief(1));
  EXPECT_EQ(Schaal::schaal10, relatief(2));
  EXPECT_EQ(Schaal::schaal100, relatief(3));
  EXPECT_EQ(Schaal::schaal1000, relatief(4));
  EXPECT_EQ(Schaal::schaal10000, relatief(5));
  EXPECT_EQ(Schaal::schaal100000, relatief(6));
  EXPECT_EQ(Schaal::schaal1000000, relatief(7));
  EXPECT_EQ(Schaal::schaal10000000, relatief(8));
}

TEST(BreukUitDouble, zonderSchaalBlijftHetGeheleDeelNaarBenedenAfgerond) {
  EXPECT_EQ(uitDouble(2.9, 0), Paar(2, 1));
  EXPECT_EQ(uitDouble(-2.1, 0), Paar(-3, 1));
  EXPECT_EQ(uitDouble(44100.0, 0), Paar(44100, 1));
}

TEST(BreukUitDouble, schaalEenKentGeenDelen) {
  EXPECT_EQ(uitDouble(0.5, 1), Paar(0, 1));
  EXPECT_EQ(uitDouble(7.999, 1), Paar(7, 1));
}

TEST(BreukUitDouble, zonderDeelBlijftDeNoemerDeVolleSchaal) {
  EXPECT_EQ(uitDouble(8000.0, 2), Paar(80000, 10));
  EXPECT_EQ(uitDouble(0.0, 3), Paar(0, 100));
  EXPECT_EQ(uitDouble(0.05, 2), Paar(0, 10));
  EXPECT_EQ(uitDouble(1.0, 8), Paar(10000000, 10000000));
}

TEST(BreukUitDouble, eenDeelDatDeSchaalDeeltIsJuist) {
  EXPECT_EQ(uitDouble(2.5, 2), Paar(5, 2));
  EXPECT_EQ(uitDouble(-1.5, 2), Paar(-3, 2));
  EXPECT_EQ(uitDouble(0.25, 3), Paar(1, 4));
  EXPECT_EQ(uitDouble(44100.5, 8), Paar(88201, 2));
}

TEST(BreukUitDouble, eenzijdigVerkleinenMagDeWaardeVeranderen) {
  EXPECT_EQ(uitDouble(0.8, 2), Paar(1, 1));     // 8/10, 4/5, 2/2, 1/1
  EXPECT_EQ(uitDouble(0.4, 2), Paar(1, 2));     // 4/10, 2/5, 1/2
  EXPECT_EQ(uitDouble(0.66, 3), Paar(11, 16));  // 66/100, 33/50, 11/16
  EXPECT_EQ(uitDouble(1.75, 3), Paar(2, 1));    // 75/100, 25/33, 5/6, 1/1
  EXPECT_EQ(uitDouble(0.7, 2), Paar(1, 1));     // 7/10, 1/1
  EXPECT_EQ(uitDouble(0.021, 4), Paar(1, 47));  // 21/1000, 7/333, 1/47
  EXPECT_EQ(uitDouble(-0.125, 4), Paar(0, 1));  // -1 and 875/1000, 175/200, 35/40, 7/8, 1/1
}

TEST(BreukUitDouble, hetResultaatWordtNietGenormaliseerd) {
  EXPECT_EQ(uitDouble(0.33, 3), Paar(11, 33));
}

TEST(BreukUitDouble, netOnderNulRondtHetDeelOpTotDeVolleSchaal) {
  // -1 plus a part that the subtraction rounds to 1: the whole scale is divided out of itself.
  EXPECT_EQ(uitDouble(-1e-20, 2), Paar(0, 1));
  EXPECT_EQ(uitDouble(-1e-20, 8), Paar(0, 1));
}

TEST(BreukUitDouble, bovenAchtGeldtDeDiepsteSchaal) {
  EXPECT_EQ(uitDouble(3.0, 8), Paar(30000000, 10000000));
  EXPECT_EQ(uitDouble(3.0, 9), Paar(30000000, 10000000));
  EXPECT_EQ(uitDouble(3.0, std::numeric_limits<unsigned int>::max()), Paar(30000000, 10000000));
}

TEST(BreukUitDouble, buitenHetBereikWordtHetUiterste) {
  for (const unsigned int k : {0U, 1U, 2U, 8U, 9U}) {
    EXPECT_EQ(uitDouble(1e30, k), Paar(hoogste, 1));
    EXPECT_EQ(uitDouble(-1e30, k), Paar(laagste, 1));
    EXPECT_EQ(uitDouble(oneindig, k), Paar(hoogste, 1));
    EXPECT_EQ(uitDouble(-oneindig, k), Paar(laagste, 1));
    EXPECT_EQ(uitDouble(geenGetal, k), Paar(0, 1));
  }
}

TEST(BreukUitDouble, deGrensVanHetBereikLigtBijTweeTotDeDrieenzestigste) {
  EXPECT_EQ(uitDouble(0x1p63, 0), Paar(hoogste, 1));
  EXPECT_EQ(uitDouble(0x1.fffffffffffffp62, 0), Paar(hoogste - 1023, 1));
  EXPECT_EQ(uitDouble(-0x1p63, 0), Paar(laagste, 1));
  EXPECT_EQ(uitDouble(-0x1p63, 2), Paar(0, 10));  // -10 * 2^63 is a multiple of 2^64
}

TEST(BreukUitDouble, eenTeGrootProductMetDeSchaalLooptOm) {
  EXPECT_EQ(uitDouble(8e18, 2), Paar(6213023705161793536, 10));  // 8e19 - 4 * 2^64
}

TEST(BreukLezen, omgekeerdWisseltDeVelden) {
  EXPECT_EQ(paar(Breuk(2, 4).omgekeerd()), Paar(4, 2));
  EXPECT_EQ(paar(Breuk(0, 1).omgekeerd()), Paar(1, 0));
}

TEST(BreukLezen, rondAfKaptNaarNulAf) {
  EXPECT_EQ(Breuk(7, 2).rondAf(false), 3);
  EXPECT_EQ(Breuk(-7, 2).rondAf(false), -3);
  EXPECT_EQ(Breuk(7, -2).rondAf(false), -3);
  EXPECT_EQ(Breuk(2, 7).rondAf(false), 0);
  EXPECT_EQ(Breuk(2, 7).rondAf(true), 3);
}

TEST(BreukLezen, rondAfDoorNulGeeftNul) {
  EXPECT_EQ(Breuk(7, 0).rondAf(false), 0);
  EXPECT_EQ(Breuk(0, 7).rondAf(true), 0);
}

TEST(BreukLezen, rondAfVanHetLaagsteDoorMinEenLooptOm) {
  EXPECT_EQ(Breuk(laagste, -1).rondAf(false), laagste);
  EXPECT_EQ(Breuk(-1, laagste).rondAf(true), laagste);
  EXPECT_EQ(Breuk(hoogste, -1).rondAf(false), -hoogste);
}

TEST(BreukLezen, vermenigvuldigKaptNaarNulAf) {
  EXPECT_EQ(Breuk(1, 3).vermenigvuldig(9), 3);
  EXPECT_EQ(Breuk(1, 3).vermenigvuldig(10), 3);
  EXPECT_EQ(Breuk(1, 3).vermenigvuldig(-11), -3);
}

TEST(BreukLezen, vermenigvuldigNeemtEerstHetProduct) {
  EXPECT_EQ(Breuk(2, 3).vermenigvuldig(2), 1);
  EXPECT_EQ(Breuk(hoogste, 2).vermenigvuldig(2), -1);        // the product wraps to -2
  EXPECT_EQ(Breuk(laagste, -1).vermenigvuldig(1), laagste);  // and so does the quotient
}

TEST(BreukLezen, vermenigvuldigMetNoemerNulGeeftNul) {
  EXPECT_EQ(Breuk(5, 0).vermenigvuldig(3), 0);
}

TEST(BreukLezen, alsFloatRekentInEnkelePrecisie) {
  EXPECT_EQ(Breuk(1, 3).alsFloat(false), 0x1.555556p-2);
  EXPECT_EQ(Breuk(3, 1).alsFloat(true), 0x1.555556p-2);
  EXPECT_EQ(Breuk(-7, 2).alsFloat(false), -3.5);
}

TEST(BreukLezen, alsFloatRondtOokElkVeldAf) {
  // The fields round to 2^24 and 2^24 + 4 before they are divided.
  EXPECT_EQ(Breuk(16777217, 1).alsFloat(false), 16777216.0);
  EXPECT_EQ(Breuk(16777219, 1).alsFloat(false), 16777220.0);
  EXPECT_EQ(Breuk(16777217, 16777216).alsFloat(true), 1.0);
}

TEST(BreukLezen, alsFloatDoorNulGeeftOneindigOfGeenGetal) {
  EXPECT_EQ(Breuk(1, 0).alsFloat(false), oneindig);
  EXPECT_EQ(Breuk(-1, 0).alsFloat(false), -oneindig);
  EXPECT_EQ(Breuk(0, 2).alsFloat(true), oneindig);
  EXPECT_TRUE(std::isnan(Breuk(0, 0).alsFloat(false)));
}

TEST(BreukVergelijken, gaatOverDeWaardeEnNietOverDeVelden) {
  EXPECT_TRUE(Breuk(1, 2) == Breuk(2, 4));
  EXPECT_FALSE(Breuk(1, 2) != Breuk(2, 4));
  EXPECT_TRUE(Breuk(-1, 2) == Breuk(1, -2));
  EXPECT_FALSE(Breuk(1, 2) == Breuk(2, 3));
  EXPECT_TRUE(Breuk(1, 2) != Breuk(2, 3));
}

TEST(BreukVergelijken, eenObjectIsGelijkAanZichzelf) {
  const Breuk nul(0, 0);
  const Breuk& zelfde = nul;
  EXPECT_TRUE(nul == zelfde);
  EXPECT_FALSE(nul != zelfde);
}

TEST(BreukVergelijken, nulDoorNulIsGelijkAanAlles) {
  EXPECT_TRUE(Breuk(0, 0) == Breuk(3, 4));
}

TEST(BreukVergelijken, kruisproductenLopenOm) {
  EXPECT_TRUE(Breuk(1LL << 62, 1) == Breuk(0, 4));  // 2^62 * 4 wraps to 0
  EXPECT_TRUE(Breuk(0, 1LL << 62) == 4LL);
  EXPECT_FALSE(Breuk(0, 1LL << 62) != 4LL);
}

TEST(BreukVergelijken, metEenGeheelGetal) {
  EXPECT_FALSE(Breuk(6, 4) == 1);
  EXPECT_TRUE(Breuk(6, 4) != 1);
  EXPECT_TRUE(Breuk(6, 3) == 2);
  EXPECT_FALSE(Breuk(6, 3) != 2);
  EXPECT_TRUE(Breuk(-6, 3) == -2);
}

TEST(BreukNormaliseren, neemtTweeDrieVijfEnZevenWeg) {
  EXPECT_EQ(paar(Breuk(8, 12).normaliseer()), Paar(2, 3));
  EXPECT_EQ(paar(Breuk(9, 27).normaliseer()), Paar(1, 3));
  EXPECT_EQ(paar(Breuk(25, 125).normaliseer()), Paar(1, 5));
  EXPECT_EQ(paar(Breuk(49, 343).normaliseer()), Paar(1, 7));
  EXPECT_EQ(paar(Breuk(420, 210).normaliseer()), Paar(2, 1));
}

TEST(BreukNormaliseren, laatAnderePriemfactorenStaan) {
  EXPECT_EQ(paar(Breuk(22, 33).normaliseer()), Paar(22, 33));
  EXPECT_EQ(paar(Breuk(11, 22).normaliseer()), Paar(11, 22));
  EXPECT_EQ(paar(Breuk(143, 169).normaliseer()), Paar(143, 169));
  EXPECT_EQ(paar(Breuk(66, 132).normaliseer()), Paar(11, 22));
}

TEST(BreukNormaliseren, verplaatstGeenTekens) {
  EXPECT_EQ(paar(Breuk(-4, -2).normaliseer()), Paar(-2, -1));
  EXPECT_EQ(paar(Breuk(-6, 9).normaliseer()), Paar(-2, 3));
  EXPECT_EQ(paar(Breuk(6, -9).normaliseer()), Paar(2, -3));
}

TEST(BreukNormaliseren, nulIsDoorAllesDeelbaar) {
  EXPECT_EQ(paar(Breuk(0, 8).normaliseer()), Paar(0, 1));
  EXPECT_EQ(paar(Breuk(0, 6).normaliseer()), Paar(0, 1));
  EXPECT_EQ(paar(Breuk(0, 22).normaliseer()), Paar(0, 11));
  EXPECT_EQ(paar(Breuk(12, 0).normaliseer()), Paar(1, 0));
  EXPECT_EQ(paar(Breuk(0, laagste).normaliseer()), Paar(0, -1));
  EXPECT_EQ(paar(Breuk(laagste, laagste).normaliseer()), Paar(-1, -1));
}

TEST(BreukNormaliseren, nulDoorNulBlijftStaanEnHangtNiet) {
  Breuk nul(0, 0);
  EXPECT_EQ(paar(nul.normaliseer()), Paar(0, 0));
  EXPECT_EQ(paar(nul.normaliseerZelf()), Paar(0, 0));
}

TEST(BreukNormaliseren, zelfVerandertHetObjectEnGeeftHetTerug) {
  Breuk b(10, 4);
  EXPECT_EQ(paar(b.normaliseer()), Paar(5, 2));
  EXPECT_EQ(paar(b), Paar(10, 4));
  EXPECT_EQ(&b.normaliseerZelf(), &b);
  EXPECT_EQ(paar(b), Paar(5, 2));
}

}  // namespace
