// The lines of a Speex array in generated text, put together by hand.
#pragma once

#include <string>

#include "tests/externals/software/extern/speex/speexRechtstreeks.h"

// The comment on the header bytes.
extern std::string const uitlegRegel;

// The line of the four header bytes.
std::string headerRegel(int rate, unsigned int telling);
// The lines of frames, numbered from 0.
std::string frameRegels(Frames const& frames);
// What closes the array of a file of that name.
std::string slotRegels(std::string const& bestand);
