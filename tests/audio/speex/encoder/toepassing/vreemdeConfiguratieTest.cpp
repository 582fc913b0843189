// Configuration files that somebody edited by hand: values outside every range, and texts where
// numbers belong.
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include <map>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/gereedProef.h"

namespace {

using VreemdeConfiguratieProef = GereedProef;

TEST_F(VreemdeConfiguratieProef, AnyNumberInEveryKeyStartsEncodesAndEnds) {
  for (char const* getal :
       {"-1", "3", "4", "99", "-2147483648", "2147483647", "4294967295", "4294967296",
        "9223372036854775807", "99999999999999999999999", "tekst", "", "1.5", "0x1", "\\xff"}) {
    SCOPED_TRACE(getal);
    wxString regels;
    for (char const* sleutel :
         {"speexFormat", "speexQuality", "speexComplexity", "speexBitRateChoice", "speexBitRate",
          "speexOutputLanguage", "speexVAC", "speexDenoise", "speexAGC", "IncludeHeader",
          "dacNumberOfBits"}) {
      regels += wxString(sleutel) + "=" + getal + "\n";
    }
    start("[Gebruikersinstellingen/Speex]\n" + regels +
          "[Configuratie]\nklasseNaam=Klank\nConvertertype=" + getal + "\n");
    EXPECT_TRUE(nietsGelogd(log()));
    EXPECT_EQ(antwoorden.berichten.size(), 0U);
    laad({maakFragment("fragment.wav")});
    codeerPcm();
    EXPECT_TRUE(isGecodeerd());
    EXPECT_TRUE(tekst().StartsWith("/* PCM encoding output"));
    stop();
    antwoorden.berichten.clear();
  }
}

TEST_F(VreemdeConfiguratieProef, TextInThePlaceOfANumberGivesTheDefault) {
  startMetSpeex(
      "speexFormat=breed\nspeexQuality=goed\nspeexBitRate=veel\nspeexOutputLanguage=C\n"
      "speexVAC=ja\ndacNumberOfBits=acht\n");
  EXPECT_EQ(keuze(ID_FORMAAT)->GetSelection(), 0);
  EXPECT_EQ(spin(ID_QUALITY)->GetValue(), 8);
  EXPECT_EQ(veld(ID_MAX_RATE)->GetValue(), "5000");
  EXPECT_EQ(radio(ID_LANG_IMPL)->GetSelection(), 1);
  EXPECT_TRUE(vakje(ID_VAD)->GetValue());
  EXPECT_EQ(keuze(ID_DAC_TYPE)->GetSelection(), 3);
  EXPECT_EQ(stopSpeex("speexQuality"), "8");
}

TEST_F(VreemdeConfiguratieProef, EachControlShowsWhatItCanAndTheRecordKeepsItsNumber) {
  start(
      "[Gebruikersinstellingen/Speex]\nspeexFormat=99\nspeexBitRateChoice=3\ndacNumberOfBits=4\n"
      "speexQuality=99\nspeexComplexity=-7\nspeexBitRate=4294967295\nspeexVAC=256\n"
      "speexDenoise=257\nspeexAGC=-1\nIncludeHeader=512\nspeexOutputLanguage=99\n"
      "[Configuratie]\nConvertertype=-1\n");
  // A choice has no row beyond its last, a radio box keeps its start, and a spin control its range.
  EXPECT_EQ(keuze(ID_FORMAAT)->GetSelection(), wxNOT_FOUND);
  EXPECT_EQ(keuze(ID_BITRATE_TYPE)->GetSelection(), wxNOT_FOUND);
  EXPECT_EQ(keuze(ID_DAC_TYPE)->GetSelection(), wxNOT_FOUND);
  EXPECT_EQ(radio(ID_LANG_IMPL)->GetSelection(), 1);
  EXPECT_EQ(radio(ID_ENCODER_TYPE)->GetSelection(), 0);
  EXPECT_EQ(spin(ID_QUALITY)->GetValue(), 10);
  EXPECT_EQ(spin(ID_COMPLEXITY)->GetValue(), 0);
  EXPECT_EQ(veld(ID_MAX_RATE)->GetValue(), "-1");
  // The low byte of a number is the flag.
  EXPECT_FALSE(vakje(ID_VAD)->GetValue());
  EXPECT_TRUE(vakje(ID_DENOISE)->GetValue());
  EXPECT_TRUE(vakje(ID_AGC)->GetValue());
  EXPECT_FALSE(vakje(ID_INCL_HEADER)->GetValue());

  auto const sleutels = stopSleutels();
  for (auto const& [sleutel, waarde] : std::map<wxString, wxString>{{"speexFormat", "99"},
                                                                    {"speexBitRateChoice", "3"},
                                                                    {"dacNumberOfBits", "4"},
                                                                    {"speexQuality", "99"},
                                                                    {"speexBitRate", "4294967295"},
                                                                    {"speexOutputLanguage", "99"},
                                                                    {"speexVAC", "0"},
                                                                    {"speexDenoise", "1"},
                                                                    {"speexAGC", "1"},
                                                                    {"IncludeHeader", "0"}}) {
    EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/" + sleutel), waarde) << sleutel;
  }
  // The encoder kind is what the box shows.
  EXPECT_EQ(sleutels.at("/Configuratie/Convertertype"), "0");
}

TEST_F(VreemdeConfiguratieProef, ChoiceKeepsItsStartForANegativeNumberWithoutAComplaint) {
  ::testing::internal::CaptureStderr();
  startMetSpeex("speexFormat=-7\nspeexBitRateChoice=-2\ndacNumberOfBits=-2147483648\n");
  EXPECT_EQ(keuze(ID_FORMAAT)->GetSelection(), 0);
  EXPECT_EQ(keuze(ID_BITRATE_TYPE)->GetSelection(), 0);
  EXPECT_EQ(keuze(ID_DAC_TYPE)->GetSelection(), 3);
  EXPECT_EQ(stopSpeex("dacNumberOfBits"), "-2147483648");
  EXPECT_EQ(::testing::internal::GetCapturedStderr().find("CRITICAL"), std::string::npos);
}

TEST_F(VreemdeConfiguratieProef, LanguageOutsideTheTableNeedsNoClass) {
  startMetSpeex("speexOutputLanguage=99\n");
  laad({maakFragment("fragment.wav")});
  EXPECT_TRUE(knop(ID_CODEER)->IsEnabled());
}

TEST_F(VreemdeConfiguratieProef, FileWithoutSenseIsReadAsFarAsItGoes) {
  start("geen groep\n[[[\n]]\nspeexFormat\n[Gebruikersinstellingen/Speex]\nspeexFormat=2\n");
  EXPECT_EQ(keuze(ID_FORMAAT)->GetSelection(), 2);
  EXPECT_EQ(stopSpeex("speexFormat"), "2");
}

}  // namespace
