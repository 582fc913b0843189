// An array of a generated text as bytes: those that a compiler puts into flash.
#pragma once

#include <vector>

using ArrayBytes = std::vector<unsigned char>;

// The ways of output that an array can come from.
enum class ArraySoort { speex, adpcm, pcm, wav };
