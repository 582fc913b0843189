// Decodes arrays as a target would: by the readers of firmware/ and libspeex.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "audio/weergave/arrayBytes.h"
#include "kestrolin_adpcm.h"
#include "kestrolin_status.h"

// Signed, at the width that the array was made for, the channels in turn.
using Samples = std::vector<short>;

struct DoelGeluid {
  kestrolin_status status;  // not KESTROLIN_OK where the reader turned the array away
  unsigned int rate = 0;    // samples a second and channel
  unsigned int kanalen = 1;
  Samples samples;
};

// Decodes the arrays of one text, in the order of the text: each ADPCM fragment goes on from the
// state that the one before it ended in, as the encoder did. The first one starts from silence.
class DoelDecoder {
 public:
  // An array with header, or, where `zonderKop` gives its sampling frequency in Hz, without. A WAV
  // file has a header always. Speex comes without the samples that the codec's delay puts before
  // the first one, and ends where the fragment does, or where the frames do.
  DoelGeluid decodeer(ArraySoort soort, ArrayBytes const& array,
                      std::optional<std::uint16_t> zonderKop = std::nullopt);

 private:
  DoelGeluid decodeerAdpcm(ArrayBytes const& array, std::optional<std::uint16_t> zonderKop);

  kestrolin_adpcm vorige{};  // at the end of the ADPCM fragment before
};
