#include "tests/audio/speex/encoder/toepassing/compileerProef.h"

#include "tests/steun/opdracht.h"

namespace {

std::string programma(std::string const& voorvoegsel, std::vector<GetoondeArray> const& arrays) {
  std::string tekst =
      "#include <stdio.h>\n"
      "static void toon(unsigned char const* bytes, int aantal) {\n"
      "  for (int i = 0; i < aantal; ++i) {\n"
      "    printf(i == 0 ? \"%02x\" : \" %02x\", bytes[i]);\n"
      "  }\n"
      "  printf(\"\\n\");\n"
      "}\n"
      "int main() {\n";
  for (GetoondeArray const& een : arrays) {
    tekst += "  toon(" + voorvoegsel + een.naam + ", " + std::to_string(een.bytes) + ");\n";
  }
  return tekst + "}\n";
}

}  // namespace

// The lines between the comment on the declarations and the first fragment, out of their comment
// marks: what a user copies into a header file.
wxString CompileerProef::declaraties() const {
  wxString regels = tekst();
  wxString const kop = "/* Put these declarations in a header file :*/\n";
  regels = regels.Mid(regels.find(kop) + kop.length());
  regels = regels.Left(regels.find("/*"));
  regels.Replace("//", "");
  return regels;
}

// Compiles and links in the test's directory, warnings being errors, and runs the program. Returns
// what it printed.
wxString CompileerProef::bouwEnDraai(wxString const& compileren) {
  wxString const opdracht = "cd '" + pad("") + "' && { " + compileren +
                            " -Wall -Wextra -Wpedantic -Werror -include geluid.h -o programma && "
                            "./programma; } > uitvoer 2>&1";
  EXPECT_EQ(voerUit(opdracht.utf8_string()), 0) << inhoud(pad("uitvoer")).utf8_str();
  return inhoud(pad("uitvoer"));
}

wxString CompileerProef::arraysInC(std::vector<GetoondeArray> const& arrays) {
  bestand("geluid.h", declaraties().utf8_string());
  bestand("hoofd.c", programma("", arrays));
  return bouwEnDraai("gcc -std=c99 hoofd.c geluid.c");
}

wxString CompileerProef::arraysInCpp(std::vector<GetoondeArray> const& arrays) {
  // The arrays are private, so that the program needs to be a friend.
  wxString klasse = declaraties();
  EXPECT_EQ(klasse.Replace("};", "friend int main();\n};"), 1U);
  bestand("geluid.h", klasse.utf8_string());
  bestand("hoofd.cpp", programma("Geluid::", arrays));
  return bouwEnDraai("g++ -std=c++17 hoofd.cpp geluid.cpp");
}
