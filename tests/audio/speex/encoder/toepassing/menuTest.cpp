// The menus of the window.
#include <wx/fileconf.h>
#include <wx/filehistory.h>
#include <wx/menu.h>
#include <wx/sstream.h>

#include <string>
#include <vector>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/steun/vensterProef.h"

namespace {

struct Ingang {
  int id;
  char const* label;
  bool aan;
};

constexpr Ingang streep{wxID_SEPARATOR, "", true};

void verwacht(wxMenu const& menu, std::vector<Ingang> const& ingangen) {
  ASSERT_EQ(menu.GetMenuItemCount(), ingangen.size());
  for (std::size_t i = 0; i < ingangen.size(); ++i) {
    wxMenuItem const* const item = menu.FindItemByPosition(i);
    Ingang const& ingang = ingangen[i];
    SCOPED_TRACE(::testing::Message() << i << " " << ingang.label);
    EXPECT_EQ(item->GetId(), ingang.id);
    EXPECT_EQ(item->IsSeparator(), ingang.id == wxID_SEPARATOR);
    if (!item->IsSeparator()) {
      EXPECT_EQ(item->GetKind(), wxITEM_NORMAL);
      EXPECT_EQ(item->GetItemLabel(), ingang.label);
      EXPECT_EQ(item->IsEnabled(), ingang.aan);
    }
  }
}

constexpr char const* metGeschiedenis =
    "[Configuratie]\nfile1=/klank/een.wav\nfile2=/ander/twee&drie.wav\n";

// The labels that the toolkit gives to a history of these settings. Some releases leave out the
// folder of a file, others do not.
std::vector<std::string> labelsVanToolkit(wxString const& instellingen) {
  wxStringInputStream stroom(instellingen);
  wxFileConfig config(stroom);
  config.SetPath("/Configuratie");
  wxMenu menu;
  wxFileHistory geschiedenis;
  geschiedenis.UseMenu(&menu);
  geschiedenis.Load(config);
  std::vector<std::string> labels;
  for (wxMenuItem const* const item : menu.GetMenuItems()) {
    labels.push_back(item->GetItemLabel().utf8_string());
  }
  return labels;
}

class MenuProef : public RustProef {
 protected:
  wxMenu* menu(std::size_t plaats) const { return venster->GetMenuBar()->GetMenu(plaats); }
};

using MenuGeschiedenisProef = VensterProef;

TEST_F(MenuProef, BarHoldsFileAndSpeex) {
  wxMenuBar const* const balk = venster->GetMenuBar();
  ASSERT_NE(balk, nullptr);
  ASSERT_EQ(balk->GetMenuCount(), 2U);
  EXPECT_EQ(balk->GetMenuLabel(0), "&File");
  EXPECT_EQ(balk->GetMenuLabel(1), "&Speex");
}

TEST_F(MenuProef, FileMenuHoldsItsEntriesAndSeparators) {
  verwacht(*menu(0), {{wxID_OPEN, "Open", true},
                      {21, "Recent Files .....", true},
                      {wxID_SAVE, "Save", false},
                      streep,
                      {22, "&Language", true},
                      streep,
                      {wxID_EXIT, "Exit", true}});
}

TEST_F(MenuProef, SpeexMenuHoldsItsEntriesWithTheirAccelerators) {
  verwacht(*menu(1), {{1, "Play Source Audio\tCtrl+K", false},
                      {3, "Encode\tCtrl+E", false},
                      {2, "Play Encoded\tCtrl+L", false},
                      {wxID_ABOUT, "About", true}});
}

TEST_F(MenuProef, OnlyTheRecentFilesAreASubmenuAndItHoldsTheHeadingAlone) {
  for (wxMenuItem const* item : menu(0)->GetMenuItems()) {
    EXPECT_EQ(item->IsSubMenu(), item->GetId() == 21);
  }
  verwacht(*menuItem(21)->GetSubMenu(), {{28, "Recently loaded files", true}});
}

TEST_F(MenuProef, NoEntryOfTheToolsOwnHasAHelpText) {
  // The toolkit answers for the ids that it knows itself.
  for (int const id : {1, 2, 3, 21, 22, 28}) {
    EXPECT_EQ(menuItem(id)->GetHelp(), "") << id;
  }
}

TEST_F(MenuGeschiedenisProef, HistoryStandsBelowTheHeading) {
  start(metGeschiedenis);
  std::vector<std::string> const labels = labelsVanToolkit(metGeschiedenis);
  ASSERT_EQ(labels.size(), 2U);
  EXPECT_EQ(labels[0].substr(0, 3), "&1 ");
  EXPECT_NE(labels[1].find("twee&&drie.wav"), std::string::npos);
  verwacht(*menuItem(21)->GetSubMenu(), {{28, "Recently loaded files", true},
                                         streep,
                                         {wxID_FILE1, labels[0].c_str(), true},
                                         {wxID_FILE2, labels[1].c_str(), true}});
}

}  // namespace
