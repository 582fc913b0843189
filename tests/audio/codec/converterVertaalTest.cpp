// The generated text as what it is meant for: source that a compiler turns into bytes. Each text is
// compiled by itself with strict options, and linked to a small program that writes its array to a
// file.
#include "tests/audio/codec/converterSoort.h"
#include "tests/steun/opdracht.h"

namespace {

// The bytes of an array with the codes or samples of this packet.
Bytes beeldVan(Bytes const& codes, int rate, bool metHeader) {
  return modelBeeld(codes, rate, metHeader);
}
Bytes beeldVan(std::vector<int> const& samples, int rate, bool metHeader) {
  return verwachtBeeld(samples, rate, metHeader);
}

// A test of this fixture has one WAV file of 4001 frames at 16000 Hz, for a DAC of 12 bits.
template <typename Soort>
class ConverterVertaal : public ConverterProef<Soort> {
 protected:
  ConverterVertaal() { schrijfWav(this->toon, golf(4001), {16000}); }

  void genereer(int taal, bool metHeader, std::string const& bron) {
    maakBestand(this->map.pad(bron),
                this->tekst(this->opties(taal, "Klank", 4), this->toon, metHeader));
    beeld = beeldVan(Soort().waarden(golf(4001), 16), 16000, metHeader);
    maat = std::to_string(beeld.size());
  }
  void verwacht(std::string const& opdracht) const {
    ASSERT_TRUE(luktIn(this->map.pad(), opdracht));
  }
  void verwachtHetBeeld() const {
    verwacht("./dump > toon.bin");
    EXPECT_EQ(leesBytes(this->map.pad("toon.bin")), beeld);
  }

  Bytes beeld;
  std::string maat;
};
TYPED_TEST_SUITE(ConverterVertaal, ConverterSoorten, SoortNaam);

TYPED_TEST(ConverterVertaal, alsCMetHeader) {
  this->genereer(0, true, "toon.c");
  // The linker knows no sizes, so that the compiler has to vouch for that of the array.
  maakBestand(this->map.pad("maat.c"), "#include \"toon.c\"\ntypedef char maat[sizeof toon == " +
                                           this->maat + " ? 1 : -1];\n");
  maakBestand(this->map.pad("dump.c"),
              "#include <stdio.h>\nextern const unsigned char toon[];\n"
              "int main(void) {\n  fwrite(toon, 1, " +
                  this->maat + ", stdout);\n  return 0;\n}\n");
  std::string const gcc = "gcc -std=c99 -Wall -Wextra -Werror ";
  this->verwacht(gcc + "-c toon.c && gcc -std=c99 -fsyntax-only maat.c && " + gcc +
                 "dump.c toon.o -o dump");
  this->verwachtHetBeeld();
}

TYPED_TEST(ConverterVertaal, alsCppZonderHeader) {
  this->genereer(1, false, "toon.inc");
  maakBestand(this->map.pad("klank.h"),
              "class Klank {\n public:\n  static const unsigned char toon[];\n};\n");
  maakBestand(this->map.pad("toon.cpp"),
              "#include \"klank.h\"\n#include \"toon.inc\"\nstatic_assert(sizeof Klank::toon == " +
                  this->maat + ");\n");
  maakBestand(this->map.pad("dump.cpp"),
              "#include <cstdio>\n#include \"klank.h\"\n"
              "int main() {\n  std::fwrite(Klank::toon, 1, " +
                  this->maat + ", stdout);\n}\n");
  std::string const gxx = "g++ -std=c++17 -Wall -Wextra -Werror ";
  this->verwacht(gxx + "-c toon.cpp && " + gxx + "dump.cpp toon.o -o dump");
  this->verwachtHetBeeld();
}

// The lines of the counts are declarations, once they are out of their comment.
TYPED_TEST(ConverterVertaal, tellingenZijnDeclaraties) {
  auto const vertaalbaar = [this](std::string const& begin, std::string const& einde,
                                  std::string const& bron, std::string const& compiler) {
    std::string const tekst = leesTekst(this->map.pad(bron));
    std::string regels;
    for (std::size_t plaats = tekst.find(begin); plaats != std::string::npos;
         plaats = tekst.find(begin, plaats + 1)) {
      std::size_t const van = plaats + begin.size();
      regels +=
          "static const unsigned int " + tekst.substr(van, tekst.find(einde, van) - van) + "\n";
    }
    EXPECT_FALSE(regels.empty());
    maakBestand(this->map.pad("telling.h"), "struct Klank {\n" + regels + "};\n");
    maakBestand(this->map.pad("telling.c"), regels);
    this->verwacht(compiler);
  };
  this->genereer(0, true, "toon.c");
  vertaalbaar("/* const unsigned int ", " */\n", "toon.c", "gcc -std=c99 -fsyntax-only telling.c");
  this->genereer(1, true, "toon.inc");
  vertaalbaar("//const unsigned int Klank::", "\n", "toon.inc",
              "g++ -std=c++17 -fsyntax-only -x c++ telling.h");
}

// Identifiers that no compiler takes are the user's affair.
TYPED_TEST(ConverterVertaal, naamMetEenPuntVertaaltNiet) {
  schrijfWav(this->map.pad("a.b.wav"), {1});
  maakBestand(this->map.pad("ab.c"), this->tekst(this->opties(0), this->map.pad("a.b.wav")));
  EXPECT_NE(
      voerUit("cd '" + this->map.pad() + "' && gcc -std=c99 -fsyntax-only ab.c 2> fouten.txt"), 0);
  EXPECT_NE(leesTekst(this->map.pad("fouten.txt")).find("error"), std::string::npos);
}

}  // namespace
