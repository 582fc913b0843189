// What the PCM and ADPCM converters are told before a run.
#pragma once

#include <wx/string.h>

// `Taal` is the converter's own name for the languages of the text.
template <typename Taal>
struct ConverterOpties {
  ConverterOpties(Taal uitvoerTaal, unsigned long long schuif)
      : taal(uitvoerTaal), bitShift(schuif) {}
  ConverterOpties(Taal uitvoerTaal, wxString const& klasse, unsigned long long schuif)
      : taal(uitvoerTaal), klasseNaam(klasse), bitShift(schuif) {}

  Taal taal;
  wxString klasseNaam;          // the class that owns the arrays in C++, empty otherwise
  unsigned long long bitShift;  // bits to scale away: 16 minus the width of the DAC
};
