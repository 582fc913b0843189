#include "opdrachtregel/opmaak.h"

#include <algorithm>
#include <sstream>
#include <vector>

namespace {

constexpr std::size_t kolom = 26;    // where explanations begin
constexpr std::size_t breedte = 80;  // of a terminal

// `links`, and behind it the words of `rechts` in lines of their own column.
std::string inKolommen(std::string const& links, std::string const& rechts) {
  std::string tekst = "  " + links;
  std::size_t gebruikt = tekst.size();
  if (gebruikt >= kolom) {
    tekst += '\n';
    gebruikt = 0;
  }
  std::istringstream woorden(rechts);
  bool isEerste = true;
  for (std::string woord; woorden >> woord; isEerste = false) {
    if (!isEerste && gebruikt + 1 + woord.size() > breedte) {
      tekst += '\n';
      gebruikt = 0;
    }
    std::size_t const wit = gebruikt < kolom ? kolom - gebruikt : 1;
    tekst += std::string(wit, ' ') + woord;
    gebruikt += wit + woord.size();
  }
  return tekst + "\n";
}

bool isVlag(CLI::Option const& optie) {
  return optie.get_items_expected_max() == 0;
}

// What stands behind the name of an option. The library adds what it checks behind a colon.
std::string waarde(CLI::Option const& optie) {
  std::string const soort = optie.get_type_name();
  return isVlag(optie) ? std::string() : " " + soort.substr(0, soort.find(':'));
}

std::string plaatsNaam(CLI::Option const& optie) {
  constexpr int eenPerKeer = 1;
  return optie.get_name(true) + (optie.get_items_expected_max() > eenPerKeer ? "..." : "");
}

std::string namen(CLI::Option const& optie) {
  std::string tekst;
  auto const voegToe = [&tekst](std::string const& naam) {
    tekst += (tekst.empty() ? "" : ", ") + naam;
  };
  for (std::string const& kort : optie.get_snames()) {
    voegToe("-" + kort);
  }
  for (std::string const& lang : optie.get_lnames()) {
    voegToe("--" + lang);
  }
  return tekst + waarde(optie);
}

std::string opdrachtUitleg(CLI::App const& app) {
  std::string tekst;
  auto const opdrachten = app.get_subcommands([](CLI::App const* /*een*/) { return true; });
  for (CLI::App const* een : opdrachten) {
    tekst += inKolommen(een->get_name(), een->get_description());
  }
  return tekst.empty() ? tekst : "\nCommands:\n" + tekst;
}

std::string groepUitleg(CLI::App const& app, std::string const& groep) {
  auto const opties = app.get_options([&groep](CLI::Option const* een) {
    return een->get_group() == groep && !een->get_positional();
  });
  std::string tekst;
  for (CLI::Option const* een : opties) {
    tekst += optieUitleg(*een);
  }
  return tekst.empty() ? tekst : "\n" + groep + ":\n" + tekst;
}

std::vector<CLI::Option const*> plaatsen(CLI::App const& app) {
  return app.get_options([](CLI::Option const* een) { return een->get_positional(); });
}

}  // namespace

std::string volleNaam(CLI::App const& app) {
  // A command has the program above it, and nothing below.
  CLI::App const* const programma = app.get_parent();
  return programma == nullptr ? app.get_name() : programma->get_name() + " " + app.get_name();
}

std::string gebruiksRegel(CLI::App const& app) {
  std::string regel = "Usage: " + volleNaam(app);
  if (app.get_parent() == nullptr) {
    return regel + " COMMAND [OPTION...] FILE...\n";
  }
  regel += " [OPTION...]";
  for (CLI::Option const* een : plaatsen(app)) {
    regel += een->get_required() ? " " + plaatsNaam(*een) : " [" + plaatsNaam(*een) + "]";
  }
  auto const nodig = app.get_options(
      [](CLI::Option const* een) { return een->get_required() && !een->get_positional(); });
  for (CLI::Option const* een : nodig) {
    std::string const naam = een->get_snames().empty() ? "--" + een->get_lnames().front()
                                                       : "-" + een->get_snames().front();
    regel += " " + naam + waarde(*een);
  }
  return regel + "\n";
}

std::string optieUitleg(CLI::Option const& optie) {
  return inKolommen(optie.get_positional() ? plaatsNaam(optie) : namen(optie),
                    optie.get_description());
}

std::string Opmaak::make_help(CLI::App const* app, std::string /*naam*/,
                              CLI::AppFormatMode /*modus*/) const {
  std::string tekst = gebruiksRegel(*app) + app->get_description() + "\n";
  for (CLI::Option const* een : plaatsen(*app)) {
    tekst += "\n" + optieUitleg(*een);
  }
  tekst += opdrachtUitleg(*app);
  for (std::string const& groep : app->get_groups()) {
    tekst += groepUitleg(*app, groep);
  }
  std::string const slot = app->get_footer();
  return slot.empty() ? tekst : tekst + "\n" + slot + "\n";
}
