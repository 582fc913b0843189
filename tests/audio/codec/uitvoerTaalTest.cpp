// The output languages, and the filling of their patterns.
#include "audio/codec/uitvoerTaal.h"

#include <gtest/gtest.h>

namespace {

TEST(UitvoerTaal, RowsStandUnderTheirNumbers) {
  for (std::size_t i = 0; i < uitvoerTalen.size(); ++i) {
    EXPECT_EQ(uitvoerTalen[i].nummer, static_cast<int>(i));
    EXPECT_EQ(zoekUitvoerTaal(static_cast<int>(i)), &uitvoerTalen[i]);
    EXPECT_EQ(&uitvoerTaalRij(static_cast<int>(i)), &uitvoerTalen[i]);
  }
}

TEST(UitvoerTaal, OnlyCppAndPythonAskForAClass) {
  EXPECT_FALSE(uitvoerTaalRij(0).vraagtKlasse);
  EXPECT_TRUE(uitvoerTaalRij(1).vraagtKlasse);
  EXPECT_TRUE(uitvoerTaalRij(2).vraagtKlasse);
  for (int const anders : {-1, 3, 99}) {
    EXPECT_FALSE(uitvoerTaalRij(anders).vraagtKlasse) << anders;
  }
}

TEST(UitvoerTaal, ArraysAreMadeInCAndCppAlone) {
  EXPECT_TRUE(heeftArrays(uitvoerTaalRij(0)));
  EXPECT_TRUE(heeftArrays(uitvoerTaalRij(1)));
  for (int const anders : {2, -1, 3, 99}) {
    EXPECT_FALSE(heeftArrays(uitvoerTaalRij(anders))) << anders;
  }
}

TEST(UitvoerTaal, OtherNumbersAreNoLanguage) {
  for (int const anders : {-2147483647 - 1, -1, 3, 99, 2147483647}) {
    EXPECT_EQ(zoekUitvoerTaal(anders), nullptr) << anders;
    EXPECT_STREQ(uitvoerTaalRij(anders).extensie, "py") << anders;
    EXPECT_STREQ(uitvoerTaalRij(anders).declaratie, "") << anders;
    EXPECT_STREQ(uitvoerTaalRij(anders).telling, "") << anders;
  }
}

TEST(UitvoerTaal, WordsOfAPatternAreFilledIn) {
  EXPECT_EQ(vulIn("<$klasse|$naam|$type|$aantal|$naam>", {"K", "n", "t", "5"}), "<K|n|t|5|n>");
}

TEST(UitvoerTaal, WhatWordsStandForIsData) {
  EXPECT_EQ(vulIn("$klasse::$naam", {"$naam", "%s$type$$", "t", "5"}), "$naam::%s$type$$");
  EXPECT_EQ(vulIn("$naam", {{}, wxString::FromUTF8("\u00e9\u00e9n $aantal"), {}, {}}),
            wxString::FromUTF8("\u00e9\u00e9n $aantal"));
}

TEST(UitvoerTaal, OtherSignsOfAPatternStay) {
  EXPECT_EQ(vulIn("$ $$ $na %d 100%", {"K", "n", "t", "5"}), "$ $$ $na %d 100%");
  EXPECT_EQ(vulIn("", {"K", "n", "t", "5"}), "");
}

}  // namespace
