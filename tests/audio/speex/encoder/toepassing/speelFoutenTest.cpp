// A result that cannot be played: the window says so, and goes on.
#include <wx/button.h>
#include <wx/log.h>
#include <wx/radiobox.h>

#include <algorithm>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/speelProef.h"
#include "tests/steun/geluidPaden.h"
#include "tests/steun/omgevingsWaarde.h"
#include "tests/steun/volleSchijf.h"

namespace {

constexpr char const* misluktStatus = "Error playing decoded audio fragments.";
constexpr char const* misluktRegel = "Could not decode and play encoded audio fragments.";

class SpeelFoutenProef : public SpeelProef {
 protected:
  // A short result of this encoder, fresh, and the log empty.
  void begin(EncoderSoort soort) {
    beginSpeex();
    neemOp();
    kies(radio(ID_ENCODER_TYPE), soort);
    laadFragmenten({korteBel()});
    codeer();
    ASSERT_TRUE(nietsGelogd(log()));
  }
  // Nothing was heard; the user knows it, and the result is still there.
  void verwachtMislukt() {
    EXPECT_TRUE(gehoord.empty());
    EXPECT_EQ(status(), misluktStatus);
    std::vector<wxString> const regels = fouten();
    EXPECT_EQ(std::count(regels.begin(), regels.end(), misluktRegel), 1);
    EXPECT_TRUE(isGecodeerd());
    EXPECT_TRUE(knop(ID_SPEEL_RESULTAAT)->IsEnabled());
  }
};

TEST_F(SpeelFoutenProef, WithoutRoomForTemporaryFilesEachEncoderSaysThatItFailed) {
  beginSpeex();
  neemOp();
  laadFragmenten({korteBel()});
  for (EncoderSoort const soort : {EncoderSpeex, EncoderADPCM, EncoderPCM}) {
    SCOPED_TRACE(soort);
    kies(radio(ID_ENCODER_TYPE), soort);
    codeer();
    log().clear();
    {
      OmgevingsWaarde const nergens("TMPDIR", "/proc");
      klik(ID_SPEEL_RESULTAAT);
    }
    verwachtMislukt();
    // The toolkit logs that no file can be made there.
    EXPECT_GT(log().size(), 1U);
  }
}

TEST_F(SpeelFoutenProef, OnAFullDiskItSaysThatItFailedAndBothFilesStayAndTheNextPlaySucceeds) {
  begin(EncoderSpeex);
  {
    VolleSchijf const vol;
    klik(ID_SPEEL_RESULTAAT);
  }
  verwachtMislukt();
  EXPECT_EQ(fouten().back(),
            "Could not write the whole of " + wxString(tijdelijk("speexTmpBestand")));
  EXPECT_EQ(leesTekst(tijdelijk("speexTmpBestand")), "");
  EXPECT_EQ(leesTekst(tijdelijk("wavTmpBestand")), "");
  EXPECT_EQ(neemGeluidPaden().size(), 1U);
  klik(ID_SPEEL_RESULTAAT);
  EXPECT_EQ(gehoord.size(), 1U);
  EXPECT_EQ(status(), "Finished playing decoded audio fragments.");
}

TEST_F(SpeelFoutenProef, WithTheLogOffTheStatusTellsIt) {
  begin(EncoderSpeex);
  wxLogLevel const niveau = wxLog::GetLogLevel();
  wxLog::SetLogLevel(wxLOG_FatalError);
  {
    VolleSchijf const vol;
    klik(ID_SPEEL_RESULTAAT);
  }
  wxLog::SetLogLevel(niveau);
  EXPECT_TRUE(nietsGelogd(log()));
  EXPECT_EQ(status(), misluktStatus);
}

TEST_F(SpeelFoutenProef, APlayerThatDoesNotPlayTheResultChangesNothingThatIsTold) {
  begin(EncoderSpeex);
  zegDatHetNietSpeelt();
  klik(ID_SPEEL_RESULTAAT);
  ASSERT_EQ(gehoord.size(), 1U);
  EXPECT_EQ(gehoord[0].status, "Decoded 1 audio fragments from Speex data are now playing.");
  EXPECT_EQ(status(), "Finished playing decoded audio fragments.");
  ASSERT_EQ(log().size(), 1U);
  EXPECT_EQ(log()[0].tekst, "Fragment 1: sampling frequency 8000 Hz, number of frames 160");
  EXPECT_TRUE(isGecodeerd());
}

TEST_F(SpeelFoutenProef, APlayerThatDoesNotPlayTheFilesChangesNothingThatIsTold) {
  WerkProef::begin();
  neemOp();
  laad({wav("bel.wav"), wav("zoem.wav")});
  zegDatHetNietSpeelt();
  klik(ID_SPEEL_BRON);
  ASSERT_EQ(gehoord.size(), 2U);
  EXPECT_EQ(gehoord[0].vet, Rijen{0});
  EXPECT_EQ(gehoord[1].vet, Rijen{1});
  EXPECT_EQ(vetteRijen(), Rijen{});
  EXPECT_EQ(status(), "Audio files loaded");
  EXPECT_TRUE(nietsGelogd(log()));
}

}  // namespace
