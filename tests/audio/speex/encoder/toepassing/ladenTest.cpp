// Loading of files that are taken: the dialog, the tree, and what else shows them.
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/filedlg.h>
#include <wx/treectrl.h>
#include <wx/utils.h>

#include <cstdlib>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/kestrolin.h"
#include "tests/audio/speex/encoder/toepassing/vreemdeBestanden.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"
#include "tests/steun/machine.h"

namespace {

class LadenProef : public WerkProef {
 protected:
  // Loads one file of this name that the tool takes, and expects it in the tree under that name.
  void verwachtGeladen(std::string const& naam) {
    laad({wav(naam)});
    EXPECT_EQ(boomRegels(), boomVan({{wxString::FromUTF8(naam.c_str()), 2, 8000}})) << naam;
    EXPECT_TRUE(nietsGelogd(log())) << naam;
  }
};

TEST_F(LadenProef, TheDialogIsOpenedWithExactlyTheseArgumentsAndTheConfiguredFileIsNotUsed) {
  wxString const muziek = submap("muziek");
  begin(0, "wavDirectory=" + muziek + "\nwavFile=/ergens/oud.wav\n");
  antwoorden.opBestandsVraag(wav("bel.wav"));
  klik(wxID_OPEN);
  ASSERT_EQ(antwoorden.bestandsVragen.size(), 1U);
  BestandsVraag const& vraag = antwoorden.bestandsVragen[0];
  EXPECT_EQ(vraag.bericht, "Open an Audio file");
  EXPECT_EQ(vraag.map, muziek);
  EXPECT_EQ(vraag.filter, "WAV Files (*.wav)|*.wav|MP3 Files (*mp3)|*.mp3");
  EXPECT_EQ(vraag.stijl, wxFD_OPEN | wxFD_FILE_MUST_EXIST | wxFD_MULTIPLE | wxFD_CHANGE_DIR);
  EXPECT_EQ(vraag.ouder, venster);
  EXPECT_TRUE(stop().Contains("\nwavFile=/ergens/oud.wav\n"));
}

TEST_F(LadenProef, TheMenuItemOpensTheSameDialogFirstAtHomeAndThenInTheDirectoryOfTheLast) {
  begin();
  wxString const muziek = submap("muziek");
  antwoorden.opBestandsVraag(wav("muziek/bel.wav"));
  kiesMenu(wxID_OPEN);
  antwoorden.opBestandsVraagAnnuleren();
  klik(wxID_OPEN);
  ASSERT_EQ(antwoorden.bestandsVragen.size(), 2U);
  EXPECT_EQ(antwoorden.bestandsVragen[0].bericht, "Open an Audio file");
  EXPECT_EQ(antwoorden.bestandsVragen[0].map, thuis());
  EXPECT_EQ(antwoorden.bestandsVragen[1].map, muziek);
}

TEST_F(LadenProef, ACancelledDialogChangesNothing) {
  begin();
  laad({wav("bel.wav")});
  codeer();
  antwoorden.opBestandsVraagAnnuleren();
  klik(wxID_OPEN);
  EXPECT_EQ(boomRegels(), boomVan({{"bel.wav", 2, 8000}}));
  EXPECT_EQ(status(), "Audio encoded in PCM embedded format");
  EXPECT_TRUE(isGecodeerd());
  EXPECT_TRUE(nietsGelogd(log()));
  EXPECT_TRUE(stop().Contains("\nwavDirectory=" + thuis() + "\n"));
}

TEST_F(LadenProef, OneWidebandFileGivesItsBandItsSixLinesInAClosedTreeAndTheStatusText) {
  begin();
  wxString const bel = wav("bel.wav", proefSamples(1600), {16000});
  antwoorden.opBestandsVraag(bel);
  klik(wxID_OPEN);
  EXPECT_EQ(boom()->GetItemText(boom()->GetRootItem()), "Audio Files");
  EXPECT_FALSE(boom()->IsExpanded(boom()->GetRootItem()));
  EXPECT_EQ(boomRegels(),
            (std::vector<wxString>{"bel.wav", " frames     : 1600", " samplerate : 16000",
                                   " channels   : 1", " format     : WAV S16 PCM",
                                   " sections:", " seekable   : 1"}));
  EXPECT_EQ(keuze(ID_FORMAAT)->GetStringSelection(), "Wideband");
  EXPECT_EQ(status(), "Audio files loaded");
  EXPECT_TRUE(isGeladen());
  EXPECT_TRUE(boom()->IsEnabled());
  wxString const bewaard = stop();
  EXPECT_TRUE(bewaard.Contains("\nspeexFormat=1\n"));
  EXPECT_TRUE(bewaard.Contains("\nwavDirectory=" + pad("").BeforeLast('/') + "\n"));
}

// The band of a file replaces the chosen one without its handler.
TEST_F(LadenProef, EachKindOfFileReplacesWhatWasLoadedBeforeAndNamesItsFormatAndBand) {
  begin(0, "", "speexFormat=1\n");
  std::string const heel = wavBytes({}, std::string(8, 'x'));
  auto const verwacht = [this](wxString const& pad, std::vector<BoomBestand> const& bestanden,
                               int band) {
    SCOPED_TRACE(pad.utf8_string());
    laad({pad});
    EXPECT_EQ(boomRegels(), boomVan(bestanden));
    EXPECT_EQ(keuze(ID_FORMAAT)->GetSelection(), band);
    EXPECT_EQ(wxGetApp().geefInstellingen().speexFormat, band);
    EXPECT_TRUE(isGeladen());
  };
  verwacht(bestand("adpcm.wav", imaAdpcmWav(32000, 256)),
           {{"adpcm.wav", 505, 32000, 1, "WAV 4 Bit IMA ADPCM"}}, 2);
  // Its channels show as seekable too.
  verwacht(wav("stereo.wav", {1, 2, 3, 4, 5, 6}, {8000, 2}), {{"stereo.wav", 3, 8000, 2}}, 0);
  verwacht(wav("zonder samples.wav", {}, {32000}), {{"zonder samples.wav", 0, 32000}}, 2);
  // What is there of samples that are cut off.
  verwacht(bestand("half.wav", heel.substr(0, heel.size() - 4)), {{"half.wav", 2, 8000}}, 0);
}

TEST_F(LadenProef, TheTreeKeepsTheOrderOfSelectionAndTheEncoderTakesThatOfThePaths) {
  begin();
  laad({wav("b.wav"), wav("a.wav")});
  EXPECT_EQ(boomRegels(), boomVan({{"b.wav", 2, 8000}, {"a.wav", 2, 8000}}));
  wxString text = codeer();
  EXPECT_TRUE(
      text.Contains("// extern const unsigned char a[];\n// extern const unsigned char b[];\n\n\n"
                    "/******* Start encoding file number 1 \t\t*******/\n"));
  EXPECT_LT(text.find("/* WAV file : a.wav"), text.find("/* WAV file : b.wav"));

  // Two files of one name in two directories both count: the path with x comes first.
  submap("x");
  submap("y");
  laad({wav("y/bel.wav", {5}), wav("x/bel.wav", {7, 7, 7})});
  EXPECT_EQ(boomRegels(), boomVan({{"bel.wav", 1, 8000}, {"bel.wav", 3, 8000}}));
  text = codeer();
  EXPECT_TRUE(text.StartsWith("/* PCM encoding output of 2 audio files \t\t*/\n\n"));
  EXPECT_LT(text.find("bel_pcmNumberOfEncSamples=3;"), text.find("bel_pcmNumberOfEncSamples=1;"));

  // The same file twice in one selection counts twice.
  laad({pad("a.wav"), pad("a.wav")});
  EXPECT_EQ(boomRegels(), boomVan({{"a.wav", 2, 8000}, {"a.wav", 2, 8000}}));
  EXPECT_TRUE(codeer().StartsWith("/* PCM encoding output of 2 audio files \t\t*/\n\n"));
}

TEST_F(LadenProef, ALoadReplacesAllThatWasLoadedBeforeAndGivesUpTheResult) {
  begin();
  laad({wav("a.wav"), wav("b.wav")});
  codeer();
  EXPECT_TRUE(isGecodeerd());
  EXPECT_FALSE(knop(ID_CODEER)->IsEnabled());
  laad({wav("c.wav")});
  EXPECT_FALSE(isGecodeerd());
  EXPECT_TRUE(knop(ID_CODEER)->IsEnabled());
  EXPECT_EQ(status(), "Audio files loaded");
  EXPECT_EQ(boomRegels(), boomVan({{"c.wav", 2, 8000}}));
  EXPECT_TRUE(codeer().StartsWith("/* PCM encoding output of 1 audio files \t\t*/\n\n"));
}

TEST_F(LadenProef, NamesWithBlanksDotsAccentsAndPerCentSignsLoad) {
  begin();
  for (char const* naam : {"stil zwijgen.wav", " voor en na .wav", "a.b.c.wav", ".wav",
                           "één ñ €.wav", "日本.wav", "100%.wav", "%s%n%d.wav", "a%%b.wav",
                           "zonder", "BEL.WAV", "a&b.wav", "tab\tin.wav", "'\"$HOME`.wav"}) {
    verwachtGeladen(naam);
  }
}

TEST_F(LadenProef, AccentsLoadAndEncodeAlsoWithoutAnyLocale) {
  if (heeftLocaleMappen()) {
    GTEST_SKIP() << "the locales of this machine cannot be hidden";
  }
  wxString const leeg = submap("leeg");
  setenv("LOCPATH", leeg.utf8_str(), 1);
  setenv("LANG", "C", 1);
  unsetenv("LC_ALL");
  unsetenv("LC_CTYPE");
  begin();
  // So it is the case that was meant.
  ASSERT_FALSE(log().empty());
  EXPECT_EQ(log().back().tekst, "Could not initialise the Locale for English");
  log().clear();
  wxString const naam = wxString::FromUTF8("café");
  antwoorden.opBestandsVraag(wav("café.wav"));
  klik(wxID_OPEN);
  EXPECT_EQ(boomRegels(), boomVan({{naam + ".wav", 2, 8000}}));
  EXPECT_TRUE(nietsGelogd(log()));
  wxString const text = codeer();
  EXPECT_TRUE(text.Contains("\n// extern const unsigned char " + naam + "[];\n"));
  EXPECT_TRUE(text.Contains("\n/* WAV file : " + naam + ".wav\t\t*/\n"));
}

}  // namespace
