// The text of a fragment whose array is the serial image of a packet.
#pragma once

#include <wx/filename.h>
#include <wx/stream.h>

#include <initializer_list>

#include "audio/codec/array.h"
#include "audio/codec/fragmentTekst.h"
#include "audio/codec/sndBestand.h"

// Appends the text to `uit`. The lines about the file tell what `wav` is now, the array what
// `pakket` was made of before.
template <typename Pakket>
void schrijfArrayTekst(Pakket const& pakket, wxFileName const& wav, FragmentDoel const& doel,
                       std::initializer_list<FragmentTelling> tellingen, bool metHeader,
                       wxOutputStream& uit) {
  SndBestand const bestand = SndBestand::lees(wav);
  if (pakket.geefAantalSamples() > 0) {
    bestand.meldGebrek();
  }
  VelmoraArray<unsigned char> array(pakket.serieelGeefAantalBytes());
  pakket.maakSerieel(array, metHeader);
  FragmentTekst(uit).schrijfFragment(wav, bestand.info(), doel, tellingen, array, metHeader);
}
