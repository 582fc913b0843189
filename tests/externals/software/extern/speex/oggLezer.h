// Reads what the Speex library's own encoder program writes.
#pragma once

#include "tests/externals/software/extern/speex/speexRechtstreeks.h"

// The packets of an Ogg file with one stream: pages of a head of 27 bytes, the lengths of their
// segments, and the segments. A segment shorter than 255 bytes ends a packet.
Frames oggPakketten(Bytes const& bestand);
