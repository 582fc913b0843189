// The WAV file that embedding makes of a source: how it comes about, and whether all of it is
// there. A disk that fills up leaves a shorter file with a header that fits it, which no reader can
// tell from a whole one.
#pragma once

#include <sndfile.h>

#include <cstddef>
#include <string_view>

#include "audio/codec/sndBestand.h"

class wxFileName;

// Copies samples of `bron` to `doel`, a new file of the same frequency, channels and format,
// shifted down to `dacBits` (1 to 16) bits: as many interleaved values as `bron` has frames, in
// whole frames. Both files are closed behind this. False where not all of them could be read and
// written.
bool maakWavBeeld(SndBestand bron, wxFileName const& doel, int dacBits);

// Whether a file that begins with `begin` and has `lengte` bytes holds `frames` frames in a RIFF
// file of that very size. `begin` has to reach into the samples, or to the end of a shorter file. A
// file of another kind, which only a source that was replaced after its loading gives, counts as
// whole.
bool isHeelWavBeeld(std::string_view begin, std::size_t lengte, sf_count_t frames);

// The frames of the WAV file that maakWavBeeld makes of such a source.
sf_count_t framesInBeeld(SF_INFO const& bron);
