// What each control does to the settings, and whether it gives the result up.
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>
#include <wx/textctrl.h>

#include <functional>
#include <sstream>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "audio/speex/encoder/toepassing/kestrolin.h"
#include "tests/audio/speex/encoder/toepassing/gereedProef.h"

namespace {

class InstellingenProef : public GereedProef {
 protected:
  // A result is there, or has been given up, with "Encode" the other way round.
  void verwachtResultaat(bool isEr) const {
    EXPECT_EQ(isGecodeerd(), isEr);
    EXPECT_EQ(knop(ID_SPEEL_RESULTAAT)->IsEnabled(), isEr);
    EXPECT_EQ(knop(ID_CODEER)->IsEnabled(), !isEr);
  }

  void verwachtFout(std::size_t aantal) const {
    ASSERT_EQ(log().size(), aantal);
    for (LogRegel const& regel : log()) {
      EXPECT_EQ(regel.niveau, static_cast<unsigned long>(wxLOG_Error));
      EXPECT_EQ(regel.tekst, "(maxRateHandler) kon getal niet omzetten.");
    }
  }

  // The settings of the running program, in the order of the record.
  static std::string toon(KestrolinConfig const& c) {
    std::ostringstream tekst;
    tekst << c.speexFormat << ' ' << c.speexQuality << ' ' << c.speexComplexity << ' '
          << c.speexBitRateChoice << ' ' << c.speexBitRate << ' ' << c.speexOutputLanguage << ' '
          << c.speexVAC << c.speexDenoise << c.speexAGC << c.IncludeHeader << ' '
          << c.dacNumberOfBits;
    return tekst.str();
  }

  // Enters a bit rate through the event of the Enter key.
  void geefRate(wxString const& rate) {
    veld(ID_MAX_RATE)->ChangeValue(rate);
    stuur(veld(ID_MAX_RATE), wxEVT_TEXT_ENTER);
  }
};

using Instellingen = KestrolinConfig;

// What a user does to a control, and what that does to the settings.
struct Stap {
  char const* naam;
  std::function<void()> doet;
  void (*anders)(Instellingen&);
};

TEST_F(InstellingenProef, EachControlIsStoredInItsOwnSettingAlone) {
  std::vector<Stap> const stappen{
      {"band", [&] { kies(keuze(ID_FORMAAT), 2); }, [](Instellingen& c) { c.speexFormat = 2; }},
      {"bit rate kind", [&] { kies(keuze(ID_BITRATE_TYPE), 1); },
       [](Instellingen& c) { c.speexBitRateChoice = 1; }},
      {"quality", [&] { zet(spin(ID_QUALITY), 10); }, [](Instellingen& c) { c.speexQuality = 10; }},
      {"complexity", [&] { zet(spin(ID_COMPLEXITY), 0); },
       [](Instellingen& c) { c.speexComplexity = 0; }},
      {"voice activity off", [&] { zet(vakje(ID_VAD), false); },
       [](Instellingen& c) { c.speexVAC = false; }},
      {"voice activity on", [&] { zet(vakje(ID_VAD), true); },
       [](Instellingen& c) { c.speexVAC = true; }},
      {"gain control off", [&] { zet(vakje(ID_AGC), false); },
       [](Instellingen& c) { c.speexAGC = false; }},
      {"gain control on", [&] { zet(vakje(ID_AGC), true); },
       [](Instellingen& c) { c.speexAGC = true; }},
      {"denoise off", [&] { zet(vakje(ID_DENOISE), false); },
       [](Instellingen& c) { c.speexDenoise = false; }},
      {"denoise on", [&] { zet(vakje(ID_DENOISE), true); },
       [](Instellingen& c) { c.speexDenoise = true; }},
      {"enhancement is no setting", [&] { zet(vakje(ID_PERPENH), false); }, [](Instellingen&) {}},
      {"width of the DAC", [&] { kies(keuze(ID_DAC_TYPE), 1); },
       [](Instellingen& c) { c.dacNumberOfBits = 1; }},
      {"language C", [&] { kies(radio(ID_LANG_IMPL), 0); },
       [](Instellingen& c) { c.speexOutputLanguage = 0; }},
      {"language C++", [&] { kies(radio(ID_LANG_IMPL), 1); },
       [](Instellingen& c) { c.speexOutputLanguage = 1; }},
      {"bit rate that is a number", [&] { geefRate("12345"); },
       [](Instellingen& c) { c.speexBitRate = 12345; }},
      // 2^32 + 7.
      {"low 32 bits of a bit rate", [&] { geefRate("4294967303"); },
       [](Instellingen& c) { c.speexBitRate = 7; }},
      {"bit rate in base ten", [&] { geefRate("010"); },
       [](Instellingen& c) { c.speexBitRate = 10; }},
      {"bit rate typed without Enter", [&] { typ(veld(ID_MAX_RATE), "9999"); },
       [](Instellingen&) {}},
  };
  start();
  Instellingen verwacht;
  for (Stap const& stap : stappen) {
    SCOPED_TRACE(stap.naam);
    stap.doet();
    stap.anders(verwacht);
    EXPECT_EQ(toon(wxGetApp().geefInstellingen()), toon(verwacht));
    EXPECT_TRUE(nietsGelogd(log()));
  }
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

// The Speex controls are disabled beside a PCM result, so their events go out without the user.
TEST_F(InstellingenProef, EachControlGivesTheResultUpAndItsTextStays) {
  std::vector<std::pair<char const*, std::function<void()>>> const stappen{
      {"band", [&] { stuur(keuze(ID_FORMAAT), wxEVT_CHOICE); }},
      {"bit rate kind", [&] { stuur(keuze(ID_BITRATE_TYPE), wxEVT_CHOICE); }},
      {"quality", [&] { stuur(spin(ID_QUALITY), wxEVT_SPINCTRL); }},
      {"complexity", [&] { stuur(spin(ID_COMPLEXITY), wxEVT_SPINCTRL); }},
      {"voice activity", [&] { stuur(vakje(ID_VAD), wxEVT_CHECKBOX); }},
      {"gain control", [&] { stuur(vakje(ID_AGC), wxEVT_CHECKBOX); }},
      {"denoise", [&] { stuur(vakje(ID_DENOISE), wxEVT_CHECKBOX); }},
      {"encoder chosen again", [&] { stuur(radio(ID_ENCODER_TYPE), wxEVT_RADIOBOX); }},
      {"header ticked again", [&] { stuur(vakje(ID_INCL_HEADER), wxEVT_CHECKBOX); }},
      {"bit rate", [&] { stuur(veld(ID_MAX_RATE), wxEVT_TEXT_ENTER); }},
      {"width of the DAC", [&] { kies(keuze(ID_DAC_TYPE), 1); }},
      {"language", [&] { kies(radio(ID_LANG_IMPL), 1); }},
      {"class", [&] { typ(veld(ID_KLASSE), wxString::FromUTF8("Geluïd $HOME")); }},
      {"bit rate that is no number", [&] { geefRate("abc"); }}};
  startGecodeerd();
  vakje(ID_PERPENH)->SetValue(false);
  stuur(vakje(ID_PERPENH), wxEVT_CHECKBOX);
  for (auto const& [naam, doet] : stappen) {
    SCOPED_TRACE(naam);
    verwachtResultaat(true);
    wxString const oud = tekst();
    EXPECT_FALSE(oud.empty());
    doet();
    verwachtResultaat(false);
    EXPECT_EQ(tekst(), oud);
    codeer();
  }
  verwachtFout(1);
  auto const sleutels = stopSleutels();
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/dacNumberOfBits"), "1");
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/speexOutputLanguage"), "1");
  EXPECT_EQ(sleutels.at("/Gebruikersinstellingen/Speex/IncludeHeader"), "1");
  EXPECT_EQ(sleutels.at("/Configuratie/klasseNaam"), wxString::FromUTF8("Geluïd $HOME"));
}

}  // namespace
