// The arrays that each of the tool's encoders makes of a WAV file. Every call has an encoder of its
// own, as after a start of the program.
#pragma once

#include "audio/weergave/arrayBytes.h"

class wxFileName;

// With header. An empty array stands for a file that could not be encoded.
ArrayBytes pcmArray(wxFileName const& wav, unsigned int dacBits);
// For a DAC of 16 bits.
ArrayBytes adpcmArray(wxFileName const& wav);
// At a fixed bit rate, with the settings of a first start; `quality` is 0 to 10. The file is at
// `rate` Hz, which is 8000, 16000 or 32000.
ArrayBytes speexArray(wxFileName const& wav, int rate, unsigned int quality, unsigned int dacBits);

// The whole file, for a DAC of 16 bits. Leaves a file in the temporary directory.
ArrayBytes embeddedArray(wxFileName const& wav);
