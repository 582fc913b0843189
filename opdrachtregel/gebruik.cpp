#include "opdrachtregel/gebruik.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>

#include "opdrachtregel/melding.h"
#include "opdrachtregel/opmaak.h"

namespace {

// The command that the line asks for, or the program.
CLI::App const& gevraagd(CLI::App const& programma) {
  auto const opdrachten = programma.get_subcommands();
  return opdrachten.empty() ? programma : *opdrachten.front();
}

// The name of the option that a message of the parser is about, empty where it is about none.
std::string optieIn(CLI::App const& app, std::string const& bericht) {
  auto const opties = app.get_options();
  auto const gevonden =
      std::find_if(opties.begin(), opties.end(), [&bericht](CLI::Option const* optie) {
        return bericht.rfind(optie->get_name() + ":", 0) == 0 ||
               bericht.rfind(optie->get_name() + " ", 0) == 0;
      });
  return gevonden == opties.end() ? std::string() : (*gevonden)->get_name();
}

// The message of the parser, without what it says of how values are written: the help follows.
std::string bericht(CLI::ParseError const& fout, std::string const& optie) {
  std::string tekst = fout.what();
  if (fout.get_name() != "ArgumentMismatch" || optie.empty()) {
    return tekst;
  }
  return optie + (tekst.find("received") != std::string::npos ? " is given more than once"
                                                              : " needs a value");
}

}  // namespace

Uitslag meldGebruik(CLI::App const& app, std::string const& bericht, std::string const& optie) {
  meld(bericht);
  CLI::Option const* const gevonden = optie.empty() ? nullptr : app.get_option_no_throw(optie);
  std::cerr << (gevonden != nullptr ? optieUitleg(*gevonden) : gebruiksRegel(app)) << "Try '"
            << volleNaam(app) << " --help' for all of it.\n";
  return verkeerdGebruik;
}

int meldParseFout(CLI::App const& programma, CLI::ParseError const& fout) {
  if (fout.get_exit_code() == static_cast<int>(CLI::ExitCodes::Success)) {
    // Help and version are answers.
    return programma.exit(fout);
  }
  CLI::App const& app = gevraagd(programma);
  std::string const optie = optieIn(app, fout.what());
  return meldGebruik(app, bericht(fout, optie), optie);
}
