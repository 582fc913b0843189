// Where the settings of a text come from: the defaults, a settings file of the window, the options.
#include <regex>

#include "tests/opdrachtregel/programmaProef.h"
#include "tests/steun/wavMaker.h"

namespace {

// The line of a Speex text that tells a setting, without blanks at its ends.
std::string waarde(std::string const& tekst, std::string const& naam) {
  std::smatch gevonden;
  std::regex const regel("/\\* " + naam + " +: (.*?) *\t\t\\*/");
  return std::regex_search(tekst, gevonden, regel) ? gevonden[1].str() : "missing";
}

// All that a Speex text tells, in the order of the text.
std::string waarden(std::string const& tekst) {
  std::string alle;
  for (char const* const naam :
       {"Full Scale gain adapted to", "Speex Format", "Speex Bitrate", "Speex Max Bitrate",
        "Speex AGC", "Speex Denoise", "Speex Voice Activated Detection", "Speex Quality",
        "Speex Complexity"}) {
    alle += waarde(tekst, naam) + "; ";
  }
  return alle;
}

class Instellingen : public ProgrammaProef {
 protected:
  Instellingen() {
    maakWav(map.pad("smal.wav"), proefSamples(400));
    maakWav(map.pad("breed.wav"), proefSamples(400), {16000});
    maakWav(map.pad("ruim.wav"), proefSamples(700), {32000});
  }

  // The text of a command that succeeds.
  std::string maak(std::vector<std::string> const& woorden) {
    std::vector<std::string> alle{"encode", "-o", "-"};
    alle.insert(alle.end(), woorden.begin(), woorden.end());
    Afloop const afloop = voer(alle);
    EXPECT_EQ(afloop.status, 0);
    EXPECT_EQ(afloop.fouten, "");
    return afloop.uit;
  }
};

TEST_F(Instellingen, DefaultsAreThoseOfAFirstStart) {
  EXPECT_EQ(waarden(maak({"smal.wav", "--encoder", "speex"})),
            "16 bits; Narrowband; Fixed Bitrate; 5000 bytes; true; true; true; 8; 3; ");
}

TEST_F(Instellingen, TheBandFollowsTheFiles) {
  EXPECT_EQ(waarde(maak({"breed.wav", "--encoder", "speex"}), "Speex Format"), "Wideband");
  EXPECT_EQ(waarde(maak({"ruim.wav", "--encoder", "speex"}), "Speex Format"), "Ultra Wideband");
}

TEST_F(Instellingen, EachOptionOfSpeexIsHeard) {
  EXPECT_EQ(waarden(maak({"smal.wav", "--encoder", "speex", "--dac", "12", "--quality", "0",
                          "--complexity", "10", "--bitrate", "variable", "--max-bitrate", "0",
                          "--no-vad", "--no-denoise", "--no-agc"})),
            "12 bits; Narrowband; Variable Bitrate; 0 bytes; false; false; false; 0; 10; ");
  EXPECT_EQ(waarden(maak({"smal.wav", "--encoder", "speex", "--bitrate", "average", "--max-bitrate",
                          "2147483647", "--no-agc"})),
            "16 bits; Narrowband; Averaged Bitrate; 2147483647 bytes; false; true; true; 8; "
            "3; ");
}

constexpr char const* anders =
    "[Gebruikersinstellingen]\n"
    "Taal=61\n"
    "[Gebruikersinstellingen/Speex]\n"
    "speexFormat=2\n"
    "speexQuality=5\n"
    "speexComplexity=7\n"
    "speexBitRateChoice=1\n"
    "speexBitRate=9000\n"
    "speexOutputLanguage=1\n"
    "speexVAC=0\n"
    "speexDenoise=0\n"
    "speexAGC=0\n"
    "IncludeHeader=0\n"
    "dacNumberOfBits=1\n"
    "[Configuratie]\n"
    "klasseNaam=Geluid\n"
    "Convertertype=0\n";

TEST_F(Instellingen, ASettingsFileGivesThemAll) {
  maakBestand(map.pad("i"), anders);
  std::string const tekst = maak({"smal.wav", "--settings", "i"});
  EXPECT_EQ(waarden(tekst),
            "10 bits; Narrowband; Variable Bitrate; 9000 bytes; false; false; false; 5; 7; ");
  EXPECT_NE(tekst.find("const signed char Geluid::smal[] = \n{\n\t0x"), std::string::npos)
      << "in C++, without header";
}

TEST_F(Instellingen, OptionsWinOverTheSettingsFile) {
  maakBestand(map.pad("i"), anders);
  std::string const tekst = maak({"smal.wav", "--settings", "i", "--language", "c", "--header",
                                  "--dac", "8", "--quality", "8", "--complexity", "3", "--bitrate",
                                  "fixed", "--max-bitrate", "1", "--vad", "--denoise", "--agc"});
  EXPECT_EQ(waarden(tekst), "8 bits; Narrowband; Fixed Bitrate; 1 bytes; true; true; true; 8; 3; ");
  EXPECT_NE(tekst.find("const signed char smal[] = \n{\n\t/* Header"), std::string::npos);
  EXPECT_NE(maak({"smal.wav", "--settings", "i", "--class", "Ander", "--encoder", "pcm"})
                .find("const unsigned char Ander::smal[] = \n"),
            std::string::npos);
}

TEST_F(Instellingen, TheEncoderOfTheSettingsFileIsThatOfTheWindow) {
  struct Rij {
    char const* soort;
    char const* kop;
  };
  for (Rij const rij :
       {Rij{"0", "/* Speex encoding"}, Rij{"1", "/* ADPCM encoding"}, Rij{"2", "/* PCM encoding"},
        Rij{"7", "/* Speex encoding"}, Rij{"x", "/* Speex encoding"}}) {
    maakBestand(map.pad("i"), std::string("[Gebruikersinstellingen/Speex]\nspeexOutputLanguage=0\n"
                                          "[Configuratie]\nConvertertype=") +
                                  rij.soort + "\n");
    EXPECT_EQ(maak({"smal.wav", "--settings", "i"}).rfind(rij.kop, 0), 0U) << rij.soort;
  }
}

TEST_F(Instellingen, ASettingsFileWithoutAClassAsksForOne) {
  maakBestand(map.pad("i"), "[Gebruikersinstellingen/Speex]\nspeexQuality=8\n");
  Afloop const afloop = voer({"encode", "smal.wav", "-o", "-", "--settings", "i"});
  EXPECT_EQ(afloop.status, 2) << "the window's language is C++";
  EXPECT_EQ(afloop.fouten.rfind("kestrolin-cli: a text in C++ needs the name of a class\n", 0), 0U);
}

TEST_F(Instellingen, ASettingsFileWithALanguageWithoutArraysAsksForAnother) {
  for (char const* const taal : {"2", "99", "-1"}) {
    maakBestand(map.pad("i"),
                std::string("[Gebruikersinstellingen/Speex]\nspeexOutputLanguage=") + taal + "\n");
    Afloop const afloop = voer({"encode", "smal.wav", "-o", "-", "--settings", "i"});
    EXPECT_EQ(afloop.status, 2);
    EXPECT_EQ(afloop.fouten,
              "kestrolin-cli: the settings ask for a language without arrays; choose one\n"
              "  --language c|c++        Language of the text (default: c)\n"
              "Try 'kestrolin-cli encode --help' for all of it.\n");
  }
}

TEST_F(Instellingen, ValuesOutOfRangeAreLimitedAsInTheWindow) {
  maakBestand(map.pad("i"),
              "[Gebruikersinstellingen/Speex]\nspeexOutputLanguage=0\nspeexQuality=77\n"
              "speexComplexity=-3\nspeexBitRateChoice=9\ndacNumberOfBits=4\n");
  EXPECT_EQ(waarden(maak({"smal.wav", "--settings", "i"})),
            "16 bits; Narrowband; Fixed Bitrate; 5000 bytes; true; true; true; 10; 0; ");
}

TEST_F(Instellingen, NoSettingsFileCountsWithoutBeingGiven) {
  omgeving["HOME"] = map.pad();
  maakBestand(map.pad(".Kestrolin"), anders);
  EXPECT_EQ(maak({"smal.wav"}).rfind("/* PCM encoding output of 1 audio files", 0), 0U);
}

}  // namespace
