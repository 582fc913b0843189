// What reaches the window in the middle of a run, past all that is disabled, as from a screen
// reader or from a bar of menus that the desktop keeps.
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/menu.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"

namespace {

class BezigProef : public WerkProef {
 protected:
  void stuur(wxWindow* bron, wxEventType soort, int id) {
    wxCommandEvent event(soort, id);
    event.SetEventObject(bron);
    bron->GetEventHandler()->ProcessEvent(event);
  }

  // Loads a file, presses Encode, and does that while the message stands.
  void tijdensRun(std::function<void()> const& doet) {
    laad({wav("a.wav")});
    antwoorden.opBericht(wxID_OK, doet);
    klik(ID_CODEER);
  }
};

TEST_F(BezigProef, NoCommandIsTaken) {
  begin(1);
  tijdensRun([this] {
    for (int const id : {int{ID_CODEER}, int{ID_SPEEL_BRON}, int{ID_SPEEL_RESULTAAT}, int{ID_TAAL},
                         int{wxID_OPEN}, int{wxID_SAVE}, int{wxID_EXIT}, int{wxID_FILE1}}) {
      stuur(venster, wxEVT_MENU, id);
    }
    for (int const id :
         {int{ID_CODEER}, int{ID_SPEEL_BRON}, int{wxID_OPEN}, int{wxID_SAVEAS}, int{wxID_EXIT}}) {
      stuur(knop(id), wxEVT_BUTTON, id);
    }
  });
  EXPECT_EQ(antwoorden.berichten.size(), 1U);
  EXPECT_TRUE(antwoorden.bestandsVragen.empty());
  EXPECT_TRUE(leeft());
  EXPECT_TRUE(isGecodeerd());
  EXPECT_EQ(status(), "Audio encoded in PCM embedded format");
  // Behind it they are taken again.
  antwoorden.opBestandsVraagAnnuleren();
  klik(wxID_OPEN);
  EXPECT_EQ(antwoorden.bestandsVragen.size(), 1U);
}

TEST_F(BezigProef, ASettingWaitsForTheEndAndThenGivesTheResultUp) {
  begin(1);
  tijdensRun([this] {
    keuze(ID_DAC_TYPE)->SetSelection(1);
    stuur(keuze(ID_DAC_TYPE), wxEVT_CHOICE, ID_DAC_TYPE);
    veld(ID_KLASSE)->SetValue("Anders");
  });
  EXPECT_FALSE(isGecodeerd());
  wxString const bewaard = stop();
  EXPECT_TRUE(bewaard.Contains("\ndacNumberOfBits=1\n"));
  EXPECT_TRUE(bewaard.Contains("\nklasseNaam=Anders\n"));
}

}  // namespace
