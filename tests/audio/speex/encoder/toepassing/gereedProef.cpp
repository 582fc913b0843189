#include "tests/audio/speex/encoder/toepassing/gereedProef.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/radiobox.h>
#include <wx/spinctrl.h>

#include "audio/speex/encoder/toepassing/HoofdVenster.h"
#include "tests/steun/configTekst.h"

void GereedProef::startMetSpeex(wxString const& regels) {
  start("[Gebruikersinstellingen/Speex]\n" + regels);
}

void GereedProef::startGeladen() {
  start(
      "[Gebruikersinstellingen/Speex]\nspeexOutputLanguage=0\n[Configuratie]\nklasseNaam=Klank\n");
  laad({maakFragment("fragment.wav")});
}

void GereedProef::startGecodeerd() {
  startGeladen();
  codeerPcm();
  ASSERT_TRUE(isGecodeerd());
}

wxString GereedProef::maakFragment(std::string const& naam, int rate) {
  constexpr std::size_t aantal = 20;
  WavSoort soort;
  soort.rate = rate;
  return wav(naam, proefSamples(aantal), soort);
}

void GereedProef::codeerPcm() {
  constexpr int pcm = 2;
  kies(radio(ID_ENCODER_TYPE), pcm);
  codeer();
}

void GereedProef::stuur(wxWindow* bron, wxEventType soort) {
  if (soort == wxEVT_SPINCTRL) {
    wxSpinEvent event(soort, bron->GetId());
    event.SetEventObject(bron);
    bron->ProcessWindowEvent(event);
  } else {
    wxCommandEvent event(soort, bron->GetId());
    event.SetEventObject(bron);
    bron->ProcessWindowEvent(event);
  }
  rust();
}

std::map<wxString, wxString> GereedProef::stopSleutels() {
  return configSleutels(stop());
}

wxString GereedProef::stopSpeex(wxString const& sleutel) {
  return stopSleutels().at("/Gebruikersinstellingen/Speex/" + sleutel);
}
