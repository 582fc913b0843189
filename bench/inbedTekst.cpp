#include "bench/inbedTekst.h"

#include <wx/filename.h>
#include <wx/mstream.h>

#include <cstdlib>
#include <iostream>

#include "audio/codec/audioConfig.h"
#include "audio/uitvoer/fragmentMaker.h"
#include "audio/uitvoer/uitvoerOpties.h"
#include "bench/geluid.h"
#include "bench/meting.h"

namespace {

constexpr int herhalingen = 5;

template <typename Maker>
int maakTekst(wxFileName const& wav) {
  Maker maker;
  wxMemoryOutputStream uit;
  maker.begin(eersteInstellingen(UitvoerTaalC, sampleBits), wxString(), 1);
  return maker.maak(wav, true, uit) == Gemaakt::heel && uit.GetSize() > 0 ? 0 : 1;
}

}  // namespace

bool meetInbedding(std::string const& map) {
  constexpr int lang = 120;
  std::string const pad = map + "/inbed.wav";
  maakRuis(pad, hoogsteRate, lang);
  wxFileName const wav(pad);
  // The images lie where the other files do, and go with them.
  setenv("TMPDIR", map.c_str(), 1);
  Verbruik const pcm = meetBeste(herhalingen, [&] { return maakTekst<PCMMaker>(wav); });
  Verbruik const inbedding = meetBeste(herhalingen, [&] { return maakTekst<WAVMaker>(wav); });
  if (!pcm.geslaagd || !inbedding.geslaagd) {
    std::cerr << "bench: the embedding or its peer failed\n";
    return false;
  }
  constexpr double doel = 2;
  double const verhouding = inbedding.seconden / pcm.seconden;
  return meld(verhouding <= doel, "embedding against the PCM text of the same file, 120 s",
              verhouding, "<= 2.00");
}
