// The names that are proposed for a saved text, and the name that is told afterwards.
#include "audio/uitvoer/bestandsNamen.h"

#include <gtest/gtest.h>

namespace {

wxArrayString paden(std::initializer_list<char const*> lijst) {
  wxArrayString uit;
  for (char const* een : lijst) {
    uit.Add(een);
  }
  return uit;
}

TEST(BestandsNamen, EachLanguageHasItsExtension) {
  EXPECT_EQ(extensieVoorTaal(0), "c");
  EXPECT_EQ(extensieVoorTaal(1), "cpp");
  EXPECT_EQ(extensieVoorTaal(2), "py");
}

TEST(BestandsNamen, EveryOtherLanguageValueCountsAsPython) {
  EXPECT_EQ(extensieVoorTaal(3), "py");
  EXPECT_EQ(extensieVoorTaal(99), "py");
  EXPECT_EQ(extensieVoorTaal(-1), "py");
}

TEST(BestandsNamen, OneFileGivesItsOwnName) {
  EXPECT_EQ(stelNaamVoor(paden({"/muziek/geluid/bel.wav"}), "/muziek/anders"), "bel");
  EXPECT_EQ(stelNaamVoor(paden({"/muziek/a.b.wav"}), ""), "a.b");
}

TEST(BestandsNamen, SeveralFilesGiveTheNameOfTheDirectory) {
  EXPECT_EQ(stelNaamVoor(paden({"/x/a.wav", "/x/b.wav", "/x/c.wav"}), "/muziek/geluid"), "geluid");
}

TEST(BestandsNamen, NoFilesGiveTheNameOfTheDirectory) {
  EXPECT_EQ(stelNaamVoor(paden({}), "/muziek/geluid"), "geluid");
}

TEST(BestandsNamen, ADirectoryCountsAsThePathOfAFile) {
  EXPECT_EQ(stelNaamVoor(paden({}), "/muziek/geluid.oud"), "geluid");
  EXPECT_EQ(stelNaamVoor(paden({}), "/muziek/geluid/"), "");
  EXPECT_EQ(stelNaamVoor(paden({}), ""), "");
}

TEST(BestandsNamen, ANameWithTheExtensionIsToldAsItIs) {
  EXPECT_EQ(meldNaam("bel.c", "c"), "bel.c");
  EXPECT_EQ(meldNaam("bel.cpp", "cpp"), "bel.cpp");
}

TEST(BestandsNamen, ANameWithoutTheExtensionGetsItGluedOnWithoutAPoint) {
  EXPECT_EQ(meldNaam("klank", "c"), "klankc");
  EXPECT_EQ(meldNaam("klank.txt", "c"), "klank.txtc");
  EXPECT_EQ(meldNaam("klank.c", "cpp"), "klank.ccpp");
  EXPECT_EQ(meldNaam("", "py"), "py");
}

TEST(BestandsNamen, OnlyTheLastLettersCountAndTheirCase) {
  EXPECT_EQ(meldNaam("music", "c"), "music");
  EXPECT_EQ(meldNaam("bel.C", "c"), "bel.Cc");
  EXPECT_EQ(meldNaam("kcpp", "cpp"), "kcpp");
}

}  // namespace
