// The head of an output: its first line, and the declarations.
#include "audio/uitvoer/runTekst.h"

#include <gtest/gtest.h>

namespace {

constexpr RunSoort soort{"/* $aantal files by $naam */\n\n", "test", "making", "T"};

wxArrayString paden(std::initializer_list<char const*> lijst) {
  wxArrayString uit;
  for (char const* een : lijst) {
    uit.Add(wxString::FromUTF8(een));
  }
  return uit;
}

TEST(RunTekst, CDeclaresOneExternArrayAFile) {
  EXPECT_EQ(declaraties({0, "K"}, "T", paden({"/a/bel.wav", "/b/zoem.wav"})),
            "// extern const T bel[];\n// extern const T zoem[];\n");
}

TEST(RunTekst, CWithoutFilesDeclaresNothing) {
  EXPECT_EQ(declaraties({0, "K"}, "T", paden({})), "");
}

TEST(RunTekst, CPlusPlusDeclaresTheArraysInTheirClass) {
  EXPECT_EQ(
      declaraties({1, "K"}, "T", paden({"/a/bel.wav", "/b/zoem.wav"})),
      "// class K\n//{\n\t//private:\n// static const T bel[];\n// static const T zoem[];\n//};\n");
}

TEST(RunTekst, CPlusPlusWithoutFilesKeepsTheShellOfTheClass) {
  EXPECT_EQ(declaraties({1, "K"}, "T", paden({})), "// class K\n//{\n\t//private:\n//};\n");
}

TEST(RunTekst, AnEmptyClassNameStandsAsItIs) {
  EXPECT_EQ(declaraties({1, ""}, "T", paden({"bel.wav"})),
            "// class \n//{\n\t//private:\n// static const T bel[];\n//};\n");
}

TEST(RunTekst, EveryOtherLanguageDeclaresNothing) {
  for (int const taal : {2, 3, 99, -1}) {
    EXPECT_EQ(declaraties({taal, "K"}, "T", paden({"bel.wav"})), "") << taal;
  }
}

TEST(RunTekst, OnlyTheLastExtensionGoesFromAName) {
  EXPECT_EQ(declaraties({0, ""}, "T", paden({"/a.b/c.d.wav", "/a.b/kaal"})),
            "// extern const T c.d[];\n// extern const T kaal[];\n");
}

TEST(RunTekst, NamesAreDataAndGoInUnchanged) {
  EXPECT_EQ(
      declaraties({0, ""}, "T", paden({"/x/stil zwijgen.wav", "/x/%s%n.wav", "/x/100%.wav"})),
      "// extern const T stil zwijgen[];\n// extern const T %s%n[];\n// extern const T 100%[];\n");
  EXPECT_EQ(declaraties({0, ""}, "T", paden({"/x/één.wav"})),
            wxString::FromUTF8("// extern const T één[];\n"));
  EXPECT_EQ(declaraties({1, "%n"}, "%s", paden({"$klasse.wav"})),
            "// class %n\n//{\n\t//private:\n// static const %s $klasse[];\n//};\n");
}

TEST(RunTekst, TheHeadJoinsItsFirstLineTheCommentTheDeclarationsAndTwoLineEnds) {
  EXPECT_EQ(runHoofd(soort, {0, "K"}, paden({"/a/bel.wav"})),
            "/* 1 files by test */\n"
            "\n"
            "/* Put these declarations in a header file :*/\n"
            "// extern const T bel[];\n"
            "\n"
            "\n");
}

TEST(RunTekst, TheHeadKeepsItsCommentWhereNothingIsDeclared) {
  EXPECT_EQ(runHoofd(soort, {2, "K"}, paden({"/a/bel.wav", "/a/zoem.wav"})),
            "/* 2 files by test */\n"
            "\n"
            "/* Put these declarations in a header file :*/\n"
            "\n"
            "\n");
}

TEST(RunTekst, TheMarksNumberTheFiles) {
  EXPECT_EQ(startMerk(soort, 1), "/******* Start making file number 1 \t\t*******/\n");
  EXPECT_EQ(stopMerk(soort, 12), "/******* Stop making file number 12 \t\t*******/\n\n");
}

}  // namespace
