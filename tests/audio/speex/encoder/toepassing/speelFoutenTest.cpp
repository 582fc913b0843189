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
  // No temporary file can be made there, which the toolkit logs; the net of every window test fails
  // it on an assertion.
  void verwachtZonderPlaatsMislukt(EncoderSoort soort) {
    begin(soort);
    OmgevingsWaarde const nergens("TMPDIR", "/proc");
    klik(ID_SPEEL_RESULTAAT);
    verwachtMislukt();
    EXPECT_GT(log().size(), 1U);
  }
};

TEST_F(SpeelFoutenProef, WithoutRoomForTemporaryFilesSpeexSaysThatItFailed) {
  verwachtZonderPlaatsMislukt(EncoderSpeex);
}

TEST_F(SpeelFoutenProef, WithoutRoomForTemporaryFilesAdpcmSaysThatItFailed) {
  verwachtZonderPlaatsMislukt(EncoderADPCM);
}

TEST_F(SpeelFoutenProef, WithoutRoomForTemporaryFilesPcmSaysThatItFailed) {
  verwachtZonderPlaatsMislukt(EncoderPCM);
}

TEST_F(SpeelFoutenProef, OnAFullDiskItSaysThatItFailedAndBothFilesStay) {
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
}

TEST_F(SpeelFoutenProef, WithTheLogOffTheStatusTellsIt) {
  begin(EncoderSpeex);
  wxLog::SetLogLevel(wxLOG_FatalError);
  {
    VolleSchijf const vol;
    klik(ID_SPEEL_RESULTAAT);
  }
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

TEST_F(SpeelFoutenProef, TheNextPlaySucceeds) {
  begin(EncoderSpeex);
  {
    VolleSchijf const vol;
    klik(ID_SPEEL_RESULTAAT);
  }
  ASSERT_TRUE(gehoord.empty());
  klik(ID_SPEEL_RESULTAAT);
  EXPECT_EQ(gehoord.size(), 1U);
  EXPECT_EQ(status(), "Finished playing decoded audio fragments.");
}

}  // namespace
