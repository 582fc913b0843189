// What an ADPCM run does with the settings, the files and the window.
#include <wx/choice.h>
#include <wx/radiobox.h>
#include <wx/textctrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"
#include "tests/audio/uitvoer/verwachteRun.h"

namespace {

using AdpcmRunProef = WerkProef;

// None of these settings is that of the start.
TEST_F(AdpcmRunProef, TheSettingsOfTheControlsReachTheTextWhichIsShownAndSavedAsItIs) {
  beginAdpcm(0);
  laad({wav("één.wav", proefSamples(3000)), wav("b.wav", proefSamples(11))});
  kies(radio(ID_LANG_IMPL), 1);
  typ(veld(ID_KLASSE), "Klok");
  kies(keuze(ID_DAC_TYPE), 1);
  zonderHeader();
  EXPECT_TRUE(zelfdeTekst(
      codeer().utf8_string(),
      verwachteRun(Wijze::adpcm, {1, "Klok", 10, false}, {{"b", golf(11)}, {"één", golf(3000)}})));
  bewaar(pad("uit.cpp"));
  EXPECT_EQ(inhoud(pad("uit.cpp")), tekst());
}

TEST_F(AdpcmRunProef, TheCoderGoesOnFromRunToRunOverOtherEncodersFilesAndSettings) {
  std::vector<RunFragment> const twee{{"bel", {1, -1, 100, -100, 5}}, {"zoem", {0, 0, 0, 0}}};
  AdpcmStand stand;
  beginAdpcm(1);
  laad({wav("bel.wav", {1, -1, 100, -100, 5}), wav("zoem.wav", {0, 0, 0, 0})});
  EXPECT_TRUE(zelfdeTekst(codeer().utf8_string(), verwachteRun(Wijze::adpcm, {1}, twee, stand)));
  kies(radio(ID_ENCODER_TYPE), EncoderPCM);
  EXPECT_TRUE(zelfdeTekst(codeer().utf8_string(), verwachteRun(Wijze::pcm, {1}, twee)));
  kies(radio(ID_ENCODER_TYPE), EncoderADPCM);
  kies(radio(ID_LANG_IMPL), 0);
  EXPECT_TRUE(zelfdeTekst(codeer().utf8_string(), verwachteRun(Wijze::adpcm, {0}, twee, stand)));
  laad({pad("bel.wav")});
  EXPECT_TRUE(
      zelfdeTekst(codeer().utf8_string(), verwachteRun(Wijze::adpcm, {0}, {twee[0]}, stand)));
}

TEST_F(AdpcmRunProef, TheMessageTellsTheDirectoryOfTheOpenDialog) {
  beginAdpcm();
  verwachtMeldingVan("ADPCM");
}

TEST_F(AdpcmRunProef, StatusAndEnablingFollowOnlyAfterTheMessage) {
  beginAdpcm();
  laad({wav("bel.wav")});
  verwachtGevolgNaMelding("Audio encoded in ADPCM embedded format");
}

}  // namespace
