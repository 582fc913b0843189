// What playing a result says in another language, by catalogs where the toolkit looks for them.
#include <wx/intl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/speelProef.h"
#include "tests/steun/catalogusMaker.h"
#include "tests/steun/machine.h"
#include "tests/steun/omgevingsWaarde.h"

namespace {

class SpeelVertalingProef : public SpeelProef {
 protected:
  void SetUp() override {
    if (heeftCatalogi("/usr/local")) {
      GTEST_SKIP() << "the catalogs of an installation go before those of the test";
    }
    maakCatalogus(map.pad("cat/nl/LC_MESSAGES/Velmoradesktop.mo"), {});
    maakCatalogus(
        map.pad("cat/nl/LC_MESSAGES/Kestrolin.mo"),
        {{"Decoded %d audio fragments from Speex data are now playing.", "Eén van %d klinkt nu."},
         {"Finished playing decoded audio fragments.", "Eén keer gespeeld."},
         // The per cent sign is doubled where a translator writes for a format.
         {"Could not decode and play encoded audio fragments.", "Eén: 100%% mis, %s."},
         {"Error playing decoded audio fragments.", "Eén fout: 100% mis, %s."},
         {"Fragment %d: sampling frequency %ld Hz, number of frames %ld",
          "Eén deel %d: %ld Hz, %ld keer"}});
    beginSpeex(0, wxEmptyString,
               wxString::Format("[Gebruikersinstellingen]\nTaal=%d\n", wxLANGUAGE_DUTCH));
    ASSERT_TRUE(nietsGelogd(log()));
    neemOp();
    laadFragmenten({korteBel()});
    codeer();
  }

 private:
  OmgevingsWaarde catalogi{"LC_PATH", map.pad("cat")};
};

TEST_F(SpeelVertalingProef, TheStatusAndTheLogSpeakTheLanguage) {
  klik(ID_SPEEL_RESULTAAT);
  ASSERT_EQ(gehoord.size(), 1U);
  EXPECT_EQ(gehoord[0].status.utf8_string(), "Eén van 1 klinkt nu.");
  EXPECT_EQ(status().utf8_string(), "Eén keer gespeeld.");
  ASSERT_EQ(log().size(), 1U);
  EXPECT_EQ(log()[0].tekst.utf8_string(), "Eén deel 1: 8000 Hz, 160 keer");
}

// No argument stands behind either: what looks like one is shown as it stands.
TEST_F(SpeelVertalingProef, TheFailureSpeaksTheLanguage) {
  OmgevingsWaarde const nergens("TMPDIR", "/proc");
  klik(ID_SPEEL_RESULTAAT);
  EXPECT_EQ(status().utf8_string(), "Eén fout: 100% mis, %s.");
  ASSERT_FALSE(log().empty());
  EXPECT_EQ(log().back().niveau, wxLOG_Error);
  EXPECT_EQ(log().back().tekst.utf8_string(), "Eén: 100% mis, %s.");
}

}  // namespace
