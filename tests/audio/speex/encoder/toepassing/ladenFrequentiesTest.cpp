// Loading of files of different sampling frequencies, which ends the load where they part.
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/msgdlg.h>
#include <wx/treectrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/vreemdeBestanden.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"

namespace {

class FrequentiesProef : public WerkProef {
 protected:
  // A usable file of one sample at this rate.
  wxString opRate(std::string const& naam, int rate) { return wav(naam, {1}, {rate}); }

  // Loads a file at `eerst` and one at `dan`, and expects the message.
  void verwachtBericht(int eerst, int dan) {
    begin();
    antwoorden.opBericht(wxID_OK);
    laad({opRate("a.wav", eerst), opRate("b.wav", dan)});
    ASSERT_EQ(antwoorden.berichten.size(), 1U);
    Bericht const& bericht = antwoorden.berichten[0];
    EXPECT_EQ(bericht.titel, "Multiple sampling frequencies not supported");
    EXPECT_EQ(bericht.tekst,
              "Cannot convert multiple files with different sampling frequencies.\nPlease convert "
              "your audio files to identical sampling frequencies.");
    EXPECT_EQ(bericht.stijl & (wxCLOSE | wxICON_ERROR), wxCLOSE | wxICON_ERROR);
    EXPECT_EQ(bericht.stijl & (wxYES_NO | wxCANCEL | wxICON_QUESTION | wxICON_INFORMATION), 0);
    EXPECT_EQ(bericht.ouder, venster);
    verwachtEinde(eerst, dan);
  }
  void verwachtGeenBericht(int eerst) {
    begin();
    laad({opRate("a.wav", eerst), opRate("b.wav", 8000)});
    EXPECT_TRUE(antwoorden.berichten.empty());
    verwachtEinde(eerst, 8000);
  }
  // The tree with the first file whole and the second broken off, and nothing loaded.
  void verwachtEinde(int eerst, int dan) {
    std::vector<wxString> regels = boomVan({{"a.wav", 1, eerst}});
    regels.insert(regels.end(),
                  {"b.wav", " frames     : 1", wxString::Format(" samplerate : %d", dan),
                   " channels   : 1", " format:", " sections:", " seekable:"});
    EXPECT_EQ(boomRegels(), regels);
    EXPECT_FALSE(isGeladen());
    EXPECT_FALSE(boom()->IsEnabled());
    EXPECT_FALSE(knop(ID_CODEER)->IsEnabled());
    EXPECT_FALSE(knop(wxID_SAVEAS)->IsEnabled());
    EXPECT_EQ(status(), "No audio file loaded");
    EXPECT_TRUE(nietsGelogd(log()));
    EXPECT_TRUE(stop().Contains("\nfile1=" + pad("a.wav") + "\nfile2=\n"));
  }
};

TEST_F(FrequentiesProef, From8000To16000AMessageEndsTheLoad) {
  verwachtBericht(8000, 16000);
}
TEST_F(FrequentiesProef, From8000To32000AMessageEndsTheLoad) {
  verwachtBericht(8000, 32000);
}
TEST_F(FrequentiesProef, From16000To32000AMessageEndsTheLoad) {
  verwachtBericht(16000, 32000);
}
TEST_F(FrequentiesProef, From32000To16000AMessageEndsTheLoad) {
  verwachtBericht(32000, 16000);
}
TEST_F(FrequentiesProef, From16000To8000TheLoadEndsWithoutAWord) {
  verwachtGeenBericht(16000);
}
TEST_F(FrequentiesProef, From32000To8000TheLoadEndsWithoutAWord) {
  verwachtGeenBericht(32000);
}

TEST_F(FrequentiesProef, TheBandStaysThatOfTheFirstFile) {
  begin();
  laad({opRate("a.wav", 16000), opRate("b.wav", 8000)});
  EXPECT_EQ(keuze(ID_FORMAAT)->GetStringSelection(), "Wideband");
  EXPECT_TRUE(stop().Contains("\nspeexFormat=1\n"));
}

TEST_F(FrequentiesProef, TheThirdFileIsNeverOpened) {
  begin();
  wxString const a = opRate("a.wav", 16000);
  wxString const b = opRate("b.wav", 8000);
  // It would be turned away with a word in the log, and leave the list.
  wxString const c = bestand("c.wav", "geen geluid");
  wxArrayString const over = laad({a, b, c});
  EXPECT_TRUE(nietsGelogd(log()));
  ASSERT_EQ(over.size(), 3U);
  EXPECT_EQ(over[0], a);
  EXPECT_EQ(over[1], b);
  EXPECT_EQ(over[2], c);
  EXPECT_EQ(boomRegels().size(), 14U);
  EXPECT_FALSE(isGeladen());
}

TEST_F(FrequentiesProef, FilesTurnedAwayBeforeTheEndHaveLeftTheList) {
  begin();
  wxArrayString const over =
      laad({pad("weg.wav"), opRate("a.wav", 16000), pad("weg2.wav"), opRate("b.wav", 8000)});
  EXPECT_EQ(fouten(), (std::vector<wxString>{afgewezen("weg.wav"), afgewezen("weg2.wav")}));
  ASSERT_EQ(over.size(), 2U);
  EXPECT_EQ(over[0], pad("a.wav"));
  EXPECT_EQ(over[1], pad("b.wav"));
}

TEST_F(FrequentiesProef, TheMessageComesWhileTheTreeAlreadyShowsTheFile) {
  begin();
  std::vector<wxString> regels;
  antwoorden.opBericht(wxID_OK, [this, &regels] { regels = boomRegels(); });
  laad({opRate("a.wav", 8000), opRate("b.wav", 32000)});
  EXPECT_EQ(regels, boomRegels());
  EXPECT_EQ(regels.size(), 14U);
}

TEST_F(FrequentiesProef, TheResultAndTheStatusTextOutliveABrokenLoad) {
  begin();
  laad({opRate("a.wav", 8000)});
  wxString const text = codeer();
  laad({opRate("b.wav", 16000), opRate("c.wav", 8000)});
  EXPECT_FALSE(isGeladen());
  EXPECT_FALSE(knop(ID_CODEER)->IsEnabled());
  EXPECT_TRUE(isGecodeerd());
  EXPECT_EQ(status(), "Audio encoded in PCM embedded format");
  EXPECT_EQ(zonderMoment(tekst()), text);
  bewaar(pad("uit.c"));
  EXPECT_EQ(zonderMoment(inhoud(pad("uit.c"))), text);
}

// Save proposes the name of a file that is alone in the list, and the directory's for any other
// number.
TEST_F(FrequentiesProef, TheFirstFileAloneIsLeftInTheList) {
  begin();
  laad({opRate("c.wav", 8000)});
  codeer();
  laad({opRate("b.wav", 16000), opRate("a.wav", 8000)});
  bewaar(pad("uit.c"));
  EXPECT_EQ(antwoorden.bestandsVragen.back().naam, "b.c");
}

TEST_F(FrequentiesProef, OnlyAGoodLoadBringsTheAudioBack) {
  begin();
  antwoorden.opBericht(wxID_OK);
  laad({opRate("b.wav", 8000), opRate("a.wav", 16000)});
  // A load of nothing but rejected files does not bring the flag back.
  laad({pad("weg.wav")});
  EXPECT_FALSE(isGeladen());
  // A good load does.
  laad({opRate("c.wav", 16000)});
  EXPECT_TRUE(isGeladen());
  EXPECT_EQ(status(), "Audio files loaded");
}

TEST_F(FrequentiesProef, ThreeFilesOfWhichTheLastDiffersLeaveTwoInTheHistory) {
  begin();
  laad({opRate("a.wav", 16000), opRate("b.wav", 16000), opRate("c.wav", 8000)});
  EXPECT_TRUE(
      stop().Contains("\nfile1=" + pad("b.wav") + "\nfile2=" + pad("a.wav") + "\nfile3=\n"));
}

TEST_F(FrequentiesProef, PcmAndAdpcmOfOneFrequencyLoadTogether) {
  begin();
  laad({opRate("a.wav", 32000), bestand("b.wav", imaAdpcmWav(32000, 0))});
  EXPECT_EQ(boomRegels(),
            boomVan({{"a.wav", 1, 32000}, {"b.wav", 505, 32000, 1, "WAV 4 Bit IMA ADPCM"}}));
  EXPECT_TRUE(isGeladen());
}

}  // namespace
