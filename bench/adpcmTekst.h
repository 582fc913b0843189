// What a WAV file costs to become ADPCM source text: the coding against libsndfile, which writes
// the same samples as IMA ADPCM in the same run, and the text against that of PCM.
#pragma once

#include <string>

// Prints one line a figure; false where a goal is missed. `map` is a folder for files.
bool meetAdpcm(std::string const& map);
