// The keyboard's place: where it is behind a dialog, and behind a change of what can be used.
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/menu.h>
#include <wx/progdlg.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>
#include <wx/treectrl.h>

#include "audio/codec/hartslag.h"
#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/vensterToezicht.h"
#include "tests/audio/speex/encoder/toepassing/invoerProef.h"
#include "tests/steun/geduld.h"

namespace {

class FocusProef : public InvoerProef {
 protected:
  // Once the rules have run, since they may hand it on. A control counts as the one with the focus
  // before the window manager gives the keyboard back to its window, and keys are lost till then.
  void verwachtFocus(wxWindow const* doel) {
    rust();
    EXPECT_TRUE(wacht([this, doel] { return venster->IsActive() && doel->HasFocus(); }))
        << (wxWindow::FindFocus() == nullptr ? "none" : wxWindow::FindFocus()->GetLabel());
  }
};

TEST_F(FocusProef, TypingGoesOnBehindARun) {
  startMetSpeex("speexOutputLanguage=1\n");
  laad({maakFragment("fragment.wav")});
  richt(veld(ID_KLASSE));
  muisEnToetsen.Text("Klank");
  ASSERT_TRUE(wacht([this] { return veld(ID_KLASSE)->GetValue() == "Klank"; }));
  antwoorden.opBericht(wxID_OK);
  druk('E', wxMOD_CONTROL);
  ASSERT_TRUE(wacht([this] { return isGecodeerd(); }));
  verwachtFocus(veld(ID_KLASSE));
  druk(WXK_END);
  muisEnToetsen.Text("en");
  EXPECT_TRUE(wacht([this] { return veld(ID_KLASSE)->GetValue() == "Klanken"; }));
}

// The window hears of typed digits when their field loses the focus, which the run takes.
TEST_F(FocusProef, DigitsThatAreBeingTypedCountForTheRun) {
  startMetSpeex("speexOutputLanguage=0\n");
  laad({maakFragment("fragment.wav")});
  richt(spin(ID_QUALITY));
  druk('A', wxMOD_CONTROL);
  muisEnToetsen.Text("5");
  wachtEven();
  antwoorden.opBericht(wxID_OK);
  druk('E', wxMOD_CONTROL);
  ASSERT_TRUE(wacht([this] { return isGecodeerd(); }));
  EXPECT_TRUE(tekst().Contains("/* Speex Quality                   : 5  \t\t*/"));
  wachtEven();
  EXPECT_TRUE(isGecodeerd());
  EXPECT_EQ(stopSpeex("speexQuality"), "5");
}

TEST_F(FocusProef, EncodeHandsItOnToSave) {
  startGeladen();
  richt(knop(ID_CODEER));
  antwoorden.opBericht(wxID_OK);
  druk(WXK_SPACE);
  ASSERT_TRUE(wacht([this] { return isGecodeerd(); }));
  verwachtFocus(knop(wxID_SAVE));
  antwoorden.opBestandsVraag(pad("uit.c"));
  druk(WXK_SPACE);
  EXPECT_TRUE(wacht([this] { return wxFileExists(pad("uit.c")); }));
  verwachtFocus(knop(wxID_SAVE));
}

TEST_F(FocusProef, AFailedRunGivesItBackToEncode) {
  startGeladen();
  kies(radio(ID_ENCODER_TYPE), EncoderSpeex);
  keuze(ID_FORMAAT)->SetSelection(2);
  stuur(keuze(ID_FORMAAT), wxEVT_CHOICE);
  richt(knop(ID_CODEER));
  druk(WXK_SPACE);
  ASSERT_TRUE(wacht([this] { return status() == "Encoder error. Please check your settings"; }));
  verwachtFocus(knop(ID_CODEER));
}

TEST_F(FocusProef, SaveAsHasItAgainBehindAnEmbedding) {
  startGeladen();
  richt(knop(wxID_SAVEAS));
  antwoorden.opBestandsVraag(pad("uit.c"));
  druk(WXK_SPACE);
  ASSERT_TRUE(wacht([this] { return wxFileExists(pad("uit.c")); }));
  verwachtFocus(knop(wxID_SAVEAS));
}

// The arrows go from row to row there, and the space bar chooses.
TEST_F(FocusProef, TheChosenRowOfARadioBoxHasItBehindARun) {
  startGeladen();
  kies(radio(ID_ENCODER_TYPE), EncoderPCM);
  richt(radio(ID_ENCODER_TYPE));
  antwoorden.opBericht(wxID_OK);
  druk('E', wxMOD_CONTROL);
  ASSERT_TRUE(wacht([this] { return isGecodeerd(); }));
  verwachtFocus(radio(ID_ENCODER_TYPE));
  druk(WXK_UP);
  druk(WXK_SPACE);
  EXPECT_TRUE(wacht([this] { return radio(ID_ENCODER_TYPE)->GetSelection() == EncoderADPCM; }));
}

TEST_F(FocusProef, OpenHasItAgainBehindItsDialog) {
  startGeladen();
  richt(knop(wxID_OPEN));
  antwoorden.opBestandsVraag(maakFragment("ander.wav"));
  druk(WXK_SPACE);
  ASSERT_TRUE(wacht([this] { return boomRegels().front() == "ander.wav"; }));
  verwachtFocus(knop(wxID_OPEN));
}

TEST_F(FocusProef, SaveHandsItOnToEncodeWhenALoadGivesTheResultUp) {
  startGecodeerd();
  richt(knop(wxID_SAVE));
  laad({maakFragment("ander.wav")});
  verwachtFocus(knop(ID_CODEER));
}

TEST_F(FocusProef, TheTreeHandsItOnToOpenWhenNothingIsLoadedAnyMore) {
  startGeladen();
  richt(boom());
  laad({maakFragment("a.wav", 16000), maakFragment("b.wav", 8000)});
  ASSERT_FALSE(isGeladen());
  verwachtFocus(knop(wxID_OPEN));
}

TEST_F(FocusProef, TheHeaderBoxHasItAgainBehindItsQuestion) {
  startGeladen();
  richt(vakje(ID_INCL_HEADER));
  antwoorden.opBericht(wxID_NO);
  druk(WXK_SPACE);
  ASSERT_TRUE(wacht([this] { return antwoorden.isOp(); }));
  verwachtFocus(vakje(ID_INCL_HEADER));
}

TEST_F(FocusProef, PlayingLeavesItWhereItIs) {
  startGecodeerd();
  kies(radio(ID_ENCODER_TYPE), EncoderSpeex);
  antwoorden.opBericht(wxID_OK);
  klik(ID_CODEER);
  for (int const id : {int{ID_SPEEL_BRON}, int{ID_SPEEL_RESULTAAT}}) {
    richt(knop(id));
    klik(id);
    verwachtFocus(knop(id));
  }
}

// What the user asks for in the middle of a run would meet half a text.
TEST_F(FocusProef, KeysWaitWhileAFileIsEncoded) {
  startGeladen();
  int toetsen = 0;
  VensterToezicht const zicht(venster, "titel", "bericht", 1, *vakje(ID_INCL_HEADER));
  voortgang()->Bind(wxEVT_CHAR_HOOK, [&toetsen](wxKeyEvent&) { ++toetsen; });
  voortgang()->Raise();
  ASSERT_TRUE(wachtTot([] { return voortgang()->IsActive(); }));
  druk('A');
  bool isGetekend = false;
  voortgang()->Bind(wxEVT_PAINT, [&isGetekend](wxPaintEvent& event) {
    isGetekend = true;
    event.Skip();
  });
  voortgang()->Refresh();
  while (!isGetekend) {
    klop();
    wxMilliSleep(1);
  }
  EXPECT_EQ(toetsen, 0);
  EXPECT_TRUE(wachtTot([&toetsen] { return toetsen == 1; }));
}

}  // namespace
