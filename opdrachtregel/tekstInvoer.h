// Generated texts as the input of a command.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "audio/weergave/tekstLezer.h"

// The arrays of the text at `pad`; "-" is standard input. Nothing where the text cannot be read
// wholly, which was told: a line each for whatever is wrong with it.
std::optional<std::vector<TekstArray>> leesArrays(std::string const& pad);

// As it is called in the language of the text: the class before the name, where there is one.
std::string volleNaam(TekstArray const& array);

// The name of the encoder as an option has it: "pcm".
std::string optieNaam(ArraySoort soort);
