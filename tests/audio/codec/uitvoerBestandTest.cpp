// Text on its way to disk: all of it arrives, or the log tells which file is cut.
#include "audio/codec/uitvoerBestand.h"

#include <sys/stat.h>
#include <wx/mstream.h>

#include "tests/audio/codec/codecHulp.h"
#include "tests/steun/tijdelijkeMap.h"
#include "tests/steun/volleSchijf.h"
#include "tests/steun/wxMain.h"

namespace {

class UitvoerBestandProef : public testing::Test {
 protected:
  static void zet(wxMemoryOutputStream& stroom, std::string const& tekst) {
    stroom.Write(tekst.data(), tekst.size());
  }
  // Writes `tekst` to uit.c in this mode, and closes it.
  void bewaar(std::string const& tekst, wxFile::OpenMode modus = wxFile::write) const {
    wxMemoryOutputStream stroom;
    zet(stroom, tekst);
    UitvoerBestand bestand(wxTekst(uit), modus);
    EXPECT_TRUE(bestand.isOpen());
    bestand.schrijf(stroom);
    bestand.sluit();
    EXPECT_FALSE(bestand.isOpen());
  }
  std::string meldregel() const { return "Could not write the whole of " + uit; }
  // Expects the toolkit's reason and one line of ours behind it.
  void verwachtGemeld(std::string const& reden) const {
    std::vector<LogRegel> const log = neemLog();
    ASSERT_EQ(log.size(), 2U);
    EXPECT_TRUE(log[0].tekst.Contains(reden)) << log[0].tekst.utf8_str();
    EXPECT_EQ(log[1].niveau, wxLOG_Error);
    EXPECT_EQ(log[1].tekst.utf8_string(), meldregel());
  }

  TijdelijkeMap map;
  std::string const uit = map.pad("100%s %n.c");
};

TEST_F(UitvoerBestandProef, ANewFileHoldsTheText) {
  bewaar("een\ntwee\n");
  EXPECT_EQ(leesTekst(uit), "een\ntwee\n");
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST_F(UitvoerBestandProef, WritingReplacesAndAppendingGoesOnBehind) {
  bewaar("een langere tekst\n");
  bewaar("kort\n");
  EXPECT_EQ(leesTekst(uit), "kort\n");
  bewaar("nog\n", wxFile::write_append);
  EXPECT_EQ(leesTekst(uit), "kort\nnog\n");
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST_F(UitvoerBestandProef, ATextLongerThanAnyBufferArrivesWhole) {
  std::string lang(3000001, 'x');
  lang.back() = '\n';
  bewaar(lang);
  EXPECT_TRUE(leesTekst(uit) == lang);
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST_F(UitvoerBestandProef, AnEmptyTextEmptiesTheFile) {
  bewaar("oud\n");
  UitvoerBestand(wxTekst(uit), wxFile::write).schrijf(wxMemoryOutputStream());
  EXPECT_EQ(leesTekst(uit), "");
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

// The border lies within the text and at no size of a buffer.
TEST_F(UitvoerBestandProef, ADiskThatFillsUpIsToldOnceWithTheNameOfTheFile) {
  std::string const tekst(20000, 'x');
  {
    VolleSchijf const vol(5001);
    bewaar(tekst);
  }
  EXPECT_EQ(leesTekst(uit), tekst.substr(0, 5001));
  verwachtGemeld("File too large");
}

TEST_F(UitvoerBestandProef, AnAppendThatDoesNotFitKeepsWhatWasThere) {
  bewaar("oud\n");
  {
    VolleSchijf const vol(10);
    bewaar("nieuwe tekst\n", wxFile::write_append);
  }
  EXPECT_EQ(leesTekst(uit), "oud\nnieuwe");
  verwachtGemeld("File too large");
}

TEST_F(UitvoerBestandProef, NothingMoreIsWrittenOnceAWriteHasFailed) {
  UitvoerBestand bestand(wxTekst(uit), wxFile::write);
  {
    VolleSchijf const vol(2);
    bestand.Write("abc", 3);
  }
  EXPECT_FALSE(bestand.IsOk());
  bestand.Write("def", 3);
  EXPECT_EQ(bestand.LastWrite(), 0U);
  bestand.sluit();
  EXPECT_EQ(leesTekst(uit), "ab");
  verwachtGemeld("File too large");
}

TEST_F(UitvoerBestandProef, WithoutCloseTheEndOfTheObjectCloses) {
  {
    UitvoerBestand bestand(wxTekst(uit), wxFile::write);
    VolleSchijf const vol(2);
    bestand.Write("abc", 3);
  }
  verwachtGemeld("File too large");
}

TEST_F(UitvoerBestandProef, ClosingTwiceTellsOnce) {
  UitvoerBestand bestand(wxTekst(uit), wxFile::write);
  {
    VolleSchijf const vol(0);
    bestand.Write("abc", 3);
  }
  bestand.sluit();
  bestand.sluit();
  verwachtGemeld("File too large");
}

TEST_F(UitvoerBestandProef, ADeviceWithoutRoomIsNamed) {
  UitvoerBestand bestand("/dev/full", wxFile::write);
  bestand.Write("abc", 3);
  bestand.sluit();
  std::vector<LogRegel> const log = neemLog();
  ASSERT_EQ(log.size(), 2U);
  EXPECT_TRUE(log[0].tekst.Contains("No space left on device"));
  EXPECT_EQ(log[1].tekst, "Could not write the whole of /dev/full");
}

TEST_F(UitvoerBestandProef, AFileThatCannotBeOpenedIsTheToolkitsToTell) {
  UitvoerBestand bestand(wxTekst(map.pad("geen/uit.c")), wxFile::write);
  EXPECT_FALSE(bestand.isOpen());
  bestand.Write("abc", 3);
  EXPECT_EQ(bestand.LastWrite(), 0U);
  bestand.sluit();
  std::vector<LogRegel> const log = neemLog();
  ASSERT_EQ(log.size(), 1U);
  EXPECT_TRUE(log[0].tekst.Contains("geen/uit.c"));
}

TEST_F(UitvoerBestandProef, NoFileTakesNothingInSilence) {
  UitvoerBestand geen;
  wxMemoryOutputStream stroom;
  zet(stroom, "abc");
  geen.schrijf(stroom);
  geen.sluit();
  EXPECT_FALSE(geen.isOpen());
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

TEST_F(UitvoerBestandProef, AFileMadeWithRightsHasThemAndIsEmptiedWhereItStood) {
  {
    UitvoerBestand bestand(wxTekst(uit), wxS_IRUSR | wxS_IWUSR);
    bestand.Write("abc", 3);
  }
  struct stat gegevens {};
  ASSERT_EQ(stat(uit.c_str(), &gegevens), 0);
  EXPECT_EQ(gegevens.st_mode & 0777U, 0600U);
  { UitvoerBestand const bestand(wxTekst(uit), wxS_IRUSR | wxS_IWUSR); }
  EXPECT_EQ(leesTekst(uit), "");
  EXPECT_TRUE(nietsGelogd(neemLog()));
}

}  // namespace
