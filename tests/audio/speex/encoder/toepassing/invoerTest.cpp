// Keys as a user presses them, on single controls.
#include <wx/button.h>
#include <wx/menu.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/invoerProef.h"

namespace {

class ToetsProef : public InvoerProef {
 protected:
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

  int encodeKeren = 0;
};

TEST_F(ToetsProef, EnterInTheBitRateFieldPressesEncodeAndTheRateStaysAsConfigured) {
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

TEST_F(ToetsProef, EnterInTheBitRateFieldDoesNothingWhileEncodeIsDisabled) {
  start();
  telEncode();
  typRate();
  druk(WXK_RETURN);
  wachtEven();
  EXPECT_EQ(encodeKeren, 0);
  EXPECT_TRUE(nietsGelogd(log()));
  EXPECT_EQ(stopSpeex("speexBitRate"), "5000");
}

TEST_F(ToetsProef, AcceleratorOfEncodeWorksOnlyWhenEncodingIsAllowed) {
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

TEST_F(ToetsProef, AcceleratorOfEncodeIsDeadAfterAnEncoding) {
  startGecodeerd();
  telMenuEncode();
  richt(knop(wxID_OPEN));
  druk('E', wxMOD_CONTROL);
  wachtEven();
  EXPECT_EQ(encodeKeren, 0);
  EXPECT_TRUE(isGecodeerd());
}

TEST_F(ToetsProef, AltF4ClosesWithAnUnsavedResultAndAsksNothing) {
  startGecodeerd();
  std::size_t const voor = antwoorden.berichten.size();
  richt(knop(wxID_OPEN));
  EXPECT_TRUE(drukTot(WXK_F4, wxMOD_ALT, [this] { return !leeft(); }));
  EXPECT_EQ(antwoorden.berichten.size(), voor);
}

TEST_F(ToetsProef, ArrowKeyInTheQualityChangesTheSettingAtOnce) {
  start();
  richt(spin(ID_QUALITY));
  druk(WXK_UP);
  EXPECT_TRUE(wacht([this] { return spin(ID_QUALITY)->GetValue() == 9; }));
  EXPECT_EQ(stopSpeex("speexQuality"), "9");
}

TEST_F(ToetsProef, TypedClassNameEnablesEncode) {
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
