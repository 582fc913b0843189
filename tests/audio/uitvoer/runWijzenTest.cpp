// What the text of a run is made of, the same for PCM, ADPCM and embedding: the settings, the files
// and their names.
#include <clocale>
#include <filesystem>

#include "tests/audio/codec/inbedHulp.h"
#include "tests/audio/uitvoer/wijzeProef.h"
#include "tests/steun/omgeving.h"
#include "tests/steun/wxMain.h"

namespace {

using RunWijzen = WijzeProef;

TEST_P(RunWijzen, EveryLanguageWidthAndHeaderGivesItsText) {
  // Samples at every edge of the scaling. The first file leaves the ADPCM coder far from silence,
  // and the last one is odd.
  std::vector<RunFragment> const fragmenten{
      {"bel", {32767, -32768, 255, -255, -256, 64, -63, 100, -100, 5}},
      {"stil", {}},
      {"zoem", golf(101)}};
  neem({fragmenten[2], fragmenten[0], fragmenten[1]}, 16000);
  AdpcmStand stand;
  // A width that the configuration made up counts as the full one, as any other language does as
  // Python.
  for (auto const& [rij, bits] : {std::pair(0, 8), {1, 10}, {2, 12}, {3, 16}, {4, 16}, {-1, 16}}) {
    for (int const taal : {0, 1, 2, 99, -1}) {
      for (bool const header : {true, false}) {
        instellingen.dacNumberOfBits = rij;
        instellingen.speexOutputLanguage = taal;
        metHeader = header;
        EXPECT_TRUE(zelfdeTekst(
            tekst(),
            verwachteRun(GetParam(), {taal, "Geluid", bits, header, 16000}, fragmenten, stand)))
            << "row " << rij << ", language " << taal << ", header " << header;
      }
    }
  }
  EXPECT_EQ(gedaan, (std::vector<std::size_t>{1, 2, 3}));
  EXPECT_TRUE(nietHeel.empty());
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST_P(RunWijzen, NoFilesGiveTheHeadAloneWithTheShellOfTheClassInCPlusPlus) {
  for (int const taal : {0, 1, 2}) {
    instellingen.speexOutputLanguage = taal;
    EXPECT_TRUE(zelfdeTekst(tekst(), verwachteRun(GetParam(), {taal}, {}))) << taal;
  }
}

TEST_P(RunWijzen, NamesGoIntoTheTextUnchanged) {
  // In the order of their paths.
  std::vector<RunFragment> const fragmenten{
      {"%s%n", {1}}, {"a.b", {2, 3}}, {"stil zwijgen", {4}}, {"\xC3\xA9\xC3\xA9n", {5}}};
  neem(fragmenten);
  klasse = "K %s\xC3\xA9";
  AdpcmStand stand;
  for (int const taal : {0, 1}) {
    instellingen.speexOutputLanguage = taal;
    EXPECT_TRUE(zelfdeTekst(tekst(), verwachteRun(GetParam(), {taal, klasse}, fragmenten, stand)))
        << taal;
  }
}

TEST_P(RunWijzen, OfAFileThatVanishedThereIsAFragmentOfNothingAndAWordAboutIt) {
  std::string const weg = map.pad("weg.wav");
  neem({{"weg", {1, 2, 3}}});
  std::filesystem::remove(weg);
  RunVorm vorm;
  vorm.rate = 0;
  EXPECT_TRUE(zelfdeTekst(tekst(), verwachteRun(GetParam(), vorm, {{"weg", {}}})));
  std::vector<LogRegel> const log = neemLog();
  // An embedding leaves it to who watches the run, who may have more to say.
  EXPECT_EQ(nietHeel, GetParam() == Wijze::inbed ? std::vector<std::string>{weg}
                                                 : std::vector<std::string>{});
  ASSERT_EQ(log.size(), GetParam() == Wijze::inbed ? 0U : 1U);
  if (!log.empty()) {
    EXPECT_EQ(log[0].niveau, wxLOG_Error);
    EXPECT_EQ(log[0].tekst.utf8_string(), "Could not read the whole of " + weg);
  }
}

TEST_P(RunWijzen, TheDurationIsRoundedAndKeepsItsPointInAGermanLocale) {
  std::vector<RunFragment> const fragmenten{{"bel", golf(12344)}};  // 1.543 s
  neem(fragmenten);
  TijdelijkeLocale const duits(LC_ALL, "de_DE.UTF-8");
  ASSERT_TRUE(duits.isGelukt());
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  std::string const gevonden = tekst();
  EXPECT_NE(gevonden.find(" : 1.54 s\t\t*/\n"), std::string::npos);
  EXPECT_TRUE(zelfdeTekst(gevonden, verwachteRun(GetParam(), {}, fragmenten)));
}

INSTANTIATE_TEST_SUITE_P(, RunWijzen, elkeWijze(), naamVan);

// An embedded stereo file stays what it is.
class RunArrays : public WijzeProef {
 protected:
  // The fragment of a recording that counts as so many frames with these samples.
  void verwachtVan(std::vector<int> const& samples, int rate) {
    RunVorm vorm;
    vorm.rate = rate;
    EXPECT_TRUE(zelfdeTekst(tekst(), verwachteRun(GetParam(), vorm, {{"bel", samples}})));
  }
};

TEST_P(RunArrays, OfAStereoFileTheFirstInterleavedValuesAreEncoded) {
  schrijfWav(map.pad("bel.wav"), {1, 2, 3, 4, 5, 6}, {8000, 2});
  laad({"bel.wav"});
  verwachtVan({1, 2, 3}, 8000);
}

TEST_P(RunArrays, AnAdpcmFileIsDecodedFirst) {
  schrijfSnd(map.pad("bel.wav"), golf(700), {32000}, wavAdpcm);
  laad({"bel.wav"});
  verwachtVan(leesSnd(map.pad("bel.wav")).waarden, 32000);
}

INSTANTIATE_TEST_SUITE_P(, RunArrays, testing::Values(Wijze::pcm, Wijze::adpcm), naamVan);

}  // namespace
