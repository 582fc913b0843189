// Speex, both ways, as the desktop tool uses it: WAV files to source text, and that text back to a
// WAV file.
#pragma once

#include "externals/software/extern/speex/speexDesktopDecoder.h"
#include "externals/software/extern/speex/speexDesktopEncoder.h"
