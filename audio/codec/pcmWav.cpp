#include "audio/codec/pcmWav.h"

#include "audio/codec/pcmPakket.h"

SndBestand schrijfWav(wxFileName const& doel, VelmoraPCMPakket const& pakket) {
  SndBestand wav = SndBestand::schrijf(doel, static_cast<int>(pakket.geefSampFreq().rondAf(false)),
                                       1, SF_FORMAT_WAV | SF_FORMAT_PCM_16);
  wav.schrijfItems(pakket.geefData(), static_cast<sf_count_t>(pakket.geefAantalSamples()));
  return wav;
}
