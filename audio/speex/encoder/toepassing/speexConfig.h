// The Speex options of the settings. The settings hold what the configuration file says, whatever
// that is, and the encoder takes what it is handed: the limits stand in between, here alone.
#pragma once

#include "externals/software/extern/speex/speexEncodeConfig.h"

struct KestrolinConfig;

// A band that does not exist counts as narrowband.
SpeexBandFormaat speexBandVan(KestrolinConfig const& instellingen);

// `gainBits` are the bits to scale every sample down by. A quality or complexity outside 0 to 10 is
// the nearest of these, as the window shows it; a kind of bit rate that does not exist counts as
// fixed; a bit rate beyond 2147483647, the library's largest, is that.
SpeexEncodeConfig maakSpeexConfig(KestrolinConfig const& instellingen, unsigned int gainBits);
