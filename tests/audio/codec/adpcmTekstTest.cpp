// The text of one ADPCM fragment as a whole: the languages, the lengths, the DAC widths, the names.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/adpcmTekstHulp.h"
#include "tests/steun/tijdelijkeMap.h"

namespace {

// The codes of a coder that starts from silence.
Bytes verseCodes(std::vector<int> const& samples, int deler = 1) {
  AdpcmStand stand;
  return modelBytes(stand, samples, deler);
}

std::string const kopVanVijf =
    "\n/* Encoded on Linux (64 bit)\t\t*/\n"
    "/* Date : MOMENT\t\t*/\n"
    "/* WAV file : toon.wav\t\t*/\n"
    "/* WAV information :   \t\t*/\n"
    "/* Sampling frequency         : 8000 Hz\t\t*/\n"
    "/* Original size              : 5 frames\t\t*/\n"
    "/* Original duration          : 0.00 s\t\t*/\n";
std::string const tellingenC =
    "/* const unsigned int toon_adpcmNumberOfEncSamples=2; */\n"
    "/* const unsigned int toon_pcmNumberOfSamples=4; */\n";
std::string const uitleg =
    "\n/* Bytes 0..3: Number of samples (Little Endian)\n"
    "    Bytes 4..5: Sampling frequency\n"
    "    Bytes 6..End:Data  */\n\n";
std::string const rijenMetHeader =
    "\t0x2,0x0,0x0,0x0,0x40,0x1f,0x0,0x0,\n"
    "\t0x0,0xf7,0x82,\n";
std::string const rijenZonderHeader =
    "\t0xf7,0x82,0x0,0x0,0x0,0x0,0x0,0x0,\n"
    "\t0x0,0x0,0x0,\n";
std::string const einde =
    "\n};\n\n"
    "/* end of encoded WAV file         : toon.wav         */\n";

// Five samples, of which the coder sees 100, -100, 2 and -1. From step 7 on that gives the codes 7
// (prediction 11, step 16), 15 (-19, step 34), 2 (2, step 31) and 8 (-1).
class AdpcmTekstTaal : public testing::Test {
 protected:
  AdpcmTekstTaal() { schrijfWav(pad, {100, -100, 258, -1, 7}); }

  std::string in(int taal, std::string const& klasse, bool metHeader) const {
    return adpcmTekst({static_cast<ADPCMEncoderTaal>(taal), wxTekst(klasse), 0}, pad, metHeader);
  }

 private:
  TijdelijkeMap map;
  std::string pad = map.pad("toon.wav");
};

TEST_F(AdpcmTekstTaal, cVijfFramesGevenTweeBytesVierSamplesEnElfBytesInTweeRijen) {
  EXPECT_TRUE(zelfdeTekst(in(0, "", true), kopVanVijf + tellingenC + uitleg +
                                               "const unsigned char toon[] = \n{\n" +
                                               rijenMetHeader + einde));
}

TEST_F(AdpcmTekstTaal, cZonderHeaderElfBytesMetNegenNullenAchteraan) {
  EXPECT_TRUE(zelfdeTekst(
      in(0, "Genegeerd", false),
      kopVanVijf + tellingenC + "const unsigned char toon[] = \n{\n" + rijenZonderHeader + einde));
}

TEST_F(AdpcmTekstTaal, cppMetHeader) {
  EXPECT_TRUE(zelfdeTekst(in(1, "Klank", true),
                          kopVanVijf +
                              "//const unsigned int Klank::toon_adpcmNumberOfEncSamples=2;\n"
                              "//const unsigned int Klank::toon_pcmNumberOfSamples=4;\n" +
                              uitleg + "const unsigned char Klank::toon[] = \n{\n" +
                              rijenMetHeader + einde));
}

TEST_F(AdpcmTekstTaal, cppZonderHeaderVolgtDeArrayDirectOpDeTellingen) {
  EXPECT_TRUE(zelfdeTekst(in(1, "Klank", false),
                          kopVanVijf +
                              "//const unsigned int Klank::toon_adpcmNumberOfEncSamples=2;\n"
                              "//const unsigned int Klank::toon_pcmNumberOfSamples=4;\n"
                              "const unsigned char Klank::toon[] = \n{\n" +
                              rijenZonderHeader + einde));
}

TEST_F(AdpcmTekstTaal, cppMetLegeKlasseLaatDeDubbeleDubbelePuntStaan) {
  EXPECT_TRUE(
      zelfdeTekst(in(1, "", true), kopVanVijf +
                                       "//const unsigned int ::toon_adpcmNumberOfEncSamples=2;\n"
                                       "//const unsigned int ::toon_pcmNumberOfSamples=4;\n" +
                                       uitleg + "const unsigned char ::toon[] = \n{\n" +
                                       rijenMetHeader + einde));
}

TEST_F(AdpcmTekstTaal, klasseNaamIsNooitEenPatroon) {
  std::string const klasse = "A%s%n::h\xC3\xA9";
  EXPECT_TRUE(zelfdeTekst(in(1, klasse, false),
                          kopVanVijf + "//const unsigned int " + klasse +
                              "::toon_adpcmNumberOfEncSamples=2;\n//const unsigned int " + klasse +
                              "::toon_pcmNumberOfSamples=4;\nconst unsigned char " + klasse +
                              "::toon[] = \n{\n" + rijenZonderHeader + einde));
}

TEST_F(AdpcmTekstTaal, andereTalenHebbenGeenTellingenEnGeenKopVanDeArrayMaarWelZijnEinde) {
  std::string const metHeader = kopVanVijf + rijenMetHeader + einde;
  std::string const zonderHeader = kopVanVijf + rijenZonderHeader + einde;
  for (int const taal : {2, 7, -1}) {
    EXPECT_TRUE(zelfdeTekst(in(taal, "Klank", true), metHeader)) << taal;
    EXPECT_TRUE(zelfdeTekst(in(taal, "Klank", false), zonderHeader)) << taal;
  }
}

TEST(AdpcmTekst, elkeLengteMetEnZonderHeader) {
  TijdelijkeMap const map;
  for (int const frames : {0, 1, 2, 3, 5, 14, 15, 4001}) {
    std::vector<int> const samples = golf(static_cast<std::size_t>(frames));
    schrijfWav(map.pad("toon.wav"), samples, {16000, 1, 16, 1});
    for (bool const metHeader : {true, false}) {
      for (int const taal : {0, 1, 2, 7}) {
        VerwachteTekst verwacht;
        verwacht.taal = taal;
        verwacht.metHeader = metHeader;
        verwacht.klasse = "K";
        verwacht.rate = 16000;
        verwacht.frames = frames;
        EXPECT_TRUE(zelfdeTekst(adpcmTekst({static_cast<ADPCMEncoderTaal>(taal), "K", 0},
                                           map.pad("toon.wav"), metHeader),
                                verwachteAdpcmTekst(verwacht, verseCodes(samples))))
            << frames << " frames, language " << taal << ", header " << metHeader;
      }
    }
  }
}

struct Breedte {
  unsigned long long bitShift;
  int deler;
};

TEST(AdpcmTekst, elkeDacBreedte) {
  TijdelijkeMap const map;
  std::vector<int> samples = golf(1000);
  samples.insert(samples.end(), {-32768, 32767, -1, 0, 127, -128, 255, -255});
  schrijfWav(map.pad("toon.wav"), samples, {32000, 1, 16, 1});
  for (Breedte const& breedte : {Breedte{0, 1}, {4, 16}, {6, 64}, {8, 256}}) {
    VerwachteTekst verwacht;
    verwacht.rate = 32000;
    verwacht.frames = 1008;
    EXPECT_TRUE(zelfdeTekst(adpcmTekst({ADPCMTaalC, breedte.bitShift}, map.pad("toon.wav"), true),
                            verwachteAdpcmTekst(verwacht, verseCodes(samples, breedte.deler))))
        << breedte.deler;
  }
}

TEST(AdpcmTekst, achtBitsDacHoortAlleenStilteWatErOokInHetBestandStaat) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("toon.wav"), golf(24));
  VerwachteTekst verwacht;
  verwacht.frames = 24;
  EXPECT_TRUE(zelfdeTekst(adpcmTekst({ADPCMTaalC, 8}, map.pad("toon.wav"), true),
                          verwachteAdpcmTekst(verwacht, Bytes(12, 0))));
}

TEST(AdpcmTekst, namenStaanErZoalsZeZijn) {
  struct Naam {
    std::string bestand;
    std::string naam;
  };
  TijdelijkeMap const map;
  for (Naam const& naam : {Naam{"met een blank.wav", "met een blank"},
                           {"a.b.c.wav", "a.b.c"},
                           {"h\xC3\xA9-\xE2\x82\xAC.wav", "h\xC3\xA9-\xE2\x82\xAC"},
                           {"100%.wav", "100%"},
                           {"%s%n%d.wav", "%s%n%d"},
                           {"a%%b.WAV", "a%%b"},
                           {"zonder", "zonder"}}) {
    schrijfWav(map.pad(naam.bestand), {7, -7});
    for (int const taal : {0, 1}) {
      VerwachteTekst verwacht;
      verwacht.taal = taal;
      verwacht.klasse = "K";
      verwacht.bestand = naam.bestand;
      verwacht.naam = naam.naam;
      verwacht.frames = 2;
      EXPECT_TRUE(zelfdeTekst(
          adpcmTekst({static_cast<ADPCMEncoderTaal>(taal), "K", 0}, map.pad(naam.bestand), true),
          verwachteAdpcmTekst(verwacht, verseCodes({7, -7}))))
          << naam.bestand;
    }
  }
}

TEST(AdpcmTekst, stereoTeltFramesEnCodeertEvenveelWaardenUitBeideKanalen) {
  TijdelijkeMap const map;
  std::vector<int> const waarden = golf(24690);
  schrijfWav(map.pad("toon.wav"), waarden, {8000, 2, 16, 1});
  VerwachteTekst verwacht;
  verwacht.frames = 12345;
  EXPECT_TRUE(zelfdeTekst(
      adpcmTekst({ADPCMTaalC, 0}, map.pad("toon.wav"), true),
      verwachteAdpcmTekst(verwacht, verseCodes({waarden.begin(), waarden.begin() + 12345}))));
}

TEST(AdpcmTekst, imaAdpcmAlsBronIsWatSoxErinHoort) {
  // Sixteen blocks of 505 samples, as sox makes them; it decodes them too.
  TijdelijkeMap const map;
  schrijfWav(map.pad("in.wav"), golf(8080));
  ASSERT_TRUE(luktIn(map.pad(),
                     "sox in.wav -e ima-adpcm toon.wav && "
                     "sox toon.wav -t raw -e signed -b 16 -L toon.raw"));
  Bytes const ruw = leesBytes(map.pad("toon.raw"));
  ASSERT_EQ(ruw.size(), 16160U);
  std::vector<int> samples;
  for (std::size_t i = 0; i < ruw.size(); i += 2) {
    int const waarde = ruw[i] + 256 * ruw[i + 1];
    samples.push_back(waarde < 32768 ? waarde : waarde - 65536);
  }
  VerwachteTekst verwacht;
  verwacht.frames = 8080;
  EXPECT_TRUE(zelfdeTekst(adpcmTekst({ADPCMTaalC, 0}, map.pad("toon.wav"), true),
                          verwachteAdpcmTekst(verwacht, verseCodes(samples))));
}

TEST(AdpcmTekst, onbruikbareBestandenTellenAlsNulSamplesBijNulHertz) {
  TijdelijkeMap const map;
  maakBestand(map.pad("leeg.wav"), "");
  maakBestand(map.pad("tekst.wav"), "no sound at all\n");
  std::filesystem::create_directory(map.pad("map.wav"));
  for (std::string const naam : {"nergens", "leeg", "tekst", "map", "100%s%n"}) {
    for (bool const metHeader : {true, false}) {
      VerwachteTekst verwacht;
      verwacht.metHeader = metHeader;
      verwacht.naam = naam;
      verwacht.bestand = naam + ".wav";
      verwacht.rate = 0;
      EXPECT_TRUE(zelfdeTekst(adpcmTekst({ADPCMTaalC, 0}, map.pad(naam + ".wav"), metHeader),
                              verwachteAdpcmTekst(verwacht, {})));
    }
  }
}

TEST(AdpcmTekst, frequentieVanaf65536VerliestHaarHogeBitsAlleenInDeArray) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("toon.wav"), {0, 0}, {96000, 1, 16, 1});
  VerwachteTekst verwacht;
  verwacht.rate = 96000;
  verwacht.frames = 2;
  std::string const tekst = adpcmTekst({ADPCMTaalC, 0}, map.pad("toon.wav"), true);
  EXPECT_TRUE(zelfdeTekst(tekst, verwachteAdpcmTekst(verwacht, {0})));
  EXPECT_NE(tekst.find("\t0x1,0x0,0x0,0x0,0x0,0x77,0x0,0x0,\n"), std::string::npos) << tekst;
}

}  // namespace
