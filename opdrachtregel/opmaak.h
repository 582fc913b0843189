// The layout of the help texts, the same for every release of the library that reads the options.
#pragma once

#include <CLI/CLI.hpp>

#include <string>

class Opmaak : public CLI::FormatterBase {
 public:
  std::string make_help(CLI::App const* app, std::string naam,
                        CLI::AppFormatMode modus) const override;
};

// "kestrolin-cli" or "kestrolin-cli encode".
std::string volleNaam(CLI::App const& app);

// How a command is written, with what it cannot do without.
std::string gebruiksRegel(CLI::App const& app);

// What the help tells of an option or of the files of a command.
std::string optieUitleg(CLI::Option const& optie);
