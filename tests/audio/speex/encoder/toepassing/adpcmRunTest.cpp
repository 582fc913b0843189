// What an ADPCM run does with the settings, the files and the window.
#include <wx/choice.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/adpcmModel.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/vreemdeBestanden.h"
#include "tests/audio/speex/encoder/toepassing/werkProef.h"

namespace {

class AdpcmRunProef : public WerkProef {
 protected:
  // Encodes for the DAC in this row, whose scaling divides by `deler`, and compares the array.
  void verwachtBijDac(int rij, int deler) {
    beginAdpcm();
    kies(keuze(ID_DAC_TYPE), rij);
    std::vector<std::int16_t> const samples = proefSamples(1001);
    laad({wav("bel.wav", samples, {16000})});
    AdpcmStand stand;
    Bytes const codes = modelBytes(stand, {samples.begin(), samples.end()}, deler);
    EXPECT_EQ(rijen(codeer()), wxTekst(verwachteRijen(modelBeeld(codes, 16000, true))));
  }
};

// With a DAC of 8 bits every sample divides to nothing, whatever the file holds.
TEST_F(AdpcmRunProef, AnEightBitDacGivesSilence) {
  beginAdpcm();
  kies(keuze(ID_DAC_TYPE), 0);
  laad({wav("bel.wav", {32767, -32768, 127, -128, 255, -1})});
  EXPECT_EQ(rijen(codeer()), "\t0x3,0x0,0x0,0x0,0x40,0x1f,0x0,0x0,\n\t0x0,0x0,0x0,0x0,\n");
}

TEST_F(AdpcmRunProef, ATenBitDacDividesTheLowByteBy64) {
  verwachtBijDac(1, 64);
}

TEST_F(AdpcmRunProef, ATwelveBitDacDividesTheLowByteBy16) {
  verwachtBijDac(2, 16);
}

TEST_F(AdpcmRunProef, ASixteenBitDacTakesTheLowByteAsItIs) {
  verwachtBijDac(3, 1);
}

TEST_F(AdpcmRunProef, AnAdpcmFileIsDecodedFirst) {
  beginAdpcm();
  laad({bestand("bel.wav", imaAdpcmWav(32000, 0x123))});
  // 505 frames of the low byte 0x23.
  AdpcmStand stand;
  Bytes const codes = modelBytes(stand, std::vector<int>(505, 0x23), 1);
  EXPECT_EQ(rijen(codeer()), wxTekst(verwachteRijen(modelBeeld(codes, 32000, true))));
}

TEST_F(AdpcmRunProef, AFileThatVanishedAfterTheLoadGivesAFragmentOfNothingAndIsTold) {
  beginAdpcm();
  wxString const bel = wav("bel.wav", {1, 2, 3});
  laad({bel});
  ASSERT_TRUE(wxRemoveFile(bel));
  wxString const text = codeer();
  EXPECT_TRUE(
      text.Contains("/* Sampling frequency         : 0 Hz\t\t*/\n"
                    "/* Original size              : 0 frames\t\t*/\n"
                    "/* Original duration          : nan s\t\t*/\n"
                    "/* const unsigned int bel_adpcmNumberOfEncSamples=0; */\n"
                    "/* const unsigned int bel_pcmNumberOfSamples=0; */\n"));
  EXPECT_EQ(rijen(text), "\t0x0,0x0,0x0,0x0,0x0,0x0,0x0,0x0,\n\t0x0,\n");
  EXPECT_EQ(fouten(), std::vector<wxString>{"Could not read the whole of " + bel});
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

TEST_F(AdpcmRunProef, TheMenuItemEncodesToo) {
  beginAdpcm();
  laad({wav("bel.wav")});
  antwoorden.opBericht(wxID_OK);
  kiesMenu(ID_CODEER);
  EXPECT_EQ(status(), "Audio encoded in ADPCM embedded format");
}

TEST_F(AdpcmRunProef, TheTextFieldShowsExactlyWhatIsSaved) {
  beginAdpcm(1);
  laad({wav("één.wav", proefSamples(3000)), wav("b.wav", proefSamples(11))});
  codeer();
  bewaar(pad("uit.cpp"));
  EXPECT_EQ(inhoud(pad("uit.cpp")), tekst());
}

}  // namespace
