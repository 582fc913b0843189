// What a WAV file costs to become Speex source text, against a bare loop over libspeex with the
// same settings in the same run, and how fast that text is decoded.
#pragma once

#include <string>

// Prints one line a figure; false where a goal is missed. `map` is a folder for files.
bool meetSpeex(std::string const& map);
