// The sound of the arrays of a text, as a target plays it.
#pragma once

#include <cstddef>
#include <optional>

#include "audio/weergave/doelDecoder.h"
#include "audio/weergave/tekstLezer.h"

// Decodes the arrays of one text. Wants all of them, in the order of the text: ADPCM fragments go
// on from one another.
//
// Within a run each ADPCM fragment starts where the one before it ended. So does the first one of a
// later run where both were made in one session of the window; kestrolin-cli makes every run
// afresh. The text does not tell which. A decoder that starts from the wrong place is off by a
// constant from then on, so the first fragment of a run is decoded both ways, and the quieter one
// is taken.
class TekstDecoder {
 public:
  // `dacBits` is the width of the DAC that the arrays were made for, 1 to 16. Without, each text
  // tells that itself, or the samples stay as they are.
  explicit TekstDecoder(std::optional<unsigned int> dacBits) : breedte(dacBits) {}

  // The samples are raised from the width of the DAC to 16 bits; those beyond are brought to the
  // end of the range. Those of ADPCM are eight bits narrower than the DAC. Speex ends where the
  // fragment does.
  DoelGeluid decodeer(TekstArray const& array);

 private:
  DoelGeluid decodeerKaal(TekstArray const& array);
  unsigned int bitsVan(TekstArray const& array) const;

  std::optional<unsigned int> breedte;
  DoelDecoder decoder;
  std::optional<std::size_t> adpcmRun;  // of the last ADPCM fragment
};
