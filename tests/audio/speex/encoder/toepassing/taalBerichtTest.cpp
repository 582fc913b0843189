// What the program says in each of the languages: the texts of its catalogs, as their sources have
// them.
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/msgdlg.h>
#include <wx/progdlg.h>
#include <wx/radiobox.h>
#include <wx/treectrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/taalProef.h"
#include "tests/audio/speex/encoder/toepassing/vreemdeBestanden.h"

namespace {

constexpr char const* onbruikbaar =
    " cannot be loaded because it isn't a WAV PCM/IMA ADPCM S16 8,16,32 kHz format audio file";

class TaalBericht : public ElkeTaalProef {
 public:
  // One each, in a window that was started once.
  void openVraag();
  void afgewezenBestand();
  void pythonGeweigerd();
  void vraagOverHeader();
  void andereFrequenties();
  void statusEnBoom();
  void pcmRun();
  void vraagBijStoppen();
  void bewaren();
  void speexRun();
  void nietPassendeInstellingen();

 protected:
  // Where there is only one, and nothing is logged.
  Bericht bericht() const {
    EXPECT_EQ(antwoorden.berichten.size(), 1U);
    EXPECT_TRUE(nietsGelogd(log()));
    return antwoorden.berichten.empty() ? Bericht{} : antwoorden.berichten.back();
  }
  void verwachtStatus(std::string const& tekst) const { EXPECT_EQ(status().utf8_string(), tekst); }
  // The lines below the root for one loaded file.
  std::vector<std::string> boomTeksten() const {
    std::vector<std::string> regels;
    for (wxString const& regel : boomRegels()) {
      regels.push_back(regel.utf8_string());
    }
    return regels;
  }
  std::vector<std::string> verwachteBoom(std::string const& naam, std::string const& frames,
                                         std::string const& formaat) {
    return {naam,
            " " + vulIn(vertaald("frames     : %ld"), {frames}),
            " " + vulIn(vertaald("samplerate : %d"), {"8000"}),
            " " + vulIn(vertaald("channels   : %d"), {"1"}),
            " " + vertaald(formaat),
            " " + vertaald("sections:"),
            " " + vulIn(vertaald("seekable   : %d"), {"1"})};
  }
};

void TaalBericht::statusEnBoom() {
  ASSERT_EQ(laad({wav("bel.wav")}).size(), 1U);
  verwachtStatus(anders("Audio files loaded"));
  EXPECT_EQ(boom()->GetItemText(boom()->GetRootItem()).utf8_string(), anders("Audio Files"));
  EXPECT_EQ(boomTeksten(), verwachteBoom("bel.wav", "2", "format     : WAV S16 PCM"));
  laad({bestand("klein.wav", imaAdpcmWav(8000, 5))});
  EXPECT_EQ(boomTeksten(), verwachteBoom("klein.wav", "505", "format     : WAV 4 Bit IMA ADPCM"));
  EXPECT_TRUE(nietsGelogd(log()));
}

void TaalBericht::openVraag() {
  antwoorden.opBestandsVraagAnnuleren();
  klik(wxID_OPEN);
  ASSERT_EQ(antwoorden.bestandsVragen.size(), 1U);
  EXPECT_EQ(antwoorden.bestandsVragen[0].bericht.utf8_string(), anders("Open an Audio file"));
  // No catalog has the names of the filters.
  EXPECT_EQ(antwoorden.bestandsVragen[0].filter, "WAV Files (*.wav)|*.wav|MP3 Files (*mp3)|*.mp3");
}

void TaalBericht::afgewezenBestand() {
  EXPECT_TRUE(laad({bestand("ruis.wav", "geen geluid")}).empty());
  ASSERT_EQ(fouten().size(), 1U);
  EXPECT_EQ(fouten()[0].utf8_string(), "ruis.wav" + anders(onbruikbaar));
}

void TaalBericht::andereFrequenties() {
  antwoorden.opBericht(wxID_OK);
  laad({wav("bel.wav"), wav("hoog.wav", {1, 2}, {16000})});
  EXPECT_EQ(bericht().titel.utf8_string(), anders("Multiple sampling frequencies not supported"));
  EXPECT_EQ(bericht().tekst.utf8_string(),
            anders("Cannot convert multiple files with different sampling frequencies.\nPlease "
                   "convert your audio files to identical sampling frequencies."));
}

void TaalBericht::pcmRun() {
  laad({wav("bel.wav")});
  antwoorden.opBericht(wxID_OK, [this] {
    wxGenericProgressDialog const* const dialoog = voortgang();
    ASSERT_NE(dialoog, nullptr);
    EXPECT_EQ(dialoog->GetTitle().utf8_string(), anders("Encoding progress"));
    EXPECT_EQ(dialoog->GetMessage().utf8_string(), anders("Completion of encoding progress"));
  });
  klik(ID_CODEER);
  EXPECT_EQ(bericht().titel, "PCM encoding succeeded");
  EXPECT_EQ(bericht().tekst.utf8_string(), anders("Audio data in\n") + map.pad("thuis") +
                                               anders("\nwas successfully encoded to PCM."));
  verwachtStatus(anders("Audio encoded in PCM embedded format"));
}

void TaalBericht::speexRun() {
  kies(radio(ID_ENCODER_TYPE), EncoderSpeex);
  // 24, 48 and 38 per cent on average, cut.
  laadFragmenten(drieFragmenten());
  antwoorden.opBericht(wxID_OK);
  klik(ID_CODEER);
  EXPECT_EQ(bericht().titel, "Speex encoding succeeded");
  EXPECT_EQ(bericht().tekst.utf8_string(),
            anders("Audio data in\n") + map.pad("thuis") +
                vulIn(anders("\nwas on average encoded to %d%% of the original size"), {"36"}));
  verwachtStatus(anders("Audio encoded in Speex embedded format"));
}

void TaalBericht::nietPassendeInstellingen() {
  laad({wav("bel.wav")});
  kies(keuze(ID_FORMAAT), 1);
  klik(ID_CODEER);
  ASSERT_EQ(fouten().size(), 2U);
  EXPECT_EQ(
      fouten()[0].utf8_string(),
      "bel.wav" + vulIn(anders(" has a different sampling frequency (%d)\nthan the encoder (%d)"),
                        {"8000", "16000"}));
  EXPECT_EQ(fouten()[1].utf8_string(), anders("Could not encode ") + "bel.wav");
  verwachtStatus(anders("Encoder error. Please check your settings"));
}

void TaalBericht::vraagBijStoppen() {
  laad({wav("bel.wav")});
  codeer();
  antwoorden.berichten.clear();
  antwoorden.opBericht(wxID_CANCEL);
  klik(wxID_EXIT);
  EXPECT_TRUE(leeft());
  EXPECT_EQ(bericht().titel.utf8_string(), anders("Encoded audio is not stored yet"));
  EXPECT_EQ(bericht().tekst.utf8_string(),
            anders("Your encoded file wasn't saved.\nWould you like to save it?"));
}

void TaalBericht::bewaren() {
  laad({wav("bel.wav")});
  codeer();
  antwoorden.berichten.clear();
  bewaarOver(bestand("uit.c", "oud\n"), wxID_NO);
  EXPECT_EQ(antwoorden.bestandsVragen[0].bericht.utf8_string(),
            anders("Save the embedded speex file"));
  EXPECT_EQ(bericht().titel.utf8_string(), anders("File exists"));
  EXPECT_EQ(bericht().tekst.utf8_string(),
            anders("The file already exists.\nWould you like to append the newly encoded data to "
                   "this file?"));
  verwachtStatus(anders("Speex embedded data saved in ") + "uit.c");
}

void TaalBericht::vraagOverHeader() {
  antwoorden.opBericht(wxID_NO);
  zet(vakje(ID_INCL_HEADER), false);
  EXPECT_EQ(bericht().titel.utf8_string(), anders("Header info absence"));
  EXPECT_EQ(bericht().tekst.utf8_string(),
            anders("It is not recommended to remove header information from the encoded output "
                   "stream.\nYou will have a hard time using the audio data without knowledge of "
                   "length and sampling frequency.\nDo you really want to do this?"));
}

void TaalBericht::pythonGeweigerd() {
  antwoorden.opBericht(wxID_OK);
  kies(radio(ID_LANG_IMPL), 2);
  EXPECT_EQ(bericht().titel.utf8_string(), anders("Python encoding not available"));
  EXPECT_EQ(bericht().tekst.utf8_string(),
            anders("Unfortunately, at present Python encoding has not been implemented yet."));
}

struct Rij {
  char const* naam;
  void (TaalBericht::*doet)();
};

TEST_P(TaalBericht, EachSpeaksTheLanguage) {
  beginInTaal(EncoderPCM);
  for (Rij const& rij :
       {Rij{"open dialog", &TaalBericht::openVraag},
        Rij{"file that is turned away", &TaalBericht::afgewezenBestand},
        Rij{"Python is declined", &TaalBericht::pythonGeweigerd},
        Rij{"question about the header", &TaalBericht::vraagOverHeader},
        Rij{"files of different frequencies", &TaalBericht::andereFrequenties},
        Rij{"status and tree after a load", &TaalBericht::statusEnBoom},
        Rij{"success of a run with its progress and its status", &TaalBericht::pcmRun},
        Rij{"question at an unsaved quit", &TaalBericht::vraagBijStoppen},
        Rij{"save, its question and its status", &TaalBericht::bewaren},
        Rij{"success of a Speex run", &TaalBericht::speexRun},
        Rij{"Speex settings that do not fit", &TaalBericht::nietPassendeInstellingen}}) {
    SCOPED_TRACE(rij.naam);
    log().clear();
    antwoorden.berichten.clear();
    antwoorden.bestandsVragen.clear();
    (this->*rij.doet)();
  }
}

INSTANTIATE_TEST_SUITE_P(Talen, TaalBericht, ::testing::ValuesIn(talen()), taalCode);

}  // namespace
