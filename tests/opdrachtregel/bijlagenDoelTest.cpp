// What header and source tell a target besides arrays and sizes: where arrays lie, and what each
// array of ADPCM is decoded from.
#include "tests/audio/codec/adpcmModel.h"
#include "tests/opdrachtregel/programmaProef.h"
#include "tests/steun/opdracht.h"
#include "tests/steun/wavMaker.h"

namespace {

std::vector<std::int16_t> const alarmSamples{20, -30, 100, 127, -128, -128, -90};
std::vector<std::int16_t> const belSamples{4, 50, 60, 7};

// The bytes that a state has to have, in the text of a source.
std::string bytesVan(AdpcmStand const& stand) {
  int const bits = stand.voorspelling < 0 ? stand.voorspelling + 65536 : stand.voorspelling;
  return "{" + std::to_string(bits % 256) + ", " + std::to_string(bits / 256) + ", " +
         std::to_string(stand.index) + "}";
}

// Where the coder stands behind these samples, at a DAC of so many bits.
AdpcmStand standNa(std::vector<std::int16_t> const& samples, int dacBits) {
  AdpcmStand stand;
  modelBytes(stand, {samples.begin(), samples.end()}, 1 << (16 - dacBits));
  return stand;
}

class BijlagenDoel : public ProgrammaProef {
 protected:
  BijlagenDoel() {
    maakWav(map.pad("alarm.wav"), alarmSamples);
    maakWav(map.pad("bel.wav"), belSamples);
  }

  Afloop maak(std::vector<std::string> const& opties) const {
    std::vector<std::string> woorden{"encode", "bel.wav", "alarm.wav", "-o", "geluid.t"};
    woorden.insert(woorden.end(), opties.begin(), opties.end());
    return voer(woorden);
  }

  int compileer(std::string const& opdracht) const {
    return voerUit("cd '" + map.pad() + "' && " + opdracht + " -I'" KESTROLIN_FIRMWARE "'");
  }
};

TEST_F(BijlagenDoel, FlashAndStatesInC) {
  AdpcmStand const bel = standNa(alarmSamples, 16);
  ASSERT_LT(bel.voorspelling, 0);
  ASSERT_GT(bel.index, 0);
  Afloop const afloop = maak({"--encoder", "adpcm", "--flash", "--states", "--declarations",
                              "geluid.h", "--source", "geluid.c"});
  EXPECT_EQ(afloop.status, 0);
  EXPECT_EQ(afloop.uit + afloop.fouten, "");
  EXPECT_EQ(tekst("geluid.h"),
            "/* Made by kestrolin-cli; changes are lost. */\n"
            "#ifndef KESTROLIN_GELUID_H_alarm\n"
            "#define KESTROLIN_GELUID_H_alarm\n"
            "\n"
            "#include <stddef.h>\n"
            "\n"
            "#include \"kestrolin_status.h\"\n"
            "\n"
            "#ifdef __cplusplus\n"
            "extern \"C\" {\n"
            "#endif\n"
            "\n"
            "/* ADPCM, 8000 Hz, 6 samples */\n"
            "extern const unsigned char alarm[] KESTROLIN_FLASH;\n"
            "extern const size_t alarm_size;\n"
            "extern const unsigned char alarm_state[3] KESTROLIN_FLASH;\n"
            "\n"
            "/* ADPCM, 8000 Hz, 4 samples */\n"
            "extern const unsigned char bel[] KESTROLIN_FLASH;\n"
            "extern const size_t bel_size;\n"
            "extern const unsigned char bel_state[3] KESTROLIN_FLASH;\n"
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
            "const size_t bel_size = sizeof bel;\n"
            "const unsigned char alarm_state[3] = {0, 0, 0};\n"
            "const unsigned char bel_state[3] = " +
                bytesVan(bel) + ";\n");
  EXPECT_EQ(compileer("gcc -std=c99 -Wall -Wextra -Wpedantic -Werror -c geluid.c"), 0);
}

TEST_F(BijlagenDoel, FlashAndStatesInCPlusPlus) {
  Afloop const afloop =
      maak({"--encoder", "adpcm", "--dac", "12", "--language", "c++", "--class", "Geluiden",
            "--flash", "--states", "--declarations", "geluid.h", "--source", "geluid.cpp"});
  EXPECT_EQ(afloop.status, 0);
  // Compilers for AVR have no <cstddef>.
  EXPECT_EQ(tekst("geluid.h"),
            "/* Made by kestrolin-cli; changes are lost. */\n"
            "#ifndef KESTROLIN_GELUID_H_Geluiden\n"
            "#define KESTROLIN_GELUID_H_Geluiden\n"
            "\n"
            "#include <stddef.h>\n"
            "\n"
            "#include \"kestrolin_status.h\"\n"
            "\n"
            "class Geluiden {\n"
            " public:\n"
            "  // ADPCM, 8000 Hz, 6 samples\n"
            "  static const unsigned char alarm[] KESTROLIN_FLASH;\n"
            "  static const size_t alarm_size;\n"
            "  static const unsigned char alarm_state[3] KESTROLIN_FLASH;\n"
            "\n"
            "  // ADPCM, 8000 Hz, 4 samples\n"
            "  static const unsigned char bel[] KESTROLIN_FLASH;\n"
            "  static const size_t bel_size;\n"
            "  static const unsigned char bel_state[3] KESTROLIN_FLASH;\n"
            "};\n"
            "\n"
            "#endif\n");
  EXPECT_EQ(tekst("geluid.cpp"),
            "/* Made by kestrolin-cli; changes are lost. */\n"
            "#include \"geluid.h\"\n"
            "\n"
            "#include \"geluid.t\"\n"
            "\n"
            "const size_t Geluiden::alarm_size = sizeof alarm;\n"
            "const size_t Geluiden::bel_size = sizeof bel;\n"
            "const unsigned char Geluiden::alarm_state[3] = {0, 0, 0};\n"
            "const unsigned char Geluiden::bel_state[3] = " +
                bytesVan(standNa(alarmSamples, 12)) + ";\n");
  EXPECT_EQ(compileer("g++ -std=c++11 -Wall -Wextra -Wpedantic -Werror -c geluid.cpp"), 0);
}

// Each option by itself.
TEST_F(BijlagenDoel, OneWithoutTheOther) {
  ASSERT_EQ(maak({"--encoder", "speex", "--declarations", "geluid.h", "--flash"}).status, 0);
  EXPECT_NE(tekst("geluid.h")
                .find("extern const signed char bel[] KESTROLIN_FLASH;\n"
                      "extern const size_t bel_size;\n\n"),
            std::string::npos);
  ASSERT_EQ(maak({"--encoder", "adpcm", "--no-header", "--states", "--declarations", "geluid.h",
                  "--source", "geluid.c"})
                .status,
            0);
  EXPECT_EQ(tekst("geluid.h").find("KESTROLIN_FLASH"), std::string::npos);
  EXPECT_NE(tekst("geluid.h").find("extern const unsigned char bel_state[3];\n"),
            std::string::npos);
}

// With the options another coder makes the text.
TEST_F(BijlagenDoel, TheTextIsTheSameWithThem) {
  omgeving["SOURCE_DATE_EPOCH"] = "1000000000";
  for (std::vector<std::string> vorm : {std::vector<std::string>{},
                                        {"--no-header"},
                                        {"--dac", "12"},
                                        {"--language", "c++", "--class", "Geluiden"}}) {
    vorm.insert(vorm.end(), {"--encoder", "adpcm"});
    ASSERT_EQ(maak(vorm).status, 0);
    std::string const zonder = tekst("geluid.t");
    ASSERT_NE(zonder, "");
    vorm.insert(vorm.end(),
                {"--flash", "--states", "--declarations", "geluid.h", "--source", "geluid.c"});
    ASSERT_EQ(maak(vorm).status, 0);
    EXPECT_EQ(tekst("geluid.t"), zonder) << vorm.front();
  }
}

// No source that another run left is taken for that of this one.
TEST_F(BijlagenDoel, ASourceThatCannotBeWrittenStopsAll) {
  Afloop const afloop = maak(
      {"--encoder", "adpcm", "--states", "--declarations", "geluid.h", "--source", "geen/b.c"});
  EXPECT_EQ(afloop.status, 1);
  EXPECT_EQ(inhoud(), (std::vector<std::string>{"alarm.wav", "bel.wav"}));
}

TEST_F(BijlagenDoel, NamesThatTheStatesHave) {
  std::vector<std::string> const opties{"--encoder",      "adpcm",    "--states", "-o",      "t",
                                        "--declarations", "geluid.h", "--source", "geluid.c"};
  auto const eis = [&](std::vector<std::string> woorden, std::string const& regel) {
    woorden.insert(woorden.end(), opties.begin(), opties.end());
    Afloop const afloop = voer(woorden);
    EXPECT_EQ(afloop.status, 1);
    EXPECT_EQ(afloop.fouten, "kestrolin-cli: " + regel + "\n");
  };
  maakWav(map.pad("bel_state.wav"), {1});
  eis({"encode", "bel_state.wav", "bel.wav"},
      "bel_state.wav: its array would be called \"bel_state\", as the state of that of bel.wav; "
      "rename one of them");
  eis({"encode", "bel.wav", "--language", "c++", "--class", "bel_state"},
      "bel.wav: the state of its array would be called \"bel_state\", as its class is; rename the "
      "file or the class");
}

}  // namespace
