// Which names arrays and classes may have in the generated text.
#pragma once

#include <string_view>

// Whether every compiler of the output language takes `naam` for a name of the user's: letters of
// ASCII, digits and underscores, not a digit first, no word of the language, and none that belongs
// to the compiler (two underscores, or one and a capital) or to <stddef.h>. `taal` is an
// UitvoerTaal; every one but C counts as C++.
bool isBruikbareNaam(std::string_view naam, int taal);
