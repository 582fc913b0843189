// What a Speex run does with the settings and with the window.
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/menu.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/speexRunProef.h"

namespace {

class SpeexInstellingProef : public SpeexRunProef {
 protected:
  // Starts with further lines of the encoder settings, and loads a file.
  void beginMetBel(wxString const& speexRegels = wxEmptyString) {
    beginSpeex(0, speexRegels);
    laadFragmenten({bel});
  }
  // Expects the settings in the text, and frames that the first settings do not give.
  void verwachtAndereFrames() {
    ASSERT_NE(frames(instelling), frames(eersteInstelling()));
    verwachtBel(bel, instelling);
  }
  // The same for settings that only show in the comments.
  void verwachtDezelfdeFrames() {
    ASSERT_EQ(frames(instelling), frames(eersteInstelling()));
    verwachtBel(bel, instelling);
  }
  Frames frames(Instelling const& keuze) const { return framesVan({bel}, keuze).front(); }

  SpeexFragment const bel = spraakFragment();
  Instelling instelling = eersteInstelling();
};

TEST_F(SpeexInstellingProef, TheFirstStartEncodesWithItsDefaults) {
  beginMetBel();
  verwachtBel(bel, instelling);
}

TEST_F(SpeexInstellingProef, QualityOfItsControl) {
  beginMetBel();
  zet(spin(ID_QUALITY), 3);
  instelling.kwaliteit = 3;
  verwachtAndereFrames();
}

TEST_F(SpeexInstellingProef, ComplexityOfItsControl) {
  beginMetBel();
  zet(spin(ID_COMPLEXITY), 10);
  instelling.complexiteit = 10;
  verwachtAndereFrames();
}

TEST_F(SpeexInstellingProef, VariableBitrateOfItsControl) {
  beginMetBel();
  kies(keuze(ID_BITRATE_TYPE), 1);
  instelling.soort = 1;
  verwachtAndereFrames();
}

TEST_F(SpeexInstellingProef, AveragedBitrateOfItsControl) {
  beginMetBel();
  kies(keuze(ID_BITRATE_TYPE), 2);
  instelling.soort = 2;
  verwachtAndereFrames();
}

TEST_F(SpeexInstellingProef, TheBitRateOfTheConfigurationLimitsTheVariableBitrate) {
  beginMetBel("speexBitRateChoice=1\nspeexBitRate=3000\n");
  instelling.soort = 1;
  Instelling hoger = instelling;
  instelling.maxBitrate = 3000;
  ASSERT_NE(frames(instelling), frames(hoger));
  verwachtBel(bel, instelling);
}

TEST_F(SpeexInstellingProef, TheBitRateIsToldAlsoWhereItCountsForNothing) {
  beginMetBel("speexBitRate=24600\n");
  instelling.maxBitrate = 24600;
  verwachtDezelfdeFrames();
}

TEST_F(SpeexInstellingProef, ABitRateTypedIntoItsFieldStaysThere) {
  beginMetBel();
  typ(veld(ID_MAX_RATE), "24600");
  verwachtDezelfdeFrames();
}

TEST_F(SpeexInstellingProef, VoiceDetectionOfItsBox) {
  beginMetBel();
  zet(vakje(ID_VAD), false);
  instelling.vad = false;
  verwachtAndereFrames();
}

TEST_F(SpeexInstellingProef, DenoiseOfItsBoxIsToldAndChangesNoFrame) {
  beginMetBel();
  zet(vakje(ID_DENOISE), false);
  instelling.denoise = false;
  verwachtDezelfdeFrames();
}

TEST_F(SpeexInstellingProef, GainControlOfItsBoxIsToldAndChangesNoFrame) {
  beginMetBel();
  zet(vakje(ID_AGC), false);
  instelling.agc = false;
  verwachtDezelfdeFrames();
}

TEST_F(SpeexInstellingProef, AnEightBitDacScalesBy8Bits) {
  beginMetBel();
  kies(keuze(ID_DAC_TYPE), 0);
  instelling.gainBits = 8;
  verwachtAndereFrames();
}

TEST_F(SpeexInstellingProef, ATenBitDacScalesBy6Bits) {
  beginMetBel();
  kies(keuze(ID_DAC_TYPE), 1);
  instelling.gainBits = 6;
  verwachtAndereFrames();
}

TEST_F(SpeexInstellingProef, ATwelveBitDacScalesBy4Bits) {
  beginMetBel();
  kies(keuze(ID_DAC_TYPE), 2);
  instelling.gainBits = 4;
  verwachtAndereFrames();
}

TEST_F(SpeexInstellingProef, ASixteenBitDacTakesTheSamplesAsTheyAre) {
  beginMetBel("dacNumberOfBits=0\n");
  kies(keuze(ID_DAC_TYPE), 3);
  verwachtBel(bel, instelling);
}

TEST_F(SpeexInstellingProef, TheBandOfItsControlIsTheEncoders) {
  // The load chooses narrowband, and the user another band and then that one again.
  beginMetBel();
  kies(keuze(ID_FORMAAT), 1);
  codeerZonderMelding();
  ASSERT_EQ(status(), "Encoder error. Please check your settings");
  kies(keuze(ID_FORMAAT), 0);
  verwachtBel(bel, instelling);
}

TEST_F(SpeexInstellingProef, EverySettingOfTheConfigurationReachesTheEncoder) {
  beginMetBel(
      "speexFormat=2\nspeexQuality=6\nspeexComplexity=5\nspeexBitRateChoice=1\nspeexBitRate=7000\n"
      "speexVAC=0\nspeexDenoise=0\nspeexAGC=0\ndacNumberOfBits=2\n");
  // The band follows the loaded file all the same.
  verwachtBel(bel, {0, 6, 5, 1, 7000, 4, false, false, false});
}

TEST_F(SpeexInstellingProef, NumbersOutOfEveryRangeEncodeWithinTheirLimits) {
  beginMetBel(
      "speexFormat=7\nspeexBitRateChoice=9\nspeexQuality=4000000000\nspeexBitRate=4294967295\n");
  instelling.soort = 0;
  instelling.kwaliteit = 0;
  instelling.maxBitrate = 2147483647;
  verwachtAndereFrames();
  EXPECT_TRUE(nietsGelogd(log()));
}

class SpeexVensterProef : public SpeexRunProef {};

TEST_F(SpeexVensterProef, TheMessageGivesTheMeanOfTheFilesRatiosCutToAWholePercentage) {
  beginSpeex();
  laadFragmenten(drieFragmenten());
  codeer();
  // 10, 2 and 2 frames, of 39 bytes with their size bytes.
  for (Frames const& een : framesVan(drieFragmenten(), eersteInstelling())) {
    for (Bytes const& frame : een) {
      ASSERT_EQ(frame.size(), 38U);
    }
  }
  // The mean of the ratios before they are cut is 37.2, the rounded one 37, and all bytes over all
  // samples are 27 per cent.
  constexpr std::size_t som = 10 * 39 * 100 / 1600 + 2 * 39 * 100 / 161 + 2 * 39 * 100 / 201;
  static_assert(som == 24 + 48 + 38);
  verwachtMelding(som / 3);
}

TEST_F(SpeexVensterProef, ARatioAboveTheWholeCountsAs100PerCent) {
  beginSpeex();
  // 39 bytes for 30 samples, and 39 for 100.
  laad({wav("bel.wav", proefSamples(30)), wav("zoem.wav", proefSamples(100))});
  codeer();
  verwachtMelding((100 + 39) / 2);
}

TEST_F(SpeexVensterProef, StatusAndEnablingFollowOnlyAfterTheMessage) {
  beginSpeex();
  laadFragmenten(drieFragmenten());
  verwachtGevolgNaMelding("Audio encoded in Speex embedded format");
  EXPECT_TRUE(nietsGelogd(log()));
}

TEST_F(SpeexVensterProef, TheMenuItemEncodesToo) {
  beginSpeex();
  laadFragmenten({spraakFragment()});
  antwoorden.opBericht(wxID_OK);
  kiesMenu(ID_CODEER);
  EXPECT_EQ(status(), "Audio encoded in Speex embedded format");
}

TEST_F(SpeexVensterProef, ASecondRunStartsWithAnEncoderThatKnowsNothingOfTheFirst) {
  beginSpeex();
  laadFragmenten({spraakFragment()});
  // An encoder that ran on would give other frames.
  std::vector<Frames> const tweemaal =
      framesVan({spraakFragment(), spraakFragment()}, eersteInstelling());
  ASSERT_NE(tweemaal[0], tweemaal[1]);
  verwachtBel(spraakFragment(), eersteInstelling());
  kies(keuze(ID_DAC_TYPE), 3);
  verwachtBel(spraakFragment(), eersteInstelling());
}

TEST_F(SpeexVensterProef, AChangedSettingGivesTheResultUpAndTheNextRunFollowsIt) {
  beginSpeex();
  laadFragmenten({spraakFragment()});
  codeer();
  zet(spin(ID_QUALITY), 4);
  EXPECT_FALSE(isGecodeerd());
  EXPECT_TRUE(knop(ID_CODEER)->IsEnabled());
  Instelling instelling = eersteInstelling();
  instelling.kwaliteit = 4;
  verwachtBel(spraakFragment(), instelling);
  EXPECT_TRUE(isGecodeerd());
}

TEST_F(SpeexVensterProef, ThePerceptualEnhancementIsNoneOfTheEncoders) {
  beginSpeex();
  laadFragmenten({spraakFragment()});
  zet(vakje(ID_PERPENH), !vakje(ID_PERPENH)->GetValue());
  verwachtBel(spraakFragment(), eersteInstelling());
  zet(vakje(ID_PERPENH), !vakje(ID_PERPENH)->GetValue());
  EXPECT_TRUE(isGecodeerd());
}

TEST_F(SpeexVensterProef, TheRadioBoxChoosesBetweenSpeexAndPcm) {
  begin();
  laadFragmenten({spraakFragment()});
  kies(radio(ID_ENCODER_TYPE), EncoderSpeex);
  verwachtBel(spraakFragment(), eersteInstelling());
  kies(radio(ID_ENCODER_TYPE), EncoderPCM);
  EXPECT_TRUE(codeer().StartsWith("/* PCM encoding output of 1 audio files \t\t*/\n"));
}

TEST_F(SpeexVensterProef, AFileThatChangedAfterTheLoadGivesWhatItIsNow) {
  beginSpeex();
  laadFragmenten({spraakFragment()});
  SpeexFragment const nieuw{"bel", golf(161), "0.02"};
  wav("bel.wav", proefSamples(161));
  verwachtBel(nieuw, eersteInstelling());
}

}  // namespace
