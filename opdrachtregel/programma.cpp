#include "opdrachtregel/programma.h"

#include <wx/init.h>
#include <CLI/CLI.hpp>

#include <algorithm>
#include <array>
#include <clocale>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <iterator>
#include <memory>
#include <new>
#include <string_view>
#include <utility>
#include <vector>

#include "opdrachtregel/decodeerOpdracht.h"
#include "opdrachtregel/encodeerOpdracht.h"
#include "opdrachtregel/gebruik.h"
#include "opdrachtregel/lijstOpdracht.h"
#include "opdrachtregel/melding.h"
#include "opdrachtregel/opmaak.h"
#include "opdrachtregel/signalen.h"
#include "opdrachtregel/speelOpdracht.h"
#include "opdrachtregel/systeem.h"
#include "opdrachtregel/vergelijkOpdracht.h"
#include "opdrachtregel/wegwerpBestand.h"

namespace {

// The commands, in the order of the help.
std::vector<std::unique_ptr<Opdracht>> maakOpdrachten(CLI::App& programma) {
  std::vector<std::unique_ptr<Opdracht>> opdrachten;
  opdrachten.push_back(std::make_unique<EncodeerOpdracht>(programma));
  opdrachten.push_back(std::make_unique<LijstOpdracht>(programma));
  opdrachten.push_back(std::make_unique<DecodeerOpdracht>(programma));
  opdrachten.push_back(std::make_unique<SpeelOpdracht>(programma));
  opdrachten.push_back(std::make_unique<VergelijkOpdracht>(programma));
  return opdrachten;
}

// Texts are English and names are UTF-8, whatever the environment says: a build must not depend on
// whose shell it runs in.
void kiesTaal() {
  static_cast<void>(std::setlocale(LC_ALL, "C"));
  static_cast<void>(std::setlocale(LC_CTYPE, "C.UTF-8"));
}

constexpr std::array<std::string_view, 3> geenGeheugen{
    "kestrolin-cli: ", "there is not enough memory", "\n"};

// What the toolkit and the library of the options do without memory where they let no exception
// through.
[[noreturn]] void eindigZonderGeheugen() {
  ruimNuOp();
  for (std::string_view const deel : geenGeheugen) {
    static_cast<void>(schrijfDeel(kanaalFout, deel.data(), deel.size()));
  }
  std::_Exit(mislukt);
}

// The toolkit, as long as this lives.
class Toolkit {
 public:
  Toolkit() { wxInitialize(); }
  ~Toolkit() {
    try {
      wxUninitialize();
    } catch (std::bad_alloc const&) {
      // All is done; the end of the process takes the rest.
    }
  }
  Toolkit(Toolkit const&) = delete;
  Toolkit& operator=(Toolkit const&) = delete;
  Toolkit(Toolkit&&) = delete;
  Toolkit& operator=(Toolkit&&) = delete;
};

Uitslag voerOpdrachtUit(Opdracht& opdracht) {
  Toolkit const toolkit;
  // The toolkit asserts on names and settings of certain kinds, and goes on correctly behind that.
  wxSetAssertHandler(nullptr);
  kiesTaal();
  MeldingLog const log;
  ruimOpBijSignaal();
  return opdracht.voerUit();
}

// What was said may stand in a buffer still, and a disk may be full.
int sluitUitvoer(int uitslag) {
  std::cout.flush();
  if (!std::cout.good() && uitslag == gelukt) {
    meld("cannot write standard output");
    return mislukt;
  }
  return uitslag;
}

// The words behind the name of the program, in the reverse order that the library wants. It takes
// brackets around a word for a list of its own. A process can be started without any word.
std::vector<std::string> zonderLijsten(int aantal, char const* const* woorden) {
  std::vector<std::string> uit;
  std::transform(std::make_reverse_iterator(woorden + std::max(aantal, 1)),
                 std::make_reverse_iterator(woorden + 1), std::back_inserter(uit),
                 [](std::string const& woord) {
                   bool const isLijst =
                       !woord.empty() && woord.front() == '[' && woord.back() == ']';
                   return isLijst ? "./" + woord : woord;
                 });
  return uit;
}

// Whether the first word is a command, or an option of the program. What is none was told.
bool isOpdracht(CLI::App const& programma, std::vector<std::string> const& omgekeerd) {
  if (omgekeerd.empty()) {
    meldGebruik(programma, "a command is missing");
    return false;
  }
  std::string const& eerste = omgekeerd.back();
  auto const opdrachten = programma.get_subcommands(
      [&eerste](CLI::App const* een) { return een->get_name() == eerste; });
  bool const isEen = !opdrachten.empty() || (!eerste.empty() && eerste.front() == '-');
  if (!isEen) {
    meldGebruik(programma, "there is no command \"" + eerste + "\"");
  }
  return isEen;
}

int voerRegelUit(int aantal, char const* const* woorden) {
  CLI::App programma("Turns short WAV fragments into source arrays for firmware.", "kestrolin-cli");
  programma.formatter(std::make_shared<Opmaak>());
  programma.set_help_flag("-h,--help", "Print this and exit");
  programma.set_version_flag("--version", std::string("kestrolin-cli ") + KESTROLIN_VERSIE,
                             "Print the version and exit");
  programma.require_subcommand(1);
  // A word that begins with a slash is a path on each system.
  programma.allow_windows_style_options(false);
  std::vector<std::unique_ptr<Opdracht>> const opdrachten = maakOpdrachten(programma);
  std::vector<std::string> regel = zonderLijsten(aantal, woorden);
  if (!isOpdracht(programma, regel)) {
    return verkeerdGebruik;
  }
  try {
    programma.parse(std::move(regel));
  } catch (CLI::ParseError const& fout) {
    return sluitUitvoer(meldParseFout(programma, fout));
  }
  for (std::unique_ptr<Opdracht> const& opdracht : opdrachten) {
    if (opdracht->isGevraagd()) {
      return sluitUitvoer(voerOpdrachtUit(*opdracht));
    }
  }
  return verkeerdGebruik;
}

}  // namespace

int voerProgrammaUit(int aantal, char const* const* woorden) {
  std::set_terminate(eindigZonderGeheugen);
  bereidKanalenVoor();
  try {
    return voerRegelUit(aantal, woorden);
  } catch (std::bad_alloc const&) {
    // On the way here all that was begun has been taken away.
    meld(std::string(geenGeheugen[1]));
    return mislukt;
  }
}
