// Loading and encoding of a file with an accent in its name where the environment offers ASCII
// alone.
#include <wx/button.h>

#include <clocale>
#include <cstdlib>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"

namespace {

class LadenKaalProef : public WerkProef {
 protected:
  void SetUp() override {
    unsetenv("LC_CTYPE");
    unsetenv("LANG");
    setenv("LC_ALL", "C", 1);
  }

  void beginInTaal(wxLanguage taal) {
    begin(0, wxEmptyString, wxEmptyString,
          wxString::Format("[Gebruikersinstellingen]\nTaal=%d\n", static_cast<int>(taal)));
    EXPECT_TRUE(nietsGelogd(log()));
  }

  // Loads the file by the dialog, and encodes it.
  void verwachtAccenten() {
    wxString const naam = wxString::FromUTF8("café");
    antwoorden.opBestandsVraag(wav("café.wav"));
    klik(wxID_OPEN);
    EXPECT_EQ(boomRegels(), boomVan({{naam + ".wav", 2, 8000}}));
    wxString const text = codeer();
    EXPECT_TRUE(text.Contains("\n// extern const unsigned char " + naam + "[];\n"));
    EXPECT_TRUE(text.Contains("\n/* WAV file : " + naam + ".wav\t\t*/\n"));
    EXPECT_TRUE(nietsGelogd(log()));
  }
};

TEST_F(LadenKaalProef, AccentsLoadAndEncodeInEnglish) {
  beginInTaal(wxLANGUAGE_ENGLISH);
  verwachtAccenten();
}

// The toolkit makes the locale of the environment: one is made, and is "C".
TEST_F(LadenKaalProef, AccentsLoadAndEncodeInTheLanguageOfTheEnvironment) {
  beginInTaal(wxLANGUAGE_DEFAULT);
  EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
  verwachtAccenten();
}

}  // namespace
