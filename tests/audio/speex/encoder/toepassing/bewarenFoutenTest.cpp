// Saving to places that take no file: the toolkit's own words in the log, everything else as after
// a save that went well, and the text stays so that it can be saved elsewhere.
#include <wx/button.h>
#include <wx/msgdlg.h>

#include <unistd.h>

#include <filesystem>
#include <vector>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"
#include "tests/steun/volleSchijf.h"

namespace {

class BewarenFoutenProef : public WerkProef {
 protected:
  void SetUp() override {
    begin();
    laad({wav("bel.wav")});
    codeer();
  }
  // Expects these parts in the lines of the log, this status text, and that the same text can be
  // saved elsewhere.
  void verwachtMislukt(std::vector<wxString> const& redenen, wxString const& naam) {
    std::vector<wxString> const gevonden = fouten();
    ASSERT_EQ(gevonden.size(), redenen.size());
    for (std::size_t i = 0; i < redenen.size(); ++i) {
      EXPECT_TRUE(gevonden[i].Contains(redenen[i])) << gevonden[i].utf8_str();
    }
    EXPECT_EQ(status(), "Speex embedded data saved in " + naam);
    EXPECT_TRUE(isGecodeerd());
    log().clear();
    bewaar(pad("elders.c"));
    EXPECT_TRUE(nietsGelogd(log()));
    EXPECT_FALSE(tekst().empty());
    EXPECT_EQ(inhoud(pad("elders.c")), tekst());
  }
};

TEST_F(BewarenFoutenProef, APathThatIsADirectory) {
  submap("map.c");
  bewaar(pad("map.c"));
  verwachtMislukt({"Is a directory"}, "map.c");
}

TEST_F(BewarenFoutenProef, ADirectoryThatTakesNoFiles) {
  bewaar("/proc/uit.c");
  verwachtMislukt({"'/proc/uit.c'"}, "uit.c");
}

TEST_F(BewarenFoutenProef, ADirectoryThatWentAwayDuringTheQuestion) {
  submap("weg");
  wxString const doel = bestand("weg/uit.c", "oud\n");
  bewaarOver(doel, wxID_YES, [this] { std::filesystem::remove_all(map.pad("weg")); });
  verwachtMislukt({"No such file or directory"}, "uit.c");
}

TEST_F(BewarenFoutenProef, AFileThatBecameADirectoryDuringTheQuestion) {
  wxString const doel = bestand("uit.c", "oud\n");
  bewaarOver(doel, wxID_NO, [this] {
    std::filesystem::remove(map.pad("uit.c"));
    std::filesystem::create_directory(map.pad("uit.c"));
  });
  verwachtMislukt({"Is a directory"}, "uit.c");
}

TEST_F(BewarenFoutenProef, ADeviceWithoutRoom) {
  bewaar("/dev/full");
  verwachtMislukt({"No space left on device", "Could not write the whole of /dev/full"}, "fullc");
}

// To some users it cannot even be opened, so that there is one line.
std::vector<wxString> geenBytes() {
  return access("/proc/version", W_OK) == 0
             ? std::vector<wxString>{"error", "Could not write the whole of /proc/version"}
             : std::vector<wxString>{"error"};
}

TEST_F(BewarenFoutenProef, AFileThatTakesNoBytesIsAskedAboutFirst) {
  bewaarOver("/proc/version", wxID_NO);
  EXPECT_EQ(antwoorden.berichten.back().titel, "File exists");
  verwachtMislukt(geenBytes(), "versionc");
}

TEST_F(BewarenFoutenProef, AFileThatTakesNoBytesAtItsEnd) {
  bewaarOver("/proc/version", wxID_YES);
  verwachtMislukt(geenBytes(), "versionc");
}

// The room ends within the text, and at no size of a buffer.
TEST_F(BewarenFoutenProef, ADiskThatFillsUpLeavesACutFileAndSaysSo) {
  {
    VolleSchijf const vol(100);
    bewaar(pad("uit.c"));
  }
  EXPECT_EQ(inhoud(pad("uit.c")), tekst().Left(100));
  verwachtMislukt({"File too large", "Could not write the whole of " + pad("uit.c")}, "uit.c");
}

TEST_F(BewarenFoutenProef, AnAppendThatDoesNotFitKeepsTheOldTextAndSaysSo) {
  wxString const doel = bestand("uit.c", "oud\n");
  {
    VolleSchijf const vol(100);
    bewaarOver(doel, wxID_YES);
  }
  EXPECT_EQ(inhoud(doel), "oud\n" + tekst().Left(96));
  verwachtMislukt({"File too large", "Could not write the whole of " + doel}, "uit.c");
}

TEST_F(BewarenFoutenProef, AFailedSaveStillCountsAsSavedAtTheEnd) {
  bewaar("/proc/uit.c");
  klik(wxID_EXIT);
  EXPECT_FALSE(leeft());
  // The message of the run, and no question.
  EXPECT_EQ(antwoorden.berichten.size(), 1U);
}

TEST_F(BewarenFoutenProef, AFailedSaveKeepsItsDirectoryForTheNextDialog) {
  bewaar("/proc/uit.c");
  antwoorden.opBestandsVraagAnnuleren();
  klik(wxID_SAVE);
  EXPECT_EQ(antwoorden.bestandsVragen.back().map, "/proc");
  EXPECT_TRUE(stop().Contains("\nspeexDirectory=/proc\n"));
}

TEST_F(BewarenFoutenProef, APerCentSignInAFailedNameIsShownAndNotObeyed) {
  bewaar("/proc/%s%n.c");
  verwachtMislukt({"'/proc/%s%n.c'"}, "%s%n.c");
}

}  // namespace
