// The options of the four ways of output, made from the settings. Settings can hold any value, and
// the encoders check nothing. The limits are applied here.
#pragma once

#include <wx/string.h>

#include "audio/codec/adpcmDesktopConverter.h"
#include "audio/codec/pcmDesktopConverter.h"
#include "audio/codec/wavInbedding.h"
#include "audio/uitvoer/kestrolinConfig.h"
#include "externals/software/extern/speex/speexDesktopEncoder.h"

// The settings of a first start, with this language and a DAC of this width.
KestrolinConfig eersteInstellingen(UitvoerTaal taal, long long dacBits);

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
