// Speex runs that end before their last file: what is told, what is left of the text, and the run
// after them.
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/filefn.h>
#include <wx/log.h>
#include <wx/menu.h>
#include <wx/textctrl.h>
#include <wx/toplevel.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/speexRunProef.h"

namespace {

SpeexDoel const doel{eersteInstelling()};

class SpeexFoutProef : public SpeexRunProef {
 protected:
  void SetUp() override {
    beginSpeex();
    laadFragmenten(drieFragmenten());
  }
  // Chooses a band that the files do not have, and encodes.
  void codeerVerkeerd(int band = 1) {
    kies(keuze(ID_FORMAAT), band);
    klik(ID_CODEER);
  }
  // What a failed run shows: its two lines in the log, these behind any former ones, no message,
  // and an empty text field.
  void verwachtMislukt(wxString const& naam, int rate, int vanEncoder = 8000) {
    std::vector<wxString> const gevonden = fouten();
    ASSERT_GE(gevonden.size(), 2U);
    EXPECT_EQ(
        gevonden[gevonden.size() - 2],
        naam + wxString::Format(" has a different sampling frequency (%d)\nthan the encoder (%d)",
                                rate, vanEncoder));
    EXPECT_EQ(gevonden.back(), "Could not encode " + naam);
    EXPECT_EQ(status(), "Encoder error. Please check your settings");
    EXPECT_EQ(tekst(), "");
  }
  // The same run with nothing to be logged; the one before it was a good one.
  void verwachtStilMislukt() {
    antwoorden.berichten.clear();
    codeer();
    codeerVerkeerd();
    EXPECT_TRUE(nietsGelogd(log()));
    EXPECT_EQ(status(), "Encoder error. Please check your settings");
    EXPECT_EQ(tekst(), "");
    EXPECT_EQ(antwoorden.berichten.size(), 1U);
  }
};

TEST_F(SpeexFoutProef, ABandThatDoesNotFitTheFilesStopsTheRunAtTheFirst) {
  codeerVerkeerd();
  verwachtMislukt("bel.wav", 8000, 16000);
  // The other files do not fit either: they were not tried.
  EXPECT_EQ(log().size(), 2U);
  EXPECT_TRUE(antwoorden.berichten.empty());
  EXPECT_FALSE(isGecodeerd());
  EXPECT_FALSE(menuItem(wxID_SAVE)->IsEnabled());
  EXPECT_TRUE(knop(ID_CODEER)->IsEnabled());
  // The progress went with the run.
  EXPECT_TRUE(venster->IsEnabled());
  EXPECT_EQ(wxTopLevelWindows.GetCount(), 1U);
  EXPECT_TRUE(zelfdeTekst(bewaarTekst("uit.c"), runTot(1, drieFragmenten(), doel)));
}

TEST_F(SpeexFoutProef, AVanishedFileOfAnUnusableNameIsNamedAsItIsButForTwoPerCentSigns) {
  laad({wav("%s%n.wav"), wav("100%.wav")});
  ASSERT_TRUE(wxRemoveFile(pad("%s%n.wav")));
  klik(ID_CODEER);
  // The names are sorted by their signs: "1" stands behind "%".
  verwachtMislukt("%s%n.wav", 0);
  EXPECT_EQ(log().size(), 2U);
  laad({wav("a%%b.wav")});
  ASSERT_TRUE(wxRemoveFile(pad("a%%b.wav")));
  klik(ID_CODEER);
  verwachtMislukt("a%b.wav", 0);
}

TEST_F(SpeexFoutProef, AFailedRunAfterAGoodOneKeepsTheMarkOfTheResultAndSavesThePartialText) {
  codeer();
  ASSERT_TRUE(isGecodeerd());
  ASSERT_TRUE(wxRemoveFile(pad("tik.wav")));
  codeerZonderMelding();
  verwachtMislukt("tik.wav", 0);
  EXPECT_EQ(antwoorden.berichten.size(), 1U);
  EXPECT_TRUE(isGecodeerd());
  EXPECT_FALSE(knop(ID_CODEER)->IsEnabled());
  EXPECT_TRUE(zelfdeTekst(bewaarTekst("uit.c"), runTot(2, drieFragmenten(), doel)));
}

TEST_F(SpeexFoutProef, AFailedRunKeepsASavedResultSaved) {
  codeer();
  bewaar(pad("uit.c"));
  ASSERT_TRUE(wxRemoveFile(pad("tik.wav")));
  codeerZonderMelding();
  ASSERT_EQ(status(), "Encoder error. Please check your settings");
  // Nothing asks whether to save.
  klik(wxID_EXIT);
  EXPECT_FALSE(leeft());
}

TEST_F(SpeexFoutProef, TheRunAfterFailedOnesHasAFreshEncoderAndAMeanOfItsOwn) {
  // The first run gets through its first file, so that its encoder remembers that.
  wav("tik.wav", {1}, {16000});
  klik(ID_CODEER);
  verwachtMislukt("tik.wav", 16000);
  codeerVerkeerd();
  verwachtMislukt("bel.wav", 8000, 16000);
  codeerVerkeerd(2);
  verwachtMislukt("bel.wav", 8000, 32000);
  EXPECT_EQ(log().size(), 6U);
  kies(keuze(ID_FORMAAT), 0);
  wav("tik.wav", proefSamples(161));
  verwachtRun(drieFragmenten(), doel);
  EXPECT_TRUE(isGecodeerd());
  EXPECT_EQ(status(), "Audio encoded in Speex embedded format");
  EXPECT_EQ(log().size(), 6U);
  verwachtMelding(36);
}

TEST_F(SpeexFoutProef, WithTheLogOffOrErrorsBelowItsLevelTheStatusAloneTellsOfIt) {
  {
    wxLogNull const stil;
    verwachtStilMislukt();
  }
  wxLogLevel const niveau = wxLog::GetLogLevel();
  wxLog::SetLogLevel(wxLOG_FatalError);
  kies(keuze(ID_FORMAAT), 0);
  verwachtStilMislukt();
  wxLog::SetLogLevel(niveau);
  codeerVerkeerd();
  verwachtMislukt("bel.wav", 8000, 16000);
  EXPECT_EQ(log().size(), 2U);
}

}  // namespace
