// The options of the four ways of output, made from the settings. The settings hold what the
// configuration file says, whatever that is, and the encoders take what they are handed: the limits
// stand in between, here alone.
#pragma once

#include <wx/string.h>

#include "audio/codec/adpcmDesktopConverter.h"
#include "audio/codec/pcmDesktopConverter.h"
#include "audio/codec/wavInbedding.h"
#include "externals/software/extern/speex/speexDesktopEncoder.h"

struct KestrolinConfig;

// A band that does not exist counts as narrowband.
SpeexBandFormaat speexBandVan(KestrolinConfig const& instellingen);

// A quality or complexity outside 0 to 10 is the nearest of these, as the window shows it; a kind
// of bit rate that does not exist counts as fixed; a bit rate beyond 2147483647, the library's
// largest, is that.
SpeexEncodeConfig maakSpeexConfig(KestrolinConfig const& instellingen);

// `klasse` is the class that owns the arrays. It stays out of options for C. For Speex a language
// in which no arrays can be made counts as C++.
SpeexEncoderOpties maakSpeexOpties(KestrolinConfig const& instellingen, wxString const& klasse);
PCMEncoderOpties maakPcmOpties(KestrolinConfig const& instellingen, wxString const& klasse);
ADPCMEncoderOpties maakAdpcmOpties(KestrolinConfig const& instellingen, wxString const& klasse);
InbedOpties maakInbedOpties(KestrolinConfig const& instellingen, wxString const& klasse);
