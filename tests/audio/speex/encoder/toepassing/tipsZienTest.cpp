// The tooltips as a user sees them: the mouse rests on a control.
#include <unistd.h>
#include <wx/button.h>
#include <wx/radiobox.h>
#include <wx/textctrl.h>

#include <array>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/invoerProef.h"
#include "tests/steun/opdracht.h"

namespace {

class TipsZien : public InvoerProef {
 protected:
  // The one window beside the main one.
  bool tipStaatEr() const {
    return voerUit("test $(xdotool search --onlyvisible --all --pid " + std::to_string(getpid()) +
                   " --name '' | wc -l) -eq 2") == 0;
  }

  void beweeg(wxPoint const& plek) {
    muisEnToetsen.MouseMove(plek);
    rust();
  }

  // Moves the mouse onto this place, expects the tip, and moves away.
  void verwachtTip(wxPoint const& plek) {
    beweeg(plek - wxSize(0, 2));
    beweeg(plek);
    EXPECT_TRUE(wacht([this] { return tipStaatEr(); }));
    EXPECT_EQ(status(), "No audio file loaded");
    // Onto the desktop.
    beweeg({1, 1});
    EXPECT_TRUE(wacht([this] { return !tipStaatEr(); }));
  }

  static wxPoint midden(wxWindow const* control) {
    wxRect const plaats = control->GetScreenRect();
    return plaats.GetPosition() + plaats.GetSize() / 2;
  }

  // In the row of a box, left enough for its button or label.
  static wxPoint inRij(wxRadioBox const* vak, int rij) {
    constexpr int inspringing = 20;
    wxRect const plaats = vak->GetScreenRect();
    wxPoint plek = plaats.GetPosition() + wxSize(inspringing, 0);
    while (plek.y < plaats.GetBottom() && vak->GetItemFromPoint(plek) != rij) {
      ++plek.y;
    }
    constexpr int binnenRand = 5;
    plek.y += binnenRand;
    EXPECT_EQ(vak->GetItemFromPoint(plek), rij);
    return plek;
  }
};

TEST_F(TipsZien, ComeUpOnDisabledControlsTooAndLeaveTheStatusBarAlone) {
  start();
  venster->Raise();
  ASSERT_TRUE(wacht([this] { return venster->IsActive(); }));
  for (int const id : std::array<int, 3>{wxID_SAVEAS, ID_CODEER, ID_SPEEL_RESULTAAT}) {
    EXPECT_FALSE(knop(id)->IsEnabled());
    verwachtTip(midden(knop(id)));
  }
  verwachtTip(midden(veld(ID_MAX_RATE)));
  verwachtTip(midden(veld(ID_KLASSE)));
  verwachtTip(inRij(radio(ID_ENCODER_TYPE), 1));
  verwachtTip(inRij(radio(ID_LANG_IMPL), 2));
}

}  // namespace
