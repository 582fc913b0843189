// The arrays that the tool makes of recordings.
#pragma once

#include <wx/string.h>

#include <memory>

#include "audio/uitvoer/kestrolinConfig.h"
#include "audio/weergave/arrayBytes.h"

class FragmentMaker;
class wxFileName;

// A maker of this kind that has made nothing before. An embedded WAV file is made at `beeld` first,
// and stays there.
std::unique_ptr<FragmentMaker> maakMaker(ArraySoort soort, wxString const& beeld);

// The array of this recording in C, with header, by an encoder that has made nothing before. An
// embedded WAV file is made at `beeld` first, and stays there. Empty where there is no array, or
// one that lacks a part of the recording. A recording that cannot be read is told in the log, and
// gives an array of PCM or ADPCM that the readers turn away.
ArrayBytes maakArray(ArraySoort soort, KestrolinConfig instellingen, wxFileName const& wav,
                     wxString const& beeld);

// Brings samples of 16 bits down to the low byte, which is what the ADPCM encoder takes of each.
inline constexpr double adpcmVolume = 0.00387;
std::vector<short> brengOmlaag(std::vector<short> const& samples);
