// The text of a run in each of the program's languages: that of English but for the comments that
// the catalogs translate.
#include <clocale>

#include "audio/codec/wavFormaat.h"
#include "externals/software/extern/speex/speexDesktopDecoder.h"
#include "tests/audio/codec/inbedHulp.h"
#include "tests/audio/uitvoer/wijzeProef.h"
#include "tests/steun/catalogusInGebruik.h"
#include "tests/steun/omgeving.h"
#include "tests/steun/taalCatalogus.h"
#include "tests/steun/wxMain.h"

namespace {

std::string const declaraties = "/* Put these declarations in a header file :*/\n";
std::string const beeldKop =
    "\n/* Bytes 0..3: Number of samples (Little Endian)\n    Bytes 4..5: Sampling frequency\n"
    "    Bytes 6..End:Data  */\n\n";
std::string const speexKop =
    "\t/* Header: Sampling Freq (Lower + Higher Byte), Number of Frames (Lower + Higher Byte) */\n";
std::string const pcmFormaat = "/* WAV Format                 : WAV S16 PCM\t*/\n";
std::string const adpcmFormaat = "/* WAV Format                 : WAV 4 Bit IMA ADPCM\t*/\n";

// The originals of the translated lines, each with the number of times that a text has it.
using Regels = std::vector<std::pair<std::string, int>>;

// The text with each of these lines in the words of the catalog.
std::string vertaald(std::string tekst, Regels const& regels, Catalogus const& catalogus) {
  for (auto const& [origineel, aantal] : regels) {
    auto const vertaling = catalogus.find(origineel);
    std::string const nieuw = vertaling == catalogus.end() ? "" : vertaling->second;
    EXPECT_TRUE(!nieuw.empty() && nieuw != origineel) << origineel;
    int gevonden = 0;
    for (std::size_t plaats = tekst.find(origineel); plaats != std::string::npos;
         plaats = tekst.find(origineel, plaats + nieuw.size())) {
      tekst.replace(plaats, origineel.size(), nieuw);
      ++gevonden;
    }
    EXPECT_EQ(gevonden, aantal) << origineel;
  }
  return tekst;
}

// The parameter is a locale, whose first letters are the code of the language.
class RunTaal : public RunProef, public testing::WithParamInterface<char const*> {
 protected:
  // A quarter of a second, and 0.154 seconds.
  RunTaal() {
    schrijfWav(map.pad("bel.wav"), golf(2000));
    schrijfWav(map.pad("tik.wav"), golf(1234));
    laad({"bel.wav", "tik.wav"});
  }

  // Makes both texts, each in English and in the language, and expects the one to be the other but
  // for these lines, and source code with arrays of this type. The files engels.c, anders.c and so
  // on hold them.
  template <typename Maker>
  void vergelijk(Maker maak, Regels const& regels, std::string const& type) {
    std::string const code = std::string(GetParam()).substr(0, 2);
    Catalogus const catalogus = leesCatalogus(KESTROLIN_VERTALINGEN "/" + code + "/Kestrolin.po");
    for (std::string const extensie : {".c", ".cpp"}) {
      SCOPED_TRACE(extensie);
      instellingen.speexOutputLanguage = extensie == ".c" ? 0 : 1;
      std::string const engels = maak();
      ASSERT_NE(engels.find(": 0.25 s\t\t*/\n"), std::string::npos);
      maakBestand(map.pad("engels" + extensie), engels);
      TijdelijkeLocale const locale(LC_ALL, GetParam());
      ASSERT_TRUE(locale.isGelukt());
      ASSERT_STREQ(std::localeconv()->decimal_point, ",");
      CatalogusInGebruik const inGebruik(KESTROLIN_CATALOGI "/" + code +
                                         "/LC_MESSAGES/Kestrolin.mo");
      std::string const anders = maak();
      EXPECT_TRUE(zelfdeTekst(anders, vertaald(engels, regels, catalogus)));
      maakBestand(map.pad("anders" + extensie), anders);
    }
    EXPECT_TRUE(nietsGelogd(neemLog()));
    verwachtBron(type);
  }

  // The samples of a text as Play Encoded finds them.
  Bytes gespeeld(std::string const& naam) const {
    unsigned long long fragmenten = 0;
    SpeexDesktopDecoder decoder(SpeexNarrowband, nullptr);
    EXPECT_EQ(decoder.decode(bestandsnaam(map.pad(naam)), bestandsnaam(map.pad("gespeeld.wav")),
                             fragmenten, wavPcm16),
              SpeexDesktopDecoder::gelukt);
    EXPECT_GT(fragmenten, 0U);
    return leesBytes(map.pad("gespeeld.wav"));
  }

 private:
  // Warnings are errors: also a comment in a comment, or one that goes on behind its line.
  void verwachtBron(std::string const& type) const {
    std::string leden;
    for (char const* const naam : {"bel", "tik", "klein"}) {
      leden += "static const " + type + " " + naam + "[];\n";
    }
    maakBestand(map.pad("klasse.h"), "struct Geluid {\n" + leden + "};\n");
    std::string const opties = " -fsyntax-only -Wall -Wextra -Wpedantic -Werror ";
    EXPECT_TRUE(luktIn(map.pad(), "gcc -std=c99" + opties + "anders.c"));
    EXPECT_TRUE(luktIn(map.pad(), "g++ -std=c++17" + opties + "-include klasse.h anders.cpp"));
  }
};

TEST_P(RunTaal, OfASpeexRunIsEnglishButForItsTwoCommentsAndPlaysTheSame) {
  vergelijk([this] { return speex(); }, {{declaraties, 1}, {speexKop, 2}}, "signed char");
  for (std::string const extensie : {".c", ".cpp"}) {
    Bytes const engels = gespeeld("engels" + extensie);
    // More than a head: the 2000 samples of the first fragment at least.
    EXPECT_GT(engels.size(), 4000U);
    EXPECT_EQ(gespeeld("anders" + extensie), engels);
  }
}

TEST_P(RunTaal, OfAnAdpcmRunIsEnglishButForItsTwoComments) {
  vergelijk(
      [this] {
        ADPCMMaker vers;
        return tekstVan(vers);
      },
      {{declaraties, 1}, {beeldKop, 2}}, "unsigned char");
}

TEST_P(RunTaal, OfAPcmRunIsEnglishButForItsTwoComments) {
  vergelijk([this] { return pcm(); }, {{declaraties, 1}, {beeldKop, 2}}, "unsigned char");
}

TEST_P(RunTaal, OfAnEmbeddingIsEnglishButForTheDeclarationsAndTheFormats) {
  schrijfSnd(map.pad("klein.wav"), golf(300), {}, wavAdpcm);
  laad({"bel.wav", "tik.wav", "klein.wav"});
  vergelijk([this] { return inbed(); }, {{declaraties, 1}, {pcmFormaat, 2}, {adpcmFormaat, 1}},
            "unsigned char");
}

INSTANTIATE_TEST_SUITE_P(, RunTaal,
                         testing::Values("nl_NL.UTF-8", "de_DE.UTF-8", "fr_FR.UTF-8", "it_IT.UTF-8",
                                         "es_ES.UTF-8"),
                         [](testing::TestParamInfo<char const*> const& locale) {
                           return std::string(locale.param).substr(0, 2);
                         });

class RunVertaling : public WijzeProef {};

TEST_P(RunVertaling, TheHeadAndTheMarksAreTheSameInEveryLanguage) {
  neem({{"bel", {1, -1}}});
  std::string const engels = verwachteRun(GetParam(), {}, {{"bel", {1, -1}}});
  std::string const vertaling = "/* Declaraties, \xC3\xA9\xC3\xA9n keer 100%s :*/\n";
  Vertalingen vertalingen{{declaraties, vertaling}};
  for (std::string const regel :
       {"/* Embedded output of ", "/* Embedded output of %d WAV Files\t\t*/\n\n",
        " WAV Files\t\t*/\n\n", "/* PCM encoding output of ", "/* ADPCM encoding output of ",
        " audio files \t\t*/\n\n", "encoding", "embedding", "// extern const unsigned char ",
        "// extern const $type $naam[];\n", "[];\n", "\n\n", "/******* Start ",
        "/******* Start embedding file number %d \t\t*******/\n", "/******* Stop ",
        " \t\t*******/\n\n", "unsigned char", "bel"}) {
    vertalingen[regel] = "VERTAALD";
  }
  CatalogusInGebruik const catalogus(vertalingen);
  EXPECT_TRUE(zelfdeTekst(tekst(), vertaald(engels, {{declaraties, 1}}, vertalingen)));
}

INSTANTIATE_TEST_SUITE_P(, RunVertaling, elkeWijze(), naamVan);

}  // namespace
