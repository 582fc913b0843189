// What holds of the operations on decoded samples, whatever these are: `array` of the attempt has
// the number of bits in byte 0, gain and `top` of a timer in bytes 1 and 2, and samples from there.
#pragma once

#include "tests/firmware/readerRules.h"

char const* outputRules(Attempt const& attempt);
