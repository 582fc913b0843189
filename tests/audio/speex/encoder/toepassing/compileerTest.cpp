// The saved text is source code: compilers take it, and a program finds the samples in it.
#include <wx/filename.h>

#include <cstdlib>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"

namespace {

class CompileerProef : public WerkProef {
 protected:
  // Loads and encodes three files, and saves the text as `naam`.
  void bewaarDrie(int taal, wxString const& naam) {
    begin(taal);
    laad({wav("bel.wav", {1, -1}), wav("zoem.wav", {0x1234, -32768, 32767}), wav("stil.wav", {})});
    codeer();
    bewaar(pad(naam));
  }
  // The lines between the comment on the declarations and the first fragment, out of their comment
  // marks: what a user copies into a header file.
  wxString declaraties() const {
    wxString regels = tekst();
    wxString const kop = "/* Put these declarations in a header file :*/\n";
    regels = regels.Mid(regels.find(kop) + kop.length());
    regels = regels.Left(regels.find("/*"));
    regels.Replace("//", "");
    return regels;
  }
  // Compiles and links in the test's directory, warnings being errors, and runs the program.
  // Returns what it printed.
  wxString bouwEnDraai(wxString const& compileren) {
    wxString const opdracht = "cd '" + pad("") + "' && { " + compileren +
                              " -o programma && ./programma; } > uitvoer 2>&1";
    // NOLINTNEXTLINE(cert-env33-c): the compilers are found as the user's shell finds them.
    EXPECT_EQ(std::system(opdracht.utf8_str()), 0) << inhoud(pad("uitvoer")).utf8_str();
    return inhoud(pad("uitvoer"));
  }
};

// The arrays in the order of their names: count, frequency 8000, samples, each low byte first.
constexpr char const* verwacht =
    "02 00 00 00 40 1f 01 00 ff ff\n"
    "00 00 00 00 40 1f\n"
    "03 00 00 00 40 1f 34 12 00 80 ff 7f\n";

TEST_F(CompileerProef, TheCTextOfSeveralFilesCompilesWithTheDeclarationsOfItsComments) {
  bewaarDrie(0, "geluid.c");
  bestand("geluid.h", declaraties().utf8_string());
  bestand("hoofd.c",
          "#include <stdio.h>\n"
          "#include \"geluid.h\"\n"
          "static void toon(unsigned char const* bytes, int aantal) {\n"
          "  for (int i = 0; i < aantal; ++i) {\n"
          "    printf(i == 0 ? \"%02x\" : \" %02x\", bytes[i]);\n"
          "  }\n"
          "  printf(\"\\n\");\n"
          "}\n"
          "int main(void) {\n"
          "  toon(bel, 10);\n"
          "  toon(stil, 6);\n"
          "  toon(zoem, 12);\n"
          "  return 0;\n"
          "}\n");
  EXPECT_EQ(bouwEnDraai("gcc -std=c99 -Wall -Wextra -Wpedantic -Werror -include geluid.h hoofd.c "
                        "geluid.c"),
            verwacht);
}

TEST_F(CompileerProef, TheCPlusPlusTextOfSeveralFilesCompilesWithTheDeclarationsOfItsComments) {
  bewaarDrie(1, "geluid.cpp");
  // The arrays are private, so that the program needs to be a friend.
  wxString klasse = declaraties();
  ASSERT_EQ(klasse.Replace("};", "friend int main();\n};"), 1U);
  bestand("geluid.h", klasse.utf8_string());
  bestand("hoofd.cpp",
          "#include <cstdio>\n"
          "static void toon(unsigned char const* bytes, int aantal) {\n"
          "  for (int i = 0; i < aantal; ++i) {\n"
          "    std::printf(i == 0 ? \"%02x\" : \" %02x\", bytes[i]);\n"
          "  }\n"
          "  std::printf(\"\\n\");\n"
          "}\n"
          "int main() {\n"
          "  toon(Geluid::bel, 10);\n"
          "  toon(Geluid::stil, 6);\n"
          "  toon(Geluid::zoem, 12);\n"
          "}\n");
  EXPECT_EQ(bouwEnDraai("g++ -std=c++17 -Wall -Wextra -Wpedantic -Werror -include geluid.h "
                        "hoofd.cpp geluid.cpp"),
            verwacht);
}

}  // namespace
