// How fast, and in how much memory, a WAV file becomes PCM source text, against `xxd -i` on the
// same array bytes in the same run.
#pragma once

#include <string>

// Prints one line a figure; false where a goal is missed. `map` is a folder for files.
bool meetPcm(std::string const& map);
