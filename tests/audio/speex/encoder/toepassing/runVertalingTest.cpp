// What the window says of a run in another language, by catalogs where the toolkit looks for them.
#include <wx/intl.h>
#include <wx/msgdlg.h>
#include <wx/progdlg.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/inbedVensterProef.h"
#include "tests/steun/catalogusMaker.h"
#include "tests/steun/machine.h"

namespace {

class RunVertalingProef : public InbedVensterProef {
 protected:
  void SetUp() override {
    if (heeftCatalogi("/usr/local")) {
      GTEST_SKIP() << "the catalogs of an installation go before those of the test";
    }
    maakCatalogus(map.pad("cat/nl/LC_MESSAGES/Velmoradesktop.mo"), {});
    maakCatalogus(
        map.pad("cat/nl/LC_MESSAGES/Kestrolin.mo"),
        {{"Audio data in\n", "Het geluid in\n"},
         // The per cent sign is doubled where a translator writes for a format.
         {"\nwas successfully encoded to ADPCM.", "\nis voor 100%% gecodeerd met %s."},
         {"Audio encoded in ADPCM embedded format", "Geluid gecodeerd, één keer"},
         {"/* Put these declarations in a header file :*/\n", "/* Declaraties, één keer :*/\n"},
         {"Save the WAV files as embedded data", "Bewaar één keer %s"},
         {"Embedding progress", "Voortgang, één keer"},
         {"Completion of embedding progress", "Zover is het %s"},
         {"File exists", "Het bestaat"},
         {"The file already exists.\nWould you like to append the newly encoded data to this file?",
          "Er is al één.\nErbij?"},
         {"WAV embedded data saved in ", "Bewaard, één keer, in "},
         // These are the same in every language.
         {"ADPCM encoding succeeded", "VERTAALD"},
         {"ADPCM", "VERTAALD"},
         {"c", "VERTAALD"},
         {"bel", "VERTAALD"}});
    beginAdpcm(0, wxEmptyString,
               wxString::Format("[Gebruikersinstellingen]\nTaal=%d\n", wxLANGUAGE_DUTCH));
    ASSERT_TRUE(nietsGelogd(log()));
    ASSERT_EQ(wxGetTranslation("ADPCM encoding succeeded"), "VERTAALD");
    laad({wav("bel.wav")});
  }

 private:
  OmgevingsWaarde catalogi{"LC_PATH", map.pad("cat")};
};

TEST_F(RunVertalingProef, AnEncodingSpeaksTheLanguageButForTheTitleOfItsMessage) {
  wxString const text = codeer();
  ASSERT_EQ(antwoorden.berichten.size(), 1U);
  EXPECT_EQ(antwoorden.berichten[0].titel, "ADPCM encoding succeeded");
  // No argument stands behind the message: what looks like one is printed as it stands.
  EXPECT_EQ(antwoorden.berichten[0].tekst,
            "Het geluid in\n" + map.pad("thuis") + "\nis voor 100% gecodeerd met %s.");
  EXPECT_EQ(status(), wxString::FromUTF8("Geluid gecodeerd, één keer"));
  EXPECT_TRUE(
      text.StartsWith(wxString::FromUTF8("/* ADPCM encoding output of 1 audio files \t\t*/\n\n"
                                         "/* Declaraties, één keer :*/\n"
                                         "// extern const unsigned char bel[];\n")));
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(RunVertalingProef,
       OfAnEmbeddingTheDialogTheQuestionTheProgressAndTheStatusSpeakTheLanguage) {
  inbedOver(bestand("uit.c", "oud\n"), wxID_NO, [] {
    wxGenericProgressDialog const* const dialoog = voortgang();
    ASSERT_NE(dialoog, nullptr);
    EXPECT_EQ(dialoog->GetTitle(), wxString::FromUTF8("Voortgang, één keer"));
    EXPECT_EQ(dialoog->GetMessage(), "Zover is het %s");
  });
  EXPECT_EQ(antwoorden.bestandsVragen.back().bericht, wxString::FromUTF8("Bewaar één keer %s"));
  EXPECT_EQ(antwoorden.bestandsVragen.back().naam, "bel.c");
  EXPECT_EQ(antwoorden.bestandsVragen.back().filter, "c");
  ASSERT_EQ(antwoorden.berichten.size(), 1U);
  EXPECT_EQ(antwoorden.berichten[0].titel, "Het bestaat");
  EXPECT_EQ(antwoorden.berichten[0].tekst, wxString::FromUTF8("Er is al één.\nErbij?"));
  EXPECT_EQ(status(), wxString::FromUTF8("Bewaard, één keer, in uit.c"));
}

}  // namespace
