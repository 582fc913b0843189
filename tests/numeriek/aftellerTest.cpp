// The countdown, event by event. Expected answers are counted out by hand.
#include "numeriek/afteller.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <limits>
#include <type_traits>
#include <vector>

#include "tests/numeriek/toeval.h"

namespace {

static_assert(!std::is_polymorphic_v<Afteller>);

constexpr auto hoogste = std::numeric_limits<unsigned long long>::max();

// What the next `aantal` events give.
std::vector<bool> antwoorden(Afteller& afteller, int aantal) {
  std::vector<bool> gegeven(static_cast<std::size_t>(aantal));
  std::generate(gegeven.begin(), gegeven.end(), [&afteller] { return afteller.telAf(); });
  return gegeven;
}

using Antwoorden = std::vector<bool>;

TEST(Afteller, begintBijDeGrens) {
  const Afteller afteller(7, true, 2);
  EXPECT_EQ(afteller.geefTeller(), 7U);
  EXPECT_EQ(afteller.geefGrens(), 7U);
  EXPECT_EQ(afteller.geefOndergrens(), 2U);
  EXPECT_FALSE(afteller.isAfgelopen());
}

TEST(Afteller, begintBijDeOndergrensAlsDieHogerIs) {
  const Afteller afteller(2, false, 7);
  EXPECT_EQ(afteller.geefTeller(), 7U);
  EXPECT_EQ(afteller.geefGrens(), 2U);
}

TEST(Afteller, drieHerhaaldGeeftNeeNeeJaEnDanHetzelfde) {
  Afteller afteller(3, false, 0);
  EXPECT_EQ(antwoorden(afteller, 7), (Antwoorden{false, false, true, false, false, true, false}));
  EXPECT_FALSE(afteller.isAfgelopen());
}

TEST(Afteller, tweeEenmaligGeeftNeeJaEnDanNooitMeer) {
  Afteller afteller(2, true, 0);
  EXPECT_FALSE(afteller.telAf());
  EXPECT_EQ(afteller.geefTeller(), 1U);
  EXPECT_FALSE(afteller.isAfgelopen());
  EXPECT_TRUE(afteller.telAf());
  EXPECT_EQ(afteller.geefTeller(), 1U);
  EXPECT_TRUE(afteller.isAfgelopen());
  for (int i = 0; i < 100; ++i) {
    ASSERT_FALSE(afteller.telAf());
    ASSERT_EQ(afteller.geefTeller(), 1U);
  }
}

TEST(Afteller, teltTotDeOndergrens) {
  Afteller afteller(5, false, 2);
  EXPECT_EQ(antwoorden(afteller, 6), (Antwoorden{false, false, true, false, false, true}));
  EXPECT_EQ(afteller.geefTeller(), 5U);
}

TEST(Afteller, grensEenGeeftAltijdJa) {
  Afteller afteller(1, false, 0);
  EXPECT_EQ(antwoorden(afteller, 3), (Antwoorden{true, true, true}));
}

TEST(Afteller, nulGaatOnderNulDoorRond) {
  Afteller afteller(0, false, 0);
  EXPECT_FALSE(afteller.telAf());
  EXPECT_EQ(afteller.geefTeller(), hoogste);
}

TEST(Afteller, opDeOndergrensBegonnenGaatHetDeLangeWeg) {
  Afteller afteller(2, false, 2);
  EXPECT_EQ(antwoorden(afteller, 3), (Antwoorden{false, false, false}));
  EXPECT_EQ(afteller.geefTeller(), hoogste);
}

TEST(Afteller, tellerNulMetOndergrensGaatDeLangeWeg) {
  Afteller afteller(5, true, 1);
  EXPECT_EQ(antwoorden(afteller, 4), (Antwoorden{false, false, false, true}));
  EXPECT_EQ(afteller.geefTeller(), 1U);
  // From 1 the bound of 1 is passed, and 0 wraps.
  EXPECT_FALSE(afteller.telAf());
  EXPECT_EQ(afteller.geefTeller(), 0U);
  EXPECT_FALSE(afteller.telAf());
  EXPECT_EQ(afteller.geefTeller(), hoogste);
}

TEST(Afteller, naHetRondgaanVuurtHetOpDeOndergrens) {
  // A bound at the top is one step away from 0, the other way round.
  Afteller afteller(0, false, hoogste);
  afteller.reset(hoogste);
  EXPECT_EQ(afteller.geefTeller(), 0U);
  EXPECT_TRUE(afteller.telAf());
  // The greater of the limit and the running count.
  EXPECT_EQ(afteller.geefTeller(), hoogste);
  EXPECT_FALSE(afteller.telAf());
}

TEST(Afteller, eenmaligZwijgtOokAlsHetRondgaandDeOndergrensWeerHaalt) {
  Afteller afteller(0, true, hoogste);
  afteller.reset(hoogste);
  EXPECT_TRUE(afteller.telAf());
  EXPECT_EQ(afteller.geefTeller(), 1U);
  EXPECT_EQ(antwoorden(afteller, 4), (Antwoorden{false, false, false, false}));
  EXPECT_EQ(afteller.geefTeller(), 1U);
}

TEST(Afteller, grensNulHoudtDeTellerOpNul) {
  Afteller afteller(2, false, 0);
  afteller.zetGrens(0);
  EXPECT_EQ(antwoorden(afteller, 2), (Antwoorden{false, true}));
  EXPECT_EQ(afteller.geefTeller(), 0U);
  EXPECT_FALSE(afteller.telAf());
  EXPECT_EQ(afteller.geefTeller(), hoogste);
}

TEST(Afteller, resetBegintOpnieuwBijDeGrens) {
  Afteller afteller(5, false, 2);
  static_cast<void>(afteller.telAf());
  afteller.reset();
  EXPECT_EQ(afteller.geefTeller(), 5U);
}

TEST(Afteller, resetBegintBijDeOndergrensAlsDieHogerIs) {
  Afteller afteller(2, false, 7);
  static_cast<void>(afteller.telAf());
  afteller.reset();
  EXPECT_EQ(afteller.geefTeller(), 7U);
}

TEST(Afteller, naResetVuurtEenEenmaligeNietOpnieuw) {
  Afteller afteller(2, true, 0);
  EXPECT_EQ(antwoorden(afteller, 2), (Antwoorden{false, true}));
  afteller.reset();
  EXPECT_TRUE(afteller.isAfgelopen());
  EXPECT_EQ(afteller.geefTeller(), 2U);
  EXPECT_EQ(antwoorden(afteller, 3), (Antwoorden{false, false, false}));
  EXPECT_EQ(afteller.geefTeller(), 1U);
}

TEST(Afteller, ookEenWaardeOfEenNieuweGrensLaatEenEenmaligeNietOpnieuwVuren) {
  Afteller afteller(2, true, 0);
  EXPECT_EQ(antwoorden(afteller, 2), (Antwoorden{false, true}));
  afteller.reset(2);
  EXPECT_TRUE(afteller.isAfgelopen());
  EXPECT_EQ(antwoorden(afteller, 3), (Antwoorden{false, false, false}));
  afteller.zetGrens(3);
  EXPECT_TRUE(afteller.isAfgelopen());
  EXPECT_EQ(antwoorden(afteller, 3), (Antwoorden{false, false, false}));
}

TEST(Afteller, resetVoorHetVuurtLaatEenEenmaligeEenKeerVuren) {
  Afteller afteller(2, true, 0);
  static_cast<void>(afteller.telAf());
  afteller.reset();
  EXPECT_EQ(antwoorden(afteller, 3), (Antwoorden{false, true, false}));
}

TEST(Afteller, resetOpEenWaardeWordtBegrensd) {
  Afteller afteller(8, false, 3);
  afteller.reset(2);
  EXPECT_EQ(afteller.geefTeller(), 3U);
  afteller.reset(3);
  EXPECT_EQ(afteller.geefTeller(), 3U);
  afteller.reset(5);
  EXPECT_EQ(afteller.geefTeller(), 5U);
  afteller.reset(8);
  EXPECT_EQ(afteller.geefTeller(), 8U);
  afteller.reset(9);
  EXPECT_EQ(afteller.geefTeller(), 8U);
  EXPECT_EQ(afteller.geefGrens(), 8U);
}

TEST(Afteller, resetOpEenWaardeMetVerwisseldeGrenzen) {
  Afteller afteller(3, false, 8);
  afteller.reset(5);
  EXPECT_EQ(afteller.geefTeller(), 8U);
  afteller.reset(9);
  EXPECT_EQ(afteller.geefTeller(), 3U);
}

TEST(Afteller, zetGrensMaaktDeOndergrensNulEnLaatDeTeller) {
  Afteller afteller(5, false, 2);
  static_cast<void>(afteller.telAf());
  afteller.zetGrens(2);
  EXPECT_EQ(afteller.geefGrens(), 2U);
  EXPECT_EQ(afteller.geefOndergrens(), 0U);
  EXPECT_EQ(afteller.geefTeller(), 4U);
  EXPECT_EQ(antwoorden(afteller, 6), (Antwoorden{false, false, false, true, false, true}));
}

// The period is the distance of the bounds: true on the last event of each, or of the first alone.
TEST(Afteller, deAfstandTussenDeGrenzenIsDePeriode) {
  Toeval toeval(22);
  for (int i = 0; i < 1000; ++i) {
    const auto onder = static_cast<unsigned long long>(toeval.tussen(0, 1000000));
    const int periode = static_cast<int>(toeval.tussen(1, 40));
    const bool eenmalig = toeval.tussen(0, 1) == 1;
    Afteller afteller(onder + static_cast<unsigned long long>(periode), eenmalig, onder);
    for (int stap = 1; stap <= 4 * periode; ++stap) {
      ASSERT_EQ(afteller.telAf(), eenmalig ? stap == periode : stap % periode == 0)
          << onder << ' ' << periode << ' ' << eenmalig << ' ' << stap;
    }
    ASSERT_EQ(afteller.isAfgelopen(), eenmalig);
  }
}

}  // namespace
