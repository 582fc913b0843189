// kestrolin-cli makes the text of the window: every encoder, language, width and header.
#include <wx/checkbox.h>
#include <wx/choice.h>
#include <wx/radiobox.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/audio/speex/encoder/toepassing/opdrachtProef.h"

namespace {

struct Keuze {
  int taal;
  int dac;  // the row of the window's choice
  bool metHeader;
};

std::vector<Keuze> alleKeuzen() {
  std::vector<Keuze> keuzen;
  for (int const taal : {0, 1}) {
    for (int const dac : {0, 1, 2, 3}) {
      keuzen.push_back({taal, dac, true});
      keuzen.push_back({taal, dac, false});
    }
  }
  return keuzen;
}

Woorden woordenVan(std::string const& encoder, Keuze const& rij) {
  Woorden woorden = taalWoorden(rij.taal);
  woorden.insert(
      woorden.end(),
      {"--encoder", encoder, "--dac",
       std::vector<std::string>{"8", "10", "12", "16"}.at(static_cast<std::size_t>(rij.dac))});
  if (!rij.metHeader) {
    woorden.emplace_back("--no-header");
  }
  return woorden;
}

class OpdrachtGelijk : public OpdrachtProef {
 protected:
  void stelIn(int encoder, Keuze const& rij) {
    kies(radio(ID_ENCODER_TYPE), encoder);
    kies(radio(ID_LANG_IMPL), rij.taal);
    kies(keuze(ID_DAC_TYPE), rij.dac);
    if (vakje(ID_INCL_HEADER)->GetValue() == rij.metHeader) {
      return;
    }
    if (rij.metHeader) {
      zet(vakje(ID_INCL_HEADER), true);
    } else {
      zonderHeader();
    }
  }
};

TEST_F(OpdrachtGelijk, TextsOfSpeexPcmAndWavAreThoseOfTheWindow) {
  begin();
  maakOpnamen();
  for (Keuze const& rij : alleKeuzen()) {
    SCOPED_TRACE(testing::PrintToString(woordenVan("...", rij)));
    stelIn(EncoderSpeex, rij);
    verwachtGelijk(vanVenster(), vanOpdracht(woordenVan("speex", rij)), opnamen.size());
    stelIn(EncoderPCM, rij);
    verwachtGelijk(vanVenster(), vanOpdracht(woordenVan("pcm", rij)), opnamen.size());
    verwachtGelijk(ingebed(), vanOpdracht(woordenVan("wav", rij)), opnamen.size());
  }
}

// The window's coder goes on from run to run, and the command's begins.
TEST_F(OpdrachtGelijk, TextsOfAdpcmAreThoseOfAWindowThatHasJustStarted) {
  for (Keuze const& rij : alleKeuzen()) {
    SCOPED_TRACE(testing::PrintToString(woordenVan("adpcm", rij)));
    beginAdpcm();
    maakOpnamen();
    stelIn(EncoderADPCM, rij);
    verwachtGelijk(vanVenster(), vanOpdracht(woordenVan("adpcm", rij)), opnamen.size());
    stop();
  }
}

}  // namespace
