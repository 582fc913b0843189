// Keys as a user presses them. Each test has a display of its own, for the keyboard goes to one
// window at a time.
#include <wx/button.h>
#include <wx/menu.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <functional>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/gereedProef.h"
#include "tests/steun/geduld.h"

namespace {

class InvoerProef : public GereedProef {
 protected:
  // The enable rules run too.
  bool wacht(std::function<bool()> const& gebeurd) {
    return wachtTot([this, &gebeurd] {
      rust();
      return gebeurd();
    });
  }
  // Long enough for a key to have its effect, which here is a fault.
  void wachtEven() {
    constexpr int rondes = 25;
    constexpr unsigned long pauze = 20;
    for (int ronde = 0; ronde < rondes; ++ronde) {
      rust();
      wxMilliSleep(pauze);
    }
  }

  void richt(wxWindow* doel) {
    venster->Raise();
    doel->SetFocus();
    ASSERT_TRUE(wacht([this, doel] { return venster->IsActive() && doel->HasFocus(); }));
  }

  void druk(int toets, int met = wxMOD_NONE) { muisEnToetsen.Char(toets, met); }

  // The same for a key of the window manager, which may think of another window yet when this one
  // has become active: it is pressed again after a while.
  bool drukTot(int toets, int met, std::function<bool()> const& gebeurd) {
    constexpr int rondesTussen = 500;
    int ronde = 0;
    return wacht([&] {
      bool const is = gebeurd();
      if (!is && ronde++ % rondesTussen == 0) {
        druk(toets, met);
      }
      return is;
    });
  }

  // Counts the presses of "Encode" in the place of its work.
  void telEncode() {
    knop(ID_CODEER)->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { ++encodeKeren; });
  }
  void telMenuEncode() {
    venster->Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { ++encodeKeren; }, ID_CODEER);
  }

  // Types another bit rate, as the first that the field holds.
  void typRate() {
    richt(veld(ID_MAX_RATE));
    veld(ID_MAX_RATE)->SelectAll();
    muisEnToetsen.Text("9999");
    ASSERT_TRUE(wacht([this] { return veld(ID_MAX_RATE)->GetValue() == "9999"; }));
  }

  wxUIActionSimulator muisEnToetsen;
  int encodeKeren = 0;
};

TEST_F(InvoerProef, EnterInTheBitRateFieldPressesEncodeAndTheRateStaysAsConfigured) {
  startGeladen();
  telEncode();
  typRate();
  druk(WXK_RETURN);
  EXPECT_TRUE(wacht([this] { return encodeKeren == 1; }));
  wachtEven();
  EXPECT_EQ(encodeKeren, 1);
  EXPECT_EQ(veld(ID_MAX_RATE)->GetValue(), "9999");
  EXPECT_EQ(stopSpeex("speexBitRate"), "5000");
}

TEST_F(InvoerProef, EnterInTheBitRateFieldDoesNothingWhileEncodeIsDisabled) {
  start();
  telEncode();
  typRate();
  druk(WXK_RETURN);
  wachtEven();
  EXPECT_EQ(encodeKeren, 0);
  EXPECT_TRUE(nietsGelogd(log()));
  EXPECT_EQ(stopSpeex("speexBitRate"), "5000");
}

TEST_F(InvoerProef, AcceleratorOfEncodeWorksOnlyWhenEncodingIsAllowed) {
  startMetSpeex("speexOutputLanguage=0\n");
  telMenuEncode();
  richt(knop(wxID_OPEN));
  ASSERT_FALSE(menuItem(ID_CODEER)->IsEnabled());
  druk('E', wxMOD_CONTROL);
  wachtEven();
  EXPECT_EQ(encodeKeren, 0);

  laad({maakFragment("fragment.wav")});
  ASSERT_TRUE(menuItem(ID_CODEER)->IsEnabled());
  druk('E', wxMOD_CONTROL);
  EXPECT_TRUE(wacht([this] { return encodeKeren == 1; }));
}

TEST_F(InvoerProef, AcceleratorOfEncodeIsDeadAfterAnEncoding) {
  startGecodeerd();
  telMenuEncode();
  richt(knop(wxID_OPEN));
  druk('E', wxMOD_CONTROL);
  wachtEven();
  EXPECT_EQ(encodeKeren, 0);
  EXPECT_TRUE(isGecodeerd());
}

TEST_F(InvoerProef, AltF4ClosesWithAnUnsavedResultAndAsksNothing) {
  startGecodeerd();
  std::size_t const voor = antwoorden.berichten.size();
  richt(knop(wxID_OPEN));
  EXPECT_TRUE(drukTot(WXK_F4, wxMOD_ALT, [this] { return !leeft(); }));
  EXPECT_EQ(antwoorden.berichten.size(), voor);
}

TEST_F(InvoerProef, ArrowKeyInTheQualityChangesTheSettingAtOnce) {
  start();
  richt(spin(ID_QUALITY));
  druk(WXK_UP);
  EXPECT_TRUE(wacht([this] { return spin(ID_QUALITY)->GetValue() == 9; }));
  EXPECT_EQ(stopSpeex("speexQuality"), "9");
}

TEST_F(InvoerProef, TypedClassNameEnablesEncode) {
  start();
  laad({maakFragment("fragment.wav")});
  ASSERT_FALSE(knop(ID_CODEER)->IsEnabled());
  richt(veld(ID_KLASSE));
  muisEnToetsen.Text("Klank");
  EXPECT_TRUE(wacht([this] { return knop(ID_CODEER)->IsEnabled(); }));
  EXPECT_TRUE(wacht([this] { return veld(ID_KLASSE)->GetValue() == "Klank"; }));
  EXPECT_EQ(stopSleutels().at("/Configuratie/klasseNaam"), "Klank");
}

}  // namespace
