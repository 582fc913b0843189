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
  // Expects these parts in the lines of the log since the last save, this status text, and that the
  // same text can be saved elsewhere.
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
    std::filesystem::remove(map.pad("elders.c"));
  }
};

TEST_F(BewarenFoutenProef, APlaceThatTakesNoFile) {
  submap("map.c");
  bewaar(pad("map.c"));
  verwachtMislukt({"Is a directory"}, "map.c");
  // A sign of a format is shown and not obeyed.
  for (wxString const naam : {"uit.c", "%s%n.c"}) {
    bewaar("/proc/" + naam);
    verwachtMislukt({"'/proc/" + naam + "'"}, naam);
  }
  bewaar("/dev/full");
  verwachtMislukt({"No space left on device", "Could not write the whole of /dev/full"}, "fullc");
}

TEST_F(BewarenFoutenProef, APlaceThatGoesDuringTheQuestion) {
  submap("weg");
  bewaarOver(bestand("weg/uit.c", "oud\n"), wxID_YES,
             [this] { std::filesystem::remove_all(map.pad("weg")); });
  verwachtMislukt({"No such file or directory"}, "uit.c");
  bewaarOver(bestand("uit.c", "oud\n"), wxID_NO, [this] {
    std::filesystem::remove(map.pad("uit.c"));
    std::filesystem::create_directory(map.pad("uit.c"));
  });
  verwachtMislukt({"Is a directory"}, "uit.c");
}

// To some users it cannot even be opened, so that there is one line.
TEST_F(BewarenFoutenProef, AFileThatTakesNoBytesIsAskedAboutFirst) {
  std::vector<wxString> regels{"error"};
  if (access("/proc/version", W_OK) == 0) {
    regels.emplace_back("Could not write the whole of /proc/version");
  }
  for (int const antwoord : {wxID_NO, wxID_YES}) {
    antwoorden.berichten.clear();
    bewaarOver("/proc/version", antwoord);
    ASSERT_EQ(antwoorden.berichten.size(), 1U);
    EXPECT_EQ(antwoorden.berichten[0].titel, "File exists");
    verwachtMislukt(regels, "versionc");
  }
}

// The room ends within the text, and at no size of a buffer.
TEST_F(BewarenFoutenProef, ADiskThatFillsUpLeavesACutFileOrTheOldTextAndSaysSo) {
  wxString const doel = pad("uit.c");
  {
    VolleSchijf const vol(100);
    bewaar(doel);
  }
  EXPECT_EQ(inhoud(doel), tekst().Left(100));
  verwachtMislukt({"File too large", "Could not write the whole of " + doel}, "uit.c");
  bestand("uit.c", "oud\n");
  {
    VolleSchijf const vol(100);
    bewaarOver(doel, wxID_YES);
  }
  EXPECT_EQ(inhoud(doel), "oud\n" + tekst().Left(96));
  verwachtMislukt({"File too large", "Could not write the whole of " + doel}, "uit.c");
}

TEST_F(BewarenFoutenProef, AFailedSaveStillCountsAsSavedAndKeepsItsDirectory) {
  bewaar("/proc/uit.c");
  antwoorden.opBestandsVraagAnnuleren();
  klik(wxID_SAVE);
  EXPECT_EQ(antwoorden.bestandsVragen.back().map, "/proc");
  klik(wxID_EXIT);
  EXPECT_FALSE(leeft());
  // The message of the run, and no question.
  EXPECT_EQ(antwoorden.berichten.size(), 1U);
  EXPECT_TRUE(stop().Contains("\nspeexDirectory=/proc\n"));
}

}  // namespace
