// The files that go with a text: header, source and dependencies.
#include "opdrachtregel/bijlagen.h"

#include <filesystem>

#include "audio/codec/uitvoerTaal.h"
#include "tests/opdrachtregel/programmaProef.h"
#include "tests/steun/opdracht.h"
#include "tests/steun/wavMaker.h"

namespace {

class Bijlagen : public ProgrammaProef {
 protected:
  Bijlagen() {
    maakWav(map.pad("alarm.wav"), {1, -2, 300});
    maakWav(map.pad("bel.wav"), {4, 5, 6, 7, 8});
  }

  // Encodes both, with all that goes with a text.
  Afloop maak(std::vector<std::string> const& opties) const {
    std::vector<std::string> woorden{"encode",   "bel.wav",   "alarm.wav", "-o",
                                     "geluid.t", "--depfile", "geluid.d"};
    woorden.insert(woorden.end(), opties.begin(), opties.end());
    return voer(woorden);
  }

  int compileer(std::string const& opdracht) const {
    return voerUit("cd '" + map.pad() + "' && " + opdracht);
  }
};

TEST_F(Bijlagen, HeaderAndSourceInC) {
  Afloop const afloop = maak({"--declarations", "geluid.h", "--source", "geluid.c"});
  EXPECT_EQ(afloop.status, 0);
  EXPECT_EQ(afloop.uit + afloop.fouten, "");
  EXPECT_EQ(tekst("geluid.h"),
            "/* Made by kestrolin-cli; changes are lost. */\n"
            "#ifndef KESTROLIN_GELUID_H_alarm\n"
            "#define KESTROLIN_GELUID_H_alarm\n"
            "\n"
            "#include <stddef.h>\n"
            "\n"
            "#ifdef __cplusplus\n"
            "extern \"C\" {\n"
            "#endif\n"
            "\n"
            "/* PCM, 8000 Hz, 3 samples */\n"
            "extern const unsigned char alarm[];\n"
            "extern const size_t alarm_size;\n"
            "\n"
            "/* PCM, 8000 Hz, 5 samples */\n"
            "extern const unsigned char bel[];\n"
            "extern const size_t bel_size;\n"
            "\n"
            "#ifdef __cplusplus\n"
            "}\n"
            "#endif\n"
            "\n"
            "#endif\n");
  EXPECT_EQ(tekst("geluid.c"),
            "/* Made by kestrolin-cli; changes are lost. */\n"
            "#include \"geluid.h\"\n"
            "\n"
            "#include \"geluid.t\"\n"
            "\n"
            "const size_t alarm_size = sizeof alarm;\n"
            "const size_t bel_size = sizeof bel;\n");
}

TEST_F(Bijlagen, HeaderAndSourceInCPlusPlus) {
  Afloop const afloop = maak({"--language", "c++", "--class", "Geluiden", "--encoder", "speex",
                              "--declarations", "geluid.h", "--source", "geluid.cpp"});
  EXPECT_EQ(afloop.status, 0);
  EXPECT_EQ(tekst("geluid.h"),
            "/* Made by kestrolin-cli; changes are lost. */\n"
            "#ifndef KESTROLIN_GELUID_H_Geluiden\n"
            "#define KESTROLIN_GELUID_H_Geluiden\n"
            "\n"
            "#include <cstddef>\n"
            "\n"
            "class Geluiden {\n"
            " public:\n"
            "  // Speex, 8000 Hz, 3 samples\n"
            "  static const signed char alarm[];\n"
            "  static const std::size_t alarm_size;\n"
            "\n"
            "  // Speex, 8000 Hz, 5 samples\n"
            "  static const signed char bel[];\n"
            "  static const std::size_t bel_size;\n"
            "};\n"
            "\n"
            "#endif\n");
  EXPECT_EQ(tekst("geluid.cpp"),
            "/* Made by kestrolin-cli; changes are lost. */\n"
            "#include \"geluid.h\"\n"
            "\n"
            "#include \"geluid.t\"\n"
            "\n"
            "const std::size_t Geluiden::alarm_size = sizeof alarm;\n"
            "const std::size_t Geluiden::bel_size = sizeof bel;\n");
}

// Each encoder's text, taken in and used: the sizes are those of the layouts.
TEST_F(Bijlagen, CompileWithoutAWarningAndTellTheSizes) {
  constexpr char const* strengC =
      "gcc -std=c99 -Wall -Wextra -Wpedantic -Wmissing-declarations -Werror ";
  constexpr char const* strengCPP = "g++ -std=c++11 -Wall -Wextra -Wpedantic -Werror ";
  maakBestand(map.pad("c.c"),
              "#include \"geluid.h\"\nint main(void) { return (int)(alarm_size + bel_size); }\n");
  maakBestand(
      map.pad("cpp.cpp"),
      "#include \"geluid.h\"\n"
      "int main() { return static_cast<int>(Geluiden::alarm_size + Geluiden::bel_size); }\n");
  struct Rij {
    char const* encoder;
    int bytes;
  };
  // Headers of 6, 9 and 44 bytes; of five samples ADPCM has four.
  for (Rij const rij :
       {Rij{"pcm", 6 + 6 + 6 + 10}, Rij{"adpcm", 9 + 1 + 9 + 2}, Rij{"wav", 44 + 6 + 44 + 10}}) {
    ASSERT_EQ(maak({"--encoder", rij.encoder, "--declarations", "geluid.h", "--source", "geluid.c"})
                  .status,
              0);
    EXPECT_EQ(compileer(std::string(strengC) +
                        "c.c geluid.c -o c && ./c; test $? = " + std::to_string(rij.bytes)),
              0);
    // The header of C in C++.
    EXPECT_EQ(compileer(std::string(strengC) +
                        "-c geluid.c && g++ -x c++ c.c -x none geluid.o -o x"
                        " && ./x; test $? = " +
                        std::to_string(rij.bytes)),
              0);
    ASSERT_EQ(maak({"--encoder", rij.encoder, "--language", "c++", "--class", "Geluiden",
                    "--declarations", "geluid.h", "--source", "geluid.cpp"})
                  .status,
              0);
    EXPECT_EQ(compileer(std::string(strengCPP) +
                        "cpp.cpp geluid.cpp -o x && ./x; test $? = " + std::to_string(rij.bytes)),
              0);
  }
}

TEST_F(Bijlagen, TheSourceFindsHeaderAndTextFromItsOwnFolder) {
  std::filesystem::create_directories(map.pad("a/b"));
  std::filesystem::create_directories(map.pad("h"));
  ASSERT_EQ(voer({"encode", "bel.wav", "-o", "a/bel.t", "--declarations", "h/bel.h", "--source",
                  "a/b/bel.c"})
                .status,
            0);
  EXPECT_EQ(tekst("a/b/bel.c"),
            "/* Made by kestrolin-cli; changes are lost. */\n"
            "#include \"../../h/bel.h\"\n"
            "\n"
            "#include \"../bel.t\"\n"
            "\n"
            "const size_t bel_size = sizeof bel;\n");
  EXPECT_EQ(compileer("gcc -c a/b/bel.c -o bel.o"), 0);
}

TEST_F(Bijlagen, AHeaderAloneNeedsNoSource) {
  EXPECT_EQ(maak({"--declarations", "geluid.h"}).status, 0);
  EXPECT_EQ(inhoud(),
            (std::vector<std::string>{"alarm.wav", "bel.wav", "geluid.d", "geluid.h", "geluid.t"}));
}

TEST_F(Bijlagen, TheDepfileNamesTheTextAndWhatItIsMadeOf) {
  maakBestand(map.pad("instellingen"), "[Gebruikersinstellingen/Speex]\ndacNumberOfBits=0\n");
  EXPECT_EQ(maak({"--settings", "instellingen", "--encoder", "pcm", "--language", "c"}).status, 0);
  EXPECT_EQ(tekst("geluid.d"),
            "geluid.t: \\\n"
            "  bel.wav \\\n"
            "  alarm.wav \\\n"
            "  instellingen\n"
            "\n"
            "bel.wav:\n"
            "\n"
            "alarm.wav:\n"
            "\n"
            "instellingen:\n");
}

// A target cannot be told of a name that make or ninja read as something else: the text would be
// made always, or never again.
TEST_F(Bijlagen, NamesThatMakeOrNinjaCannotReadAreTurnedAway) {
  std::filesystem::create_directory(map.pad("arch=arm"));
  maakWav(map.pad("arch=arm/bel.wav"), {1});
  Afloop const afloop = voer({"encode", "arch=arm/bel.wav", "-o", "t", "--depfile", "t.d"});
  EXPECT_EQ(afloop.status, 1);
  EXPECT_EQ(afloop.fouten,
            "kestrolin-cli: arch=arm/bel.wav: make and ninja cannot read its name in t.d; rename "
            "it, or leave out --depfile\n");
  EXPECT_EQ(voer({"encode", "bel.wav", "-o", "a:b", "--depfile", "t.d"}).status, 1);
  for (char const teken : std::string("\t\n\"'\\%&*:;<=>?[]`|")) {
    EXPECT_FALSE(pastInAfhankelijkheden(std::string("a") + teken)) << teken;
  }
  EXPECT_TRUE(pastInAfhankelijkheden("/Größe (2)/a-b_c.d+e,f@g~h{i}!j^k $ #"));
}

TEST_F(Bijlagen, NamesThatNoIncludeTakesAreTurnedAway) {
  Afloop const afloop =
      voer({"encode", "bel.wav", "-o", "a\"b", "--declarations", "t.h", "--source", "t.c"});
  EXPECT_EQ(afloop.status, 1);
  EXPECT_EQ(afloop.fouten,
            "kestrolin-cli: a\"b: its name cannot stand in an #include; give it another one\n");
}

// Make reads back what it is told, and asks for the file by its own name.
TEST_F(Bijlagen, MakeReadsTheNamesBack) {
  std::string const vreemd = "een $naam #1/bel.wav";
  std::filesystem::create_directory(map.pad("een $naam #1"));
  maakWav(map.pad(vreemd), {1});
  ASSERT_EQ(voer({"encode", vreemd, "-o", "t u", "--depfile", "d"}).status, 0);
  maakBestand(map.pad("Makefile"), "include d\nt\\ u:\n\t@echo made >made\n");
  EXPECT_EQ(compileer("make -q"), 0) << "nothing is to be made";
  voerUit("touch -d '+1 minute' '" + map.pad(vreemd) + "'");
  EXPECT_EQ(compileer("make >make.txt 2>&1 && test -f made"), 0) << tekst("make.txt");
  // A recording that has gone makes the text again, too.
  std::filesystem::remove(map.pad("made"));
  std::filesystem::remove(map.pad(vreemd));
  EXPECT_EQ(compileer("make >make.txt 2>&1 && test -f made"), 0) << tekst("make.txt");
}

TEST_F(Bijlagen, NamesOfGuardsAreThoseOfTheFilesInCapitals) {
  Omgeving const doel{UitvoerTaalC, ""};
  EXPECT_NE(declaratieTekst("a/b.c/1 geluid-größe.h", doel, {{"bel", "", ""}})
                .find("#ifndef KESTROLIN_1_GELUID_GR____E_H_bel\n"),
            std::string::npos);
}

}  // namespace
