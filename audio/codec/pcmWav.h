// PCM packets as WAV files: what the converters decode to.
#pragma once

#include "audio/codec/sndBestand.h"

class VelmoraPCMPakket;
class wxFileName;

// Writes the packet to a WAV file of one channel of 16-bit samples, with its frequency cut to whole
// Hz. The file is complete when the last copy of the result is gone: until then its header counts
// no samples. A frequency that libsndfile refuses, as it does 0, leaves a header without samples.
SndBestand schrijfWav(wxFileName const& doel, VelmoraPCMPakket const& pakket);
