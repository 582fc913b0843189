// The switch with a lock: each operation, locked and unlocked. Expected places are written out by
// hand.
#include "numeriek/standSchakelaar.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <type_traits>
#include <utility>

namespace {

constexpr auto Uit = Schakelaar::Uit;
constexpr auto Aan = Schakelaar::Aan;
constexpr auto Om = Schakelaar::Om;
constexpr auto onbekend = static_cast<Schakelaar>(3);
constexpr auto hoogste = static_cast<Schakelaar>(std::numeric_limits<std::uint32_t>::max());

static_assert(sizeof(Schakelaar) == 4);
static_assert(static_cast<int>(Uit) == 0 && static_cast<int>(Aan) == 1 &&
              static_cast<int>(Om) == 2);
static_assert(!std::is_polymorphic_v<StandSchakelaar>);

// A number has to say by its type which constructor it means.
static_assert(!std::is_constructible_v<StandSchakelaar, int>);
static_assert(!std::is_constructible_v<StandSchakelaar, unsigned int>);
static_assert(!std::is_convertible_v<bool, StandSchakelaar>);
static_assert(!std::is_convertible_v<unsigned long long, StandSchakelaar>);
static_assert(!std::is_convertible_v<Schakelaar, StandSchakelaar>);

// A switch assigned to a switch answers; everything else assigned returns the object.
static_assert(
    std::is_same_v<
        decltype(std::declval<StandSchakelaar const&>() = std::declval<StandSchakelaar&>()), bool>);
static_assert(
    std::is_same_v<decltype(std::declval<StandSchakelaar&>() = Schakelaar::Aan), StandSchakelaar&>);
static_assert(std::is_same_v<decltype(std::declval<StandSchakelaar&>() = 1U), StandSchakelaar&>);

StandSchakelaar geblokkeerd(Schakelaar stand) {
  StandSchakelaar schakelaar(stand);
  schakelaar.blokkeer(true);
  return schakelaar;
}

TEST(StandSchakelaar, uitEenStandIsHetUitOfAan) {
  EXPECT_EQ(StandSchakelaar(Uit).geefStand(), Uit);
  EXPECT_EQ(StandSchakelaar(Aan).geefStand(), Aan);
  EXPECT_EQ(StandSchakelaar(Om).geefStand(), Uit);
  EXPECT_EQ(StandSchakelaar(onbekend).geefStand(), Uit);
  EXPECT_EQ(StandSchakelaar(hoogste).geefStand(), Uit);
}

TEST(StandSchakelaar, uitEenGetalIsHetOmgekeerde) {
  EXPECT_EQ(StandSchakelaar(0ULL).geefStand(), Aan);
  EXPECT_EQ(StandSchakelaar(1ULL).geefStand(), Uit);
  EXPECT_EQ(StandSchakelaar(2ULL).geefStand(), Uit);
  // Nothing is cut off: its low 32 bits are 0.
  EXPECT_EQ(StandSchakelaar(1ULL << 32U).geefStand(), Uit);
}

TEST(StandSchakelaar, uitEenBoolIsWaarAan) {
  EXPECT_EQ(StandSchakelaar(true).geefStand(), Aan);
  EXPECT_EQ(StandSchakelaar(false).geefStand(), Uit);
}

TEST(StandSchakelaar, elkeConstructorLaatHetVrij) {
  StandSchakelaar uitStand(Uit);
  uitStand.om();
  EXPECT_EQ(uitStand.geefStand(), Aan);
  StandSchakelaar uitGetal(1ULL);
  uitGetal.om();
  EXPECT_EQ(uitGetal.geefStand(), Aan);
  StandSchakelaar uitBool(false);
  uitBool.om();
  EXPECT_EQ(uitBool.geefStand(), Aan);
}

TEST(StandSchakelaar, toegekendGetalIsAanAlsHetNietNulIs) {
  StandSchakelaar schakelaar(Uit);
  EXPECT_EQ(&(schakelaar = 1U), &schakelaar);
  EXPECT_EQ(schakelaar.geefStand(), Aan);
  schakelaar = 0U;
  EXPECT_EQ(schakelaar.geefStand(), Uit);
  // 2 is a number here, and no request for the other place.
  schakelaar = 2U;
  EXPECT_EQ(schakelaar.geefStand(), Aan);
  schakelaar = 2U;
  EXPECT_EQ(schakelaar.geefStand(), Aan);
  schakelaar = std::numeric_limits<unsigned int>::max();
  EXPECT_EQ(schakelaar.geefStand(), Aan);
}

TEST(StandSchakelaar, getalBijConstructieEnToegekendZijnElkaarsOmgekeerde) {
  for (const unsigned int v : {0U, 1U, 2U, 3U, 1000U}) {
    StandSchakelaar toegekend(Uit);
    toegekend = v;
    EXPECT_EQ(StandSchakelaar(static_cast<unsigned long long>(v)).boolean(), toegekend.omgekeerd());
  }
}

TEST(StandSchakelaar, toegekendeStandWordtOvergenomen) {
  StandSchakelaar schakelaar(Uit);
  EXPECT_EQ(&(schakelaar = Aan), &schakelaar);
  EXPECT_EQ(schakelaar.geefStand(), Aan);
  schakelaar = Aan;
  EXPECT_EQ(schakelaar.geefStand(), Aan);
  schakelaar = Uit;
  EXPECT_EQ(schakelaar.geefStand(), Uit);
}

TEST(StandSchakelaar, toegekendOmZetHetOm) {
  StandSchakelaar schakelaar(Uit);
  schakelaar = Om;
  EXPECT_EQ(schakelaar.geefStand(), Aan);
  schakelaar = Om;
  EXPECT_EQ(schakelaar.geefStand(), Uit);
}

TEST(StandSchakelaar, toegekendeOnbekendeStandIsUit) {
  StandSchakelaar schakelaar(Aan);
  schakelaar = onbekend;
  EXPECT_EQ(schakelaar.geefStand(), Uit);
  schakelaar = onbekend;
  EXPECT_EQ(schakelaar.geefStand(), Uit);
  schakelaar = Aan;
  schakelaar = hoogste;
  EXPECT_EQ(schakelaar.geefStand(), Uit);
}

TEST(StandSchakelaar, eenSchakelaarToekennenVraagtAlleenOfDieAanIs) {
  StandSchakelaar uit(Uit);
  StandSchakelaar aan(Aan);
  EXPECT_TRUE(uit = aan);
  EXPECT_EQ(uit.geefStand(), Uit);
  EXPECT_FALSE(aan = uit);
  EXPECT_EQ(aan.geefStand(), Aan);
}

TEST(StandSchakelaar, deVraagGaatOokAanEenVasteEnEenGeblokkeerde) {
  const StandSchakelaar vast(Uit);
  const StandSchakelaar aan(Aan);
  EXPECT_TRUE(vast = aan);
  StandSchakelaar dicht = geblokkeerd(Uit);
  EXPECT_TRUE(dicht = aan);
  EXPECT_FALSE(dicht = vast);
  EXPECT_EQ(dicht.geefStand(), Uit);
  StandSchakelaar open(Uit);
  EXPECT_TRUE(open = geblokkeerd(Aan));
  // The lock was not taken over.
  open.om();
  EXPECT_EQ(open.geefStand(), Aan);
}

TEST(StandSchakelaar, vergelijkenKijktNaarDeStand) {
  EXPECT_TRUE(StandSchakelaar(Aan) == Aan);
  EXPECT_FALSE(StandSchakelaar(Aan) == Uit);
  EXPECT_TRUE(StandSchakelaar(Uit) == Uit);
  EXPECT_FALSE(StandSchakelaar(Uit) == Om);
  EXPECT_FALSE(StandSchakelaar(Om) == Om);
}

TEST(StandSchakelaar, lezenOnderElkeNaam) {
  const StandSchakelaar aan(Aan);
  EXPECT_EQ(aan.waarde(), Aan);
  EXPECT_EQ(aan.geefStand(), Aan);
  EXPECT_TRUE(aan.boolean());
  EXPECT_FALSE(aan.omgekeerd());
  const StandSchakelaar uit(Uit);
  EXPECT_EQ(uit.waarde(), Uit);
  EXPECT_EQ(uit.geefStand(), Uit);
  EXPECT_FALSE(uit.boolean());
  EXPECT_TRUE(uit.omgekeerd());
}

TEST(StandSchakelaar, omWisseltUitEnAan) {
  StandSchakelaar schakelaar(Uit);
  schakelaar.om();
  EXPECT_EQ(schakelaar.geefStand(), Aan);
  schakelaar.om();
  EXPECT_EQ(schakelaar.geefStand(), Uit);
}

TEST(StandSchakelaar, geblokkeerdNegeertOm) {
  for (const Schakelaar stand : {Uit, Aan}) {
    StandSchakelaar schakelaar = geblokkeerd(stand);
    schakelaar.om();
    EXPECT_EQ(schakelaar.geefStand(), stand);
  }
}

TEST(StandSchakelaar, geblokkeerdNegeertEenToegekendGetalEnGeeftZichzelf) {
  StandSchakelaar uit = geblokkeerd(Uit);
  EXPECT_EQ(&(uit = 1U), &uit);
  EXPECT_EQ(uit.geefStand(), Uit);
  StandSchakelaar aan = geblokkeerd(Aan);
  aan = 0U;
  EXPECT_EQ(aan.geefStand(), Aan);
}

TEST(StandSchakelaar, geblokkeerdNegeertEenToegekendeStandEnGeeftZichzelf) {
  for (const Schakelaar stand : {Uit, Aan}) {
    StandSchakelaar schakelaar = geblokkeerd(stand);
    for (const Schakelaar nieuw : {Uit, Aan, Om, onbekend}) {
      EXPECT_EQ(&(schakelaar = nieuw), &schakelaar);
      EXPECT_EQ(schakelaar.geefStand(), stand);
    }
  }
}

TEST(StandSchakelaar, geblokkeerdLuistertNaarBlokkeerOnwaar) {
  StandSchakelaar schakelaar = geblokkeerd(Uit);
  schakelaar.blokkeer(true);
  schakelaar.blokkeer(false);
  schakelaar = Aan;
  EXPECT_EQ(schakelaar.geefStand(), Aan);
  schakelaar.om();
  EXPECT_EQ(schakelaar.geefStand(), Uit);
}

TEST(StandSchakelaar, tweemaalBlokkerenIsHetzelfdeAlsEenmaal) {
  StandSchakelaar schakelaar = geblokkeerd(Uit);
  schakelaar.blokkeer(true);
  schakelaar.om();
  EXPECT_EQ(schakelaar.geefStand(), Uit);
  schakelaar.blokkeer(false);
  schakelaar.blokkeer(false);
  schakelaar.om();
  EXPECT_EQ(schakelaar.geefStand(), Aan);
}

TEST(StandSchakelaar, toegekendeBoolEnIntZijnGetallen) {
  StandSchakelaar schakelaar(Uit);
  schakelaar = true;
  EXPECT_EQ(schakelaar.geefStand(), Aan);
  schakelaar = 0;
  EXPECT_EQ(schakelaar.geefStand(), Uit);
  schakelaar = 1;
  EXPECT_EQ(schakelaar.geefStand(), Aan);
  schakelaar = false;
  EXPECT_EQ(schakelaar.geefStand(), Uit);
}

TEST(StandSchakelaar, kopieIsHetZelfdeMetSlotEnAl) {
  const StandSchakelaar bron = geblokkeerd(Aan);
  StandSchakelaar kopie(bron);
  EXPECT_EQ(kopie.geefStand(), Aan);
  kopie.om();
  EXPECT_EQ(kopie.geefStand(), Aan);
}

}  // namespace
