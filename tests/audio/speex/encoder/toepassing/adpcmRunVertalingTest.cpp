// What an ADPCM run says in another language, by catalogs where the toolkit looks for them.
#include <wx/intl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"
#include "tests/steun/catalogusMaker.h"
#include "tests/steun/machine.h"
#include "tests/steun/omgevingsWaarde.h"

namespace {

class AdpcmVertalingProef : public WerkProef {
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
         // These are the same in every language.
         {"ADPCM encoding succeeded", "VERTAALD"},
         {"ADPCM", "VERTAALD"}});
    beginAdpcm(0, wxEmptyString,
               wxString::Format("[Gebruikersinstellingen]\nTaal=%d\n", wxLANGUAGE_DUTCH));
    ASSERT_TRUE(nietsGelogd(log()));
    ASSERT_EQ(wxGetTranslation("ADPCM encoding succeeded"), "VERTAALD");
    laad({wav("bel.wav")});
  }

 private:
  OmgevingsWaarde catalogi{"LC_PATH", map.pad("cat")};
};

TEST_F(AdpcmVertalingProef, ARunSpeaksTheLanguageButForTheTitleOfItsMessage) {
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

}  // namespace
