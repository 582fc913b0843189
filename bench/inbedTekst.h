// The cost of embedding against that of PCM text.
#pragma once

#include <string>

// Prints one line a figure; false where a goal is missed. `map` is a folder for files.
bool meetInbedding(std::string const& map);
