// What a Speex run does with the settings and with the window.
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include <array>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/codec/codecHulp.h"
#include "tests/audio/speex/encoder/toepassing/speexRunProef.h"

namespace {

class SpeexVensterProef : public SpeexRunProef {
 protected:
  SpeexFragment const bel{"bel", spraak(800, 8000)};
  SpeexDoel doel{eersteInstelling()};
};

TEST_F(SpeexVensterProef, EachControlGivesTheResultUpAndReachesTheNextText) {
  beginSpeex();
  laadFragmenten({bel});
  verwachtRun({bel}, doel);
  auto const na = [this](char const* wat, auto wijziging) {
    SCOPED_TRACE(wat);
    wijziging();
    EXPECT_FALSE(isGecodeerd());
    ASSERT_TRUE(knop(ID_CODEER)->IsEnabled());
    verwachtRun({bel}, doel);
    EXPECT_TRUE(isGecodeerd());
  };
  Instelling& instelling = doel.instelling;
  na("quality", [&] { zet(spin(ID_QUALITY), static_cast<int>(instelling.kwaliteit = 3)); });
  na("complexity",
     [&] { zet(spin(ID_COMPLEXITY), static_cast<int>(instelling.complexiteit = 10)); });
  for (int const soort : {1, 2}) {
    na("bit rate", [&] { kies(keuze(ID_BITRATE_TYPE), instelling.soort = soort); });
  }
  na("voice", [&] { zet(vakje(ID_VAD), instelling.vad = false); });
  na("denoise", [&] { zet(vakje(ID_DENOISE), instelling.denoise = false); });
  na("gain control", [&] { zet(vakje(ID_AGC), instelling.agc = false); });
  for (int const dac : {0, 1, 2, 3}) {
    na("DAC", [&] {
      kies(keuze(ID_DAC_TYPE), dac);
      instelling.gainBits = std::array{8U, 6U, 4U, 0U}[static_cast<std::size_t>(dac)];
    });
  }
  na("header", [&] {
    zonderHeader();
    doel.metHeader = false;
  });
  na("header again", [&] { zet(vakje(ID_INCL_HEADER), doel.metHeader = true); });
  na("language", [&] { kies(radio(ID_LANG_IMPL), doel.taal = 1); });
  na("class", [&] {
    doel.klasse = "A%s::Één";
    typ(veld(ID_KLASSE), wxTekst(doel.klasse));
  });
  na("language again", [&] { kies(radio(ID_LANG_IMPL), doel.taal = 0); });
}

TEST_F(SpeexVensterProef, PerceptualEnhancementAndATypedBitRateAreNoneOfTheEncoders) {
  beginSpeex();
  laadFragmenten({bel});
  zet(vakje(ID_PERPENH), !vakje(ID_PERPENH)->GetValue());
  typ(veld(ID_MAX_RATE), "24600");
  verwachtRun({bel}, doel);
  zet(vakje(ID_PERPENH), !vakje(ID_PERPENH)->GetValue());
  EXPECT_TRUE(isGecodeerd());
}

TEST_F(SpeexVensterProef, EverySettingOfTheConfigurationReachesTheTextButForTheBandOfTheFiles) {
  beginSpeex(
      1,
      "speexFormat=2\nspeexQuality=6\nspeexComplexity=5\nspeexBitRateChoice=1\nspeexBitRate=7000\n"
      "speexVAC=0\nspeexDenoise=0\nspeexAGC=0\nIncludeHeader=0\ndacNumberOfBits=2\n");
  laadFragmenten({bel});
  verwachtRun({bel}, {{0, 6, 5, 1, 7000, 4, false, false, false}, 1, false});
}

// Speex reads the bits of the quality as a float under Variable Bitrate: those of the first three
// are a NaN or a number far out of range, which the library does not survive.
TEST_F(SpeexVensterProef, LevelsOutOfRangeEncodeAsTheyShowAndAreKeptAndABandGivesWayToTheLoad) {
  struct Vreemd {
    wxString getal;
    unsigned int gebruikt;
    char const* geschreven;
  };
  doel.instelling.soort = 1;
  for (Vreemd const& vreemd : {Vreemd{"-1", 0, "4294967295"},
                               {"1300000000", 10, "1300000000"},
                               {"4294967295", 0, "4294967295"},
                               {"2147483647", 10, "2147483647"},
                               {"-2147483648", 0, "2147483648"},
                               {"11", 10, "11"}}) {
    SCOPED_TRACE(vreemd.getal);
    beginSpeex(0, "speexFormat=7\nspeexBitRateChoice=1\nspeexQuality=" + vreemd.getal +
                      "\nspeexComplexity=" + vreemd.getal + "\n");
    EXPECT_EQ(spin(ID_QUALITY)->GetValue(), static_cast<int>(vreemd.gebruikt));
    EXPECT_EQ(spin(ID_COMPLEXITY)->GetValue(), static_cast<int>(vreemd.gebruikt));
    laadFragmenten({bel});
    doel.instelling.kwaliteit = doel.instelling.complexiteit = vreemd.gebruikt;
    verwachtRun({bel}, doel);
    EXPECT_TRUE(nietsGelogd(log()));
    auto const sleutels = stopSleutels();
    wxString const groep = "/Gebruikersinstellingen/Speex/";
    EXPECT_EQ(sleutels.at(groep + "speexQuality"), vreemd.geschreven);
    EXPECT_EQ(sleutels.at(groep + "speexComplexity"), vreemd.geschreven);
    EXPECT_EQ(sleutels.at(groep + "speexFormat"), "0");
  }
}

TEST_F(SpeexVensterProef, StatusAndEnablingFollowTheMessageAndTheTextIsSavedAsItIsShown) {
  beginSpeex();
  laadFragmenten(drieFragmenten());
  verwachtGevolgNaMelding("Audio encoded in Speex embedded format");
  EXPECT_TRUE(nietsGelogd(log()));
  // 24, 48 and 38 per cent on average, cut.
  verwachtMelding(36);
  EXPECT_TRUE(zelfdeTekst(bewaarTekst("uit.c"), runTekst(drieFragmenten(), doel)));
  EXPECT_EQ(inhoud(pad("uit.c")), tekst());
}

TEST_F(SpeexVensterProef, AShorterSecondRunKeepsNothingOfTheFirst) {
  beginSpeex(1);
  doel.taal = 1;
  laadFragmenten(drieFragmenten());
  verwachtRun(drieFragmenten(), doel);
  SpeexFragmenten const kort{{"bel", golf(160)}};
  laadFragmenten(kort);
  verwachtRun(kort, doel);
  EXPECT_TRUE(zelfdeTekst(bewaarTekst("uit.cpp"), runTekst(kort, doel)));
}

TEST_F(SpeexVensterProef, ARunKnowsNothingOfTheOneBeforeAndReadsItsFilesAnew) {
  beginSpeex();
  laadFragmenten({bel});
  // An encoder that ran on would give other frames.
  std::vector<Frames> const tweemaal = framesVan({bel, bel}, doel.instelling);
  ASSERT_NE(tweemaal[0], tweemaal[1]);
  for (SpeexFragment const& nu : {bel, bel, SpeexFragment{"bel", golf(161)}}) {
    wav("bel.wav", {nu.samples.begin(), nu.samples.end()});
    verwachtRun({nu}, doel);
    kies(keuze(ID_DAC_TYPE), 3);
  }
}

TEST_F(SpeexVensterProef, TheRadioBoxChoosesTheEncoderAndTheMenuItemStartsIt) {
  begin();
  laadFragmenten({bel});
  kies(radio(ID_ENCODER_TYPE), EncoderSpeex);
  antwoorden.opBericht(wxID_OK);
  kiesMenu(ID_CODEER);
  EXPECT_EQ(status(), "Audio encoded in Speex embedded format");
  EXPECT_TRUE(zelfdeTekst(zonderMomenten(tekst().utf8_string()), runTekst({bel}, doel)));
  kies(radio(ID_ENCODER_TYPE), EncoderPCM);
  EXPECT_TRUE(codeer().StartsWith("/* PCM encoding output of 1 audio files \t\t*/\n"));
}

TEST_F(SpeexVensterProef, BeforeAnyLoadTheEventAloneGivesAHeadAndAMessageOfZeroPerCent) {
  beginSpeex();
  ASSERT_FALSE(knop(ID_CODEER)->IsEnabled());
  antwoorden.opBericht(wxID_OK);
  codeerZonderMelding();
  EXPECT_EQ(tekst().utf8_string(), runTekst({}, doel));
  verwachtMelding(0);
}

TEST_F(SpeexVensterProef, ALoadOfNoFilesGivesAHeadAndAMessageOfZeroPerCent) {
  beginSpeex();
  laad({wav("bel.wav")});
  laad({});
  EXPECT_EQ(codeer().utf8_string(), runTekst({}, doel));
  verwachtMelding(0);
  EXPECT_EQ(status(), "Audio encoded in Speex embedded format");
  EXPECT_TRUE(isGecodeerd());
  EXPECT_TRUE(nietsGelogd(log()));
}

}  // namespace
