// The fixture of the tests that hold the texts of the window against those of kestrolin-cli.
#pragma once

#include <string>
#include <vector>

#include "tests/audio/speex/encoder/toepassing/speexRunProef.h"
#include "tests/steun/programma.h"

using Woorden = std::vector<std::string>;

// The options that choose this output language; the class is that of the fixture's window.
Woorden taalWoorden(int taal);

class OpdrachtProef : public SpeexRunProef {
 protected:
  OpdrachtProef();

  // Writes recordings of each kind to folders with a blank in their names, loads them in an order
  // of its own, and sets `opnamen`.
  void maakOpnamen(int rate = 8000);

  // The text that the window makes with its settings of now, as its Save and its Save As write it.
  std::string vanVenster();
  std::string ingebed();
  // The file that kestrolin-cli encode writes with these options, over `opnamen` where no others
  // are given. The test fails where the command does not succeed without a word.
  std::string vanOpdracht(Woorden const& opties) { return vanOpdracht(opties, opnamen); }
  std::string vanOpdracht(Woorden const& opties, Woorden const& paden);

  // Expects the texts to have a moment for each of so many recordings, and nothing else that
  // differs.
  static void verwachtGelijk(std::string const& venster, std::string const& opdracht,
                             std::size_t aantal);

  // The paths of the recordings as kestrolin-cli is given them.
  Woorden opnamen;

 private:
  wxString const doel = pad("uit.txt");
};
