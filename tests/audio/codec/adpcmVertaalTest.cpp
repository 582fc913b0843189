// The generated ADPCM text as what it is meant for: source that a compiler turns into bytes. Those
// are compared with the binary image that a new converter writes of the same file, and with the
// model.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/adpcmTekstHulp.h"
#include "tests/steun/tijdelijkeMap.h"

namespace {

struct Geval {
  int rate;
  unsigned long long bitShift;
  bool metHeader;
};

// The name of a case, for the test's name and for its message.
std::string naamVan(Geval const& geval) {
  return std::to_string(geval.rate) + "HzSchuif" + std::to_string(geval.bitShift) +
         (geval.metHeader ? "MetHeader" : "ZonderHeader");
}

void PrintTo(Geval const& geval, std::ostream* uit) {
  *uit << naamVan(geval);
}

// A test of this fixture has one WAV file of 4001 frames, which make 2000 bytes, and one generated
// source.
class AdpcmVertaal : public testing::TestWithParam<Geval> {
 protected:
  AdpcmVertaal() { schrijfWav(map.pad("toon.wav"), samples, {GetParam().rate, 1, 16, 1}); }

  void genereer(ADPCMEncoderTaal taal, std::string const& klasse, std::string const& bron) {
    maakBestand(map.pad(bron), adpcmTekst({taal, wxTekst(klasse), GetParam().bitShift},
                                          map.pad("toon.wav"), GetParam().metHeader));
  }

  testing::AssertionResult lukt(std::string const& opdracht) const {
    return luktIn(map.pad(), opdracht);
  }

  // What the compiled program wrote is what the image holds.
  void verwachtHetBeeld() {
    Bytes const vertaald = leesBytes(map.pad("toon.bin"));
    ADPCMDesktopConverter vers = converterMet(ADPCMEncoderOpties(ADPCMTaalC, GetParam().bitShift));
    EXPECT_EQ(vertaald,
              adpcmBeeld(vers, map.pad("toon.wav"), GetParam().metHeader, map.pad("beeld.bin")));
    AdpcmStand stand;
    Bytes const codes = modelBytes(stand, samples, 1 << static_cast<int>(GetParam().bitShift));
    EXPECT_EQ(vertaald, modelBeeld(codes, GetParam().rate, GetParam().metHeader));
  }

  TijdelijkeMap map;

 private:
  std::vector<int> const samples = golf(4001);
};

TEST_P(AdpcmVertaal, alsC) {
  genereer(ADPCMTaalC, "", "toon.c");
  // The linker knows no sizes, so that the compiler has to vouch for that of the array.
  maakBestand(map.pad("maat.c"),
              "#include \"toon.c\"\ntypedef char maat[sizeof toon == 2000 + 9 ? 1 : -1];\n");
  maakBestand(map.pad("dump.c"),
              "#include <stdio.h>\n"
              "extern const unsigned char toon[];\n"
              "int main(void) {\n"
              "  fwrite(toon, 1, 2000 + 9, stdout);\n"
              "  return 0;\n"
              "}\n");
  ASSERT_TRUE(lukt("gcc -std=c99 -Wall -Wextra -Werror -c toon.c"));
  EXPECT_TRUE(lukt("gcc -std=c99 -fsyntax-only maat.c"));
  ASSERT_TRUE(lukt("gcc -std=c99 -Wall -Wextra -Werror dump.c toon.o -o dump"));
  ASSERT_TRUE(lukt("./dump > toon.bin"));
  verwachtHetBeeld();
}

TEST_P(AdpcmVertaal, alsCpp) {
  genereer(ADPCMTaalCPP, "Klank", "toon.inc");
  maakBestand(map.pad("klank.h"),
              "class Klank {\n"
              " public:\n"
              "  static const unsigned char toon[];\n"
              "};\n");
  maakBestand(map.pad("toon.cpp"),
              "#include \"klank.h\"\n#include \"toon.inc\"\n"
              "static_assert(sizeof Klank::toon == 2000 + 9);\n");
  maakBestand(map.pad("dump.cpp"),
              "#include <cstdio>\n"
              "#include \"klank.h\"\n"
              "int main() {\n"
              "  std::fwrite(Klank::toon, 1, 2000 + 9, stdout);\n"
              "}\n");
  ASSERT_TRUE(lukt("g++ -std=c++17 -Wall -Wextra -Werror -c toon.cpp"));
  ASSERT_TRUE(lukt("g++ -std=c++17 -Wall -Wextra -Werror dump.cpp toon.o -o dump"));
  ASSERT_TRUE(lukt("./dump > toon.bin"));
  verwachtHetBeeld();
}

INSTANTIATE_TEST_SUITE_P(ElkeFrequentieEnDac, AdpcmVertaal,
                         testing::Values(Geval{8000, 0, true}, Geval{8000, 8, false},
                                         Geval{16000, 4, true}, Geval{32000, 6, false},
                                         Geval{44100, 0, false}),
                         [](testing::TestParamInfo<Geval> const& geval) {
                           return naamVan(geval.param);
                         });

}  // namespace
