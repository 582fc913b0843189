// Speex arrays for the tests, put together by hand.
#pragma once

#include "kestrolin_speex.h"
#include "tests/externals/software/extern/speex/speexRechtstreeks.h"
#include "tests/steun/bytes.h"

// Each frame behind its size byte.
Bytes speexFrames(Frames const& frames);
// The same behind a header.
Bytes speexArray(int rate, std::size_t samples, Frames const& frames);

signed char const* asSigned(Bytes const& array);
// Opened from an exact copy, which is gone afterwards; a reader that is refused has to be empty.
kestrolin_status speexOpening(Bytes const& array);
kestrolin_status speexOpening(Bytes const& array, std::uint16_t headerlessRate);

// The frames that a reader still has, up to KESTROLIN_END.
Frames framesOf(kestrolin_speex& speex);
