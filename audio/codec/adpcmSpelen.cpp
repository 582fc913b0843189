// The two operations of the ADPCM converter that are heard.
#include <wx/filename.h>
#include <wx/sound.h>

#include "audio/codec/adpcmDesktopConverter.h"
#include "audio/codec/adpcmPakket.h"
#include "audio/codec/pcmPakket.h"
#include "audio/codec/pcmWav.h"

namespace {

wxFileName tijdelijkBestand(wxString const& voorvoegsel) {
  wxFileName naam;
  naam.AssignTempFileName(voorvoegsel);
  return naam;
}

void speelBestand(wxFileName const& wav) {
  wxSound const geluid(wav.GetFullPath());
  if (geluid.IsOk()) {
    geluid.Play(wxSOUND_SYNC);
  }
}

}  // namespace

void ADPCMDesktopConverter::speel(VelmoraADPCMPakket const& pakket) {
  VelmoraPCMPakket const pcm(pakket.geefAantalSamples(), pakket.geefSampFreq());
  decodeer(pakket, pcm);
  wxFileName const naam = tijdelijkBestand("tempwav");
  // Open until the sound has ended.
  SndBestand const wav = schrijfWav(naam, pcm);
  speelBestand(naam);
}

void ADPCMDesktopConverter::voerUitZelfTest(wxFileName const& wav) {
  wxFileName const beeld = tijdelijkBestand("adpcm");
  wxFileName const terug = tijdelijkBestand("tempwav");
  codeerBestand(wav, true, beeld);
  decodeerBestand(beeld, terug);
  speelBestand(terug);
}
