// The saved text of a Speex run is source code: compilers take it, and a program finds the frames
// in it.
#include <wx/spinctrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/speexRunProef.h"
#include "tests/steun/opdracht.h"

namespace {

class SpeexCompileerProef : public SpeexRunProef {
 protected:
  // Encodes and saves; then compiles a program that takes the text in behind `kop`, and returns
  // what the program writes.
  Bytes bouwEnDraai(std::string const& bron, std::string const& kop, std::string const& programma,
                    std::string const& compileren) {
    codeer();
    bewaarTekst(wxString::FromUTF8(bron.c_str()));
    bestand("programma." + bron.substr(bron.find('.') + 1),
            "#include <stdio.h>\n" + kop + "#include \"" + bron + "\"\n" + programma);
    std::string const opdracht = "cd '" + map.pad() + "' && { " + compileren +
                                 " -Wall -Wextra -Wpedantic -Werror -o programma "
                                 "&& ./programma > uitvoer; } > bouw 2>&1";
    EXPECT_EQ(voerUit(opdracht), 0) << leesTekst(map.pad("bouw"));
    return leesBytes(map.pad("uitvoer"));
  }
  Bytes bouwEnDraaiInC(std::string const& kop, std::string const& regels) {
    return bouwEnDraai("geluid.c", kop, "int main(void) {\n" + regels + "  return 0;\n}\n",
                       "gcc -std=c99 programma.c");
  }
  // With the class that the comments at the head of the text ask for.
  Bytes bouwEnDraaiInCpp(std::string const& leden, std::string const& regels) {
    return bouwEnDraai("geluid.cpp",
                       "class Geluid {\n private:\n" + leden + "  friend int main();\n};\n",
                       "int main() {\n" + regels + "}\n", "g++ -std=c++17 programma.cpp");
  }
};

// The layout of the arrays: rate and number of samples where there is a header, low bytes first,
// and each frame behind a byte with its size.
Bytes beeldVan(SpeexFragmenten const& fragmenten, Instelling const& instelling, bool metHeader) {
  std::vector<Frames> const frames = framesVan(fragmenten, instelling);
  Bytes beeld;
  auto const voegToe = [&beeld](Bytes const& bytes) {
    beeld.insert(beeld.end(), bytes.begin(), bytes.end());
  };
  for (std::size_t i = 0; i < fragmenten.size(); ++i) {
    if (metHeader) {
      voegToe(laagEerst(static_cast<unsigned long long>(instelling.rate()), 2));
      voegToe(laagEerst(fragmenten[i].samples.size(), 2));
    }
    for (Bytes const& frame : frames[i]) {
      voegToe(laagEerst(frame.size(), 1));
      voegToe(frame);
    }
  }
  return beeld;
}

TEST_F(SpeexCompileerProef, TheCTextOfThreeFilesHoldsTheirFrames) {
  beginSpeex(0);
  laadFragmenten(drieFragmenten());
  EXPECT_EQ(bouwEnDraaiInC("extern const signed char bel[];\n"
                           "extern const signed char tik[];\n"
                           "extern const signed char zoem[];\n",
                           "  fwrite(bel, 1, sizeof bel, stdout);\n"
                           "  fwrite(tik, 1, sizeof tik, stdout);\n"
                           "  fwrite(zoem, 1, sizeof zoem, stdout);\n"),
            beeldVan(drieFragmenten(), eersteInstelling(), true));
}

TEST_F(SpeexCompileerProef, TheCPlusPlusTextOfThreeFilesWithoutHeaderHoldsTheirFrames) {
  beginSpeex(1);
  laadFragmenten(drieFragmenten());
  zonderHeader();
  EXPECT_EQ(bouwEnDraaiInCpp("  static const signed char bel[];\n"
                             "  static const signed char tik[];\n"
                             "  static const signed char zoem[];\n",
                             "  fwrite(Geluid::bel, 1, sizeof Geluid::bel, stdout);\n"
                             "  fwrite(Geluid::tik, 1, sizeof Geluid::tik, stdout);\n"
                             "  fwrite(Geluid::zoem, 1, sizeof Geluid::zoem, stdout);\n"),
            beeldVan(drieFragmenten(), eersteInstelling(), false));
}

TEST_F(SpeexCompileerProef, TheSizesOfTheLargestFramesAreSignedCharsInCPlusPlus) {
  constexpr unsigned int besteKwaliteit = 10;
  beginSpeex(1);
  SpeexFragment const bel{"bel", golf(3201), "0.10"};
  laadFragmenten({bel}, 32000);
  zet(spin(ID_QUALITY), besteKwaliteit);
  Instelling instelling = eersteInstelling(2);
  instelling.kwaliteit = besteKwaliteit;
  EXPECT_EQ(bouwEnDraaiInCpp("  static const signed char bel[];\n",
                             "  fwrite(Geluid::bel, 1, sizeof Geluid::bel, stdout);\n"),
            beeldVan({bel}, instelling, true));
}

}  // namespace
