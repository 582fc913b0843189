// The icon of the main window, as task bars and lists of windows get it.
#include <unistd.h>
#include <wx/apptrait.h>
#include <wx/iconbndl.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/externals/desktop/pictogramMap.h"
#include "tests/steun/geduld.h"
#include "tests/steun/vensterProef.h"

namespace {

class PictogramProef : public VensterProef {
 protected:
  // The application, as if its program were PREFIX/bin/PROGRAM.
  void startIn(std::string const& prefix) {
    // The toolkit hands out its one object only once the application is there.
    wxGUIAppTraits().GetStandardPaths().SetInstallPrefix(wxString::FromUTF8(prefix));
    start();
  }

  std::vector<int> maten() const {
    wxIconBundle const bundel = venster->GetIcons();
    std::vector<int> gevonden;
    for (std::size_t i = 0; i < bundel.GetIconCount(); ++i) {
      gevonden.push_back(bundel.GetIconByIndex(i).GetWidth());
    }
    return gevonden;
  }

  // The lines in which xprop tells the sizes that the window has on the screen, once it has some.
  wxString opHetScherm() {
    // Windows of other tests have the program's title too.
    wxString const titel = wxString::Format("Pictogram %d", static_cast<int>(getpid()));
    venster->SetTitle(titel);
    std::string const vraag = "xprop -name '" + titel.utf8_string() +
                              "' _NET_WM_ICON 2>&1 | grep -o 'Icon ([0-9]* x [0-9]*)' > '" +
                              map.pad("xprop") + "'";
    EXPECT_TRUE(wachtTot([&vraag] { return voerUit(vraag) == 0; }));
    return inhoud(pad("xprop"));
  }
};

std::vector<int> alleMaten() {
  return {vensterMaten.begin(), vensterMaten.end()};
}

wxString regels() {
  wxString tekst;
  for (int const maat : vensterMaten) {
    tekst += wxString::Format("Icon (%d x %d)\n", maat, maat);
  }
  return tekst;
}

TEST_F(PictogramProef, WindowHasItInEverySizeThatLiesBesideTheProgram) {
  maakPictogrammen(map.pad(), "kestrolin");
  startIn(map.pad());
  EXPECT_EQ(maten(), alleMaten());
  EXPECT_EQ(opHetScherm(), regels());
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(PictogramProef, WindowComesUpWithoutItAndWithoutAWordWhereThereIsNone) {
  testing::internal::CaptureStderr();
  startIn(map.pad("nergens"));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_TRUE(venster->IsShown());
  EXPECT_EQ(maten(), std::vector<int>{});
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(PictogramProef, BrokenOneIsLeftOutWithoutAWord) {
  maakPictogram(map.pad(), "kestrolin", 16, 16);
  maakPictogram(map.pad(), "kestrolin", 48, 48);
  std::filesystem::resize_file(pictogramPad(map.pad(), "kestrolin", 48), 50);
  startIn(map.pad());
  EXPECT_EQ(maten(), std::vector<int>{16});
  EXPECT_TRUE(nietsGelogd(log()));
  EXPECT_TRUE(antwoorden.berichten.empty());
}

TEST_F(PictogramProef, BuiltIconsAreWhereTheProgramOfTheBuildTreeLooks) {
  startIn(KESTROLIN_BOUW);
  EXPECT_EQ(maten(), alleMaten());
}

}  // namespace
