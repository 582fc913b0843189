// How fast Speex texts are read back, for playback and by the command, against libspeex, which
// decodes what was read.
#pragma once

#include <string>

// Prints one line a figure; false where a goal is missed. `map` is a folder for files.
bool meetLezers(std::string const& map);
