// The images that embedding leaves in the temporary directory, and the stream that its texts go
// into.
#include <filesystem>

#include "audio/codec/wavInbedding.h"
#include "tests/audio/codec/inbedHulp.h"
#include "tests/steun/wxMain.h"

namespace {

using InbedBeeld = InbedProef;

// Embeds a file of this name, and expects an image of that one: six signs behind it make it the
// only one.
class InbedBeeldNaam : public InbedProef {
 protected:
  void verwachtNaam(std::string const& wav, std::string const& begin) const {
    schrijfWav(map.pad(wav), {1});
    inbed(map.pad(wav));
    ASSERT_EQ(namen().size(), 1U) << wav;
    std::string const gevonden = namen()[0];
    EXPECT_EQ(gevonden.size(), begin.size() + 6) << gevonden;
    EXPECT_EQ(gevonden.substr(0, begin.size()), begin);
    std::filesystem::remove(map.pad("tmp/" + gevonden));
    EXPECT_TRUE(nietsGelogd(neemLog()));
  }
};

TEST_F(InbedBeeldNaam, isDieVanHetBestandZonderExtensie) {
  for (std::string const naam :
       {"toon", "stil zwijgen", "100%s%n", "h\xC3\xA9", " voor en na ", "kaal'\"$(x)"}) {
    verwachtNaam(naam + ".wav", naam);
  }
}

TEST_F(InbedBeeldNaam, eenExtensieErinNeemtDeToolkitOokWeg) {
  verwachtNaam("a.b.wav", "a");
}

TEST_F(InbedBeeld, isWatInDeArrayStaat) {
  schrijfWav(toon, golf(100));
  VerwachtBlok blok;
  blok.frames = 100;
  blok.bits = 8;
  std::string const tekst = inbed(toon, 8);
  EXPECT_EQ(beeld().size(), 244U);
  EXPECT_TRUE(zelfdeTekst(tekst, verwachteInbedding(blok, beeld())));
}

TEST_F(InbedBeeld, elkeAanroepHeeftEenEigenBeeld) {
  schrijfWav(toon, {1});
  for (std::size_t aanroep = 1; aanroep <= 3; ++aanroep) {
    inbed(toon);
    EXPECT_EQ(namen().size(), aanroep);
  }
}

TEST_F(InbedBeeld, zonderBronBlijftErEenLeegBestand) {
  inbed(map.pad("weg.wav"));
  ASSERT_EQ(namen().size(), 1U);
  EXPECT_EQ(namen()[0].substr(0, 3), "weg");
  EXPECT_TRUE(beeld().empty());
}

TEST_F(InbedBeeld, zonderTijdelijkeMapIsDeArrayLeegEnMeldtDeToolkitHet) {
  schrijfWav(toon, golf(100));
  OmgevingsWaarde const vol("TMPDIR", "/proc");
  VerwachtBlok blok;
  blok.frames = 100;
  EXPECT_TRUE(zelfdeTekst(inbed(toon), verwachteInbedding(blok, {})));
  std::vector<LogRegel> const log = neemLog();
  ASSERT_EQ(log.size(), 1U);
  EXPECT_EQ(log[0].niveau, wxLOG_Error);
  EXPECT_TRUE(namen().empty());
}

TEST_F(InbedBeeld, bronBlijftZoalsZeWas) {
  schrijfWav(toon, golf(100));
  Bytes const voor = leesBytes(toon);
  inbed(toon, 8);
  EXPECT_EQ(leesBytes(toon), voor);
}

TEST_F(InbedBeeld, aanroepenSchrijvenAchterElkaarInEenStroom) {
  std::string const bel = map.pad("bel.wav");
  schrijfWav(toon, {1, 2, 3});
  schrijfWav(bel, {-4});
  wxMemoryOutputStream uit;
  uit.Write("eerst\n", 6);
  schrijfInbedding(bestandsnaam(toon), {0, "", 16}, uit);
  schrijfInbedding(bestandsnaam(bel), {1, "K", 8}, uit);
  std::string const tekst = tekstVan(uit);
  std::size_t const tweede = tekst.rfind("\n/* Embedded on");
  VerwachtBlok eerste;
  eerste.frames = 3;
  VerwachtBlok ander{1, "K", "bel", "bel.wav"};
  ander.frames = 1;
  ander.bits = 8;
  EXPECT_TRUE(zelfdeTekst(zonderMoment(tekst.substr(0, tweede)),
                          "eerst\n" + verwachteInbedding(eerste, sndBeeld({1, 2, 3}))));
  EXPECT_TRUE(
      zelfdeTekst(zonderMoment(tekst.substr(tweede)), verwachteInbedding(ander, sndBeeld({-1}))));
}

}  // namespace
