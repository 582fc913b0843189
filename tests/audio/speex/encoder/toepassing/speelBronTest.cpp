// The source files as they are heard, and their lines in the tree.
#include <wx/button.h>
#include <wx/sound.h>
#include <wx/treectrl.h>

#include <algorithm>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/speelBronProef.h"
#include "tests/audio/speex/encoder/toepassing/vreemdeBestanden.h"
#include "tests/steun/geluidPaden.h"

namespace {

TEST_F(SpeelBronProef, WithNothingLoadedNothingHappens) {
  ASSERT_FALSE(knop(ID_SPEEL_BRON)->IsEnabled());
  stuur(knop(ID_SPEEL_BRON), wxEVT_BUTTON);
  EXPECT_TRUE(neemGeluidPaden().empty());
  EXPECT_TRUE(gehoord.empty());
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(SpeelBronProef, AfterALoadOfOnlyUnusableFilesTheButtonWorksAndNothingHappens) {
  laad({klank("bel.wav", 5)});
  EXPECT_EQ(laad({bestand("kapot.wav", "no sound")}).size(), 0U);
  EXPECT_EQ(fouten(), std::vector<wxString>{afgewezen("kapot.wav")});
  klik(ID_SPEEL_BRON);
  EXPECT_TRUE(neemGeluidPaden().empty());
  EXPECT_TRUE(gehoord.empty());
  EXPECT_EQ(log().size(), 1U);
}

TEST_F(SpeelBronProef, TwoFilesAreHeardOneToItsEndBeforeTheOtherEachInBoldWhileItPlays) {
  Paden const paden{klank("bel.wav", 5), klank("zoem.wav", 7)};
  speel(paden);
  EXPECT_EQ(neemGeluidPaden(), paden);
  EXPECT_EQ(neemGeluiden(), (std::vector<OpgenomenGeluid>{{1, 8000, 16, 5, 10, wxSOUND_SYNC},
                                                          {1, 8000, 16, 7, 14, wxSOUND_SYNC}}));
  EXPECT_EQ(vet(), (Vet{{0}, {1}}));
}

TEST_F(SpeelBronProef, TheSamplesHeardAreThoseOfTheFilesAtTheirOwnRate) {
  std::vector<std::int16_t> const mono = proefSamples(1001);
  std::vector<std::int16_t> const stereo{1, -1, 32767, -32768, 256, -256};
  speel({wav("bel.wav", mono), wav("zoem.wav", stereo, {8000, 2})});
  speel({wav("breed.wav", {1, 2}, {16000})});
  speel({wav("breder.wav", {1, 2}, {32000})});
  ASSERT_EQ(gehoord.size(), 4U);
  EXPECT_EQ(gehoord[0].bytes, geluidBytes(mono));
  EXPECT_EQ(gehoord[1].bytes, geluidBytes(stereo));
  EXPECT_EQ(gehoord[1].geluid, (OpgenomenGeluid{2, 8000, 16, 3, 12, wxSOUND_SYNC}));
  EXPECT_EQ(gehoord[2].geluid.rate, 16000U);
  EXPECT_EQ(gehoord[3].geluid.rate, 32000U);
}

// In the order of their paths, and bold where the search finds them: it goes on from the last one,
// and never back.
TEST_F(SpeelBronProef, EachFileIsHeardAndItsLineIsBoldWhereTheSearchFindsIt) {
  struct Rij {
    char const* naam;
    Paden boom;
    Lengten lengten;
    Vet vet;
  };
  for (char const* naam : {"een", "twee", "100%s %n"}) {
    submap(naam);
  }
  wxString const a = klank("a.wav", 5);
  wxString const b = klank("b.wav", 6);
  wxString const c = klank("c.wav", 7);
  wxString const adpcm = bestand("a2.wav", imaAdpcmWav(8000, 100));
  std::vector<Rij> const rijen{
      {"a file without samples is a sound too", {wav("0.wav", {}), c}, {0, 7}, {{0}, {1}}},
      {"a name of any signs", {klank("100%s %n/\xC3\xA9\xC3\xA9n %d bel.wav", 5)}, {5}, {{0}}},
      {"the search runs out at the last", {c, a, b}, {5, 6, 7}, {{1}, {2}, {}}},
      {"the search runs out at once", {b, c, a}, {5, 6, 7}, {{2}, {}, {}}},
      {"the order is one of whole paths and not of names",
       {klank("een/z.wav", 5), klank("twee/a.wav", 6)},
       {5, 6},
       {{0}, {1}}},
      {"of two files of one name the first line is bold twice",
       {klank("een/bel.wav", 5), klank("twee/bel.wav", 6), klank("zoem.wav", 7)},
       {5, 6, 7},
       {{0}, {0}, {2}}},
      {"ADPCM is passed over without a word", {a, adpcm, c}, {5, 7}, {{0}, {2}}},
      // The search for it would go past the two others.
      {"what is passed over is not searched for", {b, c, adpcm}, {6, 7}, {{0}, {1}}}};
  for (Rij const& rij : rijen) {
    SCOPED_TRACE(rij.naam);
    gehoord.clear();
    speel(rij.boom);
    EXPECT_EQ(lengten(), rij.lengten);
    EXPECT_EQ(vet(), rij.vet);
  }
}

TEST_F(SpeelBronProef, EveryPlaySearchesFromTheTopAndTheMenuItemPlaysTheSame) {
  speel({klank("b.wav", 6), klank("a.wav", 5)});
  klik(ID_SPEEL_BRON);
  kiesMenu(ID_SPEEL_BRON);
  EXPECT_EQ(lengten(), (Lengten{5, 6, 5, 6, 5, 6}));
  EXPECT_EQ(vet(), (Vet{{1}, {}, {1}, {}, {1}, {}}));
  EXPECT_EQ(vetteRijen(), Rijen{});
}

TEST_F(SpeelBronProef, TheTreeOpensWhereItIsClosedAndShowsTheLine) {
  laad({klank("bel.wav", 5), klank("zoem.wav", 7)});
  for (std::size_t keer = 1; keer <= 2; ++keer) {
    boom()->Collapse(knopen().front());
    ASSERT_FALSE(boom()->IsVisible(knopen().at(1)));
    klik(ID_SPEEL_BRON);
    ASSERT_EQ(gehoord.size(), 2 * keer);
    EXPECT_EQ(gehoord[2 * keer - 2].vet, Rijen{0});
    EXPECT_EQ(gehoord[2 * keer - 2].zichtbaar, (Rijen{0, 1}));
    EXPECT_EQ(gehoord[2 * keer - 1].vet, Rijen{1});
    EXPECT_EQ(gehoord[2 * keer - 1].zichtbaar, (Rijen{0, 1}));
  }
}

TEST_F(SpeelBronProef, AClosedTreeOpensForNoFileThatTheSearchDoesNotFind) {
  laad({klank("b.wav", 6), klank("a.wav", 5)});
  bijElkGeluid([this](OpgenomenGeluid const& geluid, GeluidBytes const& /*bytes*/) {
    if (geluid.samples == 5) {
      boom()->Collapse(knopen().front());
    }
  });
  klik(ID_SPEEL_BRON);
  EXPECT_EQ(neemGeluiden().size(), 2U);
  EXPECT_FALSE(boom()->IsExpanded(knopen().front()));
}

TEST_F(SpeelBronProef, TheLineOfALongTreeIsScrolledIntoView) {
  constexpr int aantal = 80;
  Paden paden;
  for (int i = 0; i < aantal; ++i) {
    paden.push_back(klank("b" + std::to_string(100 + i) + ".wav", 2));
  }
  speel(paden);
  ASSERT_EQ(gehoord.size(), static_cast<std::size_t>(aantal));
  // Otherwise this would show nothing.
  ASSERT_LT(gehoord.back().zichtbaar.size(), static_cast<std::size_t>(aantal));
  int rij = 0;
  for (Gehoord const& een : gehoord) {
    EXPECT_EQ(een.vet, Rijen{rij});
    EXPECT_NE(std::find(een.zichtbaar.begin(), een.zichtbaar.end(), rij), een.zichtbaar.end());
    ++rij;
  }
}

TEST_F(SpeelBronProef, ThePlayChangesNothingElse) {
  laad({klank("bel.wav", 5)});
  codeer();
  wxString const voor = tekst();
  wxString const statusVoor = status();
  std::vector<std::string> const bestanden = tijdelijke();
  klik(ID_SPEEL_BRON);
  ASSERT_EQ(gehoord.size(), 1U);
  EXPECT_EQ(gehoord[0].status, statusVoor);
  EXPECT_EQ(status(), statusVoor);
  EXPECT_EQ(tekst(), voor);
  EXPECT_TRUE(isGecodeerd());
  EXPECT_TRUE(isGeladen());
  EXPECT_EQ(tijdelijke(), bestanden);
}

}  // namespace
