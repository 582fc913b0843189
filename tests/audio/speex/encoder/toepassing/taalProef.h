// The fixtures of the tests of the program in its languages, with the catalogs that the build made.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/audio/speex/encoder/toepassing/speexRunProef.h"
#include "tests/steun/taalCatalogus.h"

// A language that the program has catalogs of.
struct Taal {
  std::string code;
  int nummer;  // a wxLanguage
};
// All of them, or, where each test takes long, the first alone.
std::vector<Taal> const& talen();
// For the names of tests.
std::string taalCode(::testing::TestParamInfo<Taal> const& info);
void PrintTo(Taal const& taal, std::ostream* uit);

// A key of the configuration file with its group.
constexpr char const* taalSleutel = "/Gebruikersinstellingen/Taal";

class TaalProef : public SpeexRunProef {
 protected:
  // The part of the configuration file that names the language.
  static wxString taalRegels(int nummer);

  // Does that in a process of its own, before this one starts the application. What fails there
  // fails here too. It takes over the home directory and all other files of the test.
  void inEigenProces(std::function<void()> const& doet);

  // Does that inside the main loop, and expects the loop to end by it or to go on: it is then ended
  // from here.
  void doeInHoofdlus(std::function<void()> doet, bool eindigt);
  // Ends the application as its main does behind the main loop, without closing the window, and
  // returns the configuration file by keys.
  std::map<wxString, wxString> eindigNaHoofdlus();

  OmgevingsWaarde catalogi{"LC_PATH", KESTROLIN_CATALOGI};
};

// A test for each of the languages.
class ElkeTaalProef : public TaalProef, public ::testing::WithParamInterface<Taal> {
 protected:
  // Starts with this encoder and C as the language of the text, in the language of the test.
  void beginInTaal(int encoder);
  // The same in that language, a wxLanguage.
  void beginIn(int nummer, int encoder);
  // The text of the catalog; the test fails where there is none.
  std::string vertaald(std::string const& origineel);
  // The same for a text that differs from English in every language.
  std::string anders(std::string const& origineel);

 private:
  Catalogus teksten;
};

// A format string with each "%d" and "%ld" replaced by the next of these, and "%%" by "%".
std::string vulIn(std::string const& vorm, std::vector<std::string> const& getallen);
// The number of times that a text holds another.
std::size_t telTekst(std::string const& tekst, std::string const& deel);
