// How the bytes of a fuzzing engine become an array and the way to read it. Byte 0: bit 0 set for
// no header, bits 1 and 2 the frequency where there is none. Byte 1: the room for samples, less
// one. The array is the rest.
#pragma once

#include "tests/firmware/readerRules.h"

// Ends the process where a rule does not hold.
void demand(Rules rules, std::uint8_t const* bytes, std::size_t count);
