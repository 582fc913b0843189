// Speex runs with settings outside every range, as a configuration file that was edited by hand can
// hold them: the text tells what was used, the window shows the same, and the file keeps its
// numbers.
#include <wx/spinctrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/speexRunProef.h"

namespace {

struct Vreemd {
  char const* getal;
  unsigned int gebruikt;
  char const* geschreven;
};

// As a name of the test.
void PrintTo(Vreemd const& vreemd, std::ostream* uit) {
  *uit << vreemd.getal;
}

// Speex reads the bits of the quality as a float under Variable Bitrate: those of the first three
// are a NaN or a number far out of range, which the library does not survive.
class VreemdNiveau : public SpeexRunProef, public ::testing::WithParamInterface<Vreemd> {};

TEST_P(VreemdNiveau, EncodesWithWhatTheWindowShows) {
  wxString const getal = GetParam().getal;
  beginSpeex(0,
             "speexQuality=" + getal + "\nspeexComplexity=" + getal + "\nspeexBitRateChoice=1\n");
  auto const gebruikt = static_cast<int>(GetParam().gebruikt);
  EXPECT_EQ(spin(ID_QUALITY)->GetValue(), gebruikt);
  EXPECT_EQ(spin(ID_COMPLEXITY)->GetValue(), gebruikt);
  SpeexFragment const bel = spraakFragment();
  laadFragmenten({bel});
  Instelling instelling = eersteInstelling();
  instelling.kwaliteit = GetParam().gebruikt;
  instelling.complexiteit = GetParam().gebruikt;
  instelling.soort = 1;
  verwachtBel(bel, instelling);
  auto const sleutels = stopSleutels();
  for (char const* sleutel : {"speexQuality", "speexComplexity"}) {
    EXPECT_EQ(sleutels.at(wxString("/Gebruikersinstellingen/Speex/") + sleutel),
              GetParam().geschreven);
  }
}

INSTANTIATE_TEST_SUITE_P(
    , VreemdNiveau,
    ::testing::Values(Vreemd{"-1", 0, "4294967295"}, Vreemd{"1300000000", 10, "1300000000"},
                      Vreemd{"4294967295", 0, "4294967295"}, Vreemd{"2147483647", 10, "2147483647"},
                      Vreemd{"-2147483648", 0, "2147483648"}, Vreemd{"11", 10, "11"}));

class SpeexGrenzenProef : public SpeexRunProef {};

TEST_F(SpeexGrenzenProef, KindOfBitRateThatDoesNotExistIsFixed) {
  for (char const* soort : {"3", "-1", "-2", "2147483647"}) {
    SCOPED_TRACE(soort);
    beginSpeex(0, wxString("speexBitRateChoice=") + soort + "\n");
    SpeexFragment const bel = spraakFragment();
    laadFragmenten({bel});
    verwachtBel(bel, eersteInstelling());
    EXPECT_EQ(stopSpeex("speexBitRateChoice"), soort);
  }
}

TEST_F(SpeexGrenzenProef, BitRateBeyondTheLibrarysNumbersIsTheirLargest) {
  for (char const* rate : {"-1", "2147483648", "4294967295"}) {
    SCOPED_TRACE(rate);
    beginSpeex(0, wxString("speexBitRateChoice=1\nspeexBitRate=") + rate + "\n");
    SpeexFragment const bel = spraakFragment();
    laadFragmenten({bel});
    Instelling instelling = eersteInstelling();
    instelling.soort = 1;
    instelling.maxBitrate = 2147483647;
    verwachtBel(bel, instelling);
    stop();
  }
}

TEST_F(SpeexGrenzenProef, BandThatDoesNotExistGivesWayToThatOfTheLoad) {
  beginSpeex(0, "speexFormat=7\n");
  SpeexFragment const bel = spraakFragment();
  laadFragmenten({bel});
  verwachtBel(bel, eersteInstelling());
  EXPECT_EQ(stopSpeex("speexFormat"), "0");
}

}  // namespace
