// The recently loaded files.
#include <wx/button.h>
#include <wx/menu.h>
#include <wx/treectrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"

namespace {

class GeschiedenisProef : public WerkProef {
 protected:
  // Ends the application and expects this history in its configuration, from the newest entry to
  // the oldest, and no more of it. Returns the configuration.
  wxString verwachtBewaard(std::vector<wxString> const& paden) {
    wxString const bewaard = stop();
    for (std::size_t i = 0; i < 9; ++i) {
      wxString const regel = wxString::Format("\nfile%d=", static_cast<int>(i + 1)) +
                             (i < paden.size() ? paden[i] : wxString()) + "\n";
      EXPECT_TRUE(bewaard.Contains(regel)) << regel.utf8_str() << bewaard.utf8_str();
    }
    EXPECT_FALSE(bewaard.Contains("\nfile10="));
    return bewaard;
  }
  // The menu's event for an entry, whether it is in the menu or not.
  void kiesOngezien(int id) {
    wxCommandEvent event(wxEVT_MENU, id);
    event.SetEventObject(venster);
    venster->ProcessWindowEvent(event);
    rust();
  }
};

TEST_F(GeschiedenisProef, TheLastFileOfALoadComesFirst) {
  begin();
  wxString const a = wav("a.wav");
  wxString const b = wav("b.wav");
  laad({a, b});
  EXPECT_EQ(menuItem(wxID_FILE1)->GetItemLabel(), "&1 b.wav");
  EXPECT_EQ(menuItem(wxID_FILE2)->GetItemLabel(), "&2 a.wav");
  EXPECT_EQ(menuItem(wxID_FILE3), nullptr);
  verwachtBewaard({b, a});
}

TEST_F(GeschiedenisProef, AnEntryReplacesTheWholeLoadByItsFileAndMovesToTheTop) {
  begin();
  submap("muziek");
  laad({wav("muziek/a.wav"), wav("muziek/b.wav", {1}), wav("muziek/c.wav")});
  kiesMenu(wxID_FILE2);
  EXPECT_EQ(boomRegels(), boomVan({{"b.wav", 1, 8000}}));
  EXPECT_EQ(status(), "Audio files loaded");
  EXPECT_TRUE(isGeladen());
  EXPECT_TRUE(codeer().StartsWith("/* PCM encoding output of 1 audio files \t\t*/\n\n"));
  kiesMenu(wxID_FILE3);
  // A file that is loaded twice stands once.
  laad({pad("muziek/b.wav")});
  // The directory of the open dialog is left alone.
  EXPECT_TRUE(verwachtBewaard({pad("muziek/b.wav"), pad("muziek/a.wav"), pad("muziek/c.wav")})
                  .Contains("\nwavDirectory=" + thuis() + "\n"));
}

TEST_F(GeschiedenisProef, AnEntryWhoseFileHasGoneIsToldAndStays) {
  begin();
  wxString const a = wav("a.wav");
  wxString const b = wav("b.wav");
  laad({a, b});
  ASSERT_TRUE(wxRemoveFile(a));
  kiesMenu(wxID_FILE2);
  EXPECT_EQ(fouten(), std::vector<wxString>{afgewezen("a.wav")});
  EXPECT_TRUE(boomRegels().empty());
  // The success of the load before still counts.
  EXPECT_TRUE(isGeladen());
  verwachtBewaard({b, a});
}

TEST_F(GeschiedenisProef, NineFilesAreKeptAndTheOldestGoes) {
  begin();
  std::vector<wxString> paden;
  for (char const* naam : {"a.wav", "b.wav", "c.wav", "d.wav", "e.wav", "f.wav", "g.wav", "h.wav",
                           "i.wav", "j.wav", "k.wav"}) {
    paden.insert(paden.begin(), wav(naam));
    laad({paden.front()});
  }
  EXPECT_EQ(menuItem(wxID_FILE9)->GetItemLabel(), "&9 c.wav");
  kiesMenu(wxID_FILE9);
  EXPECT_EQ(boomRegels(), boomVan({{"c.wav", 2, 8000}}));
  verwachtBewaard(
      {paden[8], paden[0], paden[1], paden[2], paden[3], paden[4], paden[5], paden[6], paden[7]});
}

TEST_F(GeschiedenisProef, TheEntriesOfTheConfigurationCanBeLoadedAtOnceAndComeBackUnchanged) {
  wxString const a = wav("$HOME.wav");
  submap("x");
  wxString const b = wav("x/b b.wav", {1, 2, 3});
  begin(0, "file1=" + a + "\nfile2=" + b + "\n");
  kiesMenu(wxID_FILE2);
  EXPECT_EQ(boomRegels(), boomVan({{"b b.wav", 3, 8000}}));
  kiesMenu(wxID_FILE2);
  EXPECT_EQ(boomRegels(), boomVan({{"$HOME.wav", 2, 8000}}));
  verwachtBewaard({a, b});
}

TEST_F(GeschiedenisProef, AnIdWithoutAnEntryAndTheHeadingDoNothing) {
  begin();
  wxString const a = wav("a.wav");
  laad({a});
  codeer();
  for (int id = wxID_FILE2; id <= wxID_FILE9; ++id) {
    kiesOngezien(id);
  }
  kiesOngezien(ID_RECENT_KOP);
  EXPECT_EQ(boomRegels(), boomVan({{"a.wav", 2, 8000}}));
  EXPECT_TRUE(isGecodeerd());
  EXPECT_EQ(status(), "Audio encoded in PCM embedded format");
  EXPECT_TRUE(nietsGelogd(log()));
  verwachtBewaard({a});
}

TEST_F(GeschiedenisProef, AnEmptyHistoryHasNoEntryToChoose) {
  begin();
  EXPECT_EQ(menuItem(wxID_FILE1), nullptr);
  kiesOngezien(wxID_FILE1);
  EXPECT_EQ(status(), "No audio file loaded");
  EXPECT_TRUE(nietsGelogd(log()));
  verwachtBewaard({});
}

}  // namespace
