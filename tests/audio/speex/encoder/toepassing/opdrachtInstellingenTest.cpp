// kestrolin-cli takes the settings that the window has written, and appends as the window does.
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include <filesystem>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/opdrachtProef.h"

namespace {

class OpdrachtInstellingen : public OpdrachtProef {
 protected:
  // The text of the window, which then ends, against that of its settings.
  void verwachtVanInstellingen(std::size_t aantal) {
    std::string const tekst = vanVenster();
    stop();
    verwachtGelijk(tekst, vanOpdracht({"--settings", "../thuis/.Kestrolin"}), aantal);
  }
};

TEST_F(OpdrachtInstellingen, SettingsOfTheWindowMakeItsTextWithEachEncoder) {
  for (int const encoder : {EncoderSpeex, EncoderADPCM, EncoderPCM}) {
    for (int const taal : {0, 1}) {
      SCOPED_TRACE(std::to_string(encoder) + " " + std::to_string(taal));
      start();
      maakOpnamen(16000);
      zet(spin(ID_QUALITY), 5);
      zet(spin(ID_COMPLEXITY), 1);
      kies(keuze(ID_BITRATE_TYPE), 2);
      zet(vakje(ID_VAD), false);
      zet(vakje(ID_AGC), taal == 1);
      zet(vakje(ID_DENOISE), taal == 0);
      kies(radio(ID_LANG_IMPL), 1);
      typ(veld(ID_KLASSE), wxTekst("Klank"));
      kies(radio(ID_LANG_IMPL), taal);
      kies(keuze(ID_DAC_TYPE), 1 + taal);
      zonderHeader();
      kies(radio(ID_ENCODER_TYPE), encoder);
      verwachtVanInstellingen(opnamen.size());
      std::filesystem::remove(thuis().utf8_string() + "/.Kestrolin");
    }
  }
}

TEST_F(OpdrachtInstellingen, NumbersOutOfRangeMeanWhatTheyMeanToTheWindow) {
  for (char const* const getal : {"-1", "4", "99", "257", "1300000000", "4294967295",
                                  "99999999999999999999999", "tekst", "", "1.5", "0x1", "\"8\""}) {
    SCOPED_TRACE(getal);
    wxString regels;
    for (char const* const sleutel :
         {"speexFormat", "speexQuality", "speexComplexity", "speexBitRateChoice", "speexBitRate",
          "speexVAC", "speexDenoise", "speexAGC", "IncludeHeader", "dacNumberOfBits"}) {
      regels += wxString(sleutel) + "=" + getal + "\n";
    }
    wxString const configuratie =
        "[Gebruikersinstellingen/Speex]\nspeexOutputLanguage=1\n" + regels +
        "[Configuratie]\nklasseNaam=Geluid\nConvertertype=" + getal + "\n";
    bestand("werk/kestrolin.ini", configuratie.utf8_string());
    start(configuratie);
    maakOpnamen();
    std::string const tekst = vanVenster();
    verwachtGelijk(tekst, vanOpdracht({"--settings", "kestrolin.ini"}), opnamen.size());
    // What the window has made of them.
    stop();
    verwachtGelijk(tekst, vanOpdracht({"--settings", "../thuis/.Kestrolin"}), opnamen.size());
  }
}

TEST_F(OpdrachtInstellingen, AFileThatTheDialogOpenedIsAppendedAsTheWindowDoes) {
  begin();
  submap("geluid één");
  antwoorden.opBestandsVraag(wav("geluid één/bel.wav"));
  klik(wxID_OPEN);
  opnamen = {"../geluid één/bel.wav"};
  std::string const eerder = "// kept, without an end of line\r\nint kept;";
  for (std::string const encoder : {"pcm", "wav"}) {
    SCOPED_TRACE(encoder);
    bestand("vol.c", eerder);
    bestand("werk/uit.c", eerder);
    if (encoder == "pcm") {
      codeer();
      bewaarOver(pad("vol.c"), wxID_YES);
    } else {
      antwoorden.opBestandsVraag(pad("vol.c"));
      antwoorden.opBericht(wxID_YES);
      klik(wxID_SAVEAS);
    }
    std::string const tekst = leesTekst(map.pad("vol.c"));
    EXPECT_EQ(tekst.rfind(eerder, 0), 0U);
    verwachtGelijk(tekst, vanOpdracht({"--append", "--encoder", encoder}), 1);
    // Without it nothing of before stays.
    verwachtGelijk(tekst.substr(eerder.size()), vanOpdracht({"--encoder", encoder}), 1);
  }
}

}  // namespace
