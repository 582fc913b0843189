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

  // The one message of a load that ends.
  void verwachtBericht() const {
    ASSERT_EQ(antwoorden.berichten.size(), 1U);
    Bericht const& bericht = antwoorden.berichten[0];
    EXPECT_EQ(bericht.titel, "Multiple sampling frequencies not supported");
    EXPECT_EQ(bericht.tekst,
              "Cannot convert multiple files with different sampling frequencies.\nPlease convert "
              "your audio files to identical sampling frequencies.");
    EXPECT_EQ(bericht.stijl & (wxCLOSE | wxICON_ERROR), wxCLOSE | wxICON_ERROR);
    EXPECT_EQ(bericht.stijl & (wxYES_NO | wxCANCEL | wxICON_QUESTION | wxICON_INFORMATION), 0);
    EXPECT_EQ(bericht.ouder, venster);
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
  }
};

TEST_F(FrequentiesProef, AnotherOneEndsTheLoadAndTheBandStaysThatOfTheFirstFile) {
  struct Paar {
    int eerst;
    int dan;
    char const* band;
  };
  begin();
  // With a message, but for those that end at 8000 Hz: without a word.
  for (Paar const& paar :
       {Paar{8000, 16000, "Narrowband"}, Paar{8000, 32000, "Narrowband"},
        Paar{32000, 16000, "Ultra Wideband"}, Paar{32000, 8000, "Ultra Wideband"},
        Paar{16000, 32000, "Wideband"}, Paar{16000, 8000, "Wideband"}}) {
    SCOPED_TRACE(::testing::Message() << paar.eerst << " and " << paar.dan << " Hz");
    antwoorden.berichten.clear();
    std::vector<wxString> tijdens;
    if (paar.dan != 8000) {
      antwoorden.opBericht(wxID_OK, [&] { tijdens = boomRegels(); });
    }
    laad({opRate("a.wav", paar.eerst), opRate("b.wav", paar.dan)});
    verwachtEinde(paar.eerst, paar.dan);
    if (paar.dan == 8000) {
      EXPECT_TRUE(antwoorden.berichten.empty());
    } else {
      verwachtBericht();
      // The tree shows the file already while the message stands.
      EXPECT_EQ(tijdens, boomRegels());
    }
    EXPECT_EQ(keuze(ID_FORMAAT)->GetStringSelection(), paar.band);
  }
  wxString const bewaard = stop();
  EXPECT_TRUE(bewaard.Contains("\nfile1=" + pad("a.wav") + "\nfile2=\n"));
  EXPECT_TRUE(bewaard.Contains("\nspeexFormat=1\n"));
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
  // Files turned away before the end have left the list.
  wxArrayString const rest = laad({pad("weg.wav"), a, pad("weg2.wav"), b});
  EXPECT_EQ(fouten(), (std::vector<wxString>{afgewezen("weg.wav"), afgewezen("weg2.wav")}));
  ASSERT_EQ(rest.size(), 2U);
  EXPECT_EQ(rest[0], a);
  EXPECT_EQ(rest[1], b);
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
  // The first file alone is left in the list: for any other number Save proposes the directory's.
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
  // Of three files the last of which differs, two are in the history.
  laad({pad("a.wav"), pad("c.wav"), pad("b.wav")});
  EXPECT_FALSE(isGeladen());
  EXPECT_TRUE(stop().Contains("\nfile1=" + pad("c.wav") + "\nfile2=" + pad("a.wav") +
                              "\nfile3=" + pad("b.wav") + "\n"));
}

TEST_F(FrequentiesProef, PcmAndAdpcmOfOneFrequencyLoadTogether) {
  begin();
  laad({opRate("a.wav", 32000), bestand("b.wav", imaAdpcmWav(32000, 0))});
  EXPECT_EQ(boomRegels(),
            boomVan({{"a.wav", 1, 32000}, {"b.wav", 505, 32000, 1, "WAV 4 Bit IMA ADPCM"}}));
  EXPECT_TRUE(isGeladen());
}

}  // namespace
