#include "audio/uitvoer/speexMaker.h"

#include "audio/uitvoer/uitvoerOpties.h"
#include "numeriek/percentage.h"

SpeexMaker::SpeexMaker() : FragmentMaker(codeerSoort("Speex", SpeexDesktopEncoder::arrayType)) {}

void SpeexMaker::begin(KestrolinConfig const& instellingen, wxString const& klasse,
                       std::size_t aantal) {
  encoder = std::make_unique<SpeexDesktopEncoder>(maakSpeexConfig(instellingen),
                                                  maakSpeexOpties(instellingen, klasse));
  gemiddelde.emplace(aantal);
}

Gemaakt SpeexMaker::maak(wxFileName const& wav, bool metHeader, wxOutputStream& uit) {
  Percentage verhouding;
  if (encoder->encode(wav, uit, metHeader, verhouding) != SpeexDesktopEncoder::gelukt) {
    return Gemaakt::mislukt;
  }
  gemiddelde->voegToe(verhouding.geefWaarde());
  return Gemaakt::heel;
}

int SpeexMaker::geefGemiddelde() const {
  return gemiddelde ? static_cast<int>(gemiddelde->geefGemiddelde()) : 0;
}
