// The fixture of the tests of Speex runs, and the text that such a run has to give: put together
// here from frames that come straight out of the Speex library.
#pragma once

#include <string>
#include <vector>

#include "tests/audio/speex/encoder/toepassing/gereedProef.h"
#include "tests/externals/software/extern/speex/speexHulp.h"

// A WAV file of a run.
struct SpeexFragment {
  std::string naam;  // without ".wav"
  std::vector<int> samples;
  std::string duur;  // in seconds, with two decimals
};
using SpeexFragmenten = std::vector<SpeexFragment>;

// What a run makes of its files.
struct SpeexDoel {
  Instelling instelling;
  std::string arrayVoor;  // stands before the names of arrays
  bool metHeader = true;
};

// The settings of a first start, for files of this band.
Instelling eersteInstelling(int band = 0);
// Speech of about half a second with a pause in it: every setting that reaches the audio shows in
// its frames.
SpeexFragment spraakFragment(std::string const& naam = "bel");
// Three files of different ratios, in the order of their names.
SpeexFragmenten drieFragmenten();

// The frames of each file, from one encoder for all of them.
std::vector<Frames> framesVan(SpeexFragmenten const& fragmenten, Instelling const& instelling);
// The text of a run behind its declarations: every fragment between its marks, with momentRegel
// in it.
std::string blokken(SpeexFragmenten const& fragmenten, SpeexDoel const& doel);
// The head of a run over one file "bel" in C.
extern std::string const kopVanBel;
// The same over those three files.
extern std::string const kopVanDrie;

class SpeexRunProef : public GereedProef {
 protected:
  // Writes and loads these files, the last one first.
  void laadFragmenten(SpeexFragmenten const& fragmenten, int rate = 8000);

  // Encodes, and returns the text field in UTF-8 with momentRegel in it.
  std::string codeerTekst();
  // Starts a run whatever the state of the button, where no message is to come.
  void codeerZonderMelding();
  // Saves as this name whatever the state of the button, and returns the file's text likewise.
  std::string bewaarTekst(wxString const& naam);

  // The message of a run over loaded files without a dialog, and that it was the only one.
  void verwachtMelding(std::size_t procent) const;
  // Expects a run over one file "bel" in C to give the text of these settings.
  void verwachtBel(SpeexFragment const& bel, Instelling const& instelling);
};
