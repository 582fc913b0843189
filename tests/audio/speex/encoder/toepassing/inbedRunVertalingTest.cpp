// What the embedding says in another language, by catalogs where the toolkit looks for them.
#include <wx/intl.h>
#include <wx/msgdlg.h>
#include <wx/progdlg.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/inbedVensterProef.h"
#include "tests/audio/speex/encoder/toepassing/vreemdeBestanden.h"
#include "tests/steun/catalogusMaker.h"
#include "tests/steun/machine.h"

namespace {

class InbedVertalingProef : public InbedVensterProef {
 protected:
  void SetUp() override {
    if (heeftCatalogi("/usr/local")) {
      GTEST_SKIP() << "the catalogs of an installation go before those of the test";
    }
    maakCatalogus(map.pad("cat/nl/LC_MESSAGES/Velmoradesktop.mo"), {});
    std::map<std::string, std::string> teksten{
        {"Save the WAV files as embedded data", "Bewaar één keer %s"},
        {"Embedding progress", "Voortgang, één keer"},
        {"Completion of embedding progress", "Zover is het %s"},
        {"File exists", "Het bestaat"},
        {"The file already exists.\nWould you like to append the newly encoded data to this file?",
         "Er is al één.\nErbij?"},
        {kopRegel, "/* Declaraties, één keer :*/\n"},
        {"/* WAV Format                 : WAV S16 PCM\t*/\n", "/* Gewoon, één keer */\n"},
        {"/* WAV Format                 : WAV 4 Bit IMA ADPCM\t*/\n", "/* Klein */\n"},
        {"WAV embedded data saved in ", "Bewaard, één keer, in "}};
    // These are the same in every language.
    for (std::string const tekst : {"/* Embedded output of %d WAV Files\t\t*/\n\n",
                                    "// extern const unsigned char ",
                                    "// static const unsigned char ",
                                    "[];\n",
                                    "\n\n",
                                    "/******* Start embedding file number %d \t\t*******/\n",
                                    "/******* Stop embedding file number %d \t\t*******/\n\n",
                                    "\n/* Embedded on ",
                                    "Embedded",
                                    "/* Date : ",
                                    "/* WAV file : ",
                                    "/* WAV information :   \t\t*/\n",
                                    "/* Sampling frequency         : %d Hz\t\t*/\n",
                                    "/* Size                       : %ld bytes\t\t*/\n",
                                    "/* Duration                   : %.2lf s\t\t*/\n",
                                    "/* Duration                   : ",
                                    "/* Full Scale gain adapted to : %d bits\t\t*/\n\n",
                                    "const unsigned char ",
                                    "unsigned char",
                                    "[] = \n{\n",
                                    "};\n\n",
                                    "/* end of WAV file         : ",
                                    "c",
                                    "bel"}) {
      teksten[tekst] = "VERTAALD";
    }
    maakCatalogus(map.pad("cat/nl/LC_MESSAGES/Kestrolin.mo"), teksten);
    begin(0, wxEmptyString, wxEmptyString,
          wxString::Format("[Gebruikersinstellingen]\nTaal=%d\n", wxLANGUAGE_DUTCH));
    ASSERT_TRUE(nietsGelogd(log()));
    ASSERT_EQ(wxGetTranslation("Embedded"), "VERTAALD");
    laad({wav("bel.wav")});
  }

 private:
  OmgevingsWaarde catalogi{"LC_PATH", map.pad("cat")};
};

TEST_F(InbedVertalingProef, TheDialogTheQuestionTheProgressAndTheStatusSpeakTheLanguage) {
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

TEST_F(InbedVertalingProef, OfTheTextTheCommentOnTheDeclarationsAndTheFormatLineAreTranslated) {
  inbed(pad("uit.c"));
  wxString verwacht = wxString::FromUTF8(verwachteBel());
  ASSERT_EQ(verwacht.Replace(kopRegel, wxString::FromUTF8("/* Declaraties, één keer :*/\n")), 1U);
  ASSERT_EQ(verwacht.Replace("/* WAV Format                 : WAV S16 PCM\t*/\n",
                             wxString::FromUTF8("/* Gewoon, één keer */\n")),
            1U);
  EXPECT_TRUE(zelfdeTekst(gelezen(pad("uit.c")), verwacht.utf8_string()));
  EXPECT_EQ(tekst(), inhoud(pad("uit.c")));
}

TEST_F(InbedVertalingProef, TheFormatLineOfAdpcmIsTranslatedTooAndTheDurationKeepsItsPoint) {
  laad({bestand("bel.wav", imaAdpcmWav(8000, 5))});
  inbed(pad("uit.c"));
  std::string const gevonden = gelezen(pad("uit.c"));
  EXPECT_NE(gevonden.find("/* Klein */\n"
                          "/* Sampling frequency         : 8000 Hz\t\t*/\n"
                          "/* Size                       : 505 bytes\t\t*/\n"
                          "/* Duration                   : 0.06 s\t\t*/\n"),
            std::string::npos);
}

}  // namespace
