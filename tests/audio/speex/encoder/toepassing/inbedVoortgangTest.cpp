// The progress of an embedding.
#include <wx/progdlg.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/inbedVensterProef.h"

namespace {

using InbedVoortgangProef = InbedVensterProef;

// The labels that stand in a window.
std::vector<wxString> labels(wxWindow const& venster) {
  std::vector<wxString> gevonden;
  for (wxWindow const* kind : venster.GetChildren()) {
    if (dynamic_cast<wxStaticText const*>(kind) != nullptr) {
      gevonden.push_back(kind->GetLabel());
    }
  }
  return gevonden;
}

TEST_F(InbedVoortgangProef, TheProgressStandsBehindTheQuestionAndKeepsAllWindowsFromTakingInput) {
  begin();
  laad({wav("a.wav"), wav("b.wav"), wav("c.wav")});
  auto* const ander = new wxFrame(nullptr, wxID_ANY, "ander");
  ander->Show();
  rust();
  inbedOver(bestand("oud.c", "oud\n"), wxID_NO, [this, ander] {
    wxGenericProgressDialog* const dialoog = voortgang();
    ASSERT_NE(dialoog, nullptr);
    EXPECT_EQ(dialoog->GetTitle(), "Embedding progress");
    EXPECT_EQ(dialoog->GetMessage(), "Completion of embedding progress");
    EXPECT_EQ(dialoog->GetRange(), 3);
    EXPECT_EQ(dialoog->GetValue(), 0);
    EXPECT_EQ(dialoog->GetParent(), venster);
    EXPECT_TRUE(dialoog->IsShown());
    EXPECT_EQ(dialoog->FindWindow(wxID_CANCEL), nullptr);
    EXPECT_FALSE(venster->IsEnabled());
    EXPECT_FALSE(ander->IsEnabled());
    // The message, the label, and the time.
    std::vector<wxString> const gevonden = labels(*dialoog);
    ASSERT_EQ(gevonden.size(), 3U);
    EXPECT_EQ(gevonden[0], "Completion of embedding progress");
    EXPECT_EQ(gevonden[1], "Elapsed time:");
    // Nothing of the old file is gone before the answer.
    EXPECT_EQ(inhoud(pad("oud.c")), "oud\n");
  });
  EXPECT_EQ(voortgang(), nullptr);
  EXPECT_TRUE(venster->IsEnabled());
  EXPECT_TRUE(ander->IsEnabled());
  ander->Destroy();
}

// The progress at each change of the text field, and the status text at the last one.
class InbedEindeProef : public InbedVensterProef {
 protected:
  void volg() {
    veld(ID_TEKST)->Bind(wxEVT_TEXT, [this](wxCommandEvent& event) {
      wxGenericProgressDialog const* const dialoog = voortgang();
      standen.push_back(dialoog == nullptr ? wxNOT_FOUND : dialoog->GetValue());
      grootte = dialoog == nullptr ? wxNOT_FOUND : dialoog->GetRange();
      bericht = dialoog == nullptr ? wxString() : dialoog->GetMessage();
      statusToen = status();
      event.Skip();
    });
  }
  std::vector<int> standen;
  int grootte = 0;
  wxString bericht;
  wxString statusToen;
};

TEST_F(InbedEindeProef, TheBarStandsOneBehindItsEndAndTheDialogGoesLast) {
  begin();
  laad({wav("a.wav"), wav("b.wav"), wav("c.wav")});
  volg();
  inbed(pad("uit.c"));
  ASSERT_FALSE(standen.empty());
  EXPECT_EQ(standen, std::vector<int>(standen.size(), 2));
  EXPECT_EQ(grootte, 3);
  EXPECT_EQ(bericht, "Completion of embedding progress");
  EXPECT_EQ(statusToen, "WAV embedded data saved in uit.c");
  EXPECT_EQ(voortgang(), nullptr);
}

TEST_F(InbedEindeProef, WithoutFilesTheBarHasNoLength) {
  begin();
  laad({wav("a.wav")});
  laad({});
  volg();
  inbed(pad("uit.c"));
  ASSERT_FALSE(standen.empty());
  EXPECT_EQ(grootte, 0);
  EXPECT_EQ(standen.back(), 0);
}

}  // namespace
