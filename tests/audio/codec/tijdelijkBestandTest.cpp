// Temporary files that bear the name of a user's file.
#include "audio/codec/tijdelijkBestand.h"

#include <filesystem>

#include "tests/audio/codec/codecHulp.h"
#include "tests/steun/omgevingsWaarde.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/wxMain.h"

namespace {

class TijdelijkBestandProef : public testing::Test {
 protected:
  // The name of the file that is made, without its six last signs.
  std::string beginVan(std::string const& begin) const {
    std::string const pad = maakTijdelijkBestand(wxTekst(begin)).utf8_string();
    EXPECT_TRUE(std::filesystem::is_regular_file(pad)) << pad;
    std::string const naam = std::filesystem::path(pad).filename();
    EXPECT_EQ(pad, map.pad(naam));
    return naam.size() < 6 ? "" : naam.substr(0, naam.size() - 6);
  }
  static std::string herhaald(std::string const& teken, int keer) {
    std::string uit;
    for (int i = 0; i < keer; ++i) {
      uit += teken;
    }
    return uit;
  }

  TijdelijkeMap map;
  OmgevingsWaarde const tijdelijk{"TMPDIR", map.pad()};
};

TEST_F(TijdelijkBestandProef, AnOrdinaryNameStaysWhole) {
  for (std::string const naam : {"", "bel", "stil zwijgen", "100%s%n", "caf\xC3\xA9"}) {
    EXPECT_EQ(beginVan(naam), naam);
  }
}

TEST_F(TijdelijkBestandProef, AnExtensionCountsForNothing) {
  EXPECT_EQ(beginVan("a.b"), "a");
  EXPECT_EQ(beginVan(std::string(100, 'a') + "." + std::string(200, 'b')), std::string(100, 'a'));
  EXPECT_EQ(beginVan("aaa." + std::string(245, 'b') + ".c"), "aaa." + std::string(245, 'b'));
  EXPECT_EQ(beginVan(std::string(250, 'a') + ".c"), std::string(249, 'a'));
}

// A name has 255 bytes, of which six are the toolkit's.
TEST_F(TijdelijkBestandProef, TheLongestNameThatFitsStaysWhole) {
  EXPECT_EQ(beginVan(std::string(249, 'a')), std::string(249, 'a'));
  EXPECT_EQ(beginVan(herhaald("\xE5\xA3\xB0", 83)), herhaald("\xE5\xA3\xB0", 83));
}

TEST_F(TijdelijkBestandProef, ALongerNameLosesItsEnd) {
  EXPECT_EQ(beginVan(std::string(250, 'a')), std::string(249, 'a'));
  EXPECT_EQ(beginVan(std::string(5000, 'a')), std::string(249, 'a'));
}

TEST_F(TijdelijkBestandProef, ACharacterIsNeverCut) {
  // 250 and 252 bytes: one character has to go.
  EXPECT_EQ(beginVan("a" + herhaald("\xE5\xA3\xB0", 83)), "a" + herhaald("\xE5\xA3\xB0", 82));
  EXPECT_EQ(beginVan(herhaald("\xF0\x9F\x94\x94", 63)), herhaald("\xF0\x9F\x94\x94", 62));
}

TEST_F(TijdelijkBestandProef, WithoutATemporaryDirectoryThereIsNone) {
  OmgevingsWaarde const nergens("TMPDIR", "/proc");
  EXPECT_TRUE(maakTijdelijkBestand("bel").empty());
  EXPECT_EQ(neemLog().size(), 1U);
}

}  // namespace
