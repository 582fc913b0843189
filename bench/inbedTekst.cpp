#include "bench/inbedTekst.h"

#include <wx/filename.h>
#include <wx/mstream.h>

#include <cstdlib>
#include <iostream>

#include "audio/codec/pcmDesktopConverter.h"
#include "audio/codec/wavInbedding.h"
#include "bench/geluid.h"
#include "bench/meting.h"

namespace {

constexpr int samplerate = 32000;
constexpr int herhalingen = 5;

int codeer(wxFileName const& wav) {
  PCMDesktopConverter const converter(PCMEncoderOpties(PCMTaalC, 0));
  wxMemoryOutputStream uit;
  converter.codeerBestand(wav, true, uit);
  return uit.GetSize() > 0 ? 0 : 1;
}

int inbed(wxFileName const& wav) {
  constexpr int dacBits = 16;
  wxMemoryOutputStream uit;
  return schrijfInbedding(wav, {0, wxString(), dacBits}, uit) ? 0 : 1;
}

}  // namespace

bool meetInbedding(std::string const& map) {
  constexpr int lang = 120;
  std::string const pad = map + "/inbed.wav";
  maakRuis(pad, samplerate, lang);
  wxFileName const wav(pad);
  // The images lie where the other files do, and go with them.
  setenv("TMPDIR", map.c_str(), 1);
  Verbruik const pcm = meetBeste(herhalingen, [&] { return codeer(wav); });
  Verbruik const inbedding = meetBeste(herhalingen, [&] { return inbed(wav); });
  if (!pcm.geslaagd || !inbedding.geslaagd) {
    std::cerr << "bench: the embedding or its peer failed\n";
    return false;
  }
  constexpr double doel = 2;
  double const verhouding = inbedding.seconden / pcm.seconden;
  return meld(verhouding <= doel, "embedding against the PCM text of the same file, 120 s",
              verhouding, "<= 2.00");
}
