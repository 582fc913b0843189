// What each control does to the settings, and whether it gives the result up.
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include <functional>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/gereedProef.h"

namespace {

class InstellingenProef : public GereedProef {
 protected:
  // Whether there is still a result after this control's event, with "Encode" the other way round.
  // The Speex controls are disabled beside a PCM result, so the event goes out without the user.
  void verwachtResultaatWeg(wxWindow* bron, wxEventType soort) {
    ASSERT_TRUE(isGecodeerd());
    ASSERT_FALSE(knop(ID_CODEER)->IsEnabled());
    stuur(bron, soort);
    EXPECT_FALSE(isGecodeerd());
    EXPECT_FALSE(knop(ID_SPEEL_RESULTAAT)->IsEnabled());
    EXPECT_TRUE(knop(ID_CODEER)->IsEnabled());
  }

  void verwachtFout(std::size_t aantal) const {
    ASSERT_EQ(log().size(), aantal);
    for (LogRegel const& regel : log()) {
      EXPECT_EQ(regel.niveau, static_cast<unsigned long>(wxLOG_Error));
      EXPECT_EQ(regel.tekst, "(maxRateHandler) kon getal niet omzetten.");
    }
  }

  // Enters a bit rate through the event of the Enter key.
  void geefRate(wxString const& rate) {
    veld(ID_MAX_RATE)->ChangeValue(rate);
    stuur(veld(ID_MAX_RATE), wxEVT_TEXT_ENTER);
  }
};

TEST_F(InstellingenProef, BandIsStoredAsTheSelection) {
  start();
  kies(keuze(ID_FORMAAT), 2);
  EXPECT_EQ(stopSpeex("speexFormat"), "2");
}

TEST_F(InstellingenProef, BandGivesTheResultUp) {
  startGecodeerd();
  verwachtResultaatWeg(keuze(ID_FORMAAT), wxEVT_CHOICE);
}

TEST_F(InstellingenProef, BitRateKindIsStoredAsTheSelection) {
  start();
  kies(keuze(ID_BITRATE_TYPE), 1);
  EXPECT_EQ(stopSpeex("speexBitRateChoice"), "1");
}

TEST_F(InstellingenProef, BitRateKindGivesTheResultUp) {
  startGecodeerd();
  verwachtResultaatWeg(keuze(ID_BITRATE_TYPE), wxEVT_CHOICE);
}

TEST_F(InstellingenProef, QualityIsStored) {
  start();
  zet(spin(ID_QUALITY), 10);
  EXPECT_EQ(stopSpeex("speexQuality"), "10");
}

TEST_F(InstellingenProef, QualityGivesTheResultUp) {
  startGecodeerd();
  verwachtResultaatWeg(spin(ID_QUALITY), wxEVT_SPINCTRL);
}

TEST_F(InstellingenProef, ComplexityIsStored) {
  start();
  zet(spin(ID_COMPLEXITY), 0);
  EXPECT_EQ(stopSpeex("speexComplexity"), "0");
}

TEST_F(InstellingenProef, ComplexityGivesTheResultUp) {
  startGecodeerd();
  verwachtResultaatWeg(spin(ID_COMPLEXITY), wxEVT_SPINCTRL);
}

TEST_F(InstellingenProef, FlagsAreStoredEachInItsOwnKey) {
  start();
  zet(vakje(ID_VAD), false);
  auto sleutels = stopSleutels();
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/speexVAC"), "0");
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/speexAGC"), "1");
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/speexDenoise"), "1");
}

TEST_F(InstellingenProef, GainControlIsStored) {
  start();
  zet(vakje(ID_AGC), false);
  auto sleutels = stopSleutels();
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/speexVAC"), "1");
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/speexAGC"), "0");
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/speexDenoise"), "1");
}

TEST_F(InstellingenProef, DenoiseIsStored) {
  start();
  zet(vakje(ID_DENOISE), false);
  auto sleutels = stopSleutels();
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/speexVAC"), "1");
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/speexAGC"), "1");
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/speexDenoise"), "0");
}

TEST_F(InstellingenProef, FlagCanBeSetAgain) {
  startMetSpeex("speexVAC=0\nspeexAGC=0\nspeexDenoise=0\n");
  zet(vakje(ID_VAD), true);
  zet(vakje(ID_AGC), true);
  zet(vakje(ID_DENOISE), true);
  auto sleutels = stopSleutels();
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/speexVAC"), "1");
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/speexAGC"), "1");
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/speexDenoise"), "1");
}

TEST_F(InstellingenProef, VoiceActivityGivesTheResultUp) {
  startGecodeerd();
  verwachtResultaatWeg(vakje(ID_VAD), wxEVT_CHECKBOX);
}

TEST_F(InstellingenProef, GainControlGivesTheResultUp) {
  startGecodeerd();
  verwachtResultaatWeg(vakje(ID_AGC), wxEVT_CHECKBOX);
}

TEST_F(InstellingenProef, DenoiseGivesTheResultUp) {
  startGecodeerd();
  verwachtResultaatWeg(vakje(ID_DENOISE), wxEVT_CHECKBOX);
}

TEST_F(InstellingenProef, EnhancementLeavesTheResultAndTheSettingsAlone) {
  startGecodeerd();
  vakje(ID_PERPENH)->SetValue(false);
  stuur(vakje(ID_PERPENH), wxEVT_CHECKBOX);
  EXPECT_TRUE(isGecodeerd());
  EXPECT_TRUE(knop(ID_SPEEL_RESULTAAT)->IsEnabled());
  EXPECT_FALSE(knop(ID_CODEER)->IsEnabled());
}

TEST_F(InstellingenProef, DacIsStoredAsTheSelectionAndGivesTheResultUp) {
  startGecodeerd();
  kies(keuze(ID_DAC_TYPE), 1);
  EXPECT_FALSE(isGecodeerd());
  EXPECT_TRUE(knop(ID_CODEER)->IsEnabled());
  EXPECT_EQ(stopSpeex("dacNumberOfBits"), "1");
}

TEST_F(InstellingenProef, EncoderKindGivesTheResultUpAlsoWhenChosenAgain) {
  startGecodeerd();
  verwachtResultaatWeg(radio(ID_ENCODER_TYPE), wxEVT_RADIOBOX);
}

TEST_F(InstellingenProef, LanguageIsStoredAndGivesTheResultUp) {
  startGecodeerd();
  kies(radio(ID_LANG_IMPL), 1);
  EXPECT_FALSE(isGecodeerd());
  EXPECT_EQ(stopSpeex("speexOutputLanguage"), "1");
}

TEST_F(InstellingenProef, LanguageCIsStored) {
  start();
  kies(radio(ID_LANG_IMPL), 0);
  EXPECT_EQ(stopSpeex("speexOutputLanguage"), "0");
}

TEST_F(InstellingenProef, HeaderTickedAgainGivesTheResultUp) {
  startGecodeerd();
  verwachtResultaatWeg(vakje(ID_INCL_HEADER), wxEVT_CHECKBOX);
  EXPECT_EQ(stopSpeex("IncludeHeader"), "1");
}

TEST_F(InstellingenProef, ClassNameIsStoredAsTypedAndGivesTheResultUp) {
  startGeladen();
  kies(radio(ID_LANG_IMPL), 1);
  codeerPcm();
  ASSERT_TRUE(isGecodeerd());
  typ(veld(ID_KLASSE), wxString::FromUTF8("Gelu\xC3\xAF"
                                          "d $HOME"));
  EXPECT_FALSE(isGecodeerd());
  EXPECT_EQ(stopSleutels().at("/Configuratie/klasseNaam"), wxString::FromUTF8("Gelu\xC3\xAF"
                                                                              "d $HOME"));
}

TEST_F(InstellingenProef, BitRateThatIsANumberIsTakenOver) {
  start();
  geefRate("12345");
  EXPECT_TRUE(nietsGelogd(log()));
  EXPECT_EQ(stopSpeex("speexBitRate"), "12345");
}

TEST_F(InstellingenProef, BitRateKeepsItsLow32Bits) {
  start();
  // 2^32 + 7.
  geefRate("4294967303");
  EXPECT_TRUE(nietsGelogd(log()));
  EXPECT_EQ(stopSpeex("speexBitRate"), "7");
}

TEST_F(InstellingenProef, BitRateIsReadInBaseTen) {
  start();
  geefRate("010");
  EXPECT_EQ(stopSpeex("speexBitRate"), "10");
}

TEST_F(InstellingenProef, BitRateThatIsNoNumberIsLoggedAndTheOldOneStays) {
  startMetSpeex("speexBitRate=7000\n");
  std::size_t keren = 0;
  for (char const* rate : {"", "abc", "12zz", "12 ", "0x10", "1.5"}) {
    SCOPED_TRACE(rate);
    geefRate(rate);
    verwachtFout(++keren);
  }
  EXPECT_EQ(stopSpeex("speexBitRate"), "7000");
}

TEST_F(InstellingenProef, BitRateGivesTheResultUp) {
  startGecodeerd();
  verwachtResultaatWeg(veld(ID_MAX_RATE), wxEVT_TEXT_ENTER);
}

TEST_F(InstellingenProef, BitRateThatIsNoNumberGivesTheResultUpToo) {
  startGecodeerd();
  veld(ID_MAX_RATE)->ChangeValue("abc");
  verwachtResultaatWeg(veld(ID_MAX_RATE), wxEVT_TEXT_ENTER);
  verwachtFout(1);
}

TEST_F(InstellingenProef, TypingABitRateWithoutEnterChangesNothing) {
  start();
  typ(veld(ID_MAX_RATE), "9999");
  EXPECT_EQ(stopSpeex("speexBitRate"), "5000");
}

TEST_F(InstellingenProef, TextOfTheOldResultStaysUntilTheNextEncoding) {
  startGecodeerd();
  wxString const oud = tekst();
  ASSERT_FALSE(oud.empty());
  kies(keuze(ID_DAC_TYPE), 0);
  EXPECT_FALSE(isGecodeerd());
  EXPECT_EQ(tekst(), oud);
}

}  // namespace
