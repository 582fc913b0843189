// The questions of the settings and of the end: their exact words, and what each answer does.
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/msgdlg.h>
#include <wx/radiobox.h>
#include <wx/textctrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
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

TEST_F(VragenProef, HeaderWarningHasItsExactWords) {
  start();
  haalKopWeg(wxID_NO);
  ASSERT_EQ(aantalBerichten(), 1U);
  EXPECT_EQ(kopStijl, wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION);
  verwachtLaatste("Header info absence",
                  "It is not recommended to remove header information from the encoded output "
                  "stream.\nYou will have a hard time using the audio data without knowledge of "
                  "length and sampling frequency.\nDo you really want to do this?",
                  kopStijl);
}

TEST_F(VragenProef, HeaderWarningAnsweredYesTakesTheHeaderOut) {
  startGecodeerd();
  haalKopWeg(wxID_YES);
  EXPECT_FALSE(vakje(ID_INCL_HEADER)->GetValue());
  EXPECT_FALSE(isGecodeerd());
  EXPECT_EQ(stopSpeex("IncludeHeader"), "0");
}

TEST_F(VragenProef, HeaderWarningAnsweredNoTicksTheBoxAgainAndStillGivesTheResultUp) {
  startGecodeerd();
  haalKopWeg(wxID_NO);
  EXPECT_TRUE(vakje(ID_INCL_HEADER)->GetValue());
  EXPECT_FALSE(isGecodeerd());
  EXPECT_EQ(stopSpeex("IncludeHeader"), "1");
}

TEST_F(VragenProef, HeaderWarningLeftByEscapeCountsAsNo) {
  startGecodeerd();
  haalKopWeg(wxID_CANCEL);
  EXPECT_TRUE(vakje(ID_INCL_HEADER)->GetValue());
  EXPECT_FALSE(isGecodeerd());
  EXPECT_EQ(stopSpeex("IncludeHeader"), "1");
}

TEST_F(VragenProef, PuttingTheHeaderBackAsksNothing) {
  startMetSpeex("IncludeHeader=0\n");
  EXPECT_FALSE(vakje(ID_INCL_HEADER)->GetValue());
  zet(vakje(ID_INCL_HEADER), true);
  EXPECT_EQ(aantalBerichten(), 0U);
  EXPECT_EQ(stopSpeex("IncludeHeader"), "1");
}

TEST_F(VragenProef, PythonIsDeclinedInItsExactWordsAndTheBoxGoesBackToCPP) {
  start();
  antwoorden.opBericht(wxID_OK);
  kies(radio(ID_LANG_IMPL), 2);
  ASSERT_EQ(aantalBerichten(), 1U);
  EXPECT_EQ(pythonStijl, wxOK | wxICON_ERROR);
  verwachtLaatste("Python encoding not available",
                  "Unfortunately, at present Python encoding has not been implemented yet.",
                  pythonStijl);
  EXPECT_EQ(radio(ID_LANG_IMPL)->GetSelection(), 1);
  EXPECT_EQ(stopSpeex("speexOutputLanguage"), "1");
}

TEST_F(VragenProef, DeclinedPythonGoesBackToCAndGivesTheResultUp) {
  startGecodeerd();
  antwoorden.opBericht(wxID_OK);
  kies(radio(ID_LANG_IMPL), 2);
  EXPECT_EQ(radio(ID_LANG_IMPL)->GetSelection(), 0);
  EXPECT_FALSE(isGecodeerd());
  EXPECT_EQ(stopSpeex("speexOutputLanguage"), "0");
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

TEST_F(VragenProef, QuitRightAfterAnEncodingAsksInItsExactWords) {
  startGecodeerd();
  HoofdVenster const* const ouder = venster;
  std::size_t const voor = aantalBerichten();
  verlaat(wxID_CANCEL);
  ASSERT_EQ(aantalBerichten(), voor + 1);
  EXPECT_EQ(quitStijl, wxYES_NO | wxCANCEL | wxICON_QUESTION);
  verwachtLaatste("Encoded audio is not stored yet",
                  "Your encoded file wasn't saved.\nWould you like to save it?", quitStijl);
  EXPECT_EQ(antwoorden.berichten.back().ouder, ouder);
}

TEST_F(VragenProef, QuitAnsweredCancelGoesOnWithTheResult) {
  startGecodeerd();
  verlaat(wxID_CANCEL);
  EXPECT_TRUE(leeft());
  EXPECT_TRUE(isGecodeerd());
}

TEST_F(VragenProef, QuitAnsweredNoEndsWithoutSaving) {
  startGecodeerd();
  verlaat(wxID_NO);
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

TEST_F(VragenProef, MenuAsksTheSameQuestionAsTheButton) {
  startGecodeerd();
  antwoorden.opBericht(wxID_CANCEL);
  kiesMenu(wxID_EXIT);
  EXPECT_TRUE(leeft());
  EXPECT_EQ(antwoorden.berichten.back().titel, "Encoded audio is not stored yet");
  antwoorden.opBericht(wxID_NO);
  kiesMenu(wxID_EXIT);
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

TEST_F(VragenProef, QuitAfterACancelledSaveStillAsks) {
  startGecodeerd();
  antwoorden.opBestandsVraagAnnuleren();
  klik(wxID_SAVE);
  verlaat(wxID_NO);
  EXPECT_EQ(antwoorden.berichten.back().titel, "Encoded audio is not stored yet");
}

TEST_F(VragenProef, QuitAfterASettingGaveTheResultUpAsksNothing) {
  startGecodeerd();
  kies(keuze(ID_DAC_TYPE), 0);
  std::size_t const voor = aantalBerichten();
  klik(wxID_EXIT);
  EXPECT_FALSE(leeft());
  EXPECT_EQ(aantalBerichten(), voor);
}

TEST_F(VragenProef, QuitAfterASecondEncodingAsksAgainAlthoughTheFirstWasSaved) {
  startGecodeerd();
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
