// The generated text as what it is meant for: source that a compiler turns into bytes. Each text is
// compiled by itself with strict options and linked to a small program that writes its array to a
// file; the bytes are compared with what sox makes of the same WAV file.
#include <gtest/gtest.h>

#include <ostream>
#include <string>

#include "audio/codec/pcmDesktopConverter.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/steun/opdracht.h"
#include "tests/steun/tijdelijkeMap.h"

namespace {

struct Geval {
  int rate;
  int deler;  // 2 to the power bitShift
  bool metHeader;
};

// The name of a case, for the test's name and for its message.
std::string naamVan(Geval const& geval) {
  return std::to_string(geval.rate) + "HzGedeeldDoor" + std::to_string(geval.deler) +
         (geval.metHeader ? "MetHeader" : "ZonderHeader");
}

void PrintTo(Geval const& geval, std::ostream* uit) {
  *uit << naamVan(geval);
}

// A test of this fixture has one WAV file and one generated source.
class PcmVertaal : public testing::TestWithParam<Geval> {
 protected:
  PcmVertaal() { schrijfWav(map.pad("toon.wav"), golf(4001), {GetParam().rate, 1, 16, 1}); }

  void genereer(PCMEncoderTaal taal, std::string const& klasse, std::string const& bron) {
    unsigned long long bitShift = 0;
    while (1 << bitShift < GetParam().deler) {
      ++bitShift;
    }
    PCMDesktopConverter(PCMEncoderOpties(taal, wxTekst(klasse), bitShift))
        .codeerBestand(bestandsnaam(map.pad("toon.wav")), GetParam().metHeader,
                       bestandsnaam(map.pad(bron)));
  }

  testing::AssertionResult lukt(std::string const& opdracht) const {
    return luktIn(map.pad(), opdracht);
  }

  // The samples that sox reads, divided, in the shape of the array.
  Bytes verwacht() {
    EXPECT_TRUE(lukt("sox toon.wav -t raw -e signed -b 16 -L toon.raw"));
    Bytes const ruw = leesBytes(map.pad("toon.raw"));
    EXPECT_EQ(ruw.size(), 8002U);
    std::vector<int> samples;
    for (std::size_t i = 0; i + 1 < ruw.size(); i += 2) {
      int const waarde = ruw[i] + 256 * ruw[i + 1];
      samples.push_back(waarde < 32768 ? waarde : waarde - 65536);
    }
    return verwachtBeeld(gedeeld(samples, GetParam().deler), GetParam().rate, GetParam().metHeader);
  }

  TijdelijkeMap map;
};

// What stands in the text between `begin` and the next `einde`.
std::string tussen(std::string const& tekst, std::string const& begin, std::string const& einde) {
  std::size_t const plaats = tekst.find(begin);
  std::size_t const slot = tekst.find(einde, plaats);
  if (plaats == std::string::npos || slot == std::string::npos) {
    ADD_FAILURE() << "no " << begin << " with " << einde << " behind it";
    return "";
  }
  return tekst.substr(plaats + begin.size(), slot - plaats - begin.size());
}

TEST_P(PcmVertaal, alsC) {
  genereer(PCMTaalC, "", "toon.c");
  // The declaration comes out of the text's own line of comment.
  std::string const declaratie = tussen(leesTekst(map.pad("toon.c")), "/* const", " */\n");
  maakBestand(map.pad("dump.c"), "#include <stdio.h>\nconst" + declaratie +
                                     "\n"
                                     "extern const unsigned char toon[];\n"
                                     "int main(void) {\n"
                                     "  fwrite(toon, 1, toon_pcmNumberOfEncSamples * 2 + 6, "
                                     "stdout);\n"
                                     "  return 0;\n"
                                     "}\n");
  // The linker knows no sizes, so that the compiler has to vouch for that of the array.
  maakBestand(map.pad("maat.c"),
              "#include \"toon.c\"\nconst" + declaratie +
                  "\ntypedef char maat[sizeof toon == 4001 * 2 + 6 ? 1 : -1];\n");
  ASSERT_TRUE(lukt("gcc -std=c99 -Wall -Wextra -Werror -c toon.c"));
  EXPECT_TRUE(lukt("gcc -std=c99 -fsyntax-only maat.c"));
  ASSERT_TRUE(lukt("gcc -std=c99 -Wall -Wextra -Werror dump.c toon.o -o dump"));
  ASSERT_TRUE(lukt("./dump > toon.bin"));
  EXPECT_EQ(leesBytes(map.pad("toon.bin")), verwacht());
}

TEST_P(PcmVertaal, alsCpp) {
  genereer(PCMTaalCPP, "Klank", "toon.inc");
  std::string const declaratie =
      tussen(leesTekst(map.pad("toon.inc")), "//const unsigned int Klank::", "\n");
  maakBestand(map.pad("klank.h"),
              "class Klank {\n"
              " public:\n"
              "  static const unsigned int " +
                  declaratie +
                  "\n"
                  "  static const unsigned char toon[];\n"
                  "};\n");
  maakBestand(map.pad("toon.cpp"),
              "#include \"klank.h\"\n#include \"toon.inc\"\n"
              "static_assert(sizeof Klank::toon == 4001 * 2 + 6);\n");
  maakBestand(map.pad("dump.cpp"),
              "#include <cstdio>\n"
              "#include \"klank.h\"\n"
              "int main() {\n"
              "  std::fwrite(Klank::toon, 1, Klank::toon_pcmNumberOfEncSamples * 2 + 6, stdout);\n"
              "}\n");
  ASSERT_TRUE(lukt("g++ -std=c++17 -Wall -Wextra -Werror -c toon.cpp"));
  ASSERT_TRUE(lukt("g++ -std=c++17 -Wall -Wextra -Werror dump.cpp toon.o -o dump"));
  ASSERT_TRUE(lukt("./dump > toon.bin"));
  EXPECT_EQ(leesBytes(map.pad("toon.bin")), verwacht());
}

INSTANTIATE_TEST_SUITE_P(ElkeFrequentieEnDac, PcmVertaal,
                         testing::Values(Geval{8000, 1, true}, Geval{8000, 256, false},
                                         Geval{16000, 16, true}, Geval{16000, 1, false},
                                         Geval{32000, 64, true}, Geval{32000, 256, true}),
                         [](testing::TestParamInfo<Geval> const& geval) {
                           return naamVan(geval.param);
                         });

// Identifiers that no compiler takes are the user's affair.
TEST(PcmVertaalNaam, naamMetEenPuntVertaaltNiet) {
  TijdelijkeMap const map;
  schrijfWav(map.pad("a.b.wav"), {1});
  PCMDesktopConverter(PCMEncoderOpties(PCMTaalC, 0))
      .codeerBestand(bestandsnaam(map.pad("a.b.wav")), true, bestandsnaam(map.pad("ab.c")));
  std::string const opdracht =
      "cd '" + map.pad() + "' && gcc -std=c99 -fsyntax-only ab.c 2> fouten.txt";
  EXPECT_NE(voerUit(opdracht), 0);
  EXPECT_NE(leesTekst(map.pad("fouten.txt")).find("error"), std::string::npos);
}

}  // namespace
