// What a Speex run says in another language, by catalogs where the toolkit looks for them.
#include <wx/choice.h>
#include <wx/intl.h>
#include <wx/progdlg.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/speexRunProef.h"
#include "tests/steun/catalogusMaker.h"
#include "tests/steun/machine.h"

namespace {

class SpeexVertalingProef : public SpeexRunProef {
 protected:
  void SetUp() override {
    if (heeftCatalogi("/usr/local")) {
      GTEST_SKIP() << "the catalogs of an installation go before those of the test";
    }
    maakCatalogus(map.pad("cat/nl/LC_MESSAGES/Velmoradesktop.mo"), {});
    maakCatalogus(
        map.pad("cat/nl/LC_MESSAGES/Kestrolin.mo"),
        {{"Encoding progress", "Voortgang"},
         {"Completion of encoding progress", "Zover is het coderen"},
         {"Audio data in\n", "Het geluid één in\n"},
         {"\nwas on average encoded to %d%% of the original size",
          "\nhoudt één op één %d%% van zijn grootte"},
         {"Audio encoded in Speex embedded format", "Geluid gecodeerd, één keer"},
         {"Could not encode ", "Niet één keer gecodeerd: "},
         {"Encoder error. Please check your settings", "Fout, kijk één keer naar de instellingen"},
         {" has a different sampling frequency (%d)\nthan the encoder (%d)",
          " heeft één andere frequentie (%d)\ndan de encoder (%d)"},
         // These are the same in every language.
         {"Speex encoding succeeded", "VERTAALD"},
         {"Speex", "VERTAALD"}});
    beginSpeex(0, wxEmptyString,
               wxString::Format("[Gebruikersinstellingen]\nTaal=%d\n", wxLANGUAGE_DUTCH));
    ASSERT_TRUE(nietsGelogd(log()));
    ASSERT_EQ(wxGetTranslation("Speex encoding succeeded"), "VERTAALD");
    laadFragmenten(drieFragmenten());
  }

 private:
  OmgevingsWaarde catalogi{"LC_PATH", map.pad("cat")};
};

TEST_F(SpeexVertalingProef, AGoodAndAFailedRunSpeakTheLanguageButForTheTitleOfTheMessage) {
  antwoorden.opBericht(wxID_OK, [] {
    wxGenericProgressDialog const* const dialoog = voortgang();
    ASSERT_NE(dialoog, nullptr);
    EXPECT_EQ(dialoog->GetTitle(), "Voortgang");
    EXPECT_EQ(dialoog->GetMessage(), "Zover is het coderen");
  });
  klik(ID_CODEER);
  ASSERT_EQ(antwoorden.berichten.size(), 1U);
  EXPECT_EQ(antwoorden.berichten[0].titel, "Speex encoding succeeded");
  // 24, 48 and 38 per cent on average, cut.
  EXPECT_EQ(antwoorden.berichten[0].tekst.utf8_string(),
            "Het geluid één in\n" + map.pad("thuis") + "\nhoudt één op één 36% van zijn grootte");
  EXPECT_EQ(status(), wxString::FromUTF8("Geluid gecodeerd, één keer"));
  EXPECT_TRUE(nietsGelogd(log()));

  kies(keuze(ID_FORMAAT), 1);
  klik(ID_CODEER);
  EXPECT_EQ(
      fouten(),
      (std::vector<wxString>{
          wxString::FromUTF8("bel.wav heeft één andere frequentie (8000)\ndan de encoder (16000)"),
          wxString::FromUTF8("Niet één keer gecodeerd: bel.wav")}));
  EXPECT_EQ(status(), wxString::FromUTF8("Fout, kijk één keer naar de instellingen"));
  EXPECT_EQ(antwoorden.berichten.size(), 1U);
}

}  // namespace
