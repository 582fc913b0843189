#include "audio/codec/pcmWav.h"

#include "audio/codec/pcmPakket.h"
#include "audio/codec/wavFormaat.h"

SndBestand schrijfWav(wxFileName const& doel, VelmoraPCMPakket const& pakket) {
  SndBestand wav =
      SndBestand::schrijf(doel, static_cast<int>(pakket.geefSampFreq().rondAf(false)), 1, wavPcm16);
  wav.schrijfItems(pakket.geefData(), static_cast<sf_count_t>(pakket.geefAantalSamples()));
  return wav;
}
