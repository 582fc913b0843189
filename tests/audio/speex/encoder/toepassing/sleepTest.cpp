// Files that are dropped on the window.
#include <wx/dnd.h>
#include <wx/filename.h>
#include <wx/textctrl.h>
#include <wx/utils.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"

namespace {

class SleepProef : public WerkProef {
 protected:
  // The folder of the test does not outlive it.
  ~SleepProef() override { wxSetWorkingDirectory(werkMap); }

  // Drops them there, and tells whether they were taken.
  bool sleep(wxWindow* op, std::vector<wxString> const& paden) {
    auto* const doel = dynamic_cast<wxFileDropTarget*>(op->GetDropTarget());
    if (doel == nullptr) {
      ADD_FAILURE() << "no target for files";
      return false;
    }
    wxArrayString namen;
    for (wxString const& pad : paden) {
      namen.Add(pad);
    }
    bool const isGenomen = doel->OnDropFiles(1, 1, namen);
    rust();
    return isGenomen;
  }

 private:
  wxString const werkMap = wxGetCwd();
};

TEST_F(SleepProef, FilesThatAreDroppedOnTheWindowLoadAsByOpen) {
  begin();
  wxString const muziek = submap("muziek");
  EXPECT_TRUE(sleep(venster, {wav("muziek/b.wav"), wav("a.wav")}));
  EXPECT_EQ(boomRegels(), boomVan({{"b.wav", 2, 8000}, {"a.wav", 2, 8000}}));
  EXPECT_EQ(status(), "Audio files loaded");
  EXPECT_TRUE(isGeladen());
  EXPECT_EQ(wxGetCwd(), muziek);
  antwoorden.opBestandsVraagAnnuleren();
  klik(wxID_OPEN);
  EXPECT_EQ(antwoorden.bestandsVragen.at(0).map, muziek);
  EXPECT_TRUE(stop().Contains("\nwavDirectory=" + muziek + "\n"));
}

TEST_F(SleepProef, TheTextFieldTakesThemToo) {
  begin();
  EXPECT_TRUE(sleep(veld(ID_TEKST), {wav("a.wav")}));
  EXPECT_EQ(boomRegels(), boomVan({{"a.wav", 2, 8000}}));
  EXPECT_EQ(tekst(), "");
}

TEST_F(SleepProef, WhatCannotBeLoadedIsToldAsOpenTellsIt) {
  begin();
  EXPECT_TRUE(sleep(venster, {bestand("lied.mp3", "ID3"), submap("map"), wav("a.wav")}));
  EXPECT_EQ(boomRegels(), boomVan({{"a.wav", 2, 8000}}));
  EXPECT_EQ(fouten(), (std::vector<wxString>{afgewezen("lied.mp3"), afgewezen("map")}));
}

TEST_F(SleepProef, FilesOfDifferentFrequenciesAskTheSameQuestion) {
  begin();
  antwoorden.opBericht(wxID_OK);
  EXPECT_TRUE(sleep(venster, {wav("a.wav"), wav("b.wav", {1, 2}, {16000})}));
  ASSERT_EQ(antwoorden.berichten.size(), 1U);
  EXPECT_EQ(antwoorden.berichten[0].titel, "Multiple sampling frequencies not supported");
  EXPECT_FALSE(isGeladen());
}

TEST_F(SleepProef, WithoutAnyFileNothingChanges) {
  begin();
  laad({wav("a.wav")});
  codeer();
  EXPECT_FALSE(sleep(venster, {}));
  EXPECT_TRUE(isGecodeerd());
}

// The files of the run would change under it.
TEST_F(SleepProef, NothingIsTakenWhileAQuestionOrARunStands) {
  begin();
  laad({wav("a.wav")});
  wxString const ander = wav("b.wav");
  bool isGenomen = true;
  antwoorden.opBericht(wxID_OK, [&] { isGenomen = sleep(venster, {ander}); });
  klik(ID_CODEER);
  EXPECT_FALSE(isGenomen);
  EXPECT_EQ(boomRegels(), boomVan({{"a.wav", 2, 8000}}));
  EXPECT_TRUE(isGecodeerd());
  EXPECT_TRUE(sleep(venster, {ander}));
  EXPECT_EQ(boomRegels(), boomVan({{"b.wav", 2, 8000}}));
}

}  // namespace
