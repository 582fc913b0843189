// Command lines that are no commands, and the answers that are none of a run.
#include "tests/opdrachtregel/programmaProef.h"
#include "tests/steun/wavMaker.h"

namespace {

constexpr char const* verder = "Try 'kestrolin-cli encode --help' for all of it.\n";

class Gebruik : public ProgrammaProef {
 protected:
  Gebruik() { maakWav(map.pad("goed.wav"), {1}); }

  // Expects status 2, a line of the program's and the line of help, and no file.
  void eis(std::vector<std::string> const& opties, std::string const& eersteRegel,
           std::string const& hulp) {
    std::vector<std::string> woorden{"encode", "goed.wav", "-o", "t"};
    woorden.insert(woorden.end(), opties.begin(), opties.end());
    Afloop const afloop = voer(woorden);
    EXPECT_EQ(afloop.status, 2);
    EXPECT_EQ(afloop.uit, "");
    EXPECT_EQ(afloop.fouten, "kestrolin-cli: " + eersteRegel + "\n" + hulp + verder);
    EXPECT_EQ(inhoud(), std::vector<std::string>{"goed.wav"});
  }
};

constexpr char const* klasseHulp =
    "  --class NAME            Class of which the arrays are members; c++ needs it\n";

TEST_F(Gebruik, CPlusPlusNeedsAClass) {
  eis({"--language", "c++"}, "a text in C++ needs the name of a class", klasseHulp);
  eis({"--language", "c++", "--class", "a::b"}, "\"a::b\" is no name of a class in C++",
      klasseHulp);
  eis({"--language", "c++", "--class", "*/"}, "\"*/\" is no name of a class in C++", klasseHulp);
}

TEST_F(Gebruik, OutputsThatDoNotGoTogether) {
  eis({"--source", "t.c"}, "--source needs a header to include",
      "  --declarations FILE.h   Also write a header to include: the arrays and their\n"
      "                          sizes\n");
  eis({"--flash"}, "--flash needs a header to declare the arrays in",
      "  --declarations FILE.h   Also write a header to include: the arrays and their\n"
      "                          sizes\n");
  eis({"--encoder", "adpcm", "--states", "--declarations", "t.h"},
      "--states needs a source to define them in",
      "  --source FILE.c         Also write the source to compile, which takes in the\n"
      "                          text and defines the sizes; needs --declarations\n");
  eis({"--states", "--declarations", "t.h", "--source", "t.c"},
      "--states are those of adpcm, and of no other encoder",
      "  --encoder speex|adpcm|pcm|wav\n"
      "                          How samples are stored; wav embeds whole WAV files, as\n"
      "                          the window's Save As (default: pcm)\n");
  eis({"--append", "--declarations", "t.h"},
      "a header declares the arrays of one run, and not what was there before",
      "  --append                Append the text to FILE, which must not have these\n"
      "                          arrays yet\n");
  for (char const* const optie : {"--declarations", "--depfile"}) {
    Afloop const afloop = voer({"encode", "goed.wav", "-o", "-", optie, "x"});
    EXPECT_EQ(afloop.status, 2);
    EXPECT_EQ(afloop.fouten,
              std::string("kestrolin-cli: other files cannot go with a text on standard output\n"
                          "  -o, --output FILE       The text; - is standard output\n") +
                  verder);
  }
}

// The words of the first line are those of the library that reads the options.
TEST_F(Gebruik, ValuesOutOfRangeAreAnsweredWithTheLineOfHelp) {
  struct Rij {
    char const* optie;
    char const* waarde;
    char const* hulp;
  };
  for (Rij const rij :
       {Rij{"--encoder", "mp3", "  --encoder speex|adpcm|pcm|wav\n"},
        Rij{"--language", "C", "  --language c|c++        Language of the text (default: c)\n"},
        Rij{"--dac", "9", "  --dac 8|10|12|16        Width of the DAC in bits"},
        Rij{"--dac", "x", "  --dac 8|10|12|16        Width of the DAC in bits"},
        Rij{"--dac", "010", "  --dac 8|10|12|16        Width of the DAC in bits"},
        Rij{"--dac", "0x10", "  --dac 8|10|12|16        Width of the DAC in bits"},
        Rij{"--quality", " 3", "  --quality 0..10         Quality of the sound"},
        Rij{"--declarations", "", "  --declarations FILE.h   Also write a header"},
        Rij{"--declarations", "-v", "  --declarations FILE.h   Also write a header"},
        Rij{"--source", "", "  --source FILE.c         Also write the source"},
        Rij{"--depfile", "", "  --depfile FILE.d        Also write what the text"},
        Rij{"--settings", "", "  --settings FILE         Take defaults"},
        Rij{"--quality", "11", "  --quality 0..10         Quality of the sound"},
        Rij{"--quality", "-1", "  --quality 0..10         Quality of the sound"},
        Rij{"--complexity", "11", "  --complexity 0..10      Effort of the encoder"},
        Rij{"--bitrate", "abr", "  --bitrate fixed|variable|average\n"},
        Rij{"--max-bitrate", "2147483648", "  --max-bitrate N         Largest bit rate"},
        Rij{"--max-bitrate", "-1", "  --max-bitrate N         Largest bit rate"}}) {
    Afloop const afloop = voer({"encode", "goed.wav", "-o", "t", rij.optie, rij.waarde});
    EXPECT_EQ(afloop.status, 2) << rij.optie;
    EXPECT_EQ(afloop.fouten.rfind("kestrolin-cli: ", 0), 0U);
    EXPECT_NE(afloop.fouten.find(rij.hulp), std::string::npos) << afloop.fouten;
    EXPECT_NE(afloop.fouten.find(verder), std::string::npos) << afloop.fouten;
    EXPECT_EQ(inhoud(), std::vector<std::string>{"goed.wav"});
  }
}

TEST_F(Gebruik, WhatIsMissingOrUnknown) {
  for (std::vector<std::string> const& woorden : {std::vector<std::string>{"encode"},
                                                  {"encode", "goed.wav"},
                                                  {"encode", "-o", "t"},
                                                  {"encode", "goed.wav", "-o", "t", "--bogus"},
                                                  {"encode", "goed.wav", "-o"}}) {
    Afloop const afloop = voer(woorden);
    EXPECT_EQ(afloop.status, 2);
    EXPECT_EQ(afloop.uit, "");
    EXPECT_NE(afloop.fouten.find(verder), std::string::npos) << afloop.fouten;
  }
  EXPECT_EQ(voer({"encode", "goed.wav", "-o", "--append"}).status, 2);
  EXPECT_EQ(voer({"encode", "goed.wav", "-o", "a", "-o", "b"}).fouten,
            std::string("kestrolin-cli: --output is given more than once\n"
                        "  -o, --output FILE       The text; - is standard output\n") +
                verder);
  EXPECT_EQ(voer({"encode", "goed.wav", "-o"}).fouten,
            std::string("kestrolin-cli: --output needs a value\n"
                        "  -o, --output FILE       The text; - is standard output\n") +
                verder);
  constexpr char const* alles =
      "Usage: kestrolin-cli COMMAND [OPTION...] FILE...\n"
      "Try 'kestrolin-cli --help' for all of it.\n";
  EXPECT_EQ(voer({}).fouten, std::string("kestrolin-cli: a command is missing\n") + alles);
  EXPECT_EQ(voer({"bogus"}).fouten,
            std::string("kestrolin-cli: there is no command \"bogus\"\n") + alles);
  for (std::vector<std::string> const& woorden :
       {std::vector<std::string>{}, {"bogus"}, {"--bogus"}, {""}}) {
    Afloop const afloop = voer(woorden);
    EXPECT_EQ(afloop.status, 2);
    EXPECT_EQ(afloop.uit, "");
    EXPECT_NE(afloop.fouten.find("Usage: kestrolin-cli COMMAND [OPTION...] FILE...\n"
                                 "Try 'kestrolin-cli --help' for all of it.\n"),
              std::string::npos)
        << afloop.fouten;
  }
}

TEST_F(Gebruik, VersionAndHelpAreAnswers) {
  Afloop const versie = voer({"--version"});
  EXPECT_EQ(versie.status, 0);
  EXPECT_EQ(versie.uit, std::string("kestrolin-cli ") + KESTROLIN_VERSIE + "\n");
  EXPECT_EQ(versie.fouten, "");
  for (std::vector<std::string> const& woorden :
       {std::vector<std::string>{"--help"}, {"-h"}, {"encode", "--help"}}) {
    Afloop const hulp = voer(woorden);
    EXPECT_EQ(hulp.status, 0);
    EXPECT_EQ(hulp.uit.rfind("Usage: kestrolin-cli ", 0), 0U);
    EXPECT_EQ(hulp.uit.back(), '\n');
    EXPECT_EQ(hulp.fouten, "");
  }
}

// Brackets are no list of files.
TEST_F(Gebruik, AFileMayHaveBracketsAroundItsName) {
  maakWav(map.pad("[goed.wav]"), {1});
  EXPECT_EQ(voer({"encode", "[goed.wav]", "-o", "t"}).fouten,
            "kestrolin-cli: ./[goed.wav]: its array would be called \"[goed\", which is no name in "
            "C; rename the file\n");
}

TEST_F(Gebruik, VerboseTellsWhatWasMade) {
  maakWav(map.pad("ook.wav"), {1});
  EXPECT_EQ(voer({"encode", "goed.wav", "-o", "t", "-v"}).fouten,
            "kestrolin-cli: t: 1 PCM array at 8000 Hz\n");
  EXPECT_EQ(
      voer({"encode", "goed.wav", "ook.wav", "-o", "t", "--verbose", "--encoder", "wav"}).fouten,
      "kestrolin-cli: t: 2 WAV arrays at 8000 Hz\n");
  EXPECT_EQ(voer({"encode", "goed.wav", "-o", "t", "-v", "--declarations", "t.h", "--source", "t.c",
                  "--depfile", "t.d"})
                .fouten,
            "kestrolin-cli: t: 1 PCM array at 8000 Hz\n"
            "kestrolin-cli: t.h: declarations and sizes\n"
            "kestrolin-cli: t.c: source to compile\n"
            "kestrolin-cli: t.d: dependencies\n");
}

}  // namespace
