// The dialog of the languages, as it stands when it opens.
#include <wx/sizer.h>

#include "tests/externals/desktop/taalDialoogProef.h"

namespace {

using TaalDialoogOpening = TaalDialoogProef;

std::vector<wxString> const alleNamen{"Deutsch",  "English",  "Espagnol",
                                      "Francais", "Italiano", "Nederlands"};

void verwachtDeel(wxSizerItem const& deel, int verhouding, int vlaggen, int rand) {
  EXPECT_EQ(deel.GetProportion(), verhouding);
  EXPECT_EQ(deel.GetFlag(), vlaggen);
  EXPECT_EQ(deel.GetBorder(), rand);
}

TEST_F(TaalDialoogOpening, RowsAreTheSixLanguagesSortedByTheirText) {
  startVenster();
  maak();
  EXPECT_EQ(rijen(), alleNamen);
  ASSERT_NE(lijst(), nullptr);
  EXPECT_EQ(lijst()->GetId(), 0);
  constexpr long soorten = wxLB_SINGLE | wxLB_MULTIPLE | wxLB_EXTENDED | wxLB_SORT | wxLB_OWNERDRAW;
  EXPECT_EQ(lijst()->GetWindowStyle() & soorten, wxLB_SINGLE | wxLB_SORT);
  EXPECT_EQ(wxLB_SINGLE | wxLB_SORT, 48);
}

// Not the language in force.
TEST_F(TaalDialoogOpening, FirstRowIsSelectedAndTheLanguageIsGerman) {
  startInTaal(wxString::Format("%d", static_cast<int>(wxLANGUAGE_DUTCH)));
  venster = maakVenster();
  maak();
  EXPECT_EQ(lijst()->GetSelection(), 0);
  EXPECT_EQ(lijst()->GetStringSelection(), "Deutsch");
  EXPECT_EQ(dialoog->geefTaal(), wxLANGUAGE_GERMAN);
}

TEST_F(TaalDialoogOpening, ListStandsAboveTheRowOfButtonsAndTheDialogFitsThem) {
  startVenster();
  maak();
  ASSERT_NE(knop(wxID_OK), nullptr);
  ASSERT_NE(knop(wxID_CANCEL), nullptr);
  EXPECT_EQ(knop(wxID_OK)->GetLabelText(), "OK");
  EXPECT_EQ(knop(wxID_CANCEL)->GetLabelText(), "Cancel");
  EXPECT_EQ(dialoog->GetDefaultItem(), knop(wxID_OK));
  wxWindowList const& kinderen = dialoog->GetChildren();
  EXPECT_EQ(std::vector<wxWindow*>(kinderen.begin(), kinderen.end()),
            (std::vector<wxWindow*>{lijst(), knop(wxID_OK), knop(wxID_CANCEL)}));
  auto* const alles = dynamic_cast<wxBoxSizer*>(dialoog->GetSizer());
  ASSERT_NE(alles, nullptr);
  EXPECT_EQ(alles->GetOrientation(), wxVERTICAL);
  ASSERT_EQ(alles->GetItemCount(), 2U);
  EXPECT_EQ(alles->GetItem(std::size_t{0})->GetWindow(), lijst());
  verwachtDeel(*alles->GetItem(std::size_t{0}), 1, int{wxEXPAND} | int{wxALL}, 30);
  verwachtDeel(*alles->GetItem(std::size_t{1}), 0, wxEXPAND, 0);
  auto* const knoppen = dynamic_cast<wxBoxSizer*>(alles->GetItem(std::size_t{1})->GetSizer());
  ASSERT_NE(knoppen, nullptr);
  EXPECT_EQ(knoppen->GetOrientation(), wxHORIZONTAL);
  ASSERT_EQ(knoppen->GetItemCount(), 2U);
  EXPECT_EQ(knoppen->GetItem(std::size_t{0})->GetWindow(), knop(wxID_OK));
  EXPECT_EQ(knoppen->GetItem(std::size_t{1})->GetWindow(), knop(wxID_CANCEL));
  verwachtDeel(*knoppen->GetItem(std::size_t{0}), 1, wxALL, 20);
  verwachtDeel(*knoppen->GetItem(std::size_t{1}), 1, wxALL, 20);
  EXPECT_EQ(dialoog->GetClientSize(), dialoog->GetSizer()->GetMinSize());
  dialoog->Show();
  rust();
  EXPECT_EQ(dialoog->GetClientSize(), dialoog->GetSizer()->GetMinSize());
}

TEST_F(TaalDialoogOpening, ArgumentsGoToTheDialog) {
  startVenster();
  constexpr int id = 4711;
  constexpr long stijl = wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER;
  TaalDialoog const eigen(venster, id, "Titel", wxPoint(123, 145), wxDefaultSize, stijl);
  EXPECT_EQ(eigen.GetParent(), venster);
  EXPECT_EQ(eigen.GetId(), id);
  EXPECT_EQ(eigen.GetTitle(), "Titel");
  EXPECT_EQ(eigen.GetPosition(), wxPoint(123, 145));
  // The toolkit gives every dialog its own way with the tab key.
  EXPECT_EQ(eigen.GetWindowStyle() & ~static_cast<long>(wxTAB_TRAVERSAL), stijl);
}

}  // namespace
