// The picture of size against quality.
#pragma once

#include <string>
#include <vector>

#include "opdrachtregel/vergelijking.h"

// An SVG file: a panel for each recording, with the bytes of flash on a logarithmic axis, and a
// sign for each encoder that is told by its shape as well as by its colour. No label lies over
// another one, or over a sign.
std::string tekenPlaat(std::vector<Vergelijking> const& vergelijkingen);
