// The settings of Speex mean the same to kestrolin-cli as to the window.
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>

#include <set>
#include <utility>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/opdrachtProef.h"

namespace {

struct SpeexKeuze {
  int kwaliteit;
  int complexiteit;
  int soort;  // of bit rate: the row of the window's choice
  bool vad;
  bool denoise;
  bool agc;
};

// Each value of each setting, in combinations that leave none of them alone.
std::vector<SpeexKeuze> const speexKeuzen{
    {8, 3, 0, true, true, true},    {0, 10, 1, false, false, false}, {10, 0, 2, true, false, true},
    {4, 1, 2, false, true, false},  {2, 7, 1, true, true, false},    {6, 2, 0, false, false, true},
    {10, 10, 0, false, true, true}, {7, 5, 1, true, false, false},
};

Woorden woordenVan(SpeexKeuze const& rij) {
  Woorden woorden{"--encoder",
                  "speex",
                  "--max-bitrate",
                  "40000",
                  "--quality",
                  std::to_string(rij.kwaliteit),
                  "--complexity",
                  std::to_string(rij.complexiteit),
                  "--bitrate",
                  Woorden{"fixed", "variable", "average"}.at(static_cast<std::size_t>(rij.soort))};
  for (auto const& [aan, woord] :
       {std::pair(rij.vad, "--no-vad"), std::pair(rij.denoise, "--no-denoise"),
        std::pair(rij.agc, "--no-agc")}) {
    if (!aan) {
      woorden.emplace_back(woord);
    }
  }
  return woorden;
}

class OpdrachtSpeex : public OpdrachtProef {
 protected:
  void stelIn(SpeexKeuze const& rij) {
    zet(spin(ID_QUALITY), rij.kwaliteit);
    zet(spin(ID_COMPLEXITY), rij.complexiteit);
    kies(keuze(ID_BITRATE_TYPE), rij.soort);
    zet(vakje(ID_VAD), rij.vad);
    zet(vakje(ID_DENOISE), rij.denoise);
    zet(vakje(ID_AGC), rij.agc);
  }
  // A second of a voice, for which every setting shows.
  void maakSpraak(int rate) {
    SpeexFragment const fragment{"stem" + std::to_string(rate),
                                 spraak(static_cast<std::size_t>(rate), rate)};
    laadFragmenten({fragment}, rate);
    opnamen = {"../" + fragment.naam + ".wav"};
  }
};

TEST_F(OpdrachtSpeex, OptionsAreTheControlsInEachBand) {
  // A ceiling that leaves room for each quality.
  beginSpeex(0, "speexBitRate=40000\n");
  for (int const rate : {8000, 32000, 16000}) {
    maakSpraak(rate);
    std::set<std::string> teksten;
    for (SpeexKeuze const& rij : speexKeuzen) {
      SCOPED_TRACE(std::to_string(rate) + testing::PrintToString(woordenVan(rij)));
      stelIn(rij);
      std::string const tekst = vanVenster();
      verwachtGelijk(tekst, vanOpdracht(woordenVan(rij)), 1);
      teksten.insert(tekst.substr(tekst.find("[] =")));
    }
    EXPECT_EQ(teksten.size(), speexKeuzen.size()) << "some settings make no difference";
  }
}

TEST_F(OpdrachtSpeex, WithoutOptionsItIsAFirstStart) {
  start();
  kies(radio(ID_LANG_IMPL), 0);
  maakSpraak(16000);
  verwachtGelijk(vanVenster(), vanOpdracht({"--encoder", "speex"}), 1);
}

// The field of the window is no way to it: what counts is the settings file.
TEST_F(OpdrachtSpeex, MaximumOfTheBitRateIsThatOfTheSettingsFile) {
  for (char const* const bitrate : {"0", "3000", "24600", "2147483647"}) {
    for (int const soort : {1, 2}) {
      SCOPED_TRACE(std::string(bitrate) + " " + std::to_string(soort));
      beginSpeex(0, wxString("speexBitRate=") + bitrate + "\n");
      maakSpraak(8000);
      kies(keuze(ID_BITRATE_TYPE), soort);
      verwachtGelijk(vanVenster(),
                     vanOpdracht({"--encoder", "speex", "--max-bitrate", bitrate, "--bitrate",
                                  soort == 1 ? "variable" : "average"}),
                     1);
      stop();
    }
  }
}

}  // namespace
