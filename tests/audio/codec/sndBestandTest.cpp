// The holder of libsndfile's handle: what it tells and reads of good and of bad files, which item
// counts it takes, and when the handle closes.
#include "audio/codec/sndBestand.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <vector>

#include "tests/audio/codec/codecHulp.h"
#include "tests/steun/omgeving.h"
#include "tests/steun/pijp.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wavLezer.h"
#include "tests/steun/wxMain.h"

namespace {

using Samples = std::vector<short>;

constexpr int wav16 = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
constexpr short vulling = 0x5A5A;

// What leesItems leaves in a block of `plaats` values, and what it returned.
struct Uitslag {
  Samples blok;
  sf_count_t gelezen;
};

Uitslag leesUit(SndBestand bestand, sf_count_t aantal, std::size_t plaats) {
  Uitslag uitslag{Samples(plaats, vulling), 0};
  uitslag.gelezen = bestand.leesItems(uitslag.blok.data(), aantal);
  return uitslag;
}

Uitslag leesUit(std::string const& pad, sf_count_t aantal, std::size_t plaats) {
  return leesUit(SndBestand::lees(bestandsnaam(pad)), aantal, plaats);
}

void verwachtOnleesbaar(std::string const& pad) {
  SndBestand const bestand = SndBestand::lees(bestandsnaam(pad));
  EXPECT_FALSE(bestand.isOpen());
  EXPECT_EQ(bestand.info().frames, 0);
  EXPECT_EQ(bestand.info().samplerate, 0);
  EXPECT_EQ(bestand.info().channels, 0);
  EXPECT_EQ(bestand.info().format, 0);
  Uitslag const uitslag = leesUit(bestand, 2, 2);
  EXPECT_EQ(uitslag.gelezen, 0);
  EXPECT_EQ(uitslag.blok, Samples(2, vulling));
}

TEST(SndBestandLees, verteltWatDeHeaderZegt) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), golf(30), {11025, 3, 16, 1});
  SndBestand const bestand = SndBestand::lees(bestandsnaam(map.pad("a.wav")));
  EXPECT_TRUE(bestand.isOpen());
  EXPECT_EQ(bestand.info().frames, 10);
  EXPECT_EQ(bestand.info().samplerate, 11025);
  EXPECT_EQ(bestand.info().channels, 3);
  EXPECT_EQ(bestand.info().format, wav16);
}

TEST(SndBestandLees, ontbrekendBestand) {
  TijdelijkeMap const map;
  verwachtOnleesbaar(map.pad("nergens.wav"));
}

TEST(SndBestandLees, legeNaam) {
  verwachtOnleesbaar("");
}

TEST(SndBestandLees, leegBestand) {
  TijdelijkeMap const map;
  maakBestand(map.pad("a.wav"), "");
  verwachtOnleesbaar(map.pad("a.wav"));
}

TEST(SndBestandLees, map) {
  TijdelijkeMap const map;
  std::filesystem::create_directory(map.pad("a.wav"));
  verwachtOnleesbaar(map.pad("a.wav"));
}

TEST(SndBestandLees, pijpZonderSchrijverLaatNietWachten) {
  TijdelijkeMap const map;
  if (!maakPijp(map.pad("pijp.wav"))) {
    GTEST_SKIP() << "no pipes lie in folders here";
  }
  verwachtOnleesbaar(map.pad("pijp.wav"));
}

TEST(SndBestandLees, tekstInPlaatsVanGeluid) {
  TijdelijkeMap const map;
  maakBestand(map.pad("a.wav"), "This is no sound at all.\n");
  verwachtOnleesbaar(map.pad("a.wav"));
}

TEST(SndBestandLees, afgebrokenHeaderLaatGeenHalveGegevensAchter) {
  TijdelijkeMap const map;
  maakBestand(map.pad("a.wav"), wavBytes({}, "abcd").substr(0, 36));
  verwachtOnleesbaar(map.pad("a.wav"));
}

TEST(SndBestandLees, nulFrames) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {}, {16000, 1, 16, 1});
  SndBestand const bestand = SndBestand::lees(bestandsnaam(map.pad("a.wav")));
  EXPECT_TRUE(bestand.isOpen());
  EXPECT_EQ(bestand.info().frames, 0);
  EXPECT_EQ(bestand.info().samplerate, 16000);
  EXPECT_EQ(leesUit(bestand, 1, 1).gelezen, 0);
}

TEST(SndBestandLees, naamMetAccentenEnProcenten) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("h\xC3\xA9 100%s%n.wav"), {5});
  EXPECT_EQ(leesUit(map.pad("h\xC3\xA9 100%s%n.wav"), 1, 1).blok, (Samples{5}));
}

TEST(SndBestandLees, naamDieDeLocaleNietKanSchrijvenIsOnleesbaar) {
  TijdelijkeMap const map;
  std::string const pad = map.pad("h\xC3\xA9.wav");
  schrijfWav(pad, {5});
  TijdelijkeLocale const kaal(LC_ALL, "C");
  ASSERT_TRUE(kaal.isGelukt());
  verwachtOnleesbaar(pad);
}

TEST(SndBestandLees, verdwenenNaHetOpenenBlijftLeesbaarDaarnaNiet) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {1, 2});
  SndBestand const bestand = SndBestand::lees(bestandsnaam(map.pad("a.wav")));
  std::filesystem::remove(map.pad("a.wav"));
  EXPECT_EQ(leesUit(bestand, 2, 2).blok, (Samples{1, 2}));
  verwachtOnleesbaar(map.pad("a.wav"));
}

TEST(SndBestandLees, gebrekWordtGemeldMetDeNaamEnEenKorterBestandNiet) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("heel.wav"), {1, 2});
  maakBestand(map.pad("kort.wav"), leesTekst(map.pad("heel.wav")).substr(0, 46));
  for (char const* const naam : {"heel.wav", "kort.wav"}) {
    SndBestand bestand = SndBestand::lees(bestandsnaam(map.pad(naam)));
    Samples blok(2);
    bestand.leesItems(blok.data(), 2);
    bestand.meldGebrek();
    EXPECT_TRUE(neemLog().empty()) << naam;
  }
  SndBestand::lees(bestandsnaam(map.pad("100%s.wav"))).meldGebrek();
  std::vector<LogRegel> const regels = neemLog();
  ASSERT_EQ(regels.size(), 1U);
  EXPECT_EQ(regels[0].niveau, wxLOG_Error);
  EXPECT_EQ(regels[0].tekst, "Could not read the whole of " + wxTekst(map.pad("100%s.wav")));
}

TEST(SndBestandLeesItems, monoGeheelEnInDelen) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {-32768, -1, 0, 32767});
  SndBestand const bestand = SndBestand::lees(bestandsnaam(map.pad("a.wav")));
  EXPECT_EQ(leesUit(bestand, 3, 4).blok, (Samples{-32768, -1, 0, vulling}));
  Uitslag const rest = leesUit(bestand, 3, 3);
  EXPECT_EQ(rest.gelezen, 1);
  EXPECT_EQ(rest.blok[0], 32767);
}

TEST(SndBestandLeesItems, andereBreedtesHoudenDeHoogsteZestienBits) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("8.wav"), {-128, -1, 0, 127}, {8000, 1, 8, 1});
  EXPECT_EQ(leesUit(map.pad("8.wav"), 4, 4).blok, (Samples{-32768, -256, 0, 32512}));
  schrijfWav(map.pad("24.wav"), {-8388608, -256, 0x123456}, {8000, 1, 24, 1});
  EXPECT_EQ(leesUit(map.pad("24.wav"), 3, 3).blok, (Samples{-32768, -1, 0x1234}));
  schrijfWav(map.pad("32.wav"), {-65536, 0x12345678}, {8000, 1, 32, 1});
  EXPECT_EQ(leesUit(map.pad("32.wav"), 2, 2).blok, (Samples{-1, 0x1234}));
}

TEST(SndBestandLeesItems, stereoNeemtHeleFrames) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {1, 2, 3, 4, 5, 6}, {8000, 2, 16, 1});
  Uitslag const uitslag = leesUit(map.pad("a.wav"), 4, 5);
  EXPECT_EQ(uitslag.gelezen, 4);
  EXPECT_EQ(uitslag.blok, (Samples{1, 2, 3, 4, vulling}));
}

TEST(SndBestandLeesItems, stereoNeemtVanHetLaatsteHalveFrameHetBegin) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {1, 2, 3, 4, 5, 6}, {8000, 2, 16, 1});
  Uitslag const uitslag = leesUit(map.pad("a.wav"), 3, 4);
  EXPECT_EQ(uitslag.gelezen, 3);
  EXPECT_EQ(uitslag.blok, (Samples{1, 2, 3, vulling}));
  EXPECT_EQ(leesUit(map.pad("a.wav"), 1, 2).blok, (Samples{1, vulling}));
}

TEST(SndBestandLeesItems, restVanEenFrameKomtBijDeVolgendeKeer) {
  TijdelijkeMap const map;
  std::vector<int> const waarden = golf(30);
  schrijfWav(map.pad("a.wav"), waarden, {8000, 3, 16, 1});
  SndBestand const bestand = SndBestand::lees(bestandsnaam(map.pad("a.wav")));
  std::vector<int> gelezen;
  // Copies share one place in the file, the broken frame included.
  for (sf_count_t const stap : {1, 1, 2, 1, 4, 7, 0, 5, 2, 3, 4}) {
    auto const plaats = static_cast<std::size_t>(stap);
    Uitslag const uitslag = leesUit(bestand, stap, plaats + 1);
    EXPECT_EQ(uitslag.gelezen, stap);
    EXPECT_EQ(uitslag.blok[plaats], vulling);
    gelezen.insert(gelezen.end(), uitslag.blok.begin(), uitslag.blok.end() - 1);
  }
  EXPECT_EQ(gelezen, waarden);
  EXPECT_EQ(leesUit(bestand, 1, 1).gelezen, 0);
}

TEST(SndBestandLeesItems, vijfKanalenMetVierWaardenOver) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, {8000, 5, 16, 1});
  EXPECT_EQ(leesUit(map.pad("a.wav"), 9, 10).blok, (Samples{1, 2, 3, 4, 5, 6, 7, 8, 9, vulling}));
}

TEST(SndBestandLeesItems, meerDanErIsGeeftWatErIs) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {1, 2, 3, 4}, {8000, 2, 16, 1});
  EXPECT_EQ(leesUit(map.pad("a.wav"), 5, 5).gelezen, 4);
  EXPECT_EQ(leesUit(map.pad("a.wav"), 7, 7).gelezen, 4);
}

TEST(SndBestandLeesItems, nulItems) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.wav"), {1, 2}, {8000, 2, 16, 1});
  Uitslag const uitslag = leesUit(map.pad("a.wav"), 0, 1);
  EXPECT_EQ(uitslag.gelezen, 0);
  EXPECT_EQ(uitslag.blok, Samples(1, vulling));
}

TEST(SndBestandSchrijf, bestandIsCompleetNaDeLaatsteVerwijzing) {
  TijdelijkeMap const map;
  Samples const samples{-32768, -1, 0, 1, 32767};
  std::optional<SndBestand> eerste =
      SndBestand::schrijf(bestandsnaam(map.pad("a.wav")), 22050, 1, wav16);
  ASSERT_TRUE(eerste->isOpen());
  {
    SndBestand tweede = *eerste;
    EXPECT_EQ(tweede.schrijfItems(samples.data(), 2), 2);
  }
  // The copy is gone, the handle is not.
  EXPECT_EQ(eerste->schrijfItems(samples.data() + 2, 3), 3);
  eerste.reset();
  std::optional<GelezenWav> const wav = ontleedWav(leesBytes(map.pad("a.wav")));
  ASSERT_TRUE(wav);
  EXPECT_EQ(wav->soort.formaatCode, 1);
  EXPECT_EQ(wav->soort.rate, 22050);
  EXPECT_EQ(wav->soort.kanalen, 1);
  EXPECT_EQ(wav->waarden, (std::vector<int>{-32768, -1, 0, 1, 32767}));
}

TEST(SndBestandSchrijf, oudeInhoudIsWeg) {
  TijdelijkeMap const map;
  maakBestand(map.pad("a.wav"), std::string(10000, 'x'));
  { SndBestand::schrijf(bestandsnaam(map.pad("a.wav")), 8000, 2, wav16); }
  std::optional<GelezenWav> const wav = ontleedWav(leesBytes(map.pad("a.wav")));
  ASSERT_TRUE(wav);
  EXPECT_EQ(wav->soort.kanalen, 2);
  EXPECT_TRUE(wav->waarden.empty());
}

TEST(SndBestandSchrijf, onmogelijkDoelSchrijftNiets) {
  TijdelijkeMap const map;
  short const sample = 1;
  for (std::string const& doel : {map.pad("nergens/a.wav"), map.pad()}) {
    SndBestand bestand = SndBestand::schrijf(bestandsnaam(doel), 8000, 1, wav16);
    EXPECT_FALSE(bestand.isOpen()) << doel;
    EXPECT_EQ(bestand.info().samplerate, 0) << doel;
    EXPECT_EQ(bestand.schrijfItems(&sample, 1), 0) << doel;
  }
}

TEST(SndBestandSchrijf, frequentieNulWordtNietGeopend) {
  TijdelijkeMap const map;
  EXPECT_FALSE(SndBestand::schrijf(bestandsnaam(map.pad("a.wav")), 0, 1, wav16).isOpen());
}

}  // namespace
