// Generated texts as the input of a command.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "audio/weergave/doelDecoder.h"
#include "audio/weergave/tekstLezer.h"

namespace CLI {
class App;
}
class TekstDecoder;

// The arrays of the text at `pad`; "-" is standard input. Nothing where the text cannot be read
// wholly, which was told: a line each for whatever is wrong with it.
std::optional<std::vector<TekstArray>> leesArrays(std::string const& pad);

// As it is called in the language of the text: the class before the name, where there is one.
std::string volleNaam(TekstArray const& array);

// The name of the encoder as an option has it: "pcm".
std::string optieNaam(ArraySoort soort);

// Adds the option for the width of the DAC, which `dacBits` keeps; 0 where it is not given.
void voegBreedteToe(CLI::App& app, unsigned int& dacBits);

// What a target plays of the next array of the text. Nothing where that could not be decoded, which
// was told.
std::optional<DoelGeluid> decodeer(TekstDecoder& decoder, TekstArray const& array);
