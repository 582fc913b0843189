// Answers to command lines that are no commands.
#pragma once

#include <string>

#include "opdrachtregel/opdracht.h"

namespace CLI {
class ParseError;
}

// Says what is wrong with the use of a command, with the line of its help that tells of `optie`,
// or its usage line where that is empty.
Uitslag meldGebruik(CLI::App const& app, std::string const& bericht,
                    std::string const& optie = std::string());

// The answer to a command line that could not be read, or that asks for help or the version. The
// exit status.
int meldParseFout(CLI::App const& programma, CLI::ParseError const& fout);
