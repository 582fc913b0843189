#include "tests/audio/speex/encoder/toepassing/inbedVensterProef.h"

#include <wx/filename.h>

void InbedVensterProef::inbed(wxString const& doel) {
  antwoorden.opBestandsVraag(doel);
  klik(wxID_SAVEAS);
}

void InbedVensterProef::inbedOver(wxString const& doel, int antwoord,
                                  std::function<void()> tijdens) {
  antwoorden.opBestandsVraag(doel);
  antwoorden.opBericht(antwoord, std::move(tijdens));
  klik(wxID_SAVEAS);
}

BestandsVraag InbedVensterProef::vraag() {
  antwoorden.opBestandsVraagAnnuleren();
  klik(wxID_SAVEAS);
  return antwoorden.bestandsVragen.back();
}

void InbedVensterProef::beginMetBel() {
  begin();
  laad({wav("bel.wav")});
}

std::string InbedVensterProef::verwachteBel() {
  return verwachteRun(Wijze::inbed, {}, {{"bel", {1, -1}}});
}

std::string InbedVensterProef::gelezen(wxString const& pad) {
  EXPECT_TRUE(wxFileName::FileExists(pad)) << pad.utf8_str();
  return zonderMomenten(inhoud(pad).utf8_string());
}
