// The text of a run is source code: compilers take it with the declarations of its comments, and a
// program finds the arrays in it.
#include "tests/audio/uitvoer/wijzeProef.h"

namespace {

// An array of the text, and the number of its bytes.
struct GetoondeArray {
  std::string naam;
  int bytes;
};

class RunCompileer : public WijzeProef {
 protected:
  RunCompileer() { neem({{"bel", {1, -1, 100, -100, 5}}, {"stil", {}}, {"zoem", {0, 0, 0, 0}}}); }

  // Compiles the text with the declarations, warnings being errors, and a program that prints the
  // arrays: a line each, in two hexadecimal digits a byte. Returns what it prints.
  std::string gedrukt(std::string const& bron, std::string const& tekst,
                      std::string const& declaraties, std::string const& compiler) {
    maakBestand(map.pad(bron), tekst);
    maakBestand(map.pad("geluid.h"), declaraties);
    std::string programma =
        "#include <stdio.h>\n"
        "static void toon(unsigned char const* bytes, int aantal) {\n"
        "  for (int i = 0; i < aantal; ++i) {\n"
        "    printf(i == 0 ? \"%02x\" : \" %02x\", bytes[i]);\n"
        "  }\n"
        "  printf(\"\\n\");\n"
        "}\n"
        "int main() {\n";
    for (GetoondeArray const& een : arrays()) {
      programma += std::string("  toon(") + (bron == "geluid.c" ? "" : "Geluid::") + een.naam +
                   ", " + std::to_string(een.bytes) + ");\n";
    }
    maakBestand(map.pad("hoofd_" + bron), programma + "}\n");
    EXPECT_TRUE(luktIn(map.pad(), compiler +
                                      " -Wall -Wextra -Wpedantic -Werror -include geluid.h " +
                                      bron + " hoofd_" + bron + " -o programma"));
    EXPECT_TRUE(luktIn(map.pad(), "./programma > gedrukt"));
    return leesTekst(map.pad("gedrukt"));
  }

  // The lines between the comment on the declarations and the first fragment, out of their comment
  // marks: what a user copies into a header file.
  static std::string declaraties(std::string regels) {
    std::string const kop = "/* Put these declarations in a header file :*/\n";
    regels.erase(0, regels.find(kop) + kop.size());
    regels.erase(regels.find("/*"));
    for (std::size_t plaats = regels.find("//"); plaats != std::string::npos;
         plaats = regels.find("//")) {
      regels.erase(plaats, 2);
    }
    return regels;
  }

  // By the layout of each encoder, in which all numbers have their low byte first. PCM: count,
  // frequency 8000, samples. ADPCM: count of the bytes of code, frequency, a start from 0 and 0,
  // codes; those of the last array go on from where the first one ended. WAV: by the definition of
  // the format.
  static std::string verwacht() {
    if (GetParam() == Wijze::pcm) {
      return "05 00 00 00 40 1f 01 00 ff ff 64 00 9c ff 05 00\n"
             "00 00 00 00 40 1f\n"
             "04 00 00 00 40 1f 00 00 00 00 00 00 00 00\n";
    }
    if (GetParam() == Wijze::adpcm) {
      return "02 00 00 00 40 1f 00 00 00 91 f7\n"
             "00 00 00 00 40 1f 00 00 00\n"
             "02 00 00 00 40 1f 00 00 00 82 80\n";
    }
    std::string const soort =
        " 57 41 56 45 66 6d 74 20 10 00 00 00 01 00 01 00 "
        "40 1f 00 00 80 3e 00 00 02 00 10 00 64 61 74 61 ";
    return "52 49 46 46 2e 00 00 00" + soort + "0a 00 00 00 01 00 ff ff 64 00 9c ff 05 00\n" +
           "52 49 46 46 24 00 00 00" + soort + "00 00 00 00\n" + "52 49 46 46 2c 00 00 00" + soort +
           "08 00 00 00 00 00 00 00 00 00 00 00\n";
  }
  static std::vector<GetoondeArray> arrays() {
    switch (GetParam()) {
      case Wijze::pcm:
        return {{"bel", 16}, {"stil", 6}, {"zoem", 14}};
      case Wijze::adpcm:
        return {{"bel", 11}, {"stil", 9}, {"zoem", 11}};
      default:
        return {{"bel", 54}, {"stil", 44}, {"zoem", 52}};
    }
  }
};

TEST_P(RunCompileer, TheCTextOfSeveralFilesCompilesWithTheDeclarationsOfItsComments) {
  instellingen.speexOutputLanguage = 0;
  std::string const bron = tekst();
  EXPECT_EQ(gedrukt("geluid.c", bron, declaraties(bron), "gcc -std=c99"), verwacht());
}

TEST_P(RunCompileer, TheCPlusPlusTextOfSeveralFilesCompilesWithTheDeclarationsOfItsComments) {
  instellingen.speexOutputLanguage = 1;
  // The arrays are private, so that the program needs to be a friend.
  std::string const bron = tekst();
  std::string deel = declaraties(bron);
  deel.insert(deel.find("};"), "friend int main();\n");
  EXPECT_EQ(gedrukt("geluid.cpp", bron, deel, "g++ -std=c++17"), verwacht());
}

INSTANTIATE_TEST_SUITE_P(, RunCompileer, elkeWijze(), naamVan);

}  // namespace
