#include "tests/audio/weergave/vertaaldeArrays.h"

#include <gtest/gtest.h>

#include <cstddef>

#include "tests/audio/codec/codecHulp.h"
#include "tests/steun/wavMaker.h"

namespace {

std::string declaraties(Program const& program, std::string const& type) {
  std::string regels = std::string("struct ") + className + " {\n";
  for (TextFragment const& fragment : program.fragments) {
    regels += "  static const " + type + " " + fragment.name + "[];\n";
  }
  return regels + "};\n";
}

// Takes each array out of the stream: its size in eight bytes, and its bytes.
std::vector<Bytes> ontleed(Bytes const& stroom) {
  std::vector<Bytes> arrays;
  std::size_t plaats = 0;
  while (plaats + 8 <= stroom.size()) {
    std::size_t aantal = 0;
    for (std::size_t i = 8; i > 0; --i) {
      aantal = aantal * 256 + stroom[plaats + i - 1];
    }
    plaats += 8;
    EXPECT_LE(aantal, stroom.size() - plaats);
    auto const begin = stroom.begin() + static_cast<std::ptrdiff_t>(plaats);
    arrays.emplace_back(begin, begin + static_cast<std::ptrdiff_t>(aantal));
    plaats += aantal;
  }
  EXPECT_EQ(plaats, stroom.size());
  return arrays;
}

}  // namespace

std::vector<Bytes> vertaaldeArrays(Program const& program, std::string const& map) {
  bool const isC = program.language == UitvoerTaalC;
  std::string bron = "#include <stdio.h>\n";
  bron += isC ? ""
              : declaraties(program, program.kind == Kind::Speex ? "signed char" : "unsigned char");
  bron +=
      "#include \"tekst\"\n"
      "static void toon(void const* array, unsigned long long aantal) {\n"
      "  fwrite(&aantal, 8, 1, stdout);\n"
      "  fwrite(array, 1, aantal, stdout);\n"
      "}\n"
      "int main() {\n";
  for (TextFragment const& fragment : program.fragments) {
    std::string const naam = (isC ? "" : std::string(className) + "::") + fragment.name;
    bron.append("  toon(").append(naam).append(", sizeof ").append(naam).append(");\n");
  }
  maakBestand(map + "/tekst", program.text);
  maakBestand(map + (isC ? "/toon.c" : "/toon.cpp"), bron + "}\n");
  EXPECT_TRUE(luktIn(map, std::string(isC ? "gcc toon.c" : "g++ -Wno-narrowing toon.cpp") +
                              " -o toon && ./toon > bytes"));
  return ontleed(leesBytes(map + "/bytes"));
}
