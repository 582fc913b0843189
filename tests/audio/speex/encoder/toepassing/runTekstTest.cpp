// The head of an output: its first line, and the declarations.
#include "audio/speex/encoder/toepassing/runTekst.h"

#include <gtest/gtest.h>

namespace {

ArrayTypen const typen{"// extern T ", "// static T "};

wxArrayString paden(std::initializer_list<char const*> lijst) {
  wxArrayString uit;
  for (char const* een : lijst) {
    uit.Add(wxString::FromUTF8(een));
  }
  return uit;
}

TEST(RunTekst, CDeclaresOneExternArrayAFile) {
  EXPECT_EQ(declaraties(0, typen, "K", paden({"/a/bel.wav", "/b/zoem.wav"})),
            "// extern T bel[];\n// extern T zoem[];\n");
}

TEST(RunTekst, CWithoutFilesDeclaresNothing) {
  EXPECT_EQ(declaraties(0, typen, "K", paden({})), "");
}

TEST(RunTekst, CPlusPlusDeclaresTheArraysInTheirClass) {
  EXPECT_EQ(declaraties(1, typen, "K", paden({"/a/bel.wav", "/b/zoem.wav"})),
            "// class K\n//{\n\t//private:\n// static T bel[];\n// static T zoem[];\n//};\n");
}

TEST(RunTekst, CPlusPlusWithoutFilesKeepsTheShellOfTheClass) {
  EXPECT_EQ(declaraties(1, typen, "K", paden({})), "// class K\n//{\n\t//private:\n//};\n");
}

TEST(RunTekst, AnEmptyClassNameStandsAsItIs) {
  EXPECT_EQ(declaraties(1, typen, "", paden({"bel.wav"})),
            "// class \n//{\n\t//private:\n// static T bel[];\n//};\n");
}

TEST(RunTekst, EveryOtherLanguageDeclaresNothing) {
  for (int const taal : {2, 3, 99, -1}) {
    EXPECT_EQ(declaraties(taal, typen, "K", paden({"bel.wav"})), "") << taal;
  }
}

TEST(RunTekst, OnlyTheLastExtensionGoesFromAName) {
  EXPECT_EQ(declaraties(0, typen, "", paden({"/a.b/c.d.wav", "/a.b/kaal"})),
            "// extern T c.d[];\n// extern T kaal[];\n");
}

TEST(RunTekst, NamesAreDataAndGoInUnchanged) {
  EXPECT_EQ(declaraties(0, typen, "", paden({"/x/stil zwijgen.wav", "/x/%s%n.wav", "/x/100%.wav"})),
            "// extern T stil zwijgen[];\n// extern T %s%n[];\n// extern T 100%[];\n");
  EXPECT_EQ(declaraties(0, typen, "", paden({"/x/één.wav"})),
            wxString::FromUTF8("// extern T één[];\n"));
  EXPECT_EQ(declaraties(1, {"", "// %s "}, "%n", paden({"bel.wav"})),
            "// class %n\n//{\n\t//private:\n// %s bel[];\n//};\n");
}

TEST(RunTekst, TheHeadJoinsItsFirstLineTheCommentTheDeclarationsAndTwoLineEnds) {
  EXPECT_EQ(runHoofd("/* kop */\n\n", 0, typen, "K", paden({"/a/bel.wav"})),
            "/* kop */\n"
            "\n"
            "/* Put these declarations in a header file :*/\n"
            "// extern T bel[];\n"
            "\n"
            "\n");
}

TEST(RunTekst, TheHeadKeepsItsCommentWhereNothingIsDeclared) {
  EXPECT_EQ(runHoofd("/* kop */\n", 2, typen, "K", paden({"/a/bel.wav"})),
            "/* kop */\n"
            "/* Put these declarations in a header file :*/\n"
            "\n"
            "\n");
}

TEST(RunTekst, APerCentSignInTheFirstLineIsData) {
  EXPECT_EQ(runHoofd("%s%n\n", 2, typen, "K", paden({})),
            "%s%n\n/* Put these declarations in a header file :*/\n\n\n");
}

}  // namespace
