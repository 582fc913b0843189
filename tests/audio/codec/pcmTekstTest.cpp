// The text of one PCM fragment as a whole: the languages, the DAC widths, the lengths, the names.
#include <gtest/gtest.h>

#include <clocale>
#include <filesystem>

#include "audio/codec/pcmDesktopConverter.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/steun/omgeving.h"
#include "tests/steun/tijdelijkeMap.h"

namespace {

std::string tekst(std::string const& pad, bool metHeader, PCMEncoderOpties const& opties) {
  PCMDesktopConverter converter(opties);
  wxMemoryOutputStream uit;
  converter.codeerBestand(bestandsnaam(pad), metHeader, uit);
  return zonderMoment(tekstVan(uit));
}

std::string const kopVanDrie =
    "\n/* Encoded on Linux (64 bit)\t\t*/\n"
    "/* Date : MOMENT\t\t*/\n"
    "/* WAV file : toon.wav\t\t*/\n"
    "/* WAV information :   \t\t*/\n"
    "/* Sampling frequency         : 8000 Hz\t\t*/\n"
    "/* Original size              : 3 frames\t\t*/\n"
    "/* Original duration          : 0.00 s\t\t*/\n";
std::string const uitleg =
    "\n/* Bytes 0..3: Number of samples (Little Endian)\n"
    "    Bytes 4..5: Sampling frequency\n"
    "    Bytes 6..End:Data  */\n\n";
std::string const rijenMetHeader =
    "\t0x3,0x0,0x0,0x0,0x40,0x1f,0x1,0x0,\n"
    "\t0xff,0xff,0x2,0x1,\n";
std::string const rijenZonderHeader =
    "\t0x1,0x0,0xff,0xff,0x2,0x1,0x0,0x0,\n"
    "\t0x0,0x0,0x0,0x0,\n";
std::string const einde =
    "\n};\n\n"
    "/* end of encoded WAV file         : toon.wav         */\n";

// The samples 1, -1 and 258 in each language.
class PcmTekstTaal : public testing::Test {
 protected:
  PcmTekstTaal() { schrijfWav(pad, {1, -1, 258}); }

  std::string in(int taal, std::string const& klasse, bool metHeader) const {
    return tekst(pad, metHeader, {static_cast<PCMEncoderTaal>(taal), wxTekst(klasse), 0});
  }

 private:
  TijdelijkeMap map;
  std::string pad = map.pad("toon.wav");
};

TEST_F(PcmTekstTaal, cMetHeaderTwaalfBytesInTweeRijen) {
  EXPECT_TRUE(zelfdeTekst(
      in(0, "", true), kopVanDrie + "/* const unsigned int toon_pcmNumberOfEncSamples=3; */\n" +
                           uitleg + "const unsigned char toon[] = \n{\n" + rijenMetHeader + einde));
}

TEST_F(PcmTekstTaal, cZonderHeaderTwaalfBytesMetZesNullenAchteraan) {
  EXPECT_TRUE(zelfdeTekst(in(0, "Genegeerd", false),
                          kopVanDrie + "/* const unsigned int toon_pcmNumberOfEncSamples=3; */\n" +
                              "const unsigned char toon[] = \n{\n" + rijenZonderHeader + einde));
}

TEST_F(PcmTekstTaal, cppMetHeader) {
  EXPECT_TRUE(zelfdeTekst(
      in(1, "Klank", true),
      kopVanDrie + "//const unsigned int Klank::toon_pcmNumberOfEncSamples=3;\n" + uitleg +
          "const unsigned char Klank::toon[] = \n{\n" + rijenMetHeader + einde));
}

TEST_F(PcmTekstTaal, cppZonderHeader) {
  EXPECT_TRUE(
      zelfdeTekst(in(1, "Klank", false),
                  kopVanDrie + "//const unsigned int Klank::toon_pcmNumberOfEncSamples=3;\n" +
                      "const unsigned char Klank::toon[] = \n{\n" + rijenZonderHeader + einde));
}

TEST_F(PcmTekstTaal, cppMetLegeKlasseLaatDeDubbeleDubbelePuntStaan) {
  EXPECT_TRUE(zelfdeTekst(in(1, "", true),
                          kopVanDrie + "//const unsigned int ::toon_pcmNumberOfEncSamples=3;\n" +
                              uitleg + "const unsigned char ::toon[] = \n{\n" + rijenMetHeader +
                              einde));
}

TEST_F(PcmTekstTaal, klasseNaamIsNooitEenPatroon) {
  EXPECT_TRUE(
      zelfdeTekst(in(1, "A%s%n::h\xC3\xA9", false),
                  kopVanDrie +
                      "//const unsigned int A%s%n::h\xC3\xA9::toon_pcmNumberOfEncSamples=3;\n"
                      "const unsigned char A%s%n::h\xC3\xA9::toon[] = \n{\n" +
                      rijenZonderHeader + einde));
}

TEST_F(PcmTekstTaal, andereTalenHebbenGeenKopVanDeArrayMaarWelZijnEinde) {
  std::string const metHeader = kopVanDrie + rijenMetHeader + einde;
  std::string const zonderHeader = kopVanDrie + rijenZonderHeader + einde;
  for (int const taal : {2, 7}) {
    EXPECT_TRUE(zelfdeTekst(in(taal, "Klank", true), metHeader)) << taal;
    EXPECT_TRUE(zelfdeTekst(in(taal, "Klank", false), zonderHeader)) << taal;
  }
}

TEST(PcmTekst, elkeLengteMetEnZonderHeader) {
  TijdelijkeMap const map;
  for (int const frames : {0, 1, 2, 3, 5, 9, 4001}) {
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
        verwacht.samples = samples;
        EXPECT_TRUE(zelfdeTekst(
            tekst(map.pad("toon.wav"), metHeader, {static_cast<PCMEncoderTaal>(taal), "K", 0}),
            maakVerwachteTekst(verwacht)))
            << frames << " frames, language " << taal << ", header " << metHeader;
      }
    }
  }
}

TEST(PcmTekst, vijfSamplesMetHeaderVullenHeleRijen) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("toon.wav"), {1, 2, 3, 4, 5});
  std::string const alles = tekst(map.pad("toon.wav"), true, {PCMTaalC, 0});
  EXPECT_NE(alles.find("{\n\t0x5,0x0,0x0,0x0,0x40,0x1f,0x1,0x0,\n"
                       "\t0x2,0x0,0x3,0x0,0x4,0x0,0x5,0x0,\n\n};\n\n"),
            std::string::npos)
      << alles;
}

TEST(PcmTekst, elkeDacBreedte) {
  struct Breedte {
    unsigned long long bitShift;
    int deler;
  };
  TijdelijkeMap const map;
  std::vector<int> samples = golf(1000);
  samples.insert(samples.end(), {-32768, 32767, -1, 0, 1, -256, 255});
  schrijfWav(map.pad("toon.wav"), samples, {32000, 1, 16, 1});
  for (Breedte const& breedte : {Breedte{0, 1}, {4, 16}, {6, 64}, {8, 256}}) {
    VerwachteTekst verwacht;
    verwacht.rate = 32000;
    verwacht.frames = 1007;
    verwacht.samples = gedeeld(samples, breedte.deler);
    EXPECT_TRUE(zelfdeTekst(tekst(map.pad("toon.wav"), true, {PCMTaalC, breedte.bitShift}),
                            maakVerwachteTekst(verwacht)))
        << breedte.deler;
  }
}

TEST(PcmTekst, achtBitsDacToontMin255AlsNulEnMin256AlsMinEen) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("toon.wav"), {-255, -256});
  std::string const alles = tekst(map.pad("toon.wav"), false, {PCMTaalC, 8});
  EXPECT_NE(alles.find("\n\t0x0,0x0,0xff,0xff,0x0,0x0,0x0,0x0,\n\t0x0,0x0,\n"), std::string::npos)
      << alles;
}

TEST(PcmTekst, namenStaanErZoalsZeZijn) {
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
                           {"zonder", "zonder"},
                           {".wav", ".wav"},
                           {"9*x/.wav", ".wav"}}) {
    std::string const pad = map.pad(naam.bestand);
    std::filesystem::create_directories(std::filesystem::path(pad).parent_path());
    schrijfWav(pad, {7, -7});
    for (int const taal : {0, 1}) {
      VerwachteTekst verwacht;
      verwacht.taal = taal;
      verwacht.klasse = "K";
      verwacht.bestand = std::filesystem::path(naam.bestand).filename().string();
      verwacht.naam = naam.naam;
      verwacht.frames = 2;
      verwacht.samples = {7, -7};
      EXPECT_TRUE(zelfdeTekst(tekst(pad, true, {static_cast<PCMEncoderTaal>(taal), "K", 0}),
                              maakVerwachteTekst(verwacht)))
          << naam.bestand;
    }
  }
}

TEST(PcmTekst, tellingEnDuurBijStereoZijnDieVanDeFrames) {
  TijdelijkeMap const map;
  std::vector<int> const waarden = golf(24690);
  schrijfWav(map.pad("toon.wav"), waarden, {8000, 2, 16, 1});
  VerwachteTekst verwacht;
  verwacht.frames = 12345;
  verwacht.samples = {waarden.begin(), waarden.begin() + 12345};
  EXPECT_TRUE(
      zelfdeTekst(tekst(map.pad("toon.wav"), true, {PCMTaalC, 0}), maakVerwachteTekst(verwacht)));
}

TEST(PcmTekst, frequentieVanaf65536VerliestHaarHogeBitsAlleenInDeArray) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("toon.wav"), {1}, {96000, 1, 16, 1});
  std::string const alles = tekst(map.pad("toon.wav"), true, {PCMTaalC, 0});
  EXPECT_NE(alles.find(": 96000 Hz\t"), std::string::npos) << alles;
  EXPECT_NE(alles.find("\t0x1,0x0,0x0,0x0,0x0,0x77,0x1,0x0,\n"), std::string::npos) << alles;
}

TEST(PcmTekst, tekstHangtNietVanDeLocaleAf) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("toon.wav"), golf(12345));
  std::string const gewoon = tekst(map.pad("toon.wav"), true, {PCMTaalC, 0});
  ASSERT_NE(gewoon.find(" : 1.54 s\t"), std::string::npos);
  TijdelijkeLocale const duits(LC_ALL, "de_DE.UTF-8");
  ASSERT_TRUE(duits.isGelukt());
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  EXPECT_TRUE(zelfdeTekst(tekst(map.pad("toon.wav"), true, {PCMTaalC, 0}), gewoon));
}

}  // namespace
