// The questions of the settings and of the end: their exact words, and what each answer does.
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/msgdlg.h>
#include <wx/radiobox.h>
#include <wx/textctrl.h>

#include <array>
#include <functional>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/kestrolin.h"
#include "tests/audio/speex/encoder/toepassing/gereedProef.h"

namespace {

class VragenProef : public GereedProef {
 protected:
  // The last box, whole.
  void verwachtLaatste(wxString const& titel, wxString const& tekst, long stijl) {
    ASSERT_FALSE(antwoorden.berichten.empty());
    Bericht const& bericht = antwoorden.berichten.back();
    EXPECT_EQ(bericht.titel, titel);
    EXPECT_EQ(bericht.tekst, tekst);
    EXPECT_EQ(bericht.stijl, stijl);
    // A box without a parent gets the main window from the toolkit.
    EXPECT_EQ(bericht.ouder, venster);
  }

  // Takes the tick off the header box and answers the warning.
  void haalKopWeg(int antwoord) {
    antwoorden.opBericht(antwoord);
    zet(vakje(ID_INCL_HEADER), false);
  }

  // Leaves through the button with the quit question answered by that.
  void verlaat(int antwoord) {
    antwoorden.opBericht(antwoord);
    klik(wxID_EXIT);
  }

  std::size_t aantalBerichten() const { return antwoorden.berichten.size(); }
};

// The styles, written out: yes and no (10), no as default (128), a question's icon (1024), cancel
// (16), OK (4), an error's icon (512).
constexpr long kopStijl = 10 + 128 + 1024;
constexpr long quitStijl = 10 + 16 + 1024;
constexpr long pythonStijl = 4 + 512;

// Escape counts as No.
TEST_F(VragenProef, HeaderWarningGivesTheResultUpAndUnlessAnsweredYesTicksTheBoxAgain) {
  EXPECT_EQ(kopStijl, wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION);
  startGecodeerd();
  for (int const antwoord : {wxID_NO, wxID_CANCEL, wxID_YES}) {
    SCOPED_TRACE(antwoord);
    antwoorden.berichten.clear();
    haalKopWeg(antwoord);
    ASSERT_EQ(aantalBerichten(), 1U);
    verwachtLaatste("Header info absence",
                    "It is not recommended to remove header information from the encoded output "
                    "stream.\nYou will have a hard time using the audio data without knowledge of "
                    "length and sampling frequency.\nDo you really want to do this?",
                    kopStijl);
    EXPECT_EQ(vakje(ID_INCL_HEADER)->GetValue(), antwoord != wxID_YES);
    EXPECT_EQ(wxGetApp().geefInstellingen().IncludeHeader, antwoord != wxID_YES);
    EXPECT_FALSE(isGecodeerd());
    codeer();
  }
  EXPECT_EQ(stopSpeex("IncludeHeader"), "0");
}

TEST_F(VragenProef, PuttingTheHeaderBackAsksNothing) {
  startMetSpeex("IncludeHeader=0\n");
  EXPECT_FALSE(vakje(ID_INCL_HEADER)->GetValue());
  zet(vakje(ID_INCL_HEADER), true);
  EXPECT_EQ(aantalBerichten(), 0U);
  EXPECT_EQ(stopSpeex("IncludeHeader"), "1");
}

TEST_F(VragenProef, PythonIsDeclinedInItsExactWordsAndTheBoxGoesBackAndGivesTheResultUp) {
  EXPECT_EQ(pythonStijl, wxOK | wxICON_ERROR);
  startGecodeerd();
  for (int const taal : {0, 1}) {
    SCOPED_TRACE(taal);
    kies(radio(ID_LANG_IMPL), taal);
    if (!isGecodeerd()) {
      codeer();
    }
    antwoorden.berichten.clear();
    antwoorden.opBericht(wxID_OK);
    kies(radio(ID_LANG_IMPL), 2);
    ASSERT_EQ(aantalBerichten(), 1U);
    verwachtLaatste("Python encoding not available",
                    "Unfortunately, at present Python encoding has not been implemented yet.",
                    pythonStijl);
    EXPECT_EQ(radio(ID_LANG_IMPL)->GetSelection(), taal);
    EXPECT_EQ(wxGetApp().geefInstellingen().speexOutputLanguage, taal);
    EXPECT_FALSE(isGecodeerd());
  }
  EXPECT_EQ(stopSpeex("speexOutputLanguage"), "1");
}

TEST_F(VragenProef, PythonOfTheConfigurationIsShownWithoutAWarning) {
  startMetSpeex("speexOutputLanguage=2\n");
  EXPECT_EQ(radio(ID_LANG_IMPL)->GetSelection(), 2);
  EXPECT_EQ(radio(ID_LANG_IMPL)->GetStringSelection(), "Python");
  EXPECT_EQ(aantalBerichten(), 0U);
  EXPECT_EQ(stopSpeex("speexOutputLanguage"), "2");
}

TEST_F(VragenProef, QuitWithoutAResultAsksNothing) {
  startGeladen();
  klik(wxID_EXIT);
  EXPECT_FALSE(leeft());
  EXPECT_EQ(aantalBerichten(), 0U);
}

TEST_F(VragenProef, QuitRightAfterAnEncodingAsksByButtonOrMenuAndCancelGoesOnWithTheResult) {
  EXPECT_EQ(quitStijl, wxYES_NO | wxCANCEL | wxICON_QUESTION);
  startGecodeerd();
  std::array<std::function<void()>, 2> const wegen{[this] { klik(wxID_EXIT); },
                                                   [this] { kiesMenu(wxID_EXIT); }};
  for (auto const& weg : wegen) {
    antwoorden.berichten.clear();
    antwoorden.opBericht(wxID_CANCEL);
    weg();
    ASSERT_EQ(aantalBerichten(), 1U);
    verwachtLaatste("Encoded audio is not stored yet",
                    "Your encoded file wasn't saved.\nWould you like to save it?", quitStijl);
    EXPECT_TRUE(leeft());
    EXPECT_TRUE(isGecodeerd());
  }
  // No ends it without saving.
  antwoorden.opBericht(wxID_NO);
  kiesMenu(wxID_EXIT);
  EXPECT_FALSE(leeft());
  EXPECT_TRUE(antwoorden.bestandsVragen.empty());
}

TEST_F(VragenProef, QuitAnsweredYesSavesAndEnds) {
  startGecodeerd();
  wxString const resultaat = tekst();
  ASSERT_FALSE(resultaat.empty());
  antwoorden.opBericht(wxID_YES);
  antwoorden.opBestandsVraag(pad("uit.c"));
  klik(wxID_EXIT);
  EXPECT_FALSE(leeft());
  EXPECT_EQ(inhoud(pad("uit.c")), resultaat);
}

TEST_F(VragenProef, QuitAnsweredYesAndThenACancelledSaveStillEnds) {
  startGecodeerd();
  antwoorden.opBericht(wxID_YES);
  antwoorden.opBestandsVraagAnnuleren();
  klik(wxID_EXIT);
  EXPECT_FALSE(leeft());
}

TEST_F(VragenProef, QuitAfterASaveAsksNothing) {
  startGecodeerd();
  bewaar(pad("uit.c"));
  std::size_t const voor = aantalBerichten();
  klik(wxID_EXIT);
  EXPECT_FALSE(leeft());
  EXPECT_EQ(aantalBerichten(), voor);
}

TEST_F(VragenProef, QuitAfterASettingGaveTheResultUpAsksNothing) {
  startGecodeerd();
  kies(keuze(ID_DAC_TYPE), 0);
  std::size_t const voor = aantalBerichten();
  klik(wxID_EXIT);
  EXPECT_FALSE(leeft());
  EXPECT_EQ(aantalBerichten(), voor);
}

TEST_F(VragenProef, QuitAfterACancelledSaveOrASecondEncodingAsks) {
  startGecodeerd();
  antwoorden.opBestandsVraagAnnuleren();
  klik(wxID_SAVE);
  verlaat(wxID_CANCEL);
  EXPECT_EQ(antwoorden.berichten.back().titel, "Encoded audio is not stored yet");
  // Of the second, although the first was saved.
  bewaar(pad("uit.c"));
  kies(keuze(ID_DAC_TYPE), 0);
  codeerPcm();
  verlaat(wxID_NO);
  EXPECT_EQ(antwoorden.berichten.back().titel, "Encoded audio is not stored yet");
}

TEST_F(VragenProef, ClosingTheWindowNeverAsks) {
  startGecodeerd();
  std::size_t const voor = aantalBerichten();
  venster->Close();
  rust();
  EXPECT_FALSE(leeft());
  EXPECT_EQ(aantalBerichten(), voor);
}

}  // namespace
